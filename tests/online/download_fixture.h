#pragma once
// The real download, a server for it, and a folder to download into.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "online/web_server.h"
#include "platform/net/http_download.h"

namespace padral::pruebas {

struct Descargas : ::testing::Test {
    QTemporaryDir carpeta;
    ServidorWeb servidor;
    DescargaHttp descarga;

    QString fichero() const { return carpeta.filePath(QStringLiteral("recibido.ini")); }
    bool bajar(const QString& url) { return descarga.Descargar(url, fichero()); }
    /// "(none)" without a file.
    QByteArray recibido() const {
        QFile f(fichero());
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("(none)");
    }
    /// Refused, and nothing is left in the folder, half files included.
    void esperaNada(const QString& url) {
        EXPECT_FALSE(bajar(url)) << url.toStdString();
        EXPECT_EQ(
            QDir(carpeta.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
            QStringList())
            << url.toStdString();
    }
};

/// A port on which nobody listens.
inline QString UrlMuerta() {
    ServidorWeb servidor;
    const QString url = servidor.Url();
    servidor.close();
    return url;
}

}  // namespace padral::pruebas
