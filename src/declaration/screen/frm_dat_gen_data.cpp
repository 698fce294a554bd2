// The general data screen between record and controls.

#include <QFrame>
#include <QStackedWidget>

#include "declaration/screen/frm_dat_gen.h"

namespace padral {

void FrmDatGen::Cargar() {
    Anadir_captions();
    const bool pendientes = estado_.ModificacionesPendientes;
    PrepararFormulario();
    PresentaDatos();
    estado_.ModificacionesPendientes = pendientes;
    Presentabotones();
}

QWidget* FrmDatGen::FocoInicial() { return txtDNI_; }

void FrmDatGen::CargarMotivosCambio() {
    cmbMotivoCambio_->clear();
    cmbMotivoCambio_->addItems(estado_.catalogo.MotivosCambio());
}

void FrmDatGen::PrepararFormulario() {
    CargarMotivosCambio();
    presentarPestana(0);
    const QString& origen = estado_.FormularioOrigen;
    // Coming back from a section nothing is loaded: the records hold the work.
    if (origen != QStringLiteral("FrmDecLista") && origen != QStringLiteral("MDIPadral")) return;
    if (declaracion_.Modo == QStringLiteral("A") && declaracion_.csde == 0) {
        declaracion_.InicializarDeclaracion();
        return;
    }
    declaracion_.CargarDeclaracion();
    // A copy is a declaration that the store has not seen.
    if (declaracion_.Modo != QStringLiteral("C")) declaracion_.csde = 0;
}

void FrmDatGen::PresentaDatos() {
    AjustarGenerales(declaracion_);
    txtDNI_->Presentar(general_.DNI);
    txtNombre_->Presentar(general_.NOMBRE);
    txtNumeroArchivo_->Presentar(general_.NumeroArchivo);
    mskFechaDeclaracion_->Presentar(estado_.fecha.LongToString(general_.FECHADECLARACION));
    presentarCasillas();
    presentarIdentidad();
    presentarFechas();
    presentarFirma();
}

void FrmDatGen::presentarIdentidad() {
    const qint16 motivo = general_.MotivoCambio;
    const auto abrir = [](CampoTexto* campo, bool abierto) {
        if (abierto)
            DesbloquearCampo(campo);
        else
            BloquearCampo(campo);
    };
    abrir(txtDNIAnterior_, motivo == 10 || motivo == 30);
    abrir(txtNombreAnterior_, motivo != 0);
    txtDNIAnterior_->Presentar(general_.DNIAnterior);
    txtNombreAnterior_->Presentar(general_.NombreAnterior);
    QStringList items;
    for (int i = 0; i < cmbMotivoCambio_->count(); ++i) items << cmbMotivoCambio_->itemText(i);
    const QString codigo = QString::number(motivo).rightJustified(2, u'0');
    cmbMotivoCambio_->setCurrentIndex(SeleccionarComboPorCodigo(codigo, items));
}

void FrmDatGen::presentarFechas() {
    const auto presentar = [this](CampoFecha* campo, bool abierto, qint32 valor) {
        campo->setEnabled(abierto);
        campo->Presentar(estado_.fecha.LongToString(valor));
    };
    presentar(mskFechaModificacion_, general_.Causa1 == QStringLiteral("M"),
              general_.FechaModificacion());
    presentar(mskFechaConst_, general_.Causa2 == QStringLiteral("A"), general_.FechaConstitucion);
    presentar(mskFechaInscrip_, general_.Causa2 == QStringLiteral("E"), general_.FechaInscripcion);
}

void FrmDatGen::presentarFirma() {
    chkElMismo_->setChecked(general_.FirmaEnCalidadDe == FirmaElMismo);
    const bool elMismo = Marcado(general_.ElMismo);
    if (elMismo) {
        general_.DNIRepresentante.clear();
        general_.NombreRepresentante.clear();
        general_.FirmaEnCalidadDe = FirmaElMismo;
    }
    for (auto* campo : {txtDNIRepresentante_, txtNombreRepresentante_, txtFirmaEnCalidadDe_}) {
        if (elMismo)
            BloquearCampo(campo);
        else
            DesbloquearCampo(campo);
    }
    txtDNIRepresentante_->Presentar(general_.DNIRepresentante);
    txtNombreRepresentante_->Presentar(general_.NombreRepresentante);
    txtFirmaEnCalidadDe_->Presentar(general_.FirmaEnCalidadDe);
}

void FrmDatGen::Presentabotones() {
    for (std::size_t i = 0; i < apartados_.size(); ++i) {
        const QString pantalla = pantallaDe(CasillasApartado()[i]);
        botonesApartado_[i]->setEnabled(apartados_[i]->isChecked() &&
                                        pantallas_.Disponible(pantalla));
    }
    cmdAnterior_->setEnabled(!estado_.ModificacionesPendientes);
    PicAnterior_->setEnabled(cmdAnterior_->isEnabled());
}

void FrmDatGen::presentarPestana(int pestana) {
    const QSignalBlocker sinReaccion(pestana_);
    pestana_->setCurrentIndex(pestana);
    paginas_->setCurrentWidget(pestana == 0 ? fraSolicitud_ : fraModificacion_);
}

void FrmDatGen::enfocar(const QString& nombre) {
    if (nombre.isEmpty()) return;
    auto* control = findChild<QWidget*>(nombre);
    if (!control) return;
    // The tab that holds it comes to the front: what is hidden takes no focus.
    if (fraSolicitud_->isAncestorOf(control)) presentarPestana(0);
    if (fraModificacion_->isAncestorOf(control)) presentarPestana(1);
    control->setFocus(Qt::OtherFocusReason);
}

}  // namespace padral
