#pragma once
// The census data of the empty second page in rows.

#include "page2_expected.h"

namespace padral::test {

inline std::vector<FilaTrazo> RayasApartado3() {
    return {{0, 4, 193, 4},           {0, 17, 193, 17},       {0, 25.5F, 193, 25.5F},
            {0, 33.5F, 193, 33.5F},   {0, 43.5F, 193, 43.5F}, {0, 53.5F, 193, 53.5F},
            {0, 64.5F, 193, 64.5F},   {0, 75.5F, 193, 75.5F}, {0, 30.5F, 193, 30.5F},
            {0, 36.5F, 193, 36.5F},   {0, 41, 193, 41},       {92, 4, 92, 17},
            {96, 17, 96, 53.5F},      {131, 17, 131, 25.5F},  {30, 33.5F, 30, 53.5F},
            {126, 33.5F, 126, 53.5F}, {92, 41, 92, 49}};
}

inline std::vector<FilaNumero> NumerosApartado3() {
    return {{u"24", 2, 5.5F},    {u"25", 95, 5.5F},   {u"26", 2, 18.5F},    {u"27", 97, 18.5F},
            {u"28", 132, 18.5F}, {u"251", 2, 26.5F},  {u"252", 98, 26.5F},  {u"253", 2, 34.5F},
            {u"254", 32, 34.5F}, {u"255", 98, 34.5F}, {u"256", 128, 34.5F}, {u"257", 2, 44.5F},
            {u"258", 32, 44.5F}, {u"259", 98, 44.5F}, {u"260", 128, 44.5F}, {u"262", 2, 54.5F},
            {u"263", 2, 65.5F},  {u"261", 2, 76.5F},  {u"264", 2, 81.5F},   {u"49", 2, 93},
            {u"50", 93, 93}};
}

/// Top left corners of the 4 mm frames; the last two stand away from any mark.
inline std::vector<FilaTrazo> MarcosApartado3() {
    const std::pair<float, float> esquinas[] = {
        {66, 8},      {83, 8},      {26, 28.5F}, {70, 28.5F}, {124, 28.5F}, {165, 28.5F}, {11, 39},
        {21, 39},     {107, 39},    {117, 39},   {11, 49},    {21, 49},     {107, 49},    {117, 49},
        {165, 59.5F}, {165, 70.5F}, {120, 76},   {134, 26},   {154, 32}};
    std::vector<FilaTrazo> marcos;
    for (const auto& [x, y] : esquinas) marcos.push_back({x, y, x + 4, y + 4});
    return marcos;
}

inline std::vector<FilaTexto> TextosApartado3() {
    return {
        {9, 8, 0, 8, false, true, u"Kelmarian al duzu egoitza?"},
        {9, 11, 0, 8, false, false, u"¿Es residente en T.H. Kelmaria?"},
        {109, 5.5F, 0, 7, false, true, u"Eragiketak hasi aurreko aitorpenarako proposatutako"},
        {109, 8, 0, 7, false, true, u"kenkariaren behin-behineko portzentajea."},
        {109, 10.5F, 0, 7, false, false, u"% provisional de deducción propuesto a efectos de "},
        {109, 13, 0, 7, false, false, u"declaración anterior al inicio de operaciones."},
        {101.5F, 18, 0, 6, false, true, u"JEZaren epigrafea"},
        {101.5F, 20, 0, 6, false, false, u"Epígrafe I.A.E."},
        {136, 18, 0, 6, false, true, u"ohiko eta benetako hasiera data"},
        {136, 20, 0, 6, false, false, u"Fecha de inicio habitual y efectivo"},
        {6, 30.5F, 0, 7, false, false, u"Euskara / Euskera"},
        {46, 30.5F, 0, 7, false, false, u"Gaztelania / Castellano"},
        {102, 30.5F, 0, 7, false, false, u"Posta arrunta / Postal"},
        {138, 30.5F, 0, 7, false, false, u"Elektronikoa / Electrónico"},
        {6, 34.5F, 0, 6, false, true, u"E-postarik?"},
        {6, 36.5F, 0, 6, false, false, u"¿Correo electrónico?"},
        {6, 39, 0, 6, false, false, u"Alta"},
        {16, 39, 0, 6, false, false, u"Baja"},
        {102, 34.5F, 0, 6, false, true, u"Fax?"},
        {102, 36.5F, 0, 6, false, false, u"¿Tiene fax?"},
        {102, 39, 0, 6, false, false, u"Alta"},
        {112, 39, 0, 6, false, false, u"Baja"},
        {6, 44.5F, 0, 6, false, true, u"Telefono finkoa?"},
        {6, 46.5F, 0, 6, false, false, u"¿Teléfono fijo?"},
        {6, 49, 0, 6, false, false, u"Alta"},
        {16, 49, 0, 6, false, false, u"Baja"},
        {102, 44.5F, 0, 6, false, true, u"Telefono mugikorra?"},
        {102, 46.5F, 0, 6, false, false, u"¿Tiene móvil?"},
        {102, 49, 0, 6, false, false, u"Alta"},
        {112, 49, 0, 6, false, false, u"Baja"},
        {6, 56.5F, 0, 6, false, true,
         u"Baimena ematen dut nire identitate eta harreman datuak, orri honetako 1 eta 2, 29tik "
         u"160ra eta 251tik 260ra arteko laukietan daudenak, bai eta haien eguneratzeak ere, "
         u"Kelmariako Foru Aldundiko departamentuei lagatzeko"},
        {6, 59.5F, 0, 6, false, false,
         u"Doy mi consentimiento para ceder mis datos de identidad y de contacto señalados en las "
         u"casillas 1 y 2, 29 a 160 y 251 a 260 y sus actualizaciones, a los departamentos de la "
         u"Diputación Foral de Kelmaria."},
        {6, 67.5F, 0, 6, false, true,
         u"Bertan behera uzten dut nire identitate eta harreman datuak Kelmariako Foru Aldundiaren "
         u"esparruan lagatzeko emandako baimena"},
        {6, 70.5F, 0, 6, false, false,
         u"Revoco la autorización concedida para ceder mis datos de identidad y de contacto dentro "
         u"del ámbito de la Diputación Foral de Kelmaria."},
        {5.5F, 82, 0, 6, false, true,
         u"Ba al duzu Telefono mugikorren, bideo-joko kontsolen, ordenagailu eramangarrien eta "
         u"tableta digitalen birsaltzaile izaera, BEZaren araudiko 84.Bat 2. artikuluaren "
         u"arabera?"},
        {5.5F, 84.5F, 0, 6, false, false,
         u"Tiene la condición de revendedor de teléfonos móviles, consolas de "
         u"videojuegos,ordenadores portátiles y tabletas digitales de acuerdo con el artículo "
         u"84.Uno 2º de la normativa del IVA?"},
    };
}

inline std::vector<FilaPar> ParesApartado3() {
    return {
        {0, 0.5F, 193, 8, true, u"3.ATALA: PADRALKO BESTELAKO DATUAK",
         u"APARTADO 3: OTROS DATOS PADRALES"},
        {56, 10, 0, 8, false, u"Bai", u"Sí"},
        {73, 10, 0, 8, false, u"Ez", u"No"},
        {11, 18.5F, 0, 7, false, u"Jarduera ekonomiko nagusia", u"Actividad económica principal"},
        {6, 26.5F, 0, 7, false, u"Zein hizkuntzatan nahiago duzu harremana izan?",
         u"Idioma preferente de comunicación"},
        {102, 26.5F, 0, 7, false, u"Komunikaziorako/jakinarazpenetarako hobetsitako modua",
         u"Medio pref. de comunicación/notificación"},
        {36, 34.5F, 0, 7, false, u"E-postako helbidea", u"Direccion de correo electrónico"},
        {132, 34.5F, 0, 7, false, u"Fax zenbakia", u"Número de fax"},
        {36, 44.5F, 0, 7, false, u"Telefono finkoaren zenbakia?", u"Número de teléfono fijo"},
        {132, 44.5F, 0, 7, false, u"Telefono mugikorraren zenbakia", u"Número de teléfono móvil"},
        {5.5F, 77, 0, 7, false, u"Ba al duzu lozorrotutako enpresaren izaerarik?",
         u"¿Tiene la condiciónde empresa durmiente?"},
        {112, 77, 0, 7, false, u"Bai", u"Si"},
        {126, 77, 0, 7, false, u"Ez", u"No"},
        {9, 88, 180, 8, true,
         u"Bakarrik pertsona jurikoentzat edo errenten esleipen arregimeneko entitateetarako",
         u"Sólo para personas jurídicas o entidades en régimen de atribución de rentas"},
        {5.5F, 93, 0, 7, false, u"Izaera juridikoa edo entitate mota",
         u"Forma jurídica o clase de entidad"},
        {97, 93, 0, 7, false, u"Ekitaldi sozialaren itxiera data",
         u"Fecha de cierre del ejercicio social"},
    };
}

inline BloqueEsperado Apartado3Esperado() {
    return {"section 3",       YApartado3,         {0, 0, 193, 99},
            RayasApartado3(),  NumerosApartado3(), MarcosApartado3(),
            TextosApartado3(), ParesApartado3(),   7};
}

}  // namespace padral::test
