#pragma once
// The help: pages of one topic each, shown in a window of the program.

#include <QString>
#include <QWidget>

#include "core/shared_state.h"

namespace padral {

/// Where the help on `tema` lies: help file of the language of the run in the folder `Ayuda` of
/// `carpeta`, then "::/" and the topic.
QString DireccionAyuda(const EstadoCompartido& estado, const QString& carpeta, const QString& tema);
/// The page that an address names: it lies in a folder beside the help file, with its name.
QString PaginaAyuda(const QString& direccion);

/// Shows the page `tema` (e.g. u"indice.htm") in the language of the run, in the help window of
/// `formulario`; a window that is open already is used again. Does not wait for the user. A page
/// that is not there shows a sentence with its name.
void MostrarAyuda(const EstadoCompartido& estado, const QString& tema, QWidget* formulario);

}  // namespace padral
