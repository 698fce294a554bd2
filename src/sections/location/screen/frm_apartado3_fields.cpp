// Leaving the plain fields of section 3.

#include <algorithm>

#include "sections/location/screen/frm_apartado3.h"
#include "sections/location/screen/frm_apartado3_tables.h"

namespace padral {

namespace {

constexpr int TituloFecha = 151;
constexpr qint32 PorcentajeMaximo = 100;

/// A date typed whole of zeros: it is none, like the empty one.
bool esCero(const QString& texto) {
    return std::ranges::all_of(texto, [](QChar c) { return c == u'0' || c == u'/'; });
}

}  // namespace

void FrmApartado3::registrarNumero(CajaNum* campo, qint32 DatosApartado3::*miembro) {
    guardia_.Registrar(campo, [this, campo, miembro] {
        const qint32 valor = campo->Valor();
        if (valor == apartado_.*miembro) {
            campo->PresentarSinCero(valor);
            return true;
        }
        apartado_.*miembro = valor;
        cambiado();
        return true;
    });
}

void FrmApartado3::registrarTexto(CampoTexto* campo, QString DatosApartado3::*miembro) {
    guardia_.Registrar(campo, [this, campo, miembro] {
        if (campo->text() == apartado_.*miembro) return true;
        apartado_.*miembro = campo->text();
        cambiado();
        return true;
    });
}

void FrmApartado3::conectarCampos() {
    using D3 = DatosApartado3;
    guardia_.Registrar(numPorcenIVA_, [this] { return dejarPorcentaje(); });
    guardia_.Registrar(mskFechaInicio_, [this] { return dejarFechaInicio(); });
    guardia_.Registrar(mskFechaCierre_, [this] { return dejarFechaCierre(); });
    registrarTexto(txtAnagrama_, &D3::Anagrama);
    registrarTexto(txtDirCorreo_, &D3::DirCorreo);
    for (std::size_t i = 0; i < numeros_.size(); ++i)
        if (numeros_[i]) registrarNumero(numeros_[i], apartado3::Canales[i].numero);
}

bool FrmApartado3::dejarPorcentaje() {
    const qint32 porcentaje = numPorcenIVA_->Valor();
    if (porcentaje == apartado_.PorcenDeduccion) {
        numPorcenIVA_->Presentar(porcentaje);
        return true;
    }
    if (porcentaje > PorcentajeMaximo) {
        estado_.Avisar(155, 156);
        return false;
    }
    apartado_.PorcenDeduccion = porcentaje;
    cambiado();
    return true;
}

bool FrmApartado3::dejarFechaInicio() {
    auto& fechas = estado_.fecha;
    const QString texto = mskFechaInicio_->Texto();
    const qint32 fecha = esCero(texto) ? 0 : fechas.StringToLong(texto);
    if (fecha == 0) mskFechaInicio_->Presentar(fechas.LongToString(0));
    if (fecha == apartado_.FechaInicio()) return true;
    if (fecha == 0) {
        apartado_.FechaInicio(0);
        apartado_.Modificaciones = true;
        return true;
    }
    const qint32 maxima = estado_.mdi.FECMAX;
    if (fecha > 0 && fecha <= maxima) {
        apartado_.FechaInicio(fecha);
        cambiado();
        return true;
    }
    estado_.Avisar(Texto(667) + fechas.LongToString(maxima) + Texto(668), Texto(TituloFecha));
    return false;
}

bool FrmApartado3::dejarFechaCierre() {
    auto& fechas = estado_.fecha;
    const QString texto = mskFechaCierre_->Texto();
    const qint32 fecha = fechas.StringToLongMMDD(texto);
    // A date that is begun reads as 0, too.
    const bool aMedias = texto != fechas.FecVaciaMMDD() && texto.contains(u'_');
    if (!aMedias && fecha == 0) mskFechaCierre_->Presentar(fechas.FecVaciaMMDD());
    if (!aMedias && fecha == apartado_.FechaCierre) return true;
    if (!aMedias && fecha == 0) {
        apartado_.FechaCierre = 0;
        apartado_.Modificaciones = true;
        return true;
    }
    if (!aMedias && fechas.EsFechaMMDD(texto)) {
        apartado_.FechaCierre = fecha;
        cambiado();
        return true;
    }
    estado_.Avisar(150, TituloFecha);
    return false;
}

}  // namespace padral
