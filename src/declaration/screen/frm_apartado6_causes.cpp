// The list of causes and the free one at its end.

#include "core/field_rules.h"
#include "declaration/screen/frm_apartado6.h"
#include "declaration/section6_rules.h"

namespace padral {

namespace {

constexpr int FilaLibre = 66;

}  // namespace

bool frmApartado6::causaLibre() const { return apartado_.CAUSA == CausaLibre; }

void frmApartado6::CargarCombo() {
    cmbDescripcion_->clear();
    cmbDescripcion_->addItems(estado_.catalogo.CausasCese());
    filaLibre_ = cmbDescripcion_->itemText(cmbDescripcion_->count() - 1);
    if (causaLibre()) nombrarFilaLibre(Texto(FilaLibre));
}

void frmApartado6::nombrarFilaLibre(const QString& texto) {
    cmbDescripcion_->setItemText(cmbDescripcion_->count() - 1, texto);
}

void frmApartado6::elegirCausa() {
    const QString causa = cmbDescripcion_->currentText().trimmed().toUpper();
    if (!EsDescripcionDe(apartado_, causa)) {
        apartado_.DESCRIPCIONCAUSA = causa;
        // The code comes by the whole description, which the record cuts.
        apartado_.CAUSA =
            static_cast<qint16>(ValorNumerico(estado_.catalogo.ObtenerCodigoCausa(causa)));
        apartado_.MODIFAPARTADO6 = true;
        // Chosen again, the row means the cause and not what was once written for it.
        if (!causaLibre()) nombrarFilaLibre(filaLibre_);
    }
    PresentaDatos();
    if (causaLibre()) txtSinEpigrafe_->setFocus(Qt::OtherFocusReason);
    declaracion_.MarcarAnexoPorCese();
    // The annex may be what comes next.
    Presentabotones();
}

bool frmApartado6::dejarCausaLibre() {
    const QString causa = txtSinEpigrafe_->text();
    if (!causaLibre()) return true;
    if (causa.isEmpty() || apartado_.DESCRIPCIONCAUSA == causa) {
        PresentaDatos();
        return true;
    }
    apartado_.DESCRIPCIONCAUSA = causa;
    apartado_.OTRASCAUSAS = causa;
    nombrarFilaLibre(apartado_.DESCRIPCIONCAUSA.vacio() ? filaLibre_ : causa);
    cambiado();
    return true;
}

}  // namespace padral
