#include "ui/list/grid_utilities.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QTableView>

namespace padral {

namespace {

void ponerColores(QTableView& grid, const QColor& fondo, const QColor& texto) {
    QPalette paleta = grid.palette();
    if (paleta.color(QPalette::Highlight) == fondo &&
        paleta.color(QPalette::HighlightedText) == texto)
        return;
    paleta.setColor(QPalette::Highlight, fondo);
    paleta.setColor(QPalette::HighlightedText, texto);
    grid.setPalette(paleta);
}

}  // namespace

void cUtilidadesGrid::SeleccionarGrid(const QColor& colorFondo, const QColor& colorTexto,
                                      qint32& filaAnterior) const {
    const QModelIndex actual = Flex->currentIndex();
    if (!actual.isValid()) return;
    Flex->setUpdatesEnabled(false);
    ponerColores(*Flex, colorFondo, colorTexto);
    Flex->selectionModel()->select(actual,
                                   QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    filaAnterior = actual.row() + 1;
    Flex->setUpdatesEnabled(true);
}

void cUtilidadesGrid::PosicionarTxtBusqueda() const {
    const auto* cabecera = Flex->horizontalHeader();
    const int columna = Flex->currentIndex().column();
    const QWidget* en = SobreCabecera ? cabecera->viewport() : Flex->viewport();
    const QRect sitio = SobreCabecera ? QRect(cabecera->sectionViewportPosition(columna), 0,
                                              cabecera->sectionSize(columna), cabecera->height())
                                      : Flex->visualRect(Flex->currentIndex());
    const QPoint esquina = en->mapTo(txtBusqueda->parentWidget(), sitio.topLeft());
    txtBusqueda->setGeometry(QRect(esquina, sitio.size()));
    txtBusqueda->show();
    txtBusqueda->raise();
}

bool cUtilidadesGrid::hayAlgunaCondicion() const {
    const QAbstractItemModel& modelo = *Flex->model();
    for (int columna = 1; columna < modelo.columnCount(); ++columna)
        if (!modelo.index(0, columna).data().toString().isEmpty()) return true;
    return false;
}

int BuscarFilaPorValor(const QAbstractItemModel& grid, int columna, qint32 valor) {
    if (valor == 0) return 1;
    const int filas = grid.rowCount();
    for (int fila = 0; fila < filas; ++fila) {
        bool esNumero = false;
        const auto celda = grid.index(fila, columna).data().toLongLong(&esNumero);
        if (esNumero && celda == valor) return fila + 1;
    }
    return 1;
}

}  // namespace padral
