#include "store/list/dec_lista_criteria.h"

#include "core/shared_state.h"

namespace padral {

namespace {

/// Words before and behind a criterion, in both languages.
struct FraseCriterio {
    const char16_t *antes, *despues;
    const char16_t *antesEuskera, *despuesEuskera;
};

/// By column, from 1 on.
constexpr FraseCriterio Frases[] = {
    {u"DNI >= ", u" ", u". NA >= ", u" "},
    {u"Nombre empieza por '", u"' ", u". Izena '", u"'-kin hasten da "},
    {u"Referencia empieza por '", u"' ", u". Erreferentzia '", u"'-kin hasten da "},
    {u"Fecha >= '", u"' ", u"Data >= '", u"' "},
};
constexpr FraseCriterio FraseDesconocida = {u"Selección desconocida: '", u"' ",
                                            u"Hautapen ezezaguna: '", u"' "};
constexpr int SinDatos = 574;

}  // namespace

void GuardarCriterio(TablaCriterios& tabla, int columna, const QString& valor) {
    const auto clave = static_cast<qint16>(columna);
    const qint16 posicion = tabla.TS_PERTENECE(clave);
    const bool vacio = valor.trimmed().isEmpty();
    if (posicion == 0 && !vacio)
        tabla.TS_AÑADIR(clave, valor);
    else if (posicion != 0 && !vacio)
        tabla.TS_MODIFICAR(posicion, clave, valor);
    else if (posicion != 0)
        tabla.TS_BORRAR(posicion);
}

QString CriterioDe(const TablaCriterios& tabla, int columna) {
    auto clave = static_cast<qint16>(columna);
    QString valor;
    tabla.TS_ELEMENTO(tabla.TS_PERTENECE(clave), clave, valor);
    return valor;
}

QString DescribirCriterio(const EstadoCompartido& estado, int columna, const QString& valor,
                          int columnas) {
    if (columna == 0) return {};
    const bool conocida = columna > 0 && columna <= columnas;
    const FraseCriterio& frase = conocida ? Frases[columna - 1] : FraseDesconocida;
    return estado.SegunIdioma(
        QString::fromUtf16(frase.antes) + valor + QString::fromUtf16(frase.despues),
        QString::fromUtf16(frase.antesEuskera) + valor + QString::fromUtf16(frase.despuesEuskera));
}

QString DescribirCriterios(const EstadoCompartido& estado, const TablaCriterios& tabla,
                           int columnas) {
    QString linea;
    for (qint16 posicion = 1; posicion <= tabla.TS_COUNT(); ++posicion) {
        qint16 columna = 0;
        QString valor;
        tabla.TS_ELEMENTO(posicion, columna, valor);
        linea += DescribirCriterio(estado, columna, valor, columnas);
    }
    return linea;
}

QString LineaResultado(const EstadoCompartido& estado, const TablaCriterios& tabla, int columnas,
                       int filas, int textoFilas) {
    const QString linea = DescribirCriterios(estado, tabla, columnas);
    if (filas < 1) return linea + estado.Texto(SinDatos);
    return linea + QString::number(filas) + estado.Texto(textoFilas);
}

}  // namespace padral
