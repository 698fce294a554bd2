#include "make_catalogue/load_catalogue.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>

#include <QDir>
#include <QFile>
#include <algorithm>
#include <charconv>

#include "make_catalogue/csv.h"
#include "store/catalogue_schema.h"
#include "store/new_files.h"

namespace padral::catalogue {

using store::CatalogueColumn;
using store::CatalogueField;
using store::CatalogueTable;

namespace {

std::vector<Record> readFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) throw CsvError("cannot be read");
    const QByteArray text = file.readAll();
    std::vector<Record> records = ParseCsv({text.constData(), std::size_t(text.size())});
    if (records.empty()) throw CsvError("no line with the names of the columns");
    return records;
}

// Place of a table's column in the records.
std::size_t findColumn(const Record& header, const CatalogueField& field) {
    const auto found = std::ranges::find(header, field.name);
    if (found == header.end()) throw CsvError("no column " + std::string(field.name));
    return static_cast<std::size_t>(found - header.begin());
}

int toNumber(const std::string& text) {
    int number = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    if (text.empty() || result.ec != std::errc() || result.ptr != end)
        throw CsvError("\"" + text + "\" is not a number");
    return number;
}

std::string insertSql(const CatalogueTable& table) {
    std::string names, parameters;
    for (const CatalogueField& field : table.fields) {
        names += (names.empty() ? "" : ", ") + std::string(field.name);
        parameters += parameters.empty() ? "?" : ", ?";
    }
    return "INSERT INTO " + std::string(table.name) + " (" + names + ") VALUES (" + parameters +
           ")";
}

void fillTable(SQLite::Database& db, const CatalogueTable& table,
               const std::vector<Record>& records) {
    const Record& header = records.front();
    if (header.size() != table.fields.size()) throw CsvError("wrong number of columns");
    std::vector<std::size_t> places;
    for (const CatalogueField& field : table.fields) places.push_back(findColumn(header, field));
    SQLite::Statement insert(db, insertSql(table));
    for (auto record = records.begin() + 1; record != records.end(); ++record) {
        for (std::size_t i = 0; i < places.size(); ++i) {
            const std::string& value = (*record)[places[i]];
            const int parameter = static_cast<int>(i) + 1;
            if (table.fields[i].type == CatalogueColumn::NumberKey)
                insert.bind(parameter, toNumber(value));
            else
                insert.bind(parameter, value);
        }
        insert.exec();
        insert.reset();
    }
}

void fillFromFile(SQLite::Database& db, const CatalogueTable& table, const QString& path) {
    try {
        fillTable(db, table, readFile(path));
    } catch (const std::exception& error) {  // a second row with the same key comes here too
        throw CsvError(path.toStdString() + ": " + error.what());
    }
}

}  // namespace

void WriteCatalogue(const QString& folder, const QString& target) {
    store::CreateCatalogueFile(target, [&](SQLite::Database& db) {
        for (const CatalogueTable& table : store::CatalogueTables()) {
            const QString name = QString::fromUtf8(table.name.data(), qsizetype(table.name.size()));
            fillFromFile(db, table, QDir(folder).filePath(name + QStringLiteral(".csv")));
        }
    });
}

}  // namespace padral::catalogue
