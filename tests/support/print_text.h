#pragma once
// How Qt's texts look in the report of a failed comparison.

#include <QStringList>
#include <ostream>

inline void PrintTo(const QString& texto, std::ostream* salida) {
    *salida << '"' << texto.toStdString() << '"';
}
inline void PrintTo(const QStringList& textos, std::ostream* salida) {
    *salida << '[' << textos.join(QStringLiteral(" | ")).toStdString() << ']';
}
