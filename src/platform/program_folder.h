#pragma once
// Where the program lies and where its data may be written.

#include <QString>

namespace padral {

/// The folder of the running program, without a separator at its end.
QString CarpetaEjecutable();

/// The folder beside which the data folder `Tablas` lies: that of the program or, where it cannot
/// be written (an installed package), the user's data folder, filled once with `Tablas` of the
/// program. `ejecutable` and `usuario` name both folders. Throws Fallo when the user's
/// folder cannot be made either.
QString CarpetaPrograma(const QString& ejecutable, const QString& usuario);
/// The same with this program's folder and this user's data folder.
QString CarpetaPrograma();

}  // namespace padral
