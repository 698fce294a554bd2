#pragma once
// What ties the search box of a list screen to its grid.

#include <QColor>

class QAbstractItemModel;
class QLineEdit;
class QTableView;

namespace padral {

/// Grid rows count from 1; row 0 is the header.
class cUtilidadesGrid {
public:
    /// Both are set once, when the screen is made.
    QTableView* Flex = nullptr;
    QLineEdit* txtBusqueda = nullptr;
    /// The box goes over the header of the cursor's column instead of its cell.
    bool SobreCabecera = false;

    /// Marks the row of the cursor with the two colours and takes the mark off `filaAnterior`,
    /// which becomes the row marked. Without a cursor nothing changes.
    void SeleccionarGrid(const QColor& colorFondo, const QColor& colorTexto,
                         qint32& filaAnterior) const;
    /// Places the box over the cell of the cursor, or over its header, and shows it.
    void PosicionarTxtBusqueda() const;
    /// Whether any cell of the criteria row, the first one, holds a value.
    bool hayAlgunaCondicion() const;
};

/// The first row from 1 on whose cell in the column has that numeric value; 1 when there is none
/// or the value is 0.
int BuscarFilaPorValor(const QAbstractItemModel& grid, int columna, qint32 valor);

}  // namespace padral
