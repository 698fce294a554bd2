// What ties a search box to a grid, and the search of a row by a number.

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QStandardItemModel>
#include <QTableView>

#include "ui/list/grid_utilities.h"

namespace padral {
namespace {

class UtilidadesGrid : public ::testing::Test {
protected:
    UtilidadesGrid() {
        vista.setModel(&modelo);
        vista.setGeometry(10, 20, 400, 200);
        vista.setSelectionBehavior(QTableView::SelectRows);
        utilidades.Flex = &vista;
        utilidades.txtBusqueda = &caja;
        caja.hide();
    }
    void poner(int fila, int columna, const QVariant& valor) {
        modelo.setData(modelo.index(fila - 1, columna), valor, Qt::DisplayRole);
    }

    QStandardItemModel modelo{4, 3};
    QWidget ventana;
    QTableView vista{&ventana};
    QLineEdit caja{&ventana};
    cUtilidadesGrid utilidades;
};

TEST_F(UtilidadesGrid, BuscarFilaPorValor) {
    poner(1, 0, 10);
    poner(2, 0, QStringLiteral("20"));
    poner(3, 0, 30);
    poner(4, 0, 30);
    EXPECT_EQ(BuscarFilaPorValor(modelo, 0, 10), 1);
    EXPECT_EQ(BuscarFilaPorValor(modelo, 0, 20), 2);
    EXPECT_EQ(BuscarFilaPorValor(modelo, 0, 30), 3);
    EXPECT_EQ(BuscarFilaPorValor(modelo, 0, 99), 1);
    EXPECT_EQ(BuscarFilaPorValor(modelo, 1, 20), 1);
}

TEST_F(UtilidadesGrid, ElValorCeroDaLaPrimeraFila) {
    poner(3, 0, 0);
    EXPECT_EQ(BuscarFilaPorValor(modelo, 0, 0), 1);
}

TEST_F(UtilidadesGrid, SeleccionarGridMarcaLaFilaDelCursor) {
    qint32 anterior = 0;
    vista.setCurrentIndex(modelo.index(1, 2));
    utilidades.SeleccionarGrid(Qt::blue, Qt::yellow, anterior);
    EXPECT_EQ(anterior, 2);
    EXPECT_TRUE(vista.selectionModel()->isRowSelected(1, {}));
    EXPECT_EQ(vista.palette().color(QPalette::Highlight), QColor(Qt::blue));
    EXPECT_EQ(vista.palette().color(QPalette::HighlightedText), QColor(Qt::yellow));
    vista.selectionModel()->setCurrentIndex(modelo.index(3, 1), QItemSelectionModel::NoUpdate);
    utilidades.SeleccionarGrid(Qt::blue, Qt::yellow, anterior);
    EXPECT_EQ(anterior, 4);
    EXPECT_FALSE(vista.selectionModel()->isRowSelected(1, {}));
    EXPECT_TRUE(vista.selectionModel()->isRowSelected(3, {}));
    EXPECT_EQ(vista.currentIndex(), modelo.index(3, 1));
    EXPECT_TRUE(vista.updatesEnabled());
}

TEST_F(UtilidadesGrid, SinCursorNoMarcaNada) {
    qint32 anterior = 3;
    utilidades.SeleccionarGrid(Qt::blue, Qt::yellow, anterior);
    EXPECT_EQ(anterior, 3);
    EXPECT_FALSE(vista.selectionModel()->hasSelection());
}

TEST_F(UtilidadesGrid, LaCajaCubreLaCelda) {
    ventana.resize(500, 300);
    ventana.show();
    vista.setCurrentIndex(modelo.index(2, 1));
    utilidades.PosicionarTxtBusqueda();
    const QRect celda = vista.visualRect(vista.currentIndex());
    EXPECT_TRUE(caja.isVisible());
    EXPECT_EQ(caja.size(), celda.size());
    EXPECT_EQ(caja.mapToGlobal(QPoint()), vista.viewport()->mapToGlobal(celda.topLeft()));
}

TEST_F(UtilidadesGrid, HayAlgunaCondicion) {
    EXPECT_FALSE(utilidades.hayAlgunaCondicion());
    poner(2, 1, QStringLiteral("x"));
    EXPECT_FALSE(utilidades.hayAlgunaCondicion());
    poner(1, 0, QStringLiteral("7"));
    EXPECT_FALSE(utilidades.hayAlgunaCondicion()) << "column 0 is the hidden key";
    poner(1, 2, QStringLiteral("x"));
    EXPECT_TRUE(utilidades.hayAlgunaCondicion());
}

}  // namespace
}  // namespace padral
