#pragma once
// The one way into a database file. Files are opened for one operation and closed after it.

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>

#include <QString>
#include <optional>
#include <utility>

#include "store/busy_timeout.h"
#include "store/store_failure.h"

namespace padral::store {

enum class FileKind { Declarations, Catalogue };
enum class Access { Read, Write };

/// Layouts that an opening takes: every operation works on the present one; the migration also
/// opens the older ones that it can carry to it.
enum class Layouts { Present, OlderToo };

/// The number by which a file says what it is.
int ApplicationId(FileKind kind);
/// The layout of a fresh file.
int LayoutVersion(FileKind kind);

/// What a file says of itself: the engine's `application_id` and `user_version`.
struct Identity {
    int applicationId;
    int layoutVersion;
};

/// Why a file that says so cannot be worked on: `Foreign`, `Newer`, `Older` or, where no such
/// layout has been, `Damaged`; nothing when it is of the present layout. Who only asks whether a
/// file is one of ours and can be carried over takes `Older` for a yes.
std::optional<FileFault> IdentityFault(FileKind kind, const Identity& identity);

struct Opening {
    QString path;
    FileKind kind;
    Access access;
    /// Milliseconds.
    int busyTimeout = BusyTimeoutMs;
    Layouts layouts = Layouts::Present;
};

/// Opens an existing file. Throws Fallo when it is missing, damaged, of another program or kind,
/// of a newer layout or of an older one that was not asked for, or locked for longer than the
/// wait; it is left as it is then.
SQLite::Database Open(const Opening& opening);

/// A transaction that takes the right to write at its start and is rolled back unless committed.
class WriteTransaction {
public:
    explicit WriteTransaction(SQLite::Database& db)
        : transaction_(db, SQLite::TransactionBehavior::IMMEDIATE) {}
    void Commit() { transaction_.commit(); }

private:
    SQLite::Transaction transaction_;
};

/// Opens a file, runs an operation on it and closes it. Errors of the engine come out as Fallo.
template <class Operation>
auto WithDatabase(const Opening& opening, Operation&& operation) {
    SQLite::Database db = Open(opening);
    try {
        return std::forward<Operation>(operation)(db);
    } catch (const SQLite::Exception& error) {
        throw FileFailure(error, opening.path);
    }
}

/// The same with all steps in one write transaction.
template <class Operation>
auto WithWriting(const QString& path, int busyTimeout, Operation&& operation) {
    return WithDatabase({path, FileKind::Declarations, Access::Write, busyTimeout},
                        [&](SQLite::Database& db) {
                            WriteTransaction transaction(db);
                            if constexpr (std::is_void_v<decltype(operation(db))>) {
                                operation(db);
                                transaction.Commit();
                            } else {
                                auto result = operation(db);
                                transaction.Commit();
                                return result;
                            }
                        });
}

}  // namespace padral::store
