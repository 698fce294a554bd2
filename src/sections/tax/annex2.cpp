#include "sections/tax/annex2.h"

namespace padral {

namespace {

using A2 = DatosAnexoII;

constexpr Columna<A2> ColumnasAnexoII[] = {
    columna<A2, &A2::DireccionDom>(u"DireccionDom"),
    columna<A2, &A2::PoblacionDom>(u"PoblacionDom"),
    columna<A2, &A2::Nacionalidad>(u"Nacionalidad"),
    columna<A2, &A2::FormaJuridica>(u"FormaJuridica"),
    columna<A2, &A2::TerritorioHistorico>(u"TerritorioHistorico"),
    columna<A2, &A2::ModalidadEstablecimiento>(u"ModalidadEstablecimiento"),
    columna<A2, &A2::OtrosEstablecimientos>(u"OtrosEstablecimientos"),
    columna<A2, &A2::NIFRepresentante>(u"NIFRepresentante"),
    columna<A2, &A2::NombreRepresentante>(u"NombreRepresentante"),
    columna<A2, &A2::NacionalidadRepresentante>(u"NacionalidadRepresentante"),
    columna<A2, &A2::DomicilioRepresentante>(u"DomicilioRepresentante"),
    columna<A2, &A2::CodigoMunicipio>(u"CodigoMunicipio"),
    columna<A2, &A2::NombreMunicipio>(u"NombreMunicipio"),
    columna<A2, &A2::CodigoProvincia>(u"CodigoProvincia"),
    columna<A2, &A2::Obligado>(u"Obligado"),
    columna<A2, &A2::Establecimientos>(u"Establecimientos"),
    columna<A2, &A2::Aplicacion>(u"Aplicacion"),
    columna<A2, &A2::OpcionApl>(u"OpcionApl"),
    columna<A2, &A2::PORCENTAJE>(u"PORCENTAJE"),
};

}  // namespace

std::span<const Columna<DatosAnexoII>> TablaAnexoII() { return ColumnasAnexoII; }

void cAnexoII::InicializarAnexoII() {
    DatosAnexoII vacio;
    vacio.CodigoMunicipio = CodigoMunicipio;
    vacio.CodigoProvincia = CodigoProvincia;
    vacio.PORCENTAJE = PORCENTAJE;
    vacio.Lleno = Lleno;
    vacio.Modificaciones = Modificaciones;
    static_cast<DatosAnexoII&>(*this) = vacio;
}

void cAnexoII::ResetForNewDeclaration() {
    static_cast<DatosAnexoII&>(*this) = {};
    InicializarTablaAuxiliar();
}

void cAnexoII::CargarDatos(const Fila& fila) {
    const qint32 provinciaAnterior = CodigoProvincia;
    CargarDeFila<DatosAnexoII>(*this, TablaAnexoII(), fila);
    if (CodigoProvincia == 0) CodigoProvincia = provinciaAnterior;
    NombreProvincia = catalogo_.ObtenerNombreProvincia(CodigoProvincia);
    Lleno = Marcado(generales_.AnexoII);
    RellenarTablaAuxiliar();
}

}  // namespace padral
