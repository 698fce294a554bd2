#pragma once
// Carries an older store into the present layout, and its sort keys to the present rules.

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

    /// Carries out the migration, with a copy of the older file kept beside it. True when the
    /// program must stop; it never must, the run goes on with the file as it is now. A file that is
    /// missing is left to the first operation that needs it. Throws padral::Fallo for a file that
    /// is damaged, of another program or of a newer layout, or that cannot be carried over; such a
    /// file stays as it is.
    bool Traspaso() const;
};

}  // namespace padral::SvrDPadral
