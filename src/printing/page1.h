#pragma once
// The first page of every copy: identification, cause of the presentation, requests, signature.

#include "printing/layout.h"

namespace padral {

/// Draws the first page and ends it. Entered with Y 38.5, which it raises block by block.
/// `imagen` names the copy title to stamp.
void ImprimirPaginasPrincipales(const Hoja& hoja, Mm& x, Mm& y, const QString& imagen);

}  // namespace padral
