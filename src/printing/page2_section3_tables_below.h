#pragma once
// Census data: contact channels, consents and the boxes of entities.

#include "printing/page2_section3_tables.h"

namespace padral::hoja2 {

/// A contact channel has two check frames, high and low, below its question; `x` is the left end
/// of its captions and `y` the line of its number.
constexpr Casilla Alta(const char16_t* numero, Mm x, Mm y, const char16_t* eus, const char16_t* cas,
                       Valor (*valor)(const Hoja&), Mm xMarca) {
    return {.numero = numero,
            .lugarNumero = {x - 4, y},
            .marco = Cuadro(x + 5, y + 4.5F),
            .cuerpo = 6,
            .rotulos = {Eus(x, y, eus), Cas(x, y + 2, cas), Cas(x, y + 4.5F, u"Alta")},
            .valor = valor,
            .lugarValor = {xMarca, y + 6}};
}
constexpr Casilla Baja(Mm x, Mm y, Valor (*valor)(const Hoja&), Mm xMarca) {
    return {.marco = Cuadro(x + 15, y + 4.5F),
            .cuerpo = 6,
            .rotulos = {Cas(x + 10, y + 4.5F, u"Baja")},
            .valor = valor,
            .lugarValor = {xMarca, y + 6}};
}
/// Its address or number.
constexpr Casilla Direccion(const char16_t* numero, Mm x, Mm y, const char16_t* eus,
                            const char16_t* cas, Valor (*valor)(const Hoja&)) {
    return {.numero = numero,
            .lugarNumero = {x - 4, y},
            .cuerpo = CuerpoPequeno,
            .rotulos = {Par(x, y, eus, cas)},
            .valor = valor,
            .lugarValor = {x, y + 6}};
}

inline constexpr Casilla casillasContacto[] = {
    Alta(u"253", 6, 34.5F, u"E-postarik?", u"¿Correo electrónico?",
         SiLetra<&DatosApartado3::Correo, u'A'>, 12),
    Baja(6, 34.5F, SiLetra<&DatosApartado3::Correo, u'B'>, 22),
    Direccion(u"254", 36, 34.5F, u"E-postako helbidea", u"Direccion de correo electrónico",
              ComoEsta<&DatosApartado3::DirCorreo>),
    Alta(u"255", 102, 34.5F, u"Fax?", u"¿Tiene fax?", SiLetra<&DatosApartado3::Fax, u'A'>, 108),
    Baja(102, 34.5F, SiLetra<&DatosApartado3::Fax, u'B'>, 118),
    Direccion(u"256", 132, 34.5F, u"Fax zenbakia", u"Número de fax",
              SiHayNumero<&DatosApartado3::numFax>),
    Alta(u"257", 6, 44.5F, u"Telefono finkoa?", u"¿Teléfono fijo?",
         SiLetra<&DatosApartado3::Fijo, u'A'>, 12),
    Baja(6, 44.5F, SiLetra<&DatosApartado3::Fijo, u'B'>, 22),
    Direccion(u"258", 36, 44.5F, u"Telefono finkoaren zenbakia?", u"Número de teléfono fijo",
              SiHayNumero<&DatosApartado3::numFijo>),
    Alta(u"259", 102, 44.5F, u"Telefono mugikorra?", u"¿Tiene móvil?",
         SiLetra<&DatosApartado3::Movil, u'A'>, 108.5F),
    Baja(102, 44.5F, SiLetra<&DatosApartado3::Movil, u'B'>, 118.5F),
    Direccion(u"260", 132, 44.5F, u"Telefono mugikorraren zenbakia", u"Número de teléfono móvil",
              SiHayNumero<&DatosApartado3::numMovil>),
};

// The long texts are in size 6 and end before the mark at their right, but for the Basque line of
// box 262: it ends at X + 176.8, above the frame of the mark.
inline constexpr Casilla casillasConsentimiento[] = {
    {.numero = u"262",
     .lugarNumero = {2, 54.5F},
     .marco = Cuadro(165, 59.5F),
     .cuerpo = 6,
     .rotulos = {Eus(6, 56.5F,
                     u"Baimena ematen dut nire identitate eta harreman datuak, orri honetako 1 eta "
                     u"2, 29tik 160ra eta 251tik 260ra arteko laukietan daudenak, bai eta haien "
                     u"eguneratzeak ere, Kelmariako Foru Aldundiko departamentuei lagatzeko"),
                 Cas(6, 59.5F,
                     u"Doy mi consentimiento para ceder mis datos de identidad y de contacto "
                     u"señalados en las casillas 1 y 2, 29 a 160 y 251 a 260 y sus "
                     u"actualizaciones, a los departamentos de la Diputación Foral de Kelmaria.")},
     .valor = SiLetra<&DatosApartado3::Consentimiento, u'S'>,
     .lugarValor = {166, 61}},
    {.numero = u"263",
     .lugarNumero = {2, 65.5F},
     .marco = Cuadro(165, 70.5F),
     .cuerpo = 6,
     .rotulos = {Eus(6, 67.5F,
                     u"Bertan behera uzten dut nire identitate eta harreman datuak Kelmariako Foru "
                     u"Aldundiaren esparruan lagatzeko emandako baimena"),
                 Cas(6, 70.5F,
                     u"Revoco la autorización concedida para ceder mis datos de identidad y de "
                     u"contacto dentro del ámbito de la Diputación Foral de Kelmaria.")},
     .valor = SiLetra<&DatosApartado3::Revocacion, u'S'>,
     .lugarValor = {166, 72}},
};

inline constexpr Casilla casillasEntidad[] = {
    {.numero = u"261",
     .lugarNumero = {2, 76.5F},
     .marco = Cuadro(120, 76),
     .cuerpo = CuerpoPequeno,
     .rotulos = {Par(5.5F, 77, u"Ba al duzu lozorrotutako enpresaren izaerarik?",
                     u"¿Tiene la condiciónde empresa durmiente?"),
                 Par(112, 77, u"Bai", u"Si")},
     .valor = SiMarcado<&DatosApartado3::SocPat>,
     .lugarValor = {121, 78}},
    // One of the two is always marked.
    {.cuerpo = CuerpoPequeno,
     .rotulos = {Par(126, 77, u"Ez", u"No")},
     .valor = [](const Hoja& h) { return Marca(Datos(h).SocPat != u"X"); },
     .lugarValor = {135, 78}},
    {.numero = u"264",
     .lugarNumero = {2, 81.5F},
     .cuerpo = 6,
     .rotulos = {Eus(5.5F, 82,
                     u"Ba al duzu Telefono mugikorren, bideo-joko kontsolen, ordenagailu "
                     u"eramangarrien eta tableta digitalen birsaltzaile izaera, BEZaren araudiko "
                     u"84.Bat 2. artikuluaren arabera?"),
                 Cas(5.5F, 84.5F,
                     u"Tiene la condición de revendedor de teléfonos móviles, consolas de "
                     u"videojuegos,ordenadores portátiles y tabletas digitales de acuerdo con el "
                     u"artículo 84.Uno 2º de la normativa del IVA?")},
     .valor = SiMarcado<&DatosApartado3::ActVenMov>,
     .lugarValor = {155.5F, 83.5F}},
    {.numero = u"49",
     .lugarNumero = {2, 93},
     .cuerpo = CuerpoPequeno,
     .rotulos = {Par(5.5F, 93, u"Izaera juridikoa edo entitate mota",
                     u"Forma jurídica o clase de entidad")},
     .valor = ComoEsta<&DatosApartado3::DescripcionFormaJuridica>,
     .lugarValor = {2, 97},
     .cuerpoValor = 6},
    {.numero = u"50",
     .lugarNumero = {93, 93},
     .cuerpo = CuerpoPequeno,
     .rotulos = {Par(97, 93, u"Ekitaldi sozialaren itxiera data",
                     u"Fecha de cierre del ejercicio social")},
     .valor = CierreDelEjercicio,
     .lugarValor = {93.5F, 97}},
};
inline constexpr Rotulo tituloEntidades[] = {
    EnAncho(180, Par(9, 88,
                     u"Bakarrik pertsona jurikoentzat edo errenten esleipen arregimeneko "
                     u"entitateetarako",
                     u"Sólo para personas jurídicas o entidades en régimen de atribución de "
                     u"rentas")),
};

}  // namespace padral::hoja2
