#pragma once
// Section 5 of the third page in rows: number, answer, caption, mark.

#include "page3_expected.h"
#include "sections/tax/section5.h"

namespace padral::test {

/// A question; its number stands at 169 and its marks at 176 ("S") and 187 ("N"). The rows of the
/// first ones are below those of their marks.
struct FilaCuestion {
    const char16_t* numero;
    Letra RespuestasApartado5::*propiedad;
    float x, y, yMarca;
    const char16_t *eus, *cas;
};
inline void PrintTo(const FilaCuestion& fila, std::ostream* salida) {
    *salida << QString::fromUtf16(fila.numero).toStdString();
}
inline const FilaCuestion cuestiones[] = {
    {u"89", &RespuestasApartado5::GRANEMPRESA, 3, 14, 9, u"Ba al duzu enpresa handiaren izaerarik?",
     u"¿Tiene la condición de Gran empresa?"},
    {u"90", &RespuestasApartado5::SOCIEDADES, 3, 18, 13,
     u"Behartuta al zaude Sozietateen gaineko Zergaren aitorpena Kelmariako Foru Ogasunean "
     u"aurkeztera?",
     u"¿Está obligado a presentar declaración por el Impuesto sobre Sociedades en la Hacienda "
     u"Foral de Kelmaria?"},
    {u"163", &RespuestasApartado5::ADMINISTRACIONES, 3, 22, 17,
     u"Zerga administrazio batean baino gehiagotan ordaindu behar duzu Sozietate Zerga",
     u"¿Debe tributar en más de una Administración Tributaria por el Impuesto sobre Sociedades?"},
    {u"91", &RespuestasApartado5::EXENTASOCI, 3, 26, 21,
     u"Sozietate Zergari buruzko 7/1996 Foru Arauak 9. artikuluan jasotako entitatea al da?",
     u"¿Se trata de una entidad del art 9 de la N.F.7/1996 del Impuesto de Sociedades?"},
    {u"164", &RespuestasApartado5::ART117, 3, 30, 25,
     u"Sozietate Zergari buruzko 7/1996 Foru Arauak 117. artikuluan jasotako entitatea al da?",
     u"¿Se trata de una entidad del art 117 de la N.F.7/1996 (parcialmente exentas)?"},
    {u"165", &RespuestasApartado5::COOPERATIVA, 3, 34, 29,
     u"3/2004 Foru Arauan jasotako irabazi asmorik gabeko entitatea al da?",
     u"¿Es una entidad sin fines lucrativos de la N.F. 3/2004?"},
    {u"166", &RespuestasApartado5::CONSOLIDACION, 3, 38, 33,
     u"Kelmarian ordaintzen du zerga kontsolidazioko erregimenean",
     u"¿Tributa en Kelmaria en régimen de consolidación fiscal?"},
    {u"167", &RespuestasApartado5::DOMINANTE, 8, 42, 37, u"- Entitate nagusia al da",
     u"- ¿Es una Entidad Dominante?"},
    {u"93", &RespuestasApartado5::SATISRENDTRAB, 3, 50, 45,
     u"Ordaintzen al duzu atxikipenari edo konturako sarrerari lotutako lan etekinik?",
     u"¿Satisface rendimientos del trabajo personal sujetos a retención o ingreso a cuenta?"},
    {u"94", &RespuestasApartado5::SATISRENDARREN, 3, 54, 49,
     u"Ordaintzen al duzu atxikipenari edo konturako sarrerari lotutako hiri ondasun higiezinen "
     u"errentamendutik datorren etekinik?",
     u"¿Satisface rendimientos procedentes del arrendamiento de inmuebles urbanos sujetos a "
     u"retención o ingreso a cuenta?"},
    {u"98", &RespuestasApartado5::IRPFDIRECTA, 8, 62, 57, u"- Zuzeneko zenbatespen arrunta",
     u"- Estimación directa normal"},
    {u"100", &RespuestasApartado5::IRPFDIRECTSIMPLIF, 8, 66, 61, u"- Zuzeneko zenbatespen erraztua",
     u"- Estimación directa simplificada"},
    {u"102", &RespuestasApartado5::IVA, 3, 78, 73,
     u"Behartuta al zaude BEZaren aldizkako aitorpena Kelmariako Foru Ogasunean aurkeztera?",
     u"¿Está obligado a presentar declaración periódica por el I.V.A. en la Hacienda Foral de "
     u"Kelmaria?"},
    {u"103", &RespuestasApartado5::GENERAL, 13, 86, 81,
     u"- Erregimen orokor edo arruntean al zaude?",
     u"- ¿Está incluido en el Régimen General u Ordinario?"},
    {u"104", &RespuestasApartado5::RECARGO, 13, 90, 85,
     u"- Sartuta al zaude baliokidetasun errekarguaren txikizkako merkataritzaren erregimen "
     u"berezian?",
     u"- ¿Está incluido en el Régimen Especial del Comercio Minorista de Recargo de Equivalencia?"},
    {u"105", &RespuestasApartado5::AGENCIASOPERACION, 13, 94, 89,
     u"- Sartuta al zaude bidai agentzien erregimenean, oinarri ezargarria banaka zehaztuz?",
     u"- ¿Está incluido en el Régimen de Agencias de Viajes, determinación de B.I. operación por "
     u"operación?"},
    {u"107", &RespuestasApartado5::BIENESUSADOS, 13, 98, 97,
     u"- Sartuta al zaude ondasun erabilien, arte-lanen, zaharkinen eta bilduma-gaien erregimen "
     u"berezian?",
     u"- ¿Está incluido en el Régimen Especial de Bienes Usados, Arte, Antigüedades y objetos de "
     u"colección?"},
    {u"108", &RespuestasApartado5::BIENESMARGEN, 13, 102, 101,
     u"- Sartuta al zaude ondasun erabili, arte-lan eta abarren erregimen berezian, mozkin marjina "
     u"batera zehaztuz?",
     u"- ¿Está incluido en el Régimen de Bienes Usados, Arte, etc. determinación global del Margen "
     u"de Beneficio?"},
    {u"109", &RespuestasApartado5::Agric, 13, 106, 105,
     u"- Sartuta al zaude nekazaritza, abeltzaintza eta arrantzaren erregimen berezian?",
     u"- ¿Está incluido en el Régimen Especial de la Agricultura, Ganadería y Pesca?"},
    {u"110", &RespuestasApartado5::SIMPLIF, 13, 110, 109,
     u"- Sartuta al zaude BEZaren erregimen berezi erraztuan?",
     u"- ¿Está incluido en el Régimen Especial Simplificado del I.V.A.?"},
    {u"172", &RespuestasApartado5::IVACAJA, 13, 114, 113,
     u"- Sartuta al zaude kutxa irizpidearen araubide berrian?",
     u"- ¿Está incluido en el régimen especial del criterio de caja?"},
    {u"168", &RespuestasApartado5::OPEXSINDCHO, 13, 118, 117,
     u"- Egin ohi dituzu kenkari eskubiderik gabeko eragiketa salbuetsiak?",
     u"- ¿Realiza operaciones exentas sin derecho a deducción?"},
    {u"112", &RespuestasApartado5::NORECARGO, 13, 126, 125,
     u"- Sartuta al zaude baliokidetasun errekarguaren txikizkako merkataritzaren erregimen "
     u"berezian?",
     u"- ¿Está incluido en el Régimen Especial del Comercio Minorista de Recargo de Equivalencia?"},
    {u"113", &RespuestasApartado5::NOAGRIC, 13, 130, 129,
     u"- Sartuta al zaude nekazaritza, abeltzaintza eta arrantzaren erregimen berezian?",
     u"- ¿Está incluido en el Régimen Especial de la Agricultura, Ganadería y Pesca?"},
    {u"114", &RespuestasApartado5::NOEXENTAS, 13, 134, 133,
     u"- BEZaren 102/92 Foru Dekretuko 20.artikuluaren arabera salbuetsitako eragiketak egiten al "
     u"dituzu soilik?",
     u"- ¿Realiza exclusivamente operaciones exentas a tenor del artículo 20 del D.F. 102/92 del "
     u"I.V.A.?"},
    {u"115", &RespuestasApartado5::NOCONCIERTO, 13, 138, 137,
     u"- Ekonomia Itunaren Legea aplikagarri al zaizu?",
     u"- ¿Le es aplicable la Ley 12/81 del Concierto Económico?"},
};

/// Tops of the frames of each column.
inline const std::vector<float> columnaSi = {8,   12,  16,  20,  24,  28,  32,  36, 44,
                                             48,  56,  60,  72,  80,  84,  88,  92, 100,
                                             104, 108, 112, 116, 124, 128, 132, 136};
inline const std::vector<float> columnaNo = {8,   12,  16,  20,  24,  28,  32,  36, 44,
                                             48,  56,  60,  72,  80,  84,  88,  96, 100,
                                             104, 108, 112, 116, 124, 128, 132, 136};

inline const FilaVersion rotulosApartado5[] = {
    {0, 4.5F, 193, 8, true, false, 0, u"5.ATALA: ZERGA EGOERA ETA AITORPEN-LIKIDAZIOAK",
     u"APARTADO 5: SITUACIÓN TRIBUTARIA Y DECLARACIONES LIQUIDACIONES"},
    {0, 9, 150, 8, true, false, 0, u"SOZIETATE ZERGA", u"SOCIEDADES"},
    {0, 44, 150, 8, true, false, 0, u"I.R.P.F.", u"I.R.P.F."},
    {0, 72, 150, 8, true, false, 0, u"BALIO ERANTSIAREN GAINEKO ZERGA", u"I.V.A."},
    {175, 6, 0, 7, false, false, 0, u"BAI", u"SI"},
    {186, 6, 0, 7, false, false, 0, u"EZ", u"NO"},
    {3, 58, 0, 7, false, false, 0, u"PFEZn arabiltzen den zenbatespen metodoa:",
     u"Método de estimación del I.R.P.F.:"},
    {8, 82, 0, 7, false, false, 0, u"- Baiezkoan, bete itzazu BEZari buruzko beheko laukiak:",
     u"- En caso afirmativo, cumplimentar las casillas inferiores referidas al I.V.A.:"},
    {8, 122, 0, 7, false, false, 0, u"- Ezezkoan, bete itzazu BEZari buruzko ondoko laukiak:",
     u"- En caso negativo, cumplimentar las casillas inferiores referidas al I.V.A.:"},
};

inline BloqueEsperado Apartado5Esperado(Version version) {
    BloqueEsperado b = {"section 5", YApartado5, {0, 0, 193, 145}, {{0, 4, 193, 4}}, {}, {}, {},
                        {},          7};
    for (const auto& c : cuestiones) {
        b.numeros.push_back({c.numero, 169, c.y});
        b.textos.push_back(EnVersion({c.x, c.y, 0, 7, false, false, 169, c.eus, c.cas}, version));
    }
    for (const float y : columnaSi) b.marcos.push_back({175, y, 179, y + 4});
    for (const float y : columnaNo) b.marcos.push_back({186, y, 190, y + 4});
    for (const auto& r : rotulosApartado5) b.textos.push_back(EnVersion(r, version));
    return b;
}

}  // namespace padral::test
