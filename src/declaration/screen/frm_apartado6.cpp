#include "declaration/screen/frm_apartado6.h"

#include <QKeyEvent>

#include "declaration/section6_rules.h"
#include "ui/review_messages.h"

namespace padral {

namespace {

/// By this number the chain knows no section before: it leads to the general data.
constexpr int PrimerApartado = 2;

}  // namespace

// Opening stores nothing: a free description is not the name of its row in the list, and a
// description of the other language is not the one of this.
void frmApartado6::Cargar() {
    Anadir_captions();
    CargarCombo();
    PresentaDatos();
    Presentabotones();
    apartado_.MODIFAPARTADO6 = false;
}

void frmApartado6::PresentaDatos() {
    txtFecha_->Presentar(estado_.fecha.LongToString(apartado_.FECHACESE));
    txtCausa_->Presentar(apartado_.CAUSA == 0 ? QString() : QString::number(apartado_.CAUSA));
    cmbDescripcion_->setCurrentIndex(ObtenerListIndex(apartado_.CAUSA));
    if (causaLibre()) txtSinEpigrafe_->Presentar(SinRelleno(apartado_.DESCRIPCIONCAUSA));
    txtSinEpigrafe_->setVisible(causaLibre());
    txtInscripcion_->Presentar(estado_.fecha.LongToString(apartado_.FechaInscripcion));
}

void frmApartado6::Presentabotones() { actualizarSiguiente(); }

void frmApartado6::conectarCampos() {
    using D6 = DatosApartado6;
    guardia_.Registrar(txtFecha_, [this] { return dejarFecha(txtFecha_, &D6::FECHACESE, false); });
    guardia_.Registrar(txtInscripcion_,
                       [this] { return dejarFecha(txtInscripcion_, &D6::FechaInscripcion, true); });
    guardia_.Registrar(txtSinEpigrafe_, [this] { return dejarCausaLibre(); });
    connect(cmbDescripcion_, &QComboBox::activated, this, [this] { elegirCausa(); });
    txtCausa_->installEventFilter(this);
    botones_->Boton(Cancelar)->installEventFilter(this);
}

bool frmApartado6::dejarFecha(CampoFecha* campo, qint32 DatosApartado6::*miembro,
                              bool puedeFaltar) {
    const QString texto = campo->Texto();
    const qint32 fecha = estado_.fecha.StringToLong(texto);
    if (fecha == apartado_.*miembro) {
        campo->Presentar(texto);
        return true;
    }
    const bool borrada = fecha == 0 && puedeFaltar;
    if (!borrada && !Avisar(estado_, *this, ValidaFecha(texto, estado_))) return false;
    apartado_.*miembro = fecha;
    cambiado();
    return true;
}

void frmApartado6::cambiado() {
    apartado_.MODIFAPARTADO6 = true;
    PresentaDatos();
    Presentabotones();
}

/// From Cancel the arrows go to the button that goes on, past the one that goes back.
bool frmApartado6::esAvance(const QObject* objeto, const QEvent& evento) const {
    if (objeto != botones_->Boton(Cancelar) || evento.type() != QEvent::KeyPress) return false;
    const auto& tecla = static_cast<const QKeyEvent&>(evento);
    if ((tecla.modifiers() & ~Qt::KeypadModifier) != 0) return false;
    return (tecla.key() == Qt::Key_Right || tecla.key() == Qt::Key_Down) &&
           botones_->Boton(Siguiente)->isEnabled();
}

bool frmApartado6::eventFilter(QObject* objeto, QEvent* evento) {
    if (esAvance(objeto, *evento)) {
        botones_->Boton(Siguiente)->setFocus(Qt::TabFocusReason);
        return true;
    }
    // The code comes by the description.
    if (objeto == txtCausa_ && evento->type() == QEvent::FocusIn) {
        cmbDescripcion_->setFocus(Qt::TabFocusReason);
        return true;
    }
    return PantallaApartado::eventFilter(objeto, evento);
}

bool frmApartado6::aceptado() {
    if (!Avisar(estado_, *this, ValidarIntroduccionDatos(apartado_))) return false;
    if (!apartado_.MODIFAPARTADO6) return true;
    if (!Avisar(estado_, *this, Validaciones(apartado_, estado_))) return false;
    if (InscripcionIlegible(apartado_, estado_)) {
        txtInscripcion_->setFocus(Qt::OtherFocusReason);
        return false;
    }
    apartado_.Lleno = true;
    apartado_.GuardarDatosAuxiliares();
    apartado_.MODIFAPARTADO6 = false;
    estado_.ModificacionesPendientes = true;
    return true;
}

void frmApartado6::descartar() {
    if (!apartado_.MODIFAPARTADO6) return;
    apartado_.MODIFAPARTADO6 = false;
    apartado_.RecuperarDatosAuxiliares();
}

void frmApartado6::trasCancelar() {
    declaracion_.IrApartadoAnterior(PrimerApartado, objectName());
    descargar();
}

}  // namespace padral
