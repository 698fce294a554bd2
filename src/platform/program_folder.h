#pragma once
// Where the program lies and where its data may be written.

#include <QString>

namespace padral {

/// The folder of the running program, without a separator at its end.
QString CarpetaEjecutable();

/// The folder in which the data folder `Tablas` lies for a program folder: the folder beside the
/// one in whose name the letters "cliente" occur (ignoring case), otherwise the program folder.
QString BaseTablas(const QString& programa);

/// The program folder or, where neither the data folder `Tablas` in it nor the one of its
/// `BaseTablas` can be written (an installed package), the user's data folder, filled once with
/// `Tablas` of the program; without data to fill it with it is not taken. `ejecutable` and
/// `usuario` name both folders. Throws Fallo when the user's folder cannot be made.
QString CarpetaPrograma(const QString& ejecutable, const QString& usuario);
/// The same with this program's folder and this user's data folder.
QString CarpetaPrograma();

}  // namespace padral
