#pragma once
// Heading and section 1 of the first page: rules, captions and boxes.

#include "printing/page1_values.h"
#include "printing/primitives.h"

namespace padral::hoja1 {

inline constexpr Mm Mitad = 97;  // the line down the middle of the blocks

// Title lines of the heading.
inline constexpr Rotulo tituloEuskera[] = {
    EnAncho(112.5F, Eus(59, 5, u"PADRAL AITORPENA")),
};
inline constexpr Rotulo tituloCastellano[] = {
    EnAncho(112.5F, Cas(59, 14, u"DECLARACIÓN PADRAL")),
};

// Section 1.
inline constexpr Raya rayasApartado1[] = {
    {0, 4, AnchoImpreso, 4}, {0, 50, AnchoImpreso, 50}, {Mitad, 4, Mitad, 50},
    {0, 25, Mitad, 25},      {0, 37, Mitad, 37},        {21, 8, 21, 21},
};
inline constexpr Rotulo tituloApartado1[] = {
    EnAncho(AnchoImpreso, Par(0, 0.5F, u"1.ATALA: AURKEZPENAREN ARRAZOIA",
                              u"APARTADO 1: CAUSA DE LA PRESENTACIÓN")),
};
inline constexpr Rotulo gruposApartado1[] = {
    EnAncho(21, Eus(0, 12, u"HASIERA")),      EnAncho(21, Cas(0, 15, u"COMIENZO")),
    EnAncho(21, Eus(0, 28, u"AMAIERA")),      EnAncho(21, Cas(0, 31, u"CESE")),
    EnAncho(45, Eus(Mitad, 12, u"ALDAKETA")), EnAncho(45, Cas(Mitad, 18, u"MODIFICACIÓN")),
};
inline constexpr Casilla casillasApartado1[] = {
    {.numero = u"3",
     .lugarNumero = {26, 9.5F},
     .marco = Cuadro(31, 8),
     .rotulos = {Eus(38, 8, u"Eragiketak hasi aurreko aitorpena"),
                 Cas(38, 11, u"Declaración anterior al inicio de operaciones")},
     .valor = SiCausa1<u'P'>,
     .lugarValor = {32, 9.5F}},
    {.numero = u"4",
     .lugarNumero = {26, 18.5F},
     .marco = Cuadro(31, 16.5F),
     .rotulos = {Eus(38, 16.5F, u"Hasieraren aitorpena"),
                 Cas(38, 19.5F, u"Declaración de inicio de operaciones")},
     .valor = SiCausa1<u'I'>,
     .lugarValor = {32, 18}},
    {.numero = u"5",
     .lugarNumero = {26, 31},
     .marco = Cuadro(31, 29),
     .rotulos = {Eus(38, 29, u"Amaiera"), Cas(38, 32, u"Cese")},
     .valor = SiCausa1<u'C'>,
     .lugarValor = {32, 30.5F}},
    {.numero = u"6",
     .lugarNumero = {142, 9},
     .numeroADerecha = true,
     .marco = Cuadro(146.5F, 8),
     .cuerpo = 6,
     .rotulos = {Par(152, 10, u"2.atala: kokalekua", u"Aptdo2: Localización")},
     .valor = ComoEsta<&cDatosGenerales::Apartado2>,
     .lugarValor = {147.5F, 9.5F}},
    {.numero = u"7",
     .lugarNumero = {142, 13},
     .numeroADerecha = true,
     .marco = Cuadro(146.5F, 12),
     .cuerpo = 6,
     .rotulos = {Eus(152, 13, u"3.atala: padralko bestelako datuak"),
                 Cas(152, 15, u"Aptdo3: Otros datos padrales")},
     .valor = ComoEsta<&cDatosGenerales::Apartado3>,
     .lugarValor = {147.5F, 13.5F}},
    {.numero = u"8",
     .lugarNumero = {142, 17},
     .numeroADerecha = true,
     .marco = Cuadro(146.5F, 16),
     .cuerpo = 6,
     .rotulos = {Eus(152, 17, u"4.atala: eskaera bereziak"),
                 Cas(152, 19, u"Aptdo4: Solicitudes Específicas")},
     .valor = ComoEsta<&cDatosGenerales::Apartado4>,
     .lugarValor = {147.5F, 17.5F}},
    {.numero = u"9",
     .lugarNumero = {142, 21},
     .numeroADerecha = true,
     .marco = Cuadro(146.5F, 20),
     .cuerpo = 6,
     .rotulos = {Eus(152, 21, u"5.atala: zerga egoera"),
                 Cas(152, 23, u"Aptdo5: Situación Tributaria")},
     .valor = ComoEsta<&cDatosGenerales::Apartado5>,
     .lugarValor = {147.5F, 21.5F}},
    {.numero = u"10",
     .lugarNumero = {142, 25},
     .numeroADerecha = true,
     .marco = Cuadro(146.5F, 24),
     .cuerpo = 6,
     .rotulos = {Eus(152, 25, u"7.atala: batasunaren barruko eragiketak"),
                 Cas(152, 27, u"Aptdo7: Oper. Intracomunitarias")},
     .valor = ComoEsta<&cDatosGenerales::Apartado7>,
     .lugarValor = {147.5F, 25.5F}},
    {.numero = u"11",
     .lugarNumero = {142, 29},
     .numeroADerecha = true,
     .marco = Cuadro(146.5F, 28),
     .cuerpo = 6,
     .rotulos = {Eus(152, 29, u"Eranskina: partaideak"), Cas(152, 31, u"AnexoI: Partícipes")},
     .valor = ComoEsta<&cDatosGenerales::AnexoI>,
     .lugarValor = {147.5F, 29.5F}},
    {.numero = u"130",
     .lugarNumero = {142, 33},
     .numeroADerecha = true,
     .marco = Cuadro(146.5F, 32),
     .cuerpo = 6,
     .rotulos = {Eus(152, 33, u"Eranskina: ez-egoiliarrak eta"),
                 Eus(152, 35, u"BEZeko beste aukera batzuk"),
                 Cas(152, 37, u"AnexoII: No residentes y otras ope. IVA")},
     .valor = ComoEsta<&cDatosGenerales::AnexoII>,
     .lugarValor = {147.5F, 33.5F}},
    {.numero = u"12",
     .lugarNumero = {142, 41},
     .numeroADerecha = true,
     .marco = {146.5F, 40, 178, 44},
     .rotulos = {EnAncho(45, Eus(Mitad, 38.5F, u"Aldaketaren data")),
                 EnAncho(45, Cas(Mitad, 41.5F, u"Fecha de modificación"))},
     .valor = FechaDelCambio,
     .lugarValor = {148, 41.5F}},
    {.numero = u"13",
     .lugarNumero = {76, 43},
     .marco = Cuadro(81, 41.5F),
     .rotulos = {Eus(3, 41, u"IFZren edo txartelaren eskaera"),
                 Cas(3, 45, u"Solicitud de número y/o tarjeta del N.I.F.")},
     .valor = [](const Hoja& h) { return Marca(!Datos(h).Causa2.isEmpty()); },
     .lugarValor = {82, 43}},
};

}  // namespace padral::hoja1
