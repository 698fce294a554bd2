// Section 5 on a small screen: nothing cut, nothing hidden, in both languages and with big letters.

#include <algorithm>
#include <map>

#include "screens/screen_aspects.h"
#include "tax/section5_fixture.h"

namespace padral::pruebas {
namespace {

class Aspectos5 : public ConAspecto<PantallaApartado5> {
protected:
    /// Every box comes into view when the answer before it is given.
    void comprobar() override {
        auto* hueco = pantalla->window();
        hueco->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(hueco));
        pantalla->FocoInicial()->setFocus(Qt::OtherFocusReason);
        for (QString nombre = foco(); nombre.startsWith(u"chk"); nombre = foco()) {
            const auto* casilla = ConPantalla::c(nombre);
            EXPECT_EQ(casilla->visibleRegion().boundingRect(), casilla->rect())
                << nombre.toStdString();
            QTest::keyClick(hueco->windowHandle(), Qt::Key_Return);
        }
        EXPECT_EQ(foco(), q(u"cmdInicio"));
    }
};

TEST_P(Aspectos5, NadaSaleCortado) {
    for (const auto* iva : {u"S", u"N", u" "}) {
        SCOPED_TRACE(s(iva));
        poner(u"N");
        r.IVA = q(iva);
        abrir(GetParam().edicion);
        mirar();
    }
}
INSTANTIATE_TEST_SUITE_P(Tamanos, Aspectos5,
                         ::testing::Values(Aspecto{false, 1, Antigua5}, Aspecto{true, 1, Antigua5},
                                           Aspecto{false, 1.5, Antigua5},
                                           Aspecto{true, 1.5, Antigua5}, Aspecto{false, 1, Nueva5},
                                           Aspecto{true, 1, Nueva5}, Aspecto{false, 1.5, Nueva5},
                                           Aspecto{true, 1.5, Nueva5}));

/// Where each question stands, by column from top to bottom.
std::map<int, std::vector<int>> alturas(QWidget& pantalla) {
    std::map<int, std::vector<int>> salida;
    for (const auto& p : Preguntas5) {
        const auto* casilla = pantalla.findChild<QWidget*>(q(p.si));
        if (casilla == nullptr || !casilla->isVisible()) continue;
        const QPoint centro = casilla->mapTo(&pantalla, casilla->rect().center());
        salida[centro.x()].push_back(centro.y());
    }
    return salida;
}

TEST_F(PantallaApartado5, LasDosColumnasTienenSusFilasEnLinea) {
    for (const auto edicion : {Antigua5, Nueva5})
        for (const auto* iva : {u"S", u"N"}) {
            r.IVA = q(iva);
            abrir(edicion);
            const auto columnas = alturas(*pantalla);
            ASSERT_EQ(columnas.size(), 2U);
            const auto& [izquierda, derecha] =
                std::pair(columnas.begin()->second, columnas.rbegin()->second);
            for (const int y : derecha)
                EXPECT_EQ(std::ranges::count(izquierda, y), 1) << s(iva) << " at " << y;
        }
}

TEST_F(PantallaApartado5, LaPreguntaEscondidaNoDejaHueco) {
    abrir(Antigua5, 20131231);
    const auto altura = [&](const char16_t* nombre) {
        return c(nombre)->mapTo(pantalla.get(), QPoint()).y();
    };
    const int suya = altura(u"chk23");
    EXPECT_GT(altura(u"chk25"), suya);
    abrir(Antigua5, 20140101);
    EXPECT_EQ(altura(u"chk25"), suya);
    pulsar(u"chk1");
    EXPECT_EQ(altura(u"chk25"), suya) << "once, not at each click";
}

TEST_F(PantallaApartado5, CabeEnteraEnUnaVentanaPequena) {
    for (const bool euskera : {false, true})
        for (const auto edicion : {Antigua5, Nueva5})
            for (const auto* iva : {u"S", u"N"}) {
                if (euskera) enEuskera();
                r.IVA = q(iva);
                abrir(edicion);
                EXPECT_GT(pantalla->heightForWidth(1280), 0);
                EXPECT_LE(pantalla->heightForWidth(1280), 600);
            }
}

}  // namespace
}  // namespace padral::pruebas
