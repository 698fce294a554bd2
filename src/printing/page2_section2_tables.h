#pragma once
// The four domiciles of the second page: four blocks, two shapes, one map of fields.

#include "printing/primitives.h"
#include "sections/location/section2.h"

namespace padral::hoja2 {

/// A row of fields: its top and bottom rule, the line of its numbers and captions, that of its
/// values.
struct FilaDomicilio {
    Mm arriba, abajo;
    Mm yRotulo, yValor;
};
/// The fiscal domicile is laid out a little differently from the other three.
enum ClaseDomicilio { Fiscal, Otro };
struct FormaDomicilio {
    Mm alto;
    FilaDomicilio filas[2];
    Mm grisArriba, grisAbajo;
};
inline constexpr FormaDomicilio formas[] = {
    {34, {{10, 18.5F, 11, 16}, {18.5F, 27, 19.5F, 24}}, 19, 26.5F},
    {29, {{11, 19, 12, 16}, {19, 29, 20, 25}}, 19.5F, 28.5F},
};

// Lines between the fields of each row.
inline constexpr Mm columnasPrimera[] = {78.5F, 97.5F, 115, 131, 145.5F, 161.5F};
inline constexpr Mm columnasSegunda[] = {81.5F, 110, 132, 172};
/// The grey cell of a code.
struct CeldaClave {
    Mm x1, x2;
};
inline constexpr CeldaClave celdasClave[] = {{110.5F, 131.5F}, {172.5F, 192.5F}};

inline constexpr Raya rayasFiscal[] = {
    {0, 6, AnchoImpreso, 6},   {0, 10, AnchoImpreso, 10}, {0, 18.5F, AnchoImpreso, 18.5F},
    {0, 27, AnchoImpreso, 27}, {94, 27, 94, 34},
};
inline constexpr Raya rayasOtro[] = {
    {0, 11, AnchoImpreso, 11},
    {0, 19, AnchoImpreso, 19},
};

// Titles, bold. The last line of the fiscal ones stands below its frame.
inline constexpr Rotulo titulosFiscal[] = {
    EnAncho(AnchoImpreso, Par(0, 2, u"2. ATALA: KOKALEKUA", u"APARTADO 2: LOCALIZACIÓN")),
    Par(2, 7, u"ZERGA HELBIDEA", u"DOMICILIO FISCAL"),
    Par(1, 38, u"Bete itzazu bakarrik zerga helbidearekin bat ez datozen helbideak",
        u"Rellene sólo los domicilios que no coinciden con el domicilio fiscal"),
};
inline constexpr Rotulo titulosSocial[] = {
    Eus(1, 3.5F, u"HELBIDE SOZIALA Jarri X, zerga helbidearekin bat etorriz gero"),
    Cas(1, 7.5F, u"DOMICILIO SOCIAL Marque con una X si coincide con el fiscal"),
};
inline constexpr Rotulo titulosActividad[] = {
    Eus(1, 3.5F,
        u"HELBIDE JARDUERA NAGUSIAREN HELBIDEA Jarri X, zerga helbidearekin bat etorriz gero"),
    Cas(1, 7.5F,
        u"DOMICILIO DE LA ACTIVIDAD PRINCIPAL EN KELMARIA Marque con una X si coincide con el "
        u"fiscal"),
};
inline constexpr Rotulo titulosNotificacion[] = {
    Eus(1, 3.5F, u"JAKINARAZPENEN HELBIDEA Jarri X, zerga helbidearekin bat etorriz gero"),
    Cas(1, 7.5F,
        u"DOMICILIO A EFECTO DE NOTIFICACIONES Marque con una X si conincide con el fiscal"),
};
// Captions of the fiscal domicile without number or value.
inline constexpr Rotulo rotulosInternet[] = {
    Par(1, 28, u"E-Postako helbidea", u"Dirección correo electrónico"),
    Par(96, 28, u"Interneteko domeinua edo helbidea", u"Dominio o Dirección de internet"),
};

struct Domicilio {
    ClaseDomicilio clase;
    Mm origen;
    std::span<const Raya> rayas;
    std::span<const Rotulo> titulos;
    BloqueDireccion DatosApartado2::*datos;
    QString DatosApartado2::*elMismo;  ///< none: its values always print
};
inline constexpr Domicilio domicilios[] = {
    {Fiscal, 0, rayasFiscal, titulosFiscal, &DatosApartado2::Fis, nullptr},
    {Otro, 40, rayasOtro, titulosSocial, &DatosApartado2::Soc, &DatosApartado2::ElMismoSoc},
    {Otro, 72, rayasOtro, titulosActividad, &DatosApartado2::Act, &DatosApartado2::ElMismoAct},
    {Otro, 104, rayasOtro, titulosNotificacion, &DatosApartado2::Not, &DatosApartado2::ElMismoNot},
};
inline constexpr Marco marcoElMismo = Cuadro(180, 4);
inline constexpr Punto lugarElMismo = {181, 5.5F};

/// A field of all four domiciles. The cells of the codes have no number.
struct CampoDomicilio {
    const char16_t* numeros[4];  ///< in the order of `domicilios`
    Mm xNumero;
    Mm xRotulo[2];  ///< by ClaseDomicilio
    const char16_t *eus, *cas;
    Valor (*valor)(const BloqueDireccion&);
    Mm xValor;
    int fila;
};

template <QString BloqueDireccion::*propiedad>
Valor TextoDe(const BloqueDireccion& b) {
    return Texto(b.*propiedad);
}
template <qint32 BloqueDireccion::*propiedad>
Valor NumeroDe(const BloqueDireccion& b) {
    return NumeroSiHay(b.*propiedad);
}
inline Valor Calle(const BloqueDireccion& b) {
    if (b.NombreDomicilio.isEmpty()) return std::nullopt;
    return b.SiglasDomicilio + QStringLiteral("/ ") + b.NombreDomicilio;
}

// clang-format off
inline constexpr CampoDomicilio camposDomicilio[] = {
    {{u"29", u"131", u"141", u"151"}, 1, {4, 5}, u"Helbidea: kalea edo plaza",
     u"Domicilio: Calle o Plaza", Calle, 1, 0},
    {{u"30", u"132", u"142", u"152"}, 79, {82, 83}, u"Zk.", u"Nº",
     NumeroDe<&BloqueDireccion::Numero>, 80.5F, 0},
    {{u"31", u"133", u"143", u"153"}, 98, {101, 102}, u"Letra", u"Letra",
     TextoDe<&BloqueDireccion::Letra>, 99.5F, 0},
    {{u"32", u"134", u"144", u"154"}, 115.5F, {119, 119}, u"Esk.", u"Escal.",
     TextoDe<&BloqueDireccion::Escalera>, 117, 0},
    {{u"33", u"135", u"145", u"155"}, 131.5F, {134, 135}, u"Oina", u"Piso",
     TextoDe<&BloqueDireccion::Piso>, 133, 0},
    {{u"34", u"136", u"146", u"156"}, 146, {149, 149}, u"Aldea", u"Mano",
     TextoDe<&BloqueDireccion::Mano>, 147.5F, 0},
    {{u"35", u"137", u"147", u"157"}, 163, {167, 167}, u"Telefonoa", u"Teléfono",
     NumeroDe<&BloqueDireccion::Telefono>, 163.5F, 0},
    {{u"36", u"138", u"148", u"158"}, 1, {4, 5}, u"Udalerria", u"Municipio",
     TextoDe<&BloqueDireccion::NombreMunicipio>, 1, 1},
    {{u"37", u"139", u"149", u"159"}, 82.5F, {86, 86}, u"Posta kodea", u"Cod. Postal",
     NumeroDe<&BloqueDireccion::CodigoPostal>, 83.5F, 1},
    {{}, 0, {112, 112}, u"Gakoa", u"Clave",
     NumeroDe<&BloqueDireccion::CodigoMunicipio>, 112, 1},
    {{u"38", u"140", u"150", u"160"}, 133, {137, 137}, u"Probintzia", u"Provincia",
     TextoDe<&BloqueDireccion::NombreProvincia>, 134, 1},
    {{}, 0, {174, 174}, u"Gakoa", u"Clave",
     NumeroDe<&BloqueDireccion::CodigoProvincia>, 174, 1},
};
// clang-format on

}  // namespace padral::hoja2
