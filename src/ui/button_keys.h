#pragma once
// The keys of a row of buttons.

#include <span>

class QKeyEvent;
class QPushButton;

namespace padral {

/// What a key does on `boton`, one of `fila`: the arrows go from button to button, past those that
/// are off or hidden, and stay at the ends; Enter clicks. False: the key is none of them.
bool TeclaEntreBotones(std::span<QPushButton* const> fila, QPushButton* boton,
                       const QKeyEvent& evento);

}  // namespace padral
