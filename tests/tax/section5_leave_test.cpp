// The four ways out of section 5.

#include "tax/section5_fixture.h"

namespace padral::pruebas {
namespace {

struct Salida {
    const char16_t *boton, *imagen, *destino;
    bool origen;  ///< the screen shown gets the name of this one
};
void PrintTo(const Salida& caso, std::ostream* salida) { *salida << s(caso.boton); }

constexpr Salida Comprobadas[] = {
    {u"cmdSiguiente", u"PicSiguiente", u"frmApartado6", false},
    {u"cmdAnterior", u"PicAnterior", u"FrmApartado3", true},
    {u"cmdInicio", u"PicInicio", u"FrmDatGen", true},
};

constexpr const char16_t* Titulo = u"Fallo en el apartado";
constexpr const char16_t* Incompleto = u"Debe rellenar todos los datos del apartado 5";

class Salidas5 : public PantallaApartado5, public ::testing::WithParamInterface<Salida> {
protected:
    void SetUp() override {
        PantallaApartado5::SetUp();
        valida();
        g.Apartado3 = q(u"X");
        estado.FormularioOrigen = q(u"MDIPadral");
    }
    void sale(const char16_t* destino = GetParam().destino) {
        EXPECT_EQ(pantallas.Tomar(), salida(destino));
        EXPECT_FALSE(pantallas.EnEspera());
        EXPECT_EQ(estado.FormularioOrigen,
                  GetParam().origen ? pantalla->objectName() : q(u"MDIPadral"));
    }
    /// Tries to leave; the answers and the flags stay as they are.
    void noSale() {
        const DatosApartado5 antes = r, copia = auxiliar();
        pulsar(GetParam().boton);
        avisos.Verificar();
        EXPECT_EQ(pantallas.Tomar(), QStringList());
        EXPECT_FALSE(pantallas.EnEspera());
        EXPECT_TRUE(static_cast<const DatosApartado5&>(r) == antes);
        EXPECT_TRUE(auxiliar() == copia);
        EXPECT_FALSE(estado.ModificacionesPendientes);
        EXPECT_TRUE(pantalla->isVisible());
    }
    void esperaMensaje(const char16_t* texto, const char16_t* titulo = Titulo,
                       Icono icono = Icono::Informacion) {
        avisos.Espera(Mensaje{q(texto), q(titulo), icono, Botones::Aceptar});
    }
};

TEST_P(Salidas5, SinCambiosSoloSeMiraQueEsteCompleto) {
    // Broken rules that a section left as it was does not meet.
    r.EXENTASOCI = r.SOCIEDADES = r.DOMINANTE = q(u"S");
    for (const auto edicion : {Antigua5, Nueva5})
        for (const auto* nombre : {GetParam().boton, GetParam().imagen}) {
            estado.FormularioOrigen = q(u"MDIPadral");
            abrir(edicion, 20131231);
            const DatosApartado5 antes = r, copia = auxiliar();
            pulsar(nombre);
            sale();
            EXPECT_TRUE(static_cast<const DatosApartado5&>(r) == antes);
            EXPECT_TRUE(auxiliar() == copia);
            EXPECT_FALSE(estado.ModificacionesPendientes);
        }
}

TEST_P(Salidas5, ConCambiosValidosSeAcepta) {
    for (const auto edicion : {Antigua5, Nueva5}) {
        valida();
        r.APARTADO5LLENO = estado.ModificacionesPendientes = false;
        r.GuardarDatosAuxiliares();
        estado.FormularioOrigen = q(u"MDIPadral");
        abrir(edicion, 20131231);
        pulsar(u"chk17");
        const int esperas = pantallas.EsperasTotales;
        pulsar(GetParam().boton);
        sale();
        EXPECT_EQ(pantallas.EsperasTotales, esperas + 1);
        EXPECT_TRUE(r.APARTADO5LLENO);
        EXPECT_FALSE(r.MODIFAPARTADO5);
        EXPECT_TRUE(estado.ModificacionesPendientes);
        EXPECT_TRUE(auxiliar().APARTADO5LLENO);
        EXPECT_EQ(auxiliar().SATISRENDTRAB.texto(), q(u"S"));
        EXPECT_TRUE(static_cast<const R5&>(auxiliar()) == respuestas());
    }
}

TEST_P(Salidas5, ConUnaReglaRotaSeQueda) {
    abrir();
    pulsar(u"chk3");  // obliged to corporate tax
    pulsar(u"chk7");  // entity of article 9
    esperaMensaje(
        u"Al estar el campo '¿...Se trata de una entidad del (art 9) del imp de sociedades.  ' "
        u"seleccionado como 'Sí', el campo '¿Está obligado a presentar Declaración por el Impuesto "
        u"sobre Sociedades...' debe estar seleccionado como 'No'.");
    noSale();
    EXPECT_TRUE(r.MODIFAPARTADO5);
    EXPECT_FALSE(r.APARTADO5LLENO);
}

TEST_P(Salidas5, DosReglasAvisanConExclamacion) {
    abrir();
    for (const auto* casilla : {u"chk3", u"chk9", u"chk11"}) pulsar(casilla);
    esperaMensaje(
        u"Solo una de estas opciones puede estar marcada como 'Sí' ya que son excluyentes: '...Se "
        u"trata de una entidad del (ART-9) del imp de sociedades ...', '...Sociedad exenta o "
        u"parcialmente exenta (Art-117)...' y '...Es una entidad sin fines lucrativos...'",
        Titulo, Icono::Exclamacion);
    noSale();
    pulsar(u"chk12");
    pulsar(u"chk15");
    esperaMensaje(
        u"La casilla es una entidad dominante, sólo puede llevar S si la casilla tributa en "
        u"kelmaria en régimen de consolidación fiscal es S.",
        Titulo, Icono::Exclamacion);
    noSale();
}

TEST_P(Salidas5, IncompletaNoSeSaleConCambiosNiSin) {
    for (const bool cambios : {false, true})
        for (const auto edicion : {Antigua5, Nueva5}) {
            valida();
            // What the entry check finds goes before a broken rule.
            r.EXENTASOCI = r.SOCIEDADES = q(u"S");
            r.NOCONCIERTO = Letra();
            abrir(edicion);
            if (cambios) pulsar(u"chk18");
            r.MODIFAPARTADO5 = cambios;
            esperaMensaje(Incompleto);
            noSale();
        }
}

TEST_P(Salidas5, SinRespuestaAlIvaSoloSeSaleCancelando) {
    abrir();
    pulsar(u"chk28");
    EXPECT_FALSE(visible(EnAfirmativo) || visible(EnNegativo));
    esperaMensaje(Incompleto);
    noSale();
    pulsar(u"cmdCancelar");
    EXPECT_EQ(pantallas.Tomar(), salida(u"FrmApartado3"));
}

TEST_P(Salidas5, TodoNoNoEsNada) {
    r.GRANEMPRESA = q(u"N");
    abrir();
    esperaMensaje(u"Debe existir algún dato en el apartado 5...");
    noSale();
}

TEST_P(Salidas5, SoloConDatosDelSocioNoHaceFalta) {
    for (const bool cambios : {false, true}) {
        auto& a = d.apartado4;
        a.IVASOCIO = q(u"S");
        a.NIF = q(u"B12345674");
        a.NOMBRE = q(u"COMUNIDAD DE BIENES");
        poner(u" ");
        abrir();
        r.MODIFAPARTADO5 = cambios;
        estado.FormularioOrigen = q(u"MDIPadral");
        pulsar(GetParam().boton);
        sale();
        EXPECT_EQ(r.APARTADO5LLENO, cambios);
    }
}

TEST_P(Salidas5, ElCriterioDeCajaAntesDe2014) {
    r.IVA = r.IVACAJA = r.GENERAL = q(u"S");
    abrir(Antigua5, 20131231);
    esperaMensaje(
        u"Régimen especial del criterio de caja no puede tener valor alguno al tratarse de una "
        u"declaración anterior  al 01/01/2014",
        u"Ap5- Fallo en el apartado");
    noSale();
    pulsar(u"chk30");
    r.MODIFAPARTADO5 = false;
    esperaAviso(872, 83);
    noSale();
}

TEST_P(Salidas5, EnEuskera) {
    enEuskera();
    r.IVA = Letra();
    abrir();
    esperaMensaje(u"5. ataleko datu guztiak bete behar dituzu", u"Akatsa atalean");
    noSale();
}

TEST_P(Salidas5, Desde2015SePuedeDejarSinContestarLoQueNoSePregunta) {
    r.IVA = r.GENERAL = q(u"S");
    r.AGENCIASGLOBAL = r.IRPFOBJETIVA = Letra();
    abrir(Nueva5, 20150101);
    g.Apartado3 = q(u" ");
    pulsar(u"chk17");
    pulsar(GetParam().boton);
    EXPECT_EQ(pantallas.Tomar(),
              salida(q(GetParam().boton) == u"cmdAnterior" ? u"FrmDatGen" : GetParam().destino));
    EXPECT_TRUE(r.AGENCIASGLOBAL.vacio());
    EXPECT_TRUE(r.IRPFOBJETIVA.vacio());
}
INSTANTIATE_TEST_SUITE_P(Botones, Salidas5, ::testing::ValuesIn(Comprobadas));

TEST_F(PantallaApartado5, SinNadaDetrasNoSeDescarga) {
    valida();
    pantallas.ausentes = QStringList{q(u"frmApartado6")};
    abrir();
    pulsar(u"cmdSiguiente");
    EXPECT_EQ(pantallas.Tomar(), QStringList());
}

TEST_F(PantallaApartado5, SiguienteYAnteriorSaltanLosApartadosSinMarca) {
    valida();
    g.Apartado6 = q(u" ");
    g.Apartado7 = g.Apartado4 = q(u"X");
    abrir(Antigua5, 20131231);
    pulsar(u"cmdSiguiente");
    EXPECT_EQ(pantallas.Tomar(), salida(u"FrmApartado7"));
    abrir(Antigua5);
    pulsar(u"cmdAnterior");
    EXPECT_EQ(pantallas.Tomar(), salida(u"frmApartado4"));
    abrir(Nueva5, 20150101);
    pulsar(u"cmdAnterior");
    EXPECT_EQ(pantallas.Tomar(), salida(u"frmApartado4_2015"));
}

}  // namespace
}  // namespace padral::pruebas
