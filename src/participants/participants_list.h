#pragma once
// State of the participants list: current row, sort, search criteria.

#include "core/criteria_table.h"
#include "declaration/general_data.h"
#include "participants/participant.h"

namespace padral {

/// The properties of the list with their initial values.
struct DatosParLista {
    bool Inicializado = false;  ///< set by the first InicializarListaParticipes
    qint32 cspa = 0;            ///< participant of the current row; the next five are its too
    TextoFijo<9> DNI;
    TextoFijo<40> NOMBRE;
    TextoFijo<30> DOMICILIO;
    TextoFijo<25> MUNICIPIO;
    qint32 PORCENTAJE = 0;
    Letra MODOPART = QStringLiteral("C");
    qint16 ORDEN = 0;                           ///< column of the sort
    Letra BUSQUEDA = QStringLiteral("N");       ///< "N" list, "B" entering search criteria
    qint16 SELECCIONACTUAL = 0;                 ///< column whose criterion is being entered
    qint16 NUMPARTLIST = 0;                     ///< rows of the list
    QString TIPOORDEN = QStringLiteral("ASC");  ///< "ASC" or "DESC"
    bool MODIFLISTAPART = false;                ///< the list has changed

    bool operator==(const DatosParLista&) const = default;
};

/// The list's record; its table of criteria has the columns of the list as keys.
class cParLista : public DatosParLista, public TablaCriterios {
public:
    /// `declaracion` receives the number of participants loaded; `rutaBDModificacion` goes to
    /// each participant.
    cParLista(Participantes& participantes, EstadoDeclaracion& declaracion,
              const cDatosGenerales& generales, const ConsultasCatalogo& catalogo,
              const QString& rutaBDModificacion)
        : participantes_(participantes),
          declaracion_(declaracion),
          generales_(generales),
          catalogo_(catalogo),
          rutaBDModificacion_(rutaBDModificacion) {}

    /// Builds the collection from one row per participant, as many as the general data count. Each
    /// becomes "A" in a new declaration or copy, else "C". Leaves no current participant.
    void CargarDatos(const Tabla& filas);
    /// Initialises the first time only.
    void InicializarListaParticipes();
    /// Every property to its initial value, no criteria.
    void Inicializar();
    /// The collection needs no second copy here.
    void VolcarColeccionEnTablaAuxiliar() {}
    /// Lets the collection go.
    void LimpiarTablaParticipes() { participantes_.colParticipes.clear(); }

private:
    Participantes& participantes_;
    EstadoDeclaracion& declaracion_;
    const cDatosGenerales& generales_;
    const ConsultasCatalogo& catalogo_;
    const QString& rutaBDModificacion_;
};

}  // namespace padral
