#pragma once
// A declaration with participants; their pages are the second and those that follow.

#include "print_fixture.h"

namespace padral::test {

struct ImpresionAnexoI : Impresion {
    ImpresionAnexoI() { datos.AnexoI = QStringLiteral("X"); }

    /// The last participant added.
    cParticipes& Ultimo() { return *participantes.colParticipes.back(); }
    /// So many blank participants; `modo` "A" new, "C" existing, "E" deleted.
    void Anadir(int cuantos = 1, const QString& modo = QStringLiteral("C")) {
        for (int i = 0; i < cuantos; ++i) {
            participantes.colParticipes.push_back(
                std::make_shared<cParticipes>(participantes, ruta));
            Ultimo().Modo = modo;
        }
    }

    QString ruta;
};

}  // namespace padral::test
