// A catalogue file from its rows, new and refreshed.

#include "make_catalogue/load_catalogue.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "platform/failure.h"
#include "store/catalogue_files.h"

namespace padral::test {
namespace {

using catalogue::RefreshCatalogue;
using catalogue::WriteCatalogue;

/// All rows of a table in the order in which a query without an order gives them.
QString rowsOf(const QString& file, const char* columns, const char* table) {
    const std::string sql = std::string("SELECT group_concat(row, '; ') FROM (SELECT ") + columns +
                            " AS row FROM " + table + ")";
    return Value(file, sql.c_str());
}

TEST_F(CatalogueFiles, GiveANewFileWithTheirRows) {
    WriteCatalogue(Folder(), lec);
    EXPECT_EQ(rowsOf(lec, "T08_CODMUN || T08_NOMMUN", "TMunicipios"),
              QStringLiteral("3Azpilko (San Juan); 5Zubiondo; 120Ñabarpe"));
    EXPECT_EQ(rowsOf(lec, "EPICODEPI || EPIDEPCAS", "TEpigrafes_2000"),
              QStringLiteral("1.681HOTELES; 2.41100PINTORES, N.C.O.P.; 9999999SIN ACTIVIDAD"));
    EXPECT_EQ(rowsOf(lec, "CODCAUSA", "TCausasCese"),
              QStringLiteral("10; 11; 20; 22; 30; 31; 32; 33; 99"));
    EXPECT_EQ(Value(lec, "SELECT count(*) FROM TProvincias"), QStringLiteral("52"));
}

struct Refreshed : CatalogueFiles {
    void SetUp() override {
        WriteCatalogue(Folder(), lec);
        Execute(lec,
                "UPDATE TGENERAL SET BACKUP_TVC = 'copied', URLAct = 'http://own.example/',"
                " FECMIN = 19500101, FECMAX = 20301231, FECDECMIN = 20000101");
    }
    QString General() const {
        return rowsOf(lec,
                      "BACKUP_TVC || ' ' || URLAct || ' ' || FECMIN || ' ' || FECMAX || ' ' ||"
                      " FECDECMIN",
                      "TGENERAL");
    }
};

TEST_F(Refreshed, TakesTheNewRowsAndKeepsEverythingElse) {
    Execute(lec, "CREATE TABLE Own (a)");
    Write("TMunicipios", "T08_CODMUN,T08_NOMMUN\n7,Berri\n5,Zubiondo\n");
    Replace("TCausasCese", 2, "10,CESE TOTAL,UZTEA");
    RefreshCatalogue(Folder(), lec);
    EXPECT_EQ(rowsOf(lec, "T08_CODMUN || T08_NOMMUN", "TMunicipios"),
              QStringLiteral("5Zubiondo; 7Berri"));
    EXPECT_EQ(rowsOf(lec, "CODCAUSA || CAUSACAS", "TCausasCese").section(u';', 0, 1),
              QStringLiteral("10CESE TOTAL; 11MUERTE"));
    EXPECT_EQ(Value(lec, "SELECT count(*) FROM TProvincias"), QStringLiteral("52"));
    EXPECT_EQ(General(), QStringLiteral("copied http://own.example/ 19500101 20301231 20000101"));
    EXPECT_EQ(Value(lec, "SELECT count(*) FROM Own"), QStringLiteral("0"));
    EXPECT_EQ(Value(lec, "PRAGMA integrity_check"), QStringLiteral("ok"));
}

TEST_F(Refreshed, PutsRowsIntoTheOrderOfTheFile) {
    Write("TSiglas", "Siglas_Codigo,siglas_cas,siglas_eus\nPZ,Plaza,Plaza\nCL,Calle,Kalea\n");
    RefreshCatalogue(Folder(), lec);
    EXPECT_EQ(rowsOf(lec, "Siglas_Codigo || siglas_cas", "TSiglas"),
              QStringLiteral("PZPlaza; CLCalle"));
}

TEST_F(Refreshed, IsNotWrittenWhenItHasTheRows) {
    const QByteArray before = Bytes(lec);
    ASSERT_TRUE(QFile::setPermissions(lec, QFile::ReadOwner));
    RefreshCatalogue(Folder(), lec);
    EXPECT_EQ(Bytes(lec), before);
}

TEST_F(Refreshed, StaysAsItIsWhenARowIsBad) {
    const QByteArray before = Bytes(lec);
    Replace("TMunicipios", 2, "Berri,4");
    Replace("TCausasCese", 2, "10,cese,UZTEA");
    EXPECT_THROW(RefreshCatalogue(Folder(), lec), catalogue::BadRows);
    EXPECT_EQ(Bytes(lec), before);
}

TEST_F(Refreshed, GoesBackWhenTheLastTableCannotBeWritten) {
    Execute(lec,
            "CREATE TRIGGER full BEFORE INSERT ON TCausasCese"
            " BEGIN SELECT raise(ABORT, 'full'); END");
    Replace("TMunicipios", 2, "Berri,4");
    EXPECT_THROW(RefreshCatalogue(Folder(), lec), Fallo);
    EXPECT_EQ(rowsOf(lec, "T08_CODMUN", "TMunicipios"), QStringLiteral("3; 5; 120"));
    EXPECT_EQ(rowsOf(lec, "CODCAUSA", "TCausasCese"),
              QStringLiteral("10; 11; 20; 22; 30; 31; 32; 33; 99"));
}

TEST_F(Refreshed, IsNeverTheDeclarationsFileNorMade) {
    const QByteArray before = Bytes(mod);
    EXPECT_THROW(RefreshCatalogue(Folder(), mod), Fallo);
    EXPECT_EQ(Bytes(mod), before);
    EXPECT_THROW(RefreshCatalogue(Folder(), Path("none.mdb")), Fallo);
    EXPECT_FALSE(QFile::exists(Path("none.mdb")));
}

}  // namespace
}  // namespace padral::test
