#include "sections/tax/section7_rules.h"

#include <algorithm>

namespace padral {

namespace {

using D7 = DatosApartado7;

constexpr int TituloApartado7 = 75;

bool sinDatos(const D7& a) {
    return std::ranges::all_of(TablaApartado7(), [&a](const Columna<D7>& respuesta) {
        return respuesta.leer(a).toString().isEmpty();
    });
}

/// Above the limit there is no revocation.
bool revocaSobreElLimite(const D7& a) {
    return a.MasLimEuros == QStringLiteral("S") && a.TributDestino == QStringLiteral("R");
}

constexpr struct {
    bool (*rota)(const D7&);
    AvisoRegla aviso;
} ReglasDelApartado7[] = {
    {sinDatos, AvisoSinDatos7},
    {revocaSobreElLimite, {790, TituloApartado7}},
};

}  // namespace

Revision ValidarApartado7(const DatosApartado7& apartado) {
    Revision revision;
    for (const auto& regla : ReglasDelApartado7)
        if (regla.rota(apartado)) revision.avisos.push_back(regla.aviso);
    return revision;
}

}  // namespace padral
