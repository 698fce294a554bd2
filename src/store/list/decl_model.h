#pragma once
// The rows of the declarations list for its grid: made when they are painted, kept nowhere.

#include <QAbstractTableModel>
#include <QStringList>

#include "store/list/dec_lista.h"

namespace padral {

/// Shows the rows of a result, or one blank row with the search criteria while they are entered.
/// Without rows one blank row shows too. Row 0 of the model is row 1 of the grid.
class ModeloDeclaraciones : public QAbstractTableModel {
    Q_OBJECT
public:
    static constexpr int Columnas = 7;

    explicit ModeloDeclaraciones(const cDecLista& lista, QObject* padre = nullptr);

    /// Captions of the columns.
    void PonerTitulos(const QStringList& titulos);
    /// Takes the rows of a result.
    void MostrarFilas(SvrDPadral::ListaDeclaraciones&& filas);
    /// Shows the criteria of the list as they are now.
    void MostrarCriterios();

    bool EnCriterios() const { return criterios_; }
    const SvrDPadral::ListaDeclaraciones& Filas() const { return filas_; }

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    /// Column 0 is a number, the others are texts.
    QVariant data(const QModelIndex& indice, int papel) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;
    Qt::ItemFlags flags(const QModelIndex& indice) const override;

private:
    QVariant texto(const QModelIndex& indice) const;
    /// What is read aloud for a cell of the criteria: its header and its value.
    QString nombreCriterio(int columna) const;

    const cDecLista& lista_;
    SvrDPadral::ListaDeclaraciones filas_;
    QStringList titulos_;
    bool criterios_ = false;
};

}  // namespace padral
