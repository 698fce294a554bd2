// The identifier of a participant: another one makes another participant the current one.

#include "participants/participant_fixture.h"

namespace padral::pruebas {
namespace {

class Identificador : public PantallaParticipe {
protected:
    void esperaNifMalo() { avisos.Espera(q(u"El NIF no es válido..."), q(u"Fallo en el NIF")); }
    /// The screen shows a blank new participant with that identifier.
    void esperaNuevo(const char16_t* dni) {
        DatosParticipe nuevo;
        nuevo.DNI = q(dni);
        EXPECT_TRUE(datos() == nuevo);
        EXPECT_EQ(p().Modo, q(u"A"));
        EXPECT_EQ(p().Lleno, q(u"False"));
        EXPECT_TRUE(p().MODIFPARTICIPES);
        EXPECT_EQ(texto(u"txtDNI"), q(dni));
        for (const auto* campo : {u"txtNombre", u"txtDomicilio", u"txtPorcentaje"})
            EXPECT_EQ(texto(campo), QString());
        esperaBotones(false, false);
    }
};

TEST_F(Identificador, UnoNuevoEmpiezaUnParticipe) {
    for (const auto* dni : {u"12345678Z", u"X1234567L", u"A12345674", u"E12345674"}) {
        abrirNuevo();
        rellenar(u"txtDNI", dni);
        esperaNuevo(dni);
        EXPECT_EQ(foco(), q(u"txtNombre"));
        EXPECT_EQ(cuantos(), 0U) << "only accepting takes it in";
        EXPECT_EQ(d.NumParti, 0);
    }
}

TEST_F(Identificador, SeEscribeYSeComparaEnMayusculas) {
    abrirNuevo();
    rellenar(u"txtDNI", u"x1234567l");
    esperaNuevo(u"X1234567L");
    rellenar(u"txtNombre", u"soto ane");
    sinCambios([&] { rellenar(u"txtDNI", u"x1234567l"); });
    // What an older file may hold.
    DatosParticipe antiguo = participeAjeno(u"x1234567l");
    const auto otro = verUno(antiguo);
    sinCambios([&] { rellenar(u"txtDNI", u"X1234567L"); });
    EXPECT_EQ(d.participantes.ParticipeActual, otro);
}

TEST_F(Identificador, ElMismoNoCambiaNada) {
    const auto uno = verUno();
    sinCambios([&] {
        rellenar(u"txtDNI", u"12345678Z");
        rellenar(u"txtDNI", u"12345678z");
    });
    EXPECT_EQ(d.participantes.ParticipeActual, uno);
    EXPECT_EQ(uno->Modo, q(u"C"));
}

TEST_F(Identificador, NingunoSePuedeDejarVacioSinMensaje) {
    abrirNuevo();
    sinCambios([&] { rellenar(u"txtDNI", u""); });
    EXPECT_EQ(foco(), q(u"txtNombre"));
}

TEST_F(Identificador, OtroEmpiezaOtroYDejaElMostradoComoEsta) {
    const auto uno = verUno(participeCompleto());
    const DatosParticipe antes = *uno;
    rellenar(u"txtDNI", u"X1234567L");
    esperaNuevo(u"X1234567L");
    EXPECT_NE(d.participantes.ParticipeActual, uno);
    EXPECT_TRUE(static_cast<const DatosParticipe&>(*uno) == antes);
    EXPECT_EQ(uno->Modo, q(u"C"));
    EXPECT_EQ(cuantos(), 1U);
    EXPECT_EQ(d.participantes.colParticipes[0], uno);
    // The way back leads to what was left.
    rellenar(u"txtDNI", u"12345678Z");
    EXPECT_EQ(d.participantes.ParticipeActual, uno);
    EXPECT_EQ(texto(u"txtNombre"), q(u"LASA JON"));
    EXPECT_EQ(texto(u"txtPorcentaje"), q(u"33,25"));
}

// Changes that nobody accepted do not stay behind in the collection.
TEST_F(Identificador, LoNoAceptadoDelQueSeDejaSePierde) {
    poner(participePropio(u"A12345674"));
    for (const auto* dni : {u"X1234567L", u"A12345674"}) {
        const auto uno = verUno(participeCompleto());
        rellenar(u"txtNombre", u"");
        rellenar(u"txtDomicilio", u"otra");
        ASSERT_TRUE(uno->MODIFPARTICIPES);
        rellenar(u"txtDNI", dni);
        EXPECT_NE(d.participantes.ParticipeActual, uno);
        EXPECT_TRUE(static_cast<const DatosParticipe&>(*uno) == participeCompleto());
        EXPECT_FALSE(uno->MODIFPARTICIPES);
    }
    // A refused one leaves them where they are.
    verUno();
    rellenar(u"txtDomicilio", u"otra");
    esperaNifMalo();
    sinCambios([&] { rellenar(u"txtDNI", u"12345678A"); });
}

TEST_F(Identificador, UnoDeLaListaSeMuestra) {
    const auto primero = poner(participePropio(u"12345678Z"), u"A");
    DatosParticipe conOtroNombre = participeAjeno(u"X1234567L");
    conOtroNombre.NOMBRE = q(u"SOTO ANE");
    const auto segundo = poner(conOtroNombre, u"C");
    abrirNuevo();
    for (const auto& [dni, esperado, nombre] :
         {std::tuple{u"12345678Z", primero, u"LASA JON"}, {u"x1234567l", segundo, u"SOTO ANE"}}) {
        rellenar(u"txtDNI", dni);
        EXPECT_EQ(d.participantes.ParticipeActual, esperado);
        EXPECT_EQ(esperado->Modo, q(u"C"));
        EXPECT_FALSE(esperado->MODIFPARTICIPES);
        EXPECT_EQ(texto(u"txtNombre"), q(nombre));
        EXPECT_EQ(texto(u"txtDNI"), q(dni).toUpper());
        esperaBotones(true, true);
        EXPECT_EQ(foco(), q(u"txtNombre"));
    }
    EXPECT_FALSE(habilitado(u"cmdListaMunicipios")) << "that of the one shown now";
    EXPECT_EQ(cuantos(), 2U);
}

// Whatever was pending, on the one that is left or on the one that is found.
TEST_F(Identificador, ElHalladoNoTieneCambiosPendientes) {
    for (const bool pendienteAntes : {false, true}) {
        d.InicializarDeclaracion();
        const auto uno = poner(participeAjeno());
        verUno(participePropio(u"A12345674"));
        rellenar(u"txtNombre", u"soto ane");
        ASSERT_TRUE(p().MODIFPARTICIPES);
        uno->MODIFPARTICIPES = pendienteAntes;
        rellenar(u"txtDNI", u"12345678Z");
        EXPECT_EQ(d.participantes.ParticipeActual, uno);
        EXPECT_FALSE(p().MODIFPARTICIPES);
        esperaBotones(true, true);
    }
}

TEST_F(Identificador, DejarUnoNuevoPorUnoDeLaListaLoOlvida) {
    const auto uno = poner(participeAjeno());
    abrirNuevo();
    rellenar(u"txtDNI", u"X1234567L");
    rellenar(u"txtNombre", u"soto ane");
    ASSERT_TRUE(p().MODIFPARTICIPES);
    rellenar(u"txtDNI", u"12345678Z");
    EXPECT_FALSE(p().MODIFPARTICIPES);
    esperaBotones(true, true);
    EXPECT_EQ(d.participantes.ParticipeActual, uno);
    EXPECT_EQ(texto(u"txtNombre"), q(u"LASA JON"));
    EXPECT_EQ(cuantos(), 1U);
}

TEST_F(Identificador, UnoBorradoSeEmpiezaDeNuevo) {
    const auto borrado = poner(participeCompleto(), u"E", 5);
    const DatosParticipe antes = *borrado;
    abrirNuevo();
    rellenar(u"txtDNI", u"12345678Z");
    esperaNuevo(u"12345678Z");
    EXPECT_NE(d.participantes.ParticipeActual, borrado);
    EXPECT_EQ(p().cspa, 0);
    EXPECT_TRUE(static_cast<const DatosParticipe&>(*borrado) == antes);
    EXPECT_EQ(borrado->Modo, q(u"E")) << "the store has to be told";
    EXPECT_EQ(cuantos(), 1U);
}

// The one on show when it was deleted is never filled again.
TEST_F(Identificador, ElBorradoQueAunEraElActualTampocoSeToca) {
    const auto borrado = verUno(participeCompleto());
    borrado->Modo = q(u"E");
    const DatosParticipe antes = *borrado;
    pulsar(u"cmdOtroParticipe");
    rellenar(u"txtDNI", u"12345678Z");
    esperaNuevo(u"12345678Z");
    EXPECT_TRUE(static_cast<const DatosParticipe&>(*borrado) == antes);
    EXPECT_EQ(borrado->Modo, q(u"E"));
}

TEST_F(Identificador, UnoQueNoValeSeRechaza) {
    for (const auto* dni : {u"12345678A", u"1", u"X1234567A", u"A12345670", u"ABC"})
        for (const bool nuevo : {true, false}) {
            SCOPED_TRACE(s(dni));
            d.InicializarDeclaracion();
            if (nuevo)
                abrirNuevo();
            else
                verUno();
            const QString antes = texto(u"txtDNI");
            const auto mostrado = d.participantes.ParticipeActual;
            esperaNifMalo();
            sinCambios([&] { rellenar(u"txtDNI", dni); });
            avisos.Verificar();
            EXPECT_EQ(foco(), q(u"txtDNI"));
            EXPECT_EQ(texto(u"txtDNI"), antes) << "the record shows again";
            EXPECT_EQ(c<QLineEdit>(u"txtDNI")->selectedText(), antes);
            EXPECT_EQ(d.participantes.ParticipeActual, mostrado);
        }
}

TEST_F(Identificador, VaciarloSeRechaza) {
    for (const auto* vacio : {u"", u"   "}) {
        verUno();
        esperaNifMalo();
        sinCambios([&] { rellenar(u"txtDNI", vacio); });
        avisos.Verificar();
        EXPECT_EQ(foco(), q(u"txtDNI"));
        EXPECT_EQ(texto(u"txtDNI"), q(u"12345678Z"));
    }
}

TEST_F(Identificador, ElMensajeEnEuskera) {
    enEuskera();
    verUno();
    avisos.Espera(q(u"IFZa ez da baliagarria..."), q(u"Akatsa IFZan"));
    rellenar(u"txtDNI", u"12345678A");
    avisos.Verificar();
}

TEST_F(Identificador, ElRechazadoDetieneLoQueSePulso) {
    for (const auto* boton :
         {u"cmdAceptar", u"cmdVolver", u"cmdOtroParticipe", u"cmdCancelar", u"PicCan"}) {
        const auto uno = verUno();
        escribir(u"txtDNI", u"12345678A");
        esperaNifMalo();
        sinCambios([&] { pulsar(boton); });
        avisos.Verificar();
        EXPECT_EQ(pantallas.Tomar(), QStringList()) << s(boton);
        EXPECT_EQ(foco(), q(u"txtDNI"));
        EXPECT_EQ(d.participantes.ParticipeActual, uno);
    }
}

TEST_F(Identificador, UnaCasillaPulsadaTrasUnoMaloNoSeMarca) {
    verUno();
    escribir(u"txtDNI", u"12345678A");
    esperaNifMalo();
    sinCambios([&] { pulsar(u"chkEDModulos1"); });
    EXPECT_FALSE(marcada(u"chkEDModulos1"));
}

// The key goes down on the button while the field still has the focus of its window.
TEST_F(Identificador, IntroEnCancelarNoLoComprueba) {
    for (const auto codigo : {Qt::Key_Return, Qt::Key_Enter}) {
        const auto uno = verUno();
        escribir(u"txtDNI", u"12345678A");
        QTest::keyClick(c(u"cmdCancelar"), codigo);
        EXPECT_EQ(pantallas.Tomar(), salida(u"frmListaParticipes"));
        EXPECT_EQ(d.participantes.ParticipeActual, uno);
    }
}

TEST_F(Identificador, OtraTeclaEnCancelarLoComprueba) {
    verUno();
    escribir(u"txtDNI", u"12345678A");
    esperaNifMalo();
    QTest::keyClick(c(u"cmdCancelar"), Qt::Key_Space);
    avisos.Verificar();
    EXPECT_EQ(pantallas.Tomar(), QStringList());
    // Enter on another button is no cancelling.
    escribir(u"txtDNI", u"12345678A");
    esperaNifMalo();
    QTest::keyClick(c(u"cmdVolver"), Qt::Key_Return);
    avisos.Verificar();
    EXPECT_EQ(pantallas.Tomar(), QStringList());
}

}  // namespace
}  // namespace padral::pruebas
