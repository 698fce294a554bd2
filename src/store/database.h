#pragma once
// The one way into a database file. Files are opened for one operation and closed after it.

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>

#include <QString>
#include <utility>

#include "store/busy_timeout.h"
#include "store/store_failure.h"

namespace padral::store {

enum class FileKind { Declarations, Catalogue };
enum class Access { Read, Write };

/// The number by which a file says what it is.
int ApplicationId(FileKind kind);

struct Opening {
    QString path;
    FileKind kind;
    Access access;
    /// Milliseconds.
    int busyTimeout = BusyTimeoutMs;
};

/// Opens an existing file. Throws Fallo when it is missing, damaged, of another program or kind,
/// of a newer layout, or locked for longer than the wait; it is left as it is then.
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
