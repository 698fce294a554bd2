#pragma once
// State of the declarations list: selection, order, search criteria, and the texts of its rows.

#include <QString>

#include "core/criteria_table.h"
#include "core/fixed_text.h"
#include "store/declarations_server.h"

namespace padral {

struct EstadoCompartido;

/// One per run; it outlives the list screen, so that the list comes back as it was left.
class cDecLista {
public:
    explicit cDecLista(EstadoCompartido& estado) : estado_(estado) {}

    /// Grid columns that sort and take a criterion, 1 to 4.
    static constexpr int ColDni = 1, ColNombre = 2, ColReferencia = 3, ColFecha = 4;
    static bool EsColumnaBuscable(int columna) { return columna >= ColDni && columna <= ColFecha; }

    qint32 csde = 0;   ///< key of the selected declaration, 0 none
    TextoFijo<9> DNI;  ///< of the selected declaration, as are the next ones
    TextoFijo<40> NOMBRE;
    TextoFijo<10> NUMARCHIVO;
    QString FECHADECLARACION;  ///< `yyyymmdd`
    TextoFijo<40> TIPODECLARACION;
    TextoFijo<7> APARTADOS;
    Letra ENTRADA;  ///< "A" open, "E" delete, "P" back with the same list, or blank
    QString ORDEN = QStringLiteral("1");            ///< grid column of the sort, 1 to 4
    Letra Modo;                                     ///< "C" open, "E" delete
    Letra BUSQUEDA = Letra(QStringLiteral("N"));    ///< "N" list, "B" entering criteria
    QString SELECCIONACTUAL = QStringLiteral("0");  ///< column being edited as criterion, 0 none
    QString ETIQUETAAYUDA;                          ///< text of `lblayuda`
    QString ETIQUETARESULTADO;                      ///< text of `lblResultado`
    QString NUMDECLASEL = QStringLiteral("0");      ///< rows in the last result
    QString TIPOORDEN = QStringLiteral("DESC");     ///< "ASC" or "DESC"

    /// The search criteria: pairs of grid column and value, positions from 1.
    void TS_CLEAR() { criterios_.TS_CLEAR(); }
    void TS_AÑADIR(qint16 columna, const QString& valor) { criterios_.TS_AÑADIR(columna, valor); }
    void TS_INSERTAR(qint16 posicion, qint16 columna, const QString& valor) {
        criterios_.TS_INSERTAR(posicion, columna, valor);
    }
    void TS_MODIFICAR(qint16 posicion, qint16 columna, const QString& valor) {
        criterios_.TS_MODIFICAR(posicion, columna, valor);
    }
    void TS_BORRAR(qint16 posicion) { criterios_.TS_BORRAR(posicion); }
    qint16 TS_COUNT() const { return criterios_.TS_COUNT(); }
    void TS_ELEMENTO(qint16 posicion, qint16& columna, QString& valor) const {
        criterios_.TS_ELEMENTO(posicion, columna, valor);
    }
    qint16 TS_PERTENECE(qint16 columna) const { return criterios_.TS_PERTENECE(columna); }

    /// Deletes all participants of a declaration.
    void EliminarParticipes(qint32 clave) const;
    /// Deletes a declaration; the caller deletes its participants first.
    void EliminarDeclaracion(qint32 clave) const;

    /// What the load of the list does with the state, by `ENTRADA`: "A" and "E" start anew, "P"
    /// keeps criteria, order and selection, anything else changes nothing.
    void PrepararEntrada();
    /// Empties the selection.
    void LimpiarSeleccion();
    /// Takes a row of a result as the selection.
    void Seleccionar(const SvrDPadral::ListaDeclaraciones& lista, int fila);
    /// Starts the entry of criteria.
    void IniciarBusqueda();
    /// Drops the criteria and goes back to the list of all.
    void VerTodos();
    /// A click on a header. False, and nothing changes, for a column that does not sort or while
    /// criteria are entered.
    bool OrdenarPor(int columna);
    void InvertirOrden();
    /// Ends the entry of criteria; the column in hand, if any, becomes the order.
    void TerminarBusqueda();
    /// Stores, changes or removes the criterion of a column; blanks remove it.
    void GuardarCriterio(int columna, const QString& valor);
    /// Whether a column takes that text as criterion: a date where one is asked for.
    bool CriterioValido(int columna, const QString& valor) const;
    /// The criterion of a column, empty when there is none.
    QString Criterio(int columna) const;

    bool EnBusqueda() const { return BUSQUEDA == QStringLiteral("B"); }
    bool EnBaja() const { return Modo == QStringLiteral("E"); }
    bool HayFilas() const { return NUMDECLASEL.toInt() >= 1; }
    bool HaySeleccion() const { return csde != 0; }

    /// Runs the query into `resultado` and sets `NUMDECLASEL`.
    void Consultar(SvrDPadral::ListaDeclaraciones& resultado);
    SvrDPadral::CriteriosLista CriteriosServidor() const;
    /// The criteria in words, then what was found, in the language of the run.
    QString LineaResultado() const;
    /// Text of a grid cell, column 0 to 6.
    QString TextoCelda(const SvrDPadral::ListaDeclaraciones& lista, int columna, int fila) const;
    /// Text of column 5: type letter, else request letter, else empty.
    QString TextoTipo(const QString& causa1, const QString& causa2) const;
    /// Text of column 6 from the eight flags: "2,3,AI".
    static QString TextoApartados(const QString& marcas);

private:
    EstadoCompartido& estado_;
    TablaCriterios criterios_;
};

}  // namespace padral
