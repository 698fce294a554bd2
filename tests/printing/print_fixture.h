#pragma once
// A run without windows, a blank declaration and a recording printer.

#include <optional>

#include "core/shared_state.h"
#include "printing/job.h"
#include "support/printed_records.h"
#include "support/recorders.h"
#include "support/recording_printer.h"
#include "support/store_fixture.h"

namespace padral::test {

struct Impresion : pruebas::RegistrosDeImpresion {
    pruebas::GrabadorAvisos avisos;
    pruebas::RelojFijo reloj;
    EstadoCompartido estado{avisos, reloj};
    FabricaRegistro fabrica;
    Imprimir modulo{estado, registros, fabrica};

    /// Chooses the language of the run, which is kept in a data file.
    void Idioma(const char16_t* letra) {
        if (!almacen) almacen.emplace(estado);
        estado.mdi.IDI(QString::fromUtf16(letra));
    }
    /// Prints one copy and gives what was drawn.
    const Documento& Copia(const QString& tipo = QStringLiteral("AD")) {
        modulo.ImprimirDeclaracion(tipo);
        return *fabrica.documentos.back();
    }

    std::optional<pruebas::AlmacenPrueba> almacen;
};

}  // namespace padral::test
