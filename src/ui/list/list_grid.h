#pragma once
// The grid of a list: columns in proportion, one row marked, keys of its own.

#include <QTableView>
#include <vector>

#include "ui/list/list_model.h"

namespace padral {

/// Its model is a `ModeloLista`. Column 0, the key, is hidden.
class RejillaLista : public QTableView {
    Q_OBJECT
public:
    /// Widths by column.
    using Anchos = std::vector<int>;

    /// Columns have `proporciones` of the width; `elastica` takes what is left over.
    RejillaLista(const QString& nombre, Anchos proporciones, std::size_t elastica, QWidget* padre);

    /// What each column should have at least, and what it can make do with in a narrow grid, in
    /// pixels.
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
    const ModeloLista& modelo() const;
    void irAFila(int fila);
    void irAlFinal(QKeyEvent* avance);
    bool pideOrden(const QKeyEvent& evento);
    Anchos repartir(int ancho) const;

    const Anchos proporciones_;
    const std::size_t elastica_;
    Anchos minimos_, estrechos_;
};

}  // namespace padral
