#pragma once
// The rows of the participants list for its grid.

#include "participants/participants_list.h"
#include "ui/list/list_model.h"

namespace padral {

/// Shows the rows of the auxiliary list in whole pages of 15; the criteria stand in the header
/// while they are entered.
class ModeloParticipes : public ModeloLista {
    Q_OBJECT
public:
    /// Columns of the grid; the first two behind the key sort and take a criterion.
    enum : int { Clave, Dni, Nombre, Domicilio, Municipio, Porcentaje, Columnas };

    explicit ModeloParticipes(const cParLista& lista, QObject* padre = nullptr);

    /// Takes rows of the 20 values of a participant.
    void MostrarFilas(const Tabla& filas);
    QString Texto(int fila, int columna) const { return celda(fila, columna).toString(); }
    float PorcentajeDe(int fila) const;
    /// The row with that identifier, from 0; -1 when there is none.
    int FilaDe(const QString& dni) const;

    bool EsColumnaBuscable(int columna) const override;
    QString Criterio(int columna) const override;
    int NumFilas() const override { return filas_.Filas(); }

protected:
    QVariant celda(int fila, int columna) const override;
    void vaciar() override { filas_ = {}; }
    bool esNumero(int columna) const override;

private:
    const cParLista& lista_;
    Tabla filas_;
};

}  // namespace padral
