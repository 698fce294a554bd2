#include "ui/review_messages.h"

#include <QWidget>

namespace padral {

bool Avisar(const EstadoCompartido& estado, const QWidget& pantalla, const Revision& revision) {
    for (const auto& aviso : revision.avisos) {
        const QString titulo = aviso.titulo == 0
                                   ? QString()
                                   : QString::fromUtf16(aviso.prefijo) + estado.Texto(aviso.titulo);
        const Icono icono = aviso.exclamacion ? Icono::Exclamacion : Icono::Informacion;
        const QString& texto = aviso.texto == 0 ? revision.compuesto : estado.Texto(aviso.texto);
        estado.avisador.Mostrar({texto, titulo, icono, Botones::Aceptar});
        const QString foco = QString::fromUtf16(aviso.foco);
        if (foco.isEmpty()) continue;
        if (auto* control = pantalla.findChild<QWidget*>(foco))
            control->setFocus(Qt::OtherFocusReason);
    }
    return revision.valida();
}

}  // namespace padral
