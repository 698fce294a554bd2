#pragma once
// Two sets of named values compared, so that a failure tells the names that differ.

#include <QMap>
#include <QStringList>

#include "support/print_text.h"

namespace padral::pruebas {

/// "name: expected, got" for each name whose value is another one; no value is an empty one.
inline QStringList Diferencias(const QMap<QString, QString>& esperado,
                               const QMap<QString, QString>& real) {
    QMap<QString, QString> nombres = esperado;
    nombres.insert(real);
    QStringList distintos;
    for (const QString& nombre : nombres.keys())
        if (esperado.value(nombre) != real.value(nombre))
            distintos << QStringLiteral("%1: \"%2\", got \"%3\"")
                             .arg(nombre, esperado.value(nombre), real.value(nombre));
    return distintos;
}

}  // namespace padral::pruebas
