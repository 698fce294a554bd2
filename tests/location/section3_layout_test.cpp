// Section 3 on a small screen: nothing cut, nothing hidden, in both languages and with big letters.

#include <QScrollArea>

#include "location/section3_fixture.h"
#include "screens/screen_audit.h"

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

class Aspectos3 : public PantallaApartado3, public ::testing::WithParamInterface<Aspecto> {
protected:
    void SetUp() override {
        PantallaApartado3::SetUp();
        QFont otra = fuente_;
        otra.setPointSizeF(fuente_.pointSizeF() * GetParam().letra);
        QApplication::setFont(otra);
        if (GetParam().euskera) enEuskera();
    }
    void TearDown() override {
        hueco_.takeWidget();
        PantallaApartado3::TearDown();
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
        for (const auto* largo : {u"lblPorcenIVA", u"lblConsentimiento", u"lblRevocacion"})
            EXPECT_GE(c(largo)->height(), c<QLabel>(largo)->heightForWidth(c(largo)->width()));
        hueco_.takeWidget();
    }

    const QFont fuente_ = QApplication::font();
    QScrollArea hueco_;
};

TEST_P(Aspectos3, NadaSaleCortado) {
    mirar();
    valida();
    sinEpigrafe(u"AFINADOR DE PIANOS Y ORGANOS A");
    otraForma(u"COFRADIA DE PESCADOR");
    r.Correo = r.Fax = r.Movil = r.Fijo = q(u"A");
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
