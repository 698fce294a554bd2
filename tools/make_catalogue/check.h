#pragma once
// The check of the catalogue rows.

#include <vector>

#include "make_catalogue/csv.h"
#include "make_catalogue/rules.h"

namespace padral::catalogue {

/// What is wrong with the rows of a table, whose fields stand in the order of the rule's columns:
/// for each field the first broken rule, and when all rows are good by themselves, what is wrong
/// with them together. `whole` says that no line of the file is missing in the rows.
std::vector<Problem> CheckRows(const TableRule& rule, const std::vector<Record>& rows, bool whole);

}  // namespace padral::catalogue
