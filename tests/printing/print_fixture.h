#pragma once
// A run without windows, a blank declaration and a recording printer.

#include <optional>

#include "core/shared_state.h"
#include "declaration/general_data.h"
#include "declaration/section6.h"
#include "participants/participant.h"
#include "printing/job.h"
#include "sections/location/section2.h"
#include "sections/location/section3.h"
#include "sections/tax/annex2.h"
#include "sections/tax/section4.h"
#include "sections/tax/section5.h"
#include "sections/tax/section7.h"
#include "support/recorders.h"
#include "support/recording_printer.h"
#include "support/store_fixture.h"

namespace padral::test {

struct Impresion {
    pruebas::GrabadorAvisos avisos;
    pruebas::RelojFijo reloj;
    EstadoCompartido estado{avisos, reloj};
    EstadoDeclaracion declaracion;
    cDatosGenerales datos{declaracion};
    DatosApartado2 apartado2;
    DatosApartado3 apartado3;
    DatosApartado4 apartado4;
    RespuestasApartado5 apartado5;
    DatosApartado6 apartado6;
    DatosApartado7 apartado7;
    Participantes participantes;
    DatosAnexoII anexoII;
    RegistrosImpresos registros{datos,     apartado2, apartado3,     apartado4, apartado5,
                                apartado6, apartado7, participantes, anexoII};
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
