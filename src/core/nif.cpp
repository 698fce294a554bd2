#include "core/nif.h"

namespace padral {

int ClasificarNif(const QString& valor) {
    if (valor.isEmpty()) return 0;
    if (LetrasClase1.contains(valor)) return 1;
    if (LetrasClase3.contains(valor)) return 3;
    if (valor.contains(QStringLiteral("__"))) return 2;
    return 4;
}

}  // namespace padral
