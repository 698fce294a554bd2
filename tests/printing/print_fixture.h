#pragma once
// A run without windows, a blank declaration and a recording printer.

#include "core/shared_state.h"
#include "declaration/general_data.h"
#include "printing/job.h"
#include "sections/location/section2.h"
#include "sections/location/section3.h"
#include "support/recorders.h"
#include "support/recording_printer.h"

namespace padral::test {

struct Impresion {
    pruebas::GrabadorAvisos avisos;
    pruebas::RelojFijo reloj;
    EstadoCompartido estado{avisos, reloj};
    EstadoDeclaracion declaracion;
    cDatosGenerales datos{declaracion};
    DatosApartado2 apartado2;
    DatosApartado3 apartado3;
    RegistrosImpresos registros{datos, apartado2, apartado3};
    FabricaRegistro fabrica;
    Imprimir modulo{estado, registros, fabrica};

    /// Prints one copy and gives what was drawn.
    const Documento& Copia(const QString& tipo = QStringLiteral("AD")) {
        modulo.ImprimirDeclaracion(tipo);
        return *fabrica.documentos.back();
    }
};

}  // namespace padral::test
