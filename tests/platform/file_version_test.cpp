#include "platform/file_version.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include "platform/version_marker.h"

namespace padral {
namespace {

QByteArray marker() {
    QByteArray bytes;
    for (const volatile std::uint8_t& inverted : MarcaVersionInvertida)
        bytes.append(static_cast<char>(~inverted));
    return bytes;
}

QByteArray block(const char* versions) {
    return QByteArray::fromHex("bd04effe00000100") + QByteArray::fromHex(versions) +
           QByteArray(52 - 8 - 16, '\0');
}

// File 1.30.0.1 and product 2.3.4.65535, each as two words, the lower word first.
const char* const Versions =
    "1e00010001000000"
    "030002"
    "00ffff0400";

struct Files : ::testing::Test {
    QTemporaryDir folder;

    QString write(const QByteArray& content) {
        const QString path = folder.filePath(QStringLiteral("DPadral.exe"));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return path;
    }
};

TEST_F(Files, ReadsFileAndProductVersionFromHighToLow) {
    const QString path = write("some code" + marker() + block(Versions) + "more code");
    EXPECT_EQ(TamanoVersion(path), 52);
    const auto version = LeerVersion(path);
    ASSERT_TRUE(version);
    EXPECT_EQ(version->fichero, (std::array<quint16, 4>{1, 30, 0, 1}));
    EXPECT_EQ(version->producto, (std::array<quint16, 4>{2, 3, 4, 65535}));
}

TEST_F(Files, PassesOverAMarkerWithoutABlock) {
    const QString path = write(marker() + QByteArray(52, 'x') + marker() + block(Versions));
    ASSERT_TRUE(LeerVersion(path));
    EXPECT_EQ(LeerVersion(path)->fichero[1], 30);
}

TEST_F(Files, HasNoVersionWithoutAWholeBlock) {
    const QList<QByteArray> contents{"",
                                     "plain code",
                                     marker(),
                                     marker() + block(Versions).chopped(1),
                                     block(Versions),
                                     marker() + QByteArray(52, '\0')};
    for (const QByteArray& content : contents) {
        const QString path = write(content);
        EXPECT_EQ(TamanoVersion(path), 0) << content.toHex().toStdString();
        EXPECT_FALSE(LeerVersion(path));
    }
}

TEST_F(Files, HasNoVersionWithoutAFile) {
    const QString path = folder.filePath(QStringLiteral("nothing"));
    EXPECT_EQ(TamanoVersion(path), 0);
    EXPECT_FALSE(LeerVersion(path));
    EXPECT_EQ(TamanoVersion(folder.path()), 0);
}

TEST(Program, CarriesTheVersionOfTheBuild) {
    const auto version = LeerVersion(QCoreApplication::applicationFilePath());
    ASSERT_TRUE(version);
    EXPECT_EQ(version->fichero, (std::array<quint16, 4>{1, 30, 0, 1}));
    EXPECT_EQ(version->producto, (std::array<quint16, 4>{1, 30, 0, 1}));
}

TEST(Program, HoldsTheMarkerOnce) {
    QFile program(QCoreApplication::applicationFilePath());
    ASSERT_TRUE(program.open(QIODevice::ReadOnly));
    EXPECT_EQ(program.readAll().count(marker()), 1);
}

}  // namespace
}  // namespace padral
