#pragma once
// What all records of the open declaration hold, as plain texts.

#include <QMap>
#include <QString>

#include "declaration/declaration.h"

namespace padral::pruebas {

/// Property -> value. The name begins with the record: "G." general data, "2." to "7." the
/// sections, "A." Annex II, "PA." the participant in hand, "P.<who>." each of the collection.
/// Numbers in decimals, texts without blanks at their end.
using Retrato = QMap<QString, QString>;

Retrato Retratar(const cDeclaraciones& declaracion);

/// Values of one record by their names, without its prefix.
Retrato Parte(const Retrato& retrato, const QString& prefijo);

/// Whether a section says that it was accepted, and that it was changed since. `apartado` is the
/// prefix of its record.
bool EstaLleno(const cDeclaraciones& declaracion, const QString& apartado);
bool EstaModificado(const cDeclaraciones& declaracion, const QString& apartado);

/// Prefixes of the records of the sections, in the order of the chain.
const QStringList& Apartados();

}  // namespace padral::pruebas
