#pragma once
// The four domiciles of the empty second page in rows.

#include "furniture_expected.h"

namespace padral::test {

/// Origins of fiscal, social, activity and notification domicile.
inline constexpr float YDomicilios[] = {48.5F, 88.5F, 120.5F, 152.5F};
inline constexpr float YApartado3 = 184.5F;
inline constexpr int CuantosDomicilios = 4;

/// A field of the domiciles: its number in each, the places of number and caption.
struct FilaCampo {
    const char16_t* numeros[CuantosDomicilios];
    float xNumero;
    float xFiscal, xOtros;  ///< caption
    const char16_t *eus, *cas;
    bool segundaFila;
};
inline const FilaCampo filasCampo[] = {
    {{u"29", u"131", u"141", u"151"},
     1,
     4,
     5,
     u"Helbidea: kalea edo plaza",
     u"Domicilio: Calle o Plaza",
     false},
    {{u"30", u"132", u"142", u"152"}, 79, 82, 83, u"Zk.", u"Nº", false},
    {{u"31", u"133", u"143", u"153"}, 98, 101, 102, u"Letra", u"Letra", false},
    {{u"32", u"134", u"144", u"154"}, 115.5F, 119, 119, u"Esk.", u"Escal.", false},
    {{u"33", u"135", u"145", u"155"}, 131.5F, 134, 135, u"Oina", u"Piso", false},
    {{u"34", u"136", u"146", u"156"}, 146, 149, 149, u"Aldea", u"Mano", false},
    {{u"35", u"137", u"147", u"157"}, 163, 167, 167, u"Telefonoa", u"Teléfono", false},
    {{u"36", u"138", u"148", u"158"}, 1, 4, 5, u"Udalerria", u"Municipio", true},
    {{u"37", u"139", u"149", u"159"}, 82.5F, 86, 86, u"Posta kodea", u"Cod. Postal", true},
    {{}, 0, 112, 112, u"Gakoa", u"Clave", true},
    {{u"38", u"140", u"150", u"160"}, 133, 137, 137, u"Probintzia", u"Provincia", true},
    {{}, 0, 174, 174, u"Gakoa", u"Clave", true},
};

inline void PonerColumnas(BloqueEsperado& b, float arriba, float medio, float abajo) {
    for (const float x : {78.5F, 97.5F, 115.0F, 131.0F, 145.5F, 161.5F})
        b.rayas.push_back({x, arriba, x, medio});
    for (const float x : {81.5F, 110.0F, 132.0F, 172.0F}) b.rayas.push_back({x, medio, x, abajo});
}

inline void PonerCampos(BloqueEsperado& b, int domicilio, float primera, float segunda) {
    b.cuerpoNumeros = 7;
    for (const auto& c : filasCampo) {
        const float y = c.segundaFila ? segunda : primera;
        const char16_t* numero = c.numeros[domicilio];
        if (numero != nullptr) b.numeros.push_back({numero, c.xNumero, y});
        b.pares.push_back({domicilio == 0 ? c.xFiscal : c.xOtros, y, 0, 7, false, c.eus, c.cas});
    }
}

inline BloqueEsperado FiscalEsperado() {
    BloqueEsperado b = {
        "fiscal",
        48.5F,
        {0, 0, 193, 34},
        {{0, 6, 193, 6}, {0, 10, 193, 10}, {0, 18.5F, 193, 18.5F}, {0, 27, 193, 27}},
        {},
        {},
        {},
        {{0, 2, 193, 8, true, u"2. ATALA: KOKALEKUA", u"APARTADO 2: LOCALIZACIÓN"},
         {2, 7, 0, 8, true, u"ZERGA HELBIDEA", u"DOMICILIO FISCAL"},
         {1, 28, 0, 7, false, u"E-Postako helbidea", u"Dirección correo electrónico"},
         {96, 28, 0, 7, false, u"Interneteko domeinua edo helbidea",
          u"Dominio o Dirección de internet"},
         {1, 38, 0, 8, true, u"Bete itzazu bakarrik zerga helbidearekin bat ez datozen helbideak",
          u"Rellene sólo los domicilios que no coinciden con el domicilio fiscal"}}};
    b.rayas.push_back({94, 27, 94, 34});
    b.grises = {{110.5F, 19, 131.5F, 26.5F}, {172.5F, 19, 192.5F, 26.5F}};
    PonerColumnas(b, 10, 18.5F, 27);
    PonerCampos(b, 0, 11, 19.5F);
    return b;
}

struct FilaTitulos {
    const char* nombre;
    const char16_t *eus, *cas;
};
inline const FilaTitulos titulosDomicilio[] = {
    {"fiscal", nullptr, nullptr},
    {"social", u"HELBIDE SOZIALA Jarri X, zerga helbidearekin bat etorriz gero",
     u"DOMICILIO SOCIAL Marque con una X si coincide con el fiscal"},
    {"activity",
     u"HELBIDE JARDUERA NAGUSIAREN HELBIDEA Jarri X, zerga helbidearekin bat etorriz gero",
     u"DOMICILIO DE LA ACTIVIDAD PRINCIPAL EN KELMARIA Marque con una X si coincide con el fiscal"},
    {"notification", u"JAKINARAZPENEN HELBIDEA Jarri X, zerga helbidearekin bat etorriz gero",
     u"DOMICILIO A EFECTO DE NOTIFICACIONES Marque con una X si conincide con el fiscal"},
};

/// `domicilio`: 1 social, 2 activity, 3 notification.
inline BloqueEsperado OtroDomicilioEsperado(int domicilio) {
    const FilaTitulos& t = titulosDomicilio[domicilio];
    BloqueEsperado b = {t.nombre,
                        YDomicilios[domicilio],
                        {0, 0, 193, 29},
                        {{0, 11, 193, 11}, {0, 19, 193, 19}},
                        {},
                        {{180, 4, 184, 8}},
                        {{1, 3.5F, 0, 8, true, true, t.eus}, {1, 7.5F, 0, 8, true, false, t.cas}},
                        {}};
    b.grises = {{110.5F, 19.5F, 131.5F, 28.5F}, {172.5F, 19.5F, 192.5F, 28.5F}};
    PonerColumnas(b, 11, 19, 29);
    PonerCampos(b, domicilio, 12, 20);
    return b;
}

}  // namespace padral::test
