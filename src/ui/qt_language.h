#pragma once
// The language of Qt's own texts: standard buttons, context menus, file and printer dialogs.

#include <QString>

namespace padral {

/// Makes Qt speak Basque with "E" and Spanish with any other letter, in place of the language
/// installed before. Needs the QCoreApplication. Texts of dialogs already shown stay as they are.
void InstalarTraduccionQt(const QString& idi);

}  // namespace padral
