#pragma once

#include <QKeyEvent>
#include <QToolButton>

namespace padral {

/// The button that opens a list; Enter presses it as the space bar does.
class BotonLista : public QToolButton {
public:
    BotonLista(const QString& nombre, QWidget* padre) : QToolButton(padre) {
        setObjectName(nombre);
        setFocusPolicy(Qt::StrongFocus);
    }

protected:
    void keyPressEvent(QKeyEvent* evento) override {
        const bool intro = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
        if (!intro) return QToolButton::keyPressEvent(evento);
        if (!evento->isAutoRepeat()) click();
    }
};

}  // namespace padral
