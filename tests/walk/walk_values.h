#pragma once
// What a user may type, by the kind of the field.

#include <QLineEdit>
#include <QString>
#include <optional>
#include <random>

namespace padral::pruebas {

/// A seeded source of choices: the same seed gives the same walk everywhere.
class Azar {
public:
    explicit Azar(quint32 semilla) : motor_(semilla) {}

    /// From 0 to `limite` less 1. No distribution of the library: theirs differ.
    int Hasta(int limite) { return static_cast<int>(motor_() % static_cast<quint32>(limite)); }
    bool PorCiento(int probabilidad) { return Hasta(100) < probabilidad; }
    template <class Lista>
    auto Uno(const Lista& lista) {
        return lista[static_cast<decltype(std::size(lista))>(
            Hasta(static_cast<int>(std::size(lista))))];
    }

private:
    std::mt19937 motor_;
};

/// Keys to type, and what the property holds after them when nothing was refused and the catalogue
/// had no say.
struct Escrito {
    QString teclas;
    std::optional<QString> queda;
};

/// `soloValidos`: nothing that a check of the field refuses.
Escrito ElegirEscrito(const QString& formulario, const QLineEdit& campo, bool euskera,
                      bool soloValidos, Azar& azar);

}  // namespace padral::pruebas
