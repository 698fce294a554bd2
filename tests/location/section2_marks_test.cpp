// The same-as-fiscal marks and the states that hang on them.

#include "location/section2_fixture.h"

namespace padral::pruebas {
namespace {

class Marcas : public EnCadaDomicilio {
protected:
    void SetUp() override {
        EnCadaDomicilio::SetUp();
        r.Fis = enProvinciaPropia();
    }
    QString casilla() const { return q(GetParam().marca); }
    const QString& marca() { return r.*GetParam().elMismo; }
    void esperaApagado(bool apagado) {
        for (const auto* control :
             {u"txtSigDom", u"txtDom", u"numNum", u"txtLet", u"txtEsc", u"txtPis", u"txtMan",
              u"numCodProv", u"numCod", u"txtMun", u"numTel"}) {
            EXPECT_EQ(habilitado(n(control)), !apagado) << s(control);
            EXPECT_EQ(fondo(n(control)) == 0xFFE0E0E0, apagado) << s(control);
        }
        for (const auto* control : {u"cmdLstVia", u"cmdLstProv"})
            EXPECT_EQ(habilitado(n(control)), !apagado) << s(control);
        for (const auto* control : {u"txtVia", u"txtProv", u"numCodMun", u"lblDom"})
            EXPECT_TRUE(habilitado(n(control))) << s(control);
        EXPECT_FALSE(habilitado(n(u"cmdLstMun")));
    }
    void esperaVacio() {
        for (const auto* campo :
             {u"txtSigDom", u"txtVia", u"txtDom", u"numNum", u"txtLet", u"txtEsc", u"txtPis",
              u"txtMan", u"numCodProv", u"txtProv", u"numCod", u"numCodMun", u"txtMun", u"numTel"})
            EXPECT_EQ(texto(n(campo)), QString()) << s(campo);
        EXPECT_TRUE(b() == BloqueDireccion{});
    }
};

TEST_P(Marcas, MarcarVaciaYApagaElDomicilio) {
    b() = completa();
    abrirAceptado();
    const DatosApartado2 antes = r;
    pulsar(casilla());
    EXPECT_TRUE(marcada(casilla()));
    EXPECT_EQ(marca(), q(u"X"));
    EXPECT_TRUE(r.Modificaciones);
    esperaVacio();
    esperaApagado(true);
    for (const auto& otro : DomiciliosEsperados)
        if (q(otro.sufijo) != q(GetParam().sufijo)) {
            EXPECT_TRUE(r.*otro.bloque == antes.*otro.bloque) << s(otro.sufijo);
        }
    EXPECT_TRUE(r.TablaAuxiliar() == antes) << "the working copy stays";
}

TEST_P(Marcas, QuitarLaMarcaEnciendeElDomicilioVacio) {
    b() = completa();
    abrir();
    pulsar(casilla());
    pulsar(casilla());
    EXPECT_FALSE(marcada(casilla()));
    EXPECT_EQ(marca(), QString());
    esperaVacio();
    esperaApagado(false);
    rellenar(n(u"txtDom"), q(u"NUEVO"));
    EXPECT_EQ(b().NombreDomicilio, q(u"NUEVO"));
}

TEST_P(Marcas, ElEspacioMarcaComoElRaton) {
    abrir();
    enfocar(casilla());
    tecla(Qt::Key_Space);
    EXPECT_EQ(marca(), q(u"X"));
    esperaApagado(true);
}

TEST_P(Marcas, ElCierreDelMunicipioEsperaAlSiguienteCambio) {
    b() = enProvinciaPropia();
    abrir();
    pulsar(casilla());
    EXPECT_FALSE(bloqueado(n(u"numCodMun"))) << "as it was in the own province";
    EXPECT_TRUE(bloqueado(n(u"txtMun")));
    EXPECT_FALSE(habilitado(n(u"cmdLstMun")));
    pulsar(casilla());
    EXPECT_FALSE(bloqueado(n(u"numCodMun")));
    EXPECT_TRUE(bloqueado(n(u"txtMun")));
    EXPECT_FALSE(habilitado(n(u"cmdLstMun"))) << "unmarking leaves the button";
    rellenar(n(u"txtDom"), q(u"NUEVO"));
    EXPECT_TRUE(bloqueado(n(u"numCodMun")));
    EXPECT_FALSE(bloqueado(n(u"txtMun")));
}

TEST_P(Marcas, UnCambioEnOtroDomicilioDejaElMarcadoApagado) {
    b() = enProvinciaPropia();
    abrir();
    pulsar(casilla());
    rellenar(q(u"txtDomFis"), q(u"OTRA"));
    EXPECT_TRUE(marcada(casilla()));
    EXPECT_EQ(marca(), q(u"X"));
    esperaVacio();
    esperaApagado(true);
    EXPECT_TRUE(bloqueado(n(u"numCodMun"))) << "the next change locks it";
}

TEST_P(Marcas, UnDomicilioMarcadoSaleApagadoAlAbrir) {
    r.*GetParam().elMismo = q(u"X");
    abrirAceptado();
    EXPECT_TRUE(marcada(casilla()));
    EXPECT_EQ(marca(), q(u"X"));
    EXPECT_FALSE(r.Modificaciones);
    esperaVacio();
    esperaApagado(true);
    EXPECT_TRUE(datos() == r.TablaAuxiliar());
}

TEST_P(Marcas, SinDomicilioFiscalNoHayMarca) {
    r.Fis = {};
    b() = completa();
    abrir();
    EXPECT_FALSE(habilitado(casilla()));
    EXPECT_FALSE(marcada(casilla()));
    EXPECT_TRUE(b() == completa());
    rellenar(q(u"numTelFis"), q(u"943111222"));
    EXPECT_TRUE(habilitado(casilla())) << "anything in it makes a fiscal domicile";
    EXPECT_TRUE(b() == completa());
}

TEST_P(Marcas, VaciarElFiscalQuitaLaMarca) {
    r.Fis = {};
    r.Fis.NombreDomicilio = q(u"MAYOR");
    r.*GetParam().elMismo = q(u"X");
    abrirAceptado();
    ASSERT_TRUE(marcada(casilla()));
    rellenar(q(u"txtDomFis"), QString());
    EXPECT_FALSE(marcada(casilla()));
    EXPECT_FALSE(habilitado(casilla()));
    EXPECT_EQ(marca(), QString());
    esperaVacio();
    esperaApagado(false);
    EXPECT_TRUE(r.Modificaciones);
}

TEST_P(Marcas, UnaMarcaSinFiscalSeQuitaAlAbrir) {
    r.Fis = {};
    r.*GetParam().elMismo = q(u"X");
    abrir();
    EXPECT_FALSE(marcada(casilla()));
    EXPECT_EQ(marca(), QString());
    EXPECT_FALSE(r.Modificaciones);
    esperaApagado(false);
}

TEST_P(Marcas, UnCampoNumericoACeroNoCuenta) {
    r.Fis = {};
    abrir();
    pulsar(q(u"cmdLstProvFis"));
    ASSERT_EQ(texto(q(u"numCodProvFis")), q(u"0"));
    tecla(Qt::Key_Escape);
    rellenar(q(u"txtDomNot"), q(u"A"));
    EXPECT_FALSE(habilitado(casilla()));
}

TEST_P(Marcas, UnDesconocidoEnElFiscalNoLlegaAMarcar) {
    b() = completa();
    abrir();
    escribir(q(u"numCodProvFis"), q(u"99"));
    pulsar(casilla());
    EXPECT_FALSE(marcada(casilla()));
    EXPECT_EQ(marca(), QString());
    EXPECT_TRUE(b() == completa());
    EXPECT_TRUE(visible(q(u"lstProvFis")));
}

TEST_P(Marcas, UnCodigoEscritoEnElMarcadoNoAbreSuListaApagada) {
    b() = enProvinciaPropia();
    abrir();
    pulsar(casilla());
    rellenar(n(u"numCodMun"), q(u"999"));
    EXPECT_FALSE(visible(n(u"lstMun")));
    EXPECT_EQ(texto(n(u"numCodMun")), QString());
    EXPECT_NE(foco(), n(u"numCodMun"));
}

TEST_P(Marcas, UnCodigoConocidoEscritoEnElMarcadoSeTira) {
    b() = enProvinciaPropia();
    abrir();
    pulsar(casilla());
    rellenar(n(u"numCodMun"), q(u"69"));
    EXPECT_TRUE(b() == BloqueDireccion{});
    EXPECT_EQ(texto(n(u"numCodMun")) + texto(n(u"txtMun")), QString());
    EXPECT_TRUE(bloqueado(n(u"numCodMun")));
    EXPECT_EQ(marca(), q(u"X"));
    EXPECT_TRUE(QApplication::focusWidget() && QApplication::focusWidget()->isEnabled());
    EXPECT_NE(foco(), n(u"numCodMun"));
    esperaApagado(true);
}

TEST_P(Marcas, UnCodigoConocidoEscritoEnElMarcadoDejaSalir) {
    for (const auto* salida : {u"cmdInicio", u"cmdApartadoAnterior", u"cmdApartadoSiguiente"}) {
        g.Apartado3 = q(u"X");
        (r.*GetParam().elMismo).clear();
        b() = enProvinciaPropia();
        abrir();
        pulsar(casilla());
        escribir(n(u"numCodMun"), q(u"69"));
        pulsar(q(salida));
        EXPECT_EQ(pantallas.Tomar().size(), 2) << s(salida);
        EXPECT_TRUE(b() == BloqueDireccion{});
        EXPECT_EQ(r.TablaAuxiliar().*GetParam().elMismo, q(u"X"));
    }
}

TEST_P(Marcas, VaciarElUltimoCampoFiscalSigueEnUnCampoEncendido) {
    for (const bool marcado : {false, true}) {
        r.Fis = {};
        r.Fis.Telefono = 943111222;
        b() = marcado ? BloqueDireccion{} : completa();
        r.*GetParam().elMismo = marcado ? q(u"X") : QString();
        abrirAceptado();
        rellenar(q(u"numTelFis"), QString());
        EXPECT_TRUE(r.Fis == BloqueDireccion{});
        EXPECT_EQ(marca(), QString());
        EXPECT_TRUE(b() == (marcado ? BloqueDireccion{} : completa()));
        EXPECT_TRUE(r.Modificaciones);
        EXPECT_FALSE(habilitado(q(u"chkDSocElMismo"))) << "the next stop is off";
        EXPECT_EQ(foco(), q(u"txtSigDomSoc"));
        EXPECT_TRUE(habilitado(q(u"txtSigDomSoc")));
    }
}
INSTANTIATE_TEST_SUITE_P(Domicilios, Marcas, LosMarcables());

using TresMarcas = PantallaApartado2;

TEST_F(TresMarcas, VaciarElFiscalQuitaLasTres) {
    r.Fis.Numero = 5;
    abrir();
    for (const auto* casilla : {u"chkDSocElMismo", u"chkDActElMismo", u"chkDNotElMismo"})
        pulsar(q(casilla));
    EXPECT_EQ(r.ElMismoSoc + r.ElMismoAct + r.ElMismoNot, q(u"XXX"));
    rellenar(q(u"numNumFis"), q(u"0"));
    EXPECT_EQ(r.ElMismoSoc + r.ElMismoAct + r.ElMismoNot, QString());
    for (const auto* casilla : {u"chkDSocElMismo", u"chkDActElMismo", u"chkDNotElMismo"}) {
        EXPECT_FALSE(marcada(q(casilla)));
        EXPECT_FALSE(habilitado(q(casilla)));
    }
}

}  // namespace
}  // namespace padral::pruebas
