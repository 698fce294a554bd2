#pragma once
// Writing and reading one record by the description of its columns.

#include <SQLiteCpp/Statement.h>

#include <string>

#include "store/columns.h"
#include "store/row.h"

namespace padral::store {

/// "INSERT OR REPLACE INTO `table` (`leading`, columns) VALUES (?, ...)".
std::string InsertSql(std::string_view table, std::string_view leading,
                      std::span<const Column> columns);
/// "`a`, `b`, ..." of all columns.
std::string ColumnList(std::span<const Column> columns);

/// Binds the values to the parameters from `first` on. A value that is missing or null is bound
/// as the empty value of its column.
void BindRow(SQLite::Statement& statement, int first, std::span<const Column> columns,
             const Fila& row);
/// The values of the present row from the result column `first` on.
Fila ReadRow(SQLite::Statement& statement, std::span<const Column> columns, int first = 0);
/// A record without values: 0, "" and blanks.
Fila EmptyRow(std::span<const Column> columns);

}  // namespace padral::store
