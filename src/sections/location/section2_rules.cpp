#include "sections/location/section2_rules.h"

#include <algorithm>
#include <array>

#include "core/field_rules.h"

namespace padral {

namespace {

using DE = DireccionEscrita;

QString postal(const DE& d) {
    return ValorFormateado(QString::number(d.bloque.CodigoPostal), QStringLiteral("00000"));
}
QString provincia(const DE& d) {
    return ValorFormateado(QString::number(d.bloque.CodigoProvincia), QStringLiteral("00"));
}
bool propia(const DE& d) { return d.bloque.CodigoProvincia == ProvinciaPropia; }

constexpr std::array<ReglaDireccion, 8> ReglasDeDireccion = {{
    {1, [](const DE& d) { return d.bloque.DescripcionSiglas.isEmpty(); }, 124, 125,
     CampoDireccion::Siglas},
    {2, [](const DE& d) { return d.bloque.NombreDomicilio.isEmpty(); }, 126, 115,
     CampoDireccion::Calle},
    {3, [](const DE& d) { return d.bloque.NombreProvincia.isEmpty(); }, 127, 117,
     CampoDireccion::Provincia},
    {4, [](const DE& d) { return propia(d) && d.bloque.CodigoMunicipio == 0; }, 128, 129,
     CampoDireccion::CodigoMunicipio},
    {5, [](const DE& d) { return !propia(d) && d.bloque.NombreMunicipio.isEmpty(); }, 130, 119,
     CampoDireccion::Municipio},
    // The format pads to five digits: this one only stands guard.
    {6, [](const DE& d) { return postal(d).size() < 5; }, 120, 121, CampoDireccion::Postal},
    {7, [](const DE& d) { return postal(d).left(2) != provincia(d); }, 122, 123,
     CampoDireccion::Postal},
    {8, [](const DE& d) { return ValorNumerico(d.textoPostal.right(3)) == 0; }, 131, 121,
     CampoDireccion::Postal},
}};

}  // namespace

std::span<const ReglaDireccion> ReglasDireccion() { return ReglasDeDireccion; }

const ReglaDireccion* PrimeraReglaRota(const DireccionEscrita& direccion) {
    const auto rota = std::ranges::find_if(
        ReglasDeDireccion, [&](const ReglaDireccion& regla) { return regla.rota(direccion); });
    return rota == ReglasDeDireccion.end() ? nullptr : &*rota;
}

}  // namespace padral
