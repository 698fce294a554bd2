#pragma once
// Comma separated values: UTF-8, a line a record. A field with a comma or a quote stands in double
// quotes, and a quote within it is doubled.

#include <QByteArrayView>
#include <QStringList>
#include <vector>

namespace padral::catalogue {

struct Record {
    int line;  ///< counted from 1
    QStringList fields;
};

/// What is wrong with a line.
struct Problem {
    int line;
    QString what;
};

struct Csv {
    std::vector<Record> records;
    std::vector<Problem> problems;
};

/// All good lines as records and what is wrong with the others; empty lines are skipped. The first
/// record gives the number of fields; when its line is bad, nothing behind it is read.
Csv ParseCsv(QByteArrayView text);

}  // namespace padral::catalogue
