#pragma once
// The version check with recorders around it, in a folder of the test.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "online/check/version_check.h"
#include "support/recorders.h"
#include "support/recording_online.h"

namespace padral::pruebas {

struct Actualizaciones : ::testing::Test {
    QTemporaryDir carpeta;
    GrabadorAvisos avisos;
    RelojFijo reloj;
    EstadoCompartido estado{avisos, reloj};
    cActOnline& act = estado.act;
    GrabadorDescarga descarga;
    GrabadorNavegador navegador;
    bool preferencias = false;
    /// Dialogs that were shown, each with SitAct and ComVer of its moment: "FrmSinConexion 1 0".
    QStringList mostrados;
    ActualizacionOnline online{estado, descarga, navegador, dialogos()};

    /// The running version is 1.30.1.
    Actualizaciones() {
        estado.CarpetaPrograma = carpeta.path();
        act.URLAct = QStringLiteral("http://127.0.0.1/version.asp");
        act.ProgVer1 = QStringLiteral("1");
        act.ProgVer2 = QStringLiteral("30");
        act.ProgVer3 = QStringLiteral("1");
    }

    DialogosActualizacion dialogos() {
        const auto anota = [this](const QString& formulario) {
            return [this, formulario] {
                mostrados
                    << QStringLiteral("%1 %2 %3").arg(formulario).arg(act.SitAct).arg(act.ComVer);
            };
        };
        return {anota(QStringLiteral("FrmVersionCheck")), anota(QStringLiteral("FrmSinConexion")),
                [this] { return preferencias; }};
    }

    QString ini() const { return carpeta.path() + QStringLiteral("/version.ini"); }
    QString pagina() const { return carpeta.path() + QStringLiteral("/temphtm.HTM"); }
    /// "(none)" without a file.
    static QByteArray contenido(const QString& ruta) {
        QFile fichero(ruta);
        return fichero.open(QIODevice::ReadOnly) ? fichero.readAll() : QByteArray("(none)");
    }
    static void escribir(const QString& ruta, const QByteArray& texto) {
        QFile fichero(ruta);
        ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
        fichero.write(texto);
    }
    /// A folder that no file of the name can take the place of.
    static void ocupar(const QString& ruta) { ASSERT_TRUE(QDir().mkpath(ruta + u'/' + u'x')); }
    void ponerEuskera() { estado.DesplazamientoIdioma = CatalogoTextos::DesplazamientoEuskera; }
};

}  // namespace padral::pruebas
