// The words of the list: its cells and the line that says what was searched and found.

#include "core/shared_state.h"
#include "store/list/dec_lista.h"

namespace padral {

using SvrDPadral::ListaDeclaraciones;

namespace {

struct LetraTexto {
    char16_t letra;
    int texto;
};

constexpr LetraTexto TiposDeclaracion[] = {{u'P', 582}, {u'M', 583}, {u'C', 584}, {u'I', 585}};
constexpr LetraTexto Solicitudes[] = {{u'A', 586}, {u'B', 587}, {u'C', 402},
                                      {u'D', 588}, {u'E', 589}, {u'F', 590}};

/// Words before and behind a criterion, in both languages.
struct FraseCriterio {
    qint16 columna;
    const char16_t *antes, *despues;
    const char16_t *antesEuskera, *despuesEuskera;
};

constexpr FraseCriterio Frases[] = {
    {1, u"DNI >= ", u" ", u". NA >= ", u" "},
    {2, u"Nombre empieza por '", u"' ", u". Izena '", u"'-kin hasten da "},
    {3, u"Referencia empieza por '", u"' ", u". Erreferentzia '", u"'-kin hasten da "},
    {4, u"Fecha >= '", u"' ", u"Data >= '", u"' "},
};
constexpr FraseCriterio FraseDesconocida = {0, u"Selección desconocida: '", u"' ",
                                            u"Hautapen ezezaguna: '", u"' "};

constexpr int SinDatos = 574;
constexpr int Declaraciones = 575;

template <std::size_t N>
int textoDeLetra(const LetraTexto (&tabla)[N], const QString& valor) {
    const QString letra = valor.trimmed();
    for (const auto& fila : tabla)
        if (letra == fila.letra) return fila.texto;
    return 0;
}

}  // namespace

QString cDecLista::TextoCelda(const ListaDeclaraciones& lista, int columna, int fila) const {
    switch (columna) {
        case 0:
            return QString::number(lista.csde(fila));
        case ColFecha:
            return estado_.fecha.LongToString(lista.fecha(fila));
        case 5:
            return TextoTipo(lista.texto(ListaDeclaraciones::Causa1, fila),
                             lista.texto(ListaDeclaraciones::Causa2, fila));
        case 6:
            return TextoApartados(lista.texto(ListaDeclaraciones::Apartados, fila));
        default:
            return lista.texto(static_cast<ListaDeclaraciones::Columna>(columna), fila).toUpper();
    }
}

QString cDecLista::TextoTipo(const QString& causa1, const QString& causa2) const {
    int texto = textoDeLetra(TiposDeclaracion, causa1);
    if (texto == 0) texto = textoDeLetra(Solicitudes, causa2);
    return texto == 0 ? QString() : estado_.Texto(texto);
}

QString cDecLista::TextoApartados(const QString& marcas) {
    constexpr qsizetype AnexoI = 6;
    constexpr qsizetype AnexoII = 7;
    QStringList partes;
    for (qsizetype i = 0; i < marcas.size() && i <= AnexoII; ++i) {
        if (marcas[i] != u'X') continue;
        if (i < AnexoI)
            partes << QString::number(i + 2);
        else
            partes << (i == AnexoI ? QStringLiteral("AI") : QStringLiteral("AII"));
    }
    return partes.join(u',');
}

QString cDecLista::descripcion(qint16 columna, const QString& valor) const {
    const FraseCriterio* frase = &FraseDesconocida;
    for (const auto& f : Frases)
        if (f.columna == columna) frase = &f;
    return estado_.SegunIdioma(
        QString::fromUtf16(frase->antes) + valor + QString::fromUtf16(frase->despues),
        QString::fromUtf16(frase->antesEuskera) + valor +
            QString::fromUtf16(frase->despuesEuskera));
}

QString cDecLista::LineaResultado() const {
    QString linea;
    for (qint16 posicion = 1; posicion <= TS_COUNT(); ++posicion) {
        qint16 columna = 0;
        QString valor;
        TS_ELEMENTO(posicion, columna, valor);
        linea += descripcion(columna, valor);
    }
    if (!HayFilas()) return linea + estado_.Texto(SinDatos);
    return linea + NUMDECLASEL + estado_.Texto(Declaraciones);
}

}  // namespace padral
