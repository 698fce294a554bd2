// Section 4 on a small screen: nothing cut, nothing hidden, in both languages and with big letters.

#include "screens/screen_aspects.h"
#include "tax/section4_fixture.h"

namespace padral::pruebas {
namespace {

class Aspectos4 : public ConAspecto<PantallaApartado4> {
protected:
    void comprobar() override {
        EXPECT_GT(rotulo(u"lblSONF").count(u'.'), 10);
        const auto* nombre = c<QLineEdit>(u"txtNombre");
        EXPECT_LT(nombre->fontMetrics().horizontalAdvance(nombre->text()), nombre->width());
    }
};

TEST_P(Aspectos4, NadaSaleCortado) {
    abrir(GetParam().edicion);
    mirar();
    g.FECHADECLARACION = 20150615;
    socio(u"G12345674", u"ABCDEFGHIJABCDEFGHIJABCDEFGHIJABCDEFGHIJ");
    abrir(GetParam().edicion);
    mirar();
}
constexpr auto Antigua = Edicion::Hasta2014, Nueva = Edicion::Desde2015;
INSTANTIATE_TEST_SUITE_P(Tamanos, Aspectos4,
                         ::testing::Values(Aspecto{false, 1, Antigua}, Aspecto{true, 1, Antigua},
                                           Aspecto{false, 1.5, Antigua},
                                           Aspecto{true, 1.5, Antigua}, Aspecto{false, 1, Nueva},
                                           Aspecto{true, 1, Nueva}, Aspecto{false, 1.5, Nueva},
                                           Aspecto{true, 1.5, Nueva}));

TEST_F(PantallaApartado4, CabeEnteraEnUnaVentanaPequena) {
    for (const bool euskera : {false, true})
        for (const auto edicion : Ediciones4) {
            if (euskera) enEuskera();
            g.FECHAVIGOR = 20131231;
            abrir(edicion);
            EXPECT_GT(pantalla->heightForWidth(1280), 0);
            EXPECT_LE(pantalla->heightForWidth(1280), 600);
            EXPECT_LE(pantalla->minimumSizeHint().width(), 1280);
        }
}

}  // namespace
}  // namespace padral::pruebas
