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

    /// Width in pixels under which a column does not go, 0 none.
    using Anchos = std::array<int, ModeloDeclaraciones::Columnas>;
    void PonerMinimos(const Anchos& minimos);
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

    Anchos minimos_{};
};

}  // namespace padral
