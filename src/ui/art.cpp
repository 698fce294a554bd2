#include "ui/art.h"

// A resource of a static library is not registered by itself.
static void registrarArte() { Q_INIT_RESOURCE(art); }

namespace padral {

QIcon Dibujo(const QString& nombre) {
    static const bool registrado = (registrarArte(), true);
    Q_UNUSED(registrado)
    return QIcon(QStringLiteral(":/padral/art/%1.svg").arg(nombre));
}

}  // namespace padral
