#pragma once
// Recording implementations of download and browser.

#include <QFile>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

#include "platform/browser.h"
#include "platform/download.h"

namespace padral::pruebas {

/// Answers each download with the same contents; without any there is no connection.
class GrabadorDescarga : public Descarga {
public:
    std::optional<QByteArray> Contenido;
    QStringList Direcciones, Ficheros;
    /// Runs before the answer, e.g. to look at the state of that moment or to throw.
    std::function<void()> alDescargar;

    bool Descargar(const QString& direccion, const QString& fichero) override {
        Direcciones << direccion;
        Ficheros << fichero;
        if (alDescargar) alDescargar();
        if (!Contenido) return false;
        QFile salida(fichero);
        return salida.open(QIODevice::WriteOnly) && salida.write(*Contenido) == Contenido->size();
    }

    /// A version file, as the authority sends it.
    static QByteArray FicheroVersion(const QByteArray& version, const QByteArray& url,
                                     const QByteArray& descripcion) {
        return "[informacion]\r\ncurrentversion=" + version + "\r\ndownloadurl=" + url +
               "\r\ndescripcion=" + descripcion + "\r\n";
    }
};

/// Opens nothing, and keeps what each page held when it was to be opened.
class GrabadorNavegador : public Navegador {
public:
    /// What is found; empty: no browser.
    QString Programa = QStringLiteral("/usr/bin/navegador");
    bool Arranca = true;

    struct Apertura {
        QString programa, fichero;
        QByteArray contenido;
    };
    QStringList Buscados;
    std::vector<Apertura> Abiertos;

    QString Buscar(const QString& fichero) override {
        Buscados << fichero;
        return Programa;
    }
    bool Abrir(const QString& programa, const QString& fichero) override {
        QFile pagina(fichero);
        const bool leida = pagina.open(QIODevice::ReadOnly);
        Abiertos.push_back({programa, fichero, leida ? pagina.readAll() : QByteArray()});
        return Arranca;
    }
};

}  // namespace padral::pruebas
