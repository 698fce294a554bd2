#pragma once
// Section 4 on the third page: one row a request.

#include "printing/page3_sections.h"
#include "printing/primitives.h"
#include "sections/tax/section4.h"

namespace padral::hoja3 {

/// Versions of the page, an index.
enum Version { Euskera, Castellano };

/// One possible answer of a request: its box and the letter that marks it.
struct CuadroSolicitud {
    const char16_t* numero = nullptr;
    char16_t letra = 0;  ///< 0: the request has no such answer
    Mm xMarca = 0;
    Mm xCuadro[2] = {};  ///< by Version
    Mm xNumero[2] = {};  ///< by Version
};
/// The number stands 5 mm left of the mark.
constexpr CuadroSolicitud EnColumna(const char16_t* numero, char16_t letra, Mm xMarca) {
    const Mm cuadro = xMarca - 1;
    const Mm lugar = xMarca - 5;
    return {numero, letra, xMarca, {cuadro, cuadro}, {lugar, lugar}};
}

struct Solicitud {
    Letra DatosApartado4::*propiedad;
    Mm yRotulo;  ///< of the caption and of the box numbers
    Mm yCuadro, yMarca;
    Rotulo rotulos[5];
    CuadroSolicitud cuadros[3];
};

/// A caption that is the same in both versions.
constexpr Rotulo Comun(Mm x, Mm y, const char16_t* texto) { return Par(x, y, texto, texto); }
/// A question with dots up to `hasta`. Those of I.V.A. begin at 3: further right the longest of
/// them would run into its number.
constexpr Rotulo Pregunta(Mm hasta, Mm x, Mm y, const char16_t* eus, const char16_t* cas) {
    return ConPuntos(hasta, Par(x, y, eus, cas));
}

// The frame and the number of 61 stand apart in each version, its mark does not. The caption of the
// first row depends on the date of the declaration.
// clang-format off
inline constexpr Solicitud solicitudes[] = {
    {&DatosApartado4::IVAEXPORT, 14, 12, 13, {},
     {EnColumna(u"75", u'A', 159), EnColumna(u"76", u'B', 187)}},
    {&DatosApartado4::IVAEXPORTINTRA, 18, 16, 17,
     {Pregunta(138, 3, 18, u"ALTA edo BAJA Batasun barruko Operadoreen Erregistroan",
               u"ALTA o BAJA en el registro de Operadores Intracomunitarios")},
     {EnColumna(u"161", u'A', 159), EnColumna(u"162", u'B', 187)}},
    {&DatosApartado4::IRPFDIRECT, 28.5F, 27, 28,
     {Pregunta(136, 13, 28.5F, u"- PFEZren zuzeneko zenbatespen erraztua",
               u"- Estimación directa simplificada del I.R.P.F")},
     {EnColumna(u"60", u'O', 141), {u"61", u'R', 161, {160, 158}, {155, 153}},
      EnColumna(u"62", u'E', 181)}},
    {&DatosApartado4::IVACAJA, 38, 36, 37,
     {Pregunta(136, 3, 38, u"- Kutxa irizpidearen araubide berezia",
               u"- Régimen especial del criterio de caja")},
     {EnColumna(u"169", u'O', 141), EnColumna(u"170", u'R', 159), EnColumna(u"171", u'E', 181)}},
    {&DatosApartado4::IVACUOADU, 43, 41, 43,
     {Pregunta(136, 3, 43,
               u"- Aduanak inportazio eragiketetan likidatutako kuotak BEZaren aitorpenetako kuota "
               u"jasanarazien barruan sartzea",
               u"- Inclusión de las cuotas liquidadas por Aduanas de las operaciones de "
               u"importación en las cuotas repercutidas de las declaraciones del IVA.")},
     {EnColumna(u"173", u'O', 141), EnColumna(u"174", u'R', 159), EnColumna(u"175", u'E', 181)}},
    {&DatosApartado4::IVAAGRIC, 51, 49, 50,
     {Pregunta(136, 3, 51, u"Nekazaritza, abeltzaintza eta arrantzaren erregimen berezia BEZean",
               u"Régimen especial de la Agricultura, Ganadería y Pesca en el I.V.A")},
     {EnColumna(u"66", u'A', 141), EnColumna(u"67", u'R', 159), EnColumna(u"68", u'E', 181)}},
    {&DatosApartado4::IVASIMPLIF, 55, 53, 54,
     {Pregunta(136, 3, 55, u"Erregimen berezi erraztua BEZean",
               u"Régimen especial Simplificado en el I.V.A")},
     {EnColumna(u"69", u'A', 141), EnColumna(u"70", u'R', 159), EnColumna(u"71", u'E', 181)}},
    {&DatosApartado4::IVABIENES, 64, 62, 63,
     {ConPuntos(138, Eus(3, 64, u"Ondasun erabilien, arte-lanen eta abarren erregimen berezirako "
                                u"aukera: mozkin globalaren marjina")),
      ConPuntos(140, Cas(3, 64, u"Opción al Régimen especial de Bienes Usados, Arte, etc.: Margen "
                                u"de Beneficio global")),
      Eus(138, 64, u"AUKERATZEA"), Cas(140, 64, u"OPCIÓN"), Par(164, 64, u"UKO EGITEA", u"RENUNCIA")},
     {EnColumna(u"80", u'O', 159), EnColumna(u"81", u'R', 187)}},
    {&DatosApartado4::IVASOCIO, 68, 66, 67,
     {Pregunta(146, 3, 68,
               u"Errentak esleitzen dituen entitate bateko bazkide, komunero edo partaide al zara?",
               u"¿Es socio, comunero o partícipe de una entidad en régimen de atribución de rentas?"),
      Par(146, 68, u"BAI", u"SÍ"), Par(176, 68, u"EZ", u"NO")},
     {EnColumna(u"83", u'S', 159), EnColumna(u"84", u'N', 187)}},
    {&DatosApartado4::SONF, 86, 84, 86,
     {ConPuntos(140, Eus(13, 86, u"- 3/2004 Foru Arauaren II. titulak jasotzen duen zerga araubide "
                                 u"berezia aukeratzea")),
      ConPuntos(140, Cas(13, 86, u"- Sociedades Tit 2 NF 3/2004")),
      Par(140, 86, u"AUKERATZEA", u"OPCIÓN"), Par(164, 86, u"UKO EGITEA", u"RENUNCIA")},
     {EnColumna(nullptr, u'O', 159), EnColumna(nullptr, u'R', 187)}},
};
// clang-format on

/// The caption of the first row: of two catalogue texts, the second from that date on.
struct RotuloFechado {
    qint32 desde;
    int antes, despues;
    Mm x, y, hasta;
};
inline constexpr RotuloFechado registroExportadores = {20090101, 25, 836, 3, 14, 138};

inline constexpr Raya rayaApartado4[] = {{0, 4, AnchoImpreso, 4}};
inline constexpr Rotulo tituloApartado4[] = {
    EnAncho(AnchoImpreso,
            Par(0, 0.5F, u"4.ATALA: ESKAERA BEREZIAK", u"APARTADO 4: SOLICITUDES ESPECIFICAS")),
};
inline constexpr Rotulo negritasApartado4[] = {
    Comun(138, 14, u"ALTA"),
    Comun(168, 14, u"BAJA"),
    Comun(138, 18, u"ALTA"),
    Comun(168, 18, u"BAJA"),
    Par(3, 81, u"SOZIETATE ZERGA", u"SOCIEDADES"),
};
/// The short Spanish word stands above its number, the long Basque one would leave the form there.
inline constexpr Mm XKanpo = 172, XExclusion = 176;
inline constexpr Rotulo rotulosApartado4[] = {
    Par(3, 5, u"JARRI 'X' BEHAR DIREN LAUKIETAN",
        u"MARQUE CON UNA 'X' LAS CASILLAS QUE CORRESPONDAN"),
    Par(3, 22, u"P.F.E.Z.", u"I.R.P.F."),
    Subrayado(Par(136, 25, u"AUKERATZEA", u"OPCIÓN")),
    Subrayado(Par(154, 25, u"ATZERA EGITEA", u"REVOCACIÓN")),
    Subrayado(Eus(XKanpo, 25, u"KANPO GERATZEA")),
    Subrayado(Cas(XExclusion, 25, u"EXCLUSIÓN")),
    Subrayado(Par(136, 33, u"AUKERATZEA", u"OPCIÓN")),
    Subrayado(Par(154, 33, u"UKO EGITEA", u"RENUNCIA")),
    Subrayado(Eus(XKanpo, 33, u"KANPO GERATZEA")),
    Subrayado(Cas(XExclusion, 33, u"EXCLUSIÓN")),
    Par(3, 35, u"B.E.Z.", u"I.V.A."),
    Subrayado(Par(136, 47, u"UKO EGITEA", u"RENUNCIA")),
    Subrayado(Par(154, 47, u"ATZERA EGITEA", u"REVOCACIÓN")),
    Subrayado(Eus(XKanpo, 47, u"KANPO GERATZEA")),
    Subrayado(Cas(XExclusion, 47, u"EXCLUSIÓN")),
    Par(29, 73, u"- Entitatearen IFZ", u"- N.I.F. entidad"),
    Par(79, 73, u"- Entitatearen izena", u"- Nombre entidad"),
};

/// The values of the entity, each centred in its width; `YEntidad` is their top.
inline constexpr Mm YEntidad = 76;
inline constexpr Mm XNif = 27, AnchoNif = 20;
inline constexpr Mm XNombre = 77, AnchoNombre = 40;

}  // namespace padral::hoja3
