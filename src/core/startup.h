#pragma once
// What happens before the first window shows.

#include <QString>

namespace padral {

struct EstadoCompartido;

/// Reads the version block of the program file "DPadral.exe" in `carpeta`. Without one, text 331
/// shows in a box without title and icon and the version values stay empty.
void ObtenerVersionPrograma(EstadoCompartido& estado, const QString& carpeta);
/// Sets the data paths from `estado.CarpetaPrograma`: beside the folder where the letters
/// "cliente" occur in it (ignoring case), otherwise in the folder itself.
void ObtenerRutas(EstadoCompartido& estado);
/// Carries an older store into the present layout; true when the process must end at once. An
/// error is raised again with "ComprobarBDVersion" and a line break put to its text.
bool TraspasarDatos(EstadoCompartido& estado);
/// Reads counters, date limits, update address, language and update setting. Writes nothing.
void InicializarSesion(EstadoCompartido& estado);

}  // namespace padral
