// The section boxes of the screen and the buttons that open the sections.

#include "declaration/screen_fixture.h"

namespace padral::pruebas {
namespace {

struct FilaApartado {
    Apartado apartado;
    const char16_t *casilla, *boton, *pantalla, *pantalla2015;
    int pregunta, titulo;
};
constexpr FilaApartado Filas[] = {
    {Apartado::Dos, u"chkApartado2", u"cmdApartado2", u"FrmApartado2", u"FrmApartado2", 519, 520},
    {Apartado::Tres, u"chkApartado3", u"cmdApartado3", u"FrmApartado3", u"FrmApartado3_2015", 521,
     522},
    {Apartado::Cuatro, u"chkApartado4", u"cmdApartado4", u"frmApartado4", u"frmApartado4_2015", 523,
     524},
    {Apartado::Cinco, u"chkApartado5", u"cmdApartado5", u"frmApartado5", u"frmApartado5_2015", 525,
     526},
    {Apartado::Seis, u"chkApartado6", u"cmdApartado6", u"frmApartado6", u"frmApartado6", 527, 528},
    {Apartado::Siete, u"chkApartado7", u"cmdApartado7", u"FrmApartado7", u"FrmApartado7", 529, 530},
    {Apartado::AnexoI, u"chkApartado8", u"cmdAnexo", u"frmListaParticipes", u"frmListaParticipes",
     531, 532},
    {Apartado::AnexoII, u"chkAnexoII", u"cmdAnexoII", u"frmAnexoII", u"frmAnexoII", 746, 747},
};

class CasillaApartadoEnPantalla : public PantallaGeneral,
                                  public ::testing::WithParamInterface<FilaApartado> {
protected:
    QString& bandera() { return g.*CasillaDe(GetParam().apartado).bandera; }
    void poner(qint32 vigor) {
        generalesValidos(g);
        g.DNI = QStringLiteral("B12345674");
        g.Causa1 = QStringLiteral("M");
        g.FechaModificacion(vigor);
    }
    void llenarApartado() {
        if (GetParam().apartado == Apartado::AnexoI)
            ponerParticipe(u"12345678Z", u"A");
        else
            llenar(d, GetParam().apartado);
        bandera() = QStringLiteral("X");
    }
};

TEST_P(CasillaApartadoEnPantalla, SinDatosPoneYQuitaLaMarca) {
    if (GetParam().apartado == Apartado::Seis) return;  // its box is never open
    poner(20150101);
    abrirRegistro();
    pulsar(GetParam().casilla);
    EXPECT_EQ(bandera(), QStringLiteral("X"));
    EXPECT_TRUE(habilitado(GetParam().boton));
    EXPECT_TRUE(estado.ModificacionesPendientes);
    pulsar(GetParam().casilla);
    EXPECT_EQ(bandera(), QString());
    EXPECT_FALSE(habilitado(GetParam().boton));
}

TEST_P(CasillaApartadoEnPantalla, ConDatosPregunta) {
    if (GetParam().apartado == Apartado::Seis) return;
    poner(20150101);
    llenarApartado();
    abrirRegistro();
    esperaPregunta(GetParam().pregunta, GetParam().titulo, Respuesta::Cancelar);
    sinCambios([&] { pulsar(GetParam().casilla); });
    avisos.Verificar();
    EXPECT_TRUE(marcada(GetParam().casilla)) << "the box gets its mark back";
    EXPECT_TRUE(lleno(d, GetParam().apartado));
    esperaPregunta(GetParam().pregunta, GetParam().titulo, Respuesta::Aceptar);
    pulsar(GetParam().casilla);
    EXPECT_EQ(bandera(), QString());
    EXPECT_FALSE(lleno(d, GetParam().apartado));
    EXPECT_FALSE(marcada(GetParam().casilla));
    EXPECT_FALSE(habilitado(GetParam().boton));
    EXPECT_TRUE(estado.ModificacionesPendientes);
}

TEST_P(CasillaApartadoEnPantalla, SuBotonAbreLaPantallaDeLaFecha) {
    for (const qint32 vigor : {20141231, 20150101}) {
        poner(vigor);
        llenarApartado();
        abrirRegistro();
        pantallas.Tomar();
        const int esperas = pantallas.EsperasTotales;
        pulsar(GetParam().boton);
        EXPECT_EQ(pantallas.Tomar(),
                  mostrar(vigor < 20150101 ? GetParam().pantalla : GetParam().pantalla2015));
        EXPECT_EQ(pantallas.EsperasTotales, esperas + 1) << "with the wait cursor";
        EXPECT_EQ(estado.FormularioOrigen, QStringLiteral("FrmApartado2")) << "left as it is";
    }
}

TEST_P(CasillaApartadoEnPantalla, SuBotonNoAbreConUnaReglaRota) {
    poner(20150101);
    llenarApartado();
    g.NOMBRE = QString();
    abrirRegistro();
    esperaAviso(515, 125);
    pulsar(GetParam().boton);
    avisos.Verificar();
    EXPECT_EQ(foco(), QStringLiteral("txtNombre"));
    rellenarCampo(u"txtNombre", QStringLiteral("NOMBRE"));
    rellenarCampo(u"mskFechaModificacion", QString());
    esperaAviso(464, 465);
    pulsar(GetParam().boton);
    EXPECT_EQ(foco(), QStringLiteral("mskFechaModificacion"));
    EXPECT_EQ(pantallas.Tomar(), QStringList());
}
INSTANTIATE_TEST_SUITE_P(Filas, CasillaApartadoEnPantalla, ::testing::ValuesIn(Filas));

using Apartados = PantallaGeneral;

TEST_F(Apartados, ElSeisNoSeMarcaAMano) {
    generalesValidos(g);
    g.Causa1 = QStringLiteral("M");
    abrirRegistro();
    sinCambios([&] { pulsar(u"chkApartado6"); });
    EXPECT_FALSE(marcada(u"chkApartado6"));
}

TEST_F(Apartados, ElAnexoISinParticipesPreparaUnoNuevo) {
    generalesValidos(g);
    g.DNI = QStringLiteral("B12345674");
    g.AnexoI = QStringLiteral("X");
    abrirRegistro();
    pulsar(u"cmdAnexo");
    EXPECT_EQ(pantallas.Tomar(), mostrar(u"frmDatosParticipe"));
    const auto& actual = *d.participantes.ParticipeActual;
    EXPECT_EQ(actual.Modo.texto(), QStringLiteral("A"));
    EXPECT_TRUE(actual.MODIFPARTICIPES);
    EXPECT_TRUE(actual.DNI.vacio());
}

TEST_F(Apartados, PresentarLosBotonesNoPreparaParticipe) {
    generalesValidos(g);
    g.AnexoI = QStringLiteral("X");
    d.participantes.ParticipeActual = nuevoParticipe(u"12345678Z", u"C", 3);
    abrirRegistro();
    EXPECT_EQ(d.participantes.ParticipeActual->DNI.recortado(), QStringLiteral("12345678Z"));
    EXPECT_FALSE(d.HayModificaciones());
}

}  // namespace
}  // namespace padral::pruebas
