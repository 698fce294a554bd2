#pragma once
// The search criteria of a list screen: an ordered collection of pairs, column and text.

#include <QString>
#include <tuple>
#include <utility>
#include <vector>

namespace padral {

/// Pairs of a 16-bit key (a grid column) and a text (its criterion). Positions count from 1;
/// slot 0 exists and is never used. A position outside the table changes and returns nothing.
class TablaCriterios {
public:
    /// Empties the table.
    void TS_CLEAR() { pares_.resize(1); }

    /// Appends a pair.
    void TS_AÑADIR(qint16 clave, const QString& texto) { pares_.emplace_back(clave, texto); }

    /// Moves the pairs from `pos` up by one and writes the pair at `pos`; `pos` one behind the
    /// last pair appends.
    void TS_INSERTAR(qint16 pos, qint16 clave, const QString& texto) {
        if (pos < 1 || pos > TS_COUNT() + 1) return;
        pares_.insert(pares_.begin() + pos, {clave, texto});
    }

    /// Overwrites the pair at `pos`.
    void TS_MODIFICAR(qint16 pos, qint16 clave, const QString& texto) {
        if (existe(pos)) pares_[static_cast<std::size_t>(pos)] = {clave, texto};
    }

    /// Removes the pair at `pos`; the following ones move down by one.
    void TS_BORRAR(qint16 pos) {
        if (existe(pos)) pares_.erase(pares_.begin() + pos);
    }

    /// Number of pairs.
    qint16 TS_COUNT() const { return static_cast<qint16>(pares_.size() - 1); }

    /// Reads the pair at `pos`.
    void TS_ELEMENTO(qint16 pos, qint16& clave, QString& texto) const {
        if (existe(pos)) std::tie(clave, texto) = pares_[static_cast<std::size_t>(pos)];
    }

    /// Position of the first pair with that key, 0 when there is none.
    qint16 TS_PERTENECE(qint16 clave) const {
        for (qint16 pos = 1; pos <= TS_COUNT(); ++pos)
            if (pares_[static_cast<std::size_t>(pos)].first == clave) return pos;
        return 0;
    }

private:
    bool existe(qint16 pos) const { return pos >= 1 && pos <= TS_COUNT(); }

    using Par = std::pair<qint16, QString>;
    std::vector<Par> pares_ = std::vector<Par>(1);
};

}  // namespace padral
