#include "core/shared_state.h"

#include "store/general_server.h"

namespace padral {

using SvrDPadral::cGeneral;

void cMDIPadral::IDI(const QString& idioma) {
    idi_ = idioma;
    ModificarIdioma(idioma);
    estado_.DesplazamientoIdioma =
        idioma == QStringLiteral("E") ? CatalogoTextos::DesplazamientoEuskera : qint16{0};
    estado_.fecha.fecidioma = idioma;
}

void cMDIPadral::InicializarContadores() {
    cGeneral general;
    general.mdbnamewrite = estado_.RutaBDModificacion;
    NUMDECLA = general.NumeroDeclaraciones();
}

void cMDIPadral::LeerFechaMinimaMaxima() {
    cGeneral general;
    general.mdbnameread = estado_.RutaBDLectura;
    std::array<qint32, 3> fechas{};
    general.DameFechaMinimaMaxima(fechas);
    FECMIN = fechas[0];
    FECMAX = fechas[1];
    FECDECMIN = fechas[2];
}

void cMDIPadral::LeerIdioma() {
    cGeneral general;
    general.mdbnameread = estado_.RutaBDModificacion;
    idi_ = general.DameIdioma();
}

void cMDIPadral::ModificarIdioma(const QString& idioma) {
    cGeneral general;
    general.mdbnameread = estado_.RutaBDModificacion;
    general.CambiarIdioma(idioma);
}

void cActOnline::ObtenerURLAct(const QString& rutaBDLectura) {
    cGeneral general;
    general.mdbnameread = rutaBDLectura;
    URLAct = general.URLAct();
}

void cActOnline::LeerActOnline(const QString& rutaBDModificacion) {
    cGeneral general;
    general.mdbnameread = rutaBDModificacion;
    ActOnline = general.ObtenerActOnline();
}

void cActOnline::GuardarActOnline(const QString& rutaBDModificacion) const {
    cGeneral general;
    general.mdbnameread = rutaBDModificacion;
    general.GuardarActOnline(ActOnline);
}

EstadoCompartido::EstadoCompartido(Avisador& avisadorDado, Reloj& relojDado)
    : avisador(avisadorDado),
      reloj(relojDado),
      mdi(*this),
      fecha(textos),
      catalogo(RutaBDLectura, DesplazamientoIdioma) {}

EstadoCompartido::~EstadoCompartido() = default;

void EstadoCompartido::Avisar(const QString& texto, const QString& titulo) const {
    avisador.Mostrar({texto, titulo, Icono::Informacion, Botones::Aceptar});
}

bool EstadoCompartido::Preguntar(const QString& texto, const QString& titulo) const {
    return avisador.Mostrar({texto, titulo, Icono::Exclamacion, Botones::AceptarCancelar}) ==
           Respuesta::Aceptar;
}

void EstadoCompartido::AvisarNifNoValido() const { Avisar(545, 158); }

bool EstadoCompartido::ValidaNifCif(const QString& nif) {
    const auto comun = std::make_shared<SvrBaseComunLib::cMiscelaneos>();
    ObjComun = comun;
    const bool valido = comun->ValidaNifCif(nif);
    ObjComun.reset();
    return valido;
}

}  // namespace padral
