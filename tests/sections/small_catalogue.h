#pragma once
// A catalogue of a few rows and an empty declarations file, written for one test.

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "store/catalogue_lookups.h"
#include "store/new_files.h"

namespace padral::pruebas {

inline constexpr qint16 Euskera = 10000;

struct ConCatalogo : testing::Test {
    QTemporaryDir carpeta;
    QString rutaBDLectura = carpeta.filePath(QStringLiteral("DPadralLec.mdb"));
    QString rutaBDModificacion = carpeta.filePath(QStringLiteral("DPadralMod.mdb"));
    qint16 desplazamiento = 0;
    ConsultasCatalogo catalogo{rutaBDLectura, desplazamiento};

    void SetUp() override {
        store::CreateCatalogueFile(rutaBDLectura, [](SQLite::Database& db) {
            db.exec(
                "INSERT INTO TSiglas (Siglas_Codigo, siglas_cas, siglas_eus) VALUES"
                " ('CL', 'Calle', 'Kalea'), ('AV', 'Avenida', 'Etorbidea')");
            db.exec(
                "INSERT INTO TProvincias (T07_PRO_ID, T07_PRO_CAS, T07_PRO_EUS) VALUES"
                " (1, 'Uno', 'Bat'), (20, 'Kelmaria', 'Kelmarria'), (28, 'Lejana', 'Urruna')");
            db.exec(
                "INSERT INTO TMunicipios (T08_CODMUN, T08_NOMMUN) VALUES"
                " (1, 'Puerto'), (69, 'Capital')");
            db.exec(
                "INSERT INTO TEpigrafes_2000 (EPICODEPI, EPIDEPCAS, EPIDEPEUS) VALUES"
                " ('1651200', 'Librería', 'Liburu-denda'), ('9999999', 'Sin', 'Gabe')");
            db.exec(
                "INSERT INTO TFormasJuridicas"
                " (CODFORMA, LETDNI, DESCRIFORMACAS, DESCRIFORMAEUS) VALUES"
                " (10, 'A', 'Sociedad anónima', 'Sozietate anonimoa'),"
                " (90, 'V', 'Otras', 'Besteak')");
        });
    }
};

}  // namespace padral::pruebas
