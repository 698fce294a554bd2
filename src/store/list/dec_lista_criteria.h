#pragma once
// The search criteria of a list: how they are kept, and their words, the same for every list.

#include "core/criteria_table.h"

namespace padral {

struct EstadoCompartido;

/// Stores, changes or removes the criterion of a column; blanks remove it.
void GuardarCriterio(TablaCriterios& tabla, int columna, const QString& valor);
/// The criterion of a column, empty when there is none.
QString CriterioDe(const TablaCriterios& tabla, int columna);

/// A criterion in words, in the language of the run; nothing for column 0. The list is searched
/// by the columns 1 to `columnas`, 4 at most.
QString DescribirCriterio(const EstadoCompartido& estado, int columna, const QString& valor,
                          int columnas);
/// All criteria in words.
QString DescribirCriterios(const EstadoCompartido& estado, const TablaCriterios& tabla,
                           int columnas);
/// The criteria in words, then how many rows were found; `textoFilas` is the id of the text that
/// names the rows.
QString LineaResultado(const EstadoCompartido& estado, const TablaCriterios& tabla, int columnas,
                       int filas, int textoFilas);

}  // namespace padral
