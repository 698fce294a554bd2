#pragma once
// Heading and section 4 of the empty third page in rows.

#include "furniture_expected.h"
#include "sections/tax/section4.h"

namespace padral::test {

inline constexpr float YCabecera3 = 4, YApartado4 = 25, YApartado5 = 118;

enum Version { Euskera, Castellano };
/// Language letter of the run for each version.
inline constexpr const char16_t* letrasVersion[] = {u"E", u"C"};

/// A caption of both versions.
struct FilaVersion {
    float x, y, ancho, cuerpo;
    bool negrita, subrayado;
    float hasta;  ///< where the dots meet something, 0 no dots
    const char16_t *eus, *cas;
};
inline FilaTexto EnVersion(const FilaVersion& f, Version version) {
    return {f.x,
            f.y,
            f.ancho,
            f.cuerpo,
            f.negrita,
            false,
            version == Euskera ? f.eus : f.cas,
            f.subrayado,
            f.hasta};
}

/// A box of section 4: its number, its frame, and the letter with its mark.
struct FilaSolicitud {
    const char* propiedad;
    Letra DatosApartado4::*respuesta;
    char16_t letra;
    const char16_t* numero;  ///< none: a frame without number
    float xNumero, yNumero;
    float xCuadro, yCuadro;
    float xMarca, yMarca;
};
inline void PrintTo(const FilaSolicitud& fila, std::ostream* salida) {
    *salida << fila.propiedad << static_cast<char>(fila.letra);
}
#define PADRAL_SOLICITUD(propiedad) #propiedad, &DatosApartado4::propiedad
inline const FilaSolicitud solicitudes[] = {
    {PADRAL_SOLICITUD(IVAEXPORT), u'A', u"75", 154, 14, 158, 12, 159, 13},
    {PADRAL_SOLICITUD(IVAEXPORT), u'B', u"76", 182, 14, 186, 12, 187, 13},
    {PADRAL_SOLICITUD(IVAEXPORTINTRA), u'A', u"161", 154, 18, 158, 16, 159, 17},
    {PADRAL_SOLICITUD(IVAEXPORTINTRA), u'B', u"162", 182, 18, 186, 16, 187, 17},
    {PADRAL_SOLICITUD(IRPFDIRECT), u'O', u"60", 136, 28.5F, 140, 27, 141, 28},
    {PADRAL_SOLICITUD(IRPFDIRECT), u'R', u"61", 155, 28.5F, 160, 27, 161, 28},
    {PADRAL_SOLICITUD(IRPFDIRECT), u'E', u"62", 176, 28.5F, 180, 27, 181, 28},
    {PADRAL_SOLICITUD(IVACAJA), u'O', u"169", 136, 38, 140, 36, 141, 37},
    {PADRAL_SOLICITUD(IVACAJA), u'R', u"170", 154, 38, 158, 36, 159, 37},
    {PADRAL_SOLICITUD(IVACAJA), u'E', u"171", 176, 38, 180, 36, 181, 37},
    {PADRAL_SOLICITUD(IVACUOADU), u'O', u"173", 136, 43, 140, 41, 141, 43},
    {PADRAL_SOLICITUD(IVACUOADU), u'R', u"174", 154, 43, 158, 41, 159, 43},
    {PADRAL_SOLICITUD(IVACUOADU), u'E', u"175", 176, 43, 180, 41, 181, 43},
    {PADRAL_SOLICITUD(IVAAGRIC), u'A', u"66", 136, 51, 140, 49, 141, 50},
    {PADRAL_SOLICITUD(IVAAGRIC), u'R', u"67", 154, 51, 158, 49, 159, 50},
    {PADRAL_SOLICITUD(IVAAGRIC), u'E', u"68", 176, 51, 180, 49, 181, 50},
    {PADRAL_SOLICITUD(IVASIMPLIF), u'A', u"69", 136, 55, 140, 53, 141, 54},
    {PADRAL_SOLICITUD(IVASIMPLIF), u'R', u"70", 154, 55, 158, 53, 159, 54},
    {PADRAL_SOLICITUD(IVASIMPLIF), u'E', u"71", 176, 55, 180, 53, 181, 54},
    {PADRAL_SOLICITUD(IVABIENES), u'O', u"80", 154, 64, 158, 62, 159, 63},
    {PADRAL_SOLICITUD(IVABIENES), u'R', u"81", 182, 64, 186, 62, 187, 63},
    {PADRAL_SOLICITUD(IVASOCIO), u'S', u"83", 154, 68, 158, 66, 159, 67},
    {PADRAL_SOLICITUD(IVASOCIO), u'N', u"84", 182, 68, 186, 66, 187, 67},
    {PADRAL_SOLICITUD(SONF), u'O', nullptr, 0, 0, 158, 84, 159, 86},
    {PADRAL_SOLICITUD(SONF), u'R', nullptr, 0, 0, 186, 84, 187, 86},
};
#undef PADRAL_SOLICITUD
inline bool EsLa61(const FilaSolicitud& s) {
    return s.respuesta == &DatosApartado4::IRPFDIRECT && s.letra == u'R';
}
/// In the Spanish version number and frame of 61 stand further left; its mark does not.
inline constexpr float XNumero61Castellano = 153, XCuadro61Castellano = 158;

inline const FilaVersion rotulosApartado4[] = {
    {0, 0.5F, 193, 8, true, false, 0, u"4.ATALA: ESKAERA BEREZIAK",
     u"APARTADO 4: SOLICITUDES ESPECIFICAS"},
    {3, 5, 0, 7, false, false, 0, u"JARRI 'X' BEHAR DIREN LAUKIETAN",
     u"MARQUE CON UNA 'X' LAS CASILLAS QUE CORRESPONDAN"},
    {138, 14, 0, 7, true, false, 0, u"ALTA", u"ALTA"},
    {168, 14, 0, 7, true, false, 0, u"BAJA", u"BAJA"},
    {138, 18, 0, 7, true, false, 0, u"ALTA", u"ALTA"},
    {168, 18, 0, 7, true, false, 0, u"BAJA", u"BAJA"},
    {3, 18, 0, 7, false, false, 138, u"ALTA edo BAJA Batasun barruko Operadoreen Erregistroan",
     u"ALTA o BAJA en el registro de Operadores Intracomunitarios"},
    {3, 22, 0, 7, false, false, 0, u"P.F.E.Z.", u"I.R.P.F."},
    {136, 25, 0, 7, false, true, 0, u"AUKERATZEA", u"OPCIÓN"},
    {154, 25, 0, 7, false, true, 0, u"ATZERA EGITEA", u"REVOCACIÓN"},
    {13, 28.5F, 0, 7, false, false, 136, u"- PFEZren zuzeneko zenbatespen erraztua",
     u"- Estimación directa simplificada del I.R.P.F"},
    {136, 33, 0, 7, false, true, 0, u"AUKERATZEA", u"OPCIÓN"},
    {154, 33, 0, 7, false, true, 0, u"UKO EGITEA", u"RENUNCIA"},
    {3, 35, 0, 7, false, false, 0, u"B.E.Z.", u"I.V.A."},
    {3, 38, 0, 7, false, false, 136, u"- Kutxa irizpidearen araubide berezia",
     u"- Régimen especial del criterio de caja"},
    {3, 43, 0, 7, false, false, 136,
     u"- Aduanak inportazio eragiketetan likidatutako kuotak BEZaren aitorpenetako kuota "
     u"jasanarazien barruan sartzea",
     u"- Inclusión de las cuotas liquidadas por Aduanas de las operaciones de importación en las "
     u"cuotas repercutidas de las declaraciones del IVA."},
    {136, 47, 0, 7, false, true, 0, u"UKO EGITEA", u"RENUNCIA"},
    {154, 47, 0, 7, false, true, 0, u"ATZERA EGITEA", u"REVOCACIÓN"},
    {3, 51, 0, 7, false, false, 136,
     u"Nekazaritza, abeltzaintza eta arrantzaren erregimen berezia BEZean",
     u"Régimen especial de la Agricultura, Ganadería y Pesca en el I.V.A"},
    {3, 55, 0, 7, false, false, 136, u"Erregimen berezi erraztua BEZean",
     u"Régimen especial Simplificado en el I.V.A"},
    {164, 64, 0, 7, false, false, 0, u"UKO EGITEA", u"RENUNCIA"},
    {3, 68, 0, 7, false, false, 146,
     u"Errentak esleitzen dituen entitate bateko bazkide, komunero edo partaide al zara?",
     u"¿Es socio, comunero o partícipe de una entidad en régimen de atribución de rentas?"},
    {146, 68, 0, 7, false, false, 0, u"BAI", u"SÍ"},
    {176, 68, 0, 7, false, false, 0, u"EZ", u"NO"},
    {29, 73, 0, 7, false, false, 0, u"- Entitatearen IFZ", u"- N.I.F. entidad"},
    {79, 73, 0, 7, false, false, 0, u"- Entitatearen izena", u"- Nombre entidad"},
    {3, 81, 0, 7, true, false, 0, u"SOZIETATE ZERGA", u"SOCIEDADES"},
    {13, 86, 0, 7, false, false, 140,
     u"- 3/2004 Foru Arauaren II. titulak jasotzen duen zerga araubide berezia aukeratzea",
     u"- Sociedades Tit 2 NF 3/2004"},
    {140, 86, 0, 7, false, false, 0, u"AUKERATZEA", u"OPCIÓN"},
    {164, 86, 0, 7, false, false, 0, u"UKO EGITEA", u"RENUNCIA"},
};

/// The row of 80 and 81 begins its answers at another place in each version.
inline std::vector<FilaTexto> TextosFila80(Version version) {
    if (version == Euskera)
        return {{3, 64, 0, 7, false, false,
                 u"Ondasun erabilien, arte-lanen eta abarren erregimen berezirako aukera: mozkin "
                 u"globalaren marjina",
                 false, 138},
                {138, 64, 0, 7, false, false, u"AUKERATZEA"}};
    return {{3, 64, 0, 7, false, false,
             u"Opción al Régimen especial de Bienes Usados, Arte, etc.: Margen de Beneficio global",
             false, 140},
            {140, 64, 0, 7, false, false, u"OPCIÓN"}};
}

/// The heading of the third column, likewise.
inline std::vector<FilaTexto> TextosExclusion(Version version) {
    std::vector<FilaTexto> textos;
    for (const float y : {25.0F, 33.0F, 47.0F})
        textos.push_back(version == Euskera
                             ? FilaTexto{172, y, 0, 7, false, false, u"KANPO GERATZEA", true}
                             : FilaTexto{176, y, 0, 7, false, false, u"EXCLUSIÓN", true});
    return textos;
}

/// The first caption, before 2009 and from then on.
inline constexpr FilaVersion rotulosFechados[] = {
    {3, 14, 0, 7, false, false, 138,
     u"- Alta edo Baja Esportatzaileen eta beste Operadore Ekonomiko batzuen Erregistroan",
     u"- Alta o Baja en el Registro de Exportadores y otros Operadores Económicos"},
    {3, 14, 0, 7, false, false, 138, u"Hileko Itzulketen Erregistroan alta edo baja",
     u"Alta o baja en el Registro de Devoluciones Mensuales"},
};

inline BloqueEsperado CabeceraEsperada3(Version version) {
    const FilaVersion rotulos[] = {
        {10, 1.5F, 0, 8, false, false, 0, u"IFZ", u"N.I.F."},
        {53, 1.5F, 0, 8, false, false, 0, u"Deiturak eta izena, edo sozietatearen izena",
         u"Apellidos y Nombre / Razón Social"},
        {159, 1.5F, 0, 8, false, false, 0, u"Erreferentzia Zk.", u"Nº Referencia"},
    };
    BloqueEsperado b = {"strip",
                        YCabecera3,
                        {0, 0, 193, 12.5F},
                        {{42, 0, 42, 12.5F}, {153.5F, 0, 153.5F, 12.5F}},
                        {{u"1", 2, 1.5F}, {u"2", 45, 1.5F}},
                        {},
                        {},
                        {}};
    for (const auto& r : rotulos) b.textos.push_back(EnVersion(r, version));
    return b;
}

inline BloqueEsperado Apartado4Esperado(Version version, bool desde2009) {
    BloqueEsperado b = {"section 4", YApartado4, {0, 0, 193, 90}, {{0, 4, 193, 4}}, {}, {}, {},
                        {},          7};
    for (const auto& s : solicitudes) {
        const bool la61 = version == Castellano && EsLa61(s);
        const float xCuadro = la61 ? XCuadro61Castellano : s.xCuadro;
        b.marcos.push_back({xCuadro, s.yCuadro, xCuadro + 4, s.yCuadro + 4});
        if (s.numero != nullptr)
            b.numeros.push_back({s.numero, la61 ? XNumero61Castellano : s.xNumero, s.yNumero});
    }
    for (const auto& r : rotulosApartado4) b.textos.push_back(EnVersion(r, version));
    for (const auto& t : TextosFila80(version)) b.textos.push_back(t);
    for (const auto& t : TextosExclusion(version)) b.textos.push_back(t);
    b.textos.push_back(EnVersion(rotulosFechados[desde2009 ? 1 : 0], version));
    return b;
}

}  // namespace padral::test
