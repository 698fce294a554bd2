#pragma once
// The requests of section 4 as the screen shows them, from top to bottom.

#include <array>

#include "declaration/screen/section_screen.h"
#include "sections/tax/section4.h"

namespace padral::apartado4 {

using D4 = DatosApartado4;

/// A possible answer. Its caption is a text of the catalogue and its number on the form.
struct CasillaFila {
    const char16_t* casilla = nullptr;  ///< name of the box; none: the request has fewer answers
    const char16_t* valor = u"";        ///< what a tick writes
    int texto = 0;                      ///< 0: the column says it
    const char16_t* numero = u"";
};

struct Rotulo {
    const char16_t* nombre = nullptr;
    int texto = 0;
};

/// What stands above a block of rows.
struct Cabecera {
    bool raya = false;  ///< a line divides it from what is above
    Rotulo titulo;
    std::array<Rotulo, 3> columnas;
};

enum class En { Ambas, SoloHasta2014, SoloDesde2015 };

struct Solicitud {
    Rotulo etiqueta;
    Letra D4::*propiedad;
    std::array<CasillaFila, 3> respuestas;
    En ediciones = En::Ambas;
    /// Any click counts as a change, whatever the record holds already.
    bool siempreCambia = false;
};

/// One block: its heading and its rows, at most four.
struct Bloque {
    Cabecera cabecera;
    std::array<Solicitud, 4> filas;
};

constexpr CasillaFila Columna(const char16_t* casilla, const char16_t* valor,
                              const char16_t* numero) {
    return {casilla, valor, 0, numero};
}

inline constexpr int Opcion = 6, Renuncia = 7, Alta = 44, Baja = 45, Si = 51, No = 52;

// clang-format off
inline constexpr std::array<Bloque, 6> Bloques = {{
    {{false, {u"Label1", 31}, {{{u"Label13", 19}, {u"Label14", 17}, {u"Label15", 16}}}},
     {{{{u"Label2", 30}, &D4::IRPFOBJET,
        {{Columna(u"ChkEO1", u"O", u"(57)"), Columna(u"ChkEO2", u"R", u"(58)"),
          Columna(u"ChkEO3", u"E", u"(59)")}}, En::SoloHasta2014},
       {{u"Label3", 29}, &D4::IRPFDIRECT,
        {{Columna(u"ChkED1", u"O", u"(60)"), Columna(u"ChkED2", u"R", u"(61)"),
          Columna(u"ChkED3", u"E", u"(62)")}}}}}},
    {{true, {u"Label4", 28},
      {{{u"lblCajaOpcion", 19}, {u"lblCajaRenuncia", 18}, {u"lblCajaExclusion", 16}}}},
     {{{{u"lblCaja", 869}, &D4::IVACAJA,
        {{Columna(u"ChkCaja1", u"O", u"(169)"), Columna(u"ChkCaja2", u"R", u"(170)"),
          Columna(u"ChkCaja3", u"E", u"(171)")}}},
       // On the form it stands under the columns of the row above, too.
       {{u"lblCuoAdu", 879}, &D4::IVACUOADU,
        {{Columna(u"ChkCuoAdu1", u"O", u"(173)"), Columna(u"ChkCuoAdu2", u"R", u"(174)"),
          Columna(u"ChkCuoAdu3", u"E", u"(175)")}}, En::SoloDesde2015}}}},
    {{false, {}, {{{u"Label16", 18}, {u"Label17", 17}, {u"Label18", 16}}}},
     {{{{u"Label5", 27}, &D4::IVAAGRIC,
        {{Columna(u"ChkAG1", u"A", u"(66)"), Columna(u"ChkAG2", u"R", u"(67)"),
          Columna(u"ChkAG3", u"E", u"(68)")}}},
       {{u"Label6", 26}, &D4::IVASIMPLIF,
        {{Columna(u"ChkSI1", u"A", u"(69)"), Columna(u"ChkSI2", u"R", u"(70)"),
          Columna(u"ChkSI3", u"E", u"(71)")}}}}}},
    {{true, {u"Label19", 798}, {}},
     {{{{u"Label7", 25}, &D4::IVAEXPORT,
        {{{u"ChkEX1", u"A", Alta, u"  (75)"}, {u"ChkEX2", u"B", Baja, u"  (76)"}}}},
       {{u"lblExpIntra", 781}, &D4::IVAEXPORTINTRA,
        {{{u"ChkEXIntr1", u"A", Alta, u"  (161)"}, {u"ChkEXIntr2", u"B", Baja, u"  (162)"}}}}}}},
    {{true, {}, {}},
     {{{{u"Label8", 24}, &D4::IVAAGENCIAS,
        {{{u"ChkVI1", u"O", Opcion, u"  (77)"}, {u"ChkVI2", u"R", Renuncia, u"  (78)"}}},
        En::SoloHasta2014},
       {{u"Label9", 23}, &D4::IVABIENES,
        {{{u"ChkBI1", u"O", Opcion, u"  (80)"}, {u"ChkBI2", u"R", Renuncia, u"  (81)"}}}},
       {{u"Label10", 22}, &D4::IVASOCIO,
        {{{u"ChkSO1", u"S", Si, u""}, {u"ChkSO2", u"N", No, u""}}}}}}},
    {{true, {u"lblTitSoc", 840}, {}},
     {{{{u"lblSONF", 837}, &D4::SONF,
        {{{u"ChkSONF1", u"O", Opcion, u""}, {u"ChkSONF2", u"R", Renuncia, u""}}},
        En::Ambas, true}}}},
}};
// clang-format on

inline constexpr auto BotonesAlPie = BotonesHabituales(15);

}  // namespace padral::apartado4
