// Leaving section 5.

#include "sections/tax/screen/frm_apartado5.h"
#include "sections/tax/screen/frm_apartado5_tables.h"
#include "sections/tax/screen/review_messages.h"
#include "sections/tax/section5_rules.h"

namespace padral {

using namespace apartado5;

namespace {

constexpr int NumeroApartado = 5;

}  // namespace

void frmApartado5::conectarBotones() {
    Orden(botones_->Boton(Inicio), [this] { inicio(); });
    Orden(botones_->Boton(Cancelar), [this] { cancelar(); });
    Orden(botones_->Boton(Anterior), [this] { anterior(); });
    Orden(botones_->Boton(Siguiente), [this] { siguiente(); });
}

void frmApartado5::IrAInicio() { botones_->Boton(Inicio)->click(); }

// A section that nobody touched passes the entry check only.
bool frmApartado5::aceptado() {
    const qint32 fecha = declaracion_.general.FECHAVIGOR;
    const auto entrada = ValidarIntroduccionDatos(apartado_, declaracion_.apartado4, fecha);
    if (!Avisar(estado_, *this, entrada)) return false;
    if (!apartado_.MODIFAPARTADO5) return true;
    if (!Avisar(estado_, *this, DatosValidos(apartado_, fecha))) return false;
    apartado_.APARTADO5LLENO = true;
    apartado_.GuardarDatosAuxiliares();
    estado_.ModificacionesPendientes = true;
    apartado_.MODIFAPARTADO5 = false;
    return true;
}

void frmApartado5::siguiente() {
    if (!aceptado()) return;
    if (declaracion_.IrApartadoSiguiente(NumeroApartado)) pantallas_.Descargar(objectName());
}

void frmApartado5::anterior() {
    if (aceptado()) volver();
}

void frmApartado5::inicio() {
    if (!aceptado()) return;
    // The general data tell by this name that there is nothing to load.
    estado_.FormularioOrigen = objectName();
    pantallas_.Mostrar(QStringLiteral("FrmDatGen"));
    pantallas_.Descargar(objectName());
}

void frmApartado5::cancelar() {
    if (apartado_.MODIFAPARTADO5) {
        apartado_.RecuperarDatosAuxiliares();
        // The copy was taken while the flag was still up.
        apartado_.MODIFAPARTADO5 = false;
    }
    volver();
}

void frmApartado5::volver() {
    const QString nombre = objectName();
    declaracion_.IrApartadoAnterior(NumeroApartado, nombre);
    pantallas_.Descargar(nombre);
}

}  // namespace padral
