#pragma once
// The forms in which values travel between the store and the rest of the program.

#include <QString>
#include <QVariant>
#include <QVariantList>
#include <vector>

namespace padral {

/// One record as an array of values in the fixed order of its record; indexed from 0.
/// Nothing in it is ever null: a missing value reads as "", 0 or 0.0 by the column's type.
using Fila = QVariantList;

/// A table of values indexed column first, row second, both from 0. Without rows
/// `UltimaFila()` is below 0.
class Tabla {
public:
    Tabla() = default;
    explicit Tabla(int columnas) : columnas_(static_cast<std::size_t>(columnas)) {}

    int Columnas() const { return static_cast<int>(columnas_.size()); }
    int Filas() const { return columnas_.empty() ? 0 : static_cast<int>(columnas_[0].size()); }
    /// Upper bound of the second dimension.
    int UltimaFila() const { return Filas() - 1; }

    /// Appends a row; its size must be `Columnas()`, or anything for the first row of a table
    /// made without a number of columns.
    void Anadir(const Fila& fila) {
        if (columnas_.empty()) columnas_.resize(static_cast<std::size_t>(fila.size()));
        for (std::size_t c = 0; c < columnas_.size(); ++c)
            columnas_[c].push_back(fila.value(static_cast<qsizetype>(c)));
    }
    /// The value in a column and a row; an invalid variant outside the table.
    QVariant operator()(int columna, int fila) const {
        if (columna < 0 || columna >= Columnas() || fila < 0 || fila >= Filas()) return {};
        return columnas_[static_cast<std::size_t>(columna)][static_cast<std::size_t>(fila)];
    }
    /// One row as an array of values.
    Fila FilaEntera(int fila) const {
        Fila f;
        for (int c = 0; c < Columnas(); ++c) f.append((*this)(c, fila));
        return f;
    }

private:
    std::vector<std::vector<QVariant>> columnas_;
};

}  // namespace padral
