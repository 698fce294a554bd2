#pragma once
// A run on a folder of its own with copies of the files that the build makes.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "core/shared_state.h"
#include "core/startup.h"
#include "store/database.h"
#include "support/print_text.h"
#include "support/recorders.h"

namespace padral::pruebas {

class ConDatos : public ::testing::Test {
protected:
    void SetUp() override {
        estado.CarpetaPrograma = carpeta.path();
        ObtenerRutas(estado);
        ASSERT_TRUE(QDir(carpeta.path()).mkdir(QStringLiteral("Tablas")));
        const QString hechos = QStringLiteral(PADRAL_BINARY_DIR "/data/");
        for (const QString& ruta : {estado.RutaBDLectura, estado.RutaBDModificacion})
            ASSERT_TRUE(QFile::copy(hechos + ruta.section(u'/', -1), ruta));
    }

    static QByteArray Contenido(const QString& ruta) {
        QFile fichero(ruta);
        EXPECT_TRUE(fichero.open(QIODevice::ReadOnly)) << ruta.toStdString();
        return fichero.readAll();
    }

    /// Changes a file past the program.
    static void Ejecutar(const QString& ruta, const char* sql) {
        SQLite::Database(ruta.toStdString(), SQLite::OPEN_READWRITE).exec(sql);
    }

    /// First value of a query, read past the program.
    static QString Valor(const QString& ruta, const char* sql) {
        SQLite::Database db(ruta.toStdString());
        return QString::fromStdString(db.execAndGet(sql).getString());
    }

    QTemporaryDir carpeta;
    GrabadorAvisos avisos;
    RelojFijo reloj;
    EstadoCompartido estado{avisos, reloj};
};

}  // namespace padral::pruebas
