#include "sections/tax/annex2.h"

namespace padral {

namespace {

using D = DatosAnexoII;

constexpr Columna<D> Columnas[] = {
    columna<D, &D::DireccionDom>(u"DireccionDom"),
    columna<D, &D::PoblacionDom>(u"PoblacionDom"),
    columna<D, &D::Nacionalidad>(u"Nacionalidad"),
    columna<D, &D::FormaJuridica>(u"FormaJuridica"),
    columna<D, &D::TerritorioHistorico>(u"TerritorioHistorico"),
    columna<D, &D::ModalidadEstablecimiento>(u"ModalidadEstablecimiento"),
    columna<D, &D::OtrosEstablecimientos>(u"OtrosEstablecimientos"),
    columna<D, &D::NIFRepresentante>(u"NIFRepresentante"),
    columna<D, &D::NombreRepresentante>(u"NombreRepresentante"),
    columna<D, &D::NacionalidadRepresentante>(u"NacionalidadRepresentante"),
    columna<D, &D::DomicilioRepresentante>(u"DomicilioRepresentante"),
    columna<D, &D::CodigoMunicipio>(u"CodigoMunicipio"),
    columna<D, &D::NombreMunicipio>(u"NombreMunicipio"),
    columna<D, &D::CodigoProvincia>(u"CodigoProvincia"),
    columna<D, &D::Obligado>(u"Obligado"),
    columna<D, &D::Establecimientos>(u"Establecimientos"),
    columna<D, &D::Aplicacion>(u"Aplicacion"),
    columna<D, &D::OpcionApl>(u"OpcionApl"),
    columna<D, &D::PORCENTAJE>(u"PORCENTAJE"),
};

}  // namespace

std::span<const Columna<DatosAnexoII>> TablaAnexoII() { return Columnas; }

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
