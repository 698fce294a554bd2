#pragma once
// The checked rows of a folder.

#include <QStringList>
#include <vector>

#include "store/catalogue_schema.h"

namespace padral::catalogue {

struct TableRows {
    store::CatalogueTable table;
    /// In the order in which the table keeps them, fields in the order of the table's.
    std::vector<QStringList> rows;
};

/// The rows of all catalogue tables from the files `<table>.csv` of a folder. Throws BadRows.
std::vector<TableRows> ReadRows(const QString& folder);

}  // namespace padral::catalogue
