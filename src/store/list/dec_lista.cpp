#include "store/list/dec_lista.h"

#include "core/shared_state.h"
#include "store/list/dec_lista_criteria.h"

namespace padral {

using SvrDPadral::cDeclaracionesSvr;
using SvrDPadral::CriteriosLista;
using SvrDPadral::ListaDeclaraciones;

namespace {

const QString Ascendente = QStringLiteral("ASC");
const QString Descendente = QStringLiteral("DESC");
const QString NingunaColumna = QStringLiteral("0");

cDeclaracionesSvr servidor(const EstadoCompartido& estado) {
    cDeclaracionesSvr svr;
    svr.mdbname = estado.RutaBDModificacion;
    return svr;
}

}  // namespace

void cDecLista::EliminarParticipes(qint32 clave) const {
    servidor(estado_).EliminarParticipes(clave);
}

void cDecLista::EliminarDeclaracion(qint32 clave) const {
    servidor(estado_).EliminarDeclaracion(clave);
}

void cDecLista::PrepararEntrada() {
    const QString modo = QStringLiteral("C");
    if (ENTRADA == QStringLiteral("A") || ENTRADA == QStringLiteral("E")) {
        LimpiarSeleccion();
        ORDEN = QString::number(ColDni);
        Modo = ENTRADA == QStringLiteral("E") ? QStringLiteral("E") : modo;
        BUSQUEDA = QStringLiteral("N");
        TIPOORDEN = Descendente;
        TS_CLEAR();
        SELECCIONACTUAL = NingunaColumna;
    } else if (ENTRADA == QStringLiteral("P")) {
        Modo = modo;
        BUSQUEDA = QStringLiteral("N");
    }
}

void cDecLista::LimpiarSeleccion() {
    csde = 0;
    DNI = QString();
    NOMBRE = QString();
    NUMARCHIVO = QString();
    TIPODECLARACION = QString();
    APARTADOS = QString();
    FECHADECLARACION.clear();
}

void cDecLista::Seleccionar(const ListaDeclaraciones& lista, int fila) {
    csde = lista.csde(fila);
    DNI = TextoCelda(lista, 1, fila);
    NOMBRE = TextoCelda(lista, 2, fila);
    NUMARCHIVO = TextoCelda(lista, 3, fila);
    FECHADECLARACION = QString::number(lista.fecha(fila));
    TIPODECLARACION = TextoCelda(lista, 5, fila);
    APARTADOS = TextoCelda(lista, 6, fila);
}

void cDecLista::IniciarBusqueda() {
    BUSQUEDA = QStringLiteral("B");
    csde = 0;
    NUMDECLASEL = QStringLiteral("0");
    ENTRADA = QString();
    SELECCIONACTUAL = NingunaColumna;
    TS_CLEAR();
}

void cDecLista::VerTodos() {
    BUSQUEDA = QStringLiteral("N");
    ORDEN = QString::number(ColDni);
    csde = 0;
    TIPOORDEN = Descendente;
    ENTRADA = QString();
    SELECCIONACTUAL = NingunaColumna;
    TS_CLEAR();
}

bool cDecLista::OrdenarPor(int columna) {
    if (EnBusqueda() || !EsColumnaBuscable(columna)) return false;
    ORDEN = QString::number(columna);
    ENTRADA = QString();
    // The newest declarations come first.
    TIPOORDEN = columna == ColFecha ? Descendente : Ascendente;
    return true;
}

void cDecLista::InvertirOrden() { TIPOORDEN = TIPOORDEN == Ascendente ? Descendente : Ascendente; }

void cDecLista::TerminarBusqueda() {
    if (const int columna = SELECCIONACTUAL.toInt(); EsColumnaBuscable(columna))
        ORDEN = QString::number(columna);
    SELECCIONACTUAL = NingunaColumna;
    BUSQUEDA = QStringLiteral("N");
    TIPOORDEN = Ascendente;
}

void cDecLista::GuardarCriterio(int columna, const QString& valor) {
    padral::GuardarCriterio(criterios_, columna, valor);
}

bool cDecLista::CriterioValido(int columna, const QString& valor) const {
    return columna != ColFecha || valor.trimmed().isEmpty() || estado_.fecha.EsFecha(valor);
}

QString cDecLista::Criterio(int columna) const { return CriterioDe(criterios_, columna); }

CriteriosLista cDecLista::CriteriosServidor() const {
    CriteriosLista criterios;
    for (int columna = ColDni; columna <= ColFecha; ++columna) {
        QString valor = Criterio(columna);
        if (columna == ColFecha && !valor.isEmpty())
            valor = QString::number(estado_.fecha.StringToLong(valor));
        criterios[static_cast<std::size_t>(columna)] = valor;
    }
    return criterios;
}

void cDecLista::Consultar(ListaDeclaraciones& resultado) {
    NUMDECLASEL =
        servidor(estado_).DameDeclaraciones(CriteriosServidor(), resultado, ORDEN, TIPOORDEN);
}

}  // namespace padral
