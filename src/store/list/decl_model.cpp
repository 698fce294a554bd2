#include "store/list/decl_model.h"

#include <algorithm>

namespace padral {

ModeloDeclaraciones::ModeloDeclaraciones(const cDecLista& lista, QObject* padre)
    : QAbstractTableModel(padre), lista_(lista) {}

void ModeloDeclaraciones::PonerTitulos(const QStringList& titulos) {
    titulos_ = titulos;
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, Columnas - 1);
}

void ModeloDeclaraciones::MostrarFilas(SvrDPadral::ListaDeclaraciones&& filas) {
    beginResetModel();
    filas_ = std::move(filas);
    criterios_ = false;
    endResetModel();
}

void ModeloDeclaraciones::MostrarCriterios() {
    if (criterios_) {
        Q_EMIT dataChanged(index(0, 0), index(0, Columnas - 1));
        return;
    }
    beginResetModel();
    filas_.Vaciar();
    criterios_ = true;
    endResetModel();
}

int ModeloDeclaraciones::rowCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : std::max(1, filas_.Filas());
}

int ModeloDeclaraciones::columnCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : Columnas;
}

QVariant ModeloDeclaraciones::texto(const QModelIndex& indice) const {
    if (criterios_) return lista_.Criterio(indice.column());
    if (indice.row() >= filas_.Filas()) return QString();
    if (indice.column() == 0) return filas_.csde(indice.row());
    return lista_.TextoCelda(filas_, indice.column(), indice.row());
}

QString ModeloDeclaraciones::nombreCriterio(int columna) const {
    const QString valor = lista_.Criterio(columna);
    const QString titulo = titulos_.value(columna);
    return valor.isEmpty() ? titulo : titulo + QStringLiteral(": ") + valor;
}

QVariant ModeloDeclaraciones::data(const QModelIndex& indice, int papel) const {
    if (!indice.isValid()) return {};
    if (papel == Qt::DisplayRole) return texto(indice);
    if (papel == Qt::AccessibleTextRole && criterios_) return nombreCriterio(indice.column());
    if (papel == Qt::TextAlignmentRole && indice.column() == 0)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

QVariant ModeloDeclaraciones::headerData(int seccion, Qt::Orientation orientacion,
                                         int papel) const {
    if (orientacion != Qt::Horizontal) return {};
    if (papel == Qt::DisplayRole) return titulos_.value(seccion);
    if (papel == Qt::TextAlignmentRole) return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    return {};
}

Qt::ItemFlags ModeloDeclaraciones::flags(const QModelIndex& indice) const {
    if (!indice.isValid()) return Qt::NoItemFlags;
    if (criterios_)
        return cDecLista::EsColumnaBuscable(indice.column()) ? Qt::ItemIsEnabled : Qt::NoItemFlags;
    if (indice.row() >= filas_.Filas()) return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}

}  // namespace padral
