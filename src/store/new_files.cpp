#include "store/new_files.h"

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
    db.exec("PRAGMA user_version = " + std::to_string(SchemaVersion));
    fill(db);
    transaction.Commit();
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

}  // namespace padral::store
