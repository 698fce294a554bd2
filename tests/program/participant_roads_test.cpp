// The roads of a participant through the screens to the store and back.

#include "participants/participant_roads_fixture.h"

namespace padral::pruebas {

namespace {

using CaminosDeParticipe = ConCaminos;

TEST_F(CaminosDeParticipe, LosNuevosSeGuardan) {
    EXPECT_EQ(guardados(unica()), (QStringList{ane, jon}));
}

TEST_F(CaminosDeParticipe, ElCambiadoConservaSuClave) {
    const Filas antes = filas(unica());
    abrir();
    cambiar(Ane, u"txtNombre", u"Ane Miren");
    guardar();
    const Filas despues = filas(unica());
    EXPECT_EQ(guardados(unica()), (QStringList{q(u"12345678Z ANE MIREN 60"), jon}));
    EXPECT_EQ(despues.keys(), antes.keys());
}

TEST_F(CaminosDeParticipe, ElBorradoDejaSitioAOtro) {
    const Filas antes = filas(unica());
    abrir();
    eliminar(Jon);
    anadir({u"E12345674", u"LASA", u"40"});
    guardar();
    const Filas despues = filas(unica());
    EXPECT_EQ(guardados(unica()), (QStringList{ane, q(u"E12345674 LASA 40")}));
    EXPECT_EQ(despues.key(ane), antes.key(ane)) << "the one that nobody touched";
    EXPECT_FALSE(despues.contains(antes.key(jon)));
    EXPECT_EQ(cuantasFilas(), 2);
}

TEST_F(CaminosDeParticipe, ElBorradoPuedeVolverAEntrar) {
    const Filas antes = filas(unica());
    abrir();
    eliminar(Jon);
    anadir({Jon.dni, u"JON BERRI", u"40"});
    guardar();
    const Filas despues = filas(unica());
    EXPECT_EQ(guardados(unica()), (QStringList{ane, q(u"X1234567L JON BERRI 40")}));
    EXPECT_EQ(despues.key(ane), antes.key(ane));
    EXPECT_FALSE(despues.contains(antes.key(jon))) << "it enters as a new one";
    EXPECT_EQ(cuantasFilas(), 2);
    abrir();
    EXPECT_EQ(programa_->declaracion().participantes.colParticipes.size(), 2U);
    pulsar({u"cmdInicio", u"cmdCancelar"});
}

// The one that entered last comes last, whatever place it had before.
TEST_F(CaminosDeParticipe, ElQueVuelveAEntrarQuedaElUltimo) {
    abrir();
    EXPECT_EQ(lista(), (QStringList{q(u"12345678Z"), q(u"X1234567L")}));
    eliminar(Ane);
    anadir(Ane);
    guardar();
    abrir();
    EXPECT_EQ(lista(), (QStringList{q(u"X1234567L"), q(u"12345678Z")}));
}

TEST_F(CaminosDeParticipe, ElUltimoQueSeBorraQuitaElAnexo) {
    abrir();
    eliminar(Jon);
    eliminar(Ane);
    ASSERT_NE(pantalla("FrmDatGen"), nullptr) << "back from the list";
    EXPECT_EQ(programa_->declaracion().general.AnexoI, QString());
    pulsar({u"cmdAceptar"});
    EXPECT_EQ(guardados(unica()), QStringList());
}

TEST_F(CaminosDeParticipe, SinGuardarNadaCambia) {
    abrir();
    eliminar(Jon);
    pulsar({u"cmdInicio", u"cmdCancelar"});
    EXPECT_EQ(guardados(unica()).size(), 2);
}

// What was typed and cancelled stays out of a save that something else asked for.
TEST_F(CaminosDeParticipe, LoCanceladoNoLlegaAlAlmacen) {
    const Filas antes = filas(unica());
    abrir();
    elegir(Ane);
    pulsar({u"CmdVerParticipe"});
    escribir({{u"txtNombre", u"OTRA"}, {u"txtPorcentaje", u"50"}});
    pulsar({u"chkRegAgraria1", u"cmdCancelar", u"CmdNuevo"});
    rellenar({u"E12345674", u"LASA", u"10"});
    pulsar({u"cmdCancelar", u"cmdInicio"});
    escribir({{u"txtNombre", u"Aldabe berriak"}});
    pulsar({u"cmdAceptar"});
    EXPECT_EQ(filas(unica()), antes);
    SvrDPadral::FilasDeclaracion guardada;
    qint32 csde = unica();
    servidor().CargarDeclaracion(csde, guardada);
    EXPECT_EQ(guardada.general[2].toString().trimmed(), q(u"ALDABE BERRIAK")) << "it was saved";
    EXPECT_EQ(guardada.participes(19, 0).toString().trimmed(), QString());
}

// Another running copy deletes them while they are open here: the save brings all of it back.
TEST_F(CaminosDeParticipe, LosQueOtraCopiaBorroVuelvenConSuClave) {
    const qint32 clave = unica();
    for (const bool entera : {false, true}) {
        abrir();
        const Filas antes = filas(clave);
        servidor().EliminarParticipes(clave);
        if (entera) servidor().EliminarDeclaracion(clave);
        ASSERT_EQ(cuantasFilas(), 0);
        cambiar(Jon, u"txtNombre", entera ? u"Jon bi" : u"Jon bat");
        guardar();
        ASSERT_EQ(unica(), clave);
        EXPECT_EQ(guardados(clave), (QStringList{ane, entera ? q(u"X1234567L JON BI 40")
                                                             : q(u"X1234567L JON BAT 40")}));
        EXPECT_EQ(filas(clave).keys(), antes.keys());
    }
}

}  // namespace

}  // namespace padral::pruebas
