#pragma once
// Declarations files of older layouts, from the texts in data/, and what they hold.

#include <QMap>
#include <QStringList>

#include "store/store_files.h"

namespace padral::test {

/// Writes the file of a layout over whatever is there.
void WriteLayout(const QString& path, int layout);

/// Every row of every table with the names of its columns, read past the store.
struct TableContent {
    QStringList columns;
    QStringList rows;  ///< values as SQL, so that types count
};
QMap<QString, TableContent> Content(const QString& path);
/// Rows of some columns of a table, in the order of their keys.
QStringList Rows(const QString& path, const QString& table, const QStringList& columns);
/// The file holds every value of every row of those tables, and no row more in them.
void ExpectSurvived(const QString& path, const QMap<QString, TableContent>& before);

/// SQL of all tables and indexes, without quotes and blanks.
QStringList Definitions(const QString& path);
/// Names of the files beside one, its own included.
QStringList FilesBeside(const QString& path);

/// The declarations file is one of layout 1.
struct OlderFile : StoreFiles {
    OlderFile() { WriteLayout(mod, 1); }
    const QString copy = Path("DPadralMod_v1.mdb");
    QString Version() const { return Value(mod, "PRAGMA user_version"); }
};

}  // namespace padral::test
