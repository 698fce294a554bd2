#pragma once
// The rows of a list for its grid, or the search criteria while they are entered.

#include <QAbstractTableModel>
#include <QStringList>
#include <functional>

namespace padral {

/// Where the criteria stand while they are entered.
enum class SitioCriterios {
    PrimeraFila,  ///< in the first row of the grid
    Cabecera,     ///< in the header, behind the captions
};

/// The grid of a list.
struct FormaLista {
    int columnas;    ///< the key, column 0, included
    int pagina = 1;  ///< the grid has whole pages of so many rows, one page at least
    SitioCriterios criterios = SitioCriterios::PrimeraFila;
};

/// Row 0 of the model is row 1 of the grid. Rows that fill a page up are blank and take no
/// selection.
class ModeloLista : public QAbstractTableModel {
    Q_OBJECT
public:
    ModeloLista(const FormaLista& forma, QObject* padre)
        : QAbstractTableModel(padre), forma_(forma) {}

    /// Captions of the columns.
    void PonerTitulos(const QStringList& titulos);
    QString Titulo(int columna) const { return titulos_.value(columna); }
    /// Empties the list and shows the criteria as they are now.
    void MostrarCriterios();

    bool EnCriterios() const { return criterios_; }
    SitioCriterios Sitio() const { return forma_.criterios; }
    /// Whether a column sorts and takes a criterion.
    virtual bool EsColumnaBuscable(int columna) const = 0;
    /// The criterion of a column, empty when there is none.
    virtual QString Criterio(int columna) const = 0;
    /// Rows of the list, without those that fill a page up.
    virtual int NumFilas() const = 0;

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    /// Column 0 is a number, the others are texts.
    QVariant data(const QModelIndex& indice, int papel) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;
    Qt::ItemFlags flags(const QModelIndex& indice) const override;

protected:
    /// A cell of a row of the list.
    virtual QVariant celda(int fila, int columna) const = 0;
    virtual void vaciar() = 0;
    /// Numbers stand at the right edge.
    virtual bool esNumero(int columna) const { return columna == 0; }
    /// Changes the rows, and shows them.
    void cambiarFilas(const std::function<void()>& cambio) { cambiar(false, cambio); }

private:
    void cambiar(bool criterios, const std::function<void()>& cambio);
    QVariant texto(const QModelIndex& indice) const;
    /// The caption of a column and its criterion.
    QString nombreCriterio(int columna) const;

    const FormaLista forma_;
    QStringList titulos_;
    bool criterios_ = false;
};

}  // namespace padral
