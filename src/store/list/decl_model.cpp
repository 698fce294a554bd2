#include "store/list/decl_model.h"

namespace padral {

namespace {

constexpr FormaLista Forma{.columnas = 7};

}  // namespace

ModeloDeclaraciones::ModeloDeclaraciones(const cDecLista& lista, QObject* padre)
    : ModeloLista(Forma, padre), lista_(lista) {}

void ModeloDeclaraciones::MostrarFilas(SvrDPadral::ListaDeclaraciones&& filas) {
    cambiarFilas([&] { filas_ = std::move(filas); });
}

bool ModeloDeclaraciones::EsColumnaBuscable(int columna) const {
    return cDecLista::EsColumnaBuscable(columna);
}

QVariant ModeloDeclaraciones::celda(int fila, int columna) const {
    if (columna == 0) return filas_.csde(fila);
    return lista_.TextoCelda(filas_, columna, fila);
}

}  // namespace padral
