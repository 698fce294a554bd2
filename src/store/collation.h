#pragma once
// Spanish order of texts: case is ignored, accents decide last, Ñ comes after N.

#include <QByteArray>
#include <QString>
#include <string_view>

struct sqlite3;

namespace padral::store {

/// Name of the order in the SQL of the read-only file.
inline constexpr const char* SpanishCollation = "CASTELLANO";

/// Bytes whose binary order is the Spanish order of the texts.
QByteArray SortKey(const QString& text);
/// Below 0, 0 or above 0; both texts are UTF-8.
int CompareSpanish(std::string_view left, std::string_view right);
/// The form in which texts are compared without regard to case.
QString Folded(const QString& text);
/// Version of the rules: sort keys of different versions do not go together.
QString CollationVersion();
/// Makes the order known to a connection.
void RegisterSpanishCollation(sqlite3* connection);

}  // namespace padral::store
