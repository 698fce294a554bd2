#include "store/new_files.h"

#include <gtest/gtest.h>

#include <QDir>

#include "store/store_files.h"

namespace padral::test {
namespace {

TEST_F(StoreFiles, NewFilesLeaveNothingElseInTheFolder) {
    EXPECT_EQ(QDir(QFileInfo(mod).path()).entryList(QDir::Files),
              (QStringList{QStringLiteral("DPadralLec.mdb"), QStringLiteral("DPadralMod.mdb")}));
}

TEST_F(StoreFiles, NewDeclarationsFileNeverReplacesOne) {
    const QByteArray before = Bytes(mod);
    try {
        store::CreateDeclarationsFile(mod);
        FAIL() << "no failure";
    } catch (const Fallo& failure) {
        EXPECT_TRUE(failure.Castellano().contains(mod));
    }
    EXPECT_EQ(Bytes(mod), before);
}

TEST_F(StoreFiles, NewCatalogueThatFailsLeavesTheOldOne) {
    const QByteArray before = Bytes(lec);
    EXPECT_THROW(store::CreateCatalogueFile(lec, [](SQLite::Database& db) { db.exec("no SQL"); }),
                 Fallo);
    EXPECT_EQ(Bytes(lec), before);
    EXPECT_FALSE(QFileInfo::exists(lec + QStringLiteral(".nuevo")));
}

TEST_F(StoreFiles, NewFileIsWholeAfterOneThatBrokeOff) {
    Overwrite(Path("other.mdb.nuevo"), "half a file");
    store::CreateDeclarationsFile(Path("other.mdb"));
    EXPECT_EQ(Value(Path("other.mdb"), "PRAGMA integrity_check"), QStringLiteral("ok"));
    EXPECT_FALSE(QFileInfo::exists(Path("other.mdb.nuevo")));
}

TEST_F(StoreFiles, NewFileWhereThereIsNoFolderFailsWithItsName) {
    const QString path = Path("none/new.mdb");
    try {
        store::CreateDeclarationsFile(path);
        FAIL() << "no failure";
    } catch (const Fallo& failure) {
        EXPECT_TRUE(failure.Castellano().contains(path));
    }
}

TEST_F(StoreFiles, TablesAreStrictAndNeverHoldNull) {
    for (const QString& path : {mod, lec}) {
        EXPECT_EQ(Value(path,
                        "SELECT count(*) FROM pragma_table_list WHERE strict = 0 AND type = 'table'"
                        " AND name NOT LIKE 'sqlite_%'"),
                  QStringLiteral("0"));
        EXPECT_EQ(
            Value(path,
                  "SELECT count(*) FROM pragma_table_list AS t, pragma_table_info(t.name) AS c"
                  " WHERE t.strict = 1 AND c.\"notnull\" = 0 AND c.pk = 0"),
            QStringLiteral("0"));
    }
}

}  // namespace
}  // namespace padral::test
