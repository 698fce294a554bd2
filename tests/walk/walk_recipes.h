#pragma once
// What a user does to fill a blank screen in so that it can be left.

#include <QList>
#include <QString>

#include "walk/walk_values.h"

namespace padral::pruebas {

/// Types into a field, ticks a box that has no tick (without text) or chooses in a list (so many
/// rows down).
struct Tarea {
    QString control, texto;
    bool casilla = false;
};

/// The tasks for a screen, in order; empty for one without.
QList<Tarea> RecetaDe(const QString& formulario, bool euskera, Azar& azar);

}  // namespace padral::pruebas
