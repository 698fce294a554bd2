#include "participants/screen/frm_lista_participes_model.h"

#include "core/field_rules.h"
#include "store/list/dec_lista_criteria.h"

namespace padral {

namespace {

constexpr FormaLista Forma{
    .columnas = ModeloParticipes::Columnas, .pagina = 15, .criterios = SitioCriterios::Cabecera};

/// Element of the participant's row, by column of the grid.
constexpr int Elementos[] = {0, 2, 3, 5, 14, 15};
static_assert(std::size(Elementos) == ModeloParticipes::Columnas);

}  // namespace

ModeloParticipes::ModeloParticipes(const cParLista& lista, QObject* padre)
    : ModeloLista(Forma, padre), lista_(lista) {}

void ModeloParticipes::MostrarFilas(const Tabla& filas) {
    cambiarFilas([&] { filas_ = filas; });
}

float ModeloParticipes::PorcentajeDe(int fila) const {
    return filas_(Elementos[Porcentaje], fila).toFloat();
}

int ModeloParticipes::FilaDe(const QString& dni) const {
    for (int fila = 0; fila < NumFilas(); ++fila)
        if (Texto(fila, Dni) == dni) return fila;
    return -1;
}

bool ModeloParticipes::EsColumnaBuscable(int columna) const {
    return columna == Dni || columna == Nombre;
}

QString ModeloParticipes::Criterio(int columna) const { return CriterioDe(lista_, columna); }

bool ModeloParticipes::esNumero(int columna) const {
    return columna == Clave || columna == Porcentaje;
}

QVariant ModeloParticipes::celda(int fila, int columna) const {
    const QVariant valor = filas_(Elementos[columna], fila);
    if (columna == Clave) return valor.toInt();
    if (columna == Porcentaje)
        return ValorFormateado(QString::number(valor.toFloat()), QStringLiteral("##0.00"));
    return valor.toString().trimmed().toUpper();
}

}  // namespace padral
