// Leaving section 7.

#include "sections/tax/screen/frm_apartado7.h"
#include "sections/tax/section7_rules.h"
#include "ui/review_messages.h"

namespace padral {

bool FrmApartado7::aceptado() {
    if (!Avisar(estado_, *this, ValidarApartado7(apartado_))) return false;
    if (!apartado_.Modificaciones) return true;
    apartado_.Lleno = true;
    apartado_.GuardarDatosAuxiliares();
    estado_.ModificacionesPendientes = true;
    apartado_.Modificaciones = false;
    return true;
}

void FrmApartado7::trasRechazarSiguiente() { Avisar(estado_, *this, {{AvisoSinDatos7}}); }

void FrmApartado7::descartar() {
    if (!apartado_.Modificaciones) return;
    apartado_.RecuperarDatosAuxiliares();
    // The copy was taken while the flag was still up.
    apartado_.Modificaciones = false;
}

}  // namespace padral
