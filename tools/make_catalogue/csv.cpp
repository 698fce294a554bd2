#include "make_catalogue/csv.h"

namespace padral::catalogue {

namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

class Reader {
public:
    explicit Reader(std::string_view text) : text_(text) {
        if (text_.starts_with(ByteOrderMark)) text_.remove_prefix(ByteOrderMark.size());
    }

    bool AtEnd() const { return at_ == text_.size(); }
    int Line() const { return line_; }

    bool SkipEmptyLine() { return SkipLineEnd(); }

    Record ReadRecord() {
        Record record{ReadField()};
        while (!AtEnd() && !SkipLineEnd()) {
            if (text_[at_] != ',') Fail("text behind a closing quote");
            ++at_;
            record.push_back(ReadField());
        }
        return record;
    }

    [[noreturn]] void Fail(const std::string& what) const {
        throw CsvError("line " + std::to_string(line_) + ": " + what);
    }

private:
    bool SkipLineEnd() {
        const std::string_view rest = text_.substr(at_);
        const std::size_t size = rest.starts_with("\r\n") ? 2 : rest.starts_with('\n') ? 1 : 0;
        at_ += size;
        line_ += size > 0;
        return size > 0;
    }

    std::string ReadField() {
        if (!AtEnd() && text_[at_] == '"') return ReadQuoted();
        const std::size_t start = at_;
        while (!AtEnd() && text_[at_] != ',' && text_[at_] != '\n' &&
               !text_.substr(at_).starts_with("\r\n"))
            ++at_;
        return std::string(text_.substr(start, at_ - start));
    }

    std::string ReadQuoted() {
        std::string field;
        for (++at_; !AtEnd(); ++at_) {
            if (text_[at_] == '"') {
                if (text_.substr(at_ + 1, 1) != "\"") {
                    ++at_;
                    return field;
                }
                ++at_;
            }
            line_ += text_[at_] == '\n';
            field += text_[at_];
        }
        Fail("a quote is not closed");
    }

    std::string_view text_;
    std::size_t at_ = 0;
    int line_ = 1;
};

}  // namespace

std::vector<Record> ParseCsv(std::string_view text) {
    Reader reader(text);
    std::vector<Record> records;
    while (!reader.AtEnd()) {
        if (reader.SkipEmptyLine()) continue;
        const int line = reader.Line();
        records.push_back(reader.ReadRecord());
        if (records.back().size() != records.front().size())
            throw CsvError("line " + std::to_string(line) + ": " +
                           std::to_string(records.back().size()) + " fields instead of " +
                           std::to_string(records.front().size()));
    }
    return records;
}

}  // namespace padral::catalogue
