#include "make_catalogue/check.h"

#include <QMap>
#include <QRegularExpression>
#include <algorithm>

#include "store/collation.h"

namespace padral::catalogue {

namespace {

QString named(QStringView column, const QString& value, const QString& what) {
    return QStringLiteral("%1 \"%2\": %3").arg(column, value, what);
}

// A column of a table with what has been seen in it.
class Column {
public:
    explicit Column(const ColumnRule& rule)
        : rule_(rule), pattern_(QRegularExpression::anchoredPattern(rule.pattern)) {}

    /// What is wrong with a value, empty when nothing is.
    QString Check(const QString& value, int line) {
        const QString what = wrongAlone(value);
        if (!what.isEmpty()) return named(rule_.column, value, what);
        if (!rule_.unique) return {};
        const QByteArray key = store::SortKey(value);
        if (const auto first = seen_.constFind(key); first != seen_.cend())
            return named(rule_.column, value, QStringLiteral("already in line %1").arg(*first));
        seen_.insert(key, line);
        return {};
    }

private:
    QString wrongAlone(const QString& value) const {
        if (value != value.simplified()) return QStringLiteral("has a blank too many");
        if (value.size() < rule_.shortest || value.size() > rule_.longest)
            return rule_.shortest == rule_.longest
                       ? QStringLiteral("must have %1 characters").arg(rule_.longest)
                       : QStringLiteral("must have %1 to %2 characters")
                             .arg(rule_.shortest)
                             .arg(rule_.longest);
        if (!pattern_.match(value).hasMatch())
            return QStringLiteral("must be ") + rule_.inWords.toString();
        const int number = rule_.highest > 0 ? value.toInt() : 0;
        if (number < rule_.lowest || number > rule_.highest)
            return QStringLiteral("must be from %1 to %2").arg(rule_.lowest).arg(rule_.highest);
        return {};
    }

    const ColumnRule& rule_;
    const QRegularExpression pattern_;
    QMap<QByteArray, int> seen_;  // sort key of the value -> line
};

// The texts of the row that are not those that it always has.
QStringList wrongTexts(const TableRule& rule, const QStringList& fields) {
    QStringList wrong;
    if (rule.fixed.key.isEmpty() || fields[0] != rule.fixed.key) return wrong;
    for (std::size_t i = 0; i < std::size(rule.fixed.texts); ++i) {
        const QString& value = fields[qsizetype(i) + 1];
        if (value != rule.fixed.texts[i])
            wrong.append(
                named(rule.columns[i + 1].column, value,
                      QStringLiteral("must be \"%1\" in this row").arg(rule.fixed.texts[i])));
    }
    return wrong;
}

void checkFields(const TableRule& rule, const std::vector<Record>& rows,
                 std::vector<Problem>& problems) {
    std::vector<Column> columns(rule.columns.begin(), rule.columns.end());
    for (const Record& row : rows) {
        bool good = true;
        for (std::size_t i = 0; i < columns.size(); ++i) {
            const QString what = columns[i].Check(row.fields[qsizetype(i)], row.line);
            if (what.isEmpty()) continue;
            good = false;
            problems.push_back({row.line, what});
        }
        if (!good) continue;
        for (const QString& what : wrongTexts(rule, row.fields))
            problems.push_back({row.line, what});
        if (rule.between == nullptr) continue;
        if (const QString what = rule.between(row.fields); !what.isEmpty())
            problems.push_back({row.line, what});
    }
}

// What is wrong with the order of the keys; the rows behind the first one out of its place follow
// from it.
QString wrongOrder(const TableRule& rule, const std::vector<Record>& rows, int& line) {
    const auto [key, row] = std::ranges::mismatch(
        rule.keys, rows, [](QStringView k, const Record& r) { return k == r.fields[0]; });
    if (row == rows.end())
        return key == rule.keys.end() ? QString() : QStringLiteral("no row \"%1\"").arg(*key);
    line = row->line;
    const QString what = key == rule.keys.end()
                             ? QStringLiteral("is a row too many")
                             : QStringLiteral("is in the place of \"%1\"").arg(*key);
    return named(rule.columns[0].column, row->fields[0], what);
}

QString missingKey(const TableRule& rule, const std::vector<Record>& rows) {
    for (const QStringView key : rule.keys)
        if (std::ranges::none_of(rows, [&](const Record& r) { return r.fields[0] == key; }))
            return QStringLiteral("no row \"%1\"").arg(key);
    return {};
}

// Sets the line when it is not the last one.
QString wrongTogether(const TableRule& rule, const std::vector<Record>& rows, int& line) {
    if (rows.empty()) return QStringLiteral("no rows");
    if (rule.rows > 0 && rows.size() != std::size_t(rule.rows))
        return QStringLiteral("%1 rows instead of %2").arg(rows.size()).arg(rule.rows);
    if (rule.which == Keys::Exactly) return wrongOrder(rule, rows, line);
    return rule.which == Keys::Among ? missingKey(rule, rows) : QString();
}

}  // namespace

std::vector<Problem> CheckRows(const TableRule& rule, const std::vector<Record>& rows, bool whole) {
    std::vector<Problem> problems;
    checkFields(rule, rows, problems);
    if (!problems.empty() || !whole) return problems;
    int line = rows.empty() ? 1 : rows.back().line;
    if (const QString what = wrongTogether(rule, rows, line); !what.isEmpty())
        problems.push_back({line, what});
    return problems;
}

}  // namespace padral::catalogue
