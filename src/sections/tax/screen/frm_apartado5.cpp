#include "sections/tax/screen/frm_apartado5.h"

#include <QGroupBox>
#include <QLabel>
#include <algorithm>

#include "core/field_rules.h"
#include "sections/tax/screen/frm_apartado5_tables.h"
#include "sections/tax/tax_rules.h"

namespace padral {

using namespace apartado5;

void frmApartado5::Cargar() {
    Anadir_captions();
    refrescando_ = true;
    Refrescar();
    ActualizarBotones();
    refrescando_ = false;
    apartado_.MODIFAPARTADO5 = false;
}

void frmApartado5::presentar(const FilaPregunta& fila) {
    const auto marca = PresentarParejaSiNo((apartado_.*fila.pregunta->respuesta).texto(), true);
    fila.si->setChecked(marca == MarcaPareja::Si);
    fila.no->setChecked(marca == MarcaPareja::No);
}

void frmApartado5::Refrescar() {
    for (const auto& fila : filas_) presentar(fila);
    const QString& iva = apartado_.IVA.texto();
    // The one that closes goes first: they share one place.
    static constexpr const char16_t* Abre[] = {u"S", u"N"};
    for (std::size_t i = 0; i < paneles_.size(); ++i)
        if (iva != QStringView(Abre[i])) paneles_[i]->hide();
    for (std::size_t i = 0; i < paneles_.size(); ++i)
        if (iva == QStringView(Abre[i])) paneles_[i]->show();
}

void frmApartado5::ActualizarBotones() {
    botones_->Boton(Siguiente)->show();
    actualizarSiguiente();
    if (edicion_ == Edicion::Desde2015 || declaracion_.general.FECHAVIGOR < FinModulos) return;
    apartado_.IRPFOBJETIVA = QStringLiteral("N");
    for (const auto& fila : filas_)
        if (fila.pregunta->respuesta == &R5::IRPFOBJETIVA) esconder(fila);
}

void frmApartado5::esconder(const FilaPregunta& fila) {
    if (fila.marco->isHidden()) return;
    for (QWidget* w : {static_cast<QWidget*>(fila.si), static_cast<QWidget*>(fila.no),
                       static_cast<QWidget*>(fila.etiqueta), fila.marco})
        w->hide();
    cerrarHueco(fila);
}

void frmApartado5::conectarCasillas() {
    for (const auto& fila : filas_) {
        guardia_.Orden(fila.si, [this, &fila] { pulsar(fila, true); });
        guardia_.Orden(fila.no, [this, &fila] { pulsar(fila, false); });
    }
}

void frmApartado5::pulsar(const FilaPregunta& fila, bool si) {
    // The toolkit has turned the box already.
    if (refrescando_) return presentar(fila);
    refrescando_ = true;
    responder(*fila.pregunta, si);
    apartado_.MODIFAPARTADO5 = true;
    Refrescar();
    ActualizarBotones();
    focusNextPrevChild(true);
    refrescando_ = false;
}

void frmApartado5::responder(const Pregunta& pregunta, bool si) {
    Letra& respuesta = apartado_.*pregunta.respuesta;
    const QString valor = si ? QStringLiteral("S") : QStringLiteral("N");
    const bool repetida = respuesta.texto() == valor;
    respuesta = repetida ? Letra() : Letra(valor);
    if (pregunta.respuesta == &R5::IVA) cerrarRamas(si, repetida);
}

void frmApartado5::cerrarRamas(bool si, bool repetida) {
    const auto cerrar = [this](const auto& rama) {
        for (const auto respuesta : rama) apartado_.*respuesta = QStringLiteral("N");
    };
    for (const auto& pulsacion : PulsacionesIva) {
        if (pulsacion.si != si || pulsacion.repetida != repetida) continue;
        if (pulsacion.cierraAfirmativa) cerrar(RamaAfirmativa);
        if (pulsacion.cierraNegativa) cerrar(RamaNegativa);
    }
}

}  // namespace padral
