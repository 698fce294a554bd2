#pragma once
// The rules that compare the sections of a declaration with one another, before it is saved or
// printed.

#include <optional>
#include <span>

#include "core/nif.h"
#include "core/review.h"
#include "declaration/declaration.h"

namespace padral {

/// What a rule reads.
struct Cruce {
    const cDeclaraciones& d;
    int clase;          ///< of the identifier's first letter, see ClasificarNif
    qint32 fechaVigor;  ///< effective date that the rules work out, 0 none
};

/// One rule: when it is broken, its message and title, and the control that gets the focus.
struct ReglaCruzada {
    int numero;  ///< order of the check; 7, 8 and 50 are checks of their own
    bool (*rota)(const Cruce&);
    int texto;
    int titulo;
    const char16_t* foco = u"";
};

/// Rules 1 to 6, before the marked sections are looked into.
std::span<const ReglaCruzada> ReglasPrimeras();
/// Rules 9 to 22, general data against sections.
std::span<const ReglaCruzada> ReglasGenerales();
/// Rules 23 to 40, requests against tax situation; only with both sections marked.
std::span<const ReglaCruzada> ReglasSolicitudes();
/// Rules 41 to 49.
std::span<const ReglaCruzada> ReglasFinales();

/// What the whole check found. Messages of a check that passes only inform.
struct ResultadoCruce {
    bool pasa = true;
    Revision revision;
    std::optional<qint32> fechaVigor;  ///< worked out, unless a rule before it was broken
};

/// All of it in the binding order; the first broken rule ends it.
ResultadoCruce ValidarApartados(const cDeclaraciones& d, const ServidorNif& valida);
/// Marked sections that hold nothing, and the entry checks of sections 4 and 5.
Revision ValidarApartadosMarcados(const cDeclaraciones& d);
/// Identifiers of the participants, and how many there are: this only informs.
Revision ValidarNifsParticipes(const cDeclaraciones& d, const ServidorNif& valida);

/// Effective date by type: of the change, of the cessation, else the start of the activity.
qint32 FechaVigorDe(const cDeclaraciones& d);

/// Sum of the shares of the participants that are not deleted.
double SumaDePorcentajes(const Participantes& participantes);
/// That sum: 100 for one or two participants, near it for more.
Revision ValidarPorcentajes(const Participantes& participantes);

}  // namespace padral
