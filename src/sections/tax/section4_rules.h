#pragma once
// What makes section 4 valid.

#include <QString>

#include "core/nif.h"
#include "core/review.h"
#include "sections/tax/section4.h"

namespace padral {

/// The identifier of the entity under income attribution, as its field or the record has it. The
/// server is asked only for one of the right length and first letter.
Revision NIFValido(const QString& texto, const ServidorNif& valida);
/// A changed section when it is left.
Revision Validaciones(const DatosApartado4& apartado, const ServidorNif& valida);
/// A section when it is left, changed or not. `fechaVigor` is the effective date.
Revision ValidarIntroduccionDatos(const DatosApartado4& apartado, qint32 fechaVigor);

}  // namespace padral
