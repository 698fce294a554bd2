#include "store/collation.h"

#include <sqlite3.h>
#include <unicode/coll.h>
#include <unicode/stringpiece.h>

#include <array>
#include <memory>

#include "platform/failure.h"

namespace padral::store {

namespace {

std::unique_ptr<icu::Collator> makeCollator() {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Collator> collator(
        icu::Collator::createInstance(icu::Locale("es"), status));
    if (U_FAILURE(status))
        throw Fallo(QStringLiteral("Faltan las reglas de ordenación de textos del sistema (ICU)."),
                    QStringLiteral("Sistemaren testuak ordenatzeko arauak falta dira (ICU)."));
    collator->setStrength(icu::Collator::SECONDARY);
    return collator;
}

const icu::Collator& collator() {
    static const std::unique_ptr<const icu::Collator> instance = makeCollator();
    return *instance;
}

int compareForSqlite(void*, int leftSize, const void* left, int rightSize, const void* right) {
    return CompareSpanish({static_cast<const char*>(left), static_cast<std::size_t>(leftSize)},
                          {static_cast<const char*>(right), static_cast<std::size_t>(rightSize)});
}

}  // namespace

QByteArray SortKey(const QString& text) {
    const icu::UnicodeString source(reinterpret_cast<const char16_t*>(text.utf16()),
                                    static_cast<int32_t>(text.size()));
    QByteArray key(64 + 4 * text.size(), Qt::Uninitialized);
    for (;;) {
        const auto space = static_cast<int32_t>(key.size());
        const int32_t needed =
            collator().getSortKey(source, reinterpret_cast<uint8_t*>(key.data()), space);
        key.resize(needed);
        if (needed <= space) return key;
    }
}

int CompareSpanish(std::string_view left, std::string_view right) {
    UErrorCode status = U_ZERO_ERROR;
    return collator().compareUTF8(
        icu::StringPiece(left.data(), static_cast<int32_t>(left.size())),
        icu::StringPiece(right.data(), static_cast<int32_t>(right.size())), status);
}

QString Folded(const QString& text) { return text.toUpper(); }

QString CollationVersion() {
    UVersionInfo version{};
    collator().getVersion(version);
    return QStringLiteral("%1.%2.%3.%4")
        .arg(version[0])
        .arg(version[1])
        .arg(version[2])
        .arg(version[3]);
}

void RegisterSpanishCollation(sqlite3* connection) {
    collator();
    sqlite3_create_collation_v2(connection, SpanishCollation, SQLITE_UTF8, nullptr,
                                compareForSqlite, nullptr);
}

}  // namespace padral::store
