#pragma once
// Finding words in a text whatever their case and accents.

#include <QList>
#include <QString>
#include <QStringList>

namespace padral {

/// A run of characters of a text.
struct Tramo {
    qsizetype inicio;
    qsizetype largo;
    bool operator==(const Tramo&) const = default;
};

/// The text in small letters without accents, each character at its own position.
QString Plegar(const QString& texto);
/// The words of what the user asks for, folded, each once.
QStringList PalabrasBuscadas(const QString& pregunta);
/// Where words of the text begin with one of `palabras`, in the order of the text. Basque adds its
/// endings to a word, so its beginning is what is compared.
QList<Tramo> Apariciones(const QString& texto, const QStringList& palabras);
/// Whether each of `palabras` begins a word of the text.
bool ContieneTodas(const QString& texto, const QStringList& palabras);

}  // namespace padral
