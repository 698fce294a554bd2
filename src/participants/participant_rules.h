#pragma once
// What makes a participant complete: one that is not is never accepted.

#include <span>

#include "core/nif.h"
#include "core/review.h"
#include "participants/participant.h"

namespace padral {

/// Participants that a declaration may have, deleted ones not counted.
constexpr int MaximoParticipes = 100;

/// One rule: when it is broken, its message, and the control that gets the focus.
struct ReglaParticipe {
    int numero;  ///< order of the check, from 1
    bool (*rota)(const DatosParticipe&, const ServidorNif&);
    AvisoRegla aviso;
    const char16_t* focoPropia =
        nullptr;  ///< the control in the territory's own province, if other
};

/// The rules in their order; only the first broken one is told.
std::span<const ReglaParticipe> ReglasParticipe();
/// A participant as the record has it: at most one message. `valida` is asked for an identifier
/// that is not empty.
Revision RevisarParticipe(const DatosParticipe& participe, const ServidorNif& valida);

}  // namespace padral
