#pragma once
// Annex II: domicile abroad and representative, boxes 169 to 183.

#include "printing/annex2_values.h"
#include "printing/annex_furniture.h"
#include "printing/primitives.h"

namespace padral::anexo2 {

inline constexpr float CuerpoTitulos = 10;
inline constexpr float CuerpoRotulos = 8;
inline constexpr float CuerpoModalidad = 7;  ///< three captions beside one another

/// Most check frames, and what goes with them, are counted from the left of the printable area,
/// not from the left edge of their block.
constexpr Mm Fijo(Mm x) { return x - XAnexo; }

inline constexpr Rotulo titulosDomicilio[] = {
    EnAncho(AnchoImpreso,
            Eus(0, 0.5F, u"LURRALDE ESPAINIARREAN EGOLIARRAK EZ DIRENEN ATZERRIKO HELBIDEA")),
    EnAncho(AnchoImpreso,
            Cas(0, 4.5F, u"DOMICILIO EXTRANJERO DE LOS NO RESIDENTES EN TERRITORIO ESPAÑOL")),
};

inline constexpr Casilla casillasDomicilio[] = {
    {.numero = u"169",
     .lugarNumero = {3, 11.5F},
     .cuerpo = CuerpoRotulos,
     .rotulos = {Par(8, 11.5F, u"Helbide osoa", u"Dirección completa")},
     .valor = ComoEsta<&D2::DireccionDom>,
     .lugarValor = {3, 16}},
    {.numero = u"170",
     .lugarNumero = {3, 20},
     .cuerpo = CuerpoRotulos,
     .rotulos = {Par(8, 20, u"Herria", u"Población")},
     .valor = ComoEsta<&D2::PoblacionDom>,
     .lugarValor = {3, 25.5F}},
    {.numero = u"171",
     .lugarNumero = {61, 20},
     .cuerpo = CuerpoRotulos,
     .rotulos = {Par(66, 20, u"Nazionalitatea", u"Nacionalidad")},
     .valor = ComoEsta<&D2::Nacionalidad>,
     .lugarValor = {61, 25.5F}},
    {.numero = u"172",
     .lugarNumero = {132, 20},
     .cuerpo = CuerpoRotulos,
     .rotulos = {Eus(137, 20, u"Izaera juridikoa edo entitate mota"),
                 Cas(137, 22.5F, u"Forma jurídica o clase entidad")},
     .valor = ComoEsta<&D2::FormaJuridica>,
     .lugarValor = {132, 25.5F}},
    {.numero = u"173",
     .lugarNumero = {3, 31},
     .marco = Cuadro(Fijo(165), 31),
     .cuerpo = CuerpoRotulos,
     .rotulos = {Eus(20, 31, u"Ba al duzu Kelmarian establezimendu iraunkorrik?"),
                 Cas(20, 34,
                     u"¿Actúa en el territorio Histórico de Kelmaria por medio de establecimiento "
                     u"permanente?"),
                 Eus(155, 31, u"BAI"), Cas(155, 34, u"SI")},
     .valor = SiLetra<&D2::TerritorioHistorico, u'S'>,
     .lugarValor = {Fijo(166.5F), 32.5F}},
    {.marco = Cuadro(Fijo(185), 31),
     .cuerpo = CuerpoRotulos,
     .rotulos = {Eus(175, 31, u"EZ"), Cas(175, 34, u"NO")},
     .valor = SiLetra<&D2::TerritorioHistorico, u'N'>,
     .lugarValor = {Fijo(186.5F), 32.5F}},
    // Caption of the three kinds of establishment.
    {.cuerpo = CuerpoRotulos,
     .rotulos = {Par(3, 39, u"Establezimendu iraunkorraren mota:",
                     u"Modalidad de establecimiento permanente:")}},
    {.numero = u"174",
     .lugarNumero = {Fijo(3), 43},
     .marco = Cuadro(Fijo(8), 43),
     .cuerpo = CuerpoModalidad,
     .rotulos = {Eus(Fijo(13), 43, u"Jarduera jarraitukoa, merkataritza zikloa ixten duena"),
                 Cas(Fijo(13), 46, u"Con actividad continuada que cierra ciclo mercantil")},
     .valor = SiLetra<&D2::ModalidadEstablecimiento, u'A'>,
     .lugarValor = {Fijo(9.5F), 44.5F}},
    {.numero = u"175",
     .lugarNumero = {Fijo(70), 43},
     .marco = Cuadro(Fijo(75), 43),
     .cuerpo = CuerpoModalidad,
     .rotulos = {Eus(Fijo(80), 43, u"Noizbehinkako jardueraduna"),
                 Cas(Fijo(80), 46, u"Con actividad ocasional")},
     .valor = SiLetra<&D2::ModalidadEstablecimiento, u'B'>,
     .lugarValor = {Fijo(76.5F), 44.5F}},
    {.numero = u"176",
     .lugarNumero = {Fijo(112), 43},
     .marco = Cuadro(Fijo(117), 43),
     .cuerpo = CuerpoModalidad,
     .rotulos = {Eus(Fijo(122), 43,
                     u"Instalazio iraunkorrak ditu, baina ez dute merkataritza zikloa ixten"),
                 Cas(Fijo(122), 46,
                     u"Instalaciones permanentes aunque no cierren ciclo mercantil")},
     .valor = SiLetra<&D2::ModalidadEstablecimiento, u'C'>,
     .lugarValor = {Fijo(118.5F), 44.5F}},
    {.numero = u"177",
     .lugarNumero = {3, 53},
     .marco = Cuadro(Fijo(145), 53),
     .cuerpo = CuerpoRotulos,
     .rotulos = {Eus(25, 53, u"Lurralde espainiarrean beste establezimendu iraunkor batzuk dituzu"),
                 Cas(25, 56, u"Tiene otros establecimientos permanentes en territorio español"),
                 Eus(135, 53, u"BAI"), Cas(135, 56, u"SI")},
     .valor = SiLetra<&D2::OtrosEstablecimientos, u'S'>,
     .lugarValor = {Fijo(146), 54.5F}},
};

inline constexpr Rotulo titulosRepresentante[] = {
    EnAncho(AnchoImpreso, Par(0, 0.5F, u"ORDEZKARIA", u"REPRESENTANTE")),
};

inline constexpr Casilla casillasRepresentante[] = {
    {.numero = u"178",
     .lugarNumero = {3, 7.5F},
     .cuerpo = CuerpoRotulos,
     .rotulos = {Par(8, 7.5F, u"IFZ", u"N.I.F.")},
     .valor = ComoEsta<&D2::NIFRepresentante>,
     .lugarValor = {Fijo(3), 12.5F}},
    {.numero = u"179",
     .lugarNumero = {43, 7.5F},
     .cuerpo = CuerpoRotulos,
     .rotulos = {Par(48, 7.5F, u"Deiturak eta izena edo sozietate izena",
                     u"Apellidos y Nombre, o Razón Social")},
     .valor = ComoEsta<&D2::NombreRepresentante>,
     .lugarValor = {Fijo(43), 12.5F}},
    {.numero = u"180",
     .lugarNumero = {153, 7.5F},
     .cuerpo = CuerpoRotulos,
     .rotulos = {Par(158, 7.5F, u"Naziolitatea", u"Nacionalidad")},
     .valor = ComoEsta<&D2::NacionalidadRepresentante>,
     .lugarValor = {Fijo(153), 12.5F}},
    {.numero = u"181",
     .lugarNumero = {3, 16.5F},
     .cuerpo = CuerpoRotulos,
     .rotulos = {Par(8, 16.5F, u"Helbidea: Kalea edo plaza", u"Domicilio:Calle o Plaza")},
     .valor = ComoEsta<&D2::DomicilioRepresentante>,
     .lugarValor = {Fijo(3), 22.5F}},
    {.numero = u"182",
     .lugarNumero = {108, 16.5F},
     .cuerpo = CuerpoRotulos,
     .rotulos = {Par(113, 16.5F, u"Udalerria", u"Municipio")},
     .valor = ComoEsta<&D2::NombreMunicipio>,
     .lugarValor = {Fijo(108), 22.5F}},
    {.numero = u"183",
     .lugarNumero = {153, 16.5F},
     .cuerpo = CuerpoRotulos,
     .rotulos = {Par(158, 16.5F, u"Probintzia", u"Provincia")},
     .valor = ProvinciaEnMayusculas,
     .lugarValor = {Fijo(153), 22.5F}},
};

}  // namespace padral::anexo2
