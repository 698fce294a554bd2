#pragma once
// Annex I: the participants of an entity.

#include "printing/layout.h"

namespace padral {

/// Prints the participants that are not deleted, five to a page, in the order of their collection;
/// without any, no page. The heading of each page sets Y anew, which ends below the last row.
/// `imagen` names the copy title to stamp.
void ImprimirAnexoI(const Hoja& hoja, Mm& x, Mm& y, const QString& imagen);

}  // namespace padral
