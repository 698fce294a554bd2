// Leaving section 4.

#include "sections/tax/screen/frm_apartado4.h"
#include "sections/tax/screen/frm_apartado4_tables.h"
#include "sections/tax/screen/review_messages.h"
#include "sections/tax/section4_rules.h"

namespace padral {

namespace {

constexpr int NumeroApartado = 4;

}  // namespace

void frmApartado4::conectarBotones() {
    Orden(botones_->Boton(apartado4::Inicio), [this] { inicio(); });
    Orden(botones_->Boton(apartado4::Cancelar), [this] { cancelar(); });
    Orden(botones_->Boton(apartado4::Anterior), [this] { anterior(); });
    Orden(botones_->Boton(apartado4::Siguiente), [this] { siguiente(); });
}

bool frmApartado4::aceptado() {
    const qint32 fechaVigor = declaracion_.general.FECHAVIGOR;
    if (!Avisar(estado_, *this, ValidarIntroduccionDatos(apartado_, fechaVigor))) return false;
    if (!apartado_.MODIFAPARTADO4) return true;
    const auto valida = [this](const QString& nif) { return estado_.ValidaNifCif(nif); };
    if (!Avisar(estado_, *this, Validaciones(apartado_, valida))) return false;
    apartado_.Lleno = true;
    apartado_.GuardarDatosAuxiliares();
    estado_.ModificacionesPendientes = true;
    apartado_.MODIFAPARTADO4 = false;
    return true;
}

void frmApartado4::siguiente() {
    if (!aceptado()) return;
    if (declaracion_.IrApartadoSiguiente(NumeroApartado)) pantallas_.Descargar(objectName());
}

void frmApartado4::anterior() {
    if (aceptado()) volver();
}

void frmApartado4::inicio() {
    if (!aceptado()) return;
    // The general data tell by this name that there is nothing to load.
    estado_.FormularioOrigen = objectName();
    pantallas_.Mostrar(QStringLiteral("FrmDatGen"));
    pantallas_.Descargar(objectName());
}

void frmApartado4::cancelar() {
    if (apartado_.MODIFAPARTADO4) {
        apartado_.MODIFAPARTADO4 = false;
        apartado_.RecuperarDatosAuxiliares();
    }
    volver();
}

void frmApartado4::volver() {
    const QString nombre = objectName();
    declaracion_.IrApartadoAnterior(NumeroApartado, nombre);
    pantallas_.Descargar(nombre);
}

}  // namespace padral
