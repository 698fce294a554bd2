#include "core/help/help_key.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

#include "core/help/help_topics.h"
#include "core/help/help_window.h"

namespace padral {

namespace {

bool pideAyuda(QObject* objeto, QEvent* evento) {
    if (evento->type() != QEvent::KeyPress || !objeto->isWidgetType()) return false;
    const auto* tecla = static_cast<QKeyEvent*>(evento);
    return tecla->matches(QKeySequence::HelpContents) && !tecla->isAutoRepeat() &&
           !QApplication::activePopupWidget();
}

QString formularioDe(const QWidget* control) {
    for (; control; control = control->parentWidget())
        if (TieneTema(control->objectName())) return control->objectName();
    return {};
}

}  // namespace

TeclaAyuda::TeclaAyuda(std::function<void(const QString& formulario)> ayuda)
    : ayuda_(std::move(ayuda)) {
    qApp->installEventFilter(this);
}

bool TeclaAyuda::eventFilter(QObject* objeto, QEvent* evento) {
    if (!pideAyuda(objeto, evento)) return false;
    const auto* control = static_cast<QWidget*>(objeto);
    if (qobject_cast<const VentanaAyuda*>(control->window())) return false;
    const QString formulario = formularioDe(control);
    if (formulario.isEmpty()) return false;
    ayuda_(formulario);
    return true;
}

}  // namespace padral
