// The words of Annex II in the language of the run.

#include <QGroupBox>
#include <QLabel>
#include <QToolButton>

#include "sections/tax/screen/frm_anexo2.h"
#include "sections/tax/screen/frm_anexo2_tables.h"
#include "ui/number_field.h"
#include "ui/pick_list.h"

namespace padral {

using namespace anexo2;

namespace {

constexpr int TituloAnexoII = 705, Propuesto = 810, TextoBoton = 97, Flecha = 213;

/// Yes and no stand above their columns.
bool bajoCabecera(const Casilla& respuesta) {
    return respuesta.texto == Si || respuesta.texto == No;
}

}  // namespace

void frmAnexoII::Anadir_captions() {
    setWindowTitle(Texto(TituloAnexoII));
    for (const auto& [marco, id] : marcos_) marco->setTitle(Texto(id));
    for (const auto& [etiqueta, id] : etiquetas_) etiqueta->setText(Texto(id));
    lbl15_->setText(QStringLiteral("% ") + Texto(Propuesto));
    for (const auto& [campo, titulo, texto] : nombrados_)
        campo->setAccessibleName(titulo == 0 ? Texto(texto)
                                             : Texto(titulo) + QStringLiteral(": ") + Texto(texto));
    for (const auto& fila : filas_) rotularFila(fila);
    for (std::size_t i = 0; i < NumCodigos; ++i) {
        const QString& ayuda = Texto(Codigos[i].ayuda);
        botonesLista_[i]->setText(Texto(TextoBoton));
        botonesLista_[i]->setToolTip(ayuda);
        botonesLista_[i]->setAccessibleName(ayuda);
        listas_[i]->setAccessibleName(codigos_[i]->accessibleName());
    }
    botones_->Anadir_captions(estado_);
}

// A box says its question and what it answers to it. One without a caption of its own shows an
// arrow where the focus is.
void frmAnexoII::rotularFila(const Fila& fila) {
    const QString pregunta = Texto(fila.pregunta->etiqueta.texto) + QStringLiteral(": ");
    for (std::size_t i = 0; i < fila.casillas.size(); ++i) {
        if (!fila.casillas[i]) continue;
        const Casilla& respuesta = fila.pregunta->respuestas[i];
        const QString& texto = Texto(respuesta.texto);
        if (bajoCabecera(respuesta))
            fila.casillas[i]->PonerRotulos(QString(), Texto(Flecha));
        else
            fila.casillas[i]->PonerRotulos(texto, texto);
        fila.casillas[i]->setAccessibleName(pregunta + texto);
    }
}

}  // namespace padral
