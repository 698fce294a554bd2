// What the rules of Annex II say on the screen when it is left, and where they send the user.

#include "tax/annex2_fixture.h"

namespace padral::pruebas {
namespace {

/// A record that breaks one rule, and what comes of it. `lista` opens in the place of the focus.
struct Rota {
    int numero;
    std::function<void(A2&)> romper;
    const char16_t *castellano, *tituloCastellano;
    const char16_t *euskera, *tituloEuskera;
    const char16_t* foco = u"";
    const char16_t* lista = u"";
};
void PrintTo(const Rota& caso, std::ostream* salida) { *salida << "rule " << caso.numero; }

constexpr auto Porcentaje0 = u"Porcentaje debe ser mayor que 0...";
constexpr auto Ehuneko0 = u"Ehunekoak 0 baino handiagoa izan behar du...";
constexpr auto Municipio =
    u"El Municipio del representante debe tener algún valor(Dato "
    u"obligatorio)";
constexpr auto Udalerria = u"Ordezkariaren udalerriak balioren bat izan behar du(Nahitaezko datua)";

// The record is complete but for what each takes away.
const Rota Rotas[] = {
    {1, [](A2& r) { r = {}; }, u"No ha rellenado ningún dato. Hágalo o pulse el botón Cancelar",
     u"Datos no válidos", u"Ez duzu daturik bete. Bete ezazu edo sakatu Utzi botoia",
     u"Datuak ez dira baliagarriak"},
    {2, [](A2& r) { r.DireccionDom.clear(); }, u"El campo Nombre del Domicilio no puede ser vacio",
     u"Nombre de domicilio no válido", u"Helbidearen Izena eremua ezin da hutsik egon",
     u"Helbidearen izena ez da baliagarria", u"txtDomicilio"},
    {3, [](A2& r) { r.PoblacionDom.clear(); }, u"El nombre de municipio no puede ser vacio",
     u"Nombre de municipio no válido", u"Udalerriaren izena ezin da hutsik egon",
     u"Udalerriaren izena ez da baliagarria", u"txtNombreMunicipio"},
    {4, [](A2& r) { r.Nacionalidad.clear(); },
     u"El campo Nacionalidad no puede ser vacio (dato obligatorio)",
     u"Nombre de Nacionalidad no válido",
     u"Nazionalitatea eremua ezin da hutsik egon (nahitaezko datua)",
     u"Nazionalitatearen izena ez da baliagarria", u"txtNacionalidad"},
    {5, [](A2& r) { r.ModalidadEstablecimiento.clear(); },
     u"Debe seleccionar alguna de las modalidades de establecimiento permanente",
     u"Establecimiento Permanente", u"Establezimendu iraunkorraren motaren bat hautatu behar da",
     u"Establezimendu iraunkorra", u"chkCierra"},
    {6, [](A2& r) { r.NIFRepresentante.clear(); },
     u"El NIF del representante debe tener algún valor(Dato obligatorio)",
     u"NIF del representante no válido",
     u"Ordezkariaren IFZak balioren bat izan behar du(Nahitaezko datua)",
     u"Ordezkariaren IFZa ez da baliagarria", u"txtNIF"},
    {7, [](A2& r) { r.NIFRepresentante = q(u"12345678A"); }, u"El NIF introducido no es válido",
     u"NIF no válido", u"Sartutako IFZa ez da baliagarria", u"IFZa ez da baliagarria", u"txtNIF"},
    {8, [](A2& r) { r.NombreRepresentante.clear(); },
     u"El nombre del representante debe tener algún valor(Dato obligatorio)",
     u"Nombre del representante no válido",
     u"Ordezkariaren izenak balioren bat izan behar du(Nahitaezko datua)",
     u"Ordezkariaren izena ez da baliagarria", u"txtNombre"},
    {9, [](A2& r) { r.DomicilioRepresentante.clear(); },
     u"El domicilio del representante debe tener algún valor(Dato obligatorio)",
     u"Domicilio del representante no válido",
     u"Ordezkariaren helbideak balioren bat izan behar du(Nahitaezko datua)",
     u"Ordezkariaren helbidea ez da baliagarria", u"txtRepDomicilio"},
    {10,
     [](A2& r) {
         r.NombreProvincia.clear();
         r.CodigoProvincia = 0;
     },
     u"La provincia del representante debe tener algún valor(Dato obligatorio)",
     u"Provincia del representante no válido",
     u"Ordezkariaren probintziak balioren bat izan behar du(Nahitaezko datua)",
     u"Ordezkariaren probintzia ez da baliagarria", u"", u"lstprovincias"},
    {11, [](A2& r) { r.NombreMunicipio.clear(); }, Municipio,
     u"Municipio del representante no válido", Udalerria,
     u"Ordezkariaren udalerria ez da baliagarria", u"txtNombreMunRepr"},
    {11,
     [](A2& r) {
         r.NombreMunicipio.clear();
         r.CodigoProvincia = 20;
         r.NombreProvincia = q(u"Kelmaria");
     },
     Municipio, u"Municipio del representante no válido", Udalerria,
     u"Ordezkariaren udalerria ez da baliagarria", u"", u"lstmunicipios"},
    {12, [](A2& r) { r.Establecimientos.clear(); },
     u"Opción de los establecimientos permanentes... debe tomar los valores Sí o No(Dato "
     u"obligatorio)",
     u"Opción de los establecimientos permanentes",
     u"Establezimendu iraunkorren aukerak... Bai edo Ez balioa hartu behar du(Nahitaezko datua)",
     u"Establezimendu iraunkorren aukera", u"txtNombreMunRepr"},
    {14, [](A2& r) { r.PORCENTAJE = 0; }, Porcentaje0, u"Fallo en porcentaje", Ehuneko0,
     u"Akatsa ehunekoan", u"numPorcentaje"},
    {15, [](A2& r) { r.PORCENTAJE = 101; },
     u"El Porcentaje de participación no debe ser mayor que 100...", u"Fallo en porcentaje",
     u"Partaidetza ehunekoak ez du 100 baino handiagoa izan behar...", u"Akatsa ehunekoan",
     u"numPorcentaje"},
};

class Reglas2 : public PantallaAnexoII, public ::testing::WithParamInterface<Rota> {
protected:
    void abrirRota() {
        completo();
        GetParam().romper(r);
        abrir();
    }
    void esperaMensaje(bool euskera) {
        avisos.Espera(q(euskera ? GetParam().euskera : GetParam().castellano),
                      q(euskera ? GetParam().tituloEuskera : GetParam().tituloCastellano));
    }
    /// The screen is still there, and the user is where the rule sends him.
    void seQueda(const char16_t* boton) {
        avisos.Verificar();
        EXPECT_EQ(pantallas.Tomar(), QStringList());
        EXPECT_FALSE(pantallas.EnEspera());
        EXPECT_FALSE(r.Lleno);
        EXPECT_FALSE(estado.ModificacionesPendientes);
        const auto& caso = GetParam();
        if (!q(caso.lista).isEmpty())
            esperaLista(caso.lista, primera(caso.lista));
        else
            EXPECT_EQ(foco(), q(caso.foco).isEmpty() ? q(boton) : q(caso.foco));
    }
};

TEST_P(Reglas2, SeDiceYNoSeSale) {
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        for (const auto* boton : {u"cmdInicio", u"cmdAnterior"})
            for (const bool cambios : {false, true}) {
                abrirRota();
                r.Modificaciones = cambios;
                esperaMensaje(euskera);
                sinCambios([&] { pulsar(boton); });
                seQueda(boton);
            }
    }
}

TEST_P(Reglas2, ConCancelarNoSeComprueba) {
    for (const bool cambios : {false, true}) {
        abrirRota();
        r.Modificaciones = cambios;
        pulsar(u"cmdCancelar");
        EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen"));
    }
}
INSTANTIATE_TEST_SUITE_P(Todas, Reglas2, ::testing::ValuesIn(Rotas));

TEST_F(PantallaAnexoII, CompletoNoRompeNinguna) {
    for (const bool propia : {false, true})
        for (const auto* opcion : {u"R", u"O", u""}) {
            completo();
            if (propia) enProvinciaPropia();
            r.OpcionApl = q(opcion);
            if (q(opcion) == q(u"O")) r.PORCENTAJE = 0;
            abrir();
            pulsar(u"cmdInicio");
            EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen"));
        }
}

// The list opens for picking, and the way out goes on from there.
TEST_F(PantallaAnexoII, LoQueLasReglasAbrenSePuedeElegir) {
    completo();
    r.NombreProvincia.clear();
    r.CodigoProvincia = 0;
    abrir();
    esperaAviso(744, 745);
    pulsar(u"cmdAnterior");
    elegir(u"lstprovincias", q(u"Kelmaria"), true);
    esperaDireccion(20, u"Kelmaria", 0, u"");
    esperaAviso(740, 741);
    pulsar(u"cmdAnterior");
    esperaLista(u"lstmunicipios", primera(u"lstmunicipios"));
    elegir(u"lstmunicipios", q(u"Aldabarri"), true);
    pulsar(u"cmdAnterior");
    EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen"));
    EXPECT_TRUE(r.Lleno);
}

// In the own province the name comes from the list: the field is locked and gets the focus anyway.
TEST_F(PantallaAnexoII, LaRegla12LlevaAlNombreAunqueNoSeTeclee) {
    for (const auto* boton : {u"cmdInicio", u"cmdAnterior"}) {
        completo();
        enProvinciaPropia();
        r.Establecimientos.clear();
        abrir();
        ASSERT_TRUE(bloqueado(u"txtNombreMunRepr"));
        esperaAviso(742, 743);
        sinCambios([&] { pulsar(boton); });
        avisos.Verificar();
        EXPECT_EQ(pantallas.Tomar(), QStringList());
        EXPECT_EQ(foco(), q(u"txtNombreMunRepr"));
        EXPECT_TRUE(bloqueado(u"txtNombreMunRepr"));
        EXPECT_FALSE(visible(u"lstmunicipios"));
    }
}

TEST_F(PantallaAnexoII, SoloLaFormaJuridicaPideLaDireccion) {
    abrir();
    rellenar(u"txtFormaJuridica", u"limited");
    esperaAviso(114, 115);
    pulsar(u"cmdInicio");
    EXPECT_EQ(foco(), q(u"txtDomicilio"));
}

TEST_F(PantallaAnexoII, SoloElPorcentajeNoEsNada) {
    for (const qint32 fecha : {20131231, 20140101}) {
        static_cast<A2&>(r) = {};
        abrir(fecha);
        rellenar(u"numPorcentaje", u"50");
        esperaAviso(281, 125);
        pulsar(u"cmdInicio");
        avisos.Verificar();
        EXPECT_EQ(foco(), q(u"cmdInicio"));
    }
}

TEST_F(PantallaAnexoII, LaRevocacionSinPorcentaje) {
    abrir();
    pulsar(u"chkRevocacion");
    for (const auto* escrito : {u"", u"0"}) {
        escribir(u"numPorcentaje", escrito);
        esperaAviso(386, 387);
        pulsar(u"cmdInicio");
        avisos.Verificar();
        EXPECT_EQ(foco(), q(u"numPorcentaje"));
    }
    rellenar(u"numPorcentaje", u"100");
    pulsar(u"cmdInicio");
    EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen"));
}

// Where the revocation cannot be ticked, a percentage stored by another version passes.
TEST_F(PantallaAnexoII, Desde2014LasReglasDelPorcentajeCallan) {
    for (const qint16 porcentaje : {qint16(0), qint16(101)}) {
        completo();
        r.PORCENTAJE = porcentaje;
        abrir(20140101);
        pulsar(u"cmdInicio");
        EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen"));
    }
}

}  // namespace
}  // namespace padral::pruebas
