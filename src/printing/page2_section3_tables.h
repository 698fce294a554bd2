#pragma once
// Census data: rules, stray frames and boxes 24 to 252.

#include "printing/page2_section3_values.h"
#include "printing/page2_sections.h"
#include "printing/primitives.h"

namespace padral::hoja2 {

// Three of the rules cross the boxes of the contact data: the form has them so.
inline constexpr Raya rayasApartado3[] = {
    {0, 4, AnchoImpreso, 4},
    {0, 17, AnchoImpreso, 17},
    {0, 25.5F, AnchoImpreso, 25.5F},
    {0, 33.5F, AnchoImpreso, 33.5F},
    {0, 43.5F, AnchoImpreso, 43.5F},
    {0, 53.5F, AnchoImpreso, 53.5F},
    {0, 64.5F, AnchoImpreso, 64.5F},
    {0, 75.5F, AnchoImpreso, 75.5F},
    {0, 30.5F, AnchoImpreso, 30.5F},
    {0, 36.5F, AnchoImpreso, 36.5F},
    {0, 41, AnchoImpreso, 41},
    {92, 4, 92, 17},
    {96, 17, 96, 53.5F},
    {131, 17, 131, 25.5F},
    {30, 33.5F, 30, 53.5F},
    {126, 33.5F, 126, 53.5F},
    {92, 41, 92, 49},
};
// Frames away from any mark; the second mark of box 261 and that of box 264 have none.
inline constexpr Marco marcosSueltos[] = {Cuadro(134, 26), Cuadro(154, 32)};

inline constexpr Rotulo tituloApartado3[] = {
    EnAncho(AnchoImpreso, Par(0, 0.5F, u"3.ATALA: PADRALKO BESTELAKO DATUAK",
                              u"APARTADO 3: OTROS DATOS PADRALES")),
};

inline constexpr Casilla casillasActividad[] = {
    {.numero = u"24",
     .lugarNumero = {2, 5.5F},
     .marco = Cuadro(66, 8),
     .rotulos = {Eus(9, 8, u"Kelmarian al duzu egoitza?"),
                 Cas(9, 11, u"¿Es residente en T.H. Kelmaria?"), Par(56, 10, u"Bai", u"Sí")},
     .valor = SiLetra<&DatosApartado3::ResidenteKelmaria, u'S'>,
     .lugarValor = {67, 9.5F}},
    {.marco = Cuadro(83, 8),
     .rotulos = {Par(73, 10, u"Ez", u"No")},
     .valor = SiLetra<&DatosApartado3::ResidenteKelmaria, u'N'>,
     .lugarValor = {84, 9.5F}},
    // Its value ends at a place of the page, told below.
    {.numero = u"25",
     .lugarNumero = {95, 5.5F},
     .cuerpo = CuerpoPequeno,
     .rotulos = {Eus(109, 5.5F, u"Eragiketak hasi aurreko aitorpenarako proposatutako"),
                 Eus(109, 8, u"kenkariaren behin-behineko portzentajea."),
                 Cas(109, 10.5F, u"% provisional de deducción propuesto a efectos de "),
                 Cas(109, 13, u"declaración anterior al inicio de operaciones.")}},
    {.numero = u"26",
     .lugarNumero = {2, 18.5F},
     .cuerpo = CuerpoPequeno,
     .rotulos = {Par(11, 18.5F, u"Jarduera ekonomiko nagusia", u"Actividad económica principal")},
     .valor = ComoEsta<&DatosApartado3::ListaEpigrafe>,
     .lugarValor = {2, 23},
     .cuerpoValor = 6},
    {.numero = u"27",
     .lugarNumero = {97, 18.5F},
     .cuerpo = 6,
     .rotulos = {Eus(101.5F, 18, u"JEZaren epigrafea"), Cas(101.5F, 20, u"Epígrafe I.A.E.")},
     .valor = CodigoActividad,
     .lugarValor = {98, 22.5F}},
    {.numero = u"28",
     .lugarNumero = {132, 18.5F},
     .cuerpo = 6,
     .rotulos = {Eus(136, 18, u"ohiko eta benetako hasiera data"),
                 Cas(136, 20, u"Fecha de inicio habitual y efectivo")},
     .valor = [](const Hoja& h) { return FechaSiHay(h, Datos(h).FechaInicio); },
     .lugarValor = {133, 22.5F}},
};
/// Right end of the percentage, counted from the left of the printable area; its top.
inline constexpr Mm XDerechaPorcentaje = 187;
inline constexpr Mm YPorcentaje = 9;

inline constexpr Casilla casillasPreferencias[] = {
    {.numero = u"251",
     .lugarNumero = {2, 26.5F},
     .marco = Cuadro(26, 28.5F),
     .cuerpo = CuerpoPequeno,
     .rotulos = {Par(6, 26.5F, u"Zein hizkuntzatan nahiago duzu harremana izan?",
                     u"Idioma preferente de comunicación"),
                 Cas(6, 30.5F, u"Euskara / Euskera")},
     .valor = SiLetra<&DatosApartado3::IdiomaPref, u'E'>,
     .lugarValor = {27.5F, 30}},
    {.marco = Cuadro(70, 28.5F),
     .cuerpo = CuerpoPequeno,
     .rotulos = {Cas(46, 30.5F, u"Gaztelania / Castellano")},
     .valor = SiLetra<&DatosApartado3::IdiomaPref, u'C'>,
     .lugarValor = {71.5F, 30}},
    {.numero = u"252",
     .lugarNumero = {98, 26.5F},
     .marco = Cuadro(124, 28.5F),
     .cuerpo = CuerpoPequeno,
     .rotulos = {Par(102, 26.5F, u"Komunikaziorako/jakinarazpenetarako hobetsitako modua",
                     u"Medio pref. de comunicación/notificación"),
                 Cas(102, 30.5F, u"Posta arrunta / Postal")},
     .valor = SiLetra<&DatosApartado3::MedioPref, u'P'>,
     .lugarValor = {125.5F, 30}},
    {.marco = Cuadro(165, 28.5F),
     .cuerpo = CuerpoPequeno,
     .rotulos = {Cas(138, 30.5F, u"Elektronikoa / Electrónico")},
     .valor = SiLetra<&DatosApartado3::MedioPref, u'E'>,
     .lugarValor = {166.5F, 30}},
};

}  // namespace padral::hoja2
