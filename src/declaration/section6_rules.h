#pragma once
// What makes section 6 valid, and the causes of cessation. Dates are `yyyymmdd`.

#include "core/review.h"
#include "core/shared_state.h"
#include "declaration/section6.h"

namespace padral {

/// The cause whose description is free.
inline constexpr qint16 CausaLibre = 99;

/// Row of a cause in the list of descriptions, from 0; -1 for a code that has none.
int ObtenerListIndex(qint16 causa);
/// Whether a description of the list is the one of the record, which keeps its first 20
/// characters. Blanks around it and case do not count.
bool EsDescripcionDe(const DatosApartado6& apartado, const QString& descripcion);

/// Whether a date is within the limits of the run, both included.
Revision FechaEnElIntervalo(qint32 fecha, EstadoCompartido& estado);
/// A date as its field shows it. The empty one is no date of the interval.
Revision ValidaFecha(const QString& texto, EstadoCompartido& estado);
/// A changed section when it is left; one without a cause is not looked at.
Revision Validaciones(const DatosApartado6& apartado, EstadoCompartido& estado);
/// Whether the date of the register is none of the calendar, which stops a section with a cause
/// when it is left, too. There is no message for it: its field shows it empty.
bool InscripcionIlegible(const DatosApartado6& apartado, EstadoCompartido& estado);
/// A section when it is left, changed or not.
Revision ValidarIntroduccionDatos(const DatosApartado6& apartado);

}  // namespace padral
