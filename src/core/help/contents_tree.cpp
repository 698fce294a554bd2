#include "core/help/contents_tree.h"

#include <QHeaderView>
#include <QTreeWidgetItemIterator>

namespace padral {

namespace {

constexpr int RolPagina = Qt::UserRole;

}  // namespace

ArbolContenido::ArbolContenido(QWidget* padre) : QTreeWidget(padre) {
    setObjectName(QStringLiteral("treContenido"));
    setHeaderHidden(true);
    setUniformRowHeights(true);
    // A long title is reached by scrolling rather than cut off.
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    const auto elegir = [this](const QTreeWidgetItem* cual) {
        Q_EMIT Elegida(cual->data(0, RolPagina).toString());
    };
    connect(this, &QTreeWidget::itemClicked, this, elegir);
    connect(this, &QTreeWidget::itemActivated, this, elegir);
}

void ArbolContenido::Llenar(const QList<PaginaContenido>& contenido) {
    clear();
    QList<QTreeWidgetItem*> rama{invisibleRootItem()};
    for (const auto& cada : contenido) {
        const auto hondura = std::clamp<qsizetype>(cada.nivel, 1, rama.size());
        rama.resize(hondura);
        auto* nuevo = new QTreeWidgetItem(rama.back(), {cada.titulo});
        nuevo->setData(0, RolPagina, cada.pagina);
        nuevo->setToolTip(0, cada.titulo);
        rama.append(nuevo);
    }
    expandAll();
}

void ArbolContenido::Señalar(const QString& pagina) {
    for (QTreeWidgetItemIterator cada(this); *cada; ++cada)
        if ((*cada)->data(0, RolPagina).toString() == pagina) {
            setCurrentItem(*cada);
            return;
        }
    setCurrentItem(nullptr);
}

}  // namespace padral
