// Section 4 on a small screen: nothing cut, nothing hidden, in both languages and with big letters.

#include <QScrollArea>

#include "screens/screen_audit.h"
#include "tax/section4_fixture.h"

namespace padral::pruebas {
namespace {

struct Aspecto {
    bool euskera;
    double letra;
    Edicion edicion;
};
void PrintTo(const Aspecto& a, std::ostream* salida) {
    *salida << (a.euskera ? "eu" : "es") << " x " << a.letra;
}

class Aspectos4 : public PantallaApartado4, public ::testing::WithParamInterface<Aspecto> {
protected:
    void SetUp() override {
        PantallaApartado4::SetUp();
        QFont otra = fuente_;
        otra.setPointSizeF(fuente_.pointSizeF() * GetParam().letra);
        QApplication::setFont(otra);
        if (GetParam().euskera) enEuskera();
    }
    void TearDown() override {
        hueco_.takeWidget();
        PantallaApartado4::TearDown();
        QApplication::setFont(fuente_);
    }
    /// Puts the screen where the main window puts it, and looks at it.
    void mirar() {
        abrir(GetParam().edicion);
        hueco_.setFrameShape(QFrame::NoFrame);
        hueco_.setWidgetResizable(true);
        hueco_.setWidget(pantalla.get());
        hueco_.resize(1280, 600);
        hueco_.show();
        QCoreApplication::processEvents();
        EXPECT_LE(pantalla->width(), 1280);
        for (const auto& faltas : {RotulosCortados(*pantalla), TeclasRepetidas(*pantalla),
                                   TextosEnOtroIdioma(*pantalla, GetParam().euskera, {})})
            EXPECT_TRUE(faltas.isEmpty()) << faltas.join(u'\n').toStdString();
        EXPECT_GT(rotulo(u"lblSONF").count(u'.'), 10);
        const auto* nombre = c<QLineEdit>(u"txtNombre");
        EXPECT_LT(nombre->fontMetrics().horizontalAdvance(nombre->text()), nombre->width());
        hueco_.takeWidget();
    }

    const QFont fuente_ = QApplication::font();
    QScrollArea hueco_;
};

TEST_P(Aspectos4, NadaSaleCortado) {
    mirar();
    g.FECHADECLARACION = 20150615;
    socio(u"G12345674", u"ABCDEFGHIJABCDEFGHIJABCDEFGHIJABCDEFGHIJ");
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
