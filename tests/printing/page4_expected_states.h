#pragma once
// Section 7 of the fourth page in rows: grid, boxes, captions.

#include "page4_expected.h"
#include "sections/tax/section7.h"

namespace padral::test {

/// A row of the grid: its caption, which begins 5 mm from the edge of the sheet and has dots up to
/// the first frame, the suffix of its answers, the tops of its frames and its marks.
struct FilaEstadoImpreso {
    const char16_t* rotulo;
    std::size_t sufijo;
    float yCuadro, yMarca;
};
inline void PrintTo(const FilaEstadoImpreso& fila, std::ostream* salida) {
    *salida << QString::fromUtf16(fila.rotulo).toStdString();
}
inline const FilaEstadoImpreso estadosImpresos[] = {
    {u"1. Alemania ", 1, 36, 38},
    {u"2. Austria ", 2, 40, 42},
    {u"3. Belgika / Belgica ", 3, 44, 46},
    {u"4. Bulgaria ", 25, 48, 50},
    {u"5. Kroazia / Croacia ", 26, 52, 54},
    {u"6. Txipre / Chipre ", 4, 56, 58},
    {u"7. Dinamarka / Dinamarca ", 5, 60, 62},
    {u"8. Eslobakia / Eslovaquia ", 6, 64, 66},
    {u"9. Eslovenia ", 7, 68, 70},
    {u"10. Estonia ", 8, 72, 74},
    {u"11. Finlandia ", 9, 76, 78},
    {u"12. Grezia / Grecia ", 10, 80, 82},
    {u"13. Frantzia / Francia ", 11, 84, 86},
    {u"14. Hungaria / Hungria ", 12, 88, 90},
    {u"15. Irlanda ", 13, 92, 94},
    {u"16. Italia ", 14, 96, 98},
    {u"17. Letonia ", 15, 100, 102},
    {u"18. Lituania ", 16, 104, 106},
    {u"19. Luxemburgo ", 17, 108, 110},
    {u"20. Malta ", 18, 112, 114},
    {u"21. Herbehereak / Países bajos ", 19, 116, 118},
    {u"22. Polonia ", 20, 120, 122},
    {u"23. Portugal ", 21, 124, 126},
    {u"24. Erresuma Batua / Reino Unido ", 22, 128, 130},
    {u"25. Errumania / Rumania ", 27, 132, 134},
    {u"26. Txekia / República checa ", 23, 136, 138},
    {u"27. Suedia / Suecia ", 24, 140, 142},
};

/// The four columns of the grid.
struct FilaColumna {
    const char16_t* numero;
    std::array<QString, NumEstadosMiembros> DatosApartado7::*respuesta;
    char16_t letra;
    float xNumero, xCuadro, xMarca;
};
inline const FilaColumna columnas[] = {
    {u"118", &DatosApartado7::LimSupPais, u'S', 50, 48, 49},
    {u"119", &DatosApartado7::LimSupPais, u'N', 70, 68, 69},
    {u"120", &DatosApartado7::DestRevocPais, u'D', 125, 124, 125},
    {u"121", &DatosApartado7::DestRevocPais, u'R', 152.5F, 151, 152},
};

/// A box below the grid.
struct FilaCasilla7 {
    const char16_t* numero;
    QString DatosApartado7::*propiedad;
    char16_t letra;
    float xNumero, yNumero, xCuadro, yCuadro, xMarca, yMarca;
};
inline void PrintTo(const FilaCasilla7& fila, std::ostream* salida) {
    *salida << QString::fromUtf16(fila.numero).toStdString();
}
inline const FilaCasilla7 casillas7[] = {
    {u"122", &DatosApartado7::Agric, u'S', 150, 166, 158, 164, 159, 165},
    {u"123", &DatosApartado7::Exentos, u'S', 150, 173, 158, 171, 159, 172},
    {u"124", &DatosApartado7::NoEmpresarios, u'S', 150, 180, 158, 178, 159, 180},
    {u"125", &DatosApartado7::MasLimEuros, u'S', 123, 193, 130, 191, 132, 193},
    {u"126", &DatosApartado7::MasLimEuros, u'N', 148, 193, 156, 191, 157, 193},
    {u"127", &DatosApartado7::TributDestino, u'O', 123, 207, 130, 205, 132, 207},
    {u"128", &DatosApartado7::TributDestino, u'R', 148, 207, 156, 205, 157, 207},
};

inline const std::vector<FilaTexto> textosApartado7 = {
    {6, 7, 0, 9, false, true, u"URRUTIKO SALMENTAK"},
    {42, 7, 0, 9, false, false, u" / VENTAS A DISTANCIA"},
    {5, 11, 0, 8, false, true,
     u"Irteera lekuan edo helmugan zergapetzea (BEZa egokitzeko abenduaren 29ko 102/92 Foru "
     u"Dekretuaren 68. artikulua)"},
    {5, 14, 0, 8, false, false,
     u"Gravamen en origen o en destino (Artículo 68 D. Foral 102/92 de 29 de diciembre de "
     u"adaptación del I.V.A.)"},
    {10, 18, 0, 8, false, true,
     u"- Europako Batasuneko beste estatu batzuetara (BEZ egokitzeko abenduaren 29ko 102/92 Foru "
     u"Dekretuaren 68.4 artikulua)"},
    {10, 21, 0, 8, false, false,
     u"- A otros Estados miembros de la U.E. (Artículo 68.4 D. Foral 102/92 de 29 de diciembre de "
     u"adaptación  del I.V.A.):"},
    {118, 27, 0, 8, false, true, u"HELMUGA             ATZERA EGITEA (Sorburua)"},
    {118, 31, 0, 8, false, false, u" DESTINO              REVOCACIÓN (Origen)"},
    {20, 163, 0, 8, false, true, u"Nekazaritza, abeltzaintza eta arrantzaren erregimen berezia"},
    {20, 166, 0, 8, false, false, u"Régimen especial de la Agricultura, Ganadería y Pesca", false,
     150},
    {20, 170, 0, 8, false, true, u"salbuetsitako Subjektu pasiboak"},
    {20, 173, 0, 8, false, false, u"Sujetos Pasivos Exentos ", false, 150},
    {20, 177, 0, 8, false, true,
     u"Enpresari edo progesional moduan jarduten ez diren pertsona juridikoak"},
    {20, 180, 0, 8, false, false, u"Personas Juridicas no empresarios o profesionales ", false,
     150},
    {5, 190, 0, 8, false, true,
     u"- Gainditu al duzu 10.000 euroko muga, batasun barruko erosketetan?"},
    {5, 193, 0, 8, false, false,
     u"- ¿Ha superado el límite de 10.000 EUROS en sus adquisiciones intracomunitarias?", false,
     123},
    {5, 204, 0, 8, false, true,
     u"- Batasunaren barruko ondasun erosketak helmugan zergapetzeko aukera"},
    {5, 207, 0, 8, false, false,
     u"- Opción por la tributación en destino de las Adquisiciones Intracomunitarias de Bienes",
     false, 123},
    {125, 198, 0, 8, false, true, u"AUKERATZEA"},
    {127, 201, 0, 8, false, false, u"OPCIÓN"},
    {148, 198, 0, 8, false, true, u"ATZERA EGITEA"},
    {148, 201, 0, 8, false, false, u"REVOCACIÓN"},
};

inline const std::vector<FilaEnPunto> centradosApartado7 = {
    {50, 31, 8, false, u"BAI", u"SI"},
    {70, 31, 8, false, u"EZ", u"NO"},
    {95, 148, 8, false,
     u"NEKAZARITZA, ABELTZAINTZA ETA ARRANTZAREN ERREGIMEN BEREZIAN DAUDEN SUBJEKTU PASIBOAK, "
     u"SALBUETSITAKO"},
    {95, 151, 8, false,
     u"SUBJEKTU PASIBOAK, ETA ENPRESARI EDO PROFESIONAL MODUAN JARDUTEN EZ DIREN PERTSONA "
     u"JURIDIKOAK"},
    {95, 155, 8, false,
     u"SUJETOS PASIVOS EN RÉGIMEN ESPECIAL DE LA AGRICULTURA, GANADERÍA Y PESCA, SUJETOS PASIVOS "
     u"EXENTOS Y "},
    {95, 158, 8, false, u"PERSONAS JURIDICAS QUE NO ACTÚEN COMO EMPRESARIOS O PROFESIONALES."},
    {130, 187, 8, false, u"BAI", u"SI"},
    {155, 187, 8, false, u"EZ", u"NO"},
};

inline BloqueEsperado Apartado7Esperado() {
    BloqueEsperado b = {"section 7",
                        YApartado7,
                        {0, 0, 193, 211},
                        {{0, 4, 193, 4}, {38, 27, 93, 27}},
                        {},
                        {{5, 5, 84, 10}, {5, 145, 184, 160}},
                        textosApartado7,
                        {}};
    b.pares = {
        {20, 2, 0, 8, true, u"7. ATALA, BATASUNAREN BARRUKO ERAGIKETAK",
         u"APARTADO 7: OPERACIONES INTRACOMUNITARIAS"},
        {38, 25, 0, 8, false, u"MUGA GAINDITUTA", u"SUPERADO LIMITE"},
    };
    b.centrados = centradosApartado7;
    for (const auto& c : columnas) b.centrados.push_back({c.xNumero, 34, 8, true, c.numero});
    for (const auto& e : estadosImpresos) {
        b.textos.push_back({5 - X, e.yCuadro + 2, 0, 8, false, false, e.rotulo, false, 48});
        for (const auto& c : columnas)
            b.marcos.push_back({c.xCuadro, e.yCuadro, c.xCuadro + 4, e.yCuadro + 4});
    }
    for (const auto& c : casillas7) {
        b.numeros.push_back({c.numero, c.xNumero, c.yNumero});
        b.marcos.push_back({c.xCuadro, c.yCuadro, c.xCuadro + 4, c.yCuadro + 4});
    }
    b.romana = true;
    return b;
}

}  // namespace padral::test
