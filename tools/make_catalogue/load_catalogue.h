#pragma once

#include <QString>
#include <stdexcept>

namespace padral::catalogue {

/// Rows that are refused: a line "<file>:<line>: <what>" for each, as compilers write them.
struct BadRows : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Writes the read-only file `target` from the files `<table>.csv` of a folder, one for each
/// catalogue table; their first line names the columns, in any order. Throws BadRows for rows that
/// break a rule, Fallo when the file cannot be written; `target` is then as it was.
void WriteCatalogue(const QString& folder, const QString& target);

/// Replaces the rows of the catalogue tables in an existing read-only file, all or none, and leaves
/// everything else in it: the date limits, the address of the version check and what is kept about
/// the last backup. A file that has the rows already is not written. Throws as WriteCatalogue, and
/// Fallo for a `target` that is missing or no read-only file of this program.
void RefreshCatalogue(const QString& folder, const QString& target);

}  // namespace padral::catalogue
