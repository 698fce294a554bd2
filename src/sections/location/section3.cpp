#include "sections/location/section3.h"

namespace padral {

namespace {

using D3 = DatosApartado3;

constexpr Columna<D3> ColumnasApartado3[] = {
    columna<D3, &D3::ResidenteKelmaria>(u"ResidenteKelmaria"),
    columna<D3, &D3::PorcenDeduccion>(u"PorcenDeduccion"),
    columna<D3, &D3::FechaInicio>(u"FechaInicio"),
    columna<D3, &D3::ActivEcon>(u"ActivEcon"),
    columna<D3, &D3::ListaEpigrafe>(u"ListaEpigrafe"),
    columna<D3, &D3::CodigoFormaJuridica>(u"CodigoFormaJuridica"),
    columna<D3, &D3::DescripcionFormaJuridica>(u"DescripcionFormaJuridica"),
    columna<D3, &D3::Anagrama>(u"Anagrama"),
    columna<D3, &D3::FechaCierre>(u"FechaCierre"),
    columna<D3, &D3::SocPat>(u"SocPat"),
    columna<D3, &D3::IdiomaPref>(u"IdiomaPref"),
    columna<D3, &D3::MedioPref>(u"MedioPref"),
    columna<D3, &D3::Correo>(u"Correo"),
    columna<D3, &D3::DirCorreo>(u"DirCorreo"),
    columna<D3, &D3::Fax>(u"Fax"),
    columna<D3, &D3::numFax>(u"numFax"),
    columna<D3, &D3::Movil>(u"Movil"),
    columna<D3, &D3::numMovil>(u"numMovil"),
    columna<D3, &D3::Fijo>(u"Fijo"),
    columna<D3, &D3::numFijo>(u"numFijo"),
    columna<D3, &D3::Consentimiento>(u"Consentimiento"),
    columna<D3, &D3::Revocacion>(u"Revocacion"),
    columna<D3, &D3::ActVenMov>(u"ActVenMov"),
};

}  // namespace

std::span<const Columna<DatosApartado3>> TablaApartado3() { return ColumnasApartado3; }

void cApartado3::FechaInicio(qint32 valor) {
    DatosApartado3::FechaInicio = valor;
    const bool modificacion = generales_.Causa1 == QStringLiteral("M");
    generales_.FECHAVIGOR = !modificacion && valor > 0 ? valor : 0;
}

void cApartado3::InicializarApartado3() {
    static_cast<DatosApartado3&>(*this) = {};
    InicializarTablaAuxiliar();
}

void cApartado3::CargarDatos(const Fila& fila) {
    CargarDeFila<DatosApartado3>(*this, TablaApartado3(), fila);
    if (ActivEcon != ActividadSinEpigrafe)
        ListaEpigrafe = catalogo_.ObtenerDescActivEcon(ActivEcon);
    if (CodigoFormaJuridica != FormaJuridicaOtra)
        DescripcionFormaJuridica = catalogo_.ObtenerDescFormaJuridica(CodigoFormaJuridica);
    Lleno = Marcado(generales_.Apartado3);
    RellenarTablaAuxiliar();
}

Fila cApartado3::ObtenerDatos() const { return FilaDe<DatosApartado3>(*this, TablaApartado3()); }

}  // namespace padral
