#pragma once

#include <QPushButton>
#include <QWidget>
#include <span>
#include <vector>

#include "core/shared_state.h"

namespace padral {

class ImagenPulsable;

/// A button of the row at the foot of a section screen, with the picture that does the same.
struct BotonApartado {
    const char16_t* boton;   ///< e.g. u"cmdSiguiente"
    const char16_t* imagen;  ///< e.g. u"PicSiguiente"
    const char16_t* dibujo;  ///< artwork, e.g. u"next"
    int texto;               ///< text id of the caption
    int ayuda;               ///< text id of the tool tip
};

/// The row of buttons at the foot of a section screen. The arrow keys go from button to button,
/// past those that are off, and stay at the ends; Enter clicks the one in focus; Esc does nothing.
/// A picture clicks its button and follows it, on and off.
class BotonesApartado : public QWidget {
    Q_OBJECT
public:
    /// `botones` outlives the widget; they stand and are visited in that order. The first group
    /// (`alPrincipio` of them) stands at the left edge, the others at the right one.
    BotonesApartado(std::span<const BotonApartado> botones, std::size_t alPrincipio,
                    QWidget* padre);

    /// Captions, tool tips and accessible names in the language of the run.
    void Anadir_captions(const EstadoCompartido& estado);
    QPushButton* Boton(std::size_t i) const { return botones_[i]; }
    ImagenPulsable* Imagen(std::size_t i) const { return imagenes_[i]; }
    void Habilitar(std::size_t i, bool activo);

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void crear(const BotonApartado& fila);

    std::span<const BotonApartado> tabla_;
    std::vector<QPushButton*> botones_;
    std::vector<ImagenPulsable*> imagenes_;
};

}  // namespace padral
