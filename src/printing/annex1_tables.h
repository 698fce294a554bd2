#pragma once
// The block of a participant: rules, turned captions, fields and the boxes of the tax regimes.

#include "printing/annex1_row.h"
#include "printing/annex1_values.h"
#include "printing/primitives.h"

namespace padral::anexo1 {

inline constexpr float CuerpoRotulos = 6;
inline constexpr float CuerpoEstrecho = 5;  ///< captions of narrow fields
inline constexpr float CuerpoValores = 10;
inline constexpr float CuerpoMarcas = 6.9F;

inline constexpr Raya rayasFila[] = {
    {8, 11, AnchoImpreso, 11}, {8, 26, AnchoImpreso, 26}, {18, 36, AnchoImpreso, 36},
    {8, 0, 8, AltoFila},       {18, 26, 18, AltoFila},    {27, 11, 27, 26},
    {88, 11, 88, 26},          {149, 11, 149, 26},        {48, 0, 48, 11},
    {162, 0, 162, 11},         {94, 26, 94, 36},          {107, 26, 107, 36},
    {120, 26, 120, 36},        {133, 26, 133, 36},        {146, 26, 146, 36},
    {159, 26, 159, 36},        {91, 36, 91, AltoFila},    {112, 36, 112, AltoFila},
    {124, 36, 124, AltoFila},  {179, 36, 179, AltoFila},
};

struct ImagenFila {
    const char16_t* nombre;
    Punto lugar;
};
inline constexpr ImagenFila imagenesFila[] = {
    {u"Participe", {1.5F, 4}},
    {u"DomicilioFiscal", {8.5F, 28}},
};

/// A field: its captions and its value; nationality and signature have none.
struct CampoParticipe {
    float cuerpo;
    Rotulo rotulos[4];
    Valor (*valor)(const DatosParticipe&) = nullptr;
    Punto lugarValor = {};
};
using DP = DatosParticipe;
// clang-format off
inline constexpr CampoParticipe camposParticipe[] = {
    {CuerpoRotulos, {Par(9, 1.5F, u"IFZ", u"N.I.F.")}, TextoDe<&DP::DNI>, {9, 5}},
    {CuerpoRotulos, {Par(49, 1.5F, u"Deiturak eta izena, edo sozietatearen izena",
                         u"Apellidos y nombre, o Razón Social")},
     TextoDe<&DP::NOMBRE>, {49, 5}},
    {CuerpoRotulos, {Par(163, 1.5F, u"Nazionalitatea", u"Nacionalidad")}},
    {CuerpoRotulos,
     {Eus(9, 12, u"Partaidetza"), Eus(9, 14, u"kuota edo %"), Cas(9, 16.5F, u"Cuota o % de"),
      Cas(9, 18.5F, u"participación")},
     Participacion, {9, 22}},
    {CuerpoRotulos, {Par(150, 12.5F, u"Sinadura", u"Firma")}},
    {CuerpoRotulos, {Par(19, 27.5F, u"Helbidea: kalea edo plaza", u"Domicilio: Calle o Plaza")},
     Calle, {19, 31}},
    {CuerpoRotulos, {Par(95, 27.5F, u"Zk.", u"Nº")}, NumeroDe<&DP::Numero>, {95, 31}},
    {CuerpoRotulos, {Par(108, 27.5F, u"Letra", u"Letra")}, TextoDe<&DP::Letra>, {108, 31}},
    {CuerpoRotulos, {Par(121, 27.5F, u"Esk.", u"Escal.")}, TextoDe<&DP::Escalera>, {121, 31}},
    {CuerpoRotulos, {Par(134, 27.5F, u"Oina", u"Piso")}, TextoDe<&DP::Piso>, {134, 31}},
    {CuerpoEstrecho, {Par(147, 27.5F, u"Aldea", u"Mano")}, TextoDe<&DP::Mano>, {147, 31}},
    {CuerpoRotulos, {Par(160, 27.5F, u"Telefonoa", u"Teléfono")}, NumeroDe<&DP::Telefono>,
     {163, 31}},
    {CuerpoRotulos, {Par(19, 37.5F, u"Udalerria", u"Municipio")}, TextoDe<&DP::NombMun>, {19, 41}},
    {CuerpoEstrecho, {Par(92, 37.5F, u"Posta kod.", u"Cod. Postal")}, NumeroDe<&DP::CodPostal>,
     {92, 41}},
    {CuerpoEstrecho, {Par(112.5F, 37.5F, u"Gakoa", u"Clave")}, NumeroDe<&DP::CodMun>, {113, 41}},
    {CuerpoRotulos, {Par(125, 37.5F, u"Probintzia", u"Provincia")}, TextoDe<&DP::NombreProvincia>,
     {125.25F, 41}},
    {CuerpoEstrecho, {Par(180, 37.5F, u"Gakoa", u"Clave")}, NumeroDe<&DP::CodigoProvincia>,
     {180, 41}},
};
// clang-format on

/// Heading of a column of boxes, Basque above Spanish: so wide that it stays clear of its
/// neighbour, and centred.
inline constexpr Mm AnchoColumna = 16;
inline constexpr Mm YColumnaEuskera = 11.2F, YColumnaCastellano = 13.3F;
constexpr Rotulo ColumnaEus(Mm centro, const char16_t* texto) {
    return EnAncho(AnchoColumna, Eus(centro - AnchoColumna / 2, YColumnaEuskera, texto));
}
constexpr Rotulo ColumnaCas(Mm centro, const char16_t* texto) {
    return EnAncho(AnchoColumna, Cas(centro - AnchoColumna / 2, YColumnaCastellano, texto));
}
inline constexpr Rotulo rotulosRegimenes[] = {
    ColumnaEus(60, u"AUKERATZEA"),
    ColumnaCas(60, u"OPCIÓN"),
    ColumnaEus(77, u"ATZERA EGITEA"),
    ColumnaCas(77, u"REVOCACIÓN"),
    Eus(28, 16, u"PFEZren ZZ erraztua. Erraztua"),
    Cas(28, 18, u"E.D. Simplificada IRPF"),
    Eus(28, 20, u" ZO, moduluak bidezko Z.O."),
    Cas(28, 22.5F, u"E.O. Módulos IRPF"),
    ColumnaEus(122, u"UKO EGITEA"),
    ColumnaCas(122, u"RENUNCIA"),
    ColumnaEus(139, u"ATZERA EGITEA"),
    ColumnaCas(139, u"REVOCACIÓN"),
    Eus(89, 16, u"BEZren erreg. erraztua"),
    Cas(89, 18, u"Reg. Simplif. IVA"),
    Eus(89, 20, u"Nek. Abel. eta Ar. Erreg."),
    Cas(89, 22, u"Reg. Agr. Gan. y Pesca"),
};

/// The boxes of the regimes stand in two rows, one touching the other.
struct FilaOpciones {
    Mm yCuadro, yMarca;
};
inline constexpr FilaOpciones filasOpciones[] = {{16.5F, 17.6F}, {19.5F, 20.6F}};
struct Opcion {
    Letra DatosParticipe::*propiedad;
    bool minusculas;  ///< a small letter marks too
    char16_t letra;
    Mm xMarca;
    int fila;
};
inline constexpr Opcion opciones[] = {
    {&DP::EdIRPF, true, u'O', 61, 0},      {&DP::EdIRPF, true, u'R', 76, 0},
    {&DP::EqIRPF, false, u'O', 61, 1},     {&DP::EqIRPF, false, u'R', 76, 1},
    {&DP::SimplifIVA, true, u'A', 122, 0}, {&DP::SimplifIVA, true, u'R', 137, 0},
    {&DP::Agric, false, u'A', 122, 1},     {&DP::Agric, false, u'R', 137, 1},
};
/// A frame that has its mark in the middle.
constexpr Marco CuadroDe(const Opcion& o) {
    constexpr Mm Lado = 3, HuecoMarca = 0.6F;
    const Mm x = o.xMarca - HuecoMarca;
    const Mm y = filasOpciones[o.fila].yCuadro;
    return {x, y, x + Lado, y + Lado};
}

}  // namespace padral::anexo1
