#pragma once
// Reads files of sections and keys, as the classic call of the other system does.

#include <QString>

namespace padral {

/// The value of a key, at most 1023 characters. Section and key are found without regard to case,
/// blanks around names and value do not count, a value between matching quotes loses them, and a
/// line that begins with ";" says nothing. The first section and the first key of a name hold.
/// Empty when any of them or the file itself is not there. The file is read as UTF-8, with or
/// without its mark, and otherwise as windows-1252.
QString LeerValorIni(const QString& seccion, const QString& clave, const QString& fichero);

}  // namespace padral
