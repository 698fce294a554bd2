// Leaving a field runs its check once, before whatever left it.

#include <QMenu>

#include "ui/ways_of_leaving.h"

namespace padral::pruebas {
namespace {

class CampoAceptado : public SalidasDelCampo {};

TEST_P(CampoAceptado, SeCompruebaUnaVezYAntesDeLaOrden) {
    escribir(QStringLiteral("B"));
    salir();
    esperar(static_cast<int>(todo().size()));
    EXPECT_EQ(hechos, todo());
    EXPECT_EQ(guardado, QStringLiteral("B"));
    if (GetParam().salida != Salida::Programa) {
        EXPECT_FALSE(campo->hasFocus());
    }
    EXPECT_EQ(casilla->isChecked(), todo().last() == QStringLiteral("casilla"));
}

TEST_P(CampoAceptado, SinCambioSoloCorreLaOrden) {
    salir();
    esperar(static_cast<int>(todo().size()) - 1);
    EXPECT_EQ(hechos, todo().mid(1));
}

INSTANTIATE_TEST_SUITE_P(Caminos, CampoAceptado, ::testing::ValuesIn(Caminos),
                         [](const auto& caso) { return std::string(caso.param.nombre); });

TEST_F(VentanaConCampos, ElFocoVaAlSiguienteYAlAnterior) {
    Teclear(campo, Qt::Key_Tab);
    EXPECT_TRUE(otro->hasFocus());
    Teclear(otro, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(campo->hasFocus());
    Teclear(campo, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_TRUE(otro->hasFocus());
    campo->setFocus();
    Teclear(campo, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(otroAntes->hasFocus());
}

TEST_F(VentanaConCampos, LaOrdenDeUnaTeclaDejaElFocoEnSuBoton) {
    Teclear(campo, Qt::Key_G, Qt::AltModifier);
    esperar(1);
    EXPECT_TRUE(boton->hasFocus());
}

TEST_F(VentanaConCampos, ElFocoDadoPorElProgramaTambienEsUnaSalida) {
    escribir(QStringLiteral("B"));
    otro->setFocus(Qt::OtherFocusReason);
    EXPECT_EQ(hechos, QStringList{QStringLiteral("comprobar")});
    EXPECT_TRUE(otro->hasFocus());
}

TEST_F(VentanaConCampos, IrAOtraVentanaNoEsSalir) {
    escribir(QStringLiteral("B"));
    QWidget otraVentana;
    otraVentana.show();
    otraVentana.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&otraVentana));
    EXPECT_EQ(llamadas, 0);
    otraVentana.close();
    ventana.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
    EXPECT_TRUE(campo->hasFocus());
    EXPECT_EQ(llamadas, 0);
}

TEST_F(VentanaConCampos, UnMenuDelCampoNoEsSalir) {
    escribir(QStringLiteral("B"));
    QMenu emergente;
    emergente.addAction(QStringLiteral("nada"));
    emergente.popup(ventana.mapToGlobal(QPoint(10, 10)));
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&emergente));
    EXPECT_EQ(llamadas, 0);
    emergente.close();
    EXPECT_TRUE(campo->hasFocus());
    EXPECT_EQ(llamadas, 0);
}

TEST_F(VentanaConCampos, AbrirUnMenuConElRatonOConSuTeclaNoEsSalir) {
    escribir(QStringLiteral("B"));
    for (const bool conTecla : {false, true}) {
        if (conTecla)
            Teclear(campo, Qt::Key_A, Qt::AltModifier);
        else
            Pulsar(ventana.menuBar(),
                   ventana.menuBar()->actionGeometry(menu->menuAction()).center());
        ASSERT_TRUE(QTest::qWaitFor([this] { return menu->isVisible(); }));
        menu->close();
        QCoreApplication::processEvents();
        EXPECT_EQ(llamadas, 0) << conTecla;
    }
}

TEST_F(VentanaConCampos, UnaOrdenDelMenuConElTecladoCompruebaAntes) {
    QAction accion(&ventana);
    accion.setShortcut(QKeySequence(Qt::Key_F1));
    ventana.addAction(&accion);
    QObject::connect(&accion, &QAction::triggered, [this] { hechos << QStringLiteral("orden"); });
    escribir(QStringLiteral("B"));
    Teclear(campo, Qt::Key_F1);
    EXPECT_EQ(hechos, QStringList({QStringLiteral("comprobar"), QStringLiteral("orden")}));
    rechazar = true;
    escribir(QStringLiteral("C"));
    Teclear(campo, Qt::Key_F1);
    EXPECT_EQ(hechos.mid(2), QStringList{QStringLiteral("comprobar")});
}

TEST_F(VentanaConCampos, TrasOlvidarLaPantallaNoHayComprobacion) {
    escribir(QStringLiteral("B"));
    QWidget ajena;
    guardia.Olvidar(&ajena);
    EXPECT_TRUE(guardia.ConfirmarCampoEnFoco());
    EXPECT_EQ(llamadas, 1);
    guardia.Olvidar(fondo);
    escribir(QStringLiteral("C"));
    EXPECT_TRUE(guardia.ConfirmarCampoEnFoco());
    Pulsar(otro);
    EXPECT_EQ(llamadas, 1);
    campo->setFocus();
    delete campo;
    EXPECT_EQ(llamadas, 1);
}

TEST_F(VentanaConCampos, UnCampoDestruidoNoDejaNada) {
    delete campo;
    EXPECT_TRUE(guardia.ConfirmarCampoEnFoco());
    Pulsar(boton);
    EXPECT_EQ(hechos.last(), QStringLiteral("boton"));
}

TEST_F(VentanaConCampos, EnLaEsperaSeSueltaTodoLoQueEntra) {
    guardia.SoltarEntradas(true);
    Escribir(campo, QStringLiteral("abc"));
    Teclear(campo, Qt::Key_Tab);
    Teclear(campo, Qt::Key_G, Qt::AltModifier);
    Pulsar(boton);
    PulsarCasilla(casilla);
    Pulsar(pestanas, pestanas->tabRect(1).center());
    QInputMethodEvent compuesto;
    compuesto.setCommitString(QStringLiteral("ñ"));
    QApplication::sendEvent(campo, &compuesto);
    QCoreApplication::processEvents();
    EXPECT_EQ(hechos, QStringList());
    EXPECT_EQ(llamadas, 0);
    EXPECT_EQ(campo->text(), QString());
    EXPECT_TRUE(campo->hasFocus());
    EXPECT_FALSE(casilla->isChecked());

    guardia.SoltarEntradas(false);
    Escribir(campo, QStringLiteral("abc"));
    Pulsar(boton);
    EXPECT_EQ(hechos, QStringList({QStringLiteral("comprobar"), QStringLiteral("boton")}));
    EXPECT_EQ(guardado, QStringLiteral("ABC"));
}

}  // namespace
}  // namespace padral::pruebas
