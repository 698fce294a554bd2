// The reason for change and the tabs of request and change of identity.

#include <QAbstractItemView>

#include "declaration/screen_fixture.h"

namespace padral::pruebas {
namespace {

class Motivo : public PantallaGeneral {
protected:
    void SetUp() override {
        PantallaGeneral::SetUp();
        abrirValida();
        enfocar(u"cmbMotivoCambio");
    }
    QComboBox* combo() { return c<QComboBox>(u"cmbMotivoCambio"); }
};

TEST_F(Motivo, ConElTeclado) {
    tecla(Qt::Key_Down);
    EXPECT_EQ(g.MotivoCambio, 10);
    EXPECT_TRUE(estado.ModificacionesPendientes);
    EXPECT_FALSE(bloqueado(u"txtDNIAnterior"));
    tecla(Qt::Key_Down);
    EXPECT_EQ(g.MotivoCambio, 20);
    EXPECT_TRUE(bloqueado(u"txtDNIAnterior"));
    EXPECT_FALSE(bloqueado(u"txtNombreAnterior"));
    tecla(Qt::Key_End);
    EXPECT_EQ(g.MotivoCambio, 31);
    tecla(Qt::Key_Home);
    EXPECT_EQ(g.MotivoCambio, 0);
    EXPECT_TRUE(bloqueado(u"txtNombreAnterior"));
}

TEST_F(Motivo, ConElRatonEnLaLista) {
    // The list takes no release within a double click's time of the press that opened it.
    const int intervalo = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(0);
    pulsar(u"cmbMotivoCambio");
    auto* vista = combo()->view();
    ASSERT_TRUE(QTest::qWaitFor([&] { return vista->isVisible(); }, 5000));
    const auto fila = vista->visualRect(vista->model()->index(3, 0)).center();
    QTest::mouseMove(vista->viewport(), fila);
    QTest::mouseClick(vista->viewport(), Qt::LeftButton, {}, fila);
    QApplication::setDoubleClickInterval(intervalo);
    EXPECT_EQ(g.MotivoCambio, 30);
    EXPECT_TRUE(estado.ModificacionesPendientes);
}

TEST_F(Motivo, IntroLoTomaYPasaAlSiguiente) {
    combo()->setCurrentIndex(2);
    EXPECT_EQ(g.MotivoCambio, 0) << "set from code: no reaction";
    tecla(Qt::Key_Return);
    EXPECT_EQ(g.MotivoCambio, 20);
    EXPECT_NE(foco(), QStringLiteral("cmbMotivoCambio"));
}

TEST_F(Motivo, AlSalirSeToma) {
    combo()->setCurrentIndex(4);
    tab();
    EXPECT_EQ(g.MotivoCambio, 31);
    EXPECT_TRUE(estado.ModificacionesPendientes);
}

TEST_F(Motivo, ElMismoNoCambiaNada) {
    sinCambios([&] {
        combo()->setCurrentIndex(0);
        tecla(Qt::Key_Return);
    });
    enfocar(u"cmbMotivoCambio");
    sinCambios([&] {
        combo()->setCurrentIndex(-1);
        tab();
    });
}

using Pestanas = PantallaGeneral;

TEST_F(Pestanas, ConElRatonMuestranSuMarcoYPonenElFoco) {
    abrirNueva();
    auto* pestanas = c<QTabBar>(u"Pestaña");
    pulsar(pestanas, pestanas->tabRect(1).center());
    EXPECT_TRUE(visible(u"FraModificacion"));
    EXPECT_FALSE(visible(u"FraSolicitud"));
    EXPECT_EQ(foco(), QStringLiteral("txtDNIAnterior"));
    pulsar(pestanas, pestanas->tabRect(0).center());
    EXPECT_TRUE(visible(u"FraSolicitud"));
    EXPECT_FALSE(visible(u"FraModificacion"));
    EXPECT_EQ(foco(), QStringLiteral("chkPorComienzo"));
}

TEST_F(Pestanas, ConLaTeclaDeAcceso) {
    abrirNueva();
    tecla(Qt::Key_M, Qt::AltModifier);
    EXPECT_TRUE(visible(u"FraModificacion"));
    EXPECT_EQ(foco(), QStringLiteral("txtDNIAnterior"));
    tecla(Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(visible(u"FraSolicitud"));
    EXPECT_EQ(foco(), QStringLiteral("chkPorComienzo"));
}

TEST_F(Pestanas, UnCampoRechazadoNoLasCambia) {
    abrirNueva();
    auto* pestanas = c<QTabBar>(u"Pestaña");
    escribir(u"txtDNI", QStringLiteral("1"));
    esperaAviso(545, 158);
    pulsar(pestanas, pestanas->tabRect(1).center());
    EXPECT_TRUE(visible(u"FraSolicitud"));
    EXPECT_EQ(foco(), QStringLiteral("txtDNI"));
}

}  // namespace
}  // namespace padral::pruebas
