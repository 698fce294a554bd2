#include "ui/field_guard.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFocusEvent>
#include <QMenuBar>
#include <QWidget>

namespace padral {

namespace {

bool esEntrada(QEvent::Type tipo) {
    switch (tipo) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::ShortcutOverride:
        case QEvent::Shortcut:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
        case QEvent::ContextMenu:
        case QEvent::InputMethod:
        case QEvent::Drop:
            return true;
        default:
            return false;
    }
}

/// What the mouse does to a widget right after it has given it the focus.
bool esPulsacion(QEvent::Type tipo) {
    return tipo == QEvent::MouseButtonPress || tipo == QEvent::MouseButtonDblClick ||
           tipo == QEvent::ContextMenu || tipo == QEvent::Wheel;
}

bool esAbandono(Qt::FocusReason motivo) {
    return motivo != Qt::ActiveWindowFocusReason && motivo != Qt::PopupFocusReason &&
           motivo != Qt::MenuBarFocusReason;
}

}  // namespace

GuardiaCampos::GuardiaCampos(QObject* padre) : QObject(padre) { qApp->installEventFilter(this); }

void GuardiaCampos::Registrar(QWidget* campo, const Comprobacion& alSalir) {
    campos_.insert(campo, alSalir);
    connect(campo, &QObject::destroyed, this, [this](QObject* o) { campos_.remove(o); });
}

void GuardiaCampos::Olvidar(QWidget* pantalla) {
    const auto esDeLaPantalla = [pantalla](auto it) {
        return pantalla == it.key() || pantalla->isAncestorOf(static_cast<QWidget*>(it.key()));
    };
    campos_.removeIf(esDeLaPantalla);
}

bool GuardiaCampos::ConfirmarCampoEnFoco(const QWidget* ventana) {
    QWidget* foco = QApplication::focusWidget();
    if (!foco && ventana) foco = ventana->focusWidget();
    return !foco || !campos_.contains(foco) || comprobar(foco);
}

void GuardiaCampos::Orden(QAbstractButton* boton, std::function<void()> orden,
                          std::function<void()> alRechazar) {
    connect(boton, &QAbstractButton::clicked, this,
            [this, boton, orden = std::move(orden), alRechazar = std::move(alRechazar)] {
                bool sigue = ConfirmarCampoEnFoco();
                if (sigue && boton->focusPolicy() != Qt::NoFocus && !boton->hasFocus())
                    boton->setFocus(Qt::ShortcutFocusReason);
                if (sigue)
                    orden();
                else if (alRechazar)
                    alRechazar();
            });
}

bool GuardiaCampos::comprobar(QWidget* campo) {
    if (enCurso_) return true;
    const QPointer<QWidget> vigilado = enCurso_ = campo;
    const auto comprobacion = campos_.value(campo);
    const bool vale = comprobacion();
    enCurso_.clear();
    if (vale) return true;
    if (vigilado) vigilado->setFocus(Qt::OtherFocusReason);
    return false;
}

bool GuardiaCampos::dejaElCampo(QObject* objeto, QFocusEvent* evento) {
    const auto motivo = evento->reason();
    if (!esAbandono(motivo)) return false;
    // The field finishes its own reaction before it may get the focus again.
    objeto->event(evento);
    if (comprobar(static_cast<QWidget*>(objeto)) || motivo != Qt::MouseFocusReason) return true;
    rechazado_ = true;
    // The press that left the field is delivered before this call: it meets the mark.
    QMetaObject::invokeMethod(
        this, [this] { rechazado_ = false; }, Qt::QueuedConnection);
    return true;
}

// While another window is in front a drop moves the focus of this one without a word to the
// field that had it.
bool GuardiaCampos::rechazaSoltado(QObject* objeto) {
    if (!objeto->isWidgetType()) return false;
    QWidget* dejado = static_cast<QWidget*>(objeto)->window()->focusWidget();
    return dejado != objeto && campos_.contains(dejado) && !comprobar(dejado);
}

bool GuardiaCampos::eventFilter(QObject* objeto, QEvent* evento) {
    const auto tipo = evento->type();
    if (soltar_ && esEntrada(tipo)) return true;
    if (tipo == QEvent::Drop && rechazaSoltado(objeto)) {
        evento->ignore();
        return true;
    }
    if (tipo == QEvent::FocusOut && campos_.contains(objeto))
        return dejaElCampo(objeto, static_cast<QFocusEvent*>(evento));
    // The key of a menu only opens it, like a click on it.
    if (tipo == QEvent::Shortcut && !qobject_cast<QMenuBar*>(objeto))
        return !ConfirmarCampoEnFoco();
    if (tipo == QEvent::MouseButtonRelease) rechazado_ = false;
    // The widget under the mouse gets its press after the focus has moved.
    return rechazado_ && esPulsacion(tipo) && objeto->isWidgetType();
}

}  // namespace padral
