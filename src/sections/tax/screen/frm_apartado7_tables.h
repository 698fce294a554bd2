#pragma once
// The boxes of section 7 as they stand on the screen.

#include <array>

#include "declaration/screen/section_screen.h"
#include "sections/tax/member_states.h"

namespace padral::apartado7 {

using D7 = DatosApartado7;

/// A column of boxes beside the member states.
struct ColumnaEstados {
    const char16_t* prefijo;  ///< name of its boxes, before the suffix of the state
    std::array<QString, NumEstadosMiembros> D7::*respuestas;
    const char16_t* valor;         ///< what its boxes stand for
    std::array<int, 2> cabeceras;  ///< text ids of the heads above it, 0 for none
};

inline constexpr std::array<ColumnaEstados, 4> Columnas = {{
    {u"chkLimSupPais", &D7::LimSupPais, u"S", {277, 211}},
    {u"chkLimInfPais", &D7::LimSupPais, u"N", {277, 138}},
    {u"chkDestPais", &D7::DestRevocPais, u"D", {276, 0}},
    {u"chkRevPais", &D7::DestRevocPais, u"R", {275, 0}},
}};

struct Rotulo {
    const char16_t* nombre;
    int texto;
};

/// A head of the columns and its place in the grid, where the names of the states are column 0.
struct Cabecera {
    Rotulo rotulo;
    int fila, columna;
    int filas = 1, columnas = 1;
};

inline constexpr std::array<Cabecera, 5> Cabeceras = {{
    {{u"Label5", 277}, 0, 1, 1, 2},
    {{u"Label6", 211}, 1, 1},
    {{u"Label7", 138}, 1, 2},
    {{u"Label8", 276}, 0, 3, 2, 1},
    {{u"Label9", 275}, 0, 4, 2, 1},
}};
inline constexpr int FilasCabecera = 2;

/// Text id of what a box without a word shows while it has the focus.
inline constexpr int Flecha = 282;

/// A box of the subjects in special position.
struct CasillaSujeto {
    const char16_t* nombre;
    QString D7::*respuesta;
    const char16_t* valor;
    int palabra = 0;    ///< text id of its own word, 0: the label says all
    int conFlecha = 0;  ///< text id of that word while the box has the focus
};

/// A label with its boxes; the second one may be missing.
struct FilaSujeto {
    Rotulo etiqueta;
    std::array<CasillaSujeto, 2> casillas;
};

inline constexpr CasillaSujeto Ninguna{nullptr, nullptr, nullptr};

inline constexpr std::array<FilaSujeto, 5> FilasSujetos = {{
    {{u"Label25", 260}, {{{u"chkAgric", &D7::Agric, u"S"}, Ninguna}}},
    {{u"Label26", 259}, {{{u"chkExentos", &D7::Exentos, u"S"}, Ninguna}}},
    {{u"Label27", 258}, {{{u"chkNoEmp", &D7::NoEmpresarios, u"S"}, Ninguna}}},
    {{u"Label28", 257},
     {{{u"chkMasLimEuros", &D7::MasLimEuros, u"S", 337, 341},
       {u"chkMenosLimEuros", &D7::MasLimEuros, u"N", 340, 342}}}},
    {{u"Label29", 256},
     {{{u"chkOpcion", &D7::TributDestino, u"O", 339, 343},
       {u"chkRevocacion", &D7::TributDestino, u"R", 338, 344}}}},
}};

inline constexpr auto BotonesAlPie = BotonesHabituales(96);

}  // namespace padral::apartado7
