// The words of the list: its cells and the line that says what was searched and found.

#include "core/shared_state.h"
#include "store/list/dec_lista.h"
#include "store/list/dec_lista_criteria.h"

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

QString cDecLista::LineaResultado() const {
    return padral::LineaResultado(estado_, criterios_, ColFecha, NUMDECLASEL.toInt(),
                                  Declaraciones);
}

}  // namespace padral
