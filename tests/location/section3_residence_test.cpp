// The residence of section 3: answered by click, by label and by the keys that bring the focus.

#include <QRadioButton>

#include "location/section3_fixture.h"

namespace padral::pruebas {
namespace {

constexpr const char16_t *Si = u"optResidente(0)", *No = u"optResidente(1)";

class Residencia : public PantallaApartado3 {
protected:
    void espera(const char16_t* respuesta) {
        EXPECT_EQ(r.ResidenteKelmaria.recortado(), q(respuesta));
        EXPECT_EQ(marcada(Si), q(respuesta) == q(u"S"));
        EXPECT_EQ(marcada(No), q(respuesta) == q(u"N"));
    }
    bool resaltada(const char16_t* etiqueta) {
        const auto* l = c<QLabel>(etiqueta);
        return l->autoFillBackground() && l->palette().color(QPalette::Window) == Qt::white;
    }
};

TEST_F(Residencia, UnClicResponde) {
    abrir();
    pulsar(No);
    espera(u"N");
    EXPECT_TRUE(r.Modificaciones);
    pulsar(Si);
    espera(u"S");
}

TEST_F(Residencia, LlegarConElTabuladorResponde) {
    abrir();
    enfocar(u"cmdCancelar");
    // The last control of a declaration that ends here; the first one follows.
    pantalla->findChild<QWidget*>(q(u"cmdAnterior"))->setFocus(Qt::TabFocusReason);
    tecla(Qt::Key_Tab);
    EXPECT_EQ(foco(), q(Si));
    espera(u"S");
    EXPECT_TRUE(r.Modificaciones);
}

TEST_F(Residencia, LlegarHaciaAtrasResponde) {
    abrir();
    ASSERT_EQ(foco(), q(u"numPorcenIVA"));
    tecla(Qt::Key_Backtab);
    EXPECT_EQ(foco(), q(No));
    espera(u"N");
}

TEST_F(Residencia, LlegarConUnaTeclaDeAccesoResponde) {
    abrir();
    c(No)->setFocus(Qt::ShortcutFocusReason);
    espera(u"N");
}

TEST_F(Residencia, RecibirElFocoDeOtroModoNoResponde) {
    for (const auto motivo : {Qt::OtherFocusReason, Qt::ActiveWindowFocusReason,
                              Qt::PopupFocusReason, Qt::MouseFocusReason}) {
        abrir();
        c(No)->setFocus(motivo);
        ASSERT_EQ(foco(), q(No));
        espera(u"");
        EXPECT_FALSE(r.Modificaciones);
    }
}

TEST_F(Residencia, PasarPorUnaRespuestaNoLaCambia) {
    for (const auto* respuesta : {u"S", u"N"}) {
        r.ResidenteKelmaria = q(respuesta);
        abrir();
        sinCambios([&] {
            for (int vuelta = 0; vuelta < 2; ++vuelta) {
                do tecla(Qt::Key_Tab);
                while (foco() != q(u"numPorcenIVA"));
                tecla(Qt::Key_Backtab);
                tecla(Qt::Key_Backtab);
                c(u"numPorcenIVA")->setFocus(Qt::OtherFocusReason);
            }
        });
        espera(respuesta);
    }
}

TEST_F(Residencia, LasFlechasCambianLaRespuesta) {
    r.ResidenteKelmaria = q(u"S");
    abrir();
    tecla(Qt::Key_Backtab);
    ASSERT_EQ(foco(), q(Si));
    tecla(Qt::Key_Right);
    EXPECT_EQ(foco(), q(No));
    espera(u"N");
    tecla(Qt::Key_Left);
    espera(u"S");
}

TEST_F(Residencia, IntroSigue) {
    r.ResidenteKelmaria = q(u"N");
    abrir();
    tecla(Qt::Key_Backtab);
    ASSERT_EQ(foco(), q(No));
    sinCambios([&] { tecla(Qt::Key_Return); });
    EXPECT_EQ(foco(), q(u"numPorcenIVA"));
}

TEST_F(Residencia, LaEtiquetaMuestraDondeEstaElFoco) {
    abrir();
    EXPECT_FALSE(resaltada(u"lblSi") || resaltada(u"lblNo"));
    pulsar(Si);
    EXPECT_TRUE(resaltada(u"lblSi"));
    EXPECT_FALSE(resaltada(u"lblNo"));
    pulsar(No);
    EXPECT_FALSE(resaltada(u"lblSi"));
    EXPECT_TRUE(resaltada(u"lblNo"));
    EXPECT_EQ(c(u"lblNo")->palette().color(QPalette::WindowText), Qt::black);
    enfocar(u"numPorcenIVA");
    EXPECT_FALSE(resaltada(u"lblSi") || resaltada(u"lblNo"));
}

}  // namespace
}  // namespace padral::pruebas
