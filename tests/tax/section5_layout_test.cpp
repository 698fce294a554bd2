// Section 5 on a small screen: nothing cut, nothing hidden, in both languages and with big letters.

#include <QScrollArea>
#include <algorithm>
#include <map>

#include "screens/screen_audit.h"
#include "tax/section5_fixture.h"

namespace padral::pruebas {
namespace {

struct Aspecto {
    bool euskera;
    double letra;
    Edicion edicion;
};
void PrintTo(const Aspecto& a, std::ostream* salida) {
    *salida << (a.euskera ? "eu" : "es") << " x " << a.letra
            << (a.edicion == Nueva5 ? " 2015" : "");
}

class Aspectos5 : public PantallaApartado5, public ::testing::WithParamInterface<Aspecto> {
protected:
    void SetUp() override {
        PantallaApartado5::SetUp();
        QFont otra = fuente_;
        otra.setPointSizeF(fuente_.pointSizeF() * GetParam().letra);
        QApplication::setFont(otra);
        if (GetParam().euskera) enEuskera();
    }
    void TearDown() override {
        PantallaApartado5::TearDown();
        QApplication::setFont(fuente_);
    }
    /// Puts the screen where the main window puts it, and looks at it.
    void mirar(const char16_t* iva) {
        SCOPED_TRACE(s(iva));
        poner(u"N");
        r.IVA = q(iva);
        abrir(GetParam().edicion);
        QScrollArea hueco;
        hueco.setFrameShape(QFrame::NoFrame);
        hueco.setWidgetResizable(true);
        hueco.setWidget(pantalla.get());
        hueco.resize(1280, 600);
        hueco.show();
        QCoreApplication::processEvents();
        EXPECT_LE(pantalla->width(), 1280);
        recorrer(hueco);
        for (const auto& faltas : {RotulosCortados(*pantalla), TeclasRepetidas(*pantalla),
                                   TextosEnOtroIdioma(*pantalla, GetParam().euskera, {})})
            EXPECT_TRUE(faltas.isEmpty()) << faltas.join(u'\n').toStdString();
        hueco.takeWidget();
    }

    /// Every box comes into view when the answer before it is given.
    void recorrer(QScrollArea& hueco) {
        hueco.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&hueco));
        pantalla->FocoInicial()->setFocus(Qt::OtherFocusReason);
        for (QString nombre = foco(); nombre.startsWith(u"chk"); nombre = foco()) {
            const auto* casilla = ConPantalla::c(nombre);
            EXPECT_EQ(casilla->visibleRegion().boundingRect(), casilla->rect())
                << nombre.toStdString();
            QTest::keyClick(hueco.windowHandle(), Qt::Key_Return);
        }
        EXPECT_EQ(foco(), q(u"cmdInicio"));
    }

    const QFont fuente_ = QApplication::font();
};

TEST_P(Aspectos5, NadaSaleCortado) {
    for (const auto* iva : {u"S", u"N", u" "}) mirar(iva);
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
