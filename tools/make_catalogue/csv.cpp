#include "make_catalogue/csv.h"

#include <QStringDecoder>

namespace padral::catalogue {

namespace {

constexpr QByteArrayView ByteOrderMark = "\xEF\xBB\xBF";

// Splits one line; `problem` tells why it could not.
class Splitter {
public:
    explicit Splitter(const QString& line) : line_(line) {}

    QString problem;

    QStringList Fields() {
        QStringList fields{Field()};
        while (problem.isEmpty() && at_ < line_.size()) {
            if (line_[at_] != u',')
                problem = QStringLiteral("text behind a closing quote");
            else {
                ++at_;
                fields.append(Field());
            }
        }
        return fields;
    }

private:
    QString Field() {
        if (at_ < line_.size() && line_[at_] == u'"') return Quoted();
        qsizetype end = line_.indexOf(u',', at_);
        if (end < 0) end = line_.size();
        const QString field = line_.mid(at_, end - at_);
        at_ = end;
        return field;
    }

    QString Quoted() {
        QString field;
        for (++at_; at_ < line_.size(); ++at_) {
            if (line_[at_] == u'"' && line_.mid(++at_, 1) != QStringLiteral("\"")) return field;
            field += line_[at_];
        }
        problem = QStringLiteral("a quote is not closed in its line");
        return field;
    }

    const QString& line_;
    qsizetype at_ = 0;
};

QString fieldsInstead(qsizetype count, qsizetype expected) {
    return QStringLiteral("%1 %2 instead of %3")
        .arg(count)
        .arg(count == 1 ? QStringLiteral("field") : QStringLiteral("fields"))
        .arg(expected);
}

// Adds a line to the records or to the problems.
void readLine(QByteArrayView bytes, int number, Csv& csv) {
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString line = decoder(bytes);
    if (decoder.hasError()) {
        csv.problems.push_back({number, QStringLiteral("not UTF-8")});
        return;
    }
    Splitter splitter(line);
    QStringList fields = splitter.Fields();
    if (splitter.problem.isEmpty() && !csv.records.empty() &&
        fields.size() != csv.records.front().fields.size())
        splitter.problem = fieldsInstead(fields.size(), csv.records.front().fields.size());
    if (splitter.problem.isEmpty())
        csv.records.push_back({number, std::move(fields)});
    else
        csv.problems.push_back({number, splitter.problem});
}

}  // namespace

Csv ParseCsv(QByteArrayView text) {
    Csv csv;
    if (text.startsWith(ByteOrderMark)) text = text.sliced(ByteOrderMark.size());
    for (int number = 1; !text.isEmpty(); ++number) {
        const qsizetype end = text.indexOf('\n');
        QByteArrayView line = text.first(end < 0 ? text.size() : end);
        text = text.sliced(end < 0 ? text.size() : end + 1);
        if (line.endsWith('\r')) line.chop(1);
        if (!line.isEmpty()) readLine(line, number, csv);
        if (csv.records.empty() && !csv.problems.empty()) break;
    }
    return csv;
}

}  // namespace padral::catalogue
