#include "store/database.h"

#include <sqlite3.h>

#include <QFile>
#include <QFileInfo>
#include <QUrl>
#include <string>

#include "store/catalogue_schema.h"
#include "store/collation.h"
#include "store/schema.h"

namespace padral::store {

namespace {

Identity readIdentity(SQLite::Database& db) {
    return {db.execAndGet("PRAGMA application_id").getInt(),
            db.execAndGet("PRAGMA user_version").getInt()};
}

void checkIdentity(const Identity& identity, const Opening& opening) {
    const auto fault = IdentityFault(opening.kind, identity);
    if (!fault || (fault == FileFault::Older && opening.layouts == Layouts::OlderToo)) return;
    throw FileFailure(*fault, opening.path);
}

// Every file of the engine begins with these bytes; a file cut off within them is one of its own.
bool beginsLikeADatabase(const QString& path) {
    static const QByteArray Header("SQLite format 3\0", 16);
    QFile file(path);
    return !file.open(QIODevice::ReadOnly) || Header.startsWith(file.read(Header.size()));
}

// Looks at the file as if nobody could change it: no lock is taken and no journal that lies
// beside it is played back, so that a file which is not ours stays as it is. What this look
// cannot tell for certain is left to the real opening.
std::optional<Identity> peekIdentity(const QString& path) {
    const QByteArray uri =
        "file:" + QUrl::toPercentEncoding(path, QByteArrayLiteral("/")) + "?immutable=1&mode=ro";
    try {
        SQLite::Database db(uri.toStdString(),
                            SQLITE_OPEN_READONLY | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX);
        return readIdentity(db);
    } catch (const SQLite::Exception& error) {
        if (error.getErrorCode() == SQLITE_NOTADB)
            throw FileFailure(beginsLikeADatabase(path) ? FileFault::Damaged : FileFault::Foreign,
                              path);
        return std::nullopt;
    }
}

void checkBeforeOpening(const Opening& opening) {
    const QFileInfo file(opening.path);
    if (!file.exists()) throw FileFailure(FileFault::Missing, opening.path);
    if (!file.isFile()) throw FileFailure(FileFault::Unopened, opening.path);
    if (file.size() == 0) throw FileFailure(FileFault::Damaged, opening.path);
    if (const auto identity = peekIdentity(file.absoluteFilePath()))
        checkIdentity(*identity, opening);
}

// A reader too opens for writing where it may: it has to play back the journal that a killed
// program left. A connection stays within one operation, hence on one thread: no mutex.
SQLite::Database connect(const Opening& opening) {
    const std::string path = QFileInfo(opening.path).absoluteFilePath().toStdString();
    try {
        return {path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, opening.busyTimeout};
    } catch (const SQLite::Exception& error) {
        if (error.getErrorCode() == SQLITE_CANTOPEN)
            throw FileFailure(FileFault::Unopened, opening.path);
        throw FileFailure(error, opening.path);
    }
}

void configure(SQLite::Database& db, const Opening& opening) {
    db.exec("PRAGMA trusted_schema = OFF");
    db.exec("PRAGMA cell_size_check = ON");
    db.exec("PRAGMA synchronous = FULL");
    checkIdentity(readIdentity(db), opening);
    if (opening.access == Access::Read)
        db.exec("PRAGMA query_only = ON");
    else
        db.exec("PRAGMA journal_mode = DELETE");
    if (opening.kind == FileKind::Catalogue) RegisterSpanishCollation(db.getHandle());
}

}  // namespace

int ApplicationId(FileKind kind) {
    return kind == FileKind::Declarations ? 0x5044524D : 0x5044524C;
}

int LayoutVersion(FileKind kind) {
    return kind == FileKind::Declarations ? SchemaVersion : CatalogueVersion;
}

std::optional<FileFault> IdentityFault(FileKind kind, const Identity& identity) {
    const int present = LayoutVersion(kind);
    if (identity.applicationId != ApplicationId(kind)) return FileFault::Foreign;
    if (identity.layoutVersion == present) return std::nullopt;
    if (identity.layoutVersion > present) return FileFault::Newer;
    const bool carried =
        kind == FileKind::Declarations && identity.layoutVersion >= OldestSchemaVersion;
    return carried ? FileFault::Older : FileFault::Damaged;
}

SQLite::Database Open(const Opening& opening) {
    checkBeforeOpening(opening);
    SQLite::Database db = connect(opening);
    try {
        configure(db, opening);
    } catch (const SQLite::Exception& error) {
        throw FileFailure(error, opening.path);
    }
    return db;
}

}  // namespace padral::store
