#include "platform/program_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/another_user.h"
#include "platform/failure.h"

namespace padral {
namespace {

struct ProgramFolder : ::testing::Test {
    QTemporaryDir root;
    QString program, user;

    void SetUp() override {
        program = root.filePath(QStringLiteral("program"));
        user = root.filePath(QStringLiteral("user/data"));
        chmod(root.path().toLocal8Bit().constData(), 0777);
        write(program + QStringLiteral("/Tablas/DPadralMod.mdb"), "installed");
        write(program + QStringLiteral("/Tablas/sub/more"), "nested");
    }
    void TearDown() override {
        mode(program + QStringLiteral("/Tablas"), 0755);
        mode(program, 0755);
    }

    static void write(const QString& path, const QByteArray& content) {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
        file.write(content);
    }
    static QByteArray read(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }
    static void mode(const QString& path, mode_t bits) {
        chmod(path.toLocal8Bit().constData(), bits);
    }
    void lockProgram() {
        mode(program + QStringLiteral("/Tablas/DPadralMod.mdb"), 0444);
        mode(program + QStringLiteral("/Tablas"), 0555);
        mode(program, 0555);
    }
};

TEST_F(ProgramFolder, IsThatOfTheProgramWhereItCanBeWritten) {
    mode(program + QStringLiteral("/Tablas"), 0777);
    mode(program, 0777);
    const test::AnotherUser somebody;
    EXPECT_EQ(CarpetaPrograma(program, user), program);
    EXPECT_EQ(CarpetaPrograma(program + QDir::separator(), user), program);
    EXPECT_FALSE(QFileInfo::exists(user));
}

TEST_F(ProgramFolder, IsTheUsersWithACopyOfTheDataWhereItCannot) {
    lockProgram();
    const test::AnotherUser somebody;
    EXPECT_EQ(CarpetaPrograma(program, user), user);
    EXPECT_EQ(read(user + QStringLiteral("/Tablas/DPadralMod.mdb")), "installed");
    EXPECT_EQ(read(user + QStringLiteral("/Tablas/sub/more")), "nested");
    EXPECT_TRUE(QFileInfo(user + QStringLiteral("/Tablas/DPadralMod.mdb")).isWritable());
}

TEST_F(ProgramFolder, IsFilledOnce) {
    lockProgram();
    const test::AnotherUser somebody;
    CarpetaPrograma(program, user);
    write(user + QStringLiteral("/Tablas/DPadralMod.mdb"), "the user's");
    EXPECT_EQ(CarpetaPrograma(program, user), user);
    EXPECT_EQ(read(user + QStringLiteral("/Tablas/DPadralMod.mdb")), "the user's");
}

TEST_F(ProgramFolder, IsFilledWholeAfterACopyThatBrokeOff) {
    lockProgram();
    const test::AnotherUser somebody;
    write(user + QStringLiteral("/Tablas.nuevo/rest"), "of a broken copy");
    CarpetaPrograma(program, user);
    EXPECT_EQ(read(user + QStringLiteral("/Tablas/DPadralMod.mdb")), "installed");
    EXPECT_FALSE(QFileInfo::exists(user + QStringLiteral("/Tablas/rest")));
}

TEST_F(ProgramFolder, FailsWithTheNameWhereTheUsersCannotBeMadeEither) {
    lockProgram();
    const test::AnotherUser somebody;
    const QString blocked = program + QStringLiteral("/data");
    try {
        CarpetaPrograma(program, blocked);
        FAIL() << "no failure";
    } catch (const Fallo& failure) {
        EXPECT_TRUE(failure.Castellano().contains(blocked));
        EXPECT_TRUE(failure.Euskera().contains(blocked));
        EXPECT_NE(failure.Castellano(), failure.Euskera());
    }
}

// The data count, not the folder around them.
TEST_F(ProgramFolder, IsThatOfTheProgramWhereOnlyItsDataCanBeWritten) {
    mode(program + QStringLiteral("/Tablas"), 0777);
    mode(program, 0555);
    const test::AnotherUser somebody;
    EXPECT_EQ(CarpetaPrograma(program, user), program);
    EXPECT_FALSE(QFileInfo::exists(user));
}

TEST_F(ProgramFolder, IsTheUsersWhereTheFolderCanBeWrittenButNotItsData) {
    mode(program, 0777);
    mode(program + QStringLiteral("/Tablas"), 0555);
    const test::AnotherUser somebody;
    EXPECT_EQ(CarpetaPrograma(program, user), user);
    EXPECT_EQ(read(user + QStringLiteral("/Tablas/sub/more")), "nested");
}

TEST_F(ProgramFolder, StaysThatOfTheProgramWithoutDataToBeginWith) {
    QDir(program + QStringLiteral("/Tablas")).removeRecursively();
    for (const mode_t bits : {0555, 0777}) {
        mode(program, bits);
        const test::AnotherUser somebody;
        EXPECT_EQ(CarpetaPrograma(program, user), program);
        EXPECT_FALSE(QFileInfo::exists(user));
    }
}

TEST_F(ProgramFolder, IsTheUsersWhereTheyHaveDataAlready) {
    lockProgram();
    {
        const test::AnotherUser somebody;
        CarpetaPrograma(program, user);
    }
    mode(program + QStringLiteral("/Tablas"), 0755);
    QDir(program + QStringLiteral("/Tablas")).removeRecursively();
    mode(program, 0555);
    const test::AnotherUser somebody;
    EXPECT_EQ(CarpetaPrograma(program, user), user);
}

/// An installation whose data lie beside the folder of the program.
struct Beside {
    const char* name;
    bool exists, writable, ownData;
    bool users;
};

struct ClientFolder : ProgramFolder, ::testing::WithParamInterface<Beside> {};

TEST_P(ClientFolder, IsLeftOnlyWhenNeitherDataCanBeWritten) {
    const Beside& row = GetParam();
    const QString base = root.filePath(QStringLiteral("installed"));
    program = base + QStringLiteral("/Cliente");
    if (row.ownData) write(program + QStringLiteral("/Tablas/DPadralMod.mdb"), "own");
    if (row.exists) write(base + QStringLiteral("/Tablas/DPadralMod.mdb"), "beside");
    QDir().mkpath(program);
    mode(base + QStringLiteral("/Tablas"), row.writable ? 0777 : 0555);
    mode(program + QStringLiteral("/Tablas"), 0555);
    mode(program, 0555);
    mode(base, 0555);
    {
        const test::AnotherUser somebody;
        EXPECT_EQ(CarpetaPrograma(program, user), row.users ? user : program);
        EXPECT_EQ(QFileInfo::exists(user), row.users);
        const QByteArray content = read(user + QStringLiteral("/Tablas/DPadralMod.mdb"));
        EXPECT_EQ(content, row.users ? "own" : "unreadable");
    }
    for (const char* folder : {"", "/Tablas"}) mode(base + QString::fromUtf8(folder), 0755);
}

INSTANTIATE_TEST_SUITE_P(Rows, ClientFolder,
                         ::testing::Values(Beside{"writable", true, true, true, false},
                                           Beside{"writable_only", true, true, false, false},
                                           Beside{"read_only", true, false, true, true},
                                           Beside{"read_only_alone", true, false, false, false},
                                           Beside{"missing", false, false, true, true},
                                           Beside{"none", false, false, false, false}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(DataFolderBase, IsBesideTheFolderOfTheClient) {
    EXPECT_EQ(BaseTablas(QStringLiteral("/opt/padral/cliente")), QStringLiteral("/opt/padral"));
    EXPECT_EQ(BaseTablas(QStringLiteral("/opt/CLIENTES/x")), QStringLiteral("/opt"));
    EXPECT_EQ(BaseTablas(QStringLiteral("/opt/padral")), QStringLiteral("/opt/padral"));
}

TEST(ExecutableFolder, IsThatOfTheRunningProgramWithoutASeparatorAtItsEnd) {
    EXPECT_EQ(CarpetaEjecutable(),
              QDir::toNativeSeparators(QCoreApplication::applicationDirPath()));
    EXPECT_FALSE(CarpetaEjecutable().endsWith(QDir::separator()));
}

}  // namespace
}  // namespace padral
