#pragma once
// The sheet on which the form is printed.

#include <QMarginsF>
#include <QPointF>

class QPrinter;

namespace padral {

/// Widest margin that leaves room for the form (196.2 x 285 mm on A4), in millimetres.
inline constexpr double MargenMaximo = 5;

/// A4, upright, to its edges: the form has one shape, whatever a printer dialog has left.
void PonerHoja(QPrinter& impresora);

/// From the corner of the paper to the origin of the form, in millimetres: as small as the device
/// allows (`minimo`, millimetres), at most 5 mm.
QPointF Margen(const QMarginsF& minimo);

/// The same for a printer that has its sheet. A PDF file prints with 5 mm: it is meant for the
/// paper of a device that is not known yet.
QPointF MargenDe(const QPrinter& impresora);

}  // namespace padral
