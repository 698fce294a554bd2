#pragma once
// The message boxes of the program on the screen.

#include <functional>

#include "core/message_port.h"

class QWidget;

namespace padral {

/// Shows modal boxes over the window in front. `finEspera` ends the wait cursor before a box
/// shows; `esEuskera` tells the language of the buttons.
class AvisadorPantalla : public Avisador {
public:
    std::function<void()> finEspera;
    std::function<bool()> esEuskera;

    Respuesta Mostrar(const Mensaje& mensaje) override;
};

}  // namespace padral
