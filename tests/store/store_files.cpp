#include "store/store_files.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <sqlite3.h>

#include <QFile>

#include "store/collation.h"
#include "store/new_files.h"
#include "store/schema.h"

namespace padral::test {

using namespace padral::store;
using SvrDPadral::FilasDeclaracion;

namespace {

void fillCatalogue(SQLite::Database& db) {
    db.exec(
        "INSERT INTO TEpigrafes_2000 VALUES ('1.8611', 'ALQUILER DE VIVIENDAS', 'ETXEBIZITZAK'),"
        " ('9999999', 'SIN ACTIVIDAD', 'JARDUERARIK GABE'),"
        " ('1.9721', 'PELUQUERÍA', 'ILE APAINDEGIA'), ('1.681', 'ÁREAS DE DESCANSO', 'ATSEDENA')");
    db.exec(
        "INSERT INTO TFormasJuridicas VALUES (90, '', 'OTROS', 'BESTELAKOAK'),"
        " (1, 'A', 'SOCIEDAD ANONIMA - A', 'SOZIETATE ANONIMOA - A'),"
        " (3, 'E', 'REPETIDA - E', 'ERREPIKATUA - E'), (2, 'E', 'REPETIDA - E', 'BESTEA - E')");
    db.exec(
        "INSERT INTO TProvincias VALUES (1, 'Álava', 'Araba'), (20, 'Kelmaria', 'Kelmaria'),"
        " (28, 'Madrid', 'Madril'), (49, 'Zamora', 'Zamora')");
    db.exec(
        "INSERT INTO TMunicipios VALUES (3, 'Oreta'), (7, 'Ñabarri'), (5, 'Nuarbe'), (120, "
        "'Azpil')");
    db.exec(
        "INSERT INTO TSiglas VALUES ('CL', 'Calle', 'Kalea'), ('AV', 'Avenida', 'Etorbidea'),"
        " ('PZ', 'Plaza', 'Plaza')");
    db.exec(
        "INSERT INTO TMotivoCambio VALUES ('31', '31-Último', '31-Azkena'),"
        " ('00', '00-No hay cambios', '00-Ez dago aldaketarik')");
    db.exec(
        "INSERT INTO TCausasCese VALUES ('10', 'CESIÓN', 'UZTEA'), ('99', 'OTRAS', 'BESTEAK'),"
        " ('20', 'BAJA', 'BAJA')");
}

QVariant distinctValue(const Column& column, int seed, int position) {
    switch (column.type) {
        case ColumnType::Integer:
            return seed * 1000 + position;
        case ColumnType::Real:
            return static_cast<float>(seed) + 0.25F;
        case ColumnType::Mark:
        case ColumnType::Text:
            break;
    }
    return QStringLiteral("ñÑ %1.%2 ").arg(seed).arg(position);
}

}  // namespace

StoreFiles::StoreFiles()
    : mod(folder_.filePath(QStringLiteral("DPadralMod.mdb"))),
      lec(folder_.filePath(QStringLiteral("DPadralLec.mdb"))) {
    CreateDeclarationsFile(mod);
    CreateCatalogueFile(lec, fillCatalogue);
}

QString StoreFiles::Path(const char* name) const {
    return folder_.filePath(QString::fromUtf8(name));
}

SvrDPadral::cDeclaracionesSvr StoreFiles::Server(int busyTimeout) const {
    SvrDPadral::cDeclaracionesSvr server;
    server.mdbname = mod;
    server.busyTimeout = busyTimeout;
    return server;
}

QByteArray Bytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

void Overwrite(const QString& path, const QByteArray& content) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(content), content.size());
}

void Execute(const QString& path, const char* sql) {
    SQLite::Database db(path.toStdString(), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, 5000);
    db.exec(sql);
}

QString Value(const QString& path, const char* sql) {
    SQLite::Database db(path.toStdString(), SQLITE_OPEN_READWRITE, 5000);
    return QString::fromUtf8(db.execAndGet(sql).getText());
}

Fila DistinctRow(std::span<const Column> columns, int seed) {
    Fila row;
    for (const Column& column : columns)
        row.append(distinctValue(column, seed, static_cast<int>(row.size())));
    return row;
}

FilasDeclaracion DistinctDeclaration(qint32 csde, int seed) {
    const auto& tables = SectionTables();
    FilasDeclaracion rows;
    rows.general = DistinctRow(GeneralData().columns, seed);
    rows.general[0] = csde;
    rows.apartado2 = DistinctRow(tables[0].columns, seed + 2);
    rows.apartado3 = DistinctRow(tables[1].columns, seed + 3);
    rows.apartado4 = DistinctRow(tables[2].columns, seed + 4);
    rows.apartado5 = DistinctRow(tables[3].columns, seed + 5);
    rows.apartado6 = DistinctRow(tables[4].columns, seed + 6);
    rows.apartado7 = DistinctRow(tables[5].columns, seed + 7);
    rows.anexoII = DistinctRow(tables[6].columns, seed + 8);
    return rows;
}

Fila Participant(qint32 cspa, qint32 csde, int seed) {
    Fila row = DistinctRow(Participants().columns, seed);
    row[0] = cspa;
    row[1] = csde;
    return row;
}

Tabla OneRow(const Fila& row) {
    Tabla table;
    table.Anadir(row);
    return table;
}

FilasDeclaracion Listed(const QString& identifier, const QString& name, const QString& reference,
                        int date) {
    FilasDeclaracion rows;
    rows.general = {0, identifier, name, reference, date};
    return rows;
}

void ExpectSame(const Fila& actual, const Fila& expected, const char* what) {
    ASSERT_EQ(actual.size(), expected.size()) << what;
    for (qsizetype i = 0; i < actual.size(); ++i) {
        EXPECT_EQ(actual[i].toString(), expected[i].toString()) << what << " " << i;
        EXPECT_EQ(actual[i].metaType().id(), expected[i].metaType().id()) << what << " " << i;
    }
}

void ExpectSame(const FilasDeclaracion& actual, const FilasDeclaracion& expected) {
    ExpectSame(actual.general, expected.general, "general data");
    ExpectSame(actual.apartado2, expected.apartado2, "section 2");
    ExpectSame(actual.apartado3, expected.apartado3, "section 3");
    ExpectSame(actual.apartado4, expected.apartado4, "section 4");
    ExpectSame(actual.apartado5, expected.apartado5, "section 5");
    ExpectSame(actual.apartado6, expected.apartado6, "section 6");
    ExpectSame(actual.apartado7, expected.apartado7, "section 7");
    ExpectSame(actual.anexoII, expected.anexoII, "annex II");
}

}  // namespace padral::test
