// Section 3 on a small screen: nothing cut, nothing hidden, in both languages and with big letters.

#include "location/section3_fixture.h"
#include "screens/screen_aspects.h"

namespace padral::pruebas {
namespace {

class Aspectos3 : public ConAspecto<PantallaApartado3> {
protected:
    void comprobar() override {
        for (const auto* largo : {u"lblPorcenIVA", u"lblConsentimiento", u"lblRevocacion"})
            EXPECT_GE(c(largo)->height(), c<QLabel>(largo)->heightForWidth(c(largo)->width()));
    }
};

TEST_P(Aspectos3, NadaSaleCortado) {
    abrir(GetParam().edicion);
    mirar();
    valida();
    sinEpigrafe(u"AFINADOR DE PIANOS Y ORGANOS A");
    otraForma(u"COFRADIA DE PESCADOR");
    r.Correo = r.Fax = r.Movil = r.Fijo = q(u"A");
    abrir(GetParam().edicion);
    mirar();
}
constexpr auto Antigua = Edicion::Hasta2014, Nueva = Edicion::Desde2015;
INSTANTIATE_TEST_SUITE_P(Tamanos, Aspectos3,
                         ::testing::Values(Aspecto{false, 1, Antigua}, Aspecto{true, 1, Antigua},
                                           Aspecto{false, 1.5, Antigua},
                                           Aspecto{true, 1.5, Antigua}, Aspecto{false, 1, Nueva},
                                           Aspecto{true, 1, Nueva}, Aspecto{false, 1.5, Nueva},
                                           Aspecto{true, 1.5, Nueva}));

TEST_F(PantallaApartado3, CabeEnteraEnUnaVentanaPequena) {
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        abrir();
        EXPECT_LE(pantalla->heightForWidth(1280), 600);
    }
}

}  // namespace
}  // namespace padral::pruebas
