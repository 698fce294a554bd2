#pragma once
// How the columns of a table are described: one row of data a column, in store order.

#include <span>
#include <string_view>

namespace padral::store {

enum class ColumnType {
    Integer,  ///< 16 or 32 bit number, 0 when missing
    Real,     ///< single precision, 0 when missing
    Text,     ///< "" when missing; trailing blanks are kept
    Mark,     ///< text of a fixed width, a blank when missing
};

struct Column {
    std::string_view name;
    ColumnType type;
};

/// A record's table: its name and the columns in the order of the record's array.
struct RecordTable {
    std::string_view name;
    std::span<const Column> columns;
};

}  // namespace padral::store
