#pragma once
// What names the tax authority. Everything here is invented: an authority that takes the program
// into use replaces these values.

#include <QStringView>

namespace padral::store::authority {

inline constexpr QStringView OfficeSpanish = u"Departamento de Hacienda y Finanzas";
inline constexpr QStringView OfficeBasque = u"Ogasun eta Finantza Departamentua";
/// Printed under the name of the office.
inline constexpr QStringView WebAddress = u"www.kelmaria.example";
/// Page of the online help, and what the service offers.
inline constexpr QStringView HelpAddressSpanish = u"https://www.kelmaria.example/padral/ayuda";
inline constexpr QStringView HelpAddressBasque = u"https://www.kelmaria.example/padral/laguntza";
inline constexpr QStringView HelpServiceSpanish =
    u"La asistencia on-line responde por Internet a las dudas sobre la declaración padral, modelo "
    u"417: cómo se rellena cada apartado, qué documentos la acompañan y dónde se presenta.\n\n"
    u"Para acceder a ella es necesario disponer de conexión a Internet. El programa abre la página "
    u"del servicio en el navegador y no envía ningún dato de las declaraciones.";
inline constexpr QStringView HelpServiceBasque =
    u"On-line laguntzak padral aitorpenari, 417 ereduari, buruzko zalantzak argitzen ditu Internet "
    u"bidez: atal bakoitza nola betetzen den, zer agiri aurkeztu behar diren eta non aurkezten "
    u"den.\n\n"
    u"Zerbitzua erabiltzeko Interneteko konexioa behar da. Programak zerbitzuaren orria irekitzen "
    u"du nabigatzailean, eta ez du aitorpenetako daturik bidaltzen.";
/// Shown on the splash and in the about box.
inline constexpr QStringView CopyrightLine =
    u"© 2026 Kelmariako Foru Aldundia / Diputación Foral de Kelmaria";

/// Address of the version check. The name is reserved and never exists, so that a check before
/// the address is set fails at once.
inline constexpr const char* UpdateAddress = "http://padral.kelmaria.invalid/version";

/// Limits of dates in a fresh catalogue file, `yyyymmdd`.
inline constexpr int LowestDate = 19000101;
inline constexpr int HighestDate = 20991231;
inline constexpr int LowestDeclarationDate = 19900101;

}  // namespace padral::store::authority
