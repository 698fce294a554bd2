#pragma once
// The rules of the general data among themselves.

#include <functional>
#include <optional>
#include <span>

#include "declaration/general_data.h"

namespace padral {

/// One rule: when it is broken, its message and title, and where the focus goes.
struct ReglaGeneral {
    int numero;  ///< order of the check, from 1
    bool (*rota)(const cDatosGenerales&);
    int texto;
    int titulo;
    const char16_t* foco;  ///< control that gets the focus, u"" for none
    bool pestanaModif;     ///< the tab of the change of identity comes to the front
};

/// The rules of `ValidarCausas` in their order; only the first broken one is told.
std::span<const ReglaGeneral> ReglasCausas();
/// The first broken rule, nullptr when none is.
const ReglaGeneral* PrimeraCausaRota(const cDatosGenerales& general);

/// An identifier of the screen that the common server refuses.
struct NifRechazado {
    const char16_t* foco;
    bool pestanaModif;
};
/// The first identifier that `valida` refuses: the previous one, the representative's and, unless
/// the request is "A", the declarant's. Empty ones are not asked.
std::optional<NifRechazado> PrimerNifRechazado(const cDatosGenerales& general,
                                               const std::function<bool(const QString&)>& valida);

}  // namespace padral
