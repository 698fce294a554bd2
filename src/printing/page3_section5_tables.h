#pragma once
// Section 5 on the third page: one row a question.

#include "printing/page3_sections.h"
#include "printing/primitives.h"
#include "sections/tax/section5.h"

namespace padral::hoja3 {

/// A question. Its mark stands 1 mm above `y`, in its frame; the first ones have number and caption
/// lower by `Bajada`.
struct Pregunta5 {
    const char16_t* numero;
    Letra RespuestasApartado5::*propiedad;
    Mm x, y;
    const char16_t *eus, *cas;
};
/// The upper part of the form has its texts so much below the rows of its frames.
inline constexpr Mm Bajada = 4;
inline constexpr Mm SubidaMarca = 1;
inline constexpr Mm XNumeroPregunta = 169;

/// The two answers.
struct ColumnaRespuesta {
    char16_t letra;
    Mm xCuadro, xMarca;
};
inline constexpr ColumnaRespuesta columnasRespuesta[] = {{u'S', 175, 176}, {u'N', 186, 187}};

/// Tops of the rows that have a frame in both columns.
inline constexpr Mm filasDeCuadros[] = {8,  12, 16, 20,  24,  28,  32,  36,  44,  48,  56,  60, 72,
                                        80, 84, 88, 100, 104, 108, 112, 116, 124, 128, 132, 136};
/// Two rows have one frame only: the form has them so.
inline constexpr Marco cuadrosSolos[] = {Cuadro(175, 92), Cuadro(186, 96)};

using R5 = RespuestasApartado5;
// clang-format off
inline constexpr Pregunta5 preguntasAltas[] = {
    {u"89", &R5::GRANEMPRESA, 3, 10, u"Ba al duzu enpresa handiaren izaerarik?",
     u"¿Tiene la condición de Gran empresa?"},
    {u"90", &R5::SOCIEDADES, 3, 14,
     u"Behartuta al zaude Sozietateen gaineko Zergaren aitorpena Kelmariako Foru Ogasunean "
     u"aurkeztera?",
     u"¿Está obligado a presentar declaración por el Impuesto sobre Sociedades en la Hacienda Foral "
     u"de Kelmaria?"},
    {u"163", &R5::ADMINISTRACIONES, 3, 18,
     u"Zerga administrazio batean baino gehiagotan ordaindu behar duzu Sozietate Zerga",
     u"¿Debe tributar en más de una Administración Tributaria por el Impuesto sobre Sociedades?"},
    {u"91", &R5::EXENTASOCI, 3, 22,
     u"Sozietate Zergari buruzko 7/1996 Foru Arauak 9. artikuluan jasotako entitatea al da?",
     u"¿Se trata de una entidad del art 9 de la N.F.7/1996 del Impuesto de Sociedades?"},
    {u"164", &R5::ART117, 3, 26,
     u"Sozietate Zergari buruzko 7/1996 Foru Arauak 117. artikuluan jasotako entitatea al da?",
     u"¿Se trata de una entidad del art 117 de la N.F.7/1996 (parcialmente exentas)?"},
    {u"165", &R5::COOPERATIVA, 3, 30,
     u"3/2004 Foru Arauan jasotako irabazi asmorik gabeko entitatea al da?",
     u"¿Es una entidad sin fines lucrativos de la N.F. 3/2004?"},
    {u"166", &R5::CONSOLIDACION, 3, 34,
     u"Kelmarian ordaintzen du zerga kontsolidazioko erregimenean",
     u"¿Tributa en Kelmaria en régimen de consolidación fiscal?"},
    {u"167", &R5::DOMINANTE, 8, 38, u"- Entitate nagusia al da", u"- ¿Es una Entidad Dominante?"},
    {u"93", &R5::SATISRENDTRAB, 3, 46,
     u"Ordaintzen al duzu atxikipenari edo konturako sarrerari lotutako lan etekinik?",
     u"¿Satisface rendimientos del trabajo personal sujetos a retención o ingreso a cuenta?"},
    {u"94", &R5::SATISRENDARREN, 3, 50,
     u"Ordaintzen al duzu atxikipenari edo konturako sarrerari lotutako hiri ondasun higiezinen "
     u"errentamendutik datorren etekinik?",
     u"¿Satisface rendimientos procedentes del arrendamiento de inmuebles urbanos sujetos a "
     u"retención o ingreso a cuenta?"},
    {u"98", &R5::IRPFDIRECTA, 8, 58, u"- Zuzeneko zenbatespen arrunta",
     u"- Estimación directa normal"},
    {u"100", &R5::IRPFDIRECTSIMPLIF, 8, 62, u"- Zuzeneko zenbatespen erraztua",
     u"- Estimación directa simplificada"},
    {u"102", &R5::IVA, 3, 74,
     u"Behartuta al zaude BEZaren aldizkako aitorpena Kelmariako Foru Ogasunean aurkeztera?",
     u"¿Está obligado a presentar declaración periódica por el I.V.A. en la Hacienda Foral de "
     u"Kelmaria?"},
    {u"103", &R5::GENERAL, 13, 82, u"- Erregimen orokor edo arruntean al zaude?",
     u"- ¿Está incluido en el Régimen General u Ordinario?"},
    {u"104", &R5::RECARGO, 13, 86,
     u"- Sartuta al zaude baliokidetasun errekarguaren txikizkako merkataritzaren erregimen "
     u"berezian?",
     u"- ¿Está incluido en el Régimen Especial del Comercio Minorista de Recargo de Equivalencia?"},
    {u"105", &R5::AGENCIASOPERACION, 13, 90,
     u"- Sartuta al zaude bidai agentzien erregimenean, oinarri ezargarria banaka zehaztuz?",
     u"- ¿Está incluido en el Régimen de Agencias de Viajes, determinación de B.I. operación por "
     u"operación?"},
};

inline constexpr Pregunta5 preguntasBajas[] = {
    {u"107", &R5::BIENESUSADOS, 13, 98,
     u"- Sartuta al zaude ondasun erabilien, arte-lanen, zaharkinen eta bilduma-gaien erregimen "
     u"berezian?",
     u"- ¿Está incluido en el Régimen Especial de Bienes Usados, Arte, Antigüedades y objetos de "
     u"colección?"},
    {u"108", &R5::BIENESMARGEN, 13, 102,
     u"- Sartuta al zaude ondasun erabili, arte-lan eta abarren erregimen berezian, mozkin marjina "
     u"batera zehaztuz?",
     u"- ¿Está incluido en el Régimen de Bienes Usados, Arte, etc. determinación global del Margen "
     u"de Beneficio?"},
    {u"109", &R5::Agric, 13, 106,
     u"- Sartuta al zaude nekazaritza, abeltzaintza eta arrantzaren erregimen berezian?",
     u"- ¿Está incluido en el Régimen Especial de la Agricultura, Ganadería y Pesca?"},
    {u"110", &R5::SIMPLIF, 13, 110,
     u"- Sartuta al zaude BEZaren erregimen berezi erraztuan?",
     u"- ¿Está incluido en el Régimen Especial Simplificado del I.V.A.?"},
    {u"172", &R5::IVACAJA, 13, 114, u"- Sartuta al zaude kutxa irizpidearen araubide berrian?",
     u"- ¿Está incluido en el régimen especial del criterio de caja?"},
    {u"168", &R5::OPEXSINDCHO, 13, 118,
     u"- Egin ohi dituzu kenkari eskubiderik gabeko eragiketa salbuetsiak?",
     u"- ¿Realiza operaciones exentas sin derecho a deducción?"},
    {u"112", &R5::NORECARGO, 13, 126,
     u"- Sartuta al zaude baliokidetasun errekarguaren txikizkako merkataritzaren erregimen "
     u"berezian?",
     u"- ¿Está incluido en el Régimen Especial del Comercio Minorista de Recargo de Equivalencia?"},
    {u"113", &R5::NOAGRIC, 13, 130,
     u"- Sartuta al zaude nekazaritza, abeltzaintza eta arrantzaren erregimen berezian?",
     u"- ¿Está incluido en el Régimen Especial de la Agricultura, Ganadería y Pesca?"},
    {u"114", &R5::NOEXENTAS, 13, 134,
     u"- BEZaren 102/92 Foru Dekretuko 20.artikuluaren arabera salbuetsitako eragiketak egiten al "
     u"dituzu soilik?",
     u"- ¿Realiza exclusivamente operaciones exentas a tenor del artículo 20 del D.F. 102/92 del "
     u"I.V.A.?"},
    {u"115", &R5::NOCONCIERTO, 13, 138, u"- Ekonomia Itunaren Legea aplikagarri al zaizu?",
     u"- ¿Le es aplicable la Ley 12/81 del Concierto Económico?"},
};
// clang-format on

/// A part of the questions with the shift of its texts.
struct GrupoPreguntas {
    Mm bajada;
    std::span<const Pregunta5> preguntas;
};
inline constexpr GrupoPreguntas gruposPreguntas[] = {{Bajada, preguntasAltas}, {0, preguntasBajas}};

inline constexpr Raya rayaApartado5[] = {{0, 4, AnchoImpreso, 4}};

// All these but the last stand in the upper part.
inline constexpr Mm AnchoTitulosGrupo = 150;
inline constexpr Rotulo titulosApartado5[] = {
    EnAncho(AnchoImpreso, Par(0, 0.5F, u"5.ATALA: ZERGA EGOERA ETA AITORPEN-LIKIDAZIOAK",
                              u"APARTADO 5: SITUACIÓN TRIBUTARIA Y DECLARACIONES LIQUIDACIONES")),
    EnAncho(AnchoTitulosGrupo, Par(0, 5, u"SOZIETATE ZERGA", u"SOCIEDADES")),
    EnAncho(AnchoTitulosGrupo, Par(0, 40, u"I.R.P.F.", u"I.R.P.F.")),
    EnAncho(AnchoTitulosGrupo, Par(0, 68, u"BALIO ERANTSIAREN GAINEKO ZERGA", u"I.V.A.")),
};
inline constexpr Rotulo rotulosAltos[] = {
    Par(175, 2, u"BAI", u"SI"),
    Par(186, 2, u"EZ", u"NO"),
    Par(3, 54, u"PFEZn arabiltzen den zenbatespen metodoa:", u"Método de estimación del I.R.P.F.:"),
    Par(8, 78, u"- Baiezkoan, bete itzazu BEZari buruzko beheko laukiak:",
        u"- En caso afirmativo, cumplimentar las casillas inferiores referidas al I.V.A.:"),
};
inline constexpr Rotulo rotulosBajos[] = {
    Par(8, 122, u"- Ezezkoan, bete itzazu BEZari buruzko ondoko laukiak:",
        u"- En caso negativo, cumplimentar las casillas inferiores referidas al I.V.A.:"),
};

}  // namespace padral::hoja3
