#pragma once
// What the rows of each catalogue table must be like.

#include <QStringList>
#include <QStringView>
#include <span>

namespace padral::catalogue {

/// Rule of one column, for each value in it.
struct ColumnRule {
    QStringView column;
    QStringView pattern;          ///< regular expression of the whole value
    QStringView inWords;          ///< the pattern, behind "must be"
    int shortest, longest;        ///< in characters
    bool unique;                  ///< no other row has the value, whatever its case
    int lowest = 0, highest = 0;  ///< of a number; both 0 for a text
};

/// Which keys a table has, in the order of its rows.
enum class Keys {
    Any,
    Among,   ///< those of the rule and any others
    Exactly  ///< those of the rule in their order
};

/// A row whose texts are the same whoever edits the file: the columns behind the key.
struct FixedRow {
    QStringView key;
    QStringView texts[2];
};

struct TableRule {
    QStringView table;
    std::span<const ColumnRule> columns;  ///< in the order of the table's fields
    Keys which = Keys::Any;
    std::span<const QStringView> keys = {};
    int rows = 0;  ///< their number, 0 for any
    /// What is wrong between the fields of a row, empty when nothing is.
    QString (*between)(const QStringList& fields) = nullptr;
    FixedRow fixed = {};  ///< without a key: none
};

/// One for each catalogue table, in the order of the tables.
std::span<const TableRule> TableRules();

}  // namespace padral::catalogue
