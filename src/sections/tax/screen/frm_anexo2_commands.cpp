// Leaving Annex II.

#include "sections/tax/annex2_rules.h"
#include "sections/tax/screen/frm_anexo2.h"
#include "ui/number_field.h"
#include "ui/review_messages.h"

namespace padral {

bool frmAnexoII::aceptado() {
    const ServidorNif validaNif = [this](const QString& nif) { return estado_.ValidaNifCif(nif); };
    const ReglaAnexoII* rota =
        ValidarAnexoII({anexo_, codigos_[n(ListaAnexoII::Provincias)]->Valor(),
                        chkRevocacion_->isChecked(), numPorcentaje_->text(), validaNif});
    if (rota) {
        Avisar(estado_, *this, {{rota->aviso}});
        if (rota->lista != ListaAnexoII::Ninguna) abrir(rota->lista);
        return false;
    }
    if (!anexo_.Modificaciones) return true;
    anexo_.Lleno = true;
    anexo_.RellenarTablaAuxiliar();
    estado_.ModificacionesPendientes = true;
    anexo_.Modificaciones = false;
    return true;
}

void frmAnexoII::descartar() {
    if (!anexo_.Modificaciones) return;
    anexo_.ObtenerDatosTablaAuxiliar();
    // The copy was taken while the flag was still up.
    anexo_.Modificaciones = false;
}

}  // namespace padral
