#pragma once
// The declarations that a walk finds in the store: of every type, with every section, effective
// before and since 2015, and each one such that it can be saved again.

#include <QList>

#include "declaration/declaration.h"

namespace padral::pruebas {

/// Stores them and gives their keys. Nothing is open before and after.
QList<qint32> GuardarPreparadas(cDeclaraciones& declaracion);

}  // namespace padral::pruebas
