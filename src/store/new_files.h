#pragma once
// Fresh database files, and copies of old ones. Each is written under another name beside its place
// and renamed when it is whole, so that a file under its own name is always a whole one.

#include <QString>
#include <functional>

#include "store/database.h"

namespace padral::store {

/// Writes a file with the identity of its kind and what `fill` puts into it. An older file of the
/// name is replaced. Throws Fallo; the older file is then as it was.
void WriteNewFile(const QString& path, FileKind kind,
                  const std::function<void(SQLite::Database&)>& fill);

/// A declarations file without declarations, language "C", update setting -1. Throws Fallo when
/// there is a file of that name: what users saved is never replaced.
void CreateDeclarationsFile(const QString& path);

/// A read-only file with the date limits and the address of the version check. `fill` adds the
/// rows of the catalogues. An older file is replaced.
void CreateCatalogueFile(const QString& path, const std::function<void(SQLite::Database&)>& fill);

/// Keeps a whole copy of a file of an older layout beside it: DPadralMod_v1.mdb of DPadralMod.mdb
/// and layout 1, or with _2, _3 ... behind that where other files have the names; none of them is
/// replaced. Meanwhile nobody may write to the file. Returns the path of the copy, or an empty one
/// when the same copy was there already.
QString KeepCopy(const QString& path, int layoutVersion);

}  // namespace padral::store
