#pragma once
// Layout of the declarations file: the columns of every record, in store order.

#include <array>
#include <string>

#include "store/columns.h"

namespace SQLite {
class Database;
}

namespace padral::store {

/// Version of the layout that follows, and the oldest one that the migration still carries to it.
inline constexpr int SchemaVersion = 2;
inline constexpr int OldestSchemaVersion = 1;

/// 18 columns; the first one is the key `csde`.
const RecordTable& GeneralData();
/// The tables with one row for each declaration, without their key `csde`, in the order of the
/// arrays: sections 2 to 7 and Annex II.
const std::array<RecordTable, 7>& SectionTables();
/// 20 columns; the first one is the key `cspa`, the second one the declaration's key.
const RecordTable& Participants();
/// The auxiliary copy: the columns of a participant behind a position and the declaration's key.
inline constexpr std::string_view AuxiliaryParticipants = "TParticipesAux";

/// "`name` TYPE NOT NULL DEFAULT ..." of a column.
std::string ColumnSql(const Column& column);

/// Makes the tables and indexes of a declarations file and its row of settings.
void CreateDeclarationTables(SQLite::Database& db);

}  // namespace padral::store
