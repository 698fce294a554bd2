#include "store/list_query.h"

#include <SQLiteCpp/Statement.h>

#include "store/collation.h"

namespace padral::store {

namespace {

struct SortedColumn {
    const char* index;
    const char* key;
    const char* criterion;
};

// By grid column. A folded text that begins with a start lies between the start and the start
// with the highest character behind it.
constexpr std::array<SortedColumn, 4> SortedColumns{{
    {"IListaDni", "DniMayusculas", "DniMayusculas >= ?1"},
    {"IListaNombre", "NombreClave",
     "NombreMayusculas >= ?2 AND NombreMayusculas < ?2 || char(1114111)"},
    {"IListaReferencia", "ReferenciaClave",
     "ReferenciaMayusculas >= ?3 AND ReferenciaMayusculas < ?3 || char(1114111)"},
    {"IListaFecha", "FECHADECLARACION", "FECHADECLARACION >= ?4"},
}};

constexpr const char* ListColumns =
    "csde, DNI, NOMBRE, NumeroArchivo, FECHADECLARACION, Causa1, APARTADOS, Causa2";
constexpr const char* FoldedColumns = "DniMayusculas, NombreMayusculas, ReferenciaMayusculas";

}  // namespace

std::string ListKeyColumnsSql() {
    return ", DniMayusculas TEXT NOT NULL, NombreMayusculas TEXT NOT NULL,"
           " ReferenciaMayusculas TEXT NOT NULL, NombreClave BLOB NOT NULL,"
           " ReferenciaClave BLOB NOT NULL";
}

std::string ListKeyColumnNames() {
    return std::string(", ") + FoldedColumns + ", NombreClave, ReferenciaClave";
}

void BindListKeys(SQLite::Statement& statement, int first, const QString& identifier,
                  const QString& name, const QString& reference) {
    int parameter = first;
    for (const QString& text : {identifier, name, reference})
        statement.bind(parameter++, Folded(text).toStdString());
    for (const QString& text : {name, reference}) {
        const QByteArray key = SortKey(text);
        statement.bind(parameter++, key.constData(), static_cast<int>(key.size()));
    }
}

std::array<std::string, 4> ListIndexesSql() {
    std::array<std::string, 4> indexes;
    for (std::size_t i = 0; i < indexes.size(); ++i)
        indexes[i] = std::string("CREATE INDEX ") + SortedColumns[i].index +
                     " ON TDeclaraciones (" + SortedColumns[i].key + ", " + ListColumns + ", " +
                     FoldedColumns + ")";
    return indexes;
}

std::string ListSql(const SvrDPadral::CriteriosLista& criteria, const QString& column,
                    const QString& direction) {
    const int number = column.toInt();
    const bool sorted = number >= 1 && number <= static_cast<int>(SortedColumns.size());
    const SortedColumn* order =
        sorted ? &SortedColumns[static_cast<std::size_t>(number - 1)] : nullptr;
    std::string sql = std::string("SELECT ") + ListColumns + " FROM TDeclaraciones";
    if (order) sql += std::string(" INDEXED BY ") + order->index;
    const char* joint = " WHERE ";
    for (std::size_t i = 0; i < SortedColumns.size(); ++i) {
        if (criteria[i + 1].isEmpty()) continue;
        sql += joint + std::string(SortedColumns[i].criterion);
        joint = " AND ";
    }
    const bool down = direction.compare(u"DESC", Qt::CaseInsensitive) == 0;
    const std::string way = down ? " DESC" : " ASC";
    sql += " ORDER BY ";
    if (order) sql += order->key + way + ", ";
    return sql + "csde" + way;
}

}  // namespace padral::store
