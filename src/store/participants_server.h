#pragma once
// An auxiliary copy of the participants of one declaration, for the search of their list.

#include <QString>
#include <array>

#include "store/busy_timeout.h"
#include "store/row.h"

namespace padral::SvrVuelco {

/// Criteria by column of the participants list 1 to 5: identifier from which on, start of name,
/// of street, of municipality, percentage from which on; element 0 is not used.
using CriteriosParticipes = std::array<QString, 6>;

class cDeclaSvr {
public:
    QString mdbname;
    /// Milliseconds that a file locked by another program is waited for.
    int busyTimeout = store::BusyTimeoutMs;

    /// Replaces the whole auxiliary list of the declaration by the rows (20 values each, in the
    /// order of the participant's record).
    void InsertarParticipes(qint32 csde, const Tabla& datos) const;
    /// The auxiliary rows that meet all criteria that are not empty. `orden` is the column of the
    /// sort, "0" the order of insertion; `tipoOrden` "ASC" or "DESC". Returns the number of rows.
    QString DameParticipesAux(qint32 csde, const CriteriosParticipes& criterios, Tabla& resultado,
                              const QString& orden, const QString& tipoOrden) const;
};

}  // namespace padral::SvrVuelco
