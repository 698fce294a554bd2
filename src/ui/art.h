#pragma once
// The drawings of the program's own buttons and windows.

#include <QIcon>

namespace padral {

/// A drawing by its name, e.g. u"accept"; an empty icon for a name that does not exist.
QIcon Dibujo(const QString& nombre);

}  // namespace padral
