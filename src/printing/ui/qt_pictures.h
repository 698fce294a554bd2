#pragma once
// Paints the artwork of the form as vectors.

#include <QRectF>

#include "printing/pictures.h"

class QPainter;

namespace padral {

/// The emblem, or a turned caption that reads upwards, in that rectangle of the device.
void PintarArte(QPainter& pintor, const ImagenImpresa& imagen, const QRectF& donde);

}  // namespace padral
