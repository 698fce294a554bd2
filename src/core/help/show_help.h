#pragma once
// The help: from a topic to its address, and to the viewer.

#include <QString>

#include "core/help/help_texts.h"
#include "core/help/help_viewer.h"
#include "core/shared_state.h"

namespace padral {

/// Where the help on `tema` lies: help file of the language of the run in the folder `Ayuda` of
/// `carpeta`, then "::/" and the topic.
QString DireccionAyuda(const EstadoCompartido& estado, const QString& carpeta, const QString& tema);
/// The help file of an address.
QString FicheroAyuda(const QString& direccion);
/// The topic of an address.
QString TemaAyuda(const QString& direccion);

/// Opens the page `tema` (e.g. u"indice.htm") of the help file of the language of the run in the
/// program folder. Without that file a box says so with its name, and nothing opens.
void MostrarAyuda(const EstadoCompartido& estado, VisorAyuda& visor, const QString& tema,
                  QWidget* formulario);
/// Says in a box that a part of the help is not there; %1 of the text is its path.
void AvisarAyudaAusente(const EstadoCompartido& estado, const QString& ruta,
                        const TextoAyuda& texto);

}  // namespace padral
