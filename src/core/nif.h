#pragma once
// What kind of taxpayer an identifier stands for.

#include <QString>
#include <functional>

namespace padral {

/// Letter sets of the tax identifier, each used literally.
inline constexpr QStringView LetrasClase1 = u"ABCDFNPQRSUVW";
inline constexpr QStringView LetrasClase3 = u"EGHJ";
inline constexpr QStringView LetrasGrupoGeneral = u"ABCDEFGHUJV";
inline constexpr QStringView LetrasGrupoNW = u"NW";
inline constexpr QStringView LetrasGrupoQR = u"QR";
inline constexpr QStringView LetrasAnexoI = u"ABU";

/// Class of an identifier by its first character: 0 empty, 1 legal person, 2 contains "__",
/// 3 entity without legal personality or community, 4 natural person (everything else).
/// The test is a search of the whole `valor` within the set.
int ClasificarNif(const QString& valor);

/// Asks the common server whether an identifier is right.
using ServidorNif = std::function<bool(const QString&)>;

}  // namespace padral
