#include "store/list/list_grid.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>
#include <numeric>

namespace padral {

namespace {

using Anchos = RejillaDeclaraciones::Anchos;

/// Widths by column, in proportion to each other.
constexpr Anchos Proporciones{0, 1000, 3050, 750, 1050, 2300, 1000};
constexpr std::size_t ColumnaElastica = 2;
constexpr int MargenFila = 10;
constexpr int MargenCelda = 12;

constexpr int suma(const Anchos& anchos) {
    return std::accumulate(anchos.begin(), anchos.end(), 0);
}
constexpr int SumaProporciones = suma(Proporciones);
static_assert(SumaProporciones > 0);

/// The mark belongs to the row: no cell has a frame of its own; while the grid has the focus,
/// lines above and below the row say so. Cells that take no criterion are grey.
class PintorCelda : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* pintor, const QStyleOptionViewItem& opcion,
               const QModelIndex& indice) const override {
        QStyleOptionViewItem sinFoco = opcion;
        sinFoco.state &= ~QStyle::State_HasFocus;
        const auto* modelo = static_cast<const ModeloDeclaraciones*>(indice.model());
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

RejillaDeclaraciones::RejillaDeclaraciones(QWidget* padre) : QTableView(padre) {
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

void RejillaDeclaraciones::PonerMinimos(const Anchos& minimos, const Anchos& estrechos) {
    minimos_ = minimos;
    estrechos_ = estrechos;
    AjustarColumnas();
}

int RejillaDeclaraciones::AnchoTexto(const QString& texto) const {
    return fontMetrics().horizontalAdvance(texto) + MargenCelda;
}

Anchos RejillaDeclaraciones::repartir(int ancho) const {
    Anchos anchos{};
    for (std::size_t c = 1; c < anchos.size(); ++c)
        anchos[c] = std::max(minimos_[c], ancho * Proporciones[c] / SumaProporciones);
    int& elastica = anchos[ColumnaElastica];
    elastica = std::max(0, ancho - (suma(anchos) - elastica));
    if (elastica >= minimos_[ColumnaElastica]) return anchos;
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

void RejillaDeclaraciones::AjustarColumnas() {
    if (!model()) return;
    const Anchos anchos = repartir(viewport()->width());
    setColumnHidden(0, true);
    for (std::size_t c = 1; c < anchos.size(); ++c) setColumnWidth(static_cast<int>(c), anchos[c]);
    Q_EMIT geometriaCambiada();
}

QRect RejillaDeclaraciones::CabeceraDe(int columna) const {
    const auto* cabecera = horizontalHeader();
    return {cabecera->sectionViewportPosition(columna), 0, cabecera->sectionSize(columna),
            cabecera->height()};
}

bool RejillaDeclaraciones::enCriterios() const {
    return static_cast<const ModeloDeclaraciones*>(model())->EnCriterios();
}

void RejillaDeclaraciones::irAFila(int fila) {
    const QModelIndex destino = model()->index(fila, std::max(1, currentIndex().column()));
    if (destino.flags() & Qt::ItemIsSelectable) setCurrentIndex(destino);
}

bool RejillaDeclaraciones::pideOrden(const QKeyEvent& evento) {
    const auto teclas = evento.modifiers() & ~Qt::KeypadModifier;
    const int columna = evento.key() - Qt::Key_0;
    if (teclas != Qt::ControlModifier || !cDecLista::EsColumnaBuscable(columna)) return false;
    Q_EMIT ordenPedido(columna);
    return true;
}

void RejillaDeclaraciones::keyPressEvent(QKeyEvent* evento) {
    const int tecla = evento->key();
    if (tecla == Qt::Key_Return || tecla == Qt::Key_Enter) {
        // Held down it opens or deletes once.
        if (!evento->isAutoRepeat()) Q_EMIT intro();
    } else if (pideOrden(*evento)) {
        evento->accept();
    } else if (enCriterios() && (tecla == Qt::Key_Left || tecla == Qt::Key_Right)) {
        Q_EMIT pasoDeColumna(tecla == Qt::Key_Left ? -1 : 1);
    } else if (tecla == Qt::Key_Home) {
        irAFila(0);
    } else if (tecla == Qt::Key_End) {
        irAFila(model()->rowCount() - 1);
    } else {
        QTableView::keyPressEvent(evento);
    }
}

void RejillaDeclaraciones::resizeEvent(QResizeEvent* evento) {
    QTableView::resizeEvent(evento);
    AjustarColumnas();
    // The selected row stays in view when the list shows for the first time, too.
    if (currentIndex().isValid()) scrollTo(currentIndex());
}

void RejillaDeclaraciones::moveEvent(QMoveEvent* evento) {
    QTableView::moveEvent(evento);
    Q_EMIT geometriaCambiada();
}

void RejillaDeclaraciones::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    if (dx != 0) Q_EMIT geometriaCambiada();
}

}  // namespace padral
