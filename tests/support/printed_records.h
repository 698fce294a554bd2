#pragma once
// The records that a print job reads, blank.

#include "declaration/general_data.h"
#include "declaration/section6.h"
#include "participants/participant.h"
#include "printing/layout.h"
#include "sections/location/section2.h"
#include "sections/location/section3.h"
#include "sections/tax/annex2.h"
#include "sections/tax/section4.h"
#include "sections/tax/section5.h"
#include "sections/tax/section7.h"

namespace padral::pruebas {

struct RegistrosDeImpresion {
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
};

}  // namespace padral::pruebas
