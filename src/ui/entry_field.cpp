#include "ui/entry_field.h"

#include <QAction>
#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <utility>

namespace padral {

namespace {

bool esIntro(const QKeyEvent& evento) {
    return evento.key() == Qt::Key_Return || evento.key() == Qt::Key_Enter;
}

/// Whether a key types a character; with Ctrl it is a command, with Ctrl and Alt it types again.
bool escribe(const QKeyEvent& evento) {
    const auto teclas = evento.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    return !evento.text().isEmpty() && evento.text().front().isPrint() &&
           teclas != Qt::ControlModifier;
}

/// The focus is with another window or a menu for a while and comes back by itself.
bool esAusencia(const QFocusEvent& evento) {
    return evento.reason() == Qt::ActiveWindowFocusReason ||
           evento.reason() == Qt::PopupFocusReason || evento.reason() == Qt::MenuBarFocusReason;
}

}  // namespace

CampoEntrada::CampoEntrada(const QString& nombre, QWidget* padre) : QLineEdit(padre) {
    setObjectName(nombre);
}

void CampoEntrada::insertar(const QString& texto) {
    if (isReadOnly()) return;
    const QString limpio = admitido(texto);
    if (!limpio.isEmpty()) insert(limpio);
}

void CampoEntrada::keyPressEvent(QKeyEvent* evento) {
    if (esIntro(*evento))
        focusNextPrevChild(true);
    else if (evento->matches(QKeySequence::Paste))
        insertar(QGuiApplication::clipboard()->text());
    else if (escribe(*evento) && !isReadOnly())
        insertar(evento->text());
    else
        QLineEdit::keyPressEvent(evento);
}

void CampoEntrada::inputMethodEvent(QInputMethodEvent* evento) {
    if (isReadOnly()) {
        evento->ignore();
        return;
    }
    QInputMethodEvent limpio(evento->preeditString(), evento->attributes());
    limpio.setCommitString(admitido(evento->commitString()), evento->replacementStart(),
                           evento->replacementLength());
    QLineEdit::inputMethodEvent(&limpio);
    evento->setAccepted(limpio.isAccepted());
}

void CampoEntrada::contextMenuEvent(QContextMenuEvent* evento) {
    QMenu* menu = createStandardContextMenu();
    if (!menu) return;
    menu->setAttribute(Qt::WA_DeleteOnClose);
    // The menu's own entry would paste past the filter. It has no name; its connection tells it.
    for (QAction* orden : menu->actions())
        if (disconnect(orden, SIGNAL(triggered()), this, SLOT(paste())))
            connect(orden, &QAction::triggered, this,
                    [this] { insertar(QGuiApplication::clipboard()->text()); });
    menu->popup(evento->globalPos());
}

// A field is stored when the focus leaves it: what is dropped needs the focus, too.
bool CampoEntrada::tomarFoco() {
    if (hasFocus() || isReadOnly()) return true;
    window()->activateWindow();
    setFocus(Qt::OtherFocusReason);
    return window()->focusWidget() == this;
}

void CampoEntrada::dropEvent(QDropEvent* evento) {
    if (!tomarFoco()) {
        evento->ignore();
        return;
    }
    QMimeData texto;
    texto.setText(admitido(evento->mimeData()->text()));
    QDropEvent limpio(evento->position(), evento->possibleActions(), &texto, evento->buttons(),
                      evento->modifiers());
    limpio.setDropAction(evento->dropAction());
    QLineEdit::dropEvent(&limpio);
    evento->setDropAction(limpio.dropAction());
    evento->setAccepted(limpio.isAccepted());
}

void CampoEntrada::focusInEvent(QFocusEvent* evento) {
    QLineEdit::focusInEvent(evento);
    const bool vuelve = std::exchange(volvera_, false) && esAusencia(*evento);
    if (vuelve) return;
    recienEnfocado_ = evento->reason() == Qt::MouseFocusReason;
    selectAll();
}

void CampoEntrada::focusOutEvent(QFocusEvent* evento) {
    volvera_ = esAusencia(*evento);
    QLineEdit::focusOutEvent(evento);
}

void CampoEntrada::mouseReleaseEvent(QMouseEvent* evento) {
    const auto* portapapeles = QGuiApplication::clipboard();
    if (evento->button() == Qt::MiddleButton && portapapeles->supportsSelection()) {
        deselect();
        insertar(portapapeles->text(QClipboard::Selection));
    } else {
        QLineEdit::mouseReleaseEvent(evento);
        if (recienEnfocado_ && !hasSelectedText()) selectAll();
    }
    recienEnfocado_ = false;
}

}  // namespace padral
