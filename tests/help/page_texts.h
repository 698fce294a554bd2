#pragma once
// What a help page quotes from the screens: captions in bold type, messages between « and ».

#include <QRegularExpression>
#include <QSet>
#include <QStringList>

#include "core/text_catalogue.h"

namespace padral::pruebas {

/// In bold type, and in no catalogue text: captions that are the same in both languages, names of
/// files and folders, words that are only stressed.
struct TextoAjeno {
    const char16_t* carpeta;
    const char16_t* texto;
};
constexpr TextoAjeno Ajenos[] = {
    {u"es", u"backups"},
    {u"es", u"DPadralMod_bak.mdb"},
    {u"es",
     u"¿desea que se le informe sobre la existencia de actualizaciones cada vez que se inicie el "
     u"programa?"},
    {u"es", u"Actualizar versión"},
    {u"es", u"Erabilgarria / Disponible"},
    {u"es", u"Oraingoa / Actual"},
    {u"es", u"Deskarga helbidea / Dirección de descarga"},
    {u"es", u"Argibideak / Información"},
    {u"es", u"Fitxategia / Fichero"},
    {u"es", u"Deskargatu Descargar"},
    {u"es", u"Aurrera jarraitu... Continuar..."},
    {u"es", u"Berriro kontsulta ez egin / No volver a consultar"},
    {u"es", u"el programa termina"},
    {u"es", u"Persona física"},
    {u"es", u"Entidad o comunidad"},
    {u"es", u"Sociedad"},
    {u"eu", u"backups"},
    {u"eu", u"DPadralMod_bak.mdb"},
    {u"eu", u"Castellano"},
    {u"eu", u"Euskera"},
    {u"eu", u"programa abiatzen den bakoitzean eguneratzerik dagoen jakinaraztea nahi duzu?"},
    {u"eu", u"Actualizar versión"},
    {u"eu", u"Erabilgarria / Disponible"},
    {u"eu", u"Oraingoa / Actual"},
    {u"eu", u"Deskarga helbidea / Dirección de descarga"},
    {u"eu", u"Argibideak / Información"},
    {u"eu", u"Fitxategia / Fichero"},
    {u"eu", u"Deskargatu Descargar"},
    {u"eu", u"Aurrera jarraitu... Continuar..."},
    {u"eu", u"Berriro kontsulta ez egin / No volver a consultar"},
    {u"eu", u"programa amaitu egiten da"},
    {u"eu", u"Pertsona fisikoa"},
    {u"eu", u"Entitatea edo erkidegoa"},
    {u"eu", u"Sozietatea"},
};

inline QSet<QString> TextosAjenos(const QString& carpeta) {
    QSet<QString> textos;
    for (const auto& cada : Ajenos)
        if (carpeta == QString::fromUtf16(cada.carpeta)) textos << QString::fromUtf16(cada.texto);
    return textos;
}

/// As it is read: one blank between words, without the mark of the access key nor the dash before
/// a line of a section nor the colon behind a caption.
inline QString ComoSeLee(QString texto) {
    texto = texto.remove(u'&').simplified();
    if (texto.startsWith(QStringLiteral("- "))) texto.remove(0, 2);
    if (texto.endsWith(u':')) texto.chop(1);
    return texto;
}

/// The catalogue texts of a language, as they stand in the table.
inline QStringList TextosDelCatalogo(const QString& carpeta) {
    const CatalogoTextos catalogo;
    const int base =
        carpeta == QStringLiteral("eu") ? int{CatalogoTextos::DesplazamientoEuskera} : 0;
    QStringList textos;
    for (int id = 1; id <= 999; ++id)
        if (catalogo.Existe(base + id)) textos << catalogo.Texto(base + id);
    return textos;
}

/// What stands between two marks, without the tags inside.
inline QStringList EntreMarcas(const QString& html, const QString& inicio, const QString& fin) {
    static const QRegularExpression etiqueta(QStringLiteral("<[^>]*>"));
    const QRegularExpression tramo(inicio + QStringLiteral("(.*?)") + fin,
                                   QRegularExpression::DotMatchesEverythingOption);
    QStringList tramos;
    for (auto cada = tramo.globalMatch(html); cada.hasNext();)
        tramos << cada.next().captured(1).remove(etiqueta).simplified();
    return tramos;
}

inline QStringList Rotulos(const QString& html) {
    return EntreMarcas(html, QStringLiteral("<b>"), QStringLiteral("</b>"));
}
inline QStringList Citas(const QString& html) {
    return EntreMarcas(html, QStringLiteral("«"), QStringLiteral("»"));
}

/// Whether the quote is a text or the whole words with which it begins.
inline bool EsComienzo(const QString& cita, const QString& texto) {
    return texto.startsWith(cita) &&
           (texto.size() == cita.size() || !texto[cita.size()].isLetterOrNumber());
}

/// Letters named as "Alt+X, <b>caption</b>", each with its caption.
struct TeclaNombrada {
    QString letra;
    QString rotulo;
};
inline QList<TeclaNombrada> TeclasNombradas(const QString& html) {
    static const QRegularExpression forma(QStringLiteral("Alt\\+(\\S), <b>([^<]*)</b>"));
    QList<TeclaNombrada> teclas;
    for (auto cada = forma.globalMatch(html.simplified()); cada.hasNext();) {
        const auto hallada = cada.next();
        teclas << TeclaNombrada{hallada.captured(1), hallada.captured(2)};
    }
    return teclas;
}

}  // namespace padral::pruebas
