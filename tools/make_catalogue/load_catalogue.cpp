#include "make_catalogue/load_catalogue.h"

#include <algorithm>
#include <string>

#include "make_catalogue/read_rows.h"
#include "store/database.h"
#include "store/new_files.h"

namespace padral::catalogue {

using store::CatalogueColumn;
using store::CatalogueField;
using store::CatalogueTable;

namespace {

std::string join(const CatalogueTable& table, std::string (*part)(const CatalogueField&)) {
    std::string joined;
    for (const CatalogueField& field : table.fields)
        joined += (joined.empty() ? "" : ", ") + part(field);
    return joined;
}

std::string names(const CatalogueTable& table) {
    return join(table, [](const CatalogueField& field) { return std::string(field.name); });
}

std::string quoted(const CatalogueTable& table) { return '"' + std::string(table.name) + '"'; }

void fill(SQLite::Database& db, const TableRows& rows) {
    const CatalogueTable& table = rows.table;
    SQLite::Statement insert(
        db, "INSERT INTO " + quoted(table) + " (" + names(table) + ") VALUES (" +
                join(table, [](const CatalogueField&) { return std::string("?"); }) + ")");
    for (const QStringList& row : rows.rows) {
        for (std::size_t i = 0; i < table.fields.size(); ++i) {
            const QString& value = row[qsizetype(i)];
            if (table.fields[i].type == CatalogueColumn::NumberKey)
                insert.bind(int(i) + 1, value.toInt());
            else
                insert.bind(int(i) + 1, value.toStdString());
        }
        insert.exec();
        insert.reset();
    }
}

bool holds(SQLite::Database& db, const TableRows& expected) {
    SQLite::Statement query(db, "SELECT " + names(expected.table) + " FROM " +
                                    quoted(expected.table) + " ORDER BY rowid");
    std::vector<QStringList> rows;
    while (query.executeStep()) {
        QStringList row;
        for (int i = 0; i < query.getColumnCount(); ++i)
            row.append(QString::fromStdString(query.getColumn(i).getString()));
        rows.push_back(row);
    }
    return rows == expected.rows;
}

}  // namespace

void WriteCatalogue(const QString& folder, const QString& target) {
    const std::vector<TableRows> tables = ReadRows(folder);
    store::CreateCatalogueFile(target, [&](SQLite::Database& db) {
        for (const TableRows& rows : tables) fill(db, rows);
    });
}

void RefreshCatalogue(const QString& folder, const QString& target) {
    const std::vector<TableRows> tables = ReadRows(folder);
    const auto current = [&](SQLite::Database& db) {
        return std::ranges::all_of(tables, [&](const TableRows& rows) { return holds(db, rows); });
    };
    const store::FileKind kind = store::FileKind::Catalogue;
    if (store::WithDatabase({target, kind, store::Access::Read}, current)) return;
    store::WithDatabase({target, kind, store::Access::Write}, [&](SQLite::Database& db) {
        store::WriteTransaction transaction(db);
        for (const TableRows& rows : tables) {
            db.exec("DELETE FROM " + quoted(rows.table));
            fill(db, rows);
        }
        transaction.Commit();
    });
}

}  // namespace padral::catalogue
