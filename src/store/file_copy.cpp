#include "store/file_copy.h"

#include <SQLiteCpp/Backup.h>
#include <SQLiteCpp/Statement.h>
#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QUrl>
#include <array>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <string>

#include "store/database.h"

namespace padral::store {

namespace {

constexpr int PagesAtATime = 64;
constexpr int WholeShare = 1000;
const QString PassingEnd = QStringLiteral(".nuevo");

// What the engine lays beside a file of which a change has not come to its end.
const std::array<QString, 3> Companions{QStringLiteral("-journal"), QStringLiteral("-wal"),
                                        QStringLiteral("-shm")};

bool hasCompanion(const QString& path) {
    for (const QString& end : Companions)
        if (QFileInfo(path + end).size() > 0) return true;
    return false;
}

QString folderOf(const QString& path) { return QFileInfo(path).absolutePath(); }

Fallo folderFailure(const QString& place) {
    const QString folder = folderOf(place);
    const QString name = QDir::toNativeSeparators(folder);
    if (!QFileInfo(folder).isDir())
        return {QStringLiteral("No se encuentra la carpeta «%1».").arg(name),
                QStringLiteral("Ez da «%1» karpeta aurkitzen.").arg(name)};
    return {QStringLiteral("No se puede escribir en la carpeta «%1».").arg(name),
            QStringLiteral("Ezin da «%1» karpetan idatzi.").arg(name)};
}

Fallo stepFailure(int error, const QString& place) {
    switch (error) {
        case ENOSPC:
        case EDQUOT:
            return FileFailure(FileFault::Full, place);
        case EACCES:
        case EPERM:
        case EROFS:
        case ENOENT:
            return folderFailure(place);
        default:
            return FileFailure(FileFault::Device, place);
    }
}

bool flush(const QString& path) {
    const int file = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (file < 0) return false;
    const bool done = fsync(file) == 0;
    const int error = errno;
    close(file);
    errno = error;
    return done;
}

// Not every file system can do that for a folder, and those that can keep the order anyway.
void flushFolder(const QString& path) { flush(folderOf(path)); }

bool renameFile(const QString& from, const QString& to) {
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

bool linkFile(const QString& from, const QString& to) {
    return link(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

// A program that was killed leaves its passing file behind. A fresh one may belong to another
// copy of the program that works right now.
void removeLeftovers(const QString& place, const QDateTime& now) {
    const QFileInfo file(place);
    const auto left = QDir(file.absolutePath())
                          .entryInfoList({file.fileName() + QStringLiteral(".*") + PassingEnd},
                                         QDir::Files | QDir::Hidden);
    for (const QFileInfo& one : left)
        if (one.lastModified().addDays(1) < now) QFile::remove(one.absoluteFilePath());
}

bool isReadFault(int code) {
    switch (code & 0xff) {
        case SQLITE_CORRUPT:
        case SQLITE_NOTADB:
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
        case SQLITE_PROTOCOL:
        case SQLITE_PERM:
            return true;
        default:
            return code == SQLITE_IOERR_READ || code == SQLITE_IOERR_SHORT_READ ||
                   code == SQLITE_IOERR_RDLOCK || code == SQLITE_IOERR_LOCK;
    }
}

bool isLockFault(int code) {
    const int kind = code & 0xff;
    return kind == SQLITE_BUSY || kind == SQLITE_PROTOCOL || kind == SQLITE_PERM ||
           code == SQLITE_IOERR_LOCK || code == SQLITE_IOERR_RDLOCK ||
           code == SQLITE_IOERR_CHECKRESERVEDLOCK;
}

// A fault of the engine while it writes for the place.
[[noreturn]] void throwWriteFault(const SQLite::Exception& error, const QString& place) {
    if ((error.getErrorCode() & 0xff) == SQLITE_CANTOPEN) throw folderFailure(place);
    throw FileFailure(error, place);
}

// The file is nobody's before it has its name: it needs no journal.
SQLite::Database createTarget(const QString& path) {
    SQLite::Database db(path.toStdString(),
                        SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX);
    db.exec("PRAGMA journal_mode = OFF");
    db.exec("PRAGMA synchronous = OFF");
    return db;
}

// The engine begins anew by itself when another program writes to the source in between.
void copyPages(SQLite::Database& source, const QString& target, const GoOn& goOn) {
    SQLite::Database to = createTarget(target);
    SQLite::Backup copy(to, source);
    for (int code = SQLITE_OK; code != SQLITE_DONE;) {
        code = copy.executeStep(PagesAtATime);
        if (code != SQLITE_OK && code != SQLITE_DONE) throw SQLite::Exception("copy", code);
        const qint64 total = qMax(1, copy.getTotalPageCount());
        const qint64 done = total - copy.getRemainingPageCount();
        if (!goOn(LongStep::Copying, static_cast<int>(WholeShare * done / total))) throw GivenUp();
    }
}

SQLite::Database openWithoutLocks(const QString& path) {
    const QByteArray uri =
        "file:" +
        QUrl::toPercentEncoding(QFileInfo(path).absoluteFilePath(), QByteArrayLiteral("/")) +
        "?immutable=1&mode=ro";
    return {uri.toStdString(), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX};
}

void copySource(const CopyJob& job, const QString& target) {
    try {
        SQLite::Database source = OpenAnyLayout(job.source, job.busyTimeout);
        copyPages(source, target, job.goOn);
        return;
    } catch (const SQLite::Exception& error) {
        const bool mayGoPast = !job.sourceInUse && !hasCompanion(job.source);
        if (!mayGoPast || !isLockFault(error.getErrorCode())) throw;
    }
    QFile::remove(target);
    SQLite::Database source = openWithoutLocks(job.source);
    copyPages(source, target, job.goOn);
}

void writeCopy(const CopyJob& job, const QString& target) {
    CheckHead(job.source);
    if (!QFileInfo(folderOf(job.place)).isDir()) throw folderFailure(job.place);
    removeLeftovers(job.place, job.now);
    try {
        copySource(job, target);
    } catch (const SQLite::Exception& error) {
        if (isReadFault(error.getErrorCode())) throw FileFailure(error, job.source);
        throwWriteFault(error, job.place);
    }
}

// Holds other copies of the program off the file, and plays back a journal that a killed one
// left. None for a file that the engine cannot work with: nobody writes to that one.
std::unique_ptr<SQLite::Database> holdStill(const QString& path, int busyTimeout) {
    try {
        auto db = std::make_unique<SQLite::Database>(OpenAnyLayout(path, busyTimeout));
        db->exec("PRAGMA journal_mode = DELETE");
        db->exec("BEGIN EXCLUSIVE");
        return db;
    } catch (const SQLite::Exception& error) {
        if (isLockFault(error.getErrorCode())) throw FileFailure(error, path);
    } catch (const Fallo&) {
        // Not a declarations file of ours any more.
    }
    return nullptr;
}

bool isTaken(const QString& path) {
    if (QFileInfo::exists(path) || QFileInfo(path).isSymLink()) return true;
    for (const QString& end : Companions)
        if (QFileInfo::exists(path + end)) return true;
    return false;
}

QString datedName(const QString& place, const QDateTime& now, int number) {
    const QFileInfo file(place);
    QString name = file.completeBaseName() + u'_' + now.toString(QStringLiteral("yyyyMMdd_HHmmss"));
    if (number > 1) name += u'_' + QString::number(number);
    return file.dir().filePath(name + u'.' + file.suffix());
}

void copyBytes(QFile& source, const QString& to, const QString& place) {
    constexpr qint64 Piece = 1 << 20;
    if (!source.isOpen() && !source.open(QIODevice::ReadOnly))
        throw FileFailure(FileFault::Unopened, source.fileName());
    QFile target(to);
    if (!target.open(QIODevice::WriteOnly)) throw folderFailure(place);
    while (!source.atEnd()) {
        const QByteArray piece = source.read(Piece);
        if (piece.isEmpty()) throw FileFailure(FileFault::Device, source.fileName());
        if (target.write(piece) != piece.size() || !target.flush())
            throw FileFailure(
                target.error() == QFile::ResourceError ? FileFault::Full : FileFault::Device,
                place);
    }
}

// Where a file cannot have two names.
void keepAsCopy(QFile& old, const QString& kept) {
    PassingFile copy(kept);
    copyBytes(old, copy.Path(), kept);
    QFile::setPermissions(copy.Path(), old.permissions());
    copy.Flush();
    copy.TakePlace();
}

// Gives the old file its second name, and returns that.
QString keepOld(QFile& old, const QString& place, const QDateTime& now) {
    for (int number = 1;; ++number) {
        const QString kept = datedName(place, now, number);
        if (isTaken(kept)) continue;
        if (!linkFile(place, kept)) {
            if (errno == EEXIST) continue;
            keepAsCopy(old, kept);
        }
        return kept;
    }
}

// A journal that could not be played back belongs to the old file.
void keepCompanions(const QString& place, const QString& kept) {
    for (const QString& end : Companions) {
        QFile companion(place + end);
        if (companion.exists() && !linkFile(place + end, kept + end))
            keepAsCopy(companion, kept + end);
    }
}

// The new file did not take the place: the old one has it still, and no second name then.
void letGoOfKept(const QString& place, const QString& kept) {
    for (const QString& end : Companions)
        if (QFileInfo::exists(kept + end)) renameFile(kept + end, place + end);
    QFile::remove(kept);
}

// A journal is played back into whatever file has the name: it must not meet the new one.
void removeCompanions(const QString& place) {
    bool any = false;
    for (const QString& end : Companions) any = QFile::remove(place + end) || any;
    if (any) flushFolder(place);
}

}  // namespace

PassingFile::PassingFile(const QString& place)
    : place_(place),
      path_(place + u'.' + QString::number(QRandomGenerator::system()->generate(), 16) +
            PassingEnd) {}

PassingFile::~PassingFile() {
    if (!taken_) QFile::remove(path_);
}

void PassingFile::Flush() const {
    if (QFileInfo::exists(place_)) QFile::setPermissions(path_, QFile::permissions(place_));
    if (!flush(path_)) throw stepFailure(errno, place_);
}

void PassingFile::TakePlace() {
    removeCompanions(place_);
    if (!renameFile(path_, place_)) throw stepFailure(errno, place_);
    taken_ = true;
    flushFolder(place_);
}

CheckedCopy::CheckedCopy(CopyJob job) : job_(std::move(job)), file_(job_.place) {
    writeCopy(job_, file_.Path());
    summary_ = CheckDeclarationsFile(file_.Path(), job_.source, job_.goOn);
    file_.Flush();
}

void CheckedCopy::Install() { file_.TakePlace(); }

QString CheckedCopy::InstallKeepingOld() {
    if (!QFileInfo::exists(job_.place)) {
        Install();
        return {};
    }
    // Closed after the hold has ended: closing a file lets go of all locks that the process has on
    // it.
    QFile old(job_.place);
    old.open(QIODevice::ReadOnly);
    const auto held = holdStill(job_.place, job_.busyTimeout);
    const QString kept = keepOld(old, job_.place, job_.now);
    try {
        if (!held) keepCompanions(job_.place, kept);
        flushFolder(kept);
        Install();
    } catch (const Fallo&) {
        letGoOfKept(job_.place, kept);
        throw;
    }
    return kept;
}

void WriteCatalogueNote(const QString& path, const QString& table, const QString& column,
                        const QString& note) {
    const std::string sql =
        "UPDATE [" + table.toStdString() + "] SET [" + column.toStdString() + "] = ?";
    WithDatabase({path, FileKind::Catalogue, Access::Write}, [&](SQLite::Database& db) {
        WriteTransaction transaction(db);
        SQLite::Statement order(db, sql);
        order.bind(1, note.toStdString());
        order.exec();
        transaction.Commit();
    });
}

}  // namespace padral::store
