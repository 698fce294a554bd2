// Section 4 from the record to its controls, and clicks on its boxes back.

#include "sections/tax/screen/frm_apartado4.h"
#include "sections/tax/screen/frm_apartado4_tables.h"
#include "sections/tax/tax_rules.h"

namespace padral {

using namespace apartado4;

namespace {

QString valorDe(const Solicitud& solicitud, std::size_t i) {
    return QString::fromUtf16(solicitud.respuestas[i].valor);
}

}  // namespace

void frmApartado4::PresentaDatos() {
    for (const auto& fila : filas_)
        for (std::size_t i = 0; i < fila.casillas.size(); ++i)
            if (fila.casillas[i])
                fila.casillas[i]->setChecked(apartado_.*fila.solicitud->propiedad ==
                                             valorDe(*fila.solicitud, i));
    presentarEntidad();
}

void frmApartado4::presentarEntidad() {
    const bool socio = apartado_.IVASOCIO == QStringLiteral("S");
    if (!socio) {
        apartado_.NIF = QString();
        apartado_.NOMBRE = QString();
    }
    txtNIF_->Presentar(SinRelleno(apartado_.NIF));
    txtNombre_->Presentar(SinRelleno(apartado_.NOMBRE));
    for (auto* campo : {txtNIF_, txtNombre_})
        if (socio)
            DesbloquearCampo(campo);
        else
            BloquearCampo(campo);
}

bool frmApartado4::sinModulos() const {
    return edicion_ == Edicion::Hasta2014 && declaracion_.general.FECHAVIGOR >= FinModulos;
}

void frmApartado4::Presentabotones() {
    actualizarSiguiente();
    if (!sinModulos()) return;
    apartado_.IRPFOBJET = QString();
    for (const auto& fila : filas_) {
        if (fila.solicitud->propiedad != &DatosApartado4::IRPFOBJET) continue;
        fila.etiqueta->hide();
        for (auto* casilla : fila.casillas) casilla->hide();
    }
}

void frmApartado4::conectarCasillas() {
    for (const auto& fila : filas_)
        for (std::size_t i = 0; i < fila.casillas.size(); ++i)
            if (auto* casilla = fila.casillas[i])
                guardia_.Orden(
                    casilla, [this, fila, i] { pulsar(fila, i); },
                    [casilla] { casilla->toggle(); });
}

void frmApartado4::pulsar(const Fila& fila, std::size_t i) {
    const CasillaRespuesta* casilla = fila.casillas[i];
    anotar(*fila.solicitud, i, casilla->isChecked());
    CasillaRespuesta* proxima = i + 1 < fila.casillas.size() ? fila.casillas[i + 1] : nullptr;
    if (proxima) proxima->setFocus(Qt::TabFocusReason);
    PresentaDatos();
    Presentabotones();
    // The last box goes on to the next stop, which the answer may have opened or closed.
    if (!proxima) focusNextPrevChild(true);
}

void frmApartado4::anotar(const Solicitud& solicitud, std::size_t i, bool marcada) {
    const Letra valor = marcada ? Letra(valorDe(solicitud, i)) : Letra();
    auto& propiedad = apartado_.*solicitud.propiedad;
    const Letra antes = marcada ? Letra(propiedad.texto().toUpper()) : propiedad;
    if (antes == valor && !solicitud.siempreCambia) return;
    propiedad = valor;
    apartado_.MODIFAPARTADO4 = true;
}

}  // namespace padral
