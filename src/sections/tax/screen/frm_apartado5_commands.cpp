// Leaving section 5.

#include "sections/tax/screen/frm_apartado5.h"
#include "sections/tax/section5_rules.h"
#include "ui/review_messages.h"

namespace padral {

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

void frmApartado5::descartar() {
    if (!apartado_.MODIFAPARTADO5) return;
    apartado_.RecuperarDatosAuxiliares();
    // The copy was taken while the flag was still up.
    apartado_.MODIFAPARTADO5 = false;
}

}  // namespace padral
