// Cancel and the rest of the row of buttons of section 7.

#include "tax/section7_fixture.h"

namespace padral::pruebas {
namespace {

TEST_F(PantallaApartado7, CancelarDevuelveLoAceptadoYVaAlApartadoAnterior) {
    for (const auto* anterior : {u"FrmApartado2", u"FrmDatGen"})
        for (const auto* nombre : {u"cmdCancelar", u"PicCan"}) {
            g.Apartado2 = q(anterior) == u"FrmApartado2" ? q(u"X") : q(u" ");
            valida();
            const D7 antes = r;
            abrir();
            for (const auto* casilla :
                 {u"chkLimInfPais1", u"chkRevPais25", u"chkAgric", u"chkOpcion"})
                pulsar(q(casilla));
            const int esperas = pantallas.EsperasTotales;
            pulsar(q(nombre));
            EXPECT_EQ(pantallas.Tomar(), salida(anterior));
            EXPECT_EQ(pantallas.EsperasTotales, esperas + 1);
            EXPECT_TRUE(datos() == antes);
            EXPECT_EQ(estado.FormularioOrigen, q(u"FrmApartado7"));
            EXPECT_FALSE(estado.ModificacionesPendientes);
        }
}

TEST_F(PantallaApartado7, CancelarNoMiraLasReglas) {
    abrir();
    pulsar(q(u"cmdCancelar"));
    EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen"));
    abrir();
    pulsar(q(u"chkMasLimEuros"));
    pulsar(q(u"chkRevocacion"));
    pulsar(q(u"cmdCancelar"));
    EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen"));
    EXPECT_EQ(r.ObtenerDatos(), filaCon({}));
    EXPECT_TRUE(avisos.Mostrados.empty());
}

TEST_F(PantallaApartado7, CancelarVuelveALaCopiaYNoALoQueHabiaAlAbrir) {
    valida();
    r.Exentos = q(u"S");
    abrir();
    pulsar(q(u"chkAgric"));
    pulsar(q(u"cmdCancelar"));
    EXPECT_EQ(r.ObtenerDatos(), filaCon({{0, q(u"S")}}));
}

TEST_F(PantallaApartado7, CancelarSinCambiosNoTocaElRegistro) {
    valida();
    r.Exentos = q(u"S");
    abrir();
    pulsar(q(u"cmdCancelar"));
    EXPECT_EQ(r.Exentos, q(u"S"));
}

TEST_F(PantallaApartado7, CancelarTrasUnaAceptacionNoDejaCambios) {
    valida();
    abrir();
    pulsar(q(u"chkAgric"));
    pulsar(q(u"cmdInicio"));
    abrir();
    pulsar(q(u"chkExentos"));
    pulsar(q(u"cmdCancelar"));
    EXPECT_FALSE(r.Modificaciones);
    EXPECT_TRUE(r.Lleno);
    EXPECT_EQ(r.ObtenerDatos(), filaCon({{0, q(u"S")}, {54, q(u"S")}}));
}

TEST_F(PantallaApartado7, LaVentanaPrincipalPuedeIrAInicio) {
    valida();
    abrir();
    auto& apartado = static_cast<FrmApartado7&>(*pantalla);
    apartado.IrAInicio();
    EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen"));
    r.InicializarApartado7();
    esperaAviso(281, 125);
    apartado.IrAInicio();
    EXPECT_EQ(pantallas.Tomar(), QStringList());
}

TEST_F(PantallaApartado7, LasFlechasVanDeBotonEnBoton) {
    valida();
    abrir();
    enfocar(q(u"cmdInicio"));
    QStringList visitados;
    for (int i = 0; i < 4; ++i) {
        visitados << foco();
        tecla(i % 2 != 0 ? Qt::Key_Down : Qt::Key_Right);
    }
    EXPECT_EQ(visitados.join(u' '), q(u"cmdInicio cmdCancelar cmdAnterior cmdSiguiente"));
    tecla(Qt::Key_Left);
    EXPECT_EQ(foco(), q(u"cmdAnterior"));
}

}  // namespace
}  // namespace padral::pruebas
