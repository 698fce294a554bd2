#pragma once
// Section 7 on the fourth page: heading, grid of the member states, texts below it.

#include "printing/layout.h"
#include "printing/primitives.h"
#include "sections/tax/member_states.h"

namespace padral::hoja4 {

inline constexpr Raya rayasApartado7[] = {
    {0, 4, AnchoImpreso, 4},
    {38, 27, 93, 27},
};
inline constexpr Rotulo tituloApartado7[] = {
    Par(20, 2, u"7. ATALA, BATASUNAREN BARRUKO ERAGIKETAK",
        u"APARTADO 7: OPERACIONES INTRACOMUNITARIAS"),
};

/// Frames round captions: that of distance sales and that of the special taxpayers.
inline constexpr Marco marcosRotulos[] = {{5, 5, 84, 10}, {5, 145, 184, 160}};
inline constexpr Rotulo rotulosVentas[] = {
    Eus(6, 7, u"URRUTIKO SALMENTAK"),
    Cas(42, 7, u" / VENTAS A DISTANCIA"),
};
inline constexpr Rotulo rotulosApartado7[] = {
    Eus(5, 11,
        u"Irteera lekuan edo helmugan zergapetzea (BEZa egokitzeko abenduaren 29ko 102/92 Foru "
        u"Dekretuaren 68. artikulua)"),
    Cas(5, 14,
        u"Gravamen en origen o en destino (Artículo 68 D. Foral 102/92 de 29 de diciembre de "
        u"adaptación del I.V.A.)"),
    Eus(10, 18,
        u"- Europako Batasuneko beste estatu batzuetara (BEZ egokitzeko abenduaren 29ko 102/92 "
        u"Foru Dekretuaren 68.4 artikulua)"),
    Cas(10, 21,
        u"- A otros Estados miembros de la U.E. (Artículo 68.4 D. Foral 102/92 de 29 de diciembre "
        u"de adaptación  del I.V.A.):"),
    Par(38, 25, u"MUGA GAINDITUTA", u"SUPERADO LIMITE"),
    EnPunto(Par(50, 31, u"BAI", u"SI")),
    EnPunto(Par(70, 31, u"EZ", u"NO")),
    Eus(118, 27, u"HELMUGA             ATZERA EGITEA (Sorburua)"),
    Cas(118, 31, u" DESTINO              REVOCACIÓN (Origen)"),
};

/// A column of the grid. Its letter marks whichever of the two answers of a state has it.
struct ColumnaEstados {
    const char16_t* numero;
    Punto lugarNumero;  ///< its centre
    Mm xCuadro;
    char16_t letra;
    Mm xMarca;
};
inline constexpr ColumnaEstados columnasEstados[] = {
    {u"118", {50, 34}, 48, u'S', 49},
    {u"119", {70, 34}, 68, u'N', 69},
    {u"120", {125, 34}, 124, u'D', 125},
    {u"121", {152.5F, 34}, 151, u'R', 152},
};

/// The first row of the grid and its marks; a row is 4 mm high.
inline constexpr Mm YEstados = 36, YMarcasEstados = 38;
constexpr Mm BajadaFila(std::size_t fila) { return static_cast<Mm>(4 * fila); }

/// From the edge of the sheet, not of the form.
inline constexpr Mm XRotuloEstado = 5;
inline constexpr Mm BajadaRotuloEstado = 2;
/// In the order of FilasEstados.
inline constexpr std::array<const char16_t*, NumEstadosMiembros> rotulosEstados = {
    u"1. Alemania ",
    u"2. Austria ",
    u"3. Belgika / Belgica ",
    u"4. Bulgaria ",
    u"5. Kroazia / Croacia ",
    u"6. Txipre / Chipre ",
    u"7. Dinamarka / Dinamarca ",
    u"8. Eslobakia / Eslovaquia ",
    u"9. Eslovenia ",
    u"10. Estonia ",
    u"11. Finlandia ",
    u"12. Grezia / Grecia ",
    u"13. Frantzia / Francia ",
    u"14. Hungaria / Hungria ",
    u"15. Irlanda ",
    u"16. Italia ",
    u"17. Letonia ",
    u"18. Lituania ",
    u"19. Luxemburgo ",
    u"20. Malta ",
    u"21. Herbehereak / Países bajos ",
    u"22. Polonia ",
    u"23. Portugal ",
    u"24. Erresuma Batua / Reino Unido ",
    u"25. Errumania / Rumania ",
    u"26. Txekia / República checa ",
    u"27. Suedia / Suecia ",
};

inline constexpr Rotulo rotulosSujetos[] = {
    EnPunto(Eus(95, 148,
                u"NEKAZARITZA, ABELTZAINTZA ETA ARRANTZAREN ERREGIMEN BEREZIAN DAUDEN SUBJEKTU "
                u"PASIBOAK, SALBUETSITAKO")),
    EnPunto(Eus(95, 151,
                u"SUBJEKTU PASIBOAK, ETA ENPRESARI EDO PROFESIONAL MODUAN JARDUTEN EZ DIREN "
                u"PERTSONA JURIDIKOAK")),
    EnPunto(Cas(95, 155,
                u"SUJETOS PASIVOS EN RÉGIMEN ESPECIAL DE LA AGRICULTURA, GANADERÍA Y PESCA, "
                u"SUJETOS PASIVOS EXENTOS Y ")),
    EnPunto(Cas(95, 158, u"PERSONAS JURIDICAS QUE NO ACTÚEN COMO EMPRESARIOS O PROFESIONALES.")),
};

}  // namespace padral::hoja4
