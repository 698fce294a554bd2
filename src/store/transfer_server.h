#pragma once
// Carries an older store into the present layout.

#include <QString>

#include "store/busy_timeout.h"

namespace padral::SvrDPadral {

class cTraspaso {
public:
    /// The declarations file.
    QString mdbmod;
    /// The data folder.
    QString mdbPath;
    /// Milliseconds that a file locked by another program is waited for.
    int busyTimeout = store::BusyTimeoutMs;

    /// Carries out the migration; true when the program must stop. A file that is missing is left
    /// to the first operation that needs it. Throws padral::Fallo for a file that is damaged, of
    /// another program, or of a newer layout; such a file stays as it is.
    bool Traspaso() const;
};

}  // namespace padral::SvrDPadral
