#pragma once
// A help of a few pages in a folder of its own, and a form that asks for it.

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QWidget>

#include "core/help/show_help.h"
#include "core/help/window_viewer.h"
#include "recording_viewer.h"
#include "support/recorders.h"

namespace padral::pruebas {

class ConAyuda : public ::testing::Test {
protected:
    ConAyuda() {
        estado.CarpetaPrograma = QDir::toNativeSeparators(carpeta.path());
        escribir(QStringLiteral("Ayuda.chm"), "castellano");
        escribir(QStringLiteral("Laguntza.chm"), "euskera");
        escribir(QStringLiteral("Ayuda/contenido.tsv"),
                 "pagina\ttitulo\tnivel\nindice.htm\tÍndice\t1\nlista.htm\tLa lista\t1\n"
                 "nif.htm\tEl NIF\t2\n");
        escribir(QStringLiteral("Ayuda/indice.htm"),
                 "<h1>Índice</h1><p><a href='lista.htm'>lista</a> "
                 "<a href='nada.htm'>nada</a></p>");
        escribir(QStringLiteral("Ayuda/lista.htm"), "<h1>La lista</h1><p>Búsqueda por NIF.</p>");
        escribir(QStringLiteral("Ayuda/nif.htm"),
                 "<h1>El NIF</h1><p>Lo que significa la letra.</p>");
        escribir(QStringLiteral("Laguntza/contenido.tsv"),
                 "pagina\ttitulo\tnivel\naurkibidea.htm\tAurkibidea\t1\n"
                 "zerrenda.htm\tZerrenda\t1\n");
        escribir(QStringLiteral("Laguntza/aurkibidea.htm"), "<h1>Aurkibidea</h1>");
        escribir(QStringLiteral("Laguntza/zerrenda.htm"), "<h1>Zerrenda</h1>");
    }

    QString ruta(const QString& nombre) const {
        return carpeta.path() + QStringLiteral("/Ayuda/") + nombre;
    }
    void escribir(const QString& nombre, const char* texto) {
        QDir().mkpath(QFileInfo(ruta(nombre)).path());
        QFile fichero(ruta(nombre));
        ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
        fichero.write(texto);
    }
    void enEuskera() { estado.DesplazamientoIdioma = CatalogoTextos::DesplazamientoEuskera; }

    GrabadorAvisos avisos;
    RelojFijo reloj;
    EstadoCompartido estado{avisos, reloj};
    QTemporaryDir carpeta;
    QWidget formulario;
};

}  // namespace padral::pruebas
