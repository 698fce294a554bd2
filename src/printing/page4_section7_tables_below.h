#pragma once
// Section 7 below the grid: boxes 122 to 128.

#include "printing/layout.h"
#include "sections/tax/section7.h"

namespace padral::hoja4 {

template <QString DatosApartado7::*propiedad, char16_t letra>
Valor SiLetra(const Hoja& h) {
    return Marca(h.registros.apartado7.*propiedad == QChar(letra));
}

inline constexpr Rotulo rotulosRespuestas[] = {
    EnPunto(Par(130, 187, u"BAI", u"SI")), EnPunto(Par(155, 187, u"EZ", u"NO")),
    Eus(125, 198, u"AUKERATZEA"),          Cas(127, 201, u"OPCIÓN"),
    Eus(148, 198, u"ATZERA EGITEA"),       Cas(148, 201, u"REVOCACIÓN"),
};

/// The dots of a caption end at the number of its box.
inline constexpr Mm XNumeroSujeto = 150, XNumeroRespuesta = 123;

inline constexpr Casilla casillasApartado7[] = {
    {.numero = u"122",
     .lugarNumero = {XNumeroSujeto, 166},
     .marco = Cuadro(158, 164),
     .rotulos = {Eus(20, 163, u"Nekazaritza, abeltzaintza eta arrantzaren erregimen berezia"),
                 ConPuntos(XNumeroSujeto,
                           Cas(20, 166, u"Régimen especial de la Agricultura, Ganadería y Pesca"))},
     .valor = SiLetra<&DatosApartado7::Agric, u'S'>,
     .lugarValor = {159, 165}},
    {.numero = u"123",
     .lugarNumero = {XNumeroSujeto, 173},
     .marco = Cuadro(158, 171),
     .rotulos = {Eus(20, 170, u"salbuetsitako Subjektu pasiboak"),
                 ConPuntos(XNumeroSujeto, Cas(20, 173, u"Sujetos Pasivos Exentos "))},
     .valor = SiLetra<&DatosApartado7::Exentos, u'S'>,
     .lugarValor = {159, 172}},
    {.numero = u"124",
     .lugarNumero = {XNumeroSujeto, 180},
     .marco = Cuadro(158, 178),
     .rotulos = {Eus(20, 177,
                     u"Enpresari edo progesional moduan jarduten ez diren pertsona juridikoak"),
                 ConPuntos(XNumeroSujeto,
                           Cas(20, 180, u"Personas Juridicas no empresarios o profesionales "))},
     .valor = SiLetra<&DatosApartado7::NoEmpresarios, u'S'>,
     .lugarValor = {159, 180}},
    {.numero = u"125",
     .lugarNumero = {XNumeroRespuesta, 193},
     .marco = Cuadro(130, 191),
     .rotulos = {Eus(5, 190,
                     u"- Gainditu al duzu 10.000 euroko muga, batasun barruko erosketetan?"),
                 ConPuntos(XNumeroRespuesta,
                           Cas(5, 193,
                               u"- ¿Ha superado el límite de 10.000 EUROS en sus adquisiciones "
                               u"intracomunitarias?"))},
     .valor = SiLetra<&DatosApartado7::MasLimEuros, u'S'>,
     .lugarValor = {132, 193}},
    {.numero = u"126",
     .lugarNumero = {148, 193},
     .marco = Cuadro(156, 191),
     .valor = SiLetra<&DatosApartado7::MasLimEuros, u'N'>,
     .lugarValor = {157, 193}},
    {.numero = u"127",
     .lugarNumero = {XNumeroRespuesta, 207},
     .marco = Cuadro(130, 205),
     .rotulos = {Eus(5, 204,
                     u"- Batasunaren barruko ondasun erosketak helmugan zergapetzeko aukera"),
                 ConPuntos(XNumeroRespuesta,
                           Cas(5, 207,
                               u"- Opción por la tributación en destino de las Adquisiciones "
                               u"Intracomunitarias de Bienes"))},
     .valor = SiLetra<&DatosApartado7::TributDestino, u'O'>,
     .lugarValor = {132, 207}},
    {.numero = u"128",
     .lugarNumero = {148, 207},
     .marco = Cuadro(156, 205),
     .valor = SiLetra<&DatosApartado7::TributDestino, u'R'>,
     .lugarValor = {157, 207}},
};
/// The box whose mark the form prints three times over.
inline constexpr const Casilla& casillaAgric = casillasApartado7[0];

}  // namespace padral::hoja4
