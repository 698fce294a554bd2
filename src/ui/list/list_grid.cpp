#include "ui/list/list_grid.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>
#include <numeric>

namespace padral {

namespace {

using Anchos = RejillaLista::Anchos;

constexpr int MargenFila = 10;
constexpr int MargenCelda = 12;

int suma(const Anchos& anchos) { return std::accumulate(anchos.begin(), anchos.end(), 0); }

/// The mark belongs to the row: no cell has a frame of its own; while the grid has the focus,
/// lines above and below the row say so. Cells that take no criterion are grey.
class PintorCelda : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* pintor, const QStyleOptionViewItem& opcion,
               const QModelIndex& indice) const override {
        QStyleOptionViewItem sinFoco = opcion;
        sinFoco.state &= ~QStyle::State_HasFocus;
        const auto* modelo = static_cast<const ModeloLista*>(indice.model());
        if (modelo->EnCriterios() && !(indice.flags() & Qt::ItemIsEnabled))
            pintor->fillRect(opcion.rect, opcion.palette.color(QPalette::Window));
        QStyledItemDelegate::paint(pintor, sinFoco, indice);
        const auto* vista = qobject_cast<const QWidget*>(opcion.widget);
        if (!(opcion.state & QStyle::State_Selected) || !vista || !vista->hasFocus()) return;
        pintor->setPen(opcion.palette.color(QPalette::Text));
        pintor->drawLine(opcion.rect.topLeft(), opcion.rect.topRight());
        pintor->drawLine(opcion.rect.bottomLeft(), opcion.rect.bottomRight());
    }
};

}  // namespace

RejillaLista::RejillaLista(const QString& nombre, Anchos proporciones, std::size_t elastica,
                           QWidget* padre)
    : QTableView(padre),
      proporciones_(std::move(proporciones)),
      elastica_(elastica),
      minimos_(proporciones_.size()),
      estrechos_(proporciones_.size()) {
    setObjectName(nombre);
    setItemDelegate(new PintorCelda(this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(ScrollPerPixel);
    // Rows of one height, known before any row is looked at.
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + MargenFila);
    auto* cabecera = horizontalHeader();
    cabecera->setSectionResizeMode(QHeaderView::Fixed);
    cabecera->setMinimumSectionSize(1);
    cabecera->setSectionsClickable(true);
    cabecera->setHighlightSections(false);
    cabecera->setFixedHeight(fontMetrics().height() + MargenFila + 2);
}

void RejillaLista::PonerMinimos(const Anchos& minimos, const Anchos& estrechos) {
    minimos_ = minimos;
    estrechos_ = estrechos;
    AjustarColumnas();
}

int RejillaLista::AnchoTexto(const QString& texto) const {
    return fontMetrics().horizontalAdvance(texto) + MargenCelda;
}

Anchos RejillaLista::repartir(int ancho) const {
    Anchos anchos(proporciones_.size());
    const int total = std::max(1, suma(proporciones_));
    for (std::size_t c = 1; c < anchos.size(); ++c)
        anchos[c] = std::max(minimos_[c], ancho * proporciones_[c] / total);
    int& elastica = anchos[elastica_];
    elastica = std::max(0, ancho - (suma(anchos) - elastica));
    if (elastica >= minimos_[elastica_]) return anchos;
    // No room for proportions: every column gives way by the same part of what it can spare.
    const int sobra = suma(minimos_) - suma(estrechos_);
    const int falta = std::clamp(suma(minimos_) - ancho, 0, sobra);
    for (std::size_t c = 1; c < anchos.size(); ++c) {
        const int cede = (minimos_[c] - estrechos_[c]) * falta;
        anchos[c] = minimos_[c] - (cede > 0 ? (cede + sobra - 1) / sobra : 0);
    }
    elastica += std::max(0, ancho - suma(anchos));
    return anchos;
}

void RejillaLista::AjustarColumnas() {
    if (!model()) return;
    const Anchos anchos = repartir(viewport()->width());
    setColumnHidden(0, true);
    for (std::size_t c = 1; c < anchos.size(); ++c) setColumnWidth(static_cast<int>(c), anchos[c]);
    Q_EMIT geometriaCambiada();
}

QRect RejillaLista::CabeceraDe(int columna) const {
    const auto* cabecera = horizontalHeader();
    return {cabecera->sectionViewportPosition(columna), 0, cabecera->sectionSize(columna),
            cabecera->height()};
}

const ModeloLista& RejillaLista::modelo() const {
    return *static_cast<const ModeloLista*>(model());
}

void RejillaLista::irAFila(int fila) {
    const QModelIndex destino = model()->index(fila, std::max(1, currentIndex().column()));
    if (destino.flags() & Qt::ItemIsSelectable) setCurrentIndex(destino);
}

// A page down may end on the blank rows behind the last one.
void RejillaLista::irAlFinal(QKeyEvent* avance) {
    const QModelIndex antes = currentIndex();
    if (avance) QTableView::keyPressEvent(avance);
    if (currentIndex() == antes) irAFila(modelo().NumFilas() - 1);
}

bool RejillaLista::pideOrden(const QKeyEvent& evento) {
    const auto teclas = evento.modifiers() & ~Qt::KeypadModifier;
    const int columna = evento.key() - Qt::Key_0;
    if (teclas != Qt::ControlModifier || !modelo().EsColumnaBuscable(columna)) return false;
    Q_EMIT ordenPedido(columna);
    return true;
}

void RejillaLista::keyPressEvent(QKeyEvent* evento) {
    const int tecla = evento->key();
    if (tecla == Qt::Key_Return || tecla == Qt::Key_Enter) {
        // Held down it opens or deletes once.
        if (!evento->isAutoRepeat()) Q_EMIT intro();
    } else if (pideOrden(*evento)) {
        evento->accept();
    } else if (modelo().EnCriterios() && (tecla == Qt::Key_Left || tecla == Qt::Key_Right)) {
        Q_EMIT pasoDeColumna(tecla == Qt::Key_Left ? -1 : 1);
    } else if (tecla == Qt::Key_Home) {
        irAFila(0);
    } else if (tecla == Qt::Key_End) {
        irAlFinal(nullptr);
    } else if (tecla == Qt::Key_PageDown) {
        irAlFinal(evento);
    } else {
        QTableView::keyPressEvent(evento);
    }
}

void RejillaLista::resizeEvent(QResizeEvent* evento) {
    QTableView::resizeEvent(evento);
    AjustarColumnas();
    // The selected row stays in view when the list shows for the first time, too.
    if (currentIndex().isValid()) scrollTo(currentIndex());
}

void RejillaLista::moveEvent(QMoveEvent* evento) {
    QTableView::moveEvent(evento);
    Q_EMIT geometriaCambiada();
}

void RejillaLista::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    if (dx != 0) Q_EMIT geometriaCambiada();
}

}  // namespace padral
