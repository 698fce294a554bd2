#pragma once
// Section 6 on the fourth page: rules, captions and places of its values.

#include "declaration/section6.h"
#include "printing/layout.h"
#include "printing/primitives.h"

namespace padral::hoja4 {

inline constexpr Raya rayasApartado6[] = {
    {0, 4, AnchoImpreso, 4},
    {80, 4, 80, 15},
    {36, 4, 36, 15},
};
inline constexpr Rotulo tituloApartado6[] = {
    Par(62, 1.5F, u"6.ATALA: AMIERA", u"APARTADO 6: CESE"),
};
inline constexpr Rotulo rotulosApartado6[] = {
    Eus(2, 5.5F, u"Amaitze edo erabakitze data"),
    Cas(2, 8.5F, u"Fecha de cese o acuerdo"),
    Eus(38, 5.5F, u"Erregistroko inskripzio data"),
    Cas(38, 8.5F, u"Fecha de inscripción en el registro"),
    Par(85, 5.5F, u"Arrazoia", u"Causa"),
};
// One text whose lines do not part the languages; the last line ends 1 mm past the frame.
inline constexpr Rotulo avisoApartado6[] = {
    Cas(105, 5.7F,
        u"(Atal hau betetzeak berarekin dakar zergapekoaren jarduera guztiei Jarduera Ekonomikoen "
        u"gaineko"),
    Cas(85, 7.7F,
        u"Zergan baja ematea, etxebizitza alokatzeko jarduerari izan ezik (1.8611 epigrafea). / El "
        u"rellenar este apartado supondrá también"),
    Cas(85, 9.7F,
        u"la baja de todas las actividades económicas del obligado tributario excepto la 1.8611 de "
        u"alquiler de vivienda si es que lo tuviera.)"),
};

struct FechaApartado6 {
    qint32 DatosApartado6::*propiedad;
    Mm x;
};
inline constexpr Mm YFechas = 11.5F;
inline constexpr FechaApartado6 fechasApartado6[] = {
    {&DatosApartado6::FECHACESE, 9},
    {&DatosApartado6::FechaInscripcion, 50},
};

/// A free description stands higher than a cause of the catalogue.
inline constexpr Mm XCausa = 85, YDescripcion = 9, YCausa = 12;

}  // namespace padral::hoja4
