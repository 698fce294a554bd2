#pragma once
// Text of a fixed width: padded with blanks on the right and cut at its width when assigned.

#include <QString>

namespace padral {

/// A text of exactly `N` characters. An unset one holds blanks, so tests of its content trim it.
template <int N>
class TextoFijo {
public:
    TextoFijo() = default;
    TextoFijo(const QString& texto) : texto_(texto.leftJustified(N, u' ', true)) {}
    TextoFijo(QStringView texto) : TextoFijo(texto.toString()) {}

    static constexpr int Ancho = N;
    /// The text with its padding, always `N` characters.
    const QString& texto() const { return texto_; }
    /// The text without leading and trailing blanks.
    QString recortado() const { return texto_.trimmed(); }
    bool vacio() const { return recortado().isEmpty(); }

    operator const QString&() const { return texto_; }
    bool operator==(const TextoFijo&) const = default;
    /// Compares the padded text with another text padded the same way.
    bool operator==(const QString& otro) const { return *this == TextoFijo(otro); }

private:
    QString texto_ = QString(N, u' ');
};

/// The stored text without the blanks that fill its width, as the user typed it.
inline QString SinRelleno(QString texto) {
    while (texto.endsWith(u' ')) texto.chop(1);
    return texto;
}

/// A one-character answer ("S", "N", "O", ...), a blank when there is none.
using Letra = TextoFijo<1>;

}  // namespace padral
