#include "make_catalogue/csv.h"

#include <gtest/gtest.h>

#include "store/store_files.h"

namespace padral::test {
namespace {

using catalogue::Csv;
using catalogue::ParseCsv;

QString q(const char* text) { return QString::fromUtf8(text); }

// "line:field|field" for each record.
QString records(const Csv& csv) {
    QStringList lines;
    for (const auto& [line, fields] : csv.records)
        lines.append(QString::number(line) + u':' + fields.join(u'|'));
    return lines.join(u'\n');
}

QString problems(const Csv& csv) {
    QStringList lines;
    for (const auto& [line, what] : csv.problems) lines.append(QString::number(line) + u':' + what);
    return lines.join(u'\n');
}

struct Case {
    const char *text, *expected;
};

TEST(Csv, SplitsRecordsAndFields) {
    for (const auto& [text, expected] : {Case{"", ""},
                                         {"a,b\n1,2\n", "1:a|b\n2:1|2"},
                                         {"a,b\r\n1,2", "1:a|b\n2:1|2"},
                                         {"\xEF\xBB\xBF"
                                          "a\n\nñ\n",
                                          "1:a\n3:ñ"},
                                         {"a,b\n,\n", "1:a|b\n2:|"},
                                         {"a,b\n\"x, y\",\"\"\"z\"\"\"\n", "1:a|b\n2:x, y|\"z\""},
                                         {"a,b\n \"x\" , y\n", "1:a|b\n2: \"x\" | y"},
                                         {"a,b\n\"x\",\"\"", "1:a|b\n2:x|"}}) {
        EXPECT_EQ(records(ParseCsv(text)), q(expected)) << text;
        EXPECT_EQ(problems(ParseCsv(text)), QString()) << text;
    }
}

TEST(Csv, TellsEveryBrokenLineAndKeepsTheOthers) {
    const Csv csv = ParseCsv(
        "a,b\n1\n1,2,3\n\"x\"y,2\n\"open,2\n\"two\nlines\",2\n"
        "\xF1,2\n8,9\n");
    EXPECT_EQ(problems(csv), q("2:1 field instead of 2\n"
                               "3:3 fields instead of 2\n"
                               "4:text behind a closing quote\n"
                               "5:a quote is not closed in its line\n"
                               "6:a quote is not closed in its line\n"
                               "8:not UTF-8"));
    EXPECT_EQ(records(csv), q("1:a|b\n7:lines\"|2\n9:8|9"));
}

TEST(Csv, ReadsNothingBehindABrokenHeader) {
    const Csv csv = ParseCsv("\"a,b\n1,2\n");
    EXPECT_EQ(problems(csv), q("1:a quote is not closed in its line"));
    EXPECT_TRUE(csv.records.empty());
}

}  // namespace
}  // namespace padral::test
