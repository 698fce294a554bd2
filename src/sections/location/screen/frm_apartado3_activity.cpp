// Activity and legal form: a code, a list and a free description each.

#include <QAbstractItemView>
#include <algorithm>

#include "sections/location/screen/frm_apartado3.h"

namespace padral {

namespace {

constexpr int TextoSinActividad = 664;
/// The free legal form that was emptied gives its row back under this name, whatever the language.
const QString FilaFormaLibre = QStringLiteral("OTROS");

/// A number as it is written here: digits, which points or a comma may divide.
bool esNumerico(const QString& texto) {
    const auto esCifra = [](QChar c) { return c >= u'0' && c <= u'9'; };
    return std::ranges::any_of(texto, esCifra) && std::ranges::all_of(texto, [&](QChar c) {
               return esCifra(c) || c == u'.' || c == u',';
           });
}

}  // namespace

bool FrmApartado3::sinEpigrafe() const { return apartado_.ActivEcon == ActividadSinEpigrafe; }

void FrmApartado3::conectarActividad() {
    connect(cmbEpigrafe_, &QComboBox::activated, this, [this] {
        if (activo_) elegirEpigrafe();
    });
    connect(cmbDescFormaJuridica_, &QComboBox::activated, this, [this] {
        if (activo_) elegirFormaJuridica();
    });
    for (auto* combo : {cmbEpigrafe_, cmbDescFormaJuridica_}) combo->installEventFilter(this);
    cmbEpigrafe_->view()->installEventFilter(this);
    const auto alSalir = [this](CampoTexto* campo, void (FrmApartado3::*dejar)()) {
        guardia_.Registrar(campo, [this, dejar] {
            (this->*dejar)();
            return true;
        });
    };
    alSalir(txtDescripcionActividad_, &FrmApartado3::dejarCodigo);
    alSalir(txtSinEpigrafe_, &FrmApartado3::dejarSinEpigrafe);
    alSalir(txtOtros_, &FrmApartado3::dejarOtros);
}

void FrmApartado3::pulsarIntro(CajaCombo* combo) {
    const bool epigrafe = combo == cmbEpigrafe_;
    const bool elegido =
        !combo->currentText().isEmpty() && (epigrafe ? elegirEpigrafe() : elegirFormaJuridica());
    if (!elegido)
        focusNextPrevChild(true);
    else if (epigrafe && sinEpigrafe())
        txtSinEpigrafe_->setFocus(Qt::OtherFocusReason);
    else if (!epigrafe && apartado_.CodigoFormaJuridica != FormaJuridicaOtra)
        txtAnagrama_->setFocus(Qt::OtherFocusReason);
}

bool FrmApartado3::elegirEpigrafe() {
    const QString epigrafe = cmbEpigrafe_->currentText();
    if (epigrafe == apartado_.ListaEpigrafe) return false;
    const bool ultimo = cmbEpigrafe_->currentIndex() == cmbEpigrafe_->count() - 1;
    apartado_.ListaEpigrafe = ultimo ? txtSinEpigrafe_->text() : epigrafe;
    apartado_.ActivEcon = estado_.catalogo.ObtenerCodigoEpigrafe(epigrafe);
    cambiado();
    return true;
}

// Here the choice acts as if the user had made it.
void FrmApartado3::elegirUltimoEpigrafe() {
    cmbEpigrafe_->setCurrentIndex(cmbEpigrafe_->count() - 1);
    if (activo_) elegirEpigrafe();
}

void FrmApartado3::ponerCodigo(const QString& codigo) {
    apartado_.ActivEcon = codigo;
    apartado_.ListaEpigrafe = estado_.catalogo.ObtenerDescripcionEpigrafe(codigo);
    const QString& epigrafe = apartado_.ListaEpigrafe;
    if (!epigrafe.isEmpty() && epigrafe != Texto(TextoSinActividad)) return;
    apartado_.ActivEcon = ActividadSinEpigrafe;
    elegirUltimoEpigrafe();
    apartado_.ListaEpigrafe.clear();
}

void FrmApartado3::dejarCodigo() {
    const QString codigo = txtDescripcionActividad_->text().trimmed();
    if (codigo == apartado_.ActivEcon) return;
    activo_ = true;
    if (esNumerico(codigo)) {
        ponerCodigo(codigo);
    } else {
        txtDescripcionActividad_->Presentar(ActividadSinEpigrafe);
        elegirUltimoEpigrafe();
        apartado_.ListaEpigrafe.clear();
    }
    cambiado();
    activo_ = false;
    if (sinEpigrafe()) txtSinEpigrafe_->setFocus(Qt::OtherFocusReason);
}

void FrmApartado3::dejarSinEpigrafe() {
    const QString descripcion = txtSinEpigrafe_->text();
    if (!sinEpigrafe() || !activo_ || descripcion == apartado_.ListaEpigrafe) return;
    apartado_.ListaEpigrafe = descripcion;
    if (descripcion.isEmpty()) txtDescripcionActividad_->Presentar(QString());
    cambiado();
}

bool FrmApartado3::elegirFormaJuridica() {
    const QString forma = cmbDescFormaJuridica_->currentText();
    if (forma == apartado_.DescripcionFormaJuridica) return false;
    apartado_.DescripcionFormaJuridica = forma;
    apartado_.CodigoFormaJuridica =
        ValorNumerico(estado_.catalogo.ObtenerCodigoFormaJuridica(forma));
    cambiado();
    return true;
}

void FrmApartado3::dejarOtros() {
    const QString forma = txtOtros_->text();
    if (forma == apartado_.DescripcionFormaJuridica) return;
    const int ultima = cmbDescFormaJuridica_->count() - 1;
    apartado_.DescripcionFormaJuridica = forma;
    if (forma.isEmpty()) {
        cmbDescFormaJuridica_->setItemText(ultima, FilaFormaLibre);
        cmbDescFormaJuridica_->setCurrentIndex(-1);
        numFormaJuridica_->clear();
        apartado_.CodigoFormaJuridica = 0;
    } else {
        cmbDescFormaJuridica_->setItemText(ultima, forma);
        cmbDescFormaJuridica_->setCurrentIndex(ultima);
    }
    cambiado();
}

}  // namespace padral
