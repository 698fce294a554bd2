#pragma once
// The query of the declarations list and the indexes that answer it without a look at the table.

#include <array>
#include <string>

#include "store/declarations_server.h"

namespace SQLite {
class Statement;
}

namespace padral::store {

/// Columns of the general data by which the list is sorted and searched, for CREATE TABLE:
/// the identifier, the name and the reference in folded form; sort keys of name and reference.
std::string ListKeyColumnsSql();
/// Names of those columns: ", a, b, ...".
std::string ListKeyColumnNames();
inline constexpr int NumListKeyColumns = 5;
/// Binds them from the texts of a declaration.
void BindListKeys(SQLite::Statement& statement, int first, const QString& identifier,
                  const QString& name, const QString& reference);

/// One index for each grid column that sorts, 1 to 4; each holds all columns of the list.
std::array<std::string, 4> ListIndexesSql();

/// The query for a grid column ("1" to "4", anything else sorts by key) and a direction. Ties are
/// sorted by key in the same direction, as the index holds them. Criteria are the parameters ?1
/// to ?4; those that are empty do not stand in the query.
std::string ListSql(const SvrDPadral::CriteriosLista& criteria, const QString& column,
                    const QString& direction);
}  // namespace padral::store
