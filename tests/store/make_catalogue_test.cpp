// The program that makes the files, and the script that puts them beside the built program.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>

#include "store/catalogue_files.h"

namespace padral::test {
namespace {

struct Outcome {
    int status;
    QString errors;
};

Outcome run(const char* program, const QStringList& arguments) {
    QProcess process;
    process.start(QString::fromUtf8(program), arguments);
    if (!process.waitForFinished()) return {-1, process.errorString()};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardError())};
}

struct MakeCatalogue : CatalogueFiles {
    Outcome Make(const QStringList& arguments) const { return run(MAKE_CATALOGUE, arguments); }
    Outcome Seed() const {
        return run(CMAKE, {QStringLiteral("-DFROM=") + Path("fresh"),
                           QStringLiteral("-DTO=") + Path("bin/Tablas"),
                           QStringLiteral("-DMAKE_CATALOGUE=" MAKE_CATALOGUE),
                           QStringLiteral("-DROWS=") + Folder(), QStringLiteral("-P"),
                           QStringLiteral(PADRAL_SOURCE_DIR "/data/seed_data.cmake")});
    }
    void MakeFresh() const {
        ASSERT_TRUE(QDir().mkpath(Path("fresh")));
        ASSERT_EQ(Make({Folder(), Path("fresh/DPadralLec.mdb")}).status, 0);
        ASSERT_EQ(Make({QStringLiteral("--new-declarations"), Path("fresh/DPadralMod.mdb")}).status,
                  0);
    }
    const QString seededLec = Path("bin/Tablas/DPadralLec.mdb");
    const QString seededMod = Path("bin/Tablas/DPadralMod.mdb");
};

TEST_F(MakeCatalogue, WritesTheRows) {
    const auto [status, errors] = Make({Folder(), Path("new.mdb")});
    EXPECT_EQ(status, 0) << errors.toStdString();
    EXPECT_EQ(errors, QString());
    EXPECT_EQ(Value(Path("new.mdb"), "SELECT count(*) FROM TMunicipios"), QStringLiteral("3"));
}

TEST_F(MakeCatalogue, RefusesBadRowsInLinesThatEditorsRead) {
    Replace("TMunicipios", 2, "Berri,0");
    Replace("TMunicipios", 4, "Zahar,120");
    for (const QStringList& mode : {QStringList{}, {QStringLiteral("--refresh")}}) {
        const auto [status, errors] = Make(mode + QStringList{Folder(), Path("new.mdb")});
        EXPECT_EQ(status, 1);
        EXPECT_EQ(errors, File("TMunicipios") +
                              QStringLiteral(":2: T08_CODMUN \"0\": must be from 1 to 999\n") +
                              File("TMunicipios") +
                              QStringLiteral(":4: T08_CODMUN \"120\": already in line 3\n"));
        EXPECT_FALSE(QFile::exists(Path("new.mdb")));
    }
}

TEST_F(MakeCatalogue, TellsHowItIsUsed) {
    for (const QStringList& wrong : {QStringList{},
                                     {Folder()},
                                     {QStringLiteral("--refresh"), Folder()},
                                     {QStringLiteral("--other"), Path("a")},
                                     {Folder(), Path("a"), Path("b")}}) {
        const auto [status, errors] = Make(wrong);
        EXPECT_EQ(status, 2);
        EXPECT_TRUE(errors.startsWith(QStringLiteral("usage: make_catalogue ")))
            << errors.toStdString();
    }
}

TEST_F(MakeCatalogue, SeedsWhatIsMissing) {
    MakeFresh();
    const auto [status, errors] = Seed();
    EXPECT_EQ(status, 0) << errors.toStdString();
    EXPECT_EQ(Bytes(seededLec), Bytes(Path("fresh/DPadralLec.mdb")));
    EXPECT_EQ(Bytes(seededMod), Bytes(Path("fresh/DPadralMod.mdb")));
    EXPECT_EQ(QDir(Path("bin/Tablas")).entryList(QDir::Files).size(), 2);
}

TEST_F(MakeCatalogue, SeedsNewRowsIntoTheFileThatIsThereAndNothingIntoTheDeclarations) {
    MakeFresh();
    ASSERT_EQ(Seed().status, 0);
    Execute(seededLec, "UPDATE TGENERAL SET BACKUP_TVC = 'copied'");
    Execute(seededMod, "UPDATE TGENERAL SET IDI = 'E', ActOnline = 1");
    const QByteArray declarations = Bytes(seededMod);
    Replace("TMunicipios", 2, "Berri,4");
    const auto [status, errors] = Seed();
    EXPECT_EQ(status, 0) << errors.toStdString();
    EXPECT_EQ(Value(seededLec, "SELECT T08_NOMMUN FROM TMunicipios WHERE T08_CODMUN = 4"),
              QStringLiteral("Berri"));
    EXPECT_EQ(Value(seededLec, "SELECT BACKUP_TVC FROM TGENERAL"), QStringLiteral("copied"));
    EXPECT_EQ(Bytes(seededMod), declarations);
}

TEST_F(MakeCatalogue, SeedingFailsForAFileThatIsNoCatalogueAndLeavesIt) {
    MakeFresh();
    ASSERT_EQ(Seed().status, 0);
    Overwrite(seededLec, "something else");
    const auto [status, errors] = Seed();
    EXPECT_NE(status, 0);
    EXPECT_TRUE(errors.contains(seededLec)) << errors.toStdString();
    EXPECT_EQ(Bytes(seededLec), QByteArray("something else"));
}

}  // namespace
}  // namespace padral::test
