// The I.V.A. question: what each click on it sets, and the panel that it opens.

#include <algorithm>

#include "tax/section5_fixture.h"

namespace padral::pruebas {
namespace {

using Respuestas = std::vector<Letra R5::*>;

const Respuestas RamaNo = {&R5::NORECARGO, &R5::NOAGRIC, &R5::NOEXENTAS, &R5::NOCONCIERTO};
const Respuestas RamaSi = {
    &R5::GENERAL,      &R5::RECARGO, &R5::AGENCIASOPERACION, &R5::AGENCIASGLOBAL, &R5::BIENESUSADOS,
    &R5::BIENESMARGEN, &R5::Agric,   &R5::SIMPLIF,           &R5::OPEXSINDCHO,    &R5::IVACAJA};
const Respuestas LasCatorce = {&R5::GENERAL,        &R5::RECARGO,      &R5::AGENCIASOPERACION,
                               &R5::AGENCIASGLOBAL, &R5::BIENESUSADOS, &R5::BIENESMARGEN,
                               &R5::Agric,          &R5::SIMPLIF,      &R5::OPEXSINDCHO,
                               &R5::NORECARGO,      &R5::NOAGRIC,      &R5::NOEXENTAS,
                               &R5::NOCONCIERTO,    &R5::IVACAJA};

struct Pulsacion {
    const char* nombre;
    const char16_t *casilla, *antes, *despues;
    const Respuestas* aNo;
    const char16_t* panel;  ///< that shows then
};
void PrintTo(const Pulsacion& p, std::ostream* salida) { *salida << p.nombre; }

const Pulsacion Pulsaciones[] = {
    {"YesOverBlank", u"chk27", u" ", u"S", &RamaNo, EnAfirmativo},
    {"YesOverNo", u"chk27", u"N", u"S", &RamaNo, EnAfirmativo},
    {"YesOverLowerCase", u"chk27", u"s", u"S", &RamaNo, EnAfirmativo},
    {"YesTwice", u"chk27", u"S", u" ", &LasCatorce, u""},
    {"NoOverBlank", u"chk28", u" ", u"N", &RamaSi, EnNegativo},
    {"NoOverYes", u"chk28", u"S", u"N", &RamaSi, EnNegativo},
    {"NoTwice", u"chk28", u"N", u" ", &LasCatorce, u""},
};

class Iva5 : public PantallaApartado5, public ::testing::WithParamInterface<Pulsacion> {};

TEST_P(Iva5, PoneNoEnLaRamaQueSeCierra) {
    const auto& caso = GetParam();
    for (const auto edicion : {Antigua5, Nueva5})
        for (const auto* anterior : {u"S", u"N", u" "}) {
            SCOPED_TRACE(s(anterior));
            poner(anterior);
            r.IVA = q(caso.antes);
            abrir(edicion);
            R5 esperado = r;
            esperado.IVA = q(caso.despues);
            for (const auto respuesta : *caso.aNo) esperado.*respuesta = q(u"N");
            pulsar(caso.casilla);
            for (const auto& p : Preguntas5)
                EXPECT_EQ((r.*p.respuesta).texto(), (esperado.*p.respuesta).texto())
                    << s(p.etiqueta);
            EXPECT_TRUE(r.MODIFAPARTADO5);
            for (const auto* panel : {EnAfirmativo, EnNegativo})
                EXPECT_EQ(visible(panel), q(panel) == q(caso.panel)) << s(panel);
        }
}
INSTANTIATE_TEST_SUITE_P(Tabla, Iva5, ::testing::ValuesIn(Pulsaciones),
                         [](const auto& i) { return i.param.nombre; });

TEST_F(PantallaApartado5, ElPanelSigueALaRespuesta) {
    const std::pair<const char16_t*, const char16_t*> casos[] = {
        {u"S", EnAfirmativo}, {u"N", EnNegativo}, {u" ", u""}, {u"s", u""}};
    for (const auto edicion : {Antigua5, Nueva5})
        for (const auto& [respuesta, panel] : casos) {
            r.IVA = q(respuesta);
            abrir(edicion);
            for (const auto* uno : {EnAfirmativo, EnNegativo})
                EXPECT_EQ(visible(uno), q(uno) == q(panel)) << s(respuesta) << ' ' << s(uno);
        }
}

TEST_F(PantallaApartado5, LosPanelesEstanEnElMismoSitio) {
    r.IVA = q(u"S");
    abrir();
    const QRect uno = c(EnAfirmativo)->geometry();
    pulsar(u"chk28");
    const QRect otro = c(EnNegativo)->geometry();
    EXPECT_EQ(uno.topLeft(), otro.topLeft());
    EXPECT_EQ(uno.width(), otro.width());
    EXPECT_GT(otro.top(), c(u"chk28")->mapTo(pantalla.get(), QPoint()).y());
}

TEST_F(PantallaApartado5, LoQueSeCierraSigueEnNoAlVolver) {
    r.IVA = r.GENERAL = r.IVACAJA = q(u"S");
    abrir();
    pulsar(u"chk28");
    EXPECT_EQ(r.GENERAL.texto(), q(u"N"));
    pulsar(u"chk27");
    EXPECT_EQ(r.GENERAL.texto(), q(u"N"));
    EXPECT_EQ(r.IVACAJA.texto(), q(u"N"));
    EXPECT_TRUE(marcada(u"chk30"));
    EXPECT_FALSE(marcada(u"chk29"));
    EXPECT_TRUE(marcada(u"chk56"));
}

TEST_F(PantallaApartado5, ElCriterioDeCajaQuedaAlPasarASi) {
    for (const auto* valor : {u"S", u" "}) {
        r.IVA = q(u"N");
        r.IVACAJA = q(valor);
        abrir();
        pulsar(u"chk27");
        EXPECT_EQ(r.IVACAJA.texto(), q(valor));
    }
}

TEST_F(PantallaApartado5, LasAgenciasGlobalesCambianSoloConElIvaDesde2015) {
    r.IVA = r.AGENCIASGLOBAL = q(u"S");
    abrir(Nueva5);
    for (const auto* casilla : {u"chk29", u"chk33", u"chk55"}) pulsar(casilla);
    EXPECT_EQ(r.AGENCIASGLOBAL.texto(), q(u"S"));
    pulsar(u"chk28");
    EXPECT_EQ(r.AGENCIASGLOBAL.texto(), q(u"N"));
}

}  // namespace
}  // namespace padral::pruebas
