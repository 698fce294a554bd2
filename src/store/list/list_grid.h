#pragma once
// The grid of the declarations list: columns in proportion, one row marked, keys of its own.

#include <QTableView>
#include <array>

#include "store/list/decl_model.h"

namespace padral {

class RejillaDeclaraciones : public QTableView {
    Q_OBJECT
public:
    explicit RejillaDeclaraciones(QWidget* padre = nullptr);

    /// Widths in pixels by column.
    using Anchos = std::array<int, ModeloDeclaraciones::Columnas>;
    /// What each column should have at least, and what it can make do with in a narrow grid.
    void PonerMinimos(const Anchos& minimos, const Anchos& estrechos);
    /// After `setModel`: hides the key and shares the width out.
    void AjustarColumnas();
    /// Pixels that a text takes in a cell, its margins included.
    int AnchoTexto(const QString& texto) const;
    /// The part of the header over a column, in coordinates of the header's viewport.
    QRect CabeceraDe(int columna) const;

    /// Nothing: letters typed on the grid search nothing.
    void keyboardSearch(const QString&) override {}

Q_SIGNALS:
    /// Enter.
    void intro();
    /// Ctrl and the number of a column: the same as a click on its header.
    void ordenPedido(int columna);
    /// An arrow to the left (-1) or right (1) while criteria are entered.
    void pasoDeColumna(int paso);
    /// Columns or the grid itself have moved.
    void geometriaCambiada();

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void moveEvent(QMoveEvent* evento) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    bool enCriterios() const;
    void irAFila(int fila);
    bool pideOrden(const QKeyEvent& evento);
    Anchos repartir(int ancho) const;

    Anchos minimos_{}, estrechos_{};
};

}  // namespace padral
