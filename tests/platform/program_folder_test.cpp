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
    void TearDown() override { mode(program, 0755); }

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
        mode(program, 0555);
    }
};

TEST_F(ProgramFolder, IsThatOfTheProgramWhereItCanBeWritten) {
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

TEST(ExecutableFolder, IsThatOfTheRunningProgramWithoutASeparatorAtItsEnd) {
    EXPECT_EQ(CarpetaEjecutable(),
              QDir::toNativeSeparators(QCoreApplication::applicationDirPath()));
    EXPECT_FALSE(CarpetaEjecutable().endsWith(QDir::separator()));
}

}  // namespace
}  // namespace padral
