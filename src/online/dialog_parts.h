#pragma once
// What the dialogs of this folder are made of.

#include <QString>

class QLabel;
class QPushButton;
class QWidget;

namespace padral {

/// Gives a button its caption and room around it.
void Rotular(QPushButton* boton, const QString& rotulo);
/// A button with its name and caption.
QPushButton* BotonRotulado(const QString& nombre, const QString& rotulo, QWidget* padre);
/// A label with its name and caption, whose words wrap.
QLabel* EtiquetaLarga(const QString& nombre, const QString& rotulo, QWidget* padre);
/// The program's drawing, as high as `lineas` lines of text.
QLabel* DibujoPrograma(int lineas, QWidget* padre);
/// Makes the letters of a widget `veces` times as big as usual.
void Agrandar(QWidget* control, double veces);
/// Fixes the size at which the wrapped texts of a window show whole: `letras` average letters
/// wide, and more where its controls need it.
void FijarTamano(QWidget* ventana, int letras);

}  // namespace padral
