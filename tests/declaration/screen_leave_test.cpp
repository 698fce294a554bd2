// Cancelar, Anterior and Imprimir.

#include "declaration/screen_fixture.h"

namespace padral::pruebas {
namespace {

class Salidas : public PantallaGeneral {
protected:
    void esperaImpresion() {
        EXPECT_EQ(pantallas.Tomar(), mostrar(u"FrmImOf"));
        EXPECT_FALSE(pantallas.EnEspera());
    }
    /// No data are at stake: the question has the information icon.
    void esperaPreguntaDeGrabar(Respuesta respuesta) {
        avisos.Espera(
            {estado.Texto(538), estado.Texto(539), Icono::Informacion, Botones::AceptarCancelar},
            respuesta);
    }
    void noSale() { EXPECT_EQ(pantallas.Tomar(), QStringList()); }
};

TEST_F(Salidas, CancelarNoPreguntaNada) {
    for (const auto* nombre : {u"cmdCancelar", u"PicCan"}) {
        llenarTodo(d);
        d.csde = 5;
        lista.Modo = QStringLiteral("C");
        estado.ModificacionesPendientes = true;
        abrirRegistro();
        pulsar(nombre);
        esperaCerrada();
        EXPECT_EQ(declaracionesGuardadas(), 0);
    }
}

TEST_F(Salidas, AnteriorSinParticipesEsCancelar) {
    for (const auto* nombre : {u"cmdAnterior", u"PicAnterior"}) {
        abrirValida();
        d.csde = 5;
        pulsar(nombre);
        esperaCerrada();
    }
}

struct Vuelta {
    const char16_t *filas, *entrada;
};
class AnteriorConParticipes : public Salidas, public ::testing::WithParamInterface<Vuelta> {};

TEST_P(AnteriorConParticipes, VuelveALaLista) {
    generalesValidos(g);
    ponerParticipe(u"12345678Z", u"C", 3);
    d.csde = 5;
    lista.NUMDECLASEL = q(GetParam().filas);
    abrirRegistro();
    pulsar(u"cmdAnterior");
    EXPECT_EQ(pantallas.Tomar(), mostrar(u"FrmDecLista"));
    EXPECT_EQ(lista.ENTRADA.texto(), q(GetParam().entrada));
    EXPECT_EQ(g.NOMBRE, QStringLiteral("NOMBRE"));
    EXPECT_EQ(d.csde, 5);
}
INSTANTIATE_TEST_SUITE_P(Filas, AnteriorConParticipes,
                         ::testing::Values(Vuelta{u"0", u"A"}, Vuelta{u"1", u"P"},
                                           Vuelta{u"25", u"P"}));

TEST_F(Salidas, AnteriorApagadoConCambios) {
    estado.ModificacionesPendientes = true;
    abrirValida();
    EXPECT_FALSE(habilitado(u"cmdAnterior"));
    pulsar(u"PicAnterior");
    tecla(Qt::Key_N, Qt::AltModifier);
    noSale();
}

TEST_F(Salidas, ImprimirSinCambiosVaDirecto) {
    for (const auto* nombre : {u"cmdImprimir", u"PicImprimir"}) {
        g.Causa1 = QString();
        abrirValida();
        g.Causa1 = QString();  // a broken rule, which is not asked
        d.csde = 5;
        pulsar(nombre);
        esperaImpresion();
        EXPECT_EQ(d.csde, 5);
        EXPECT_EQ(declaracionesGuardadas(), 0);
    }
}

TEST_F(Salidas, ImprimirConCambiosPreguntaYCancelarNoHaceNada) {
    abrirValida();
    estado.ModificacionesPendientes = true;
    esperaPreguntaDeGrabar(Respuesta::Cancelar);
    sinCambios([&] { pulsar(u"cmdImprimir"); });
    noSale();
    EXPECT_EQ(declaracionesGuardadas(), 0);
    EXPECT_EQ(d.csde, 0);
}

TEST_F(Salidas, ImprimirConCambiosGuardaYTomaLaClaveNueva) {
    abrirValida();
    estado.ModificacionesPendientes = true;
    llenar(d, Apartado::Dos);
    d.apartado4.IRPFOBJET = QStringLiteral("O");
    d.apartado3.FechaInicio(20150101);
    ponerParticipe(u"12345678Z", u"A")->PorcenPart = 100;
    esperaPreguntaDeGrabar(Respuesta::Aceptar);
    pulsar(u"cmdImprimir");
    esperaImpresion();
    EXPECT_FALSE(estado.ModificacionesPendientes);
    EXPECT_EQ(declaracionesGuardadas(), 1);
    ASSERT_GT(d.csde, 0);
    EXPECT_EQ(g.NOMBRE, QStringLiteral("NOMBRE")) << "it stays open";
    OtraRun otra(estado);
    otra.d.csde = d.csde;
    otra.d.CargarDeclaracion();
    EXPECT_EQ(otra.d.general.ObtenerDatos()[12].toString(), QStringLiteral("X     X "));
    EXPECT_TRUE(otra.d.apartado4.IRPFOBJET.vacio());
    EXPECT_EQ(otra.d.NumParti, 1);
}

TEST_F(Salidas, ImprimirCompruebaAntesDePreguntar) {
    abrirValida();
    estado.ModificacionesPendientes = true;
    g.NOMBRE = QString();
    esperaAviso(515, 125);
    pulsar(u"cmdImprimir");
    avisos.Verificar();
    EXPECT_EQ(foco(), QStringLiteral("txtNombre"));
    g.NOMBRE = QStringLiteral("NOMBRE");
    g.DNI = QStringLiteral("A12345675");
    esperaAviso(545, 158);
    pulsar(u"cmdImprimir");
    avisos.Verificar();
    g.DNI = QStringLiteral("A12345674");
    d.apartado5.SOCIEDADES = d.apartado5.EXENTASOCI = QStringLiteral("S");
    esperaAviso(692, 83);
    pulsar(u"cmdImprimir");
    avisos.Verificar();
    d.apartado5.SOCIEDADES = QStringLiteral("N");
    g.Causa1 = QString();
    esperaPreguntaDeGrabar(Respuesta::Aceptar);
    esperaAviso(462, 463);
    pulsar(u"cmdImprimir");
    EXPECT_EQ(foco(), QStringLiteral("chkDeclaracionPrevia"));
    noSale();
    EXPECT_EQ(declaracionesGuardadas(), 0);
    EXPECT_TRUE(estado.ModificacionesPendientes);
}

TEST_F(Salidas, ImprimirExentaTampocoSinCambios) {
    abrirValida();
    d.apartado5.SOCIEDADES = d.apartado5.EXENTASOCI = QStringLiteral("S");
    esperaAviso(692, 83);
    pulsar(u"cmdImprimir");
    noSale();
}

}  // namespace
}  // namespace padral::pruebas
