#pragma once
// Layout of the read-only file.

#include <span>
#include <string_view>

namespace SQLite {
class Database;
}

namespace padral::store {

/// Version of the layout. A file of another one is not carried over: the build makes a new one.
inline constexpr int CatalogueVersion = 1;

/// What a column of a catalogue table holds.
enum class CatalogueColumn {
    NumberKey,
    TextKey,  ///< letters and digits; compared without regard to case
    Text,     ///< compared and sorted in Spanish order without regard to case
};

struct CatalogueField {
    std::string_view name;
    CatalogueColumn type;
};

struct CatalogueTable {
    std::string_view name;
    std::span<const CatalogueField> fields;
};

/// The tables that are filled from files of rows. Rows keep the order in which they are inserted.
std::span<const CatalogueTable> CatalogueTables();

/// Makes the tables, empty, and the row of general values.
void CreateCatalogueTables(SQLite::Database& db);

}  // namespace padral::store
