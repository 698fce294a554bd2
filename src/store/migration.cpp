#include "store/migration.h"

#include <sqlite3.h>

#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <algorithm>
#include <array>
#include <set>
#include <string>

#include "store/database.h"
#include "store/new_files.h"
#include "store/schema.h"

namespace padral::store {

namespace {

// Nothing held the settings to one row, and they had no place for the note on the last backup
// copy. The first row is the one that was read.
void settingsInOneRow(SQLite::Database& db) {
    db.exec("CREATE TABLE AjustesAnteriores AS SELECT * FROM TGENERAL ORDER BY rowid LIMIT 1");
    db.exec("DROP TABLE TGENERAL");
    db.exec(
        "CREATE TABLE TGENERAL (Fila INTEGER PRIMARY KEY CHECK (Fila = 1), IDI TEXT NOT NULL,"
        " ActOnline INTEGER NOT NULL, VersionOrden TEXT NOT NULL,"
        " BACKUP_TVC TEXT NOT NULL DEFAULT '') STRICT");
    const int rows = db.exec(
        "INSERT INTO TGENERAL (IDI, ActOnline, VersionOrden)"
        " SELECT IDI, ActOnline, VersionOrden FROM AjustesAnteriores");
    if (rows != 1) throw SQLite::Exception("no settings", SQLITE_CORRUPT);
    db.exec("DROP TABLE AjustesAnteriores");
}

constexpr std::array<MigrationStep, 1> MigrationSteps{{
    {1, settingsInOneRow},
}};
static_assert(MigrationSteps.front().from == OldestSchemaVersion);
static_assert(MigrationSteps.back().from + 1 == SchemaVersion);
static_assert(MigrationSteps.size() == SchemaVersion - OldestSchemaVersion);

int layoutVersionOf(SQLite::Database& db) { return db.execAndGet("PRAGMA user_version").getInt(); }

using LayoutDefinitions = std::set<std::pair<std::string, std::string>>;

// Every table and index with the SQL that makes it, without quotes, blanks and new lines.
LayoutDefinitions definitionsOf(SQLite::Database& db) {
    SQLite::Statement query(
        db,
        "SELECT name, replace(replace(replace(sql, '\"', ''), ' ', ''), char(10), '')"
        " FROM sqlite_schema WHERE sql IS NOT NULL");
    LayoutDefinitions all;
    while (query.executeStep())
        all.emplace(query.getColumn(0).getString(), query.getColumn(1).getString());
    return all;
}

bool hasLayout(SQLite::Database& db, const Migration& migration) {
    SQLite::Database fresh(":memory:", SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    migration.create(fresh);
    return std::ranges::includes(definitionsOf(db), definitionsOf(fresh));
}

bool passesIntegrityCheck(SQLite::Database& db) {
    return db.execAndGet("PRAGMA integrity_check(1)").getString() == "ok";
}

void carrySteps(SQLite::Database& db, const Migration& migration) {
    for (const MigrationStep& step : migration.steps)
        if (step.from == layoutVersionOf(db)) {
            step.carry(db);
            db.exec("PRAGMA user_version = " + std::to_string(step.from + 1));
        }
}

void runSteps(SQLite::Database& db, const QString& path, const Migration& migration) {
    carrySteps(db, migration);
    if (!passesIntegrityCheck(db) || !hasLayout(db, migration))
        throw FileFailure(FileFault::Damaged, path);
}

void carryOver(SQLite::Database& db, const QString& path, const Migration& migration) {
    QString copy;
    auto notNeeded = qScopeGuard([&] {
        if (!copy.isEmpty()) QFile::remove(copy);
    });
    // The engine would find out with the first step, after the copy.
    if (sqlite3_db_readonly(db.getHandle(), "main") == 1)
        throw FileFailure(FileFault::ReadOnly, path);
    WriteTransaction transaction(db);
    // Another program may have carried it over while this one waited.
    if (layoutVersionOf(db) > migration.steps.back().from) return;
    copy = KeepCopy(path, layoutVersionOf(db));
    // The name of the copy is on the disk before a change is: the engine's journal flushes the
    // folder.
    runSteps(db, path, migration);
    // The copy stays even when the commit fails: it may fail behind the point of no return.
    notNeeded.dismiss();
    transaction.Commit();
}

Fallo notCarried(const QString& path, const Fallo& cause) {
    const QString name = QDir::toNativeSeparators(path);
    return {QStringLiteral("El archivo «%1» es de una versión anterior del programa y no se ha"
                           " podido adaptar; sigue como estaba.\n")
                    .arg(name) +
                cause.Castellano(),
            QStringLiteral("«%1» fitxategia programaren aurreko bertsio batekoa da, eta ezin izan"
                           " da egokitu; lehen bezala dago.\n")
                    .arg(name) +
                cause.Euskera()};
}

}  // namespace

const Migration& DeclarationsMigration() {
    static constexpr Migration migration{MigrationSteps, CreateDeclarationTables};
    return migration;
}

bool FitsPresentLayout(SQLite::Database& db) {
    const Migration& migration = DeclarationsMigration();
    const auto fits = [&] {
        return hasLayout(db, migration) &&
               db.execAndGet("SELECT count(*) FROM TGENERAL").getInt() == 1;
    };
    if (layoutVersionOf(db) > migration.steps.back().from) return fits();
    // Rolled back at its end.
    const WriteTransaction transaction(db);
    carrySteps(db, migration);
    return fits();
}

bool Migrate(const QString& path, int busyTimeout, const Migration& migration) {
    Opening opening{path, FileKind::Declarations, Access::Read, busyTimeout, Layouts::OlderToo};
    if (WithDatabase(opening, layoutVersionOf) > migration.steps.back().from) return false;
    opening.access = Access::Write;
    try {
        WithDatabase(opening, [&](SQLite::Database& db) { carryOver(db, path, migration); });
    } catch (const Fallo& cause) {
        throw notCarried(path, cause);
    }
    return true;
}

}  // namespace padral::store
