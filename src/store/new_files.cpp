#include "store/new_files.h"

#include <SQLiteCpp/Backup.h>
#include <sqlite3.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <filesystem>

#include "store/catalogue_schema.h"
#include "store/collation.h"
#include "store/schema.h"

namespace padral::store {

namespace {

void fillNewFile(const QString& path, FileKind kind,
                 const std::function<void(SQLite::Database&)>& fill) {
    SQLite::Database db(path.toStdString(), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    db.exec("PRAGMA synchronous = FULL");
    RegisterSpanishCollation(db.getHandle());
    WriteTransaction transaction(db);
    db.exec("PRAGMA application_id = " + std::to_string(ApplicationId(kind)));
    db.exec("PRAGMA user_version = " + std::to_string(LayoutVersion(kind)));
    fill(db);
    transaction.Commit();
}

// Page by page through the engine. A handle of our own on a file that the engine has open must not
// be: closing it would take the engine's locks away.
void copyForKeeping(const QString& from, const QString& to) {
    SQLite::Database source(from.toStdString(), SQLITE_OPEN_READONLY);
    SQLite::Database target(to.toStdString(), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    QFile::setPermissions(to, QFile::permissions(from));
    // Half a copy is thrown away as a whole.
    target.exec("PRAGMA journal_mode = OFF");
    target.exec("PRAGMA synchronous = FULL");
    const int state = SQLite::Backup(target, source).executeStep();
    if (state != SQLITE_DONE) throw SQLite::Exception("copy not finished", state);
}

bool isTheSameCopy(const QString& left, const QString& right) {
    constexpr qint64 Piece = 1 << 20;
    QFile a(left), b(right);
    if (!a.open(QIODevice::ReadOnly) || !b.open(QIODevice::ReadOnly) || a.size() != b.size())
        return false;
    while (!a.atEnd()) {
        const QByteArray piece = a.read(Piece);
        if (piece.isEmpty() || piece != b.read(Piece)) return false;
    }
    return true;
}

// Gives the partial copy the first name that is free, or none.
QString nameKeptCopy(const QString& partial, const QString& stem, const QString& suffix) {
    for (int number = 1;; ++number) {
        const QString tail = number == 1 ? QString() : u'_' + QString::number(number);
        const QString name = stem + tail + suffix;
        if (isTheSameCopy(partial, name)) {
            QFile::remove(partial);
            return {};
        }
        if (!QFileInfo::exists(name) && QFile::rename(partial, name)) return name;
        if (!QFileInfo::exists(name)) throw FileFailure(FileFault::ReadOnly, name);
    }
}

}  // namespace

void WriteNewFile(const QString& path, FileKind kind,
                  const std::function<void(SQLite::Database&)>& fill) {
    const QString whole = QFileInfo(path).absoluteFilePath();
    const QString partial = whole + QStringLiteral(".nuevo");
    QFile::remove(partial);
    try {
        fillNewFile(partial, kind, fill);
        std::filesystem::rename(partial.toStdString(), whole.toStdString());
    } catch (const SQLite::Exception& error) {
        QFile::remove(partial);
        throw FileFailure(error, path);
    } catch (const std::filesystem::filesystem_error&) {
        QFile::remove(partial);
        throw FileFailure(FileFault::ReadOnly, path);
    } catch (...) {
        QFile::remove(partial);
        throw;
    }
}

void CreateDeclarationsFile(const QString& path) {
    if (QFileInfo::exists(path)) {
        const QString name = QDir::toNativeSeparators(path);
        throw Fallo(QStringLiteral("El archivo «%1» ya existe.").arg(name),
                    QStringLiteral("«%1» fitxategia badago lehendik.").arg(name));
    }
    WriteNewFile(path, FileKind::Declarations, CreateDeclarationTables);
}

void CreateCatalogueFile(const QString& path, const std::function<void(SQLite::Database&)>& fill) {
    WriteNewFile(path, FileKind::Catalogue, [&](SQLite::Database& db) {
        CreateCatalogueTables(db);
        fill(db);
    });
}

QString KeepCopy(const QString& path, int layoutVersion) {
    const QFileInfo file(path);
    const QString stem = file.absolutePath() + u'/' + file.completeBaseName() +
                         QStringLiteral("_v%1").arg(layoutVersion);
    const QString suffix = u'.' + file.suffix();
    const QString partial = stem + suffix + QStringLiteral(".nuevo");
    QFile::remove(partial);
    try {
        copyForKeeping(file.absoluteFilePath(), partial);
        return nameKeptCopy(partial, stem, suffix);
    } catch (const SQLite::Exception& error) {
        QFile::remove(partial);
        throw FileFailure(error, path);
    } catch (...) {
        QFile::remove(partial);
        throw;
    }
}

}  // namespace padral::store
