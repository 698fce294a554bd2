#include "ui/combo.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QToolTip>
#include <QWheelEvent>

namespace padral {

namespace {

/// The style keeps it free on both sides of the text.
constexpr int MargenDelTexto = 1;

}  // namespace

CajaCombo::CajaCombo(const QString& nombre, int caracteres, QWidget* padre) : QComboBox(padre) {
    setObjectName(nombre);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(caracteres);
    view()->installEventFilter(this);
    connect(model(), &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex&, int desde, int hasta) { ensancharLista(desde, hasta); });
}

// Wider rows only: a list that is filled again keeps the room that it once had.
void CajaCombo::ensancharLista(int desde, int hasta) {
    const int aparte = view()->verticalScrollBar()->sizeHint().width() +
                       4 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1);
    int ancho = view()->minimumWidth();
    for (int i = desde; i <= hasta; ++i)
        ancho = std::max(ancho, fontMetrics().horizontalAdvance(itemText(i)) + aparte);
    view()->setMinimumWidth(ancho);
}

void CajaCombo::changeEvent(QEvent* evento) {
    QComboBox::changeEvent(evento);
    if (evento->type() == QEvent::FontChange && count() > 0) ensancharLista(0, count() - 1);
}

bool CajaCombo::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto != view() || evento->type() != QEvent::KeyPress)
        return QComboBox::eventFilter(objeto, evento);
    const int tecla = static_cast<const QKeyEvent*>(evento)->key();
    if (tecla != Qt::Key_Tab && tecla != Qt::Key_Backtab)
        return QComboBox::eventFilter(objeto, evento);
    QKeyEvent intro(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(view(), &intro);
    // The choice may have led somewhere else.
    if (hasFocus()) focusNextPrevChild(tecla == Qt::Key_Tab);
    return true;
}

void CajaCombo::keyPressEvent(QKeyEvent* evento) {
    // Nothing is chosen unseen: without a choice the list opens.
    const bool flecha = evento->key() == Qt::Key_Up || evento->key() == Qt::Key_Down;
    if (flecha && currentIndex() < 0) return showPopup();
    if (evento->key() != Qt::Key_Return && evento->key() != Qt::Key_Enter)
        return QComboBox::keyPressEvent(evento);
    if (alPulsarIntro) alPulsarIntro();
    QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
    QCoreApplication::sendEvent(this, &tab);
}

QString CajaCombo::TextoVisible() const {
    QStyleOptionComboBox opciones;
    initStyleOption(&opciones);
    const QRect campo =
        style()->subControlRect(QStyle::CC_ComboBox, &opciones, QStyle::SC_ComboBoxEditField, this);
    return fontMetrics().elidedText(currentText(), Qt::ElideRight,
                                    campo.width() - 2 * MargenDelTexto);
}

// As the base draws itself, but for a choice that does not fit.
void CajaCombo::paintEvent(QPaintEvent*) {
    QStylePainter pincel(this);
    pincel.setPen(palette().color(QPalette::Text));
    QStyleOptionComboBox opciones;
    initStyleOption(&opciones);
    pincel.drawComplexControl(QStyle::CC_ComboBox, opciones);
    opciones.currentText = TextoVisible();
    pincel.drawControl(QStyle::CE_ComboBoxLabel, opciones);
}

bool CajaCombo::event(QEvent* evento) {
    if (evento->type() != QEvent::ToolTip || TextoVisible() == currentText())
        return QComboBox::event(evento);
    QToolTip::showText(static_cast<QHelpEvent*>(evento)->globalPos(), currentText(), this);
    return true;
}

void CajaCombo::wheelEvent(QWheelEvent* evento) { evento->ignore(); }

}  // namespace padral
