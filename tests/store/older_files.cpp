#include "store/older_files.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <sqlite3.h>

#include <QDir>
#include <QFile>

namespace padral::test {

namespace {

// All rows of a query, the values of each joined.
QStringList joinedRows(const QString& path, const QString& sql) {
    SQLite::Database db(path.toStdString(), SQLITE_OPEN_READWRITE, 5000);
    SQLite::Statement statement(db, sql.toStdString());
    QStringList rows;
    while (statement.executeStep()) {
        QStringList values;
        for (int i = 0; i < statement.getColumnCount(); ++i)
            values.append(QString::fromUtf8(statement.getColumn(i).getText()));
        rows.append(values.join(u'|'));
    }
    return rows;
}

}  // namespace

void WriteLayout(const QString& path, int layout) {
    QFile::remove(path);
    const QByteArray sql =
        Bytes(QStringLiteral(PADRAL_SOURCE_DIR "/tests/store/data/layout_%1.sql").arg(layout));
    Execute(path, sql.constData());
}

QStringList Rows(const QString& path, const QString& table, const QStringList& columns) {
    QStringList values;
    for (const QString& column : columns)
        values.append(QStringLiteral("quote(\"%1\")").arg(column));
    return joinedRows(path, QStringLiteral("SELECT %1 FROM \"%2\" ORDER BY rowid")
                                .arg(values.join(QStringLiteral(", ")), table));
}

QMap<QString, TableContent> Content(const QString& path) {
    QMap<QString, TableContent> tables;
    for (const QString& table :
         joinedRows(path, QStringLiteral("SELECT name FROM sqlite_schema WHERE type = 'table'"))) {
        const QStringList columns =
            joinedRows(path, QStringLiteral("SELECT name FROM pragma_table_info('%1')").arg(table));
        tables.insert(table, {columns, Rows(path, table, columns)});
    }
    return tables;
}

void ExpectSurvived(const QString& path, const QMap<QString, TableContent>& before) {
    EXPECT_FALSE(before.isEmpty());
    for (auto table = before.begin(); table != before.end(); ++table)
        EXPECT_EQ(Rows(path, table.key(), table->columns), table->rows)
            << table.key().toStdString();
}

QStringList Definitions(const QString& path) {
    return joinedRows(path,
                      QStringLiteral("SELECT replace(replace(replace(sql, '\"', ''), ' ', ''),"
                                     " char(10), '') FROM sqlite_schema WHERE sql IS NOT NULL"
                                     " ORDER BY name"));
}

QStringList FilesBeside(const QString& path) {
    return QFileInfo(path).dir().entryList(QDir::Files | QDir::Hidden);
}

}  // namespace padral::test
