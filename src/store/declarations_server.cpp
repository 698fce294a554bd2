#include "store/declarations_server.h"

#include "store/database.h"
#include "store/list_query.h"
#include "store/record_io.h"
#include "store/schema.h"

namespace padral::SvrDPadral {

using namespace padral::store;

namespace {

using Apartado = Fila FilasDeclaracion::*;

// In the order of SectionTables().
constexpr std::array<Apartado, 7> Apartados{
    &FilasDeclaracion::apartado2, &FilasDeclaracion::apartado3, &FilasDeclaracion::apartado4,
    &FilasDeclaracion::apartado5, &FilasDeclaracion::apartado6, &FilasDeclaracion::apartado7,
    &FilasDeclaracion::anexoII};

// Elements of the general data that the list sorts by.
constexpr qsizetype ElementoDni = 1, ElementoNombre = 2, ElementoReferencia = 3;

Fila leerFila(SQLite::Database& db, const RecordTable& tabla, qint32 csde) {
    SQLite::Statement consulta(db, "SELECT " + ColumnList(tabla.columns) + " FROM " +
                                       std::string(tabla.name) + " WHERE csde = ?");
    consulta.bind(1, csde);
    return consulta.executeStep() ? ReadRow(consulta, tabla.columns) : EmptyRow(tabla.columns);
}

Tabla leerParticipes(SQLite::Database& db, qint32 csde) {
    const RecordTable& tabla = Participants();
    SQLite::Statement consulta(db, "SELECT " + ColumnList(tabla.columns) +
                                       " FROM TParticipes WHERE csde = ? ORDER BY cspa");
    consulta.bind(1, csde);
    Tabla participes(static_cast<int>(tabla.columns.size()));
    while (consulta.executeStep()) participes.Anadir(ReadRow(consulta, tabla.columns));
    return participes;
}

qint32 guardarGeneral(SQLite::Database& db, const Fila& fila) {
    const RecordTable& tabla = GeneralData();
    const int columnas = static_cast<int>(tabla.columns.size());
    const std::string claves = ListKeyColumnNames();
    std::string sql = "INSERT OR REPLACE INTO " + std::string(tabla.name) + " (" +
                      ColumnList(tabla.columns) + claves + ") VALUES (?";
    for (int i = 1; i < columnas + NumListKeyColumns; ++i) sql += ", ?";
    SQLite::Statement orden(db, sql + ")");
    BindRow(orden, 1, tabla.columns, fila);
    if (fila.value(0).toInt() == 0) orden.bind(1);  // null: the store gives the key
    BindListKeys(orden, columnas + 1, fila.value(ElementoDni).toString(),
                 fila.value(ElementoNombre).toString(), fila.value(ElementoReferencia).toString());
    orden.exec();
    return static_cast<qint32>(db.getLastInsertRowid());
}

void guardarApartado(SQLite::Database& db, const RecordTable& tabla, qint32 csde,
                     const Fila& fila) {
    SQLite::Statement orden(db, InsertSql(tabla.name, "csde", tabla.columns));
    orden.bind(1, csde);
    BindRow(orden, 2, tabla.columns, fila);
    orden.exec();
}

void borrar(SQLite::Database& db, std::string_view tabla, std::string_view clave, qint32 valor) {
    SQLite::Statement orden(
        db, "DELETE FROM " + std::string(tabla) + " WHERE " + std::string(clave) + " = ?");
    orden.bind(1, valor);
    orden.exec();
}

}  // namespace

void cDeclaracionesSvr::CargarDeclaracion(qint32& csde, FilasDeclaracion& filas) const {
    WithDatabase({mdbname, FileKind::Declarations, Access::Read, busyTimeout},
                 [&](SQLite::Database& db) {
                     // One view of the file for all tables.
                     SQLite::Transaction vista(db);
                     filas.general = leerFila(db, GeneralData(), csde);
                     for (std::size_t i = 0; i < Apartados.size(); ++i)
                         filas.*Apartados[i] = leerFila(db, SectionTables()[i], csde);
                     filas.participes = leerParticipes(db, csde);
                     filas.numParti = static_cast<qint16>(filas.participes.Filas());
                 });
}

qint32 cDeclaracionesSvr::GuardarDeclaracion(const FilasDeclaracion& filas) const {
    return WithWriting(mdbname, busyTimeout, [&](SQLite::Database& db) {
        const qint32 csde = guardarGeneral(db, filas.general);
        for (std::size_t i = 0; i < Apartados.size(); ++i)
            guardarApartado(db, SectionTables()[i], csde, filas.*Apartados[i]);
        return csde;
    });
}

void cDeclaracionesSvr::EliminarParticipes(qint32 csde) const {
    WithWriting(mdbname, busyTimeout,
                [&](SQLite::Database& db) { borrar(db, "TParticipes", "csde", csde); });
}

void cDeclaracionesSvr::EliminarDeclaracion(qint32 csde) const {
    WithWriting(mdbname, busyTimeout, [&](SQLite::Database& db) {
        borrar(db, AuxiliaryParticipants, "declaracion", csde);
        for (const RecordTable& tabla : SectionTables()) borrar(db, tabla.name, "csde", csde);
        borrar(db, GeneralData().name, "csde", csde);
    });
}

qint32 cDeclaracionesSvr::AñadirParticipe(const Tabla& datos) const {
    if (datos.Filas() == 0) return 0;
    return WithWriting(mdbname, busyTimeout, [&](SQLite::Database& db) {
        const RecordTable& tabla = Participants();
        SQLite::Statement orden(db, InsertSql(tabla.name, {}, tabla.columns));
        BindRow(orden, 1, tabla.columns, datos.FilaEntera(0));
        orden.bind(1);  // null: the store gives the key
        orden.exec();
        return static_cast<qint32>(db.getLastInsertRowid());
    });
}

void cDeclaracionesSvr::ModificarParticipe(const Tabla& datos) const {
    if (datos.Filas() == 0) return;
    WithWriting(mdbname, busyTimeout, [&](SQLite::Database& db) {
        const RecordTable& tabla = Participants();
        SQLite::Statement orden(db, InsertSql(tabla.name, {}, tabla.columns));
        BindRow(orden, 1, tabla.columns, datos.FilaEntera(0));
        orden.exec();
    });
}

void cDeclaracionesSvr::EliminarParticipe(qint32 cspa) const {
    WithWriting(mdbname, busyTimeout,
                [&](SQLite::Database& db) { borrar(db, "TParticipes", "cspa", cspa); });
}

}  // namespace padral::SvrDPadral
