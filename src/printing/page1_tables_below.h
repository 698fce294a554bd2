#pragma once
// The first page below section 1: requests, change of identifier, signature. Odd positions, such
// as the mark of box 204 in the row above its frame, are those of the form.

#include "printing/page1_tables.h"

namespace padral::hoja1 {

// Request of the identifier or its card.
inline constexpr Raya rayasSolicitud[] = {
    {0, 4, AnchoImpreso, 4},
    {0, 10, AnchoImpreso, 10},
    {Mitad, 4, Mitad, 30},
};
inline constexpr Rotulo tituloSolicitud[] = {
    EnAncho(AnchoImpreso, Par(0, 0.5F, u"IDENTIFIKAZIO FISKALEKO ZENBAKIAREN ESKAERA",
                              u"SOLICITUD DEL NÚMERO DE IDENTIFICACIÓN FISCAL")),
};
inline constexpr Rotulo columnasSolicitud[] = {
    EnAncho(97, Eus(0, 4.5F, u"IDENTIFIKAZIO FISKALEKO ZENBAKIAREN ESKAERA")),
    EnAncho(97, Cas(0, 7, u"SOLICITUD DEL NÚMERO DE IDENTIFICACIÓN FISCAL")),
    EnAncho(98, Eus(Mitad, 4.5F, u"IDENTIFIKAZIO TXARTELAREN ESKAERA")),
    EnAncho(98, Cas(Mitad, 7, u"SOLICITUD DE TARJETA IDENTIFICATIVA")),
};
inline constexpr Casilla casillasSolicitud[] = {
    {.numero = u"200",
     .lugarNumero = {76, 14},
     .marco = Cuadro(81, 12),
     .rotulos = {Par(4, 13, u"Hasieragatik ematea", u"Asignación por comienzo")},
     .valor = SiCausa2<u'A'>,
     .lugarValor = {82, 13.5F}},
    {.numero = u"206",
     .lugarNumero = {66, 18},
     .marco = {71, 16, 85, 20},
     .rotulos = {Par(4, 17.5F, u"Entitatearen eraketa data", u"Fecha de constitución")},
     .valor =
         [](const Hoja& h) {
             return Texto(h.estado.fecha.LongToString(Datos(h).FechaConstitucion));
         },
     .lugarValor = {72, 17.5F}},
    {.numero = u"201",
     .lugarNumero = {76, 22},
     .marco = Cuadro(81, 20),
     .rotulos = {Eus(4, 21, u"Izaera juridikoa aldatzeagatik ematea"),
                 Cas(4, 24, u"Asignación por modificación forma jurídica")},
     .valor = SiCausa2<u'B'>,
     .lugarValor = {82, 21.5F}},
    {.numero = u"202",
     .lugarNumero = {76, 26},
     .marco = Cuadro(81, 24),
     .rotulos = {Par(4, 27.5F, u"Amaieragatik deuseztatzea", u"Anulación por cese")},
     .valor = SiCausa2<u'C'>,
     .lugarValor = {82, 25.5F}},
    {.numero = u"203",
     .lugarNumero = {177, 14},
     .marco = Cuadro(182.5F, 12),
     .rotulos = {Par(105, 13, u"Galera", u"Por extravío")},
     .valor = SiCausa2<u'D'>,
     .lugarValor = {183.5F, 13.5F}},
    {.numero = u"207",
     .lugarNumero = {167, 18},
     .marco = {172.5F, 16, 186.5F, 20},
     .rotulos = {Par(105, 17.5F, u"Erregistroko inskripzio data", u"Fecha inscripción Registro")},
     .valor =
         [](const Hoja& h) {
             return Texto(h.estado.fecha.LongToString(Datos(h).FechaInscripcion));
         },
     .lugarValor = {173.5F, 17.5F}},
    {.numero = u"204",
     .lugarNumero = {177, 22},
     .marco = Cuadro(182.5F, 20),
     .rotulos = {Par(105, 22, u"Behin betikoa", u"Por definitiva")},
     .valor = SiCausa2<u'E'>,
     .lugarValor = {183.5F, 17.5F}},
    {.numero = u"205",
     .lugarNumero = {177, 26},
     .marco = Cuadro(182.5F, 24),
     .rotulos = {Par(105, 26.5F, u"Bestelako arrazoiak", u"Por otros motivos")},
     .valor = SiCausa2<u'F'>,
     .lugarValor = {183.5F, 25.5F}},
};

// Change of identifier or name; the rows begin 30 mm below the origin.
inline constexpr Raya rayasModificacion[] = {
    {0, 34, AnchoImpreso, 34},
    {0, 42, AnchoImpreso, 42},
    {47, 34, 47, 42},
    {149.5F, 34, 149.5F, 42},
};
inline constexpr Rotulo tituloModificacion[] = {
    EnAncho(AnchoImpreso, Par(0, 30.5F, u"IFZ, IZEN-DEITURAK EDO SOZIETATEAREN IZENA ALDATZEA",
                              u"MODIFICACIÓN N.I.F., NOMBRE O RAZÓN SOCIAL")),
};
inline constexpr Casilla casillasModificacion[] = {
    {.numero = u"210",
     .lugarNumero = {2, 35},
     .rotulos = {Par(7, 35, u"Aurreko IFZ", u"N.I.F. anterior")},
     .valor = ComoEsta<&cDatosGenerales::DNIAnterior>,
     .lugarValor = {2, 39}},
    {.numero = u"211",
     .lugarNumero = {50, 35},
     .rotulos = {Par(55, 35, u"Aurreko deiturak eta izena, edo sozietate izena",
                     u"Apellidos y nombre o Razón Soc. anterior")},
     .valor = ComoEsta<&cDatosGenerales::NombreAnterior>,
     .lugarValor = {49, 39}},
    // The value of this box has its own table of texts.
    {.numero = u"212",
     .lugarNumero = {151, 35},
     .rotulos = {Par(156, 35, u"Aldaketaren zergatia", u"Mot. cambio")}},
};
struct TextoMotivo {
    int codigo;
    const char16_t* texto;
    Mm x;
    float cuerpo;
};
inline constexpr Mm YMotivo = 39;
inline constexpr TextoMotivo motivosCambio[] = {
    {0, u"No hay cambios", 151.5F, 8},
    {10, u"Errores anteriores", 151.5F, 8},
    {20, u"Cambio de razón social o nombre", 151.5F, 8},
    {30, u"Transformación de CIF y forma jurídica", 151.5F, 8},
    {31, u"Transformación de forma jurídica sin cambio de CIF", 150, 5},
};

// Signature.
inline constexpr Raya rayasObligado[] = {
    {0, 4, AnchoImpreso, 4}, {121, 4, 121, 43.5F},  {132, 4, 132, 43.5F}, {0, 12, 121, 12},
    {0, 20, 121, 20},        {46.5F, 4, 46.5F, 12}, {77, 12, 77, 20},
};
inline constexpr Rotulo tituloObligado[] = {
    EnAncho(AnchoImpreso,
            Par(0, 0.5F, u"ZERGAPEKOA EDO ORDEZKARIA", u"OBLIGADO TRIBUTARIO O REPRESENTANTE")),
};
inline constexpr Casilla casillasObligado[] = {
    {.numero = u"51",
     .lugarNumero = {3, 5.5F},
     .cuerpo = 7,
     .rotulos = {Par(7, 5.5F, u"IFZ", u"N.I.F.")},
     .valor = ComoEsta<&cDatosGenerales::DNIRepresentante>,
     .lugarValor = {2, 9}},
    {.numero = u"52",
     .lugarNumero = {49, 5.5F},
     .cuerpo = 7,
     .rotulos = {Par(53, 5.5F, u"Deiturak eta izena", u"Apellidos y nombre")},
     .valor = ComoEsta<&cDatosGenerales::NombreRepresentante>,
     .lugarValor = {48.5F, 9}},
    {.numero = u"53",
     .lugarNumero = {3, 13.5F},
     .cuerpo = 7,
     .rotulos = {Par(7, 13.5F, u"gisa sinatzen du", u"Firma en calidad de")},
     .valor = ComoEsta<&cDatosGenerales::FirmaEnCalidadDe>,
     .lugarValor = {2, 17}},
    {.numero = u"54",
     .lugarNumero = {79, 13.5F},
     .cuerpo = 7,
     .rotulos = {Par(83.5F, 13.5F, u"Data", u"Fecha")},
     .valor = [](const Hoja& h) { return FechaSiHay(h, Datos(h).FECHADECLARACION); },
     .lugarValor = {79, 17}},
    // Room for a hand signature.
    {.numero = u"55",
     .lugarNumero = {3, 21.5F},
     .cuerpo = 7,
     .rotulos = {Par(56, 21.5F, u"Sinadura", u"Firma")}},
};

}  // namespace padral::hoja1
