// A refused field keeps the focus and swallows the command that left it.

#include "ui/message_box.h"
#include "ui/ways_of_leaving.h"

namespace padral::pruebas {
namespace {

class CampoRechazado : public SalidasDelCampo {
protected:
    void esperarRechazo() {
        QCoreApplication::processEvents();
        EXPECT_EQ(hechos, QStringList{QStringLiteral("comprobar")});
        EXPECT_TRUE(campo->hasFocus());
        EXPECT_EQ(campo->text(), QStringLiteral("A"));
        EXPECT_FALSE(casilla->isChecked());
        EXPECT_FALSE(boton->isDown());
        EXPECT_EQ(pestanas->currentIndex(), 0);
    }

    /// After the refusal everything works as before.
    void esperarQueTodoSigue() {
        hechos.clear();
        rechazar = false;
        Pulsar(boton);
        EXPECT_EQ(hechos, QStringList{QStringLiteral("boton")});
        PulsarCasilla(casilla);
        EXPECT_TRUE(casilla->isChecked());
        EXPECT_EQ(hechos.last(), QStringLiteral("casilla"));
        Pulsar(pestanas, pestanas->tabRect(1).center());
        EXPECT_EQ(pestanas->currentIndex(), 1);
    }

    void prepararRechazo() {
        escribir(QStringLiteral("A"));
        ASSERT_TRUE(guardia.ConfirmarCampoEnFoco());
        hechos.clear();
        escribir(QStringLiteral("B"));
        rechazar = true;
    }
};

TEST_P(CampoRechazado, ConservaElFocoYSeTragaLaOrden) {
    prepararRechazo();
    salir();
    esperarRechazo();
    esperarQueTodoSigue();
}

TEST_P(CampoRechazado, LoMismoConUnaCajaDeMensajePorMedio) {
    prepararRechazo();
    int cajas = 0;
    alComprobar = [this, &cajas] {
        AvisadorPantalla avisador;
        QTimer::singleShot(0, &ventana, [&cajas] {
            ++cajas;
            Teclear(QApplication::activeModalWidget(), Qt::Key_Return);
        });
        avisador.Mostrar({QStringLiteral("mal"), QString()});
    };
    salir();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&ventana));
    EXPECT_EQ(cajas, 1);
    esperarRechazo();
    esperarQueTodoSigue();
}

TEST_P(CampoRechazado, CadaIntentoSeRechazaDeNuevo) {
    prepararRechazo();
    salir();
    escribir(QStringLiteral("C"));
    salir();
    QCoreApplication::processEvents();
    EXPECT_EQ(hechos, QStringList({QStringLiteral("comprobar"), QStringLiteral("comprobar")}));
    EXPECT_TRUE(campo->hasFocus());
}

INSTANTIATE_TEST_SUITE_P(Caminos, CampoRechazado, ::testing::ValuesIn(Caminos),
                         [](const auto& caso) { return std::string(caso.param.nombre); });

// The command of a click without a click (a test, an accessibility tool) asks in the same way.
TEST_F(VentanaConCampos, ElClicDeProgramaNoPasaPorEncimaDelRechazo) {
    escribir(QStringLiteral("B"));
    rechazar = true;
    casilla->click();
    EXPECT_EQ(hechos, QStringList{QStringLiteral("comprobar")});
    EXPECT_FALSE(casilla->isChecked());
    escribir(QStringLiteral("B"));
    boton->click();
    EXPECT_EQ(hechos.count(QStringLiteral("boton")), 0);
    EXPECT_TRUE(campo->hasFocus());
}

TEST_F(VentanaConCampos, UnRechazoPorTeclaNoSeTragaElClicSiguiente) {
    escribir(QStringLiteral("B"));
    rechazar = true;
    QTest::keyClick(campo, Qt::Key_Tab);
    EXPECT_TRUE(campo->hasFocus());
    // No turn of the event loop between the key and the click.
    rechazar = false;
    QTest::mouseClick(boton, Qt::LeftButton);
    EXPECT_EQ(hechos.last(), QStringLiteral("boton"));
}

TEST_F(VentanaConCampos, ElClicSiguienteVaBienAunqueLlegueEnLaMismaVuelta) {
    escribir(QStringLiteral("B"));
    rechazar = true;
    QTest::mouseClick(boton, Qt::LeftButton);
    EXPECT_EQ(hechos, QStringList{QStringLiteral("comprobar")});
    rechazar = false;
    QTest::mouseClick(boton, Qt::LeftButton);
    EXPECT_EQ(hechos.last(), QStringLiteral("boton"));
}

TEST_F(VentanaConCampos, ElBotonDerechoEnOtroCampoTampocoPasa) {
    escribir(QStringLiteral("B"));
    rechazar = true;
    Pulsar(otro, {}, Qt::RightButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_TRUE(campo->hasFocus());
}

TEST_F(VentanaConCampos, SoloElBotonIzquierdoPulsaImagenesYEtiquetas) {
    for (const auto raton : {Qt::RightButton, Qt::MiddleButton}) {
        Pulsar(imagen, {8, imagen->height() / 2}, raton);
        Pulsar(etiqueta, {3, 3}, raton);
    }
    EXPECT_EQ(hechos, QStringList());
    EXPECT_FALSE(casilla->isChecked());
}

TEST_F(VentanaConCampos, UnaImagenSoltadaFueraNoPulsa) {
    const QPoint dentro(8, imagen->height() / 2);
    QWindow* w = ventana.windowHandle();
    QTest::mousePress(w, Qt::LeftButton, {}, imagen->mapTo(&ventana, dentro));
    QTest::mouseRelease(w, Qt::LeftButton, {}, imagen->mapTo(&ventana, QPoint(8, -40)));
    EXPECT_EQ(hechos, QStringList());
    Pulsar(imagen, dentro);
    EXPECT_EQ(hechos, QStringList{QStringLiteral("boton")});
}

TEST_F(VentanaConCampos, UnBotonApagadoNoSePulsaPorSuImagen) {
    boton->setEnabled(false);
    Pulsar(imagen, {8, imagen->height() / 2});
    EXPECT_EQ(hechos, QStringList());
}

}  // namespace
}  // namespace padral::pruebas
