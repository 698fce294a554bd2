#pragma once
// The page of Annex I in rows.

#include "annex_expected.h"
#include "participants/participant.h"

namespace padral::test {

/// Tops of the five rows of a page.
inline constexpr float topesFilas[] = {55, 101, 147, 193, 239};

inline const std::vector<FilaEnPunto> lineasAnexoI = {
    {115, 5, 16, false, u"PADRAL AITORPENA"},
    {115, 10, 14, false, u"DECLARACIÓN PADRAL"},
    {115, 16, 7, false, u"SOZIETATEEN GAINEKO ZERGARI LOTU GABEKO ENTITATEETAKO"},
    {115, 19, 7, false, u"KIDE EDO PARTAIDEEN ZERRENDA, EDO BAZKIDEENA"},
    {115, 23, 7, false, u"RELACIÓN DE MIEMBROS O PARTÍCIPES DE ENTIDADES"},
    {115, 26, 7, false, u"NO SUJETAS AL IMPUESTO SOBRE SOCIEDADES O SOCIOS"},
    {182, 10, 32, false, u"417"},
    {182, 19, 12, false, u"I eranskina"},
    {182, 23, 12, false, u" Anexo I"},
};

inline const std::vector<FilaTrazo> rayasParticipe = {
    {8, 11, 193, 11},   {8, 26, 193, 26},   {18, 36, 193, 36},  {8, 0, 8, 46},
    {18, 26, 18, 46},   {27, 11, 27, 26},   {88, 11, 88, 26},   {149, 11, 149, 26},
    {48, 0, 48, 11},    {162, 0, 162, 11},  {94, 26, 94, 36},   {107, 26, 107, 36},
    {120, 26, 120, 36}, {133, 26, 133, 36}, {146, 26, 146, 36}, {159, 26, 159, 36},
    {91, 36, 91, 46},   {112, 36, 112, 46}, {124, 36, 124, 46}, {179, 36, 179, 46},
};

/// A box of a tax regime, 3 mm high, and the letter that marks it.
struct FilaRegimen {
    const char* propiedad;
    Letra DatosParticipe::*regimen;
    char16_t letra;
    bool minuscula;  ///< the small letter marks too
    float xMarca, yMarca;
    float xCuadro, yCuadro;
};
inline void PrintTo(const FilaRegimen& fila, std::ostream* salida) {
    *salida << fila.propiedad << static_cast<char>(fila.letra);
}
#define PADRAL_REGIMEN(propiedad) #propiedad, &DatosParticipe::propiedad
inline const FilaRegimen regimenes[] = {
    {PADRAL_REGIMEN(EdIRPF), u'O', true, 61, 17.6F, 60.4F, 16.5F},
    {PADRAL_REGIMEN(EdIRPF), u'R', true, 76, 17.6F, 75.4F, 16.5F},
    {PADRAL_REGIMEN(EqIRPF), u'O', false, 61, 20.6F, 60.4F, 19.5F},
    {PADRAL_REGIMEN(EqIRPF), u'R', false, 76, 20.6F, 75.4F, 19.5F},
    {PADRAL_REGIMEN(SimplifIVA), u'A', true, 122, 17.6F, 121.4F, 16.5F},
    {PADRAL_REGIMEN(SimplifIVA), u'R', true, 137, 17.6F, 136.4F, 16.5F},
    {PADRAL_REGIMEN(Agric), u'A', false, 122, 20.6F, 121.4F, 19.5F},
    {PADRAL_REGIMEN(Agric), u'R', false, 137, 20.6F, 136.4F, 19.5F},
};
#undef PADRAL_REGIMEN

inline const std::vector<FilaTexto> textosParticipe = {
    {9, 12, 0, 6, false, true, u"Partaidetza"},
    {9, 14, 0, 6, false, true, u"kuota edo %"},
    {9, 16.5F, 0, 6, false, false, u"Cuota o % de"},
    {9, 18.5F, 0, 6, false, false, u"participación"},
    {28, 16, 0, 6, false, true, u"PFEZren ZZ erraztua. Erraztua"},
    {28, 18, 0, 6, false, false, u"E.D. Simplificada IRPF"},
    {28, 20, 0, 6, false, true, u" ZO, moduluak bidezko Z.O."},
    {28, 22.5F, 0, 6, false, false, u"E.O. Módulos IRPF"},
    {89, 16, 0, 6, false, true, u"BEZren erreg. erraztua"},
    {89, 18, 0, 6, false, false, u"Reg. Simplif. IVA"},
    {89, 20, 0, 6, false, true, u"Nek. Abel. eta Ar. Erreg."},
    {89, 22, 0, 6, false, false, u"Reg. Agr. Gan. y Pesca"},
    // Above the boxes, in the middle of their columns: 60, 77, 122, 139.
    {52, 11.2F, 16, 6, false, true, u"AUKERATZEA"},
    {52, 13.3F, 16, 6, false, false, u"OPCIÓN"},
    {69, 11.2F, 16, 6, false, true, u"ATZERA EGITEA"},
    {69, 13.3F, 16, 6, false, false, u"REVOCACIÓN"},
    {114, 11.2F, 16, 6, false, true, u"UKO EGITEA"},
    {114, 13.3F, 16, 6, false, false, u"RENUNCIA"},
    {131, 11.2F, 16, 6, false, true, u"ATZERA EGITEA"},
    {131, 13.3F, 16, 6, false, false, u"REVOCACIÓN"},
};

inline const std::vector<FilaPar> paresParticipe = {
    {9, 1.5F, 0, 6, false, u"IFZ", u"N.I.F."},
    {49, 1.5F, 0, 6, false, u"Deiturak eta izena, edo sozietatearen izena",
     u"Apellidos y nombre, o Razón Social"},
    {163, 1.5F, 0, 6, false, u"Nazionalitatea", u"Nacionalidad"},
    {150, 12.5F, 0, 6, false, u"Sinadura", u"Firma"},
    {19, 27.5F, 0, 6, false, u"Helbidea: kalea edo plaza", u"Domicilio: Calle o Plaza"},
    {95, 27.5F, 0, 6, false, u"Zk.", u"Nº"},
    {108, 27.5F, 0, 6, false, u"Letra", u"Letra"},
    {121, 27.5F, 0, 6, false, u"Esk.", u"Escal."},
    {134, 27.5F, 0, 6, false, u"Oina", u"Piso"},
    {147, 27.5F, 0, 5, false, u"Aldea", u"Mano"},
    {160, 27.5F, 0, 6, false, u"Telefonoa", u"Teléfono"},
    {19, 37.5F, 0, 6, false, u"Udalerria", u"Municipio"},
    {92, 37.5F, 0, 5, false, u"Posta kod.", u"Cod. Postal"},
    {112.5F, 37.5F, 0, 5, false, u"Gakoa", u"Clave"},
    {125, 37.5F, 0, 6, false, u"Probintzia", u"Provincia"},
    {180, 37.5F, 0, 5, false, u"Gakoa", u"Clave"},
};

inline BloqueEsperado ParticipeEsperado(float tope) {
    BloqueEsperado b = {.nombre = "participant",
                        .origen = tope,
                        .marcoGrueso = {0, 0, 193, 46},
                        .rayas = rayasParticipe,
                        .numeros = {},
                        .marcos = {},
                        .textos = textosParticipe,
                        .pares = paresParticipe,
                        .romana = true};
    for (const auto& r : regimenes)
        b.marcos.push_back({r.xCuadro, r.yCuadro, r.xCuadro + 3, r.yCuadro + 3});
    return b;
}

}  // namespace padral::test
