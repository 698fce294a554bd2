// Participants across saves: after the last one went, and when the print dialog follows the save.

#include <QCheckBox>

#include "participants/participant_roads_fixture.h"

namespace padral::pruebas {

namespace {

/// The list of the stored declaration is open.
class CaminosHastaElUltimo : public ConCaminos {
protected:
    void SetUp() override {
        ConCaminos::SetUp();
        clave = unica();
        antes = filas(clave);
        abrir();
    }
    /// The flags of sections 2 to 7 and of both annexes.
    QString banderas() {
        SvrDPadral::FilasDeclaracion guardada;
        servidor().CargarDeclaracion(clave, guardada);
        return guardada.general[12].toString();
    }
    void borrarTodos() {
        eliminar(Jon);
        eliminar(Ane);
        ASSERT_NE(pantalla("FrmDatGen"), nullptr) << "back from the list";
    }
    std::size_t cuantos() { return programa_->declaracion().participantes.colParticipes.size(); }

    qint32 clave = 0;
    Filas antes;
};

TEST_F(CaminosHastaElUltimo, LaMarcaGuardadaSeVaConEl) {
    EXPECT_EQ(banderas(), q(u"      X "));
    borrarTodos();
    pulsar({u"cmdAceptar"});
    EXPECT_EQ(banderas(), q(u"        "));
    EXPECT_EQ(cuantasFilas(), 0);
    pulsar({u"cmdVerDeclaracion"}, u"Abrir");
    EXPECT_EQ(cuantos(), 0U);
    EXPECT_EQ(programa_->declaracion().NumParti, 0);
    EXPECT_FALSE(guia().Busca<QCheckBox>(QStringLiteral("chkApartado8"))->isChecked());
    // Nothing that the save before left behind comes in with the next one.
    pulsar({u"chkApartado8", u"cmdAnexo"});
    EXPECT_NE(pantalla("frmDatosParticipe"), nullptr) << "a new one, there is no list";
    anotar({Jon.dni, u"JON", u"100"});
    pulsar({u"cmdVolver"});
    guardarUno();
    EXPECT_EQ(guardados(clave), QStringList{q(u"X1234567L JON 100")});
    EXPECT_EQ(banderas(), q(u"      X "));
}

TEST_F(CaminosHastaElUltimo, DeNuevoMarcadoEntraElMismo) {
    borrarTodos();
    pulsar({u"chkApartado8", u"cmdAnexo"});
    EXPECT_NE(pantalla("frmDatosParticipe"), nullptr);
    anotar({Jon.dni, u"JON BERRI", u"100"});
    pulsar({u"cmdVolver"});
    EXPECT_EQ(lista(), QStringList{q(u"X1234567L")});
    guardarUno();
    const Filas despues = filas(clave);
    EXPECT_EQ(despues.values(), QStringList{q(u"X1234567L JON BERRI 100")});
    for (const qint32 vieja : antes.keys()) EXPECT_FALSE(despues.contains(vieja)) << vieja;
    EXPECT_EQ(cuantasFilas(), 1);
    EXPECT_EQ(banderas(), q(u"      X "));
}

/// The save before printing is not the last one: the declaration is open again behind the dialog.
class CaminosTrasImprimir : public ConCaminos {
protected:
    /// From the general data: accepts the save, and leaves the dialog.
    void imprimir() {
        avisos.Espera({texto(538), texto(539), Icono::Informacion, Botones::AceptarCancelar},
                      Respuesta::Aceptar);
        pulsar({u"cmdImprimir", u"btnCancelar"});
        avisos.Verificar();
        ASSERT_NE(pantalla("FrmDatGen"), nullptr);
    }
    /// The collection has the rows of the file, each of them once and in their order.
    void esperaLosGuardados(const QStringList& esperados) {
        const auto& abierta = programa_->declaracion();
        const Filas enFichero = filas(abierta.csde);
        EXPECT_EQ(enFichero.values(), esperados);
        QList<qint32> claves;
        for (const auto& participe : abierta.participantes.colParticipes) {
            claves << participe->cspa;
            EXPECT_EQ(participe->Modo.texto(), q(u"C"));
        }
        EXPECT_EQ(claves, enFichero.keys());
        EXPECT_EQ(abierta.NumParti, esperados.size());
    }
};

TEST_F(CaminosTrasImprimir, UnaGuardada) {
    const qint32 clave = unica();
    const Filas antes = filas(clave);
    abrir();
    cambiar(Jon, u"txtNombre", u"Jon bat");
    pulsar({u"cmdInicio"});
    imprimir();
    esperaLosGuardados({ane, q(u"X1234567L JON BAT 40")});
    EXPECT_EQ(filas(clave).keys(), antes.keys());
    pulsar({u"cmdAnexo"});
    eliminar(Ane);
    cambiar(Jon, u"txtPorcentaje", u"100");
    guardarUno();
    EXPECT_EQ(guardados(unica()), QStringList{q(u"X1234567L JON BAT 100")});
    EXPECT_EQ(filas(clave).firstKey(), antes.key(jon));
    EXPECT_EQ(cuantasFilas(), 1);
}

TEST_F(CaminosTrasImprimir, UnaNueva) {
    const qint32 otra = unica();
    empezar();
    pulsar({u"cmdInicio"});
    imprimir();
    ASSERT_EQ(declaraciones().size(), 2);
    const qint32 clave = declaraciones()[1];
    EXPECT_EQ(programa_->declaracion().csde, clave);
    esperaLosGuardados({ane, jon});
    const Filas antes = filas(clave);
    pulsar({u"cmdAnexo"});
    cambiar(Ane, u"txtNombre", u"Ane bi");
    cambiar(Jon, u"txtPorcentaje", u"30");
    anadir({u"E12345674", u"LASA", u"10"});
    guardar();
    EXPECT_EQ(declaraciones(), (QList<qint32>{otra, clave}));
    EXPECT_EQ(guardados(clave), (QStringList{q(u"12345678Z ANE BI 60"), q(u"E12345674 LASA 10"),
                                             q(u"X1234567L JON 30")}));
    EXPECT_EQ(filas(clave).keys().mid(0, 2), antes.keys());
    EXPECT_EQ(guardados(otra), (QStringList{ane, jon}));
    EXPECT_EQ(cuantasFilas(), 5);
}

TEST_F(CaminosTrasImprimir, UnaCopia) {
    const qint32 original = unica();
    const Filas suyas = filas(original);
    copiar();
    eliminar(Jon);
    anadir({Jon.dni, u"JON BERRI", u"40"});
    pulsar({u"cmdInicio"});
    imprimir();
    ASSERT_EQ(declaraciones().size(), 2);
    const qint32 copia = declaraciones()[1];
    EXPECT_EQ(programa_->declaracion().csde, copia);
    esperaLosGuardados({ane, q(u"X1234567L JON BERRI 40")});
    const Filas antes = filas(copia);
    pulsar({u"cmdAnexo"});
    cambiar(Jon, u"txtPorcentaje", u"100");
    eliminar(Ane);
    guardarUno();
    EXPECT_EQ(guardados(copia), QStringList{q(u"X1234567L JON BERRI 100")});
    EXPECT_EQ(filas(copia).firstKey(), antes.lastKey()) << "the same row";
    EXPECT_EQ(filas(original), suyas);
    EXPECT_EQ(cuantasFilas(), 3);
}

// Nothing is stored on Cancel, and the save that follows stores each of them once.
TEST_F(CaminosTrasImprimir, SinGuardar) {
    const qint32 clave = unica();
    const Filas antes = filas(clave);
    abrir();
    cambiar(Jon, u"txtNombre", u"Jon bat");
    pulsar({u"cmdInicio"});
    avisos.Espera({texto(538), texto(539), Icono::Informacion, Botones::AceptarCancelar},
                  Respuesta::Cancelar);
    pulsar({u"cmdImprimir"});
    ASSERT_NE(pantalla("FrmDatGen"), nullptr);
    EXPECT_EQ(filas(clave), antes);
    pulsar({u"cmdAceptar"});
    EXPECT_EQ(filas(clave).values(), (QStringList{ane, q(u"X1234567L JON BAT 40")}));
    EXPECT_EQ(filas(clave).keys(), antes.keys());
}

}  // namespace

}  // namespace padral::pruebas
