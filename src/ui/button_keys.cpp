#include "ui/button_keys.h"

#include <QKeyEvent>
#include <QPushButton>
#include <algorithm>

namespace padral {

namespace {

/// Steps of an arrow key along the row; 0 for any other key.
int pasoDe(int tecla) {
    if (tecla == Qt::Key_Left || tecla == Qt::Key_Up) return -1;
    return tecla == Qt::Key_Right || tecla == Qt::Key_Down ? 1 : 0;
}

void mover(std::span<QPushButton* const> fila, const QPushButton* desde, int paso) {
    const auto ultimo = static_cast<std::ptrdiff_t>(fila.size());
    auto i = std::find(fila.begin(), fila.end(), desde) - fila.begin() + paso;
    for (; i >= 0 && i < ultimo; i += paso) {
        QPushButton* boton = fila[static_cast<std::size_t>(i)];
        if (!boton->isEnabled() || boton->isHidden()) continue;
        return boton->setFocus(paso > 0 ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    }
}

}  // namespace

// A key held down since the screen before must not leave this one, too.
bool TeclaEntreBotones(std::span<QPushButton* const> fila, QPushButton* boton,
                       const QKeyEvent& evento) {
    if ((evento.modifiers() & ~Qt::KeypadModifier) != 0) return false;
    if (const int paso = pasoDe(evento.key())) {
        mover(fila, boton, paso);
        return true;
    }
    const bool intro = evento.key() == Qt::Key_Return || evento.key() == Qt::Key_Enter;
    if (intro && !evento.isAutoRepeat()) boton->click();
    return intro;
}

}  // namespace padral
