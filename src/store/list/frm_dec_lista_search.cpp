// What the search of the declarations list takes in each column.

#include "core/field_rules.h"
#include "store/list/frm_dec_lista.h"

namespace padral {

namespace {

enum : int {
    FechaNoValida = 151,
    ErrorBusqueda = 580,
};

/// Characters that a criterion takes, by column 1 to 4.
constexpr int AnchoCriterio[] = {9, 40, 10, 10};

}  // namespace

FrmDecLista::Entrada FrmDecLista::entradaDe(int columna) const {
    const auto filtro = columna == cDecLista::ColFecha ? &FiltrarTeclaFecha : &FiltrarTecla;
    return {AnchoCriterio[columna - 1], filtro};
}

bool FrmDecLista::tomarCriterio(int columna, const QString& valor) {
    if (!lista_.CriterioValido(columna, valor)) {
        estado_.avisador.Mostrar(
            {Texto(FechaNoValida), Texto(ErrorBusqueda), Icono::Exclamacion, Botones::Aceptar});
        return false;
    }
    lista_.GuardarCriterio(columna, valor);
    return true;
}

}  // namespace padral
