#include "ui/list/list_model.h"

#include <algorithm>

namespace padral {

void ModeloLista::PonerTitulos(const QStringList& titulos) {
    titulos_ = titulos;
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, forma_.columnas - 1);
}

void ModeloLista::MostrarCriterios() {
    if (criterios_)
        Q_EMIT dataChanged(index(0, 0), index(0, forma_.columnas - 1));
    else
        cambiar(true, [this] { vaciar(); });
    if (Sitio() == SitioCriterios::Cabecera)
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, forma_.columnas - 1);
}

void ModeloLista::cambiar(bool criterios, const std::function<void()>& cambio) {
    beginResetModel();
    cambio();
    criterios_ = criterios;
    endResetModel();
}

int ModeloLista::rowCount(const QModelIndex& padre) const {
    if (padre.isValid()) return 0;
    const int ultima = std::max(0, NumFilas() - 1);
    return (ultima / forma_.pagina + 1) * forma_.pagina;
}

int ModeloLista::columnCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : forma_.columnas;
}

QVariant ModeloLista::texto(const QModelIndex& indice) const {
    if (criterios_ && Sitio() == SitioCriterios::PrimeraFila && indice.row() == 0)
        return Criterio(indice.column());
    if (indice.row() >= NumFilas()) return QString();
    return celda(indice.row(), indice.column());
}

QString ModeloLista::nombreCriterio(int columna) const {
    const QString valor = Criterio(columna);
    const QString titulo = Titulo(columna);
    return valor.isEmpty() ? titulo : titulo + QStringLiteral(": ") + valor;
}

QVariant ModeloLista::data(const QModelIndex& indice, int papel) const {
    if (!indice.isValid()) return {};
    if (papel == Qt::DisplayRole) return texto(indice);
    if (papel == Qt::AccessibleTextRole && criterios_) return nombreCriterio(indice.column());
    if (papel == Qt::TextAlignmentRole && esNumero(indice.column()))
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

QVariant ModeloLista::headerData(int seccion, Qt::Orientation orientacion, int papel) const {
    if (orientacion != Qt::Horizontal) return {};
    const bool conCriterio = criterios_ && Sitio() == SitioCriterios::Cabecera;
    if (papel == Qt::DisplayRole) return conCriterio ? nombreCriterio(seccion) : Titulo(seccion);
    if (papel == Qt::TextAlignmentRole)
        return QVariant((esNumero(seccion) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    return {};
}

Qt::ItemFlags ModeloLista::flags(const QModelIndex& indice) const {
    if (!indice.isValid()) return Qt::NoItemFlags;
    if (criterios_) return EsColumnaBuscable(indice.column()) ? Qt::ItemIsEnabled : Qt::NoItemFlags;
    if (indice.row() >= NumFilas()) return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}

}  // namespace padral
