#pragma once
// The empty first page of the form in rows, block by block.

#include "expected.h"

namespace padral::test {

struct BloqueEsperado {
    const char* nombre;
    float origen;
    FilaTrazo marcoGrueso;
    std::vector<FilaTrazo> rayas;
    std::vector<FilaNumero> numeros;
    std::vector<FilaTrazo> marcos;
    std::vector<FilaTexto> textos;
    std::vector<FilaPar> pares;
};

inline BloqueEsperado IdentificacionEsperada() {
    return {"identification",
            43.5F,
            {0, 0, 193, 12},
            {{0, 4, 193, 4}, {0, 12, 193, 12}, {39, 4, 39, 12}},
            {{u"1", 2, 5.5F}, {u"2", 42, 5.5F}},
            {},
            {},
            {{0, 0.5F, 193, 8, true, u"IDENTIFIKAZIO DATUAK", u"DATOS IDENTIFICATIVOS"},
             {5.5F, 5.5F, 0, 8, false, u"IFZ", u"N.I.F."},
             {45, 5.5F, 0, 8, false, u"Deiturak eta izena, edo sozietatearen izena",
              u"Apellidos y Nombre, o Razón Social"}}};
}

inline BloqueEsperado Apartado1Esperado() {
    return {"section 1",
            65.5F,
            {0, 0, 193, 50},
            {{0, 4, 193, 4},
             {0, 50, 193, 50},
             {97, 4, 97, 50},
             {0, 25, 97, 25},
             {0, 37, 97, 37},
             {21, 8, 21, 21}},
            {{u"3", 26, 9.5F},
             {u"4", 26, 18.5F},
             {u"5", 26, 31},
             {u"6", 142, 9, true},
             {u"7", 142, 13, true},
             {u"8", 142, 17, true},
             {u"9", 142, 21, true},
             {u"10", 142, 25, true},
             {u"11", 142, 29, true},
             {u"130", 142, 33, true},
             {u"12", 142, 41, true},
             {u"13", 76, 43}},
            {{31, 8, 35, 12},
             {31, 16.5F, 35, 20.5F},
             {31, 29, 35, 33},
             {146.5F, 8, 150.5F, 12},
             {146.5F, 12, 150.5F, 16},
             {146.5F, 16, 150.5F, 20},
             {146.5F, 20, 150.5F, 24},
             {146.5F, 24, 150.5F, 28},
             {146.5F, 28, 150.5F, 32},
             {146.5F, 32, 150.5F, 36},
             {146.5F, 40, 178, 44},
             {81, 41.5F, 85, 45.5F}},
            {{0, 12, 21, 8, false, true, u"HASIERA"},
             {0, 15, 21, 8, false, false, u"COMIENZO"},
             {0, 28, 21, 8, false, true, u"AMAIERA"},
             {0, 31, 21, 8, false, false, u"CESE"},
             {97, 12, 45, 8, false, true, u"ALDAKETA"},
             {97, 18, 45, 8, false, false, u"MODIFICACIÓN"},
             {38, 8, 0, 8, false, true, u"Eragiketak hasi aurreko aitorpena"},
             {38, 11, 0, 8, false, false, u"Declaración anterior al inicio de operaciones"},
             {38, 16.5F, 0, 8, false, true, u"Hasieraren aitorpena"},
             {38, 19.5F, 0, 8, false, false, u"Declaración de inicio de operaciones"},
             {38, 29, 0, 8, false, true, u"Amaiera"},
             {38, 32, 0, 8, false, false, u"Cese"},
             {152, 13, 0, 6, false, true, u"3.atala: padralko bestelako datuak"},
             {152, 15, 0, 6, false, false, u"Aptdo3: Otros datos padrales"},
             {152, 17, 0, 6, false, true, u"4.atala: eskaera bereziak"},
             {152, 19, 0, 6, false, false, u"Aptdo4: Solicitudes Específicas"},
             {152, 21, 0, 6, false, true, u"5.atala: zerga egoera"},
             {152, 23, 0, 6, false, false, u"Aptdo5: Situación Tributaria"},
             {152, 25, 0, 6, false, true, u"7.atala: batasunaren barruko eragiketak"},
             {152, 27, 0, 6, false, false, u"Aptdo7: Oper. Intracomunitarias"},
             {152, 29, 0, 6, false, true, u"Eranskina: partaideak"},
             {152, 31, 0, 6, false, false, u"AnexoI: Partícipes"},
             {152, 33, 0, 6, false, true, u"Eranskina: ez-egoiliarrak eta"},
             {152, 35, 0, 6, false, true, u"BEZeko beste aukera batzuk"},
             {152, 37, 0, 6, false, false, u"AnexoII: No residentes y otras ope. IVA"},
             {97, 38.5F, 45, 8, false, true, u"Aldaketaren data"},
             {97, 41.5F, 45, 8, false, false, u"Fecha de modificación"},
             {3, 41, 0, 8, false, true, u"IFZren edo txartelaren eskaera"},
             {3, 45, 0, 8, false, false, u"Solicitud de número y/o tarjeta del N.I.F."}},
            {{0, 0.5F, 193, 8, true, u"1.ATALA: AURKEZPENAREN ARRAZOIA",
              u"APARTADO 1: CAUSA DE LA PRESENTACIÓN"},
             {152, 10, 0, 6, false, u"2.atala: kokalekua", u"Aptdo2: Localización"}}};
}

inline BloqueEsperado SolicitudEsperada() {
    return {
        "request",
        125.5F,
        {0, 0, 193, 30},
        {{0, 4, 193, 4}, {0, 10, 193, 10}, {97, 4, 97, 30}},
        {{u"200", 76, 14},
         {u"206", 66, 18},
         {u"201", 76, 22},
         {u"202", 76, 26},
         {u"203", 177, 14},
         {u"207", 167, 18},
         {u"204", 177, 22},
         {u"205", 177, 26}},
        {{81, 12, 85, 16},
         {71, 16, 85, 20},
         {81, 20, 85, 24},
         {81, 24, 85, 28},
         {182.5F, 12, 186.5F, 16},
         {172.5F, 16, 186.5F, 20},
         {182.5F, 20, 186.5F, 24},
         {182.5F, 24, 186.5F, 28}},
        {{0, 4.5F, 97, 7, true, true, u"IDENTIFIKAZIO FISKALEKO ZENBAKIAREN ESKAERA"},
         {0, 7, 97, 7, true, false, u"SOLICITUD DEL NÚMERO DE IDENTIFICACIÓN FISCAL"},
         {97, 4.5F, 98, 7, true, true, u"IDENTIFIKAZIO TXARTELAREN ESKAERA"},
         {97, 7, 98, 7, true, false, u"SOLICITUD DE TARJETA IDENTIFICATIVA"},
         {4, 21, 0, 8, false, true, u"Izaera juridikoa aldatzeagatik ematea"},
         {4, 24, 0, 8, false, false, u"Asignación por modificación forma jurídica"}},
        {{0, 0.5F, 193, 8, true, u"IDENTIFIKAZIO FISKALEKO ZENBAKIAREN ESKAERA",
          u"SOLICITUD DEL NÚMERO DE IDENTIFICACIÓN FISCAL"},
         {4, 13, 0, 8, false, u"Hasieragatik ematea", u"Asignación por comienzo"},
         {4, 17.5F, 0, 8, false, u"Entitatearen eraketa data", u"Fecha de constitución"},
         {4, 27.5F, 0, 8, false, u"Amaieragatik deuseztatzea", u"Anulación por cese"},
         {105, 13, 0, 8, false, u"Galera", u"Por extravío"},
         {105, 17.5F, 0, 8, false, u"Erregistroko inskripzio data", u"Fecha inscripción Registro"},
         {105, 22, 0, 8, false, u"Behin betikoa", u"Por definitiva"},
         {105, 26.5F, 0, 8, false, u"Bestelako arrazoiak", u"Por otros motivos"}}};
}

inline BloqueEsperado ModificacionEsperada() {
    return {"change",
            135.5F,
            {0, 30, 193, 42},
            {{0, 34, 193, 34}, {0, 42, 193, 42}, {47, 34, 47, 42}, {149.5F, 34, 149.5F, 42}},
            {{u"210", 2, 35}, {u"211", 50, 35}, {u"212", 151, 35}},
            {},
            {},
            {{0, 30.5F, 193, 8, true, u"IFZ, IZEN-DEITURAK EDO SOZIETATEAREN IZENA ALDATZEA",
              u"MODIFICACIÓN N.I.F., NOMBRE O RAZÓN SOCIAL"},
             {7, 35, 0, 8, false, u"Aurreko IFZ", u"N.I.F. anterior"},
             {55, 35, 0, 8, false, u"Aurreko deiturak eta izena, edo sozietate izena",
              u"Apellidos y nombre o Razón Soc. anterior"},
             {156, 35, 0, 8, false, u"Aldaketaren zergatia", u"Mot. cambio"}}};
}

inline BloqueEsperado ObligadoEsperado() {
    return {"signature",
            187.5F,
            {0, 0, 193, 44},
            {{0, 4, 193, 4},
             {121, 4, 121, 43.5F},
             {132, 4, 132, 43.5F},
             {0, 12, 121, 12},
             {0, 20, 121, 20},
             {46.5F, 4, 46.5F, 12},
             {77, 12, 77, 20}},
            {{u"51", 3, 5.5F},
             {u"52", 49, 5.5F},
             {u"53", 3, 13.5F},
             {u"54", 79, 13.5F},
             {u"55", 3, 21.5F}},
            {},
            {},
            {{0, 0.5F, 193, 8, true, u"ZERGAPEKOA EDO ORDEZKARIA",
              u"OBLIGADO TRIBUTARIO O REPRESENTANTE"},
             {7, 5.5F, 0, 7, false, u"IFZ", u"N.I.F."},
             {53, 5.5F, 0, 7, false, u"Deiturak eta izena", u"Apellidos y nombre"},
             {7, 13.5F, 0, 7, false, u"gisa sinatzen du", u"Firma en calidad de"},
             {83.5F, 13.5F, 0, 7, false, u"Data", u"Fecha"},
             {56, 21.5F, 0, 7, false, u"Sinadura", u"Firma"}}};
}

}  // namespace padral::test
