#pragma once
// Heading and section 6 of the empty fourth page in rows.

#include "furniture_expected.h"

namespace padral::test {

inline constexpr float YCabecera4 = 4, YIdentificacion4 = 37, YApartado6 = 52, YApartado7 = 70;

inline BloqueEsperado CabeceraEsperada4() {
    BloqueEsperado b = {
        "heading",
        YCabecera4,
        {0, 0, 193, 29},
        {{60, 0, 60, 29}, {172, 0, 172, 29}, {172, 17, 193, 17}, {172, 22, 193, 22}},
        {},
        {},
        {},
        {}};
    b.centrados = {
        {115, 5, 16, false, u"PADRAL AITORPENA"},
        {115, 18, 16, false, u"DECLARACIÓN PADRAL"},
        {182, 10, 32, false, u"417"},
    };
    b.romana = true;
    return b;
}

inline BloqueEsperado Identificacion4Esperada() {
    BloqueEsperado b = IdentificacionEsperada(YIdentificacion4);
    b.romana = true;
    return b;
}

inline BloqueEsperado Apartado6Esperado() {
    BloqueEsperado b = {"section 6",
                        YApartado6,
                        {0, 0, 193, 15},
                        {{0, 4, 193, 4}, {80, 4, 80, 15}, {36, 4, 36, 15}},
                        {},
                        {},
                        {},
                        {}};
    b.textos = {
        {2, 5.5F, 0, 8, false, true, u"Amaitze edo erabakitze data"},
        {2, 8.5F, 0, 8, false, false, u"Fecha de cese o acuerdo"},
        {38, 5.5F, 0, 8, false, true, u"Erregistroko inskripzio data"},
        {38, 8.5F, 0, 8, false, false, u"Fecha de inscripción en el registro"},
        {105, 5.7F, 0, 6, false, false,
         u"(Atal hau betetzeak berarekin dakar zergapekoaren jarduera guztiei Jarduera Ekonomikoen "
         u"gaineko"},
        {85, 7.7F, 0, 6, false, false,
         u"Zergan baja ematea, etxebizitza alokatzeko jarduerari izan ezik (1.8611 epigrafea). / "
         u"El rellenar este apartado supondrá también"},
        {85, 9.7F, 0, 6, false, false,
         u"la baja de todas las actividades económicas del obligado tributario excepto la 1.8611 "
         u"de alquiler de vivienda si es que lo tuviera.)"},
    };
    b.pares = {
        {62, 1.5F, 0, 8, true, u"6.ATALA: AMIERA", u"APARTADO 6: CESE"},
        {85, 5.5F, 0, 8, false, u"Arrazoia", u"Causa"},
    };
    b.romana = true;
    return b;
}

}  // namespace padral::test
