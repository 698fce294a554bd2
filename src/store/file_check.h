#pragma once
// Whether a file is a sound declarations file, of this layout or one that can be carried to it.

#include <SQLiteCpp/Database.h>

#include <QString>
#include <exception>
#include <functional>
#include <optional>

#include "store/busy_timeout.h"

namespace padral::store {

enum class LongStep { Copying, Checking };

/// Called now and then during long work; false gives the work up. Of copying the share that is
/// done is told, from 0 to 1000; of checking it is not known.
using GoOn = std::function<bool(LongStep step, int share)>;

/// The user gave long work up.
class GivenUp : public std::exception {};

struct FileSummary {
    int layout;  ///< version of the layout
    int declarations;
};

/// Looks at the first bytes alone, without a lock, and returns the version of the layout. Throws
/// Fallo for a file that is missing, of another program, or of a layout that is newer or too old;
/// its text has `name` for the file.
int CheckHead(const QString& path, const QString& name);
inline int CheckHead(const QString& path) { return CheckHead(path, path); }

/// Opens such a file to read and copy it. Throws Fallo as above and, unlike Open, the engine's own
/// SQLite::Exception for the rest: what a lock means depends on the work.
SQLite::Database OpenAnyLayout(const QString& path, int busyTimeout);

/// Goes through the whole file. Throws Fallo, with `name` for the file, and GivenUp.
FileSummary CheckDeclarationsFile(const QString& path, const QString& name, const GoOn& goOn);

/// How many declarations a file holds; none when it is missing or cannot be read.
std::optional<int> CountDeclarations(const QString& path, int busyTimeout = BusyTimeoutMs);

}  // namespace padral::store
