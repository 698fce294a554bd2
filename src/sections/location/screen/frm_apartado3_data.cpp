// Section 3 from the record to its controls.

#include <QButtonGroup>
#include <QRadioButton>

#include "sections/location/screen/frm_apartado3.h"
#include "sections/location/screen/frm_apartado3_tables.h"

namespace padral {

namespace {

const QString Marca = QStringLiteral("X");

/// Disabled and grey, or enabled in the normal colours.
void abrirCampo(QLineEdit* campo, bool abierto) {
    campo->setEnabled(abierto);
    if (abierto)
        DesbloquearCampo(campo);
    else
        BloquearCampo(campo);
}

bool responde(const Letra& letra, const char16_t* valor) {
    return letra.recortado() == QString::fromUtf16(valor);
}

}  // namespace

// A catalogue without the lists of addresses is told here as in section 2.
void FrmApartado3::CargarListas() {
    const auto& catalogo = estado_.catalogo;
    catalogo.ListaSiglas();
    catalogo.ListaProvincias();
    catalogo.ListaMunicipios();
}

void FrmApartado3::CargarCombos() {
    const auto& catalogo = estado_.catalogo;
    cmbEpigrafe_->clear();
    cmbEpigrafe_->addItems(catalogo.Epigrafes() + catalogo.EpigrafeSinActividad());
    cmbDescFormaJuridica_->clear();
    cmbDescFormaJuridica_->addItems(OrdenFormasJuridicas(catalogo.FormasJuridicas(),
                                                         apartado_.DescripcionFormaJuridica,
                                                         apartado_.CodigoFormaJuridica));
    // The toolkit chooses the first row that comes.
    for (auto* combo : {cmbEpigrafe_, cmbDescFormaJuridica_}) combo->setCurrentIndex(-1);
}

void FrmApartado3::PosicionarDescripcion(CajaCombo* combo, const QString& texto) {
    combo->setCurrentIndex(-1);
    activo_ = false;
    for (int i = 0; i < combo->count(); ++i)
        if (combo->itemText(i) == texto) {
            combo->setCurrentIndex(i);
            break;
        }
    activo_ = true;
}

void FrmApartado3::PresentarDatos() {
    activo_ = false;
    presentarResidente();
    numPorcenIVA_->Presentar(apartado_.PorcenDeduccion);
    mskFechaInicio_->Presentar(estado_.fecha.LongToString(apartado_.FechaInicio()));
    presentarActividad();
    presentarFormaJuridica();
    if (apartado_.SocPat == Marca) chkSocPat_->setChecked(true);
    if (chkActVenMov_ && apartado_.ActVenMov == Marca) chkActVenMov_->setChecked(true);
    txtAnagrama_->Presentar(apartado_.Anagrama);
    mskFechaCierre_->Presentar(estado_.fecha.LongToStringMMDD(apartado_.FechaCierre));
    presentarParejas();
    presentarCanales();
    activo_ = true;
}

void FrmApartado3::presentarResidente() {
    // Exclusive options cannot be taken back one by one.
    grupoResidente_->setExclusive(false);
    for (std::size_t i = 0; i < optResidente_.size(); ++i)
        optResidente_[i]->setChecked(esResidencia(i));
    grupoResidente_->setExclusive(true);
    ponerParadas();
}

bool FrmApartado3::esResidencia(std::size_t i) const {
    return responde(apartado_.ResidenteKelmaria, i == 0 ? u"S" : u"N");
}

// Tab comes to the answer, and to both options while there is none.
void FrmApartado3::ponerParadas() {
    for (std::size_t i = 0; i < optResidente_.size(); ++i)
        optResidente_[i]->setFocusPolicy(esResidencia(1 - i) ? Qt::ClickFocus : Qt::StrongFocus);
}

void FrmApartado3::presentarActividad() {
    if (sinEpigrafe()) {
        DesbloquearCampo(txtSinEpigrafe_);
        txtSinEpigrafe_->Presentar(apartado_.ListaEpigrafe);
        txtDescripcionActividad_->Presentar(apartado_.ActivEcon);
        cmbEpigrafe_->setCurrentIndex(cmbEpigrafe_->count() - 1);
        cmbEpigrafe_->setEnabled(false);
        return;
    }
    cmbEpigrafe_->setEnabled(true);
    BloquearCampo(txtSinEpigrafe_);
    txtSinEpigrafe_->Presentar(QString());
    txtDescripcionActividad_->Presentar(apartado_.ActivEcon);
    PosicionarDescripcion(cmbEpigrafe_, apartado_.ListaEpigrafe);
}

void FrmApartado3::presentarFormaJuridica() {
    const bool otra = apartado_.CodigoFormaJuridica == FormaJuridicaOtra;
    const QString& descripcion = apartado_.DescripcionFormaJuridica;
    // The field comes first: what is hidden hands the focus on to what is there.
    const bool enfocado = window()->focusWidget() == cmbDescFormaJuridica_;
    if (otra) txtOtros_->Presentar(descripcion);
    txtOtros_->setVisible(otra);
    if (otra && enfocado) txtOtros_->setFocus(Qt::OtherFocusReason);
    cmbDescFormaJuridica_->setVisible(!otra);
    if (descripcion.isEmpty()) return;
    // No name of the catalogue has an apostrophe.
    const bool libre = descripcion.contains(u'\'');
    numFormaJuridica_->AsignarValorFormateado(
        libre ? QString() : estado_.catalogo.ObtenerCodigoFormaJuridica(descripcion));
    if (!otra) PosicionarDescripcion(cmbDescFormaJuridica_, descripcion);
}

void FrmApartado3::presentarParejas() {
    using apartado3::Parejas;
    for (std::size_t i = 0; i < Parejas.size(); ++i) {
        const auto& fila = Parejas[i];
        auto marca = MarcaPareja::Ninguna;
        if (responde(apartado_.*fila.miembroSi, fila.valorSi))
            marca = MarcaPareja::Si;
        else if (responde(apartado_.*fila.miembroNo, fila.valorNo))
            marca = MarcaPareja::No;
        parejas_[i]->Presentar(marca);
    }
}

void FrmApartado3::presentarCanales() {
    // The low mark removes any address, but the one number that it names.
    const bool conDireccion = responde(apartado_.Correo, u"A");
    abrirCampo(txtDirCorreo_, conDireccion);
    if (!conDireccion) apartado_.DirCorreo.clear();
    txtDirCorreo_->Presentar(apartado_.DirCorreo);
    for (std::size_t i = 0; i < apartado3::Canales.size(); ++i) {
        const auto miembro = apartado3::Canales[i].numero;
        if (!miembro) continue;
        const auto marca = parejas_[apartado3::PrimerCanal + i]->Marca();
        abrirCampo(numeros_[i], marca != MarcaPareja::Ninguna);
        if (marca == MarcaPareja::Ninguna) apartado_.*miembro = 0;
        numeros_[i]->PresentarSinCero(apartado_.*miembro);
    }
}

void FrmApartado3::ActualizarEstadoControles() { actualizarSiguiente(); }

void FrmApartado3::cambiado() {
    apartado_.Modificaciones = true;
    PresentarDatos();
    ActualizarEstadoControles();
}

}  // namespace padral
