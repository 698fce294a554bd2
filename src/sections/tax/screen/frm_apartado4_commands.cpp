// Leaving section 4.

#include "sections/tax/screen/frm_apartado4.h"
#include "sections/tax/section4_rules.h"
#include "ui/review_messages.h"

namespace padral {

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

void frmApartado4::descartar() {
    if (!apartado_.MODIFAPARTADO4) return;
    apartado_.MODIFAPARTADO4 = false;
    apartado_.RecuperarDatosAuxiliares();
}

}  // namespace padral
