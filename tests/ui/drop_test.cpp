// A text dropped on a field: what shows is stored like what is typed.

#include "ui/window_fixture.h"

namespace padral::pruebas {
namespace {

class TextoSoltado : public VentanaConCampos {
protected:
    TextoSoltado() {
        guardia.Registrar(otro, [this] {
            guardadoOtro = otro->text();
            return true;
        });
    }
    bool soltarEnOtro() {
        return Soltar(otro, QStringLiteral("b'c"), QPoint(otro->width() - 2, 5));
    }
    QString guardadoOtro;
};

TEST_F(TextoSoltado, TomaElFocoYSeGuardaAlSalir) {
    escribir(QStringLiteral("UNO"));
    EXPECT_TRUE(soltarEnOtro());
    EXPECT_EQ(guardado, QStringLiteral("UNO")) << "the field left is checked";
    EXPECT_TRUE(otro->hasFocus());
    EXPECT_EQ(otro->text(), QStringLiteral("BC"));
    Teclear(otro, Qt::Key_Tab);
    EXPECT_EQ(guardadoOtro, QStringLiteral("BC"));
}

TEST_F(TextoSoltado, NoSustituyeLoQueElCampoTenia) {
    otro->Presentar(QStringLiteral("A"));
    EXPECT_TRUE(soltarEnOtro());
    EXPECT_EQ(otro->text(), QStringLiteral("ABC"));
}

TEST_F(TextoSoltado, SeRechazaConElCampoQueNoSePuedeDejar) {
    rechazar = true;
    escribir(QStringLiteral("MAL"));
    EXPECT_FALSE(soltarEnOtro());
    EXPECT_EQ(hechos, QStringList{QStringLiteral("comprobar")}) << "one message, not two";
    EXPECT_TRUE(campo->hasFocus());
    EXPECT_EQ(otro->text(), QString());
    EXPECT_EQ(guardadoOtro, QString());
}

TEST_F(TextoSoltado, EnElCampoConElFocoNoLoDeja) {
    rechazar = true;
    escribir(QStringLiteral("A"));
    EXPECT_TRUE(Soltar(campo, QStringLiteral("b"), QPoint(campo->width() - 2, 5)));
    EXPECT_EQ(campo->text(), QStringLiteral("AB"));
    EXPECT_EQ(llamadas, 0);
}

TEST_F(TextoSoltado, NoEntraEnUnCampoBloqueadoNiLeDaElFoco) {
    BloquearCampo(otro);
    soltarEnOtro();
    EXPECT_EQ(otro->text(), QString());
    EXPECT_TRUE(campo->hasFocus());
}

// The text may come from another program, whose window is in front then.
TEST_F(TextoSoltado, DesdeOtraVentanaCompruebaElCampoQueDeja) {
    for (const bool rechazo : {true, false}) {
        rechazar = rechazo;
        escribir(rechazo ? QStringLiteral("MAL") : QStringLiteral("BIEN"));
        QLineEdit otraVentana;  // of this program: it has the focus
        otraVentana.show();
        otraVentana.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&otraVentana));
        otraVentana.setFocus();
        ASSERT_TRUE(otraVentana.hasFocus());
        EXPECT_EQ(soltarEnOtro(), !rechazo);
        EXPECT_EQ(otro->text(), rechazo ? QString() : QStringLiteral("BC"));
        EXPECT_EQ(ventana.focusWidget(), rechazo ? campo : otro);
        EXPECT_EQ(guardado, rechazo ? QString() : QStringLiteral("BIEN"));
        otraVentana.close();
        ventana.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
    }
    Teclear(otro, Qt::Key_Tab);
    EXPECT_EQ(guardadoOtro, QStringLiteral("BC"));
}

}  // namespace
}  // namespace padral::pruebas
