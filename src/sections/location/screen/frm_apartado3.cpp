#include "sections/location/screen/frm_apartado3.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QKeyEvent>
#include <QRadioButton>

#include "sections/location/section3_rules.h"

namespace padral {

namespace {

bool esIntro(const QEvent* evento) {
    if (evento->type() != QEvent::KeyPress) return false;
    const int tecla = static_cast<const QKeyEvent*>(evento)->key();
    return tecla == Qt::Key_Return || tecla == Qt::Key_Enter;
}

}  // namespace

void FrmApartado3::Cargar() {
    Anadir_captions();
    CargarListas();
    CargarCombos();
    PresentarDatos();
    ActualizarEstadoControles();
    apartado_.Modificaciones = false;
}

bool FrmApartado3::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto == cmbEpigrafe_->view()) {
        if (evento->type() == QEvent::Show) activo_ = true;
        return false;
    }
    for (std::size_t i = 0; i < optResidente_.size(); ++i)
        if (objeto == optResidente_[i]) return filtrarOpcion(i, evento);
    for (auto* combo : {cmbEpigrafe_, cmbDescFormaJuridica_})
        if (objeto == combo && esIntro(evento)) {
            pulsarIntro(combo);
            return true;
        }
    if (qobject_cast<QCheckBox*>(objeto) && esIntro(evento)) {
        focusNextPrevChild(true);
        return true;
    }
    return PantallaApartado::eventFilter(objeto, evento);
}

bool FrmApartado3::filtrarOpcion(std::size_t i, QEvent* evento) {
    if (evento->type() == QEvent::FocusIn)
        enfocarResidente(i, static_cast<QFocusEvent*>(evento)->reason());
    if (evento->type() == QEvent::FocusOut) {
        resaltar(i, false);
        // The toolkit takes the stop from the other option, answered or not.
        ponerParadas();
    }
    if (!esIntro(evento)) return false;
    focusNextPrevChild(true);
    return true;
}

bool FrmApartado3::ValidarResidente() {
    if (!apartado_.ResidenteKelmaria.vacio()) return true;
    estado_.Avisar(168, 125);
    return false;
}

bool FrmApartado3::ValidarDatos() {
    const auto* regla = PrimeraReglaRota({apartado_, cmbEpigrafe_->currentIndex() >= 0,
                                          txtDescripcionActividad_->text(), txtSinEpigrafe_->text(),
                                          declaracion_.general.Causa1});
    if (!regla) return true;
    estado_.Avisar(regla->texto, TituloReglasApartado3);
    if (auto* campo = findChild<QWidget*>(QString::fromUtf16(regla->foco)))
        campo->setFocus(Qt::OtherFocusReason);
    return false;
}

}  // namespace padral
