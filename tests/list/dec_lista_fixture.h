#pragma once
// The state of the declarations list without data files.

#include <gtest/gtest.h>

#include "core/shared_state.h"
#include "store/list/dec_lista.h"
#include "support/recorders.h"

namespace padral::pruebas {

class DecLista : public ::testing::Test {
protected:
    void enEuskera() {
        estado.DesplazamientoIdioma = CatalogoTextos::DesplazamientoEuskera;
        estado.fecha.fecidioma = QStringLiteral("E");
    }
    /// A result of one row.
    static SvrDPadral::ListaDeclaraciones filaUnica(qint32 csde, qint32 fecha,
                                                    const std::array<std::string_view, 6>& textos) {
        SvrDPadral::ListaDeclaraciones filas;
        filas.Anadir(csde, fecha, textos);
        return filas;
    }

    GrabadorAvisos avisos;
    RelojFijo reloj;
    EstadoCompartido estado{avisos, reloj};
    cDecLista lista{estado};
};

}  // namespace padral::pruebas
