#pragma once
// What a user's step may change besides the property of the control in hand. Whatever else changes
// is a value lost on the way.

#include <QString>
#include <QStringList>

namespace padral::pruebas {

/// A step: on which screen, with which control, and which screen showed after it.
struct Paso {
    QString formulario, control, despues;
};

/// Whether `propiedad` may become `valor` by that step.
bool PuedeCambiar(const Paso& paso, const QString& propiedad, const QString& valor);

}  // namespace padral::pruebas
