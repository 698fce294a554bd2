#pragma once
// Comma separated values: UTF-8, a field with a comma, a quote or a line break stands in double
// quotes, and a quote within it is doubled.

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace padral::catalogue {

using Record = std::vector<std::string>;

/// Says what is wrong and in which line.
struct CsvError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// All records; empty lines are skipped. Throws CsvError for a quote that is not closed, text
/// behind a closing quote, or a record with another number of fields than the first one.
std::vector<Record> ParseCsv(std::string_view text);

}  // namespace padral::catalogue
