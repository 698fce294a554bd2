#include "ui/pick_list.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>

#include "store/catalogue_lookups.h"

namespace padral {

namespace {

constexpr int FilasALaVista = 10;
/// With less room than for these both above and below, the list covers what it belongs to.
constexpr int FilasMinimas = 4;
constexpr int Clave = Qt::UserRole;

/// The part of a screen that its scroll area lets through, in the screen's coordinates.
QRect parteVisible(const QWidget& pantalla) {
    QRect parte = pantalla.rect();
    const QWidget* w = &pantalla;
    while (!w->isWindow() && (w = w->parentWidget()))
        parte &= QRect(pantalla.mapFrom(w, QPoint()), w->size());
    return parte;
}

}  // namespace

ListaEleccion::ListaEleccion(const QString& nombre, QWidget* padre) : QListWidget(padre) {
    setObjectName(nombre);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setUniformItemSizes(true);
    hide();
    connect(this, &QListWidget::itemDoubleClicked, this, [this] { elegir(false); });
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget*, const QWidget* ahora) { alCambiarFoco(ahora); });
}

// What moves the focus while the list is taken apart is no matter of its own any more.
ListaEleccion::~ListaEleccion() { disconnect(qApp, nullptr, this, nullptr); }

void ListaEleccion::Cargar(const Tabla& filas) {
    filas_ = filas;
    clear();
    for (int fila = 0; fila < filas.Filas(); ++fila) {
        auto* item = new QListWidgetItem(filas(1, fila).toString(), this);
        item->setData(Clave, filas(0, fila));
    }
}

QString ListaEleccion::Buscar(const QString& clave) const { return BuscarListItem(filas_, clave); }

void ListaEleccion::Abrir(const QString& texto, const QWidget* ancla) {
    recordarFoco();
    colocar(ancla);
    show();
    raise();
    const auto iguales = findItems(texto, Qt::MatchFixedString | Qt::MatchCaseSensitive);
    setCurrentItem(iguales.isEmpty() ? item(0) : iguales.front());
    scrollToItem(currentItem());
    setFocus(Qt::OtherFocusReason);
}

// Tab goes on from the widget that the list was opened from, wherever the list was made.
void ListaEleccion::recordarFoco() {
    QWidget* foco = window()->focusWidget();
    if (!foco || foco == this) return;
    volver_ = foco;
    setTabOrder(foco, this);
}

// The menu bar takes the focus for a while and gives it back.
void ListaEleccion::alCambiarFoco(const QWidget* ahora) {
    if (isHidden() || !ahora || ahora == this || ahora->window() != window()) return;
    if (!qobject_cast<const QMenuBar*>(ahora)) hide();
}

// A key that is still held down from the field before must not pick.
void ListaEleccion::keyPressEvent(QKeyEvent* evento) {
    const bool intro = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
    if (!intro && evento->key() != Qt::Key_Escape) return QListWidget::keyPressEvent(evento);
    if (evento->isAutoRepeat()) return;
    if (intro) return elegir(true);
    cerrar();
    Q_EMIT abandonada();
}

void ListaEleccion::elegir(bool conIntro) {
    const QListWidgetItem* elegido = currentItem();
    if (!elegido) return;
    const QString clave = elegido->data(Clave).toString();
    const QString texto = elegido->text();
    cerrar();
    Q_EMIT elegida(clave, texto, conIntro);
}

void ListaEleccion::cerrar() {
    if (hasFocus() && volver_ && volver_->isVisible()) volver_->setFocus(Qt::OtherFocusReason);
    hide();
}

int ListaEleccion::altoFila() const {
    return count() > 0 ? sizeHintForRow(0) : fontMetrics().height();
}

QSize ListaEleccion::tamanoPedido() {
    ensurePolished();
    const int marco = 2 * frameWidth();
    const int barra = verticalScrollBar()->sizeHint().width() +
                      style()->pixelMetric(QStyle::PM_ScrollView_ScrollBarSpacing, nullptr, this);
    const int filas = std::clamp(count(), 1, FilasALaVista);
    return {std::max(sizeHintForColumn(0), 0) + barra + marco, filas * altoFila() + marco};
}

void ListaEleccion::colocar(const QWidget* ancla) {
    const QSize pedido = tamanoPedido();
    if (!parentWidget()) return resize(pedido);
    const QRect parte = parteVisible(*parentWidget());
    const QRect junto(parentWidget()->mapFromGlobal(ancla->mapToGlobal(QPoint())), ancla->size());
    const int arriba = junto.top() - parte.top();
    const int abajo = parte.bottom() - junto.bottom();
    const bool debajo = abajo >= pedido.height() || abajo >= arriba;
    const int minimo = std::min(pedido.height(), FilasMinimas * altoFila());
    int alto = std::clamp(debajo ? abajo : arriba, minimo, pedido.height());
    alto = std::min(alto, parte.height());
    const int ancho = std::min(pedido.width(), parte.width());
    const int x = std::min(junto.left(), parte.right() + 1 - ancho);
    const int y = debajo ? junto.bottom() + 1 : junto.top() - alto;
    setGeometry(std::max(x, parte.left()),
                std::max(std::min(y, parte.bottom() + 1 - alto), parte.top()), ancho, alto);
}

}  // namespace padral
