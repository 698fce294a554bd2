#pragma once
// The hands of the walk: what a user's keys and clicks do to a widget.

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QTabBar>

namespace padral::pruebas {

/// Where the focus goes after typing.
enum class Salida { Tabulador, Intro, Ninguna };

/// Types over what a field holds. False: the field left before was refused, and nothing is typed.
bool EscribirEn(QLineEdit* campo, const QString& teclas, Salida salida);
/// A click, or the space bar where `conTeclado`; false as above.
bool PulsarEn(QWidget* control, bool conTeclado = false);
/// Keys on a list of choices, then Tab: Home, End, or `pasos` rows down (up when below 0).
void ElegirEn(QComboBox* combo, int pasos);
/// Clicks a cell; rows count from 0.
void PulsarFila(QAbstractItemView* tabla, const QModelIndex& celda, bool doble);
void PulsarPestana(QTabBar* barra, int indice);

}  // namespace padral::pruebas
