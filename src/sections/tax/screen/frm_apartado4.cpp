#include "sections/tax/screen/frm_apartado4.h"

#include <QEvent>

#include "sections/tax/screen/frm_apartado4_tables.h"
#include "sections/tax/section4_rules.h"
#include "ui/review_messages.h"

namespace padral {

void frmApartado4::Cargar() {
    Anadir_captions();
    PresentaDatos();
    Presentabotones();
    apartado_.MODIFAPARTADO4 = false;
}

QWidget* frmApartado4::FocoInicial() {
    for (const auto& fila : filas_)
        if (!fila.casillas[0]->isHidden()) return fila.casillas[0];
    return nullptr;
}

// A locked field passes the focus on.
bool frmApartado4::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() == QEvent::FocusIn)
        for (const auto* campo : {txtNIF_, txtNombre_})
            if (objeto == campo && EstaBloqueado(campo))
                botones_->Boton(Cancelar)->setFocus(Qt::OtherFocusReason);
    return PantallaApartado::eventFilter(objeto, evento);
}

void frmApartado4::conectarCampos() {
    for (auto* campo : {txtNIF_, txtNombre_}) campo->installEventFilter(this);
    guardia_.Registrar(txtNIF_, [this] { return dejarNif(); });
    guardia_.Registrar(txtNombre_,
                       [this] { return guardarTexto(txtNombre_, &DatosApartado4::NOMBRE); });
}

bool frmApartado4::dejarNif() {
    const QString texto = txtNIF_->text();
    if (!EstaBloqueado(txtNIF_) && !texto.trimmed().isEmpty()) {
        const auto valida = [this](const QString& nif) { return estado_.ValidaNifCif(nif); };
        if (!Avisar(estado_, *this, NIFValido(texto, valida))) return false;
    }
    return guardarTexto(txtNIF_, &DatosApartado4::NIF);
}

template <int N>
bool frmApartado4::guardarTexto(CampoTexto* campo, TextoFijo<N> DatosApartado4::*propiedad) {
    if (EstaBloqueado(campo)) return true;
    const QString texto = campo->text().toUpper();
    if (TextoFijo<N>(texto) != (apartado_.*propiedad).texto().toUpper()) {
        apartado_.*propiedad = texto;
        apartado_.MODIFAPARTADO4 = true;
    }
    campo->Presentar(texto);
    return true;
}

}  // namespace padral
