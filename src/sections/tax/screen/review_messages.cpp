#include "sections/tax/screen/review_messages.h"

#include <QWidget>

namespace padral {

bool Avisar(const EstadoCompartido& estado, const QWidget& pantalla, const Revision& revision) {
    for (const auto& aviso : revision.avisos) {
        const QString titulo = QString::fromUtf16(aviso.prefijo) + estado.Texto(aviso.titulo);
        const Icono icono = aviso.exclamacion ? Icono::Exclamacion : Icono::Informacion;
        estado.avisador.Mostrar({estado.Texto(aviso.texto), titulo, icono, Botones::Aceptar});
        const QString foco = QString::fromUtf16(aviso.foco);
        if (foco.isEmpty()) continue;
        if (auto* control = pantalla.findChild<QWidget*>(foco))
            control->setFocus(Qt::OtherFocusReason);
    }
    return revision.valida();
}

}  // namespace padral
