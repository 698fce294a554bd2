#include "participants/participant.h"

#include "core/field_rules.h"
#include "sections/location/address_block.h"
#include "store/declarations_server.h"

namespace padral {

namespace {

using DP = DatosParticipe;

constexpr Columna<DP> ColumnasParticipe[] = {
    columna<DP, &DP::cspa>(u"cspa"),
    columna<DP, &DP::csde>(u"csde"),
    columna<DP, &DP::DNI>(u"DNI"),
    columna<DP, &DP::NOMBRE>(u"NOMBRE"),
    columna<DP, &DP::SiglasDom>(u"SiglasDom"),
    columna<DP, &DP::NombreVia>(u"NombreVia"),
    columna<DP, &DP::Numero>(u"Numero"),
    columna<DP, &DP::Letra>(u"Letra"),
    columna<DP, &DP::Escalera>(u"Escalera"),
    columna<DP, &DP::Piso>(u"Piso"),
    columna<DP, &DP::Mano>(u"Mano"),
    columna<DP, &DP::Telefono>(u"Telefono"),
    columna<DP, &DP::CodPostal>(u"CodPostal"),
    columna<DP, &DP::CodMun>(u"CodMun"),
    columna<DP, &DP::NombMun>(u"NombMun"),
    columna<DP, &DP::PorcenPart>(u"PorcenPart"),
    columna<DP, &DP::EdIRPF>(u"EdIRPF"),
    columna<DP, &DP::EqIRPF>(u"EqIRPF"),
    columna<DP, &DP::SimplifIVA>(u"SimplifIVA"),
    columna<DP, &DP::Agric>(u"Agric"),
};

SvrDPadral::cDeclaracionesSvr servidor(const QString& ruta) {
    SvrDPadral::cDeclaracionesSvr svr;
    svr.mdbname = ruta;
    return svr;
}

Tabla unaFila(const Fila& fila) {
    Tabla tabla;
    tabla.Anadir(fila);
    return tabla;
}

}  // namespace

std::span<const Columna<DatosParticipe>> TablaParticipe() { return ColumnasParticipe; }

void cParticipes::CodigoProvincia(QStringView texto) {
    DatosParticipe::CodigoProvincia = static_cast<qint16>(ValorNumerico(texto));
}

void cParticipes::InicializarDatos() {
    static_cast<DatosParticipe&>(*this) = {};
    Modo = {};
    Lleno = QStringLiteral("False");
    MODIFPARTICIPES = false;
}

void cParticipes::ResetForNewDeclaration() {
    InicializarDatos();
    RellenarTablaAuxiliar();
}

void cParticipes::CargarDatos(const Fila& fila, const ConsultasCatalogo& catalogo) {
    CargarDeFila<DatosParticipe>(*this, TablaParticipe(), fila);
    DESCRIPCIONVIA = catalogo.ObtenerDescripcionSiglas(SiglasDom.recortado());
    if (CodPostal != 0)
        DatosParticipe::CodigoProvincia = static_cast<qint16>(ProvinciaDePostal(CodPostal));
    NombreProvincia = catalogo.ObtenerNombreProvincia(CodigoProvincia());
    if (CodigoProvincia() == ProvinciaPropia) NombMun = catalogo.NombreMunicipio(CodMun);
}

Fila cParticipes::ObtenerDatos() const {
    DatosParticipe datos = *this;
    if (MunicipioSoloPorCodigo(CodPostal)) datos.NombMun = QStringLiteral("");
    return FilaDe<DatosParticipe>(datos, TablaParticipe());
}

void cParticipes::ExisteDNI(const QString& dni, bool& resultado) const {
    const TextoFijo<1> eliminado(QStringLiteral("E"));
    for (const auto& participe : participantes_.colParticipes) {
        if (participe->Modo == eliminado || participe->DNI.recortado().toUpper() != dni) continue;
        resultado = true;
        participe->Modo = QStringLiteral("C");
        participantes_.ParticipeActual = participe;
        return;
    }
}

void cParticipes::AñadirParticipe() {
    cspa = servidor(rutaBDModificacion_).AñadirParticipe(unaFila(ObtenerDatos()));
}

void cParticipes::ModificarParticipe() const {
    servidor(rutaBDModificacion_).ModificarParticipe(unaFila(ObtenerDatos()));
}

void cParticipes::EliminarParticipe() const {
    servidor(rutaBDModificacion_).EliminarParticipe(cspa);
}

}  // namespace padral
