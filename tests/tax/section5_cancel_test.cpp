// Cancel and the rest of the row of buttons of section 5.

#include "tax/section5_fixture.h"

namespace padral::pruebas {
namespace {

TEST_F(PantallaApartado5, CancelarDevuelveLoAceptadoYVaAlApartadoAnterior) {
    for (const auto* anterior : {u"FrmApartado2", u"FrmDatGen"})
        for (const auto* nombre : {u"cmdCancelar", u"PicCan"}) {
            g.Apartado2 = q(anterior) == u"FrmApartado2" ? q(u"X") : q(u" ");
            valida();
            const DatosApartado5 antes = r;
            abrir();
            for (const auto* casilla : {u"chk2", u"chk3", u"chk27", u"chk29"}) pulsar(casilla);
            pulsar(nombre);
            EXPECT_EQ(pantallas.Tomar(), salida(anterior));
            EXPECT_TRUE(static_cast<const DatosApartado5&>(r) == antes);
            EXPECT_EQ(estado.FormularioOrigen, pantalla->objectName());
            EXPECT_FALSE(estado.ModificacionesPendientes);
        }
}

TEST_F(PantallaApartado5, CancelarVuelveALaCopiaYNoALoQueHabiaAlAbrir) {
    valida();
    r.ART117 = q(u"S");
    abrir();
    pulsar(u"chk1");
    pulsar(u"cmdCancelar");
    EXPECT_EQ(r.ART117.texto(), q(u"N"));
    EXPECT_EQ(r.GRANEMPRESA.texto(), q(u"S"));
}

TEST_F(PantallaApartado5, CancelarSinCambiosNoTocaElRegistro) {
    valida();
    r.ART117 = q(u"S");
    abrir();
    pulsar(u"cmdCancelar");
    EXPECT_EQ(r.ART117.texto(), q(u"S"));
}

TEST_F(PantallaApartado5, CancelarTrasUnaAceptacionNoDejaCambios) {
    valida();
    abrir();
    pulsar(u"chk17");
    pulsar(u"cmdInicio");
    abrir();
    pulsar(u"chk20");
    pulsar(u"chk20");
    pulsar(u"cmdCancelar");
    EXPECT_FALSE(r.MODIFAPARTADO5);
    EXPECT_TRUE(r.APARTADO5LLENO);
    EXPECT_EQ(r.SATISRENDTRAB.texto(), q(u"S"));
    EXPECT_EQ(r.SATISRENDARREN.texto(), q(u"N"));
}

TEST_F(PantallaApartado5, LaVentanaPrincipalPuedeIrAInicio) {
    valida();
    abrir();
    const int esperas = pantallas.EsperasTotales;
    static_cast<frmApartado5*>(pantalla.get())->IrAInicio();
    EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen"));
    EXPECT_EQ(pantallas.EsperasTotales, esperas + 1);
    r.IVA = Letra();
    abrir();
    esperaAviso(82, 83);
    static_cast<frmApartado5*>(pantalla.get())->IrAInicio();
    EXPECT_EQ(pantallas.Tomar(), QStringList());
}

TEST_F(PantallaApartado5, LasFlechasVanDeBotonEnBoton) {
    valida();
    abrir();
    enfocar(u"cmdInicio");
    QStringList visitados;
    for (int i = 0; i < 4; ++i) {
        visitados << foco();
        tecla(i % 2 ? Qt::Key_Down : Qt::Key_Right);
    }
    EXPECT_EQ(visitados.join(u' '), q(u"cmdInicio cmdCancelar cmdAnterior cmdSiguiente"));
    tecla(Qt::Key_Left);
    EXPECT_EQ(foco(), q(u"cmdAnterior"));
}

}  // namespace
}  // namespace padral::pruebas
