#include "online/link_field.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <cstdlib>

namespace padral {

namespace {

constexpr int ContrasteEnlace = 100;  // of 255

/// The colour of links where it can be told from the window: some dark themes leave it dark blue.
QColor colorDeEnlace(const QPalette& paleta) {
    const QColor enlace = paleta.color(QPalette::Link);
    const int contraste =
        std::abs(qGray(enlace.rgb()) - qGray(paleta.color(QPalette::Window).rgb()));
    return contraste >= ContrasteEnlace ? enlace : paleta.color(QPalette::WindowText);
}

}  // namespace

CampoEnlace::CampoEnlace(const QString& nombre, QWidget* padre) : QLineEdit(padre) {
    setObjectName(nombre);
    setReadOnly(true);
    SoloLectura(this);
    QPalette paleta = palette();
    paleta.setColor(QPalette::Text, colorDeEnlace(paleta));
    setPalette(paleta);
    QFont fuente = font();
    fuente.setUnderline(true);
    setFont(fuente);
    setCursor(Qt::PointingHandCursor);
}

void CampoEnlace::mousePressEvent(QMouseEvent* evento) {
    pulsando_ = evento->button() == Qt::LeftButton;
    apretadoEn_ = evento->position().toPoint();
    QLineEdit::mousePressEvent(evento);
}

void CampoEnlace::mouseReleaseEvent(QMouseEvent* evento) {
    QLineEdit::mouseReleaseEvent(evento);
    const QPoint movido = evento->position().toPoint() - apretadoEn_;
    const bool clic = pulsando_ && evento->button() == Qt::LeftButton &&
                      movido.manhattanLength() < QApplication::startDragDistance();
    pulsando_ = false;
    if (clic) Q_EMIT pulsado();
}

void CampoEnlace::keyPressEvent(QKeyEvent* evento) {
    const bool pulsa = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter ||
                       evento->key() == Qt::Key_Space;
    if (!pulsa) return QLineEdit::keyPressEvent(evento);
    if (!evento->isAutoRepeat()) Q_EMIT pulsado();
}

void SoloLectura(QWidget* campo) {
    QPalette paleta = campo->palette();
    paleta.setColor(QPalette::Base, paleta.color(QPalette::Window));
    paleta.setColor(QPalette::Text, paleta.color(QPalette::WindowText));
    campo->setPalette(paleta);
}

}  // namespace padral
