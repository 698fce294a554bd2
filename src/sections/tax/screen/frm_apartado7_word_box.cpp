#include "sections/tax/screen/frm_apartado7_word_box.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace padral {

namespace {

/// Room for the frame of the focus.
constexpr int TrasLaPalabra = 4;

}  // namespace

void CasillaConPalabra::PonerPalabra(const QString& palabra, const QString& conFlecha, int sitio) {
    finPalabra_ = sitio + anchura(palabra);
    PonerRotulos(palabra, conFlecha);
}

int CasillaConPalabra::anchura(const QString& rotulo) const {
    return fontMetrics().horizontalAdvance(rotulo.trimmed());
}

QSize CasillaConPalabra::sizeHint() const {
    return CasillaRespuesta::sizeHint().expandedTo({finPalabra_ + TrasLaPalabra, 0});
}

void CasillaConPalabra::paintEvent(QPaintEvent*) {
    QStyleOptionButton caja;
    initStyleOption(&caja);
    QStyleOptionButton palabra = caja;
    palabra.text = caja.text.trimmed();
    palabra.rect.setLeft(finPalabra_ - anchura(caja.text));
    // The style draws the rest: the square and the frame of the focus.
    caja.text.clear();
    QStylePainter pintor(this);
    pintor.drawControl(QStyle::CE_CheckBox, caja);
    pintor.drawControl(QStyle::CE_CheckBoxLabel, palabra);
}

}  // namespace padral
