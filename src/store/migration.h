#pragma once
// Carries a declarations file of an older layout to the present one, step by step.

#include <QString>
#include <span>

#include "store/busy_timeout.h"

namespace SQLite {
class Database;
}

namespace padral::store {

/// Carries a file of layout `from` to the next one. A step speaks SQL of its own and names every
/// column: the tables of schema.h are those of the present layout, and change after the step.
/// It runs within the transaction of the whole migration, and throws SQLite::Exception.
struct MigrationStep {
    int from;
    void (*carry)(SQLite::Database& db);
};

struct Migration {
    /// At least one; oldest first, without a gap.
    std::span<const MigrationStep> steps;
    /// Makes the tables and indexes of a fresh file, which the last step must arrive at. What a
    /// file has beside them stays.
    void (*create)(SQLite::Database& db);
};

/// From OldestSchemaVersion to SchemaVersion.
const Migration& DeclarationsMigration();

/// Whether a whole file, carried over where it is older, is one that the program works with: every
/// table and index, and its row of settings. Nothing in the file changes. Throws SQLite::Exception,
/// SQLITE_ERROR or SQLITE_CORRUPT for a file that a step cannot carry.
bool FitsPresentLayout(SQLite::Database& db);

/// Carries the file to the layout behind the last step, in one transaction; a copy of the older
/// file is kept beside it. Returns false, and leaves the file as it is, when it is of that layout.
/// Another program may do the same at the same time. Throws Fallo for a file that Open refuses,
/// and when a step, a check or the disk fails; the file is as before then.
bool Migrate(const QString& path, int busyTimeout = BusyTimeoutMs,
             const Migration& migration = DeclarationsMigration());

}  // namespace padral::store
