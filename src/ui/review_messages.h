#pragma once
// What a check of the rules found, told on the screen.

#include "core/review.h"
#include "core/shared_state.h"

class QWidget;

namespace padral {

/// Shows every message of a check in its order; after each the control that it names gets the
/// focus, if `pantalla` has it. Whether there was none.
bool Avisar(const EstadoCompartido& estado, const QWidget& pantalla, const Revision& revision);

}  // namespace padral
