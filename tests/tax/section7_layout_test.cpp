// Section 7 on a small screen: nothing cut, nothing hidden, in both languages and with big letters.

#include "screens/screen_aspects.h"
#include "tax/section7_fixture.h"

namespace padral::pruebas {
namespace {

class Aspectos7 : public ConAspecto<PantallaApartado7> {
protected:
    /// The rows whose name has no text of its own in each language.
    QStringList bilingues() const override {
        QStringList nombres;
        for (const auto& e : Estados7)
            if (q(e.castellano).endsWith(u' ')) nombres << q(e.etiqueta);
        return nombres;
    }
    /// Every box comes into view when the answer before it is given.
    void comprobar() override {
        auto* hueco = pantalla->window();
        hueco->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(hueco));
        pantalla->FocoInicial()->setFocus(Qt::OtherFocusReason);
        for (const auto& casilla : casillas7()) {
            ASSERT_EQ(foco(), casilla.nombre);
            const auto* caja = c(casilla.nombre);
            EXPECT_EQ(caja->visibleRegion().boundingRect(), caja->rect())
                << casilla.nombre.toStdString();
            QTest::keyClick(hueco->windowHandle(), Qt::Key_Return);
        }
        EXPECT_EQ(foco(), q(u"cmdInicio"));
    }
};

TEST_P(Aspectos7, NadaSaleCortado) {
    abrir();
    mirar();
}
INSTANTIATE_TEST_SUITE_P(Tamanos, Aspectos7,
                         ::testing::Values(Aspecto{false, 1}, Aspecto{true, 1}, Aspecto{false, 1.5},
                                           Aspecto{true, 1.5}));

TEST_F(PantallaApartado7, CabeEnteraEnUnaVentanaPequena) {
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        abrir();
        EXPECT_GT(pantalla->heightForWidth(1280), 0);
        EXPECT_LE(pantalla->heightForWidth(1280), 600);
        EXPECT_LE(pantalla->minimumSizeHint().width(), 1280);
    }
}

/// Every other row is shaded, whatever the colours of the desktop.
TEST_F(PantallaApartado7, LasFilasAlternasSeDistinguen) {
    const QPalette antes = QApplication::palette();
    QPalette oscura = antes;
    oscura.setColor(QPalette::Window, QColor(40, 40, 40));
    oscura.setColor(QPalette::WindowText, Qt::white);
    for (const auto& colores : {antes, oscura}) {
        QApplication::setPalette(colores);
        abrir();
        const QImage todo = pantalla->grab().toImage();
        const auto fondo = [&](const char16_t* etiqueta) {
            return todo.pixel(lugar(q(etiqueta)).left() + 1, lugar(q(etiqueta)).center().y());
        };
        EXPECT_EQ(fondo(u"lblAustria"), colores.color(QPalette::Window).rgb());
        EXPECT_NE(fondo(u"lblAlemania"), fondo(u"lblAustria"));
        EXPECT_EQ(fondo(u"lblAlemania"), fondo(u"lblBelgica"));
        EXPECT_EQ(fondo(u"lblAlemania"), fondo(u"lblSuecia"));
        EXPECT_LT(std::abs(qGray(fondo(u"lblAlemania")) - qGray(fondo(u"lblAustria"))), 20);
    }
    QApplication::setPalette(antes);
}

}  // namespace
}  // namespace padral::pruebas
