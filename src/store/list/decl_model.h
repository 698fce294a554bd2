#pragma once
// The rows of the declarations list for its grid: made when they are painted, kept nowhere.

#include "store/list/dec_lista.h"
#include "ui/list/list_model.h"

namespace padral {

/// Shows the rows of a result, or one row with the search criteria while they are entered. Without
/// rows one blank row shows.
class ModeloDeclaraciones : public ModeloLista {
    Q_OBJECT
public:
    explicit ModeloDeclaraciones(const cDecLista& lista, QObject* padre = nullptr);

    /// Takes the rows of a result.
    void MostrarFilas(SvrDPadral::ListaDeclaraciones&& filas);
    const SvrDPadral::ListaDeclaraciones& Filas() const { return filas_; }

    bool EsColumnaBuscable(int columna) const override;
    QString Criterio(int columna) const override { return lista_.Criterio(columna); }
    int NumFilas() const override { return filas_.Filas(); }

protected:
    QVariant celda(int fila, int columna) const override;
    void vaciar() override { filas_.Vaciar(); }

private:
    const cDecLista& lista_;
    SvrDPadral::ListaDeclaraciones filas_;
};

}  // namespace padral
