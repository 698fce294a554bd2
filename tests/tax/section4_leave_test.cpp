// The four ways out of section 4.

#include "tax/section4_fixture.h"

namespace padral::pruebas {
namespace {

struct Salida {
    const char16_t *boton, *imagen, *destino;
    bool origen;  ///< the screen shown gets the name of this one
};
void PrintTo(const Salida& caso, std::ostream* salida) { *salida << s(caso.boton); }

constexpr Salida Comprobadas[] = {
    {u"cmdSiguiente", u"PicSiguiente", u"frmApartado5_2015", false},
    {u"cmdAnterior", u"PicAnterior", u"FrmApartado3_2015", true},
    {u"cmdInicio", u"PicInicio", u"FrmDatGen", true},
};

class Salidas4 : public PantallaApartado4, public ::testing::WithParamInterface<Salida> {
protected:
    void SetUp() override {
        PantallaApartado4::SetUp();
        valida();
        g.FECHAVIGOR = 20150101;
        g.Apartado3 = q(u"X");
        estado.FormularioOrigen = q(u"MDIPadral");
    }
    void sale() {
        EXPECT_EQ(pantallas.Tomar(), salida(GetParam().destino));
        EXPECT_FALSE(pantallas.EnEspera());
        EXPECT_EQ(estado.FormularioOrigen,
                  GetParam().origen ? pantalla->objectName() : q(u"MDIPadral"));
    }
};

TEST_P(Salidas4, SinCambiosSaleSinMas) {
    for (const auto edicion : Ediciones4)
        for (const auto* nombre : {GetParam().boton, GetParam().imagen}) {
            abrir(edicion);
            estado.FormularioOrigen = q(u"MDIPadral");
            sinCambios([&] { pulsar(nombre); });
            sale();
            EXPECT_FALSE(r.Lleno);
            EXPECT_FALSE(estado.ModificacionesPendientes);
        }
}

TEST_P(Salidas4, ConCambiosValidosSeAcepta) {
    for (const auto edicion : Ediciones4)
        for (const auto* nombre : {GetParam().boton, GetParam().imagen}) {
            valida();
            estado.ModificacionesPendientes = false;
            estado.FormularioOrigen = q(u"MDIPadral");
            abrir(edicion);
            const int esperas = pantallas.EsperasTotales;
            pulsar(u"ChkBI2");
            pulsar(nombre);
            sale();
            EXPECT_EQ(pantallas.EsperasTotales, esperas + 1);
            EXPECT_TRUE(r.Lleno);
            EXPECT_FALSE(r.MODIFAPARTADO4);
            EXPECT_TRUE(estado.ModificacionesPendientes);
            r.IVABIENES = Letra();
            r.Lleno = false;
            r.RecuperarDatosAuxiliares();
            EXPECT_EQ(r.IVABIENES.recortado(), q(u"R")) << "the copy is renewed";
            EXPECT_TRUE(r.Lleno);
        }
}

TEST_P(Salidas4, ConCambiosNoValidosSeQueda) {
    abrir();
    pulsar(u"ChkSO1");
    for (const auto* nombre : {GetParam().boton, GetParam().imagen}) {
        esperaAviso(80, 75);
        sinCambios([&] { pulsar(nombre); });
        avisos.Verificar();
        EXPECT_EQ(foco(), q(u"txtNombre"));
    }
    EXPECT_EQ(pantallas.Tomar(), QStringList());
    EXPECT_TRUE(r.MODIFAPARTADO4);
    EXPECT_FALSE(r.Lleno);
    EXPECT_FALSE(estado.ModificacionesPendientes);
    r.RecuperarDatosAuxiliares();
    EXPECT_TRUE(r.IVASOCIO.vacio()) << "the copy stays";
}

TEST_P(Salidas4, ElUltimoCampoSeGuardaAntes) {
    abrir();
    pulsar(u"ChkSO1");
    rellenar(u"txtNIF", u"E12345674");
    escribir(u"txtNombre", u"cofradia");
    pulsar(GetParam().boton);
    sale();
    EXPECT_EQ(r.NOMBRE.recortado(), q(u"COFRADIA"));
    EXPECT_TRUE(r.Lleno);
}
INSTANTIATE_TEST_SUITE_P(Botones, Salidas4, ::testing::ValuesIn(Comprobadas));

TEST_F(PantallaApartado4, SinNadaDetrasNoSeDescarga) {
    valida();
    abrir();
    g.Apartado5 = q(u" ");
    pulsar(u"cmdSiguiente");
    EXPECT_EQ(pantallas.Tomar(), QStringList());
    EXPECT_FALSE(pantallas.EnEspera());
}

TEST_F(PantallaApartado4, SiguienteVaALaEdicionDeLaFecha) {
    valida();
    abrirAntigua(20141231);
    pulsar(u"cmdSiguiente");
    EXPECT_EQ(pantallas.Tomar(), salida(u"frmApartado5"));
    g.FECHAVIGOR = 20150101;
    abrir();
    pulsar(u"cmdSiguiente");
    EXPECT_EQ(pantallas.Tomar(), salida(u"frmApartado5_2015"));
}

TEST_F(PantallaApartado4, ElInicioDeLaVentanaEsElDelBoton) {
    valida();
    abrir();
    pulsar(u"ChkBI1");
    static_cast<frmApartado4*>(pantalla.get())->IrAInicio();
    EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen"));
    EXPECT_TRUE(r.Lleno);
    r.LIMPIARDATOS();
    abrir();
    esperaAviso(76, 75);
    static_cast<frmApartado4*>(pantalla.get())->IrAInicio();
    EXPECT_EQ(pantallas.Tomar(), QStringList());
}

TEST_F(PantallaApartado4, CancelarDevuelveLoAceptadoYVaAlApartadoAnterior) {
    const std::pair<QString DatosGeneralesStore::*, const char16_t*> anteriores[] = {
        {&DatosGeneralesStore::Apartado3, u"FrmApartado3_2015"},
        {&DatosGeneralesStore::Apartado2, u"FrmApartado2"},
        {&DatosGeneralesStore::Apartado6, u"FrmDatGen"}};
    for (const auto edicion : Ediciones4)
        for (const auto& [bandera, destino] : anteriores)
            for (const auto* nombre : {u"cmdCancelar", u"PicCan"}) {
                g.Apartado2 = g.Apartado3 = g.Apartado6 = q(u" ");
                g.*bandera = q(u"X");
                g.FECHAVIGOR = 20150101;
                valida();
                socio();
                abrir(edicion);
                const DatosApartado4 antes = r;
                pulsar(u"ChkEX2");
                pulsar(u"ChkSO2");
                pulsar(u"ChkSONF1");
                EXPECT_FALSE(datos() == antes);
                pulsar(nombre);
                EXPECT_EQ(pantallas.Tomar(), salida(destino));
                EXPECT_TRUE(datos() == antes);
                EXPECT_FALSE(r.MODIFAPARTADO4);
                EXPECT_EQ(estado.FormularioOrigen, pantalla->objectName());
                EXPECT_FALSE(estado.ModificacionesPendientes);
                EXPECT_FALSE(pantallas.EnEspera());
            }
}

TEST_F(PantallaApartado4, CancelarNoCompruebaNada) {
    for (const bool cambios : {false, true}) {
        abrir();
        r.MODIFAPARTADO4 = cambios;
        pulsar(u"cmdCancelar");
        EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen"));
    }
}

TEST_F(PantallaApartado4, CancelarSinCambiosNoTocaElRegistro) {
    valida();
    r.LIMPIARDATOS();
    r.IVAEXPORT = q(u"B");
    abrir();
    sinCambios([&] { pulsar(u"cmdCancelar"); });
    EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen"));
}

// Opening in 2014 empties the answer that is no longer asked for: no change of the user.
TEST_F(PantallaApartado4, CancelarYLosModulosQueSeVaciaronAlAbrir) {
    for (const bool otroCambio : {false, true}) {
        r.LIMPIARDATOS();
        r.IRPFOBJET = q(u"O");
        r.GuardarDatosAuxiliares();
        abrirAntigua(20140101);
        ASSERT_TRUE(r.IRPFOBJET.vacio());
        if (otroCambio) pulsar(u"ChkBI1");
        pulsar(u"cmdCancelar");
        EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen"));
        EXPECT_EQ(r.IRPFOBJET.recortado(), otroCambio ? q(u"O") : QString());
        EXPECT_TRUE(r.IVABIENES.vacio());
        EXPECT_FALSE(r.MODIFAPARTADO4);
    }
}

TEST_F(PantallaApartado4, LasFlechasVanDeBotonEnBoton) {
    abrir();
    enfocar(u"cmdInicio");
    QStringList visitados;
    for (int i = 0; i < 4; ++i) {
        visitados << foco();
        tecla(i % 2 ? Qt::Key_Down : Qt::Key_Right);
    }
    EXPECT_EQ(visitados, (QStringList{q(u"cmdInicio"), q(u"cmdCancelar"), q(u"cmdAnterior"),
                                      q(u"cmdSiguiente")}));
}

TEST_F(PantallaApartado4, LoTecleadoLlegaALaFila) {
    abrir();
    for (const auto* nombre : {u"ChkED3", u"ChkCaja2", u"ChkCuoAdu1", u"ChkAG1", u"ChkSI2",
                               u"ChkEX2", u"ChkEXIntr1", u"ChkBI2", u"ChkSO1", u"ChkSONF2"})
        pulsar(nombre);
    rellenar(u"txtNIF", u"g12345674");
    rellenar(u"txtNombre", u"cofradia de nora");
    pulsar(u"cmdSiguiente");
    ASSERT_TRUE(r.Lleno);
    const Fila esperada = {q(u" "),
                           q(u"E"),
                           q(u"A"),
                           q(u"R"),
                           q(u"B"),
                           q(u"A"),
                           q(u" "),
                           q(u"R"),
                           q(u"S"),
                           q(u"G12345674"),
                           q(u"COFRADIA DE NORA").leftJustified(40),
                           q(u"R"),
                           q(u"R"),
                           q(u"O")};
    EXPECT_EQ(r.ObtenerDatos(), esperada);
}

}  // namespace
}  // namespace padral::pruebas
