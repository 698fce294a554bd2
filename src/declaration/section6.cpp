#include "declaration/section6.h"

namespace padral {

namespace {

using D6 = DatosApartado6;

constexpr Columna<D6> ColumnasApartado6[] = {
    columna<D6, &D6::FECHACESE>(u"FECHACESE"),
    columna<D6, &D6::CAUSA>(u"CAUSA"),
    columna<D6, &D6::DESCRIPCIONCAUSA>(u"DESCRIPCIONCAUSA"),
    columna<D6, &D6::FechaInscripcion>(u"FechaInscripcion"),
};

}  // namespace

std::span<const Columna<DatosApartado6>> TablaApartado6() { return ColumnasApartado6; }

void cApartado6::LIMPIARDATOS() {
    static_cast<DatosApartado6&>(*this) = {};
    Lleno = MODIFAPARTADO6 = false;
    GuardarDatosAuxiliares();
}

void cApartado6::ResetForNewDeclaration() {
    LIMPIARDATOS();
    OTRASCAUSAS.clear();
}

void cApartado6::CargarDatos(const Fila& fila) {
    CargarDeFila<DatosApartado6>(*this, TablaApartado6(), fila);
    Lleno = Marcado(generales_.Apartado6);
    GuardarDatosAuxiliares();
}

}  // namespace padral
