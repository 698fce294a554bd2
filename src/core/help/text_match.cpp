#include "core/help/text_match.h"

#include <algorithm>

namespace padral {

namespace {

QChar plegar(QChar c) {
    while (c.decompositionTag() == QChar::Canonical) c = c.decomposition().front();
    return c.toCaseFolded();
}

QList<Tramo> apariciones(const QString& plegado, const QString& palabra) {
    QList<Tramo> tramos;
    for (auto i = plegado.indexOf(palabra); i >= 0; i = plegado.indexOf(palabra, i + 1))
        if (i == 0 || !plegado[i - 1].isLetterOrNumber()) tramos.append({i, palabra.size()});
    return tramos;
}

}  // namespace

QString Plegar(const QString& texto) {
    QString plegado = texto;
    std::transform(texto.cbegin(), texto.cend(), plegado.begin(), plegar);
    return plegado;
}

QStringList PalabrasBuscadas(const QString& pregunta) {
    QString plegada = Plegar(pregunta.normalized(QString::NormalizationForm_C));
    for (QChar& c : plegada)
        if (!c.isLetterOrNumber()) c = u' ';
    QStringList palabras = plegada.split(u' ', Qt::SkipEmptyParts);
    palabras.removeDuplicates();
    return palabras;
}

QList<Tramo> Apariciones(const QString& texto, const QStringList& palabras) {
    const QString plegado = Plegar(texto);
    QList<Tramo> tramos;
    for (const QString& palabra : palabras) tramos += apariciones(plegado, palabra);
    std::sort(tramos.begin(), tramos.end(),
              [](const Tramo& a, const Tramo& b) { return a.inicio < b.inicio; });
    return tramos;
}

bool ContieneTodas(const QString& texto, const QStringList& palabras) {
    const QString plegado = Plegar(texto);
    return std::all_of(palabras.cbegin(), palabras.cend(), [&](const QString& palabra) {
        return !apariciones(plegado, palabra).isEmpty();
    });
}

}  // namespace padral
