#pragma once
// Fresh database files in a folder of their own, and declarations to put into them.

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "store/columns.h"
#include "store/declarations_server.h"
#include "support/print_text.h"

namespace SQLite {
class Database;
}

namespace padral::test {

/// A folder with a fresh declarations file and a small catalogue file.
class StoreFiles : public ::testing::Test {
private:
    QTemporaryDir folder_;

protected:
    StoreFiles();

    QString Path(const char* name) const;
    /// The declarations file.
    const QString mod;
    /// The read-only file.
    const QString lec;

    SvrDPadral::cDeclaracionesSvr Server(int busyTimeout = 5000) const;
};

QByteArray Bytes(const QString& path);
void Overwrite(const QString& path, const QByteArray& content);
/// Runs SQL on a file past the store.
void Execute(const QString& path, const char* sql);
/// First value of the first row, read past the store.
QString Value(const QString& path, const char* sql);

/// A row whose values all differ, from each other and from those of other seeds; texts keep a
/// blank at their end.
Fila DistinctRow(std::span<const store::Column> columns, int seed);
/// A declaration of such rows under a key.
SvrDPadral::FilasDeclaracion DistinctDeclaration(qint32 csde, int seed);
/// The row of a participant of a declaration.
Fila Participant(qint32 cspa, qint32 csde, int seed);
/// A table of one row.
Tabla OneRow(const Fila& row);

/// A declaration with just the columns of the list.
SvrDPadral::FilasDeclaracion Listed(const QString& identifier, const QString& name,
                                    const QString& reference, int date);

/// All values equal, and texts of the same length.
void ExpectSame(const Fila& actual, const Fila& expected, const char* what);
void ExpectSame(const SvrDPadral::FilasDeclaracion& actual,
                const SvrDPadral::FilasDeclaracion& expected);

}  // namespace padral::test
