// Accepting a participant and starting another one.

#include "participants/participant_fixture.h"

namespace padral::pruebas {
namespace {

class Aceptar : public PantallaParticipe {
protected:
    /// Types a whole participant into the screen.
    void escribirParticipe(const char16_t* dni) {
        const std::pair<const char16_t*, const char16_t*> campos[] = {
            {u"txtNombre", u"lasa jon"},    {u"txtSiglas", u"cl"},
            {u"txtDomicilio", u"mayor"},    {u"txtCodProvincia", u"28"},
            {u"txtCodigoPostal", u"28001"}, {u"txtMunicipio", u"poblado"},
            {u"txtPorcentaje", u"33,25"}};
        rellenar(u"txtDNI", dni);
        for (const auto& [nombre, valor] : campos) rellenar(nombre, valor);
    }
    /// A current participant that is new and breaks no rule.
    void nuevo(const DatosParticipe& datos = participeAjeno()) {
        static_cast<DatosParticipe&>(d.EmpezarParticipe()) = datos;
        p().MODIFPARTICIPES = true;
        abrir();
    }
    void llenar(int cuantos) {
        for (int i = 0; i < cuantos; ++i) poner(participeAjeno(u"X1234567L"));
    }
    void esperaContadores(qint16 cuantos) {
        EXPECT_EQ(d.NumParti, cuantos);
        EXPECT_EQ(g.NumParti, cuantos);
        EXPECT_EQ(d.parLista.NUMPARTLIST, cuantos);
    }
};

TEST_F(Aceptar, UnoNuevoEntraEnLaColeccion) {
    abrirNuevo();
    escribirParticipe(u"12345678Z");
    DatosParticipe esperado = participeAjeno();
    EXPECT_TRUE(datos() == esperado);
    EXPECT_EQ(cuantos(), 0U);
    const auto actual = d.participantes.ParticipeActual;
    pulsar(u"cmdAceptar");
    ASSERT_EQ(cuantos(), 1U);
    EXPECT_EQ(d.participantes.colParticipes[0], actual);
    EXPECT_EQ(d.participantes.ParticipeActual, actual) << "the screen stays on it";
    esperado.csde = 12;
    EXPECT_TRUE(datos() == esperado);
    EXPECT_EQ(actual->Modo, q(u"C"));
    EXPECT_EQ(actual->cspa, 0);
    EXPECT_FALSE(actual->MODIFPARTICIPES);
    EXPECT_TRUE(d.parLista.MODIFLISTAPART);
    EXPECT_TRUE(estado.ModificacionesPendientes);
    esperaContadores(1);
    esperaBotones(true, true);
    for (const auto* nombre : {u"cmdVolver", u"PicAnterior"})
        EXPECT_EQ(c(nombre)->toolTip(), q(u"Se accede a la lista de partícipes"));
    EXPECT_EQ(pantallas.Tomar(), QStringList()) << "the screen stays open";
    EXPECT_FALSE(pantallas.EnEspera());
}

TEST_F(Aceptar, LaImagenHaceLoMismo) {
    nuevo();
    pulsar(u"PicOKey");
    EXPECT_EQ(cuantos(), 1U);
    EXPECT_FALSE(p().MODIFPARTICIPES);
}

TEST_F(Aceptar, LoAceptadoEsLoQueCancelarDevuelve) {
    nuevo();
    pulsar(u"cmdAceptar");
    const DatosParticipe aceptado = p();
    rellenar(u"txtNombre", u"otro");
    pulsar(u"chkRegAgraria1");
    pulsar(u"cmdCancelar");
    EXPECT_TRUE(datos() == aceptado);
    EXPECT_EQ(p().Modo, q(u"C"));
}

TEST_F(Aceptar, UnoExistenteNoSeAnadeOtraVez) {
    const auto uno = poner(participeAjeno(), u"C", 7);
    ver(uno);
    rellenar(u"txtNombre", u"soto ane");
    pulsar(u"cmdAceptar");
    EXPECT_EQ(cuantos(), 1U);
    esperaContadores(1);
    EXPECT_EQ(uno->NOMBRE, q(u"SOTO ANE"));
    EXPECT_EQ(uno->csde, 12);
    EXPECT_EQ(uno->cspa, 7);
    EXPECT_EQ(uno->Modo, q(u"C"));
    EXPECT_FALSE(uno->MODIFPARTICIPES);
    EXPECT_TRUE(d.parLista.MODIFLISTAPART);
    EXPECT_TRUE(estado.ModificacionesPendientes);
    uno->NOMBRE = q(u"");
    uno->ObtenerDatosTablaAuxiliar();
    EXPECT_EQ(uno->NOMBRE, q(u"SOTO ANE"));
    esperaBotones(true, true);
}

TEST_F(Aceptar, SinCambiosNoHaceNada) {
    DatosParticipe roto = participeAjeno();
    roto.NOMBRE = q(u"");
    verUno(roto);
    sinCambios([&] { pulsar(u"cmdAceptar"); });
    EXPECT_FALSE(d.parLista.MODIFLISTAPART);
    EXPECT_FALSE(estado.ModificacionesPendientes);
    EXPECT_EQ(p().csde, 0);
    // Not even one that was started and left blank.
    pulsar(u"cmdOtroParticipe");
    sinCambios([&] { pulsar(u"cmdAceptar"); });
    EXPECT_EQ(cuantos(), 1U);
}

TEST_F(Aceptar, UnaReglaRotaLoDejaTodoComoEsta) {
    DatosParticipe roto = participeAjeno();
    roto.NOMBRE = q(u"");
    nuevo(roto);
    esperaAviso(361, 125);
    sinCambios([&] { pulsar(u"cmdAceptar"); });
    avisos.Verificar();
    EXPECT_EQ(foco(), q(u"txtNombre"));
    EXPECT_EQ(cuantos(), 0U);
    EXPECT_EQ(p().Modo, q(u"A"));
    EXPECT_EQ(p().csde, 0);
    esperaContadores(0);
    EXPECT_FALSE(d.parLista.MODIFLISTAPART);
    EXPECT_FALSE(estado.ModificacionesPendientes);
}

TEST_F(Aceptar, NoHayMasDeCien) {
    llenar(100);
    nuevo();
    avisos.Espera(q(u" Ya existen 100 participes. No se pueden introducir más."),
                  q(u"Fallo al introducir participe"));
    pulsar(u"cmdAceptar");
    avisos.Verificar();
    EXPECT_EQ(cuantos(), 100U);
    esperaContadores(100);
    EXPECT_EQ(p().Modo, q(u"A"));
    EXPECT_TRUE(p().MODIFPARTICIPES);
    EXPECT_FALSE(estado.ModificacionesPendientes);
    // It is refused at the door: what comes before that stays done, its copy is not taken.
    EXPECT_TRUE(d.parLista.MODIFLISTAPART);
    EXPECT_EQ(p().csde, 12);
    auto copia = p();
    copia.ObtenerDatosTablaAuxiliar();
    EXPECT_TRUE(copia.DNI.vacio());
    esperaBotones(false, false);
    enEuskera();
    avisos.Espera(q(u" 100 partaide daude dagoeneko. Ezin da gehiago sartu."),
                  q(u"Akatsa partaidea sartzean"));
    pulsar(u"cmdAceptar");
}

TEST_F(Aceptar, ElNumeroCienCabe) {
    llenar(99);
    nuevo();
    pulsar(u"cmdAceptar");
    EXPECT_EQ(cuantos(), 100U);
    esperaContadores(100);
    EXPECT_EQ(p().Modo, q(u"C"));
    esperaBotones(true, false);
    // What is there already can still be changed.
    rellenar(u"txtNombre", u"otro");
    pulsar(u"cmdAceptar");
    EXPECT_FALSE(p().MODIFPARTICIPES);
    EXPECT_EQ(cuantos(), 100U);
}

TEST_F(Aceptar, ConCienNoSeEmpiezaOtro) {
    llenar(99);
    verUno();
    esperaBotones(true, false);
    d.DecrementarNumParti();
    abrir();
    esperaBotones(true, true);
}

TEST_F(Aceptar, LosBorradosNoCuentan) {
    llenar(100);
    d.participantes.colParticipes[0]->Modo = q(u"E");
    d.DecrementarNumParti();
    nuevo();
    pulsar(u"cmdAceptar");
    EXPECT_EQ(cuantos(), 101U);
    esperaContadores(100);
}

TEST_F(Aceptar, OtroParticipeEmpiezaEnBlanco) {
    for (const auto* nombre : {u"cmdOtroParticipe", u"PicNuevo"}) {
        const auto uno = verUno(participeCompleto());
        const DatosParticipe antes = *uno;
        pulsar(nombre);
        EXPECT_NE(d.participantes.ParticipeActual, uno);
        EXPECT_TRUE(datos() == DatosParticipe{});
        EXPECT_EQ(p().Modo, q(u"A"));
        EXPECT_FALSE(p().MODIFPARTICIPES);
        EXPECT_TRUE(static_cast<const DatosParticipe&>(*uno) == antes);
        EXPECT_EQ(uno->Modo, q(u"C"));
        EXPECT_EQ(texto(u"txtDNI") + texto(u"txtNombre") + texto(u"txtPorcentaje"), QString());
        EXPECT_FALSE(marcada(u"chkEDSimplificada1"));
        esperaBotones(true, true);
        EXPECT_EQ(pantallas.Tomar(), QStringList());
    }
}

TEST_F(Aceptar, VariosSeguidosYElAlmacen) {
    d.Modo = q(u"A");
    abrirNuevo();
    for (const auto* dni : {u"12345678Z", u"X1234567L", u"A12345674"}) {
        escribirParticipe(dni);
        pulsar(u"cmdAceptar");
        pulsar(u"cmdOtroParticipe");
    }
    esperaContadores(3);
    const qint32 clave = d.GuardarDeclaracion();
    d.GuardarParticipes(clave);
    SvrDPadral::FilasDeclaracion filas;
    qint32 csde = clave;
    almacen.Servidor().CargarDeclaracion(csde, filas);
    ASSERT_EQ(filas.numParti, 3);
    QStringList guardados;
    for (int i = 0; i < 3; ++i) guardados << filas.participes(2, i).toString();
    guardados.sort();
    EXPECT_EQ(guardados, QStringList({q(u"12345678Z"), q(u"A12345674"), q(u"X1234567L")}));
    EXPECT_EQ(filas.participes(3, 0).toString().trimmed(), q(u"LASA JON"));
    EXPECT_FLOAT_EQ(filas.participes(15, 0).toFloat(), 33.25F);
}

// One that was added to a stored declaration has no key yet: the save gives it one.
TEST_F(Aceptar, ElAnadidoAUnaDeclaracionGuardadaSeGuarda) {
    const qint32 clave = d.csde = d.GuardarDeclaracion();
    d.Modo = q(u"C");
    nuevo();
    pulsar(u"cmdAceptar");
    ASSERT_EQ(p().Modo, q(u"C"));
    d.GuardarParticipes(clave);
    EXPECT_NE(p().cspa, 0);
    SvrDPadral::FilasDeclaracion filas;
    qint32 csde = clave;
    almacen.Servidor().CargarDeclaracion(csde, filas);
    EXPECT_EQ(filas.numParti, 1);
}

}  // namespace
}  // namespace padral::pruebas
