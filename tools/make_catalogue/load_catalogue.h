#pragma once

#include <QString>

namespace padral::catalogue {

/// Writes the read-only file `target` from the files `<table>.csv` of a folder, one for each
/// catalogue table; their first line names the columns, in any order. Throws std::runtime_error
/// naming the file for one that is missing or wrong; `target` is then as it was.
void WriteCatalogue(const QString& folder, const QString& target);

}  // namespace padral::catalogue
