// The eight rules of a domicile, in each of the four.

#include "sections/location/section2_rules.h"

#include "location/section2_fixture.h"

namespace padral::pruebas {
namespace {

using B = BloqueDireccion;

/// A domicile and what leaving the screen says to it; without a message it is valid.
struct Caso {
    const char* que;
    void (*cambiar)(B&);
    bool propia;
    int mensaje, titulo;
    const char16_t* foco;
};
void PrintTo(const Caso& caso, std::ostream* salida) { *salida << caso.que; }

constexpr const char16_t* Via = u"txtSigDom";
constexpr const char16_t* Calle = u"txtDom";
constexpr const char16_t* Provincia = u"numCodProv";
constexpr const char16_t* CodMunicipio = u"numCodMun";
constexpr const char16_t* Municipio = u"txtMun";
constexpr const char16_t* Postal = u"numCod";

const Caso Casos[] = {
    {"own province, complete", [](B&) {}, true, 0, 0, nullptr},
    {"other province, complete", [](B&) {}, false, 0, 0, nullptr},
    {"everything filled", [](B& b) { b = completa(); }, false, 0, 0, nullptr},
    {"nothing at all", [](B& b) { b = {}; }, false, 0, 0, nullptr},

    {"1: no street type", [](B& b) { b.DescripcionSiglas.clear(); }, false, 124, 125, Via},
    {"1: a code without its name",
     [](B& b) {
         b.SiglasDomicilio = q(u"L");
         b.DescripcionSiglas.clear();
     },
     true, 124, 125, Via},
    {"1: a name without its code", [](B& b) { b.SiglasDomicilio.clear(); }, false, 0, 0, nullptr},
    {"1: only a telephone",
     [](B& b) {
         b = {};
         b.Telefono = 943000000;
     },
     false, 124, 125, Via},
    {"1: only a letter",
     [](B& b) {
         b = {};
         b.Letra = q(u"B");
     },
     false, 124, 125, Via},

    {"2: no street", [](B& b) { b.NombreDomicilio.clear(); }, false, 126, 115, Calle},
    {"2: a street of one letter", [](B& b) { b.NombreDomicilio = q(u"A"); }, false, 0, 0, nullptr},

    {"3: no province's name", [](B& b) { b.NombreProvincia.clear(); }, false, 127, 117, Provincia},
    {"3: no province at all",
     [](B& b) {
         b.NombreProvincia.clear();
         b.CodigoProvincia = 0;
     },
     false, 127, 117, Provincia},
    {"3: a province's name", [](B& b) { b.NombreProvincia = q(u"A"); }, false, 0, 0, nullptr},

    {"4: own province without code", [](B& b) { b.CodigoMunicipio = 0; }, true, 128, 129,
     CodMunicipio},
    {"4: own province, code 999", [](B& b) { b.CodigoMunicipio = 999; }, true, 0, 0, nullptr},
    {"4: own province, code without name", [](B& b) { b.NombreMunicipio.clear(); }, true, 0, 0,
     nullptr},
    {"4: other province without code", [](B& b) { b.CodigoMunicipio = 0; }, false, 0, 0, nullptr},

    {"5: other province without name", [](B& b) { b.NombreMunicipio.clear(); }, false, 130, 119,
     Municipio},
    {"5: other province, a code is no name",
     [](B& b) {
         b.NombreMunicipio.clear();
         b.CodigoMunicipio = 1;
     },
     false, 130, 119, Municipio},
    {"5: other province, name of one letter", [](B& b) { b.NombreMunicipio = q(u"A"); }, false, 0,
     0, nullptr},

    // A short postal code is padded to five, so that message 120 never comes.
    {"6: no postal code", [](B& b) { b.CodigoPostal = 0; }, true, 122, 123, Postal},
    {"6: a postal code of one digit", [](B& b) { b.CodigoPostal = 5; }, false, 122, 123, Postal},
    {"6: a postal code of four digits",
     [](B& b) {
         b.CodigoProvincia = 1;
         b.CodigoPostal = 1005;
     },
     false, 0, 0, nullptr},

    {"7: 28 with 20001", [](B& b) { b.CodigoPostal = 20001; }, false, 122, 123, Postal},
    {"7: 20 with 28001", [](B& b) { b.CodigoPostal = 28001; }, true, 122, 123, Postal},
    {"7: 20 with 20999", [](B& b) { b.CodigoPostal = 20999; }, true, 0, 0, nullptr},
    {"7: 1 with 10050",
     [](B& b) {
         b.CodigoProvincia = 1;
         b.CodigoPostal = 10050;
     },
     false, 122, 123, Postal},
    {"7: 10 with 1005",
     [](B& b) {
         b.CodigoProvincia = 10;
         b.CodigoPostal = 1005;
     },
     false, 122, 123, Postal},

    {"8: 20000", [](B& b) { b.CodigoPostal = 20000; }, true, 131, 121, Postal},
    {"8: 28000", [](B& b) { b.CodigoPostal = 28000; }, false, 131, 121, Postal},
    {"8: 28100", [](B& b) { b.CodigoPostal = 28100; }, false, 0, 0, nullptr},
    {"8: 28010", [](B& b) { b.CodigoPostal = 28010; }, false, 0, 0, nullptr},
};

class Reglas : public PantallaApartado2,
               public ::testing::WithParamInterface<std::tuple<DomicilioEsperado, Caso>> {
protected:
    const DomicilioEsperado& domicilio() const { return std::get<0>(GetParam()); }
    const Caso& caso() const { return std::get<1>(GetParam()); }
};

TEST_P(Reglas, DicenLoSuyoYLlevanAlCampo) {
    B& b = r.*domicilio().bloque;
    b = caso().propia ? enProvinciaPropia() : enOtraProvincia();
    caso().cambiar(b);
    abrir();
    const DatosApartado2 antes = r;
    if (caso().mensaje != 0) esperaAviso(caso().mensaje, caso().titulo);
    pulsar(q(u"cmdInicio"));
    avisos.Verificar();
    EXPECT_TRUE(datos() == antes);
    EXPECT_FALSE(pantallas.EnEspera());
    if (caso().mensaje == 0) {
        EXPECT_EQ(pantallas.Tomar(),
                  QStringList({q(u"Mostrar FrmDatGen"), q(u"Descargar FrmApartado2")}));
        return;
    }
    EXPECT_EQ(pantallas.Tomar(), QStringList());
    EXPECT_EQ(foco(), nombre(caso().foco, domicilio()));
}
INSTANTIATE_TEST_SUITE_P(Domicilios, Reglas,
                         ::testing::Combine(LosCuatro(), ::testing::ValuesIn(Casos)));

struct ReglaEsperada {
    int texto, titulo;
    CampoDireccion foco;
};
constexpr ReglaEsperada ReglasEsperadas[] = {
    {124, 125, CampoDireccion::Siglas},    {126, 115, CampoDireccion::Calle},
    {127, 117, CampoDireccion::Provincia}, {128, 129, CampoDireccion::CodigoMunicipio},
    {130, 119, CampoDireccion::Municipio}, {120, 121, CampoDireccion::Postal},
    {122, 123, CampoDireccion::Postal},    {131, 121, CampoDireccion::Postal}};

TEST(TablaDeReglas, DelUnoAlOcho) {
    const auto reglas = ReglasDireccion();
    ASSERT_EQ(reglas.size(), std::size(ReglasEsperadas));
    for (std::size_t i = 0; i < reglas.size(); ++i) {
        EXPECT_EQ(reglas[i].numero, static_cast<int>(i) + 1);
        EXPECT_EQ(reglas[i].texto, ReglasEsperadas[i].texto) << "rule " << i + 1;
        EXPECT_EQ(reglas[i].titulo, ReglasEsperadas[i].titulo) << "rule " << i + 1;
        EXPECT_EQ(reglas[i].foco, ReglasEsperadas[i].foco) << "rule " << i + 1;
    }
}

using OrdenDeReglas = EnCadaDomicilio;

// The code of the first provinces has one figure, and so their postal codes have four.
TEST_P(OrdenDeReglas, ElPostalMilDeLaProvinciaUno) {
    b() = enOtraProvincia();
    b().CodigoProvincia = 1;
    b().NombreProvincia = q(u"Álava");
    b().CodigoPostal = 1000;
    abrir();
    EXPECT_EQ(texto(n(Postal)), q(u"01000"));
    esperaAviso(131, 121);
    pulsar(q(u"cmdInicio"));
    avisos.Verificar();
    EXPECT_EQ(foco(), n(Postal));
}

TEST_P(OrdenDeReglas, HablaSoloLaPrimera) {
    b().Telefono = 1;
    const auto prueba = [&](int mensaje, int titulo, const char16_t* campo) {
        abrir();
        esperaAviso(mensaje, titulo);
        pulsar(q(u"cmdApartadoAnterior"));
        avisos.Verificar();
        EXPECT_EQ(foco(), n(campo));
    };
    prueba(124, 125, Via);
    b().DescripcionSiglas = q(u"Calle");
    prueba(126, 115, Calle);
    b().NombreDomicilio = q(u"MAYOR");
    prueba(127, 117, Provincia);
    b().CodigoProvincia = 20;
    b().NombreProvincia = q(u"Kelmaria");
    prueba(128, 129, CodMunicipio);
    b().CodigoProvincia = 28;
    prueba(130, 119, Municipio);
    b().NombreMunicipio = q(u"POBLADO");
    prueba(122, 123, Postal);
    b().CodigoPostal = 28000;
    prueba(131, 121, Postal);
    b().CodigoPostal = 28001;
    abrir();
    pulsar(q(u"cmdApartadoAnterior"));
    EXPECT_EQ(pantallas.Tomar().size(), 2);
}
INSTANTIATE_TEST_SUITE_P(Domicilios, OrdenDeReglas, LosCuatro());

using OrdenDeDomicilios = PantallaApartado2;

TEST_F(OrdenDeDomicilios, FiscalSocialActividadNotificacion) {
    for (const auto& domicilio : DomiciliosEsperados) (r.*domicilio.bloque).Telefono = 1;
    for (const auto& domicilio : DomiciliosEsperados) {
        abrir();
        esperaAviso(124, 125);
        pulsar(q(u"cmdInicio"));
        avisos.Verificar();
        EXPECT_EQ(foco(), nombre(Via, domicilio));
        r.*domicilio.bloque = enProvinciaPropia();
    }
    abrir();
    pulsar(q(u"cmdInicio"));
    EXPECT_EQ(pantallas.Tomar().size(), 2);
}

TEST_F(OrdenDeDomicilios, CuatroVaciosValen) {
    abrir();
    pulsar(q(u"cmdInicio"));
    EXPECT_EQ(pantallas.Tomar().size(), 2);
}

TEST_F(OrdenDeDomicilios, EnEuskeraTambien) {
    enEuskera();
    r.Fis.Telefono = 1;
    abrir();
    avisos.Espera(q(u"Bidea eremua ezin da hutsik egon (nahitaezko datua)"),
                  q(u"Datuak ez dira baliagarriak"));
    pulsar(q(u"cmdInicio"));
    avisos.Verificar();
}

TEST_F(OrdenDeDomicilios, UnBlancoCuentaComoTexto) {
    r.Fis.Letra = q(u" ");
    abrir();
    esperaAviso(124, 125);
    pulsar(q(u"cmdInicio"));
}

TEST_F(OrdenDeDomicilios, LoEscritoSeGuardaAntesDeValidar) {
    r.Fis = enProvinciaPropia();
    abrir();
    escribir(q(u"numCodFis"), q(u"20000"));
    esperaAviso(131, 121);
    pulsar(q(u"cmdInicio"));
    avisos.Verificar();
    EXPECT_EQ(r.Fis.CodigoPostal, 20000);
    EXPECT_EQ(foco(), q(u"numCodFis"));
    rellenar(q(u"numCodFis"), q(u"20001"));
    pulsar(q(u"cmdInicio"));
    EXPECT_EQ(pantallas.Tomar().size(), 2);
}

}  // namespace
}  // namespace padral::pruebas
