#pragma once
// Small catalogue files that keep all rules, to be broken one line at a time.

#include "store/store_files.h"

namespace padral::test {

/// A folder with the seven files of rows, beside the two database files.
class CatalogueFiles : public StoreFiles {
protected:
    CatalogueFiles();

    QString Folder() const { return Path(""); }
    QString File(const char* table) const;
    void Write(const char* table, const QByteArray& text) const;
    /// Puts a text in the place of one line, counted from 1; one behind the last is added.
    void Replace(const char* table, int line, const char* text) const;
};

}  // namespace padral::test
