#include "store/record_io.h"

#include <SQLiteCpp/Column.h>

#include <algorithm>

namespace padral::store {

namespace {

QVariant emptyValue(ColumnType type) {
    switch (type) {
        case ColumnType::Integer:
            return 0;
        case ColumnType::Real:
            return 0.0F;
        case ColumnType::Mark:
            return QStringLiteral(" ");
        case ColumnType::Text:
            break;
    }
    return QStringLiteral("");
}

void bindValue(SQLite::Statement& statement, int index, ColumnType type, const QVariant& value) {
    const QVariant& given = value.isNull() ? emptyValue(type) : value;
    switch (type) {
        case ColumnType::Integer:
            statement.bind(index, static_cast<int64_t>(given.toLongLong()));
            return;
        case ColumnType::Real:
            statement.bind(index, static_cast<double>(given.toFloat()));
            return;
        case ColumnType::Mark:
        case ColumnType::Text:
            statement.bind(index, given.toString().toStdString());
            return;
    }
}

QVariant readValue(const SQLite::Column& column, ColumnType type) {
    switch (type) {
        case ColumnType::Integer:
            return column.getInt();
        case ColumnType::Real:
            return static_cast<float>(column.getDouble());
        case ColumnType::Mark:
        case ColumnType::Text:
            break;
    }
    return QString::fromUtf8(column.getText(), column.getBytes());
}

}  // namespace

std::string ColumnList(std::span<const Column> columns) {
    std::string list;
    for (const Column& column : columns) {
        if (!list.empty()) list += ", ";
        list += '"' + std::string(column.name) + '"';
    }
    return list;
}

std::string InsertSql(std::string_view table, std::string_view leading,
                      std::span<const Column> columns) {
    std::string sql = "INSERT OR REPLACE INTO \"" + std::string(table) + "\" (";
    std::size_t parameters = columns.size();
    if (!leading.empty()) {
        sql += std::string(leading) + ", ";
        parameters += 1 + static_cast<std::size_t>(std::ranges::count(leading, ','));
    }
    sql += ColumnList(columns) + ") VALUES (?";
    for (std::size_t i = 1; i < parameters; ++i) sql += ", ?";
    return sql + ")";
}

void BindRow(SQLite::Statement& statement, int first, std::span<const Column> columns,
             const Fila& row) {
    for (std::size_t i = 0; i < columns.size(); ++i)
        bindValue(statement, first + static_cast<int>(i), columns[i].type,
                  row.value(static_cast<qsizetype>(i)));
}

Fila ReadRow(SQLite::Statement& statement, std::span<const Column> columns, int first) {
    Fila row;
    row.reserve(static_cast<qsizetype>(columns.size()));
    for (std::size_t i = 0; i < columns.size(); ++i)
        row.append(readValue(statement.getColumn(first + static_cast<int>(i)), columns[i].type));
    return row;
}

Fila EmptyRow(std::span<const Column> columns) {
    Fila row;
    row.reserve(static_cast<qsizetype>(columns.size()));
    for (const Column& column : columns) row.append(emptyValue(column.type));
    return row;
}

}  // namespace padral::store
