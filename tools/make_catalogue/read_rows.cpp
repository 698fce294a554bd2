#include "make_catalogue/read_rows.h"

#include <QDir>
#include <QFile>
#include <algorithm>

#include "make_catalogue/check.h"
#include "make_catalogue/load_catalogue.h"

namespace padral::catalogue {

namespace {

// More would hide the first ones.
constexpr qsizetype MostMessages = 50;

// Puts the fields of the records into the order of the columns; false when the header does not fit.
bool arrange(const TableRule& rule, Csv& csv) {
    if (csv.records.empty()) return false;
    const Record header = csv.records.front();
    csv.records.erase(csv.records.begin());
    std::vector<qsizetype> places;
    for (const ColumnRule& column : rule.columns) {
        places.push_back(header.fields.indexOf(column.column));
        if (places.back() < 0)
            csv.problems.push_back(
                {header.line, QStringLiteral("no column %1").arg(column.column)});
    }
    if (std::ranges::count(places, -1) > 0) return false;
    if (header.fields.size() != qsizetype(places.size())) {
        csv.problems.push_back({header.line, QStringLiteral("%1 columns instead of %2")
                                                 .arg(header.fields.size())
                                                 .arg(places.size())});
        return false;
    }
    for (Record& record : csv.records) {
        QStringList fields;
        for (const qsizetype place : places) fields.append(record.fields[place]);
        record.fields = fields;
    }
    return true;
}

Csv readFile(const QString& path, const TableRule& rule) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {{}, {{1, QStringLiteral("cannot be read")}}};
    Csv csv = ParseCsv(file.readAll());
    if (csv.records.empty() && csv.problems.empty())
        csv.problems.push_back({1, QStringLiteral("no line with the names of the columns")});
    if (!arrange(rule, csv)) return csv;
    for (const Problem& problem : CheckRows(rule, csv.records, csv.problems.empty()))
        csv.problems.push_back(problem);
    std::ranges::stable_sort(csv.problems, {}, &Problem::line);
    return csv;
}

TableRows inTableOrder(const store::CatalogueTable& table, const std::vector<Record>& records) {
    TableRows result{table, {}};
    for (const Record& record : records) result.rows.push_back(record.fields);
    // The engine keeps rows with a number as their key in the order of that number.
    if (table.fields.front().type == store::CatalogueColumn::NumberKey)
        std::ranges::sort(result.rows, {}, [](const QStringList& row) { return row[0].toInt(); });
    return result;
}

[[noreturn]] void refuse(QStringList messages) {
    const qsizetype more = messages.size() - MostMessages;
    if (more > 0) {
        messages = messages.first(MostMessages);
        messages.append(QStringLiteral("... and %1 more").arg(more));
    }
    throw BadRows(messages.join(u'\n').toStdString());
}

}  // namespace

std::vector<TableRows> ReadRows(const QString& folder) {
    std::vector<TableRows> tables;
    QStringList messages;
    auto rule = TableRules().begin();
    for (const store::CatalogueTable& table : store::CatalogueTables()) {
        const QString path = QDir(folder).filePath(rule->table.toString() + QStringLiteral(".csv"));
        const Csv csv = readFile(path, *rule++);
        for (const Problem& problem : csv.problems)
            messages.append(
                QStringLiteral("%1:%2: %3").arg(path, QString::number(problem.line), problem.what));
        if (messages.isEmpty()) tables.push_back(inTableOrder(table, csv.records));
    }
    if (!messages.isEmpty()) refuse(messages);
    return tables;
}

}  // namespace padral::catalogue
