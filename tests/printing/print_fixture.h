#pragma once
// A run without windows, a blank declaration and a recording printer.

#include "core/shared_state.h"
#include "declaration/general_data.h"
#include "printing/job.h"
#include "support/recorders.h"
#include "support/recording_printer.h"

namespace padral::test {

struct Impresion {
    pruebas::GrabadorAvisos avisos;
    pruebas::RelojFijo reloj;
    EstadoCompartido estado{avisos, reloj};
    EstadoDeclaracion declaracion;
    cDatosGenerales datos{declaracion};
    RegistrosImpresos registros{datos};
    FabricaRegistro fabrica;
    Imprimir modulo{estado, registros, fabrica};

    /// Prints one copy and gives what was drawn.
    const Documento& Copia(const QString& tipo = QStringLiteral("AD")) {
        modulo.ImprimirDeclaracion(tipo);
        return *fabrica.documentos.back();
    }
};

}  // namespace padral::test
