#pragma once
// What names the tax authority. Everything here is invented: an authority that takes the program
// into use replaces these values.

#include <QStringView>

namespace padral::store::authority {

inline constexpr QStringView OfficeSpanish = u"Departamento de Hacienda y Finanzas";
inline constexpr QStringView OfficeBasque = u"Ogasun eta Finantza Departamentua";
/// Printed under the name of the office.
inline constexpr QStringView WebAddress = u"www.kelmaria.example";

/// Address of the version check. The name is reserved and never exists, so that a check before
/// the address is set fails at once.
inline constexpr const char* UpdateAddress = "http://padral.kelmaria.invalid/version";

/// Limits of dates in a fresh catalogue file, `yyyymmdd`.
inline constexpr int LowestDate = 19000101;
inline constexpr int HighestDate = 20991231;
inline constexpr int LowestDeclarationDate = 19900101;

}  // namespace padral::store::authority
