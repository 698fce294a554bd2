#pragma once
// Copies of the declarations file that take their place only when they are whole.

#include <QDateTime>
#include <QString>

#include "store/busy_timeout.h"
#include "store/file_check.h"

namespace padral::store {

struct CopyJob {
    QString source;
    /// Where the copy is to lie; its folder must exist.
    QString place;
    /// Whether the program works with the source. Then nothing goes past its locks; otherwise a
    /// medium that knows no locks is read without them.
    bool sourceInUse = false;
    QDateTime now;
    GoOn goOn = [](LongStep, int) { return true; };
    /// Milliseconds.
    int busyTimeout = BusyTimeoutMs;
};

/// A file under a passing name beside the place it is meant for; removed unless it took the place.
class PassingFile {
public:
    explicit PassingFile(const QString& place);
    ~PassingFile();
    PassingFile(const PassingFile&) = delete;
    PassingFile& operator=(const PassingFile&) = delete;

    const QString& Path() const { return path_; }
    /// Puts it on the disk for good, with the rights of the file that lies in the place.
    void Flush() const;
    /// Renames it to the place in one step. What lies there is replaced.
    void TakePlace();

private:
    QString place_, path_;
    bool taken_ = false;
};

/// A copy of a declarations file, written whole and checked. Another program may write to the
/// source meanwhile: the copy is of one moment. Everything here throws Fallo, and nothing has
/// changed then.
class CheckedCopy {
public:
    /// Throws GivenUp too.
    explicit CheckedCopy(CopyJob job);

    const FileSummary& Summary() const { return summary_; }
    /// Takes its place. What lies there is replaced.
    void Install();
    /// Takes its place; what lay there, damaged or not, stays beside it under a name with the
    /// date: "DPadralMod_20260131_101530.mdb", with "_2" and so on where that is taken. Returns
    /// the path of that file, "" when the place was free. At no moment is the place empty.
    QString InstallKeepingOld();

private:
    const CopyJob job_;
    PassingFile file_;
    FileSummary summary_{};
};

/// Writes a note into the one row of a table of the read-only file. Throws Fallo.
void WriteCatalogueNote(const QString& path, const QString& table, const QString& column,
                        const QString& note);

}  // namespace padral::store
