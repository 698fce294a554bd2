// The four ways out of section 3.

#include "location/section3_fixture.h"

namespace padral::pruebas {
namespace {

struct Salida {
    const char16_t *boton, *imagen, *destino;
    bool origen;  ///< the screen shown gets the name of this one
};
void PrintTo(const Salida& caso, std::ostream* salida) { *salida << s(caso.boton); }

constexpr Salida Comprobadas[] = {
    {u"cmdSiguiente", u"PicSiguiente", u"frmApartado4", false},
    {u"cmdAnterior", u"PicAnterior", u"FrmApartado2", true},
    {u"cmdInicio", u"PicInicio", u"FrmDatGen", true},
};

class Salidas3 : public PantallaApartado3, public ::testing::WithParamInterface<Salida> {
protected:
    void SetUp() override {
        PantallaApartado3::SetUp();
        valida();
        g.Apartado2 = q(u"X");
        estado.FormularioOrigen = q(u"MDIPadral");
    }
    void sale() {
        EXPECT_EQ(pantallas.Tomar(), salida(GetParam().destino));
        EXPECT_FALSE(pantallas.EnEspera());
        EXPECT_EQ(estado.FormularioOrigen,
                  GetParam().origen ? pantalla->objectName() : q(u"MDIPadral"));
    }
    void noSale() {
        avisos.Verificar();
        EXPECT_EQ(pantallas.Tomar(), QStringList());
        EXPECT_FALSE(pantallas.EnEspera());
    }
};

TEST_P(Salidas3, SinCambiosNoSeCompruebaNadaMasQueLaResidencia) {
    r.ActivEcon = r.ListaEpigrafe = QString();
    r.Fax = q(u"A");
    for (const auto edicion : {Edicion::Hasta2014, Edicion::Desde2015}) {
        for (const auto* nombre : {GetParam().boton, GetParam().imagen}) {
            abrir(edicion);
            sinCambios([&] { pulsar(nombre); });
            sale();
            EXPECT_FALSE(r.Lleno);
            EXPECT_FALSE(estado.ModificacionesPendientes);
        }
    }
}

TEST_P(Salidas3, ConCambiosValidosSeAcepta) {
    for (const auto edicion : {Edicion::Hasta2014, Edicion::Desde2015}) {
        r.Lleno = estado.ModificacionesPendientes = false;
        r.RellenarTablaAuxiliar();
        abrir(edicion);
        const int esperas = pantallas.EsperasTotales;
        escribir(u"txtAnagrama", edicion == Edicion::Hasta2014 ? q(u"A") : q(u"B"));
        pulsar(GetParam().boton);
        sale();
        EXPECT_EQ(pantallas.EsperasTotales, esperas + 1);
        EXPECT_TRUE(r.Lleno);
        EXPECT_FALSE(r.Modificaciones);
        EXPECT_TRUE(estado.ModificacionesPendientes);
        EXPECT_TRUE(r.TablaAuxiliar().Lleno);
        EXPECT_EQ(r.TablaAuxiliar().Anagrama, r.Anagrama);
    }
}

TEST_P(Salidas3, ConCambiosNoValidosSeQueda) {
    abrirValida();
    r.RellenarTablaAuxiliar();
    pulsar(u"chkFaxBaja");
    esperaAviso(844, 123);
    pulsar(GetParam().boton);
    noSale();
    EXPECT_EQ(foco(), q(u"numFax"));
    EXPECT_TRUE(r.Modificaciones);
    EXPECT_FALSE(r.Lleno);
    EXPECT_TRUE(r.TablaAuxiliar().Fax.vacio());
    EXPECT_FALSE(estado.ModificacionesPendientes);
}

TEST_P(Salidas3, SinResidenciaNoSeSale) {
    for (const auto* respuesta : {u"", u" "})
        for (const bool cambios : {false, true}) {
            r.ResidenteKelmaria = q(respuesta);
            r.ActivEcon = r.ListaEpigrafe = QString();  // it comes before the rules
            abrir();
            r.Modificaciones = cambios;
            avisos.Espera(
                q(u"Debe especificar si es o no residente en Kelmaria (dato obligatorio)"),
                q(u"Datos no válidos"));
            sinCambios([&] { pulsar(GetParam().boton); });
            noSale();
            EXPECT_EQ(foco(), q(GetParam().boton)) << "the focus stays where it was";
        }
}

TEST_P(Salidas3, CadaEdicionDiceSuNombre) {
    abrirValida(Edicion::Hasta2014);
    pulsar(GetParam().boton);
    EXPECT_EQ(pantallas.Tomar().back(), q(u"Descargar FrmApartado3"));
    abrirValida(Edicion::Desde2015);
    pulsar(GetParam().boton);
    EXPECT_EQ(pantallas.Tomar().back(), q(u"Descargar FrmApartado3_2015"));
}
INSTANTIATE_TEST_SUITE_P(Botones, Salidas3, ::testing::ValuesIn(Comprobadas));

TEST_F(PantallaApartado3, SinNadaDetrasNoSeDescarga) {
    abrirValida();
    g.Apartado4 = q(u" ");
    pulsar(u"cmdSiguiente");
    EXPECT_EQ(pantallas.Tomar(), QStringList());
}

TEST_F(PantallaApartado3, SiguienteVaALaEdicionDeLaFecha) {
    abrirValida();
    g.FECHAVIGOR = 20150101;
    pulsar(u"cmdSiguiente");
    EXPECT_EQ(pantallas.Tomar(), salida(u"frmApartado4_2015"));
    abrirValida();
    g.FECHAVIGOR = 20141231;
    pulsar(u"cmdSiguiente");
    EXPECT_EQ(pantallas.Tomar(), salida(u"frmApartado4"));
}

TEST_F(PantallaApartado3, CancelarDevuelveLoAceptadoYVaAlApartadoAnterior) {
    for (const auto* anterior : {u"FrmApartado2", u"FrmDatGen"})
        for (const auto* nombre : {u"cmdCancelar", u"PicCan"}) {
            g.Apartado2 = q(anterior) == u"FrmApartado2" ? q(u"X") : q(u" ");
            r.Anagrama = q(u"ANTES");
            r.Fax = q(u"A");
            r.numFax = 943111222;
            r.Modificaciones = false;
            abrirValida();
            const DatosApartado3 antes = r;
            rellenar(u"txtAnagrama", u"DESPUES");
            rellenar(u"txtDescripcionActividad", u"ABC");
            pulsar(u"chkFaxAlta");
            elegir(u"cmbDescFormaJuridica", u"OTROS");
            EXPECT_FALSE(datos() == antes);
            const int esperas = pantallas.EsperasTotales;
            pulsar(nombre);
            EXPECT_EQ(pantallas.EsperasTotales, esperas + 1);
            EXPECT_FALSE(pantallas.EnEspera());
            EXPECT_EQ(pantallas.Tomar(), salida(anterior));
            EXPECT_TRUE(datos() == antes);
            EXPECT_FALSE(r.Modificaciones);
            EXPECT_EQ(estado.FormularioOrigen, pantalla->objectName());
            EXPECT_FALSE(estado.ModificacionesPendientes);
        }
}

TEST_F(PantallaApartado3, CancelarDevuelveLaFechaDeEfecto) {
    const struct {
        const char16_t* causa1;
        qint32 inicio, modificacion, cese, efecto;
        const char16_t* edicion;
    } casos[] = {{u"I", 20140310, 0, 0, 20140310, u"FrmApartado3"},
                 {u"I", 20160310, 0, 0, 20160310, u"FrmApartado3_2015"},
                 {u"P", 0, 0, 0, 0, u"FrmApartado3"},
                 {u"M", 0, 20141231, 0, 20141231, u"FrmApartado3"},
                 {u"M", 20100101, 20160101, 0, 20160101, u"FrmApartado3_2015"},
                 {u"C", 20100101, 0, 20160630, 20160630, u"FrmApartado3_2015"},
                 {u"C", 20160101, 0, 20140630, 20140630, u"FrmApartado3"}};
    for (const auto& caso : casos) {
        SCOPED_TRACE(s(caso.causa1));
        g.Causa1 = q(caso.causa1);
        g.FechaModificacion(caso.modificacion);
        d.apartado6.FECHACESE = caso.cese;
        r.DatosApartado3::FechaInicio = caso.inicio;
        g.FECHAVIGOR = caso.efecto;
        for (const auto* tecleada : {u"15062014", u"15062015", u""}) {
            abrirValida();
            rellenar(u"mskFechaInicio", tecleada);
            pulsar(u"cmdCancelar");
            EXPECT_EQ(r.FechaInicio(), caso.inicio);
            EXPECT_EQ(g.FECHAVIGOR, caso.efecto) << s(tecleada);
            EXPECT_EQ(d.PantallaApartado(3), q(caso.edicion));
        }
    }
}

TEST_F(PantallaApartado3, CancelarSinCambiarElInicioDejaLaFechaDeEfecto) {
    r.DatosApartado3::FechaInicio = 20140310;
    abrirValida();
    g.FECHAVIGOR = 20160101;
    rellenar(u"txtAnagrama", u"ABC");
    pulsar(u"cmdCancelar");
    EXPECT_EQ(g.FECHAVIGOR, 20160101);
}

TEST_F(PantallaApartado3, CancelarNoCompruebaNada) {
    r.Fax = q(u"A");
    abrir();
    r.Modificaciones = true;
    pulsar(u"cmdCancelar");
    EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen"));
}

TEST_F(PantallaApartado3, CancelarSinCambiosNoTocaElRegistro) {
    abrirValida();
    r.InicializarTablaAuxiliar();
    sinCambios([&] { pulsar(u"cmdCancelar"); });
    EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen"));
}

TEST_F(PantallaApartado3, LasFlechasVanDeBotonEnBoton) {
    abrirValida();
    enfocar(u"cmdInicio");
    QStringList visitados;
    for (int i = 0; i < 4; ++i) {
        visitados << foco();
        tecla(i % 2 ? Qt::Key_Down : Qt::Key_Right);
    }
    EXPECT_EQ(visitados, (QStringList{q(u"cmdInicio"), q(u"cmdCancelar"), q(u"cmdAnterior"),
                                      q(u"cmdSiguiente")}));
    tecla(Qt::Key_Left);
    EXPECT_EQ(foco(), q(u"cmdAnterior"));
}

}  // namespace
}  // namespace padral::pruebas
