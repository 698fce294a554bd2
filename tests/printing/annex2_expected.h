#pragma once
// The page of Annex II in rows.

#include "annex_expected.h"

namespace padral::test {

/// Tops of the blocks.
inline constexpr float YCabeceraII = 3, YIdentificacionII = 35, YDomicilio = 53,
                       YRepresentante = 122, YObligaciones = 151, YOtrasSituaciones = 206;

/// A place that the form counts from the left of the printable area.
constexpr float Fijo(float x) { return x - X; }
constexpr FilaTrazo Cuadro4(float x, float y) { return {x, y, x + 4, y + 4}; }
constexpr FilaTexto Eus8(float x, float y, const char16_t* texto) {
    return {x, y, 0, 8, false, true, texto};
}
constexpr FilaTexto Cas8(float x, float y, const char16_t* texto) {
    return {x, y, 0, 8, false, false, texto};
}
constexpr FilaTexto Eus7(float x, float y, const char16_t* texto) {
    return {x, y, 0, 7, false, true, texto};
}
constexpr FilaTexto Cas7(float x, float y, const char16_t* texto) {
    return {x, y, 0, 7, false, false, texto};
}
constexpr FilaPar Par8(float x, float y, const char16_t* eus, const char16_t* cas) {
    return {x, y, 0, 8, false, eus, cas};
}

inline const std::vector<FilaEnPunto> lineasAnexoII = {
    {115, 4, 16, false, u"PADRAL AITORPENA"},
    {115, 9, 14, false, u"DECLARACIÓN PADRAL"},
    {115, 14, 8, false, u"LURRALDE ESPAINIARREAN EGOLIARRAK EZ DIREN SUBJEKTU PASIBOAK"},
    {115, 17, 8, false, u"ETA BEZ-AREN BESTE HAINBAT EGOERA ETA AUKERA"},
    {115, 22, 8, false, u"SUJETOS PASIVOS NO RESIDENTES EN TERRITORIO ESPAÑOL"},
    {115, 25, 8, false, u"Y OTRAS SITUACIONES Y OPCIONES EN EL IVA"},
    {182, 10, 32, false, u"417"},
    {182, 18, 10, false, u"II eranskina"},
    {182, 22, 10, false, u"Anexo II"},
};

inline BloqueEsperado DomicilioExtranjeroEsperado() {
    return {
        .nombre = "domicile abroad",
        .origen = YDomicilio,
        .marcoGrueso = {0, 0, 193, 65},
        .rayas = {{0, 10, 193, 10}},
        .numeros = {{u"169", 3, 11.5F},
                    {u"170", 3, 20},
                    {u"171", 61, 20},
                    {u"172", 132, 20},
                    {u"173", 3, 31},
                    {u"174", Fijo(3), 43},
                    {u"175", Fijo(70), 43},
                    {u"176", Fijo(112), 43},
                    {u"177", 3, 53}},
        .marcos = {Cuadro4(Fijo(165), 31), Cuadro4(Fijo(185), 31), Cuadro4(Fijo(8), 43),
                   Cuadro4(Fijo(75), 43), Cuadro4(Fijo(117), 43), Cuadro4(Fijo(145), 53)},
        .textos =
            {
                {0, 0.5F, 193, 10, true, true,
                 u"LURRALDE ESPAINIARREAN EGOLIARRAK EZ DIRENEN ATZERRIKO HELBIDEA"},
                {0, 4.5F, 193, 10, true, false,
                 u"DOMICILIO EXTRANJERO DE LOS NO RESIDENTES EN TERRITORIO ESPAÑOL"},
                Eus8(137, 20, u"Izaera juridikoa edo entitate mota"),
                Cas8(137, 22.5F, u"Forma jurídica o clase entidad"),
                Eus8(20, 31, u"Ba al duzu Kelmarian establezimendu iraunkorrik?"),
                Cas8(20, 34,
                     u"¿Actúa en el territorio Histórico de Kelmaria por medio de "
                     u"establecimiento permanente?"),
                Eus8(155, 31, u"BAI"),
                Eus8(175, 31, u"EZ"),
                Cas8(155, 34, u"SI"),
                Cas8(175, 34, u"NO"),
                Eus7(Fijo(13), 43, u"Jarduera jarraitukoa, merkataritza zikloa ixten duena"),
                Cas7(Fijo(13), 46, u"Con actividad continuada que cierra ciclo mercantil"),
                Eus7(Fijo(80), 43, u"Noizbehinkako jardueraduna"),
                Cas7(Fijo(80), 46, u"Con actividad ocasional"),
                Eus7(Fijo(122), 43,
                     u"Instalazio iraunkorrak ditu, baina ez dute merkataritza zikloa ixten"),
                Cas7(Fijo(122), 46, u"Instalaciones permanentes aunque no cierren ciclo mercantil"),
                Eus8(25, 53, u"Lurralde espainiarrean beste establezimendu iraunkor batzuk dituzu"),
                Cas8(25, 56, u"Tiene otros establecimientos permanentes en territorio español"),
                Eus8(135, 53, u"BAI"),
                Cas8(135, 56, u"SI"),
            },
        .pares = {Par8(8, 11.5F, u"Helbide osoa", u"Dirección completa"),
                  Par8(8, 20, u"Herria", u"Población"),
                  Par8(66, 20, u"Nazionalitatea", u"Nacionalidad"),
                  Par8(3, 39, u"Establezimendu iraunkorraren mota:",
                       u"Modalidad de establecimiento permanente:")},
        .romana = true};
}

inline BloqueEsperado RepresentanteEsperado() {
    return {.nombre = "representative",
            .origen = YRepresentante,
            .marcoGrueso = {0, 0, 193, 25},
            .rayas = {{0, 6, 193, 6}},
            .numeros = {{u"178", 3, 7.5F},
                        {u"179", 43, 7.5F},
                        {u"180", 153, 7.5F},
                        {u"181", 3, 16.5F},
                        {u"182", 108, 16.5F},
                        {u"183", 153, 16.5F}},
            .marcos = {},
            .textos = {},
            .pares = {{0, 0.5F, 193, 10, true, u"ORDEZKARIA", u"REPRESENTANTE"},
                      Par8(8, 7.5F, u"IFZ", u"N.I.F."),
                      Par8(48, 7.5F, u"Deiturak eta izena edo sozietate izena",
                           u"Apellidos y Nombre, o Razón Social"),
                      Par8(158, 7.5F, u"Naziolitatea", u"Nacionalidad"),
                      Par8(8, 16.5F, u"Helbidea: Kalea edo plaza", u"Domicilio:Calle o Plaza"),
                      Par8(113, 16.5F, u"Udalerria", u"Municipio"),
                      Par8(158, 16.5F, u"Probintzia", u"Provincia")},
            .romana = true};
}

inline BloqueEsperado ObligacionesEsperado() {
    return {
        .nombre = "obligations",
        .origen = YObligaciones,
        .marcoGrueso = {0, 0, 193, 50},
        .rayas = {{0, 9, 193, 9}},
        .numeros = {{u"184", 3, 14}, {u"185", 3, 29}},
        .marcos = {Cuadro4(Fijo(165), 16), Cuadro4(Fijo(185), 16), Cuadro4(Fijo(165), 31),
                   Cuadro4(Fijo(185), 31)},
        .textos =
            {
                {0, 0.5F, 193, 10, true, true,
                 u"LURRALDE ESPAINIARREN EGOILIARRAK EZ DIRENEN ATZERRIKO HELBIDEA"},
                {0, 4.5F, 193, 10, true, false,
                 u"DOMICILIO EXTRANJERO DE LOS NO RESIDENTES EN TERRITORIO ESPAÑOL"},
                Eus8(8, 14,
                     u"Behartuta al zaude Zergadun Ez Egoiliarren Errentaren gaineko Zergaren "
                     u"aldizkako aitorpenak "),
                Eus8(8, 17, u"Kelmariako Foru Ogasunean aurkeztera?"),
                Cas8(8, 20,
                     u"¿Está obligado a presentar declaraciones periódicas por el Impuesto sobre "
                     u"la Renta de los No Residentes "),
                Cas8(8, 23, u"en la Hacienda Foral de Kelmaria?"),
                Eus8(8, 29,
                     u"Erakuntza, instalazio edo muntaia lanak egiten dituzten establezimendu "
                     u"iraunkorrek establezimendu"),
                Eus8(8, 32,
                     u"iraunkorren erregimen orokerrean tributatzearen aldeko aukera egitea"),
                Cas8(8, 35,
                     u"Opción de los establecimientos permanentes cuya actividad consiste en "
                     u"construcción, instalación o montaje por"),
                Cas8(8, 38,
                     u"la tributación por el régimen general de los establecimientos "
                     u"permanentes"),
                Eus8(155, 16, u"BAI"),
                Eus8(175, 16, u"EZ"),
                Cas8(155, 19, u"SI"),
                Cas8(175, 19, u"NO"),
                Eus8(155, 31, u"BAI"),
                Eus8(175, 31, u"EZ"),
                Cas8(155, 34, u"SI"),
                Cas8(175, 34, u"NO"),
            },
        .pares = {},
        .romana = true};
}

inline BloqueEsperado OtrasSituacionesEsperado() {
    return {.nombre = "other situations",
            .origen = YOtrasSituaciones,
            .marcoGrueso = {0, 0, 193, 67},
            .rayas = {{0, 9, 193, 9}},
            .numeros = {{u"186", 3, 23}, {u"188", 118, 43}},
            .marcos = {Cuadro4(Fijo(165), 23), {Fijo(161), 44, Fijo(169), 48}},
            .textos =
                {
                    {0, 0.5F, 193, 10, true, true,
                     u"BALIO ERANTSIAREN GAINEKO ZERGAN DAUDEN BESTE HAINBAT EGOERA ETA AUKERA"},
                    {0, 4.5F, 193, 10, true, false,
                     u"OTRAS SITUACIONES Y OPCIONES EN EL IMPUESTO SOBRE EL VALOR AÑADIDO"},
                    Eus8(155, 23, u"BAI"),
                    Cas8(155, 26, u"SI"),
                    Eus8(3, 43, u"Hainbanaketa  orokorraren behin-behineko portzentajea aldatzea"),
                    Cas8(3, 46, u"Modificación del porcentaje provisional de prorrata general"),
                    Eus8(123, 43, u"Proposatutako portzentajea"),
                    Cas8(123, 46, u"Porcentaje propuesto"),
                    Cas8(171, 45, u"%"),
                },
            .pares = {Par8(8, 23, u"Inbertsio urrearen erregimen berezia aplikagarri zaio",
                           u"Les es de aplicación el régimen especial del oro de inversión")},
            .romana = true};
}

}  // namespace padral::test
