#pragma once
// The bilingual catalogue of numbered texts, compiled in from data/texts.tsv.

#include <QString>
#include <QStringList>
#include <stdexcept>
#include <vector>

namespace padral {

/// Asked for an id that the catalogue does not hold: a fault of the program.
class TextoAusente : public std::out_of_range {
public:
    explicit TextoAusente(int id);
};

/// Table from a text id to a text: Spanish 1 to 881, Basque the same plus 10000. Leading and
/// trailing blanks belong to a text; an ampersand marks an access key.
class CatalogoTextos {
public:
    /// Reads the table that is compiled in.
    CatalogoTextos();
    /// Reads a table in the form of data/texts.tsv: a header line, then id, Spanish, Basque
    /// separated by tabs; "\N" stands for an entry that does not exist in that language.
    /// Throws std::runtime_error with the line, counted from 1, for one that is not so and for an
    /// id that is there already.
    explicit CatalogoTextos(const QByteArray& tsv);

    /// The text of a full id (Basque ones with their 10000). Throws TextoAusente.
    const QString& Texto(int id) const;
    bool Existe(int id) const;
    int CuentaCastellano() const { return cuenta_[0]; }
    int CuentaEuskera() const { return cuenta_[1]; }

    static constexpr qint16 DesplazamientoEuskera = 10000;

private:
    struct Entrada {
        QString texto;
        bool existe = false;
    };
    void anotar(std::size_t id, const QStringList& partes);

    std::vector<Entrada> textos_[2];
    int cuenta_[2] = {0, 0};
};

}  // namespace padral
