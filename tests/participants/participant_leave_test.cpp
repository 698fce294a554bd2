// The ways out of a participant's screen: going back and cancelling.

#include <QAbstractButton>

#include "participants/participant_fixture.h"

namespace padral::pruebas {
namespace {

using Salir = PantallaParticipe;

TEST_F(Salir, VolverSinCambios) {
    for (const auto* nombre : {u"cmdVolver", u"PicAnterior"}) {
        const auto uno = verUno();
        sinCambios([&] { pulsar(nombre); });
        EXPECT_EQ(pantallas.Tomar(), salida(u"frmListaParticipes"));
        EXPECT_EQ(estado.FormularioOrigen, q(u"frmDatosParticipe"));
        EXPECT_EQ(uno->Lleno, q(u"False"));
        EXPECT_FALSE(estado.ModificacionesPendientes);
        EXPECT_FALSE(d.parLista.MODIFLISTAPART);
        EXPECT_FALSE(pantallas.EnEspera());
    }
}

TEST_F(Salir, VolverSinComprobarLoQueNadieToco) {
    DatosParticipe roto = participeAjeno();
    roto.NOMBRE = q(u"");
    verUno(roto);
    pulsar(u"cmdVolver");
    EXPECT_EQ(pantallas.Tomar(), salida(u"frmListaParticipes"));
}

TEST_F(Salir, SinParticipesSeVaAlApartadoAnterior) {
    const std::pair<QString DatosGeneralesStore::*, const char16_t*> anteriores[] = {
        {&DatosGeneralesStore::Apartado7, u"FrmApartado7"},
        {&DatosGeneralesStore::Apartado4, u"frmApartado4_2015"},
        {&DatosGeneralesStore::Apartado2, u"FrmApartado2"},
        {&DatosGeneralesStore::AnexoII, u"FrmDatGen"}};
    for (const auto& [bandera, destino] : anteriores) {
        g.Apartado2 = g.Apartado4 = g.Apartado7 = q(u" ");
        g.*bandera = q(u"X");
        g.FECHAVIGOR = 20150101;
        d.EmpezarParticipe();
        abrir();
        pulsar(u"cmdVolver");
        EXPECT_EQ(pantallas.Tomar(), salida(destino));
        abrirNuevo();
        pulsar(u"cmdCancelar");
        EXPECT_EQ(pantallas.Tomar(), salida(destino));
    }
}

TEST_F(Salir, ConCambiosNoSeVuelve) {
    verUno();
    pulsar(u"chkRegAgraria1");
    for (const auto* nombre : {u"cmdVolver", u"PicAnterior", u"cmdOtroParticipe", u"PicNuevo"}) {
        EXPECT_FALSE(habilitado(nombre));
        sinCambios([&] { pulsar(nombre); });
        EXPECT_EQ(pantallas.Tomar(), QStringList());
    }
}

TEST_F(Salir, UnCambioAlSalirDelCampoApagaVolverAntesDelClic) {
    for (const auto* nombre : {u"cmdVolver", u"PicAnterior"}) {
        verUno();
        escribir(u"txtNombre", u"soto ane");
        pulsar(nombre);
        EXPECT_EQ(pantallas.Tomar(), QStringList());
        EXPECT_TRUE(p().MODIFPARTICIPES);
        EXPECT_EQ(p().NOMBRE, q(u"SOTO ANE"));
    }
}

/// The button is off with changes pending: it is turned on to see what it does then.
class VolverConCambios : public PantallaParticipe {
protected:
    void volver(const DatosParticipe& datos) {
        verUno(datos);
        rellenar(u"txtTelefono", u"944000000");
        auto* boton = c<QAbstractButton>(u"cmdVolver");
        boton->setEnabled(true);
        boton->click();
    }
};

TEST_F(VolverConCambios, SeAceptaYSeVa) {
    volver(participeAjeno());
    EXPECT_EQ(pantallas.Tomar(), salida(u"frmListaParticipes"));
    EXPECT_EQ(p().Lleno, q(u"True"));
    EXPECT_FALSE(p().MODIFPARTICIPES);
    EXPECT_TRUE(estado.ModificacionesPendientes);
    p().Telefono = 0;
    p().ObtenerDatosTablaAuxiliar();
    EXPECT_EQ(p().Telefono, 944000000);
}

TEST_F(VolverConCambios, UnaReglaRotaLoRetiene) {
    DatosParticipe roto = participeAjeno();
    roto.NOMBRE = q(u"");
    esperaAviso(361, 125);
    volver(roto);
    avisos.Verificar();
    EXPECT_EQ(pantallas.Tomar(), QStringList());
    EXPECT_EQ(foco(), q(u"txtNombre"));
    EXPECT_TRUE(p().MODIFPARTICIPES);
    EXPECT_EQ(p().Lleno, q(u"False"));
    EXPECT_FALSE(estado.ModificacionesPendientes);
}

TEST_F(Salir, CancelarDevuelveLoAceptado) {
    for (const auto* nombre : {u"cmdCancelar", u"PicCan"}) {
        const auto uno = verUno(participeCompleto());
        rellenar(u"txtNombre", u"");
        rellenar(u"txtDomicilio", u"otra");
        rellenar(u"txtPorcentaje", u"50");
        pulsar(u"chkEDSimplificada2");
        EXPECT_FALSE(datos() == participeCompleto());
        pulsar(nombre);
        EXPECT_EQ(pantallas.Tomar(), salida(u"frmListaParticipes"));
        EXPECT_TRUE(static_cast<const DatosParticipe&>(*uno) == participeCompleto());
        EXPECT_FALSE(uno->MODIFPARTICIPES);
        EXPECT_EQ(uno->Modo, q(u"C"));
        EXPECT_FALSE(estado.ModificacionesPendientes);
        EXPECT_EQ(estado.FormularioOrigen, q(u"frmDatosParticipe"));
        EXPECT_FALSE(pantallas.EnEspera());
    }
}

TEST_F(Salir, CancelarSinCambiosNoTocaNada) {
    const auto uno = verUno();
    uno->Telefono = 5;
    sinCambios([&] { pulsar(u"cmdCancelar"); });
    EXPECT_EQ(uno->Telefono, 5);
    EXPECT_EQ(pantallas.Tomar(), salida(u"frmListaParticipes"));
}

TEST_F(Salir, CancelarUnoNuncaAceptadoLoDejaEnBlanco) {
    poner(participeAjeno(u"X1234567L"));
    abrirNuevo();
    rellenar(u"txtDNI", u"12345678Z");
    rellenar(u"txtNombre", u"lasa jon");
    pulsar(u"cmdCancelar");
    EXPECT_EQ(pantallas.Tomar(), salida(u"frmListaParticipes"));
    EXPECT_TRUE(datos() == DatosParticipe{});
    EXPECT_FALSE(p().MODIFPARTICIPES);
    EXPECT_EQ(cuantos(), 1U);
    EXPECT_EQ(d.NumParti, 1);
    EXPECT_FALSE(d.HayModificaciones());
}

TEST_F(Salir, CancelarConIntroEnElBoton) {
    verUno();
    pulsar(u"chkRegAgraria1");
    enfocar(u"cmdCancelar");
    tecla(Qt::Key_Return);
    EXPECT_EQ(pantallas.Tomar(), salida(u"frmListaParticipes"));
    EXPECT_TRUE(datos() == participeAjeno());
}

TEST_F(Salir, CadaOrdenConElCursorDeEspera) {
    for (const auto* nombre : {u"cmdAceptar", u"cmdOtroParticipe", u"cmdVolver", u"cmdCancelar"}) {
        verUno();
        const int antes = pantallas.EsperasTotales;
        pulsar(nombre);
        EXPECT_EQ(pantallas.EsperasTotales, antes + 1) << s(nombre);
        EXPECT_FALSE(pantallas.EnEspera());
    }
}

TEST_F(Salir, LasFlechasVanDeBotonEnBoton) {
    verUno();
    enfocar(u"cmdAceptar");
    QStringList visitados;
    for (int i = 0; i < 5; ++i) {
        visitados << foco();
        tecla(i % 2 ? Qt::Key_Down : Qt::Key_Right);
    }
    EXPECT_EQ(visitados, QStringList({q(u"cmdAceptar"), q(u"cmdCancelar"), q(u"cmdOtroParticipe"),
                                      q(u"cmdVolver"), q(u"cmdVolver")}));
    pulsar(u"chkRegAgraria1");
    enfocar(u"cmdCancelar");
    tecla(Qt::Key_Right);
    EXPECT_EQ(foco(), q(u"cmdCancelar")) << "those that are off are passed by";
}

TEST_F(Salir, LasTeclasDeAccesoDeLosDosIdiomas) {
    const auto pulsado = [this](Qt::Key codigo) {
        verUno();
        tecla(codigo, Qt::AltModifier);
        const auto algo = [this] {
            return !pantallas.Llamadas.isEmpty() || datos() == DatosParticipe{};
        };
        EXPECT_TRUE(QTest::qWaitFor(algo));
        return pantallas.Tomar();
    };
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        EXPECT_EQ(pulsado(euskera ? Qt::Key_I : Qt::Key_V), salida(u"frmListaParticipes"));
        EXPECT_EQ(pulsado(euskera ? Qt::Key_Z : Qt::Key_C), salida(u"frmListaParticipes"));
        EXPECT_EQ(pulsado(euskera ? Qt::Key_B : Qt::Key_O), QStringList());
        EXPECT_TRUE(datos() == DatosParticipe{});
    }
}

}  // namespace
}  // namespace padral::pruebas
