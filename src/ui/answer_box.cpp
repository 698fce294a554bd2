#include "ui/answer_box.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QStyle>
#include <QStyleOptionButton>

namespace padral {

CasillaRespuesta::CasillaRespuesta(const QString& nombre, QWidget* padre) : QCheckBox(padre) {
    setObjectName(nombre);
}

void CasillaRespuesta::PonerRotulos(const QString& alAbrir, const QString& trasElFoco,
                                    const QString& flecha) {
    alAbrir_ = alAbrir;
    trasElFoco_ = trasElFoco;
    flecha_ = flecha;
    setText(hasFocus() ? flecha_ : alAbrir_);
    updateGeometry();
}

QSize CasillaRespuesta::sizeHint() const {
    ensurePolished();
    QStyleOptionButton opcion;
    initStyleOption(&opcion);
    // The gap before the text is there as soon as the box has any.
    opcion.text = flecha_;
    QSize texto;
    for (const QString& uno : {alAbrir_, trasElFoco_, flecha_})
        texto = texto.expandedTo(fontMetrics().size(Qt::TextShowMnemonic, uno));
    return style()->sizeFromContents(QStyle::CT_CheckBox, &opcion, texto, this);
}

void CasillaRespuesta::focusInEvent(QFocusEvent* evento) {
    QCheckBox::focusInEvent(evento);
    setText(flecha_);
}

void CasillaRespuesta::focusOutEvent(QFocusEvent* evento) {
    QCheckBox::focusOutEvent(evento);
    setText(trasElFoco_);
}

void CasillaRespuesta::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() != Qt::Key_Return && evento->key() != Qt::Key_Enter)
        return QCheckBox::keyPressEvent(evento);
    QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
    QCoreApplication::sendEvent(this, &tab);
}

}  // namespace padral
