// The regimes of a participant: four pairs of exclusive boxes.

#include "participants/participant_fixture.h"

namespace padral::pruebas {
namespace {

struct Pareja {
    const char* propiedad;
    TextoFijo<1> DatosParticipe::*miembro;
    const char16_t *primera, *valorPrimera, *segunda, *valorSegunda;
    const char16_t *nombrePrimera, *nombreSegunda;  ///< for accessibility tools
};
void PrintTo(const Pareja& pareja, std::ostream* salida) { *salida << pareja.propiedad; }

const Pareja Parejas[] = {
    {"EdIRPF", &DatosParticipe::EdIRPF, u"chkEDSimplificada1", u"O", u"chkEDSimplificada2", u"R",
     u"E.D. Simplificada de I.R.P.F.: OPCIÓN", u"E.D. Simplificada de I.R.P.F.: REVOCACIÓN"},
    {"EqIRPF", &DatosParticipe::EqIRPF, u"chkEDModulos1", u"O", u"chkEDModulos2", u"R",
     u"E.O. Módulos I.R.P.F.: OPCIÓN", u"E.O. Módulos I.R.P.F.: REVOCACIÓN"},
    {"SimplifIVA", &DatosParticipe::SimplifIVA, u"ChkRegSimplificada1", u"A",
     u"ChkRegSimplificada2", u"R", u"Reg. Simplif. IVA: RENUNCIA",
     u"Reg. Simplif. IVA: REVOCACIÓN"},
    {"Agric", &DatosParticipe::Agric, u"chkRegAgraria1", u"A", u"chkRegAgraria2", u"R",
     u"Reg. Agr. Gan. y Pesca: RENUNCIA", u"Reg. Agr. Gan. y Pesca: REVOCACIÓN"},
};

class Regimenes : public PantallaParticipe, public ::testing::WithParamInterface<Pareja> {
protected:
    const Pareja& pareja() const { return GetParam(); }
    /// The value of the pair, the box that shows it, and nothing else touched.
    void espera(const char16_t* valor, const char16_t* marcadaCon) {
        DatosParticipe esperado = participeAjeno();
        esperado.*pareja().miembro = q(valor);
        EXPECT_TRUE(datos() == esperado);
        EXPECT_EQ((p().*pareja().miembro).texto(), q(valor));
        for (const auto& otra : Parejas)
            for (const auto* casilla : {otra.primera, otra.segunda})
                EXPECT_EQ(marcada(casilla), q(casilla) == q(marcadaCon)) << s(casilla);
    }
};

TEST_P(Regimenes, MuestranSuValor) {
    const std::pair<const char16_t*, const char16_t*> casos[] = {
        {pareja().valorPrimera, pareja().primera},
        {pareja().valorSegunda, pareja().segunda},
        {u" ", u""},
        {u"Z", u""}};
    for (const auto& [valor, casilla] : casos) {
        DatosParticipe inicial = participeAjeno();
        inicial.*pareja().miembro = q(valor);
        verUno(inicial);
        espera(valor, casilla);
        EXPECT_FALSE(p().MODIFPARTICIPES);
    }
}

TEST_P(Regimenes, UnaQuitaLaOtraYDosVecesSeBorra) {
    verUno();
    const std::tuple<const char16_t*, const char16_t*, bool> pulsaciones[] = {
        {pareja().primera, pareja().valorPrimera, true},
        {pareja().segunda, pareja().valorSegunda, true},
        {pareja().segunda, u" ", false},
        {pareja().segunda, pareja().valorSegunda, true},
        {pareja().primera, pareja().valorPrimera, true},
        {pareja().primera, u" ", false}};
    for (const auto& [casilla, valor, queda] : pulsaciones) {
        p().MODIFPARTICIPES = false;
        pulsar(casilla);
        espera(valor, queda ? casilla : u"");
        EXPECT_TRUE(p().MODIFPARTICIPES);
        esperaBotones(false, false);
        EXPECT_EQ(foco(), q(casilla));
    }
}

TEST_P(Regimenes, ElEspacioEsUnaPulsacion) {
    verUno();
    enfocar(pareja().segunda);
    tecla(Qt::Key_Space);
    espera(pareja().valorSegunda, pareja().segunda);
    tecla(Qt::Key_Space);
    espera(u" ", u"");
}

TEST_P(Regimenes, LaFlechaSigueAlFoco) {
    verUno();
    for (const auto* casilla : {pareja().primera, pareja().segunda}) {
        enfocar(u"txtNombre");
        EXPECT_EQ(c<QCheckBox>(casilla)->text(), QString());
        enfocar(casilla);
        EXPECT_EQ(c<QCheckBox>(casilla)->text(), q(u" ==>"));
        tecla(Qt::Key_Return);
        EXPECT_EQ(c<QCheckBox>(casilla)->text(), QString());
        EXPECT_NE(foco(), q(casilla)) << "Enter moves on";
    }
    EXPECT_FALSE(p().MODIFPARTICIPES);
}

TEST_P(Regimenes, DicenLoQueResponden) {
    verUno();
    EXPECT_EQ(c(pareja().primera)->accessibleName(), q(pareja().nombrePrimera));
    EXPECT_EQ(c(pareja().segunda)->accessibleName(), q(pareja().nombreSegunda));
}
INSTANTIATE_TEST_SUITE_P(Parejas, Regimenes, ::testing::ValuesIn(Parejas));

}  // namespace
}  // namespace padral::pruebas
