#include "sections/tax/screen/frm_anexo2.h"

#include <QLabel>
#include <QToolButton>
#include <algorithm>

#include "sections/location/address_block.h"
#include "sections/tax/screen/frm_anexo2_tables.h"
#include "ui/fields.h"
#include "ui/number_field.h"
#include "ui/pick_list.h"

namespace padral {

using namespace anexo2;

void frmAnexoII::Cargar() {
    listas_[n(ListaAnexoII::Provincias)]->Cargar(estado_.catalogo.ListaProvincias());
    listas_[n(ListaAnexoII::Municipios)]->Cargar(estado_.catalogo.ListaMunicipios());
    Anadir_captions();
    Refrescar();
    ActualizarBotones();
    anexo_.Modificaciones = false;
}

QWidget* frmAnexoII::FocoInicial() { return textos_.front().first; }

bool frmAnexoII::seContesta(QString DatosAnexoII::*respuesta) const {
    return std::ranges::none_of(Dependencias, [&](const auto& d) {
        return d.respuesta == respuesta && anexo_.*d.pregunta != QStringView(u"S");
    });
}

void frmAnexoII::Refrescar() {
    for (const auto& [campo, propiedad] : textos_) campo->Presentar(anexo_.*propiedad);
    presentarCodigos();
    for (const auto& fila : filas_) {
        const auto propiedad = fila.pregunta->propiedad;
        if (!seContesta(propiedad)) (anexo_.*propiedad).clear();
        presentar(fila);
    }
    presentarPorcentaje();
}

// The municipality of the own province comes from its list, any other one is typed.
void frmAnexoII::presentarCodigos() {
    for (std::size_t i = 0; i < NumCodigos; ++i) {
        const qint32 valor = anexo_.*Codigos[i].propiedad;
        const auto* formato = valor == 0 ? Codigos[i].formatoCero : Codigos[i].formato;
        codigos_[i]->AsignarValorFormateado(QString::number(valor), QString::fromUtf16(formato));
    }
    const bool propia = anexo_.CodigoProvincia == ProvinciaPropia;
    QLineEdit* codigo = codigos_[n(ListaAnexoII::Municipios)];
    QLineEdit* nombre = nombres_[n(ListaAnexoII::Municipios)];
    DesbloquearCampo(propia ? codigo : nombre);
    BloquearCampo(propia ? nombre : codigo);
}

void frmAnexoII::presentar(const Fila& fila) {
    const auto propiedad = fila.pregunta->propiedad;
    const bool abierta = seContesta(propiedad);
    if (fila.etiqueta) fila.etiqueta->setEnabled(abierta);
    for (std::size_t i = 0; i < fila.casillas.size(); ++i) {
        if (!fila.casillas[i]) continue;
        fila.casillas[i]->setChecked(anexo_.*propiedad ==
                                     QStringView(fila.pregunta->respuestas[i].valor));
        fila.casillas[i]->setEnabled(abierta);
    }
}

// Who opts for the special rule proposes no percentage of the general one.
void frmAnexoII::presentarPorcentaje() {
    const bool especial = anexo_.OpcionApl == QStringView(u"O");
    numPorcentaje_->setEnabled(!especial);
    numPorcentaje_->Presentar(especial ? 0 : anexo_.PORCENTAJE);
}

void frmAnexoII::ActualizarBotones() {
    botonesLista_[n(ListaAnexoII::Municipios)]->setEnabled(anexo_.CodigoProvincia ==
                                                           ProvinciaPropia);
    if (declaracion_.general.FECHAVIGOR < FinProrrataEspecial) return;
    for (const auto& fila : filas_)
        if (fila.pregunta->propiedad == &DatosAnexoII::OpcionApl) cerrarProrrata(fila);
}

void frmAnexoII::cerrarProrrata(const Fila& fila) {
    anexo_.OpcionApl.clear();
    presentar(fila);
    presentarPorcentaje();
    fila.etiqueta->hide();
    for (auto* casilla : fila.casillas)
        if (casilla) casilla->hide();
}

void frmAnexoII::conectarCasillas() {
    for (const auto& fila : filas_)
        for (std::size_t i = 0; i < fila.casillas.size(); ++i)
            if (auto* casilla = fila.casillas[i])
                guardia_.Orden(
                    casilla, [this, &fila, i] { pulsar(fila, i); },
                    [casilla] { casilla->toggle(); });
}

// The answers of a question share one property: writing one clears the others.
void frmAnexoII::pulsar(const Fila& fila, std::size_t i) {
    const Casilla& respuesta = fila.pregunta->respuestas[i];
    const QString valor = QString::fromUtf16(respuesta.valor);
    QString& propiedad = anexo_.*fila.pregunta->propiedad;
    const bool escribe = respuesta.alterna ? propiedad != valor : fila.casillas[i]->isChecked();
    propiedad = escribe ? valor : QString();
    cambiado();
    focusNextPrevChild(true);
}

void frmAnexoII::cambiado() {
    anexo_.Modificaciones = true;
    Refrescar();
    ActualizarBotones();
}

}  // namespace padral
