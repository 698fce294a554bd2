// The rules of the general data: each alone, with its message and focus, and their order.

#include "declaration/general_rules.h"

#include "declaration/full_declaration.h"

namespace padral::pruebas {
namespace {

using G = cDatosGenerales;
using Cambio = void (*)(G&);

struct Esperada {
    int texto, titulo;
    const char16_t* foco;
    bool pestana;
};

/// Rule 1 first. Some texts and titles are the same for several rules.
constexpr Esperada Esperadas[] = {
    {454, 158, u"txtDNI", false},
    {453, 158, u"txtDNI", false},
    {811, 449, u"mskFechaConst", false},
    {673, 449, u"", false},
    {448, 449, u"", false},
    {450, 449, u"", false},
    {451, 449, u"", false},
    {452, 158, u"txtDNI", false},
    {455, 158, u"txtDNI", false},
    {456, 158, u"txtDNI", false},
    {457, 158, u"txtDNI", false},
    {458, 158, u"txtDNI", false},
    {832, 158, u"txtDNI", false},
    {833, 158, u"txtDNI", false},
    {834, 158, u"txtDNI", false},
    {459, 158, u"txtDNI", false},
    {460, 461, u"chkApartado8", false},
    {462, 463, u"chkDeclaracionPrevia", false},
    {776, 465, u"mskFechaInscrip", false},
    {464, 465, u"mskFechaModificacion", false},
    {466, 465, u"mskFechaModificacion", false},
    {467, 468, u"", false},
    {469, 125, u"", true},
    {470, 125, u"txtDNIAnterior", true},
    {471, 125, u"", true},
    {472, 125, u"", true},
    {473, 125, u"", true},
    {476, 125, u"", true},
    {478, 125, u"txtDNIAnterior", true},
    {479, 480, u"txtDNIRepresentante", false},
    {481, 480, u"txtDNIRepresentante", false},
};

/// A record whose first broken rule is `regla`, and one that differs from it in a field, whose
/// first broken rule is `enVecino`, 0 none.
struct Caso {
    int regla;
    Cambio rompe;
    Cambio vecino;
    int enVecino = 0;
};

#define CON(...) [](G& g) { __VA_ARGS__; }
#define T(texto) QStringLiteral(texto)

const Caso Casos[] = {
    {1, CON(g.DNI = T("")), CON(g.DNI = T("A12345674"))},
    {1, CON(g.DNI = T("   ")), CON(g.DNI = T("E12345674"))},
    {1, CON(g.DNI = T(""); g.FechaConstitucion = 20150101), CON(g.Causa2 = T("A"))},
    {1, CON(g.DNI = T(""); g.Causa2 = T("D")), CON(g.Causa2 = T("A")), 3},
    {2, CON(g.Causa2 = T("A"); g.FechaConstitucion = 20150101), CON(g.DNI = T(""))},
    {2, CON(g.Causa2 = T("A")), CON(g.DNI = T("")), 3},
    {2, CON(g.Causa2 = T("A")), CON(g.Causa2 = T("F"))},
    {3, CON(g.DNI = T(""); g.Causa2 = T("A")), CON(g.FechaConstitucion = 20150101)},
    {4, CON(g.DNI = T("12345678Z"); g.Causa2 = T("D")), CON(g.Causa2 = T(""))},
    {4, CON(g.DNI = T("12345678Z"); g.Causa2 = T("D")), CON(g.DNI = T("A12345674"))},
    {4, CON(g.DNI = T("X1234567L"); g.Causa2 = T("E")), CON(g.DNI = T("E12345674"))},
    {5, CON(g.DNI = T(""); g.Causa2 = T("A"); g.FechaConstitucion = 20150101; g.Causa1 = T("C")),
     CON(g.Causa1 = T("P"))},
    {5, CON(g.DNI = T(""); g.Causa2 = T("A"); g.FechaConstitucion = 20150101; g.Causa1 = T("M")),
     CON(g.Causa1 = T(""))},
    {6, CON(g.Causa2 = T("B"); g.Causa1 = T("C")), CON(g.Causa1 = T("M")), 20},
    {6, CON(g.Causa2 = T("B")), CON(g.Causa1 = T(""))},
    {6, CON(g.Causa2 = T("B"); g.Causa1 = T("P")), CON(g.Causa2 = T("D"))},
    {7, CON(g.Causa2 = T("C"); g.Causa1 = T("M")), CON(g.Causa1 = T("C"))},
    {7, CON(g.Causa2 = T("C")), CON(g.Causa2 = T(""))},
    {7, CON(g.Causa2 = T("C"); g.Causa1 = T("P")), CON(g.Causa2 = T("F"))},
    {9, CON(g.DNI = T(""); g.Causa2 = T("A"); g.FechaConstitucion = 20150101; g.MotivoCambio = 20),
     CON(g.MotivoCambio = 0)},
    {10, CON(g.MotivoCambio = 30; g.DNIAnterior = T("B12345675")),
     CON(g.DNIAnterior = T("B12345674"))},
    {10, CON(g.MotivoCambio = 30; g.DNIAnterior = T("B22345674")),
     CON(g.DNIAnterior = T("B12345674"))},
    {10, CON(g.MotivoCambio = 30), CON(g.DNIAnterior = T("A12345674")), 11},
    {11, CON(g.MotivoCambio = 30; g.DNIAnterior = T("A12345674")),
     CON(g.DNIAnterior = T("B12345674"))},
    {12, CON(g.MotivoCambio = 30; g.DNIAnterior = T("X12345674")),
     CON(g.DNIAnterior = T("H12345674"))},
    {12, CON(g.MotivoCambio = 30; g.DNI = T("112345674"); g.DNIAnterior = T("B12345674")),
     CON(g.DNI = T("J12345674"))},
    {13, CON(g.MotivoCambio = 30; g.DNIAnterior = T("B12345674"); g.DNI = T("N12345674")),
     CON(g.DNI = T("V12345674"))},
    {14, CON(g.MotivoCambio = 30; g.DNIAnterior = T("W12345674")), CON(g.DNI = T("N12345674"))},
    {15, CON(g.MotivoCambio = 30; g.DNIAnterior = T("Q12345674")), CON(g.DNI = T("R12345674"))},
    {16, CON(g.MotivoCambio = 31; g.DNI = T("12345678Z"); g.NombreAnterior = T("OTRO")),
     CON(g.DNI = T("A12345674"))},
    {17, CON(g.AnexoI = T("X"); g.DNI = T("F12345674")), CON(g.DNI = T("U12345674"))},
    {17, CON(g.AnexoI = T("X"); g.DNI = T("F12345674")), CON(g.AnexoI = T(" "))},
    {17, CON(g.AnexoI = T("X"); g.DNI = T("12345678Z")), CON(g.DNI = T("E12345674"))},
    {17, CON(g.AnexoI = T("X"); g.DNI = T("N1234567D")), CON(g.DNI = T("B12345674"))},
    {18, CON(g.Causa1 = T("")), CON(g.Causa1 = T("P"))},
    {18, CON(g.Causa1 = T(" "); g.Causa2 = T(" ")), CON(g.Causa2 = T("D"))},
    {19, CON(g.Causa2 = T("E")), CON(g.FechaInscripcion = 20150101)},
    {19, CON(g.Causa2 = T("E")), CON(g.DNI = T("J12345674"))},
    {19, CON(g.Causa2 = T("E")), CON(g.Causa2 = T("F"))},
    {20, CON(g.Causa1 = T("M")), CON(g.FechaModificacion(20150101))},
    {20, CON(g.Causa1 = T("M")), CON(g.Causa1 = T("C"))},
    {21, CON(g.FechaModificacion(20150101)), CON(g.Causa1 = T("M"))},
    {21, CON(g.FechaModificacion(20150101); g.Causa1 = T("C")), CON(g.FechaModificacion(0))},
    {22, CON(g.Causa1 = T("C"); g.MotivoCambio = 20; g.NombreAnterior = T("OTRO")),
     CON(g.MotivoCambio = 10)},
    {22, CON(g.Causa1 = T("C"); g.MotivoCambio = 31; g.NombreAnterior = T("OTRO")),
     CON(g.Causa1 = T("P"))},
    {22, CON(g.Causa1 = T("C"); g.MotivoCambio = 30; g.DNIAnterior = T("B12345674")),
     CON(g.Causa1 = T("I"))},
    {23, CON(g.DNIAnterior = T("B12345674")), CON(g.DNIAnterior = T(" "))},
    {23, CON(g.NombreAnterior = T("OTRO")), CON(g.MotivoCambio = 20)},
    {24, CON(g.MotivoCambio = 10), CON(g.NombreAnterior = T("OTRO"))},
    {24, CON(g.MotivoCambio = 10), CON(g.DNIAnterior = T("B12345674"))},
    {25, CON(g.MotivoCambio = 10; g.DNIAnterior = T("A12345674")),
     CON(g.DNIAnterior = T("B12345674"))},
    {26, CON(g.MotivoCambio = 10; g.NombreAnterior = T("NOMBRE")), CON(g.NOMBRE = T("OTRO"))},
    {27, CON(g.MotivoCambio = 20), CON(g.NombreAnterior = T("OTRO"))},
    {27, CON(g.MotivoCambio = 20; g.NombreAnterior = T("NOMBRE")), CON(g.NOMBRE = T("OTRO"))},
    {27, CON(g.MotivoCambio = 20; g.NombreAnterior = T("OTRO"); g.DNIAnterior = T("B12345674")),
     CON(g.DNIAnterior = T(""))},
    {28, CON(g.MotivoCambio = 30; g.DNIAnterior = T("B12345674"); g.NombreAnterior = T("NOMBRE")),
     CON(g.NombreAnterior = T(""))},
    {29, CON(g.MotivoCambio = 31), CON(g.NombreAnterior = T("OTRO"))},
    {29, CON(g.MotivoCambio = 31; g.NombreAnterior = T("NOMBRE")), CON(g.NOMBRE = T("OTRO"))},
    {29, CON(g.MotivoCambio = 31; g.NombreAnterior = T("OTRO"); g.DNIAnterior = T("B12345674")),
     CON(g.DNIAnterior = T(""))},
    {30, CON(g.ElMismo = T(""); g.NombreRepresentante = T("R"); g.FirmaEnCalidadDe = T("ADMIN")),
     CON(g.DNIRepresentante = T("12345678Z"))},
    {30,
     CON(g.ElMismo = T(""); g.DNIRepresentante = T("12345678Z"); g.FirmaEnCalidadDe = T("ADMIN")),
     CON(g.NombreRepresentante = T("R"))},
    {30,
     CON(g.ElMismo = T(""); g.DNIRepresentante = T("12345678Z"); g.NombreRepresentante = T("R");
         g.FirmaEnCalidadDe = T(" ")),
     CON(g.FirmaEnCalidadDe = T("ADMIN"))},
    {31, CON(g.DNIRepresentante = T("12345678Z")), CON(g.DNIRepresentante = T(""))},
    {31, CON(g.NombreRepresentante = T("R")), CON(g.NombreRepresentante = T(" "))},
    {31, CON(g.FirmaEnCalidadDe = T("OTRA")), CON(g.FirmaEnCalidadDe = T("EL MISMO"))},
};

class ReglaDeCausas : public ::testing::TestWithParam<Caso> {
protected:
    void SetUp() override { generalesValidos(g); }
    int primera() const {
        const auto* regla = PrimeraCausaRota(g);
        return regla ? regla->numero : 0;
    }
    EstadoDeclaracion estado;
    G g{estado};
};

TEST_P(ReglaDeCausas, SeRompeSolaYSuVecinoNo) {
    const auto& [regla, rompe, vecino, enVecino] = GetParam();
    ASSERT_EQ(primera(), 0) << "the record that all start from breaks none";
    rompe(g);
    EXPECT_EQ(primera(), regla);
    vecino(g);
    EXPECT_EQ(primera(), enVecino);
    EXPECT_TRUE(enVecino == 0 || enVecino > regla);
}
INSTANTIATE_TEST_SUITE_P(Filas, ReglaDeCausas, ::testing::ValuesIn(Casos));

using Causas = ReglaDeCausas;

TEST(TablaDeCausas, TreintaYUnaEnSuOrdenConTextoTituloYFoco) {
    const auto reglas = ReglasCausas();
    ASSERT_EQ(reglas.size(), 31U);
    for (std::size_t i = 0; i < reglas.size(); ++i) {
        SCOPED_TRACE(i + 1);
        EXPECT_EQ(reglas[i].numero, static_cast<int>(i) + 1);
        EXPECT_EQ(reglas[i].texto, Esperadas[i].texto);
        EXPECT_EQ(reglas[i].titulo, Esperadas[i].titulo);
        EXPECT_EQ(q(reglas[i].foco), q(Esperadas[i].foco));
        EXPECT_EQ(reglas[i].pestanaModif, Esperadas[i].pestana);
    }
}

TEST(TablaDeCausas, TodasTienenCasoSalvoLaQueOtraTapaSiempre) {
    std::array<int, 32> casos{};
    for (const auto& caso : Casos) ++casos[static_cast<std::size_t>(caso.regla)];
    for (std::size_t i = 1; i < casos.size(); ++i) EXPECT_EQ(casos[i] == 0, i == 8) << i;
}

struct Octava {
    const char16_t *dni, *causa1, *causa2;
    bool rota;
    int primera;  ///< an earlier rule tells it: 1, or 5 with a request of an identifier
};
class ReglaOcho : public ::testing::TestWithParam<Octava> {};

TEST_P(ReglaOcho, SinNifEnCeseOModificacion) {
    const auto& [dni, causa1, causa2, rota, primera] = GetParam();
    EstadoDeclaracion estado;
    G g{estado};
    generalesValidos(g);
    g.FechaConstitucion = 20150101;
    g.DNI = q(dni);
    g.Causa1 = q(causa1);
    g.Causa2 = q(causa2);
    EXPECT_EQ(ReglasCausas()[7].rota(g), rota);
    const auto* regla = PrimeraCausaRota(g);
    EXPECT_EQ(regla ? regla->numero : 0, primera);
}
INSTANTIATE_TEST_SUITE_P(
    Filas, ReglaOcho,
    ::testing::Values(Octava{u"", u"C", u"", true, 1}, Octava{u" ", u"M", u"D", true, 1},
                      Octava{u"", u"C", u"A", true, 5}, Octava{u"", u"M", u"A", true, 5},
                      Octava{u"", u"I", u"A", false, 0}, Octava{u"", u"P", u"A", false, 0},
                      Octava{u"A12345674", u"C", u"", false, 0}));

/// The groups that a change of identifier may not leave.
struct Grupo {
    QStringView letras;
    int regla;
};
class GrupoDeLetras : public ::testing::TestWithParam<Grupo> {};

TEST_P(GrupoDeLetras, NoSeDejaConMotivo30) {
    const auto [letras, numero] = GetParam();
    EstadoDeclaracion estado;
    G g{estado};
    generalesValidos(g);
    for (const QChar de : QStringView(u"ABCDEFGHJNPQRSUVW"))
        for (const QChar a : QStringView(u"ABCDEFGHJNPQRSUVW")) {
            g.MotivoCambio = 30;
            g.DNIAnterior = de + QStringLiteral("12345674");
            g.DNI = a + QStringLiteral("12345674");
            const bool rota = letras.contains(de) && !letras.contains(a);
            const auto& regla = ReglasCausas()[static_cast<std::size_t>(numero - 1)];
            EXPECT_EQ(regla.rota(g), rota) << de.toLatin1() << a.toLatin1();
            g.MotivoCambio = 31;
            EXPECT_FALSE(regla.rota(g));
        }
}
INSTANTIATE_TEST_SUITE_P(Filas, GrupoDeLetras,
                         ::testing::Values(Grupo{u"ABCDEFGHUJV", 13}, Grupo{u"NW", 14},
                                           Grupo{u"QR", 15}));

}  // namespace
}  // namespace padral::pruebas
