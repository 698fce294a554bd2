#pragma once
// Faults of a database file in plain words.

#include <QString>

#include "platform/failure.h"

namespace SQLite {
class Exception;
}

namespace padral::store {

enum class FileFault {
    Missing,   ///< there is no such file
    Unopened,  ///< it is there and cannot be opened
    Foreign,   ///< of another program, a database or not, or the other one of the two files
    Newer,     ///< written by a newer version of this program
    Older,     ///< of an older layout, which the migration carries to the present one
    Damaged,
    Locked,  ///< another program held it for longer than the wait
    ReadOnly,
    Full,   ///< no room on the disk
    Device  ///< any other fault of the disk
};

/// The failure to throw; its texts name the file.
Fallo FileFailure(FileFault fault, const QString& path);
/// The failure for an error of the database engine on this file.
Fallo FileFailure(const SQLite::Exception& error, const QString& path);

}  // namespace padral::store
