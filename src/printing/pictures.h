#pragma once
// The artwork that the pages paint, by name.

#include <QStringView>

#include "printing/printer_port.h"

namespace padral {

/// A picture of the form. Turned captions read upwards and hold one line or, one beside the
/// other, two.
struct ImagenImpresa {
    const char16_t* nombre;
    int ancho, alto;            ///< natural size in pixels of 1/96 inch
    const char16_t* lineas[2];  ///< texts of a turned caption; both null for the emblem

    Tamano TamanoNatural() const;
};

inline constexpr const char16_t* ImagenEmblema = u"Diputacion";

/// The picture of that name. An unknown or empty name throws Fallo.
const ImagenImpresa& BuscarImagen(QStringView nombre);

}  // namespace padral
