// Leaving the fields of the general data screen.

#include "declaration/screen/frm_dat_gen.h"

namespace padral {

namespace {

constexpr int TituloFecha = 465;

}  // namespace

/// A date that may be empty and lies between FECMIN and FECMAX otherwise.
struct FrmDatGen::FechaConRango {
    CampoFecha* campo;
    std::function<qint32()> valor;
    std::function<void(qint32)> guardar;
    int noEsFecha;
    /// Before the highest date, between it and the lowest, behind that.
    std::array<int, 3> fueraDeRango;
};

void FrmDatGen::cambiado() {
    estado_.ModificacionesPendientes = true;
    PresentaDatos();
    Presentabotones();
}

void FrmDatGen::registrarTexto(CampoTexto* campo, QString DatosGeneralesStore::*miembro) {
    guardia_.Registrar(campo, [this, campo, miembro] {
        if (campo->text() == general_.*miembro) return true;
        general_.*miembro = campo->text().toUpper();
        cambiado();
        return true;
    });
}

void FrmDatGen::registrarNif(CampoTexto* campo, QString DatosGeneralesStore::*miembro) {
    guardia_.Registrar(campo, [this, campo, miembro] { return dejarNif(campo, miembro); });
}

bool FrmDatGen::dejarNif(CampoTexto* campo, QString DatosGeneralesStore::*miembro) {
    if (campo->text() == general_.*miembro) return true;
    const QString nif = campo->text().trimmed();
    if (!nif.isEmpty() && !estado_.ValidaNifCif(nif)) {
        estado_.AvisarNifNoValido();
        campo->Presentar(general_.*miembro);
        return false;
    }
    general_.*miembro = nif;
    if (campo == txtDNI_) declaracion_.MarcarAnexoPorCese();
    cambiado();
    return true;
}

bool FrmDatGen::dejarFirma() {
    const QString firma = txtFirmaEnCalidadDe_->text().toUpper();
    if (firma == general_.FirmaEnCalidadDe) return true;
    if (firma.trimmed() == FirmaElMismo) {
        // The box says it, not the text.
        estado_.Avisar(546, 480);
        return false;
    }
    general_.FirmaEnCalidadDe = firma;
    cambiado();
    return true;
}

bool FrmDatGen::dejarFechaDeclaracion() {
    const qint32 fecha = estado_.fecha.StringToLong(mskFechaDeclaracion_->Texto());
    if (fecha == general_.FECHADECLARACION) return true;
    const auto& mdi = estado_.mdi;
    if (fecha >= mdi.FECDECMIN && fecha <= mdi.FECMAX && fecha > 0) {
        general_.FECHADECLARACION = fecha;
        cambiado();
        return true;
    }
    auto& f = estado_.fecha;
    estado_.Avisar(Texto(657) + f.LongToString(mdi.FECDECMIN) + Texto(658) +
                       f.LongToString(mdi.FECMAX) + Texto(659),
                   Texto(517));
    return false;
}

bool FrmDatGen::dejarFecha(const FechaConRango& datos) {
    const qint32 fecha = estado_.fecha.StringToLong(datos.campo->Texto());
    if (fecha == datos.valor()) return true;
    const auto& mdi = estado_.mdi;
    if (fecha < 0) {
        estado_.Avisar(datos.noEsFecha, TituloFecha);
        return false;
    }
    if (fecha != 0 && (fecha < mdi.FECMIN || fecha > mdi.FECMAX)) {
        auto& f = estado_.fecha;
        const auto& t = datos.fueraDeRango;
        estado_.Avisar(Texto(t[0]) + f.LongToString(mdi.FECMAX) + Texto(t[1]) +
                           f.LongToString(mdi.FECMIN) + Texto(t[2]),
                       Texto(TituloFecha));
        return false;
    }
    datos.guardar(fecha);
    cambiado();
    return true;
}

void FrmDatGen::elegirMotivo() {
    if (cmbMotivoCambio_->currentIndex() < 0) return;
    const auto codigo = static_cast<qint16>(cmbMotivoCambio_->currentText().left(2).toInt());
    if (codigo == general_.MotivoCambio) return;
    general_.MotivoCambio = codigo;
    cambiado();
}

void FrmDatGen::conectarCampos() {
    using D = DatosGeneralesStore;
    registrarNif(txtDNI_, &D::DNI);
    registrarNif(txtDNIRepresentante_, &D::DNIRepresentante);
    registrarNif(txtDNIAnterior_, &D::DNIAnterior);
    registrarTexto(txtNombre_, &D::NOMBRE);
    registrarTexto(txtNumeroArchivo_, &D::NumeroArchivo);
    registrarTexto(txtNombreRepresentante_, &D::NombreRepresentante);
    registrarTexto(txtNombreAnterior_, &D::NombreAnterior);
    guardia_.Registrar(txtFirmaEnCalidadDe_, [this] { return dejarFirma(); });
    guardia_.Registrar(mskFechaDeclaracion_, [this] { return dejarFechaDeclaracion(); });
    const std::array<FechaConRango, 3> fechas = {{
        {mskFechaModificacion_,
         [this] { return general_.FechaModificacion(); },
         [this](qint32 v) {
             general_.FechaModificacion(v);
             AjustarPorFechaModificacion(declaracion_);
         },
         544,
         {660, 661, 662}},
        {mskFechaConst_,
         [this] { return general_.FechaConstitucion; },
         [this](qint32 v) { general_.FechaConstitucion = v; },
         544,
         {770, 771, 789}},
        {mskFechaInscrip_,
         [this] { return general_.FechaInscripcion; },
         [this](qint32 v) { general_.FechaInscripcion = v; },
         777,
         {774, 771, 789}},
    }};
    for (const auto& datos : fechas)
        guardia_.Registrar(datos.campo, [this, datos] { return dejarFecha(datos); });
    const auto elegir = [this] { elegirMotivo(); };
    guardia_.Registrar(cmbMotivoCambio_, [elegir] {
        elegir();
        return true;
    });
    connect(cmbMotivoCambio_, &QComboBox::activated, this, elegir);
    cmbMotivoCambio_->alPulsarIntro = elegir;
}

}  // namespace padral
