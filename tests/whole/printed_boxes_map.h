#pragma once
// Where the form has its values: millimetres from the origin of each block.

#include <array>

namespace padral::pruebas {

struct CasillaDelMapa {
    const char16_t* nombre;
    float x, y;
    enum Lugar { EnPunto, HastaPunto, EnMedio } lugar = EnPunto;
};

// Identification: pages 1, 2 and 4, then the annexes.
inline constexpr std::array IdentificacionDelMapa{CasillaDelMapa{u"1", 2, 9},
                                                  CasillaDelMapa{u"2", 41, 9}};
inline constexpr std::array IdentificacionDeAnexo{CasillaDelMapa{u"1", 2, 9},
                                                  CasillaDelMapa{u"2", 40, 9}};

// Page 1.
inline constexpr std::array CausaDelMapa{
    CasillaDelMapa{u"3", 32, 9.5F},       CasillaDelMapa{u"4", 32, 18},
    CasillaDelMapa{u"5", 32, 30.5F},      CasillaDelMapa{u"6", 147.5F, 9.5F},
    CasillaDelMapa{u"7", 147.5F, 13.5F},  CasillaDelMapa{u"8", 147.5F, 17.5F},
    CasillaDelMapa{u"9", 147.5F, 21.5F},  CasillaDelMapa{u"10", 147.5F, 25.5F},
    CasillaDelMapa{u"11", 147.5F, 29.5F}, CasillaDelMapa{u"130", 147.5F, 33.5F},
    CasillaDelMapa{u"12", 148, 41.5F},    CasillaDelMapa{u"13", 82, 43}};
inline constexpr std::array SolicitudDelMapa{
    CasillaDelMapa{u"200", 82, 13.5F},     CasillaDelMapa{u"206", 72, 17.5F},
    CasillaDelMapa{u"201", 82, 21.5F},     CasillaDelMapa{u"202", 82, 25.5F},
    CasillaDelMapa{u"203", 183.5F, 13.5F}, CasillaDelMapa{u"207", 173.5F, 17.5F},
    CasillaDelMapa{u"204", 183.5F, 17.5F}, CasillaDelMapa{u"205", 183.5F, 25.5F}};
// The longest reason begins further left.
inline constexpr std::array ModificacionDelMapa{
    CasillaDelMapa{u"210", 2, 39}, CasillaDelMapa{u"211", 49, 39},
    CasillaDelMapa{u"212", 151.5F, 39}, CasillaDelMapa{u"212", 150, 39}};
inline constexpr std::array ObligadoDelMapa{
    CasillaDelMapa{u"51", 2, 9}, CasillaDelMapa{u"52", 48.5F, 9}, CasillaDelMapa{u"53", 2, 17},
    CasillaDelMapa{u"54", 79, 17}};

// Page 2. The second row of the fiscal domicile stands 1 mm higher than those of the others.
template <std::size_t n>
constexpr std::array<CasillaDelMapa, 13> DomicilioDelMapa(
    const std::array<const char16_t*, n>& nombres, float segunda) {
    static_assert(n == 13);
    return {{{nombres[0], 1, 16},
             {nombres[1], 80.5F, 16},
             {nombres[2], 99.5F, 16},
             {nombres[3], 117, 16},
             {nombres[4], 133, 16},
             {nombres[5], 147.5F, 16},
             {nombres[6], 163.5F, 16},
             {nombres[7], 1, segunda},
             {nombres[8], 83.5F, segunda},
             {nombres[9], 112, segunda},
             {nombres[10], 134, segunda},
             {nombres[11], 174, segunda},
             {nombres[12], 181, 5.5F}}};
}
inline constexpr auto FiscalDelMapa =
    DomicilioDelMapa(std::array{u"29", u"30", u"31", u"32", u"33", u"34", u"35", u"36", u"37",
                                u"36k", u"38", u"38k", u"(none)"},
                     24);
inline constexpr auto SocialDelMapa =
    DomicilioDelMapa(std::array{u"131", u"132", u"133", u"134", u"135", u"136", u"137", u"138",
                                u"139", u"138k", u"140", u"140k", u"same.social"},
                     25);
inline constexpr auto ActividadDelMapa =
    DomicilioDelMapa(std::array{u"141", u"142", u"143", u"144", u"145", u"146", u"147", u"148",
                                u"149", u"148k", u"150", u"150k", u"same.activity"},
                     25);
inline constexpr auto NotificacionDelMapa =
    DomicilioDelMapa(std::array{u"151", u"152", u"153", u"154", u"155", u"156", u"157", u"158",
                                u"159", u"158k", u"160", u"160k", u"same.notice"},
                     25);
inline constexpr std::array Apartado3DelMapa{
    CasillaDelMapa{u"24S", 67, 9.5F},
    CasillaDelMapa{u"24N", 84, 9.5F},
    CasillaDelMapa{u"25", 187, 9, CasillaDelMapa::HastaPunto},
    CasillaDelMapa{u"26", 2, 23},
    CasillaDelMapa{u"27", 98, 22.5F},
    CasillaDelMapa{u"28", 133, 22.5F},
    CasillaDelMapa{u"251E", 27.5F, 30},
    CasillaDelMapa{u"251C", 71.5F, 30},
    CasillaDelMapa{u"252P", 125.5F, 30},
    CasillaDelMapa{u"252E", 166.5F, 30},
    CasillaDelMapa{u"253A", 12, 40.5F},
    CasillaDelMapa{u"253B", 22, 40.5F},
    CasillaDelMapa{u"254", 36, 40.5F},
    CasillaDelMapa{u"255A", 108, 40.5F},
    CasillaDelMapa{u"255B", 118, 40.5F},
    CasillaDelMapa{u"256", 132, 40.5F},
    CasillaDelMapa{u"257A", 12, 50.5F},
    CasillaDelMapa{u"257B", 22, 50.5F},
    CasillaDelMapa{u"258", 36, 50.5F},
    CasillaDelMapa{u"259A", 108.5F, 50.5F},
    CasillaDelMapa{u"259B", 118.5F, 50.5F},
    CasillaDelMapa{u"260", 132, 50.5F},
    CasillaDelMapa{u"262", 166, 61},
    CasillaDelMapa{u"263", 166, 72},
    CasillaDelMapa{u"261S", 121, 78},
    CasillaDelMapa{u"261N", 135, 78},
    CasillaDelMapa{u"264", 155.5F, 83.5F},
    CasillaDelMapa{u"49", 2, 97},
    CasillaDelMapa{u"50", 93.5F, 97}};

// Page 3.
inline constexpr std::array TiraDelMapa{CasillaDelMapa{u"1", 2, 5}, CasillaDelMapa{u"2", 44, 5},
                                        CasillaDelMapa{u"ref", 155.5F, 5}};
inline constexpr std::array Apartado4DelMapa{
    CasillaDelMapa{u"75", 159, 13},
    CasillaDelMapa{u"76", 187, 13},
    CasillaDelMapa{u"161", 159, 17},
    CasillaDelMapa{u"162", 187, 17},
    CasillaDelMapa{u"60", 141, 28},
    CasillaDelMapa{u"61", 161, 28},
    CasillaDelMapa{u"62", 181, 28},
    CasillaDelMapa{u"169", 141, 37},
    CasillaDelMapa{u"170", 159, 37},
    CasillaDelMapa{u"171", 181, 37},
    CasillaDelMapa{u"173", 141, 43},
    CasillaDelMapa{u"174", 159, 43},
    CasillaDelMapa{u"175", 181, 43},
    CasillaDelMapa{u"66", 141, 50},
    CasillaDelMapa{u"67", 159, 50},
    CasillaDelMapa{u"68", 181, 50},
    CasillaDelMapa{u"69", 141, 54},
    CasillaDelMapa{u"70", 159, 54},
    CasillaDelMapa{u"71", 181, 54},
    CasillaDelMapa{u"80", 159, 63},
    CasillaDelMapa{u"81", 187, 63},
    CasillaDelMapa{u"83", 159, 67},
    CasillaDelMapa{u"84", 187, 67},
    CasillaDelMapa{u"SONF.O", 159, 86},
    CasillaDelMapa{u"SONF.R", 187, 86},
    CasillaDelMapa{u"entity.NIF", 37, 76, CasillaDelMapa::EnMedio},
    CasillaDelMapa{u"entity.name", 97, 76, CasillaDelMapa::EnMedio}};
struct PreguntaDelMapa {
    const char16_t* numero;
    float y;
};
/// Each with "S" at 176 and "N" at 187.
inline constexpr std::array PreguntasDelMapa{
    PreguntaDelMapa{u"89", 9},    PreguntaDelMapa{u"90", 13},   PreguntaDelMapa{u"163", 17},
    PreguntaDelMapa{u"91", 21},   PreguntaDelMapa{u"164", 25},  PreguntaDelMapa{u"165", 29},
    PreguntaDelMapa{u"166", 33},  PreguntaDelMapa{u"167", 37},  PreguntaDelMapa{u"93", 45},
    PreguntaDelMapa{u"94", 49},   PreguntaDelMapa{u"98", 57},   PreguntaDelMapa{u"100", 61},
    PreguntaDelMapa{u"102", 73},  PreguntaDelMapa{u"103", 81},  PreguntaDelMapa{u"104", 85},
    PreguntaDelMapa{u"105", 89},  PreguntaDelMapa{u"107", 97},  PreguntaDelMapa{u"108", 101},
    PreguntaDelMapa{u"109", 105}, PreguntaDelMapa{u"110", 109}, PreguntaDelMapa{u"172", 113},
    PreguntaDelMapa{u"168", 117}, PreguntaDelMapa{u"112", 125}, PreguntaDelMapa{u"113", 129},
    PreguntaDelMapa{u"114", 133}, PreguntaDelMapa{u"115", 137}};

// Page 4. A free cause stands above the place of one of the catalogue.
inline constexpr std::array CeseDelMapa{
    CasillaDelMapa{u"cessation", 9, 11.5F}, CasillaDelMapa{u"register", 50, 11.5F},
    CasillaDelMapa{u"cause", 85, 12}, CasillaDelMapa{u"free cause", 85, 9}};
/// Columns of the states; 27 rows, 4 mm apart.
inline constexpr std::array ColumnasDelMapa{
    CasillaDelMapa{u"118", 49, 38}, CasillaDelMapa{u"119", 69, 38}, CasillaDelMapa{u"120", 125, 38},
    CasillaDelMapa{u"121", 152, 38}};
inline constexpr std::array Apartado7DelMapa{
    CasillaDelMapa{u"122", 159, 165}, CasillaDelMapa{u"123", 159, 172},
    CasillaDelMapa{u"124", 159, 180}, CasillaDelMapa{u"125", 132, 193},
    CasillaDelMapa{u"126", 157, 193}, CasillaDelMapa{u"127", 132, 207},
    CasillaDelMapa{u"128", 157, 207}};

// Annex I, one of its five rows.
inline constexpr std::array FilaDeAnexoI{
    CasillaDelMapa{u"NIF", 9, 5},           CasillaDelMapa{u"name", 49, 5},
    CasillaDelMapa{u"share", 9, 22},        CasillaDelMapa{u"ED.O", 61, 17.6F},
    CasillaDelMapa{u"ED.R", 76, 17.6F},     CasillaDelMapa{u"EO.O", 61, 20.6F},
    CasillaDelMapa{u"EO.R", 76, 20.6F},     CasillaDelMapa{u"IVA.A", 122, 17.6F},
    CasillaDelMapa{u"IVA.R", 137, 17.6F},   CasillaDelMapa{u"agr.A", 122, 20.6F},
    CasillaDelMapa{u"agr.R", 137, 20.6F},   CasillaDelMapa{u"street", 19, 31},
    CasillaDelMapa{u"number", 95, 31},      CasillaDelMapa{u"letter", 108, 31},
    CasillaDelMapa{u"stair", 121, 31},      CasillaDelMapa{u"floor", 134, 31},
    CasillaDelMapa{u"door", 147, 31},       CasillaDelMapa{u"phone", 163, 31},
    CasillaDelMapa{u"town", 19, 41},        CasillaDelMapa{u"post", 92, 41},
    CasillaDelMapa{u"townkey", 113, 41},    CasillaDelMapa{u"province", 125.25F, 41},
    CasillaDelMapa{u"provincekey", 180, 41}};

// Annex II.
inline constexpr std::array ExtranjeroDelMapa{
    CasillaDelMapa{u"169", 3, 16},          CasillaDelMapa{u"170", 3, 25.5F},
    CasillaDelMapa{u"171", 61, 25.5F},      CasillaDelMapa{u"172", 132, 25.5F},
    CasillaDelMapa{u"173S", 166.5F, 32.5F}, CasillaDelMapa{u"173N", 186.5F, 32.5F},
    CasillaDelMapa{u"174", 9.5F, 44.5F},    CasillaDelMapa{u"175", 76.5F, 44.5F},
    CasillaDelMapa{u"176", 118.5F, 44.5F},  CasillaDelMapa{u"177", 146, 54.5F}};
inline constexpr std::array RepresentanteDelMapa{
    CasillaDelMapa{u"178", 3, 12.5F},   CasillaDelMapa{u"179", 43, 12.5F},
    CasillaDelMapa{u"180", 153, 12.5F}, CasillaDelMapa{u"181", 3, 22.5F},
    CasillaDelMapa{u"182", 108, 22.5F}, CasillaDelMapa{u"183", 153, 22.5F}};
inline constexpr std::array ObligacionesDelMapa{
    CasillaDelMapa{u"184S", 166.5F, 17.5F}, CasillaDelMapa{u"184N", 186.5F, 17.5F},
    CasillaDelMapa{u"185S", 166.5F, 32.5F}, CasillaDelMapa{u"185N", 186.5F, 32.5F}};
inline constexpr std::array OpcionesDelMapa{CasillaDelMapa{u"186", 166.5F, 24.5F},
                                            CasillaDelMapa{u"188", 164, 45.5F}};

}  // namespace padral::pruebas
