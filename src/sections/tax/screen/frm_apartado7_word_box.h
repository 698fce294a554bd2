#pragma once

#include "ui/answer_box.h"

namespace padral {

/// A box with a word of its own, "SI", before which the arrow appears. The blanks of its captions
/// make room for the arrow in one font only: the box draws the word always at the same place.
class CasillaConPalabra : public CasillaRespuesta {
public:
    using CasillaRespuesta::CasillaRespuesta;

    /// The word with its blanks, and with the arrow while the box has the focus. The word begins
    /// `sitio` pixels from the left edge, where there must be room for square and arrow.
    void PonerPalabra(const QString& palabra, const QString& conFlecha, int sitio);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    int anchura(const QString& rotulo) const;

    int finPalabra_ = 0;
};

}  // namespace padral
