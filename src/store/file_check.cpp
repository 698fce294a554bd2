#include "store/file_check.h"

#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <sqlite3.h>

#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <string>

#include "store/database.h"
#include "store/migration.h"

namespace padral::store {

namespace {

// The head of a file of the engine; numbers have their highest byte first.
constexpr qsizetype HeadSize = 100;
constexpr qsizetype LayoutVersionAt = 60;
constexpr qsizetype ApplicationIdAt = 68;

QByteArray readHead(const QString& path, const QString& name) {
    const QFileInfo info(path);
    if (!info.exists()) throw FileFailure(FileFault::Missing, name);
    QFile file(path);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly))
        throw FileFailure(FileFault::Unopened, name);
    return file.read(HeadSize);
}

int headNumber(const QByteArray& head, qsizetype at) {
    return qFromBigEndian<qint32>(head.constData() + at);
}

// Asks the user every so many steps of the engine whether to go on.
class Watch {
public:
    Watch(SQLite::Database& db, const GoOn& goOn) : handle_(db.getHandle()), goOn_(goOn) {
        sqlite3_progress_handler(handle_, StepsBetween, &Watch::ask, this);
    }
    ~Watch() { sqlite3_progress_handler(handle_, 0, nullptr, nullptr); }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

private:
    static constexpr int StepsBetween = 20000;

    static int ask(void* self) {
        return static_cast<Watch*>(self)->goOn_(LongStep::Checking, 0) ? 0 : 1;
    }

    sqlite3* handle_;
    const GoOn& goOn_;
};

int countAll(SQLite::Database& db) {
    return db.execAndGet("SELECT count(*) FROM TDeclaraciones").getInt();
}

FileSummary checkAll(SQLite::Database& db, int layout, const QString& name) {
    const bool whole = db.execAndGet("PRAGMA integrity_check(1)").getString() == "ok";
    if (!whole || !FitsPresentLayout(db)) throw FileFailure(FileFault::Damaged, name);
    return {layout, countAll(db)};
}

}  // namespace

int CheckHead(const QString& path, const QString& name) {
    static const QByteArray Mark("SQLite format 3\0", 16);
    const QByteArray head = readHead(path, name);
    // A file that is cut off within the mark is one of the engine's own.
    if (!Mark.startsWith(head.left(Mark.size()))) throw FileFailure(FileFault::Foreign, name);
    if (head.size() < HeadSize) throw FileFailure(FileFault::Damaged, name);
    const Identity identity{headNumber(head, ApplicationIdAt), headNumber(head, LayoutVersionAt)};
    const auto fault = IdentityFault(FileKind::Declarations, identity);
    if (fault && fault != FileFault::Older) throw FileFailure(*fault, name);
    return identity.layoutVersion;
}

// For writing where that is possible: the journal of a killed program has to be played back.
SQLite::Database OpenAnyLayout(const QString& path, int busyTimeout) {
    CheckHead(path);
    SQLite::Database db(QFileInfo(path).absoluteFilePath().toStdString(),
                        SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, busyTimeout);
    db.exec("PRAGMA trusted_schema = OFF");
    db.exec("PRAGMA cell_size_check = ON");
    db.exec("PRAGMA synchronous = FULL");
    return db;
}

FileSummary CheckDeclarationsFile(const QString& path, const QString& name, const GoOn& goOn) {
    const int layout = CheckHead(path, name);
    try {
        SQLite::Database db = OpenAnyLayout(path, BusyTimeoutMs);
        const Watch watch(db, goOn);
        return checkAll(db, layout, name);
    } catch (const SQLite::Exception& error) {
        if (error.getErrorCode() == SQLITE_INTERRUPT) throw GivenUp();
        // A table or a column is not there.
        if (error.getErrorCode() == SQLITE_ERROR) throw FileFailure(FileFault::Damaged, name);
        throw FileFailure(error, name);
    }
}

std::optional<int> CountDeclarations(const QString& path, int busyTimeout) {
    try {
        SQLite::Database db = OpenAnyLayout(path, busyTimeout);
        return countAll(db);
    } catch (const SQLite::Exception&) {
        return std::nullopt;
    } catch (const Fallo&) {
        return std::nullopt;
    }
}

}  // namespace padral::store
