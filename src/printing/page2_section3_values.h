#pragma once
// What stands in the boxes of the census data.

#include "printing/layout.h"
#include "sections/location/section3.h"

namespace padral::hoja2 {

inline const DatosApartado3& Datos(const Hoja& h) { return h.registros.apartado3; }

template <Letra DatosApartado3::*propiedad, char16_t letra>
Valor SiLetra(const Hoja& h) {
    return Marca((Datos(h).*propiedad).texto() == QChar(letra));
}
template <QString DatosApartado3::*propiedad>
Valor ComoEsta(const Hoja& h) {
    return Texto(Datos(h).*propiedad);
}
template <qint32 DatosApartado3::*propiedad>
Valor SiHayNumero(const Hoja& h) {
    return NumeroSiHay(Datos(h).*propiedad);
}
template <QString DatosApartado3::*propiedad>
Valor SiMarcado(const Hoja& h) {
    return Marca(Datos(h).*propiedad == u"X");
}

/// Box 25.
inline Valor Porcentaje(const Hoja& h) {
    const qint32 porcentaje = Datos(h).PorcenDeduccion;
    return porcentaje > 0 ? Valor(QStringLiteral("%1 %").arg(porcentaje)) : std::nullopt;
}

/// Box 27: a declarant without heading leaves it empty.
inline Valor CodigoActividad(const Hoja& h) {
    const QString& codigo = Datos(h).ActivEcon;
    return codigo == ActividadSinEpigrafe ? std::nullopt : Texto(codigo);
}

/// Box 50: the month before the day in both languages, unlike on the screen.
inline Valor CierreDelEjercicio(const Hoja& h) {
    const qint32 fecha = Datos(h).FechaCierre;
    if (fecha == 0) return std::nullopt;
    return QStringLiteral("%1/%2")
        .arg(fecha / 100, 2, 10, QChar(u'0'))
        .arg(fecha % 100, 2, 10, QChar(u'0'));
}

}  // namespace padral::hoja2
