// The four ways out of section 6.

#include "declaration/section6_fixture.h"

namespace padral::pruebas {
namespace {

struct Salida {
    const char16_t *boton, *imagen, *destino;
    bool origen;  ///< the screen shown gets the name of this one
};
void PrintTo(const Salida& caso, std::ostream* salida) { *salida << s(caso.boton); }

constexpr Salida Comprobadas[] = {
    {u"cmdSiguiente", u"PicSiguiente", u"FrmApartado7", false},
    {u"cmdAnterior", u"PicAnterior", u"frmApartado5_2015", true},
    {u"cmdInicio", u"PicInicio", u"FrmDatGen", true},
};

class Salidas6 : public PantallaApartado6, public ::testing::WithParamInterface<Salida> {
protected:
    void SetUp() override {
        PantallaApartado6::SetUp();
        g.FECHAVIGOR = 20150331;
        g.Apartado5 = q(u"X");
        estado.FormularioOrigen = q(u"MDIPadral");
        avisos.alMostrar = [this](const Mensaje&) { EXPECT_TRUE(pantallas.EnEspera()); };
    }
    void sale() {
        EXPECT_EQ(pantallas.Tomar(), salida(GetParam().destino));
        EXPECT_FALSE(pantallas.EnEspera());
        EXPECT_EQ(estado.FormularioOrigen,
                  GetParam().origen ? q(u"frmApartado6") : q(u"MDIPadral"));
    }
    /// Exactly these messages come, the screen and the record stay as they are.
    void rechaza(const std::vector<std::pair<QString, QString>>& mensajes,
                 const char16_t* focoEsperado = nullptr) {
        const bool habiaCambios = r.MODIFAPARTADO6;
        const auto antes = avisos.Mostrados.size();
        for (const auto& [mensaje, titulo] : mensajes) avisos.Espera(mensaje, titulo);
        sinCambios([&] { pulsar(GetParam().boton); });
        avisos.Verificar();
        EXPECT_EQ(avisos.Mostrados.size() - antes, mensajes.size());
        EXPECT_EQ(pantallas.Tomar(), QStringList());
        EXPECT_FALSE(pantallas.EnEspera());
        EXPECT_EQ(foco(), q(focoEsperado ? focoEsperado : GetParam().boton));
        EXPECT_EQ(r.MODIFAPARTADO6, habiaCambios);
        EXPECT_FALSE(r.Lleno);
        EXPECT_FALSE(estado.ModificacionesPendientes);
    }
    const QString Fallo = q(u"Fallo en la validación");
};

TEST_P(Salidas6, SinCambiosSaleSinMas) {
    for (const auto* nombre : {GetParam().boton, GetParam().imagen}) {
        // Nothing but the description is looked at.
        poner(0, 10, u"CESE DE ACTIVIDAD", 21000101);
        estado.FormularioOrigen = q(u"MDIPadral");
        abrir();
        sinCambios([&] { pulsar(nombre); });
        sale();
        EXPECT_FALSE(r.Lleno);
        EXPECT_FALSE(estado.ModificacionesPendientes);
    }
}

TEST_P(Salidas6, ConCambiosValidosSeAcepta) {
    for (const auto* nombre : {GetParam().boton, GetParam().imagen}) {
        valida();
        estado.ModificacionesPendientes = false;
        estado.FormularioOrigen = q(u"MDIPadral");
        abrir();
        const int esperas = pantallas.EsperasTotales;
        elegir(4);
        pulsar(nombre);
        sale();
        EXPECT_EQ(pantallas.EsperasTotales, esperas + 1);
        EXPECT_TRUE(r.Lleno);
        EXPECT_FALSE(r.MODIFAPARTADO6);
        EXPECT_TRUE(estado.ModificacionesPendientes);
        r.CAUSA = 0;
        r.RecuperarDatosAuxiliares();
        EXPECT_EQ(r.CAUSA, 30) << "the copy is renewed";
    }
}

TEST_P(Salidas6, SinDescripcionNoSeSale) {
    for (const bool cambios : {false, true}) {
        poner(20150331, 0, u"");
        abrir();
        r.MODIFAPARTADO6 = cambios;
        rechaza({{q(u"Se debe introducir la descripción de la causa..."), Fallo}});
    }
}

TEST_P(Salidas6, ConCausaSePideLaFechaDeCese) {
    r.LIMPIARDATOS();
    abrir();
    elegir(1);
    rechaza({{q(u"Debe introducir la fecha de cese efectivo, ya que ha indicado una causa de "
                u"cese"),
              Fallo}},
            u"txtFecha");
    rellenar(u"txtFecha", u"31032015");
    pulsar(GetParam().boton);
    sale();
}

TEST_P(Salidas6, LaFechaDeCeseGuardadaEstaEnElIntervalo) {
    for (const qint32 fecha : {18991231, 21000101}) {
        poner(fecha, 10, u"CESE DE ACTIVIDAD");
        abrir();
        r.MODIFAPARTADO6 = true;
        rechaza({{q(u"La fecha introducida debe estar en el intervalo 01/01/1900 y 31/12/2099."),
                  q(u"Fallo en la fecha")}});
    }
}

TEST_P(Salidas6, LaInscripcionGuardadaEstaEnElIntervalo) {
    for (const qint32 fecha : {18991231, 21000101}) {
        poner(20150331, 10, u"CESE DE ACTIVIDAD", fecha);
        abrir();
        r.MODIFAPARTADO6 = true;
        rechaza({{q(u"La fecha de inscripción en el registro no puede ser posterior a 20991231 "
                    u"ni anterior a 19000101"),
                  Fallo}},
                u"txtInscripcion");
    }
}

// It shows empty: leaving its field as it is stores that.
TEST_P(Salidas6, UnaInscripcionQueNoEsFechaSeSenyalaSinMensaje) {
    poner(20150331, 10, u"CESE DE ACTIVIDAD", 20150230);
    abrir();
    r.MODIFAPARTADO6 = true;
    rechaza({}, u"txtInscripcion");
    pulsar(GetParam().boton);
    sale();
    EXPECT_EQ(r.FechaInscripcion, 0);
}

TEST_P(Salidas6, SinCausaNoHayMasComprobaciones) {
    poner(0, 0, u"ALGO", 21000101);
    abrir();
    r.MODIFAPARTADO6 = true;
    pulsar(GetParam().boton);
    sale();
    EXPECT_TRUE(r.Lleno);
    EXPECT_TRUE(estado.ModificacionesPendientes);
}

TEST_P(Salidas6, EnEuskera) {
    enEuskera();
    const QString titulo = q(u"Akatsa balioztatzean");
    abrir();
    rechaza({{q(u"Arrazoiaren deskribapena idatzi behar da..."), titulo}});
    poner(0, 33, u"LIKIDAZIOA");
    abrir();
    r.MODIFAPARTADO6 = true;
    rechaza({{q(u"Benetako amaieraren data idatzi behar duzu, amaieraren arrazoi bat adierazi "
                u"baituzu"),
              titulo}},
            u"txtFecha");
    poner(20150331, 33, u"LIKIDAZIOA", 21000101);
    abrir();
    r.MODIFAPARTADO6 = true;
    rechaza({{q(u"Inskripzio data ezin da izan 20991231 baino lehenagokoa eta 19000101 baino "
                u"gerokoagoa"),
              titulo}},
            u"txtInscripcion");
}

TEST_P(Salidas6, ElUltimoCampoSeGuardaAntes) {
    poner(20150331, 99, u"JUBILACION");
    abrir();
    escribir(u"txtSinEpigrafe", u"cierre");
    pulsar(GetParam().boton);
    sale();
    EXPECT_EQ(r.DESCRIPCIONCAUSA.recortado(), q(u"CIERRE"));
    EXPECT_TRUE(r.Lleno);
}
INSTANTIATE_TEST_SUITE_P(Botones, Salidas6, ::testing::ValuesIn(Comprobadas));

TEST_F(PantallaApartado6, SiguienteVaALoMarcado) {
    using D = DatosGeneralesStore;
    const std::pair<QString D::*, const char16_t*> casos[] = {{&D::Apartado7, u"FrmApartado7"},
                                                              {&D::AnexoI, u"frmDatosParticipe"},
                                                              {&D::AnexoII, u"frmAnexoII"}};
    for (const auto& [marca, destino] : casos) {
        g.Apartado7 = g.AnexoI = g.AnexoII = q(u" ");
        g.*marca = q(u"X");
        abrirValida();
        pulsar(u"cmdSiguiente");
        EXPECT_EQ(pantallas.Tomar(), salida(destino));
    }
}

TEST_F(PantallaApartado6, SinNadaDetrasNoSeDescarga) {
    abrirValida();
    g.Apartado7 = q(u" ");
    pulsar(u"cmdSiguiente");
    EXPECT_EQ(pantallas.Tomar(), QStringList());
    EXPECT_FALSE(pantallas.EnEspera());
}

TEST_F(PantallaApartado6, CancelarDevuelveLoAceptadoYVaALosDatosGenerales) {
    // Whatever stands before.
    g.Apartado2 = g.Apartado3 = g.Apartado4 = g.Apartado5 = q(u"X");
    for (const auto* nombre : {u"cmdCancelar", u"PicCan"}) {
        poner(20150331, 99, u"JUBILACION", 20150401);
        estado.FormularioOrigen = q(u"MDIPadral");
        abrir();
        const DatosApartado6 antes = r;
        const int esperas = pantallas.EsperasTotales;
        rellenar(u"txtFecha", u"15062015");
        rellenar(u"txtSinEpigrafe", u"CIERRE");
        elegir(4);
        rellenar(u"txtInscripcion", u"");
        EXPECT_FALSE(datos() == antes);
        pulsar(nombre);
        EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen"));
        EXPECT_EQ(pantallas.EsperasTotales, esperas + 1);
        EXPECT_TRUE(datos() == antes);
        EXPECT_FALSE(r.MODIFAPARTADO6);
        EXPECT_FALSE(r.Lleno);
        EXPECT_EQ(estado.FormularioOrigen, q(u"frmApartado6"));
        EXPECT_FALSE(estado.ModificacionesPendientes);
        EXPECT_FALSE(pantallas.EnEspera());
    }
}

TEST_F(PantallaApartado6, CancelarNoCompruebaNada) {
    for (const bool cambios : {false, true}) {
        poner(0, 10, u"", 21000101);
        abrir();
        r.MODIFAPARTADO6 = cambios;
        pulsar(u"cmdCancelar");
        EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen"));
        EXPECT_FALSE(r.MODIFAPARTADO6);
    }
}

TEST_F(PantallaApartado6, CancelarSinCambiosNoTocaElRegistro) {
    r.LIMPIARDATOS();
    r.CAUSA = 11;
    r.DESCRIPCIONCAUSA = q(u"FALLECIMIENTO");
    abrir();
    sinCambios([&] { pulsar(u"cmdCancelar"); });
    EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen"));
}

TEST_F(PantallaApartado6, ElInicioDeLaVentanaEsElDelBoton) {
    abrirValida();
    elegir(4);
    static_cast<frmApartado6*>(pantalla.get())->IrAInicio();
    EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen"));
    EXPECT_TRUE(r.Lleno);
}

TEST_F(PantallaApartado6, LoTecleadoLlegaALaFila) {
    abrir();
    rellenar(u"txtFecha", u"31032015");
    elegir(8);
    rellenar(u"txtSinEpigrafe", u"traslado a otra isla");
    rellenar(u"txtInscripcion", u"01042015");
    pulsar(u"cmdSiguiente");
    ASSERT_TRUE(r.Lleno);
    EXPECT_EQ(r.ObtenerDatos(), Fila({20150331, 99, q(u"TRASLADO A OTRA ISLA"), 20150401}));
}

}  // namespace
}  // namespace padral::pruebas
