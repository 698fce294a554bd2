#include "store/schema.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include "store/collation.h"
#include "store/list_query.h"

namespace padral::store {

namespace {

std::string quoted(std::string_view name) { return '"' + std::string(name) + '"'; }

std::string columnsSql(std::span<const Column> columns) {
    std::string sql;
    for (const Column& column : columns) sql += ", " + ColumnSql(column);
    return sql;
}

// Keys of deleted rows are not given again, so that nothing left behind finds a new owner.
std::string keyedTable(const RecordTable& table, const std::string& extra) {
    return "CREATE TABLE " + quoted(table.name) + " (" + quoted(table.columns.front().name) +
           " INTEGER PRIMARY KEY AUTOINCREMENT" + columnsSql(table.columns.subspan(1)) + extra +
           ") STRICT";
}

std::string sectionTable(const RecordTable& table) {
    return "CREATE TABLE " + quoted(table.name) + " (csde INTEGER PRIMARY KEY" +
           columnsSql(table.columns) + ") STRICT";
}

void createParticipantTables(SQLite::Database& db) {
    const RecordTable& table = Participants();
    db.exec(keyedTable(table, {}));
    db.exec("CREATE INDEX IParticipes ON TParticipes (csde, cspa)");
    db.exec("CREATE TABLE " + quoted(AuxiliaryParticipants) +
            " (declaracion INTEGER NOT NULL, posicion INTEGER NOT NULL" +
            columnsSql(table.columns) + ", PRIMARY KEY (declaracion, posicion)) STRICT");
}

// One row, and never a second one.
void createSettings(SQLite::Database& db) {
    db.exec(
        "CREATE TABLE TGENERAL (Fila INTEGER PRIMARY KEY CHECK (Fila = 1), IDI TEXT NOT NULL,"
        " ActOnline INTEGER NOT NULL, VersionOrden TEXT NOT NULL,"
        " BACKUP_TVC TEXT NOT NULL DEFAULT '') STRICT");
    SQLite::Statement row(
        db, "INSERT INTO TGENERAL (IDI, ActOnline, VersionOrden) VALUES ('C', -1, ?)");
    row.bind(1, CollationVersion().toStdString());
    row.exec();
}

}  // namespace

std::string ColumnSql(const Column& column) {
    const std::string name = quoted(column.name);
    switch (column.type) {
        case ColumnType::Integer:
            return name + " INTEGER NOT NULL DEFAULT 0";
        case ColumnType::Real:
            return name + " REAL NOT NULL DEFAULT 0";
        case ColumnType::Mark:
            return name + " TEXT NOT NULL DEFAULT ' '";
        case ColumnType::Text:
            break;
    }
    return name + " TEXT NOT NULL DEFAULT ''";
}

void CreateDeclarationTables(SQLite::Database& db) {
    db.exec(keyedTable(GeneralData(), ListKeyColumnsSql()));
    for (const std::string& index : ListIndexesSql()) db.exec(index);
    for (const RecordTable& table : SectionTables()) db.exec(sectionTable(table));
    createParticipantTables(db);
    createSettings(db);
}

}  // namespace padral::store
