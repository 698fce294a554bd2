#pragma once
// The questions of section 5 as they stand on the screen.

#include <array>

#include "declaration/screen/section_screen.h"
#include "sections/tax/section5.h"

namespace padral::apartado5 {

using R5 = RespuestasApartado5;

/// Where a question stands: above, or in the panel of one branch of the I.V.A. question.
enum class Zona { Arriba, Afirmativa, Negativa };

struct Rotulo {
    const char16_t* nombre;
    int texto;
};

/// A question with its two boxes, yes and no.
struct Pregunta {
    Rotulo etiqueta;
    const char16_t *si, *no;
    Letra R5::*respuesta;
    int casilla;  ///< box of the form, the caption of the yes box
    Zona zona;
    bool soloHasta2014 = false;
    const char16_t* marco = u"";   ///< name of what holds the two boxes
    int casillaTrasElFoco = 0;     ///< another number once the focus has been there; 0 the same
    Rotulo encabezado = {u"", 0};  ///< heading of a group that begins here
};

constexpr Zona Arriba = Zona::Arriba, Afirmativa = Zona::Afirmativa, Negativa = Zona::Negativa;

inline constexpr std::array<Pregunta, 28> Preguntas = {{
    {{u"lbl1", 212}, u"chk1", u"chk2", &R5::GRANEMPRESA, 89, Arriba},
    {{u"lbl2", 210}, u"chk3", u"chk4", &R5::SOCIEDADES, 90, Arriba},
    {{u"lbl3", 756}, u"chk5", u"chk6", &R5::ADMINISTRACIONES, 163, Arriba},
    {{u"lbl4", 209}, u"chk7", u"chk8", &R5::EXENTASOCI, 91, Arriba},
    {{u"lbl5", 757}, u"chk9", u"chk10", &R5::ART117, 164, Arriba},
    {{u"lbl6", 758}, u"chk11", u"chk12", &R5::COOPERATIVA, 165, Arriba},
    {{u"lbl7", 759}, u"chk13", u"chk14", &R5::CONSOLIDACION, 166, Arriba},
    {{u"lbl8", 760}, u"chk15", u"chk16", &R5::DOMINANTE, 167, Arriba},
    {{u"lbl9", 208}, u"chk17", u"chk18", &R5::SATISRENDTRAB, 93, Arriba},
    {{u"lbl10", 207}, u"chk19", u"chk20", &R5::SATISRENDARREN, 94, Arriba},
    {{u"lbl12", 205},
     u"chk21",
     u"chk22",
     &R5::IRPFDIRECTA,
     98,
     Arriba,
     false,
     u"",
     0,
     {u"lbl11", 206}},
    {{u"lbl13", 204}, u"chk23", u"chk24", &R5::IRPFOBJETIVA, 99, Arriba, true, u"Frame9"},
    {{u"lbl14", 203}, u"chk25", u"chk26", &R5::IRPFDIRECTSIMPLIF, 100, Arriba},
    {{u"lbl15", 202}, u"chk27", u"chk28", &R5::IVA, 102, Arriba},

    {{u"lbl17", 196}, u"chk29", u"chk30", &R5::GENERAL, 103, Afirmativa},
    {{u"lbl18", 190}, u"chk31", u"chk32", &R5::RECARGO, 104, Afirmativa},
    {{u"lbl19", 197}, u"chk33", u"chk34", &R5::AGENCIASOPERACION, 105, Afirmativa},
    {{u"lbl20", 198}, u"chk35", u"chk36", &R5::AGENCIASGLOBAL, 106, Afirmativa, true, u"Frame16"},
    {{u"lbl21", 199}, u"chk37", u"chk38", &R5::BIENESUSADOS, 107, Afirmativa},
    {{u"lbl22", 200}, u"chk39", u"chk40", &R5::BIENESMARGEN, 108, Afirmativa},
    {{u"lbl23", 191}, u"chk41", u"chk42", &R5::Agric, 109, Afirmativa},
    {{u"lbl24", 201}, u"chk43", u"chk44", &R5::SIMPLIF, 110, Afirmativa},
    {{u"lbl25", 761}, u"chk45", u"chk46", &R5::OPEXSINDCHO, 168, Afirmativa},
    {{u"lblIvacaja", 870}, u"chk55", u"chk56", &R5::IVACAJA, 172, Afirmativa, false, u"", 111},

    {{u"lbl27", 190}, u"chk47", u"chk48", &R5::NORECARGO, 112, Negativa},
    {{u"lbl28", 191}, u"chk49", u"chk50", &R5::NOAGRIC, 113, Negativa},
    {{u"lbl29", 192}, u"chk51", u"chk52", &R5::NOEXENTAS, 114, Negativa},
    {{u"lbl30", 193}, u"chk53", u"chk54", &R5::NOCONCIERTO, 115, Negativa},
}};

/// A panel with the questions of one branch.
struct Panel {
    Rotulo marco;     ///< the frame and its title
    Rotulo etiqueta;  ///< the line that heads its questions
    Zona zona;
};

inline constexpr std::array<Panel, 2> Paneles = {{
    {{u"FrmAfirmativo", 194}, {u"lbl16", 195}, Zona::Afirmativa},
    {{u"FrmNegativo", 188}, {u"lbl26", 189}, Zona::Negativa},
}};

/// Questions of the left one of the two columns, by zone.
inline constexpr std::array<std::size_t, 3> EnLaIzquierda = {8, 5, 2};

/// Answers that become "N" when their branch of the I.V.A. question closes.
inline constexpr Letra R5::*RamaAfirmativa[] = {
    &R5::GENERAL,      &R5::RECARGO, &R5::AGENCIASOPERACION, &R5::AGENCIASGLOBAL, &R5::BIENESUSADOS,
    &R5::BIENESMARGEN, &R5::Agric,   &R5::SIMPLIF,           &R5::OPEXSINDCHO,    &R5::IVACAJA};
inline constexpr Letra R5::*RamaNegativa[] = {&R5::NORECARGO, &R5::NOAGRIC, &R5::NOEXENTAS,
                                              &R5::NOCONCIERTO};

/// What a click on the I.V.A. pair closes.
struct PulsacionIva {
    bool si;        ///< on the yes box
    bool repetida;  ///< that was the answer already: it is withdrawn
    bool cierraAfirmativa, cierraNegativa;
};

inline constexpr std::array<PulsacionIva, 4> PulsacionesIva = {{
    {true, false, false, true},
    {true, true, true, true},
    {false, false, true, false},
    {false, true, true, true},
}};

inline constexpr auto BotonesAlPie = BotonesHabituales(15);

}  // namespace padral::apartado5
