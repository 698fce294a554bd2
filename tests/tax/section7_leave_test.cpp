// The three ways out of section 7 that look at the rules.

#include "tax/section7_fixture.h"

namespace padral::pruebas {
namespace {

struct Salida {
    const char16_t *boton, *imagen, *destino;
    bool origen;          ///< the screen shown gets the name of this one
    bool repiteSinDatos;  ///< a refusal ends with the message of the empty section
};
void PrintTo(const Salida& caso, std::ostream* salida) { *salida << s(caso.boton); }

constexpr Salida Comprobadas[] = {
    {u"cmdSiguiente", u"PicSiguiente", u"frmAnexoII", false, true},
    {u"cmdAnterior", u"PicAnterior", u"frmApartado6", true, false},
    {u"cmdInicio", u"PicInicio", u"FrmDatGen", true, false},
};

struct MensajeEsperado {
    const char16_t *texto, *titulo;
};
constexpr MensajeEsperado SinDatos{u"No ha rellenado ningún dato. Hágalo o pulse el botón Cancelar",
                                   u"Datos no válidos"},
    Revoca{
        u"Si el campo MAS DE 10.000 EUROS = 'S' el campo TRIBUTACIÓN EN DESTINO debe ser 'O ' "
        u"o blanco",
        u"Fallo en la validación"},
    SinDatosEuskera{u"Ez duzu daturik bete. Bete ezazu edo sakatu Utzi botoia",
                    u"Datuak ez dira baliagarriak"},
    RevocaEuskera{
        u"10.000 EURO BAINO GEHIAGO eremua = 'S' bada, HELMUGAN ZERGAPETZEA eremuak 'O ' "
        u"izan edo hutsik egon behar du",
        u"Akatsa balioztatzean"};

class Salidas7 : public PantallaApartado7, public ::testing::WithParamInterface<Salida> {
protected:
    void SetUp() override {
        PantallaApartado7::SetUp();
        valida();
        g.AnexoI = q(u" ");
        g.Apartado6 = q(u"X");
        estado.FormularioOrigen = q(u"MDIPadral");
        avisos.alMostrar = [this](const Mensaje&) { EXPECT_TRUE(pantallas.EnEspera()); };
    }
    void sale() {
        EXPECT_EQ(pantallas.Tomar(), salida(GetParam().destino));
        EXPECT_FALSE(pantallas.EnEspera());
        EXPECT_EQ(estado.FormularioOrigen,
                  GetParam().origen ? q(u"FrmApartado7") : q(u"MDIPadral"));
    }
    /// Tries to leave: the message of the rule, on the way on that of the empty section after it,
    /// and nothing changes.
    void noSale(const MensajeEsperado& regla, const MensajeEsperado& sinDatos = SinDatos,
                const char16_t* boton = GetParam().boton) {
        const D7 antes = r, copia = auxiliar();
        avisos.Mostrados.clear();
        avisos.Espera(q(regla.texto), q(regla.titulo));
        if (GetParam().repiteSinDatos) avisos.Espera(q(sinDatos.texto), q(sinDatos.titulo));
        pulsar(q(boton));
        avisos.Verificar();
        EXPECT_EQ(avisos.Mostrados.size(), GetParam().repiteSinDatos ? 2U : 1U);
        EXPECT_EQ(pantallas.Tomar(), QStringList());
        EXPECT_FALSE(pantallas.EnEspera());
        EXPECT_TRUE(datos() == antes);
        EXPECT_TRUE(auxiliar() == copia);
        EXPECT_FALSE(estado.ModificacionesPendientes);
        EXPECT_TRUE(pantalla->isVisible());
    }
};

TEST_P(Salidas7, SinCambiosSale) {
    for (const auto* nombre : {GetParam().boton, GetParam().imagen}) {
        estado.FormularioOrigen = q(u"MDIPadral");
        abrir();
        const D7 antes = r, copia = auxiliar();
        const int esperas = pantallas.EsperasTotales;
        pulsar(q(nombre));
        sale();
        EXPECT_EQ(pantallas.EsperasTotales, esperas + 1);
        EXPECT_TRUE(datos() == antes);
        EXPECT_TRUE(auxiliar() == copia);
        EXPECT_FALSE(r.Lleno);
        EXPECT_FALSE(estado.ModificacionesPendientes);
    }
}

TEST_P(Salidas7, ConCambiosSeAcepta) {
    for (const auto* nombre : {GetParam().boton, GetParam().imagen}) {
        r.InicializarApartado7();
        r.Lleno = estado.ModificacionesPendientes = false;
        estado.FormularioOrigen = q(u"MDIPadral");
        abrir();
        pulsar(q(u"chkRevPais25"));
        const int esperas = pantallas.EsperasTotales;
        pulsar(q(nombre));
        sale();
        EXPECT_EQ(pantallas.EsperasTotales, esperas + 1);
        EXPECT_TRUE(r.Lleno);
        EXPECT_FALSE(r.Modificaciones);
        EXPECT_TRUE(estado.ModificacionesPendientes);
        EXPECT_TRUE(auxiliar().Lleno);
        EXPECT_EQ(auxiliar().DestRevocPais[24], q(u"R"));
        EXPECT_EQ(r.ObtenerDatos(), filaCon({{49, q(u"R")}}));
    }
}

TEST_P(Salidas7, VaciaNoSeSaleConCambiosNiSin) {
    r.InicializarApartado7();
    abrir();
    noSale(SinDatos);
    EXPECT_FALSE(r.Modificaciones);
    pulsar(q(u"chkLimSupPais1"));
    pulsar(q(u"chkLimSupPais1"));
    noSale(SinDatos);
    EXPECT_TRUE(r.Modificaciones);
    EXPECT_FALSE(r.Lleno);
    noSale(SinDatos, SinDatos, GetParam().imagen);
}

TEST_P(Salidas7, UnaSolaRespuestaBasta) {
    r.InicializarApartado7();
    abrir();
    for (const auto& casilla : casillas7()) {
        SCOPED_TRACE(casilla.nombre.toStdString());
        estado.FormularioOrigen = q(u"MDIPadral");
        pulsar(casilla.nombre);
        pulsar(q(GetParam().boton));
        sale();
        EXPECT_EQ(r.ObtenerDatos(), filaCon({{casilla.posicion, casilla.valor}}));
        pulsar(casilla.nombre);
    }
}

TEST_P(Salidas7, SobreElLimiteNoSeRevoca) {
    abrir();
    pulsar(q(u"chkMasLimEuros"));
    pulsar(q(u"chkRevocacion"));
    noSale(Revoca);
    EXPECT_TRUE(r.Modificaciones);
    EXPECT_FALSE(r.Lleno);
    pulsar(q(u"chkOpcion"));
    pulsar(q(GetParam().boton));
    sale();
    EXPECT_EQ(r.TributDestino, q(u"O"));
}

TEST_P(Salidas7, SobreElLimiteNoSeRevocaTampocoSinCambios) {
    r.MasLimEuros = q(u"S");
    r.TributDestino = q(u"R");
    abrir();
    noSale(Revoca);
    EXPECT_FALSE(r.Modificaciones);
    noSale(Revoca);
    pulsar(q(u"chkRevocacion"));
    pulsar(q(GetParam().boton));
    sale();
    EXPECT_EQ(r.TributDestino, QString());
    EXPECT_TRUE(r.Lleno);
}

TEST_P(Salidas7, BajoElLimiteSeRevoca) {
    abrir();
    pulsar(q(u"chkMenosLimEuros"));
    pulsar(q(u"chkRevocacion"));
    pulsar(q(GetParam().boton));
    sale();
}

TEST_P(Salidas7, EnEuskera) {
    enEuskera();
    r.InicializarApartado7();
    abrir();
    noSale(SinDatosEuskera, SinDatosEuskera);
    r.MasLimEuros = q(u"S");
    r.TributDestino = q(u"R");
    noSale(RevocaEuskera, SinDatosEuskera);
}
INSTANTIATE_TEST_SUITE_P(Botones, Salidas7, ::testing::ValuesIn(Comprobadas));

// A refusal on another way out leaves nothing behind.
TEST_F(PantallaApartado7, TrasUnaNegativaElSiguienteSaleSinMensajes) {
    valida();
    r.InicializarApartado7();
    abrir();
    for (const auto* boton : {u"cmdInicio", u"cmdAnterior"}) {
        esperaAviso(281, 125);
        pulsar(q(boton));
    }
    pulsar(q(u"chkAgric"));
    pulsar(q(u"cmdSiguiente"));
    EXPECT_EQ(pantallas.Tomar(), salida(u"frmDatosParticipe"));
    EXPECT_EQ(avisos.Mostrados.size(), 2U);
}

TEST_F(PantallaApartado7, SiguienteVaAlAnexoQueSeHaMarcado) {
    valida();
    abrir();
    pulsar(q(u"cmdSiguiente"));
    EXPECT_EQ(pantallas.Tomar(), salida(u"frmDatosParticipe"));
    ponerParticipe(u"12345678Z", u"C");
    abrir();
    pulsar(q(u"cmdSiguiente"));
    EXPECT_EQ(pantallas.Tomar(), salida(u"frmListaParticipes"));
    g.AnexoI = q(u" ");
    abrir();
    pulsar(q(u"cmdSiguiente"));
    EXPECT_EQ(pantallas.Tomar(), salida(u"frmAnexoII"));
}

TEST_F(PantallaApartado7, SinNadaDetrasNoSeDescarga) {
    valida();
    g.AnexoI = q(u" ");
    pantallas.ausentes = QStringList{q(u"frmAnexoII")};
    abrir();
    pulsar(q(u"cmdSiguiente"));
    EXPECT_EQ(pantallas.Tomar(), QStringList());
}

TEST_F(PantallaApartado7, AnteriorSaltaLosApartadosSinMarca) {
    valida();
    for (const auto* destino : {u"FrmDatGen", u"FrmApartado2"}) {
        abrir();
        pulsar(q(u"cmdAnterior"));
        EXPECT_EQ(pantallas.Tomar(), salida(destino));
        g.Apartado2 = q(u"X");
    }
}

}  // namespace
}  // namespace padral::pruebas
