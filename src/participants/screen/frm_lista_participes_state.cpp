// How the commands of the participants list change its state.

#include "participants/screen/frm_lista_participes.h"
#include "store/list/dec_lista_criteria.h"

namespace padral {

namespace {

const QString Ascendente = QStringLiteral("ASC");
const QString Descendente = QStringLiteral("DESC");
const QString EnLista = QStringLiteral("N");

}  // namespace

bool frmListaParticipes::ordenAscendente() const { return lista_.TIPOORDEN == Ascendente; }

void frmListaParticipes::iniciarBusqueda() {
    lista_.BUSQUEDA = QStringLiteral("B");
    lista_.cspa = 0;
    lista_.SELECCIONACTUAL = ModeloParticipes::Dni;
    lista_.TS_CLEAR();
    lista_.NUMPARTLIST = 0;
}

void frmListaParticipes::acabarBusqueda() {
    lista_.ORDEN = lista_.SELECCIONACTUAL;
    lista_.BUSQUEDA = EnLista;
    lista_.TIPOORDEN = Ascendente;
}

void frmListaParticipes::quitarCriterios() {
    lista_.BUSQUEDA = EnLista;
    lista_.ORDEN = 0;
    lista_.cspa = 0;
    lista_.TIPOORDEN = Descendente;
    lista_.SELECCIONACTUAL = 0;
    lista_.TS_CLEAR();
}

void frmListaParticipes::tomarColumna(int columna) {
    lista_.SELECCIONACTUAL = static_cast<qint16>(columna);
}

bool frmListaParticipes::tomarCriterio(int columna, const QString& valor) {
    GuardarCriterio(lista_, columna, valor);
    return true;
}

bool frmListaParticipes::tomarOrden(int columna) {
    if (enBusqueda() || !modelo_->EsColumnaBuscable(columna)) return false;
    lista_.ORDEN = static_cast<qint16>(columna);
    lista_.TIPOORDEN = Ascendente;
    return true;
}

void frmListaParticipes::tomarOrdenInverso() {
    lista_.TIPOORDEN = ordenAscendente() ? Descendente : Ascendente;
}

}  // namespace padral
