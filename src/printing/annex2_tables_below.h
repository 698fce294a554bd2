#pragma once
// Annex II: obligations of non-residents and other situations, boxes 184 to 188 without 187, which
// the form no longer has.

#include "printing/annex2_tables.h"

namespace padral::anexo2 {

// The form has the title of the domicile here too, and its second word spelled another way.
inline constexpr Rotulo titulosObligaciones[] = {
    EnAncho(AnchoImpreso,
            Eus(0, 0.5F, u"LURRALDE ESPAINIARREN EGOILIARRAK EZ DIRENEN ATZERRIKO HELBIDEA")),
    EnAncho(AnchoImpreso,
            Cas(0, 4.5F, u"DOMICILIO EXTRANJERO DE LOS NO RESIDENTES EN TERRITORIO ESPAÑOL")),
};

/// The two answers of a question whose frames have their top at `y`.
constexpr Casilla Si(Mm y, Valor (*valor)(const Hoja&)) {
    return {.marco = Cuadro(Fijo(165), y),
            .cuerpo = CuerpoRotulos,
            .rotulos = {Eus(155, y, u"BAI"), Cas(155, y + 3, u"SI")},
            .valor = valor,
            .lugarValor = {Fijo(166.5F), y + 1.5F}};
}
constexpr Casilla No(Mm y, Valor (*valor)(const Hoja&)) {
    return {.marco = Cuadro(Fijo(185), y),
            .cuerpo = CuerpoRotulos,
            .rotulos = {Eus(175, y, u"EZ"), Cas(175, y + 3, u"NO")},
            .valor = valor,
            .lugarValor = {Fijo(186.5F), y + 1.5F}};
}

inline constexpr Casilla casillasObligaciones[] = {
    {.numero = u"184",
     .lugarNumero = {3, 14},
     .cuerpo = CuerpoRotulos,
     .rotulos = {Eus(8, 14,
                     u"Behartuta al zaude Zergadun Ez Egoiliarren Errentaren gaineko Zergaren "
                     u"aldizkako aitorpenak "),
                 Eus(8, 17, u"Kelmariako Foru Ogasunean aurkeztera?"),
                 Cas(8, 20,
                     u"¿Está obligado a presentar declaraciones periódicas por el Impuesto sobre "
                     u"la Renta de los No Residentes "),
                 Cas(8, 23, u"en la Hacienda Foral de Kelmaria?")}},
    Si(16, SiLetra<&D2::Obligado, u'S'>),
    No(16, SiLetra<&D2::Obligado, u'N'>),
    {.numero = u"185",
     .lugarNumero = {3, 29},
     .cuerpo = CuerpoRotulos,
     .rotulos = {Eus(8, 29,
                     u"Erakuntza, instalazio edo muntaia lanak egiten dituzten establezimendu "
                     u"iraunkorrek establezimendu"),
                 Eus(8, 32,
                     u"iraunkorren erregimen orokerrean tributatzearen aldeko aukera egitea"),
                 Cas(8, 35,
                     u"Opción de los establecimientos permanentes cuya actividad consiste en "
                     u"construcción, instalación o montaje por"),
                 Cas(8, 38,
                     u"la tributación por el régimen general de los establecimientos "
                     u"permanentes")}},
    Si(31, SiLetra<&D2::Establecimientos, u'S'>),
    No(31, SiLetra<&D2::Establecimientos, u'N'>),
};

inline constexpr Rotulo titulosOtrasSituaciones[] = {
    EnAncho(
        AnchoImpreso,
        Eus(0, 0.5F, u"BALIO ERANTSIAREN GAINEKO ZERGAN DAUDEN BESTE HAINBAT EGOERA ETA AUKERA")),
    EnAncho(AnchoImpreso,
            Cas(0, 4.5F, u"OTRAS SITUACIONES Y OPCIONES EN EL IMPUESTO SOBRE EL VALOR AÑADIDO")),
};

inline constexpr Casilla casillasOtrasSituaciones[] = {
    // Of all marks only this one is counted from the left edge of the block.
    {.numero = u"186",
     .lugarNumero = {3, 23},
     .marco = Cuadro(Fijo(165), 23),
     .cuerpo = CuerpoRotulos,
     .rotulos = {Par(8, 23, u"Inbertsio urrearen erregimen berezia aplikagarri zaio",
                     u"Les es de aplicación el régimen especial del oro de inversión"),
                 Eus(155, 23, u"BAI"), Cas(155, 26, u"SI")},
     .valor = SiLetra<&D2::Aplicacion, u'S'>,
     .lugarValor = {166.5F, 24.5F}},
    {.numero = u"188",
     .lugarNumero = {118, 43},
     .marco = {Fijo(161), 44, Fijo(169), 48},
     .cuerpo = CuerpoRotulos,
     .rotulos = {Eus(3, 43, u"Hainbanaketa  orokorraren behin-behineko portzentajea aldatzea"),
                 Cas(3, 46, u"Modificación del porcentaje provisional de prorrata general"),
                 Eus(123, 43, u"Proposatutako portzentajea"),
                 Cas(123, 46, u"Porcentaje propuesto")},
     .valor = PorcentajePropuesto,
     .lugarValor = {Fijo(164), 45.5F}},
    {.cuerpo = CuerpoRotulos, .rotulos = {Cas(171, 45, u"%")}},
};

}  // namespace padral::anexo2
