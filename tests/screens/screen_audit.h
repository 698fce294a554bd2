#pragma once
// Reads the words of a window as a person would see them, and says what is wrong with them.

#include <QStringList>
#include <QWidget>

namespace padral::pruebas {

/// A text of a window: the control that shows it, by name, and the text as the control has it.
struct Rotulo {
    QString control;
    QString texto;
};

/// Every caption, title, tool tip and accessible name of a window and of what is visible in it.
/// What users typed is none of them.
QList<Rotulo> Rotulos(const QWidget& ventana);

/// Captions that do not fit into the place that they have, controls cut by what holds them, and
/// controls that lie over one another.
QStringList RotulosCortados(const QWidget& ventana);

/// Access keys that more than one control answers, visible or not, and `&` that shows as such.
QStringList TeclasRepetidas(const QWidget& ventana);

/// Texts of the other language: on a Basque window those that are Spanish, on a Spanish one the
/// Basque ones. Controls of `bilingues` may show both.
QStringList TextosEnOtroIdioma(const QWidget& ventana, bool euskera, const QStringList& bilingues);

}  // namespace padral::pruebas
