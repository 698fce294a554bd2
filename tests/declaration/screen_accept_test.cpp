// Aceptar: what it checks and in which order, what it stores, how it leaves.

#include "declaration/screen_fixture.h"

namespace padral::pruebas {
namespace {

class Aceptar : public PantallaGeneral {
protected:
    /// The only stored declaration as another run reads it.
    std::unique_ptr<OtraRun> leida() {
        SvrDPadral::ListaDeclaraciones filas;
        almacen.Servidor().DameDeclaraciones({}, filas, QStringLiteral("1"), QStringLiteral("ASC"));
        EXPECT_EQ(filas.Filas(), 1);
        auto otra = std::make_unique<OtraRun>(estado);
        otra->d.csde = filas.Filas() > 0 ? filas.csde(0) : 0;
        otra->d.Modo = QStringLiteral("C");
        otra->d.CargarDeclaracion();
        return otra;
    }
    void noSale() {
        EXPECT_EQ(pantallas.Tomar(), QStringList());
        EXPECT_EQ(declaracionesGuardadas(), 0);
        EXPECT_FALSE(pantallas.EnEspera());
    }
};

TEST_F(Aceptar, SinCambiosCierraSinGuardar) {
    abrirNueva();
    pulsar(u"cmdAceptar");
    esperaCerrada();
    EXPECT_EQ(declaracionesGuardadas(), 0);
}

TEST_F(Aceptar, ConCambiosGuardaYCierra) {
    abrirNueva();
    lista.Modo = QStringLiteral("C");
    rellenarCampo(u"txtDNI", QStringLiteral("A12345674"));
    rellenarCampo(u"txtNombre", QStringLiteral("sociedad"));
    rellenarCampo(u"txtNumeroArchivo", QStringLiteral("r-7"));
    rellenarCampo(u"mskFechaDeclaracion", QStringLiteral("15062015"));
    pulsar(u"chkDeclaracionInicio");
    pulsar(u"chkElMismo");
    responderApartado5();
    llenar(d, Apartado::Dos);
    ponerParticipe(u"12345678Z", u"A")->PorcenPart = 100;
    g.AnexoI = QString();
    pulsar(u"cmdAceptar");
    esperaCerrada();
    const auto otra = leida();
    const auto& guardada = otra->d.general;
    EXPECT_EQ(guardada.DNI, QStringLiteral("A12345674"));
    EXPECT_EQ(guardada.NOMBRE, QStringLiteral("SOCIEDAD"));
    EXPECT_EQ(guardada.NumeroArchivo, QStringLiteral("R-7"));
    EXPECT_EQ(guardada.FECHADECLARACION, 20150615);
    EXPECT_EQ(guardada.Causa1, QStringLiteral("I"));
    EXPECT_EQ(guardada.FirmaEnCalidadDe, QStringLiteral("EL MISMO"));
    EXPECT_EQ(guardada.ObtenerDatos()[12].toString(), QStringLiteral("X     X "))
        << "the flags follow what the records hold";
    EXPECT_EQ(otra->d.NumParti, 1);
}

TEST_F(Aceptar, UnaCopiaSeGuardaSinTocarla) {
    const qint32 origen = almacen.Guardar({QStringLiteral("A12345674"), QStringLiteral("ORIGEN"),
                                           QString(), 20150101, QStringLiteral("I")});
    d.Modo = QStringLiteral("A");
    d.csde = origen;
    estado.FormularioOrigen = QStringLiteral("FrmDecLista");
    estado.ModificacionesPendientes = true;
    abrir();
    pulsar(u"chkElMismo");
    pulsar(u"cmdAceptar");
    esperaCerrada();
    EXPECT_EQ(declaracionesGuardadas(), 2);
}

TEST_F(Aceptar, LasPruebasEnSuOrden) {
    g.DNI = QStringLiteral("A12345675");
    estado.ModificacionesPendientes = true;
    abrirRegistro();
    esperaAviso(536, 537);
    pulsar(u"cmdAceptar");
    avisos.Verificar();
    EXPECT_EQ(foco(), QStringLiteral("txtNombre"));
    noSale();
    rellenarCampo(u"txtNombre", QStringLiteral("NOMBRE"));
    esperaAviso(516, 517);
    pulsar(u"cmdAceptar");
    avisos.Verificar();
    EXPECT_EQ(foco(), QStringLiteral("mskFechaDeclaracion"));
    noSale();
    rellenarCampo(u"mskFechaDeclaracion", QStringLiteral("15062015"));
    esperaAviso(545, 158);
    pulsar(u"cmdAceptar");
    avisos.Verificar();
    EXPECT_EQ(foco(), QStringLiteral("txtDNI"));
    noSale();
    rellenarCampo(u"txtDNI", QStringLiteral("A12345674"));
    esperaAviso(462, 463);
    pulsar(u"cmdAceptar");
    avisos.Verificar();
    EXPECT_EQ(foco(), QStringLiteral("chkDeclaracionPrevia"));
    noSale();
    pulsar(u"chkDeclaracionInicio");
    pulsar(u"chkElMismo");
    // A start marks section 5, which has no answer yet.
    esperaAviso(82, 83);
    pulsar(u"cmdAceptar");
    avisos.Verificar();
    noSale();
    responderApartado5();
    const auto participe = ponerParticipe(u"12345678Z", u"A");
    esperaAviso(547, 381);
    pulsar(u"cmdAceptar");
    avisos.Verificar();
    noSale();
    participe->PorcenPart = 100;
    pulsar(u"cmdAceptar");
    esperaCerrada();
    EXPECT_EQ(declaracionesGuardadas(), 1);
}

TEST_F(Aceptar, SociedadExentaParaAntesDeTodo) {
    abrirNueva();
    d.apartado5.SOCIEDADES = d.apartado5.EXENTASOCI = QStringLiteral("S");
    for (const bool pendientes : {false, true}) {
        estado.ModificacionesPendientes = pendientes;
        esperaAviso(692, 83);
        sinCambios([&] { pulsar(u"cmdAceptar"); });
        avisos.Verificar();
        noSale();
    }
    d.apartado5.EXENTASOCI = QStringLiteral("N");
    estado.ModificacionesPendientes = false;
    pulsar(u"cmdAceptar");
    esperaCerrada();
}

struct PorVigor {
    qint32 vigor;
    bool vacia;
};
class AceptarPorVigor : public Aceptar, public ::testing::WithParamInterface<PorVigor> {};

TEST_P(AceptarPorVigor, VaciaLoQueDesde2014NoExiste) {
    abrirValida();
    estado.ModificacionesPendientes = true;
    d.apartado4.IRPFOBJET = QStringLiteral("O");
    d.apartado5.IRPFOBJETIVA = QStringLiteral("S");
    d.anexoII.OpcionApl = QStringLiteral("O");
    d.apartado3.FechaInicio(GetParam().vigor);
    pulsar(u"cmdAceptar");
    const auto otra = leida();
    EXPECT_EQ(otra->d.apartado4.IRPFOBJET.vacio(), GetParam().vacia);
    EXPECT_EQ(otra->d.apartado5.IRPFOBJETIVA,
              GetParam().vacia ? QStringLiteral("N") : QStringLiteral("S"));
    EXPECT_EQ(otra->d.anexoII.OpcionApl, GetParam().vacia ? QString() : QStringLiteral("O"));
}
INSTANTIATE_TEST_SUITE_P(Filas, AceptarPorVigor,
                         ::testing::Values(PorVigor{0, false}, PorVigor{20131231, false},
                                           PorVigor{20140101, true}, PorVigor{20150101, true}));

TEST_F(Aceptar, LaImagenEsElBoton) {
    abrirNueva();
    pulsar(u"PicOKey");
    esperaCerrada();
}

TEST_F(Aceptar, LaTeclaDeAccesoEsElBoton) {
    abrirNueva();
    tecla(Qt::Key_A, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([this] { return pantallas.Llamadas.size() == 3; }, 5000));
    esperaCerrada();
}

TEST_F(Aceptar, GuardarUnaAbiertaLaReemplaza) {
    d.csde = almacen.Guardar({QStringLiteral("A12345674"), QStringLiteral("VIEJA"), QString(),
                              20150101, QStringLiteral("I")});
    d.Modo = QStringLiteral("C");
    estado.FormularioOrigen = QStringLiteral("FrmDecLista");
    abrir();
    rellenarCampo(u"txtNombre", QStringLiteral("NUEVA"));
    pulsar(u"chkElMismo");
    pulsar(u"cmdAceptar");
    esperaCerrada();
    EXPECT_EQ(leida()->d.general.NOMBRE, QStringLiteral("NUEVA"));
}

}  // namespace
}  // namespace padral::pruebas
