// A broken rule on the screen: its message, the tab that comes to the front, the focus.

#include "declaration/screen_fixture.h"

namespace padral::pruebas {
namespace {

using G = cDatosGenerales;

struct CasoRegla {
    int texto, titulo;
    const char16_t* foco;  ///< u"" stays on the button
    bool segundaPestana;
    void (*rompe)(G&);
};

#define CON(...) [](G& g) { __VA_ARGS__; }
#define T(texto) QStringLiteral(texto)

const CasoRegla Casos[] = {
    {454, 158, u"txtDNI", false, CON(g.DNI = T(""))},
    {453, 158, u"txtDNI", false, CON(g.Causa2 = T("A"))},
    {811, 449, u"mskFechaConst", false, CON(g.DNI = T(""); g.Causa2 = T("A"))},
    {673, 449, u"", false, CON(g.DNI = T("12345678Z"); g.Causa2 = T("D"))},
    {448, 449, u"", false,
     CON(g.DNI = T(""); g.Causa2 = T("A"); g.FechaConstitucion = 20150101; g.Causa1 = T("C"))},
    {450, 449, u"", false, CON(g.Causa2 = T("B"))},
    {451, 449, u"", false, CON(g.Causa2 = T("C"))},
    {455, 158, u"txtDNI", false,
     CON(g.DNI = T(""); g.Causa2 = T("A"); g.FechaConstitucion = 20150101; g.MotivoCambio = 20)},
    {456, 158, u"txtDNI", false, CON(g.MotivoCambio = 30)},
    {457, 158, u"txtDNI", false, CON(g.MotivoCambio = 30; g.DNIAnterior = T("A12345674"))},
    {458, 158, u"txtDNI", false, CON(g.MotivoCambio = 30; g.DNIAnterior = T("X12345674"))},
    {833, 158, u"txtDNI", false, CON(g.MotivoCambio = 30; g.DNIAnterior = T("W12345674"))},
    {834, 158, u"txtDNI", false, CON(g.MotivoCambio = 30; g.DNIAnterior = T("Q12345674"))},
    {459, 158, u"txtDNI", false,
     CON(g.MotivoCambio = 31; g.DNI = T("12345678Z"); g.NombreAnterior = T("OTRO"))},
    {460, 461, u"chkApartado8", false, CON(g.AnexoI = T("X"); g.DNI = T("F12345674"))},
    {462, 463, u"chkDeclaracionPrevia", false, CON(g.Causa1 = T(""))},
    {776, 465, u"mskFechaInscrip", false, CON(g.Causa2 = T("E"))},
    {464, 465, u"mskFechaModificacion", false, CON(g.Causa1 = T("M"))},
    {467, 468, u"", false,
     CON(g.Causa1 = T("C"); g.MotivoCambio = 20; g.NombreAnterior = T("OTRO"))},
    {470, 125, u"txtDNIAnterior", true, CON(g.MotivoCambio = 10)},
    {471, 125, u"", true, CON(g.MotivoCambio = 10; g.DNIAnterior = T("A12345674"))},
    {472, 125, u"", true, CON(g.MotivoCambio = 10; g.NombreAnterior = T("NOMBRE"))},
    {473, 125, u"", true, CON(g.MotivoCambio = 20)},
    {476, 125, u"", true,
     CON(g.MotivoCambio = 30; g.DNIAnterior = T("B12345674"); g.NombreAnterior = T("NOMBRE"))},
    {478, 125, u"txtDNIAnterior", true, CON(g.MotivoCambio = 31)},
    {479, 480, u"txtDNIRepresentante", false, CON(g.ElMismo = T(""); g.FirmaEnCalidadDe = T(""))},
};

class ReglaEnPantalla : public PantallaGeneral, public ::testing::WithParamInterface<CasoRegla> {
protected:
    void SetUp() override {
        PantallaGeneral::SetUp();
        generalesValidos(g);
        GetParam().rompe(g);
        g.Apartado2 = QStringLiteral("X");
        abrirRegistro();
    }
};

TEST_P(ReglaEnPantalla, MensajePestanaYFoco) {
    const auto& caso = GetParam();
    esperaAviso(caso.texto, caso.titulo);
    sinCambios([&] { pulsar(u"cmdApartado2"); });
    EXPECT_EQ(visible(u"FraModificacion"), caso.segundaPestana);
    EXPECT_EQ(visible(u"FraSolicitud"), !caso.segundaPestana);
    EXPECT_EQ(c<QTabBar>(u"Pestaña")->currentIndex(), caso.segundaPestana ? 1 : 0);
    EXPECT_EQ(foco(), q(caso.foco).isEmpty() ? QStringLiteral("cmdApartado2") : q(caso.foco));
    EXPECT_EQ(pantallas.Tomar(), QStringList());
    EXPECT_FALSE(pantallas.EnEspera());
}

TEST_P(ReglaEnPantalla, ElFocoLlegaAunqueEsteDelanteLaOtraPestana) {
    const auto& caso = GetParam();
    c<QTabBar>(u"Pestaña")->setCurrentIndex(1);
    esperaAviso(caso.texto, caso.titulo);
    pulsar(u"cmdApartado2");
    EXPECT_EQ(foco(), q(caso.foco).isEmpty() ? QStringLiteral("cmdApartado2") : q(caso.foco));
    EXPECT_TRUE(q(caso.foco).isEmpty() || visible(caso.foco));
    const bool marco = visible(u"FraModificacion");
    EXPECT_EQ(c<QTabBar>(u"Pestaña")->currentIndex(), marco ? 1 : 0);
}
INSTANTIATE_TEST_SUITE_P(Filas, ReglaEnPantalla, ::testing::ValuesIn(Casos));

struct NifMalo {
    const char16_t* foco;
    bool segundaPestana;
    void (*rompe)(G&);
};
class NifEnPantalla : public PantallaGeneral, public ::testing::WithParamInterface<NifMalo> {};

TEST_P(NifEnPantalla, SoloConCambiosPendientes) {
    for (const bool pendientes : {true, false}) {
        generalesValidos(g);
        GetParam().rompe(g);
        g.Apartado2 = QStringLiteral("X");
        estado.ModificacionesPendientes = pendientes;
        abrirRegistro();
        if (pendientes) esperaAviso(545, 158);
        pulsar(u"cmdApartado2");
        avisos.Verificar();
        EXPECT_EQ(pantallas.Tomar(), pendientes ? QStringList() : mostrar(u"FrmApartado2"));
        if (!pendientes) continue;
        EXPECT_EQ(foco(), q(GetParam().foco));
        EXPECT_EQ(visible(u"FraModificacion"), GetParam().segundaPestana);
    }
}
INSTANTIATE_TEST_SUITE_P(Filas, NifEnPantalla,
                         ::testing::Values(
                             NifMalo {
                                 u"txtDNIAnterior", true,
                                     CON(g.MotivoCambio = 10; g.DNIAnterior = T("B12345675"))
                             },
                             NifMalo {
                                 u"txtDNIRepresentante", false,
                                     CON(g.ElMismo = T(""); g.FirmaEnCalidadDe = T("ADMIN");
                                         g.NombreRepresentante = T("R");
                                         g.DNIRepresentante = T("12345678A"))
                             },
                             NifMalo{u"txtDNI", false, CON(g.DNI = T("A12345675"))}));

struct Introduccion {
    const char16_t* nombre;
    qint32 fecha;
    bool validarNombre;
    int texto, titulo;  ///< 0: valid
    const char16_t* foco;
};
class ValidacionIntroduccion : public PantallaGeneral,
                               public ::testing::WithParamInterface<Introduccion> {};

TEST_P(ValidacionIntroduccion, NombreYFecha) {
    const auto& caso = GetParam();
    generalesValidos(g);
    g.NOMBRE = q(caso.nombre);
    g.FECHADECLARACION = caso.fecha;
    abrirRegistro();
    if (caso.texto != 0) esperaAviso(caso.texto, caso.titulo);
    EXPECT_EQ(pantalla->ValidacionIntroduccionDatos(caso.validarNombre), caso.texto == 0);
    EXPECT_EQ(pantalla->NombreVacio(), q(caso.nombre).trimmed().isEmpty());
    EXPECT_EQ(foco(), q(caso.foco));
}
INSTANTIATE_TEST_SUITE_P(
    Filas, ValidacionIntroduccion,
    ::testing::Values(Introduccion{u"N", 20150101, true, 0, 0, u"txtDNI"},
                      Introduccion{u"", 20150101, true, 515, 125, u"txtNombre"},
                      Introduccion{u" ", 0, true, 515, 125, u"txtNombre"},
                      Introduccion{u"N", 0, true, 516, 517, u"mskFechaDeclaracion"},
                      Introduccion{u"", 20150101, false, 0, 0, u"txtDNI"},
                      Introduccion{u"", 0, false, 516, 517, u"mskFechaDeclaracion"}));

}  // namespace
}  // namespace padral::pruebas
