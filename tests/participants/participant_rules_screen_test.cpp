// The twelve rules of a participant as its screen tells them.

#include "participants/participant_fixture.h"

namespace padral::pruebas {
namespace {

using P = DatosParticipe;

/// What is broken of a participant and what accepting it says.
struct Caso {
    const char* que;
    void (*romper)(P&);
    const char16_t *mensaje, *titulo, *foco;
    bool propia = false;
};
void PrintTo(const Caso& caso, std::ostream* salida) { *salida << caso.que; }

constexpr const char16_t* NoValidos = u"Datos no válidos";

const Caso Casos[] = {
    {"1", [](P& p) { p.DNI = q(u""); }, u"El campo NIF no puede ser vacío", NoValidos, u"txtDNI"},
    {"2", [](P& p) { p.DNI = q(u"12345678A"); }, u"El NIF no es válido...", u"Fallo en el NIF",
     u"txtDNI"},
    {"3", [](P& p) { p.NOMBRE = q(u""); }, u"El campo Nombre no puede ser vacío", NoValidos,
     u"txtNombre"},
    {"4", [](P& p) { p.DESCRIPCIONVIA.clear(); },
     u"El campo Siglas del Domicilio no puede ser vacío", NoValidos, u"txtSiglas"},
    {"5", [](P& p) { p.NombreVia = q(u""); }, u"El campo Nombre del Domicilio no puede ser vacío",
     NoValidos, u"txtDomicilio"},
    {"6", [](P& p) { p.NombreProvincia.clear(); },
     u"El campo Nombre de Provincia no puede ser vacío", NoValidos, u"txtCodProvincia"},
    {"7", [](P& p) { p.NombMun.clear(); }, u"El campo Nombre de Municipio no puede ser vacío",
     NoValidos, u"txtMunicipio"},
    {"7, own province", [](P& p) { p.NombMun.clear(); },
     u"El campo Nombre de Municipio no puede ser vacío", NoValidos, u"txtCodMunicipio", true},
    {"8", [](P& p) { p.CodPostal = 999; },
     u"El código postal debe tener 5 dígitos. Si el código de la provincia tiene un sólo dígito "
     u"el código postal debe empezar por 0",
     u"Código postal no válido", u"txtCodigoPostal"},
    {"9", [](P& p) { p.CodPostal = 20001; },
     u"Los dos primeros dígitos del código postal (5 dígitos) deben coincidir con el código de la "
     u"provincia.",
     NoValidos, u"txtCodigoPostal"},
    {"10", [](P& p) { p.CodPostal = 28000; },
     u"Los tres últimos dígitos del código postal no deben ser ceros", NoValidos,
     u"txtCodigoPostal"},
    {"11", [](P& p) { p.CodMun = 0; },
     u"El campo Código de Municipio no puede ser vacío (dato obligatorio)", NoValidos,
     u"txtCodMunicipio", true},
    {"12", [](P& p) { p.PorcenPart = 0; },
     u"El campo Porcentaje de participación no puede ser cero (dato obligatorio)", NoValidos,
     u"txtPorcentaje"},
};

class ReglasEnPantalla : public PantallaParticipe, public ::testing::WithParamInterface<Caso> {};

TEST_P(ReglasEnPantalla, DicenLoSuyoYLlevanAlCampo) {
    const auto& caso = GetParam();
    P roto = caso.propia ? participePropio() : participeAjeno();
    caso.romper(roto);
    const auto participe = poner(roto);
    participe->MODIFPARTICIPES = true;
    d.participantes.ParticipeActual = participe;
    abrir();
    avisos.Espera(q(caso.mensaje), q(caso.titulo));
    sinCambios([&] { pulsar(u"cmdAceptar"); });
    avisos.Verificar();
    EXPECT_EQ(foco(), q(caso.foco));
    EXPECT_EQ(c<QLineEdit>(caso.foco)->selectedText(), texto(caso.foco));
    EXPECT_EQ(pantallas.Tomar(), QStringList());
    EXPECT_FALSE(pantallas.EnEspera());
    EXPECT_FALSE(d.parLista.MODIFLISTAPART);
    EXPECT_FALSE(estado.ModificacionesPendientes);
}
INSTANTIATE_TEST_SUITE_P(Casos, ReglasEnPantalla, ::testing::ValuesIn(Casos));

TEST_F(PantallaParticipe, ConVariasRotasSoloSeDiceLaPrimera) {
    abrirNuevo();
    avisos.Espera(q(u"El campo NIF no puede ser vacío"), q(NoValidos));
    pulsar(u"cmdAceptar");
    rellenar(u"txtDNI", u"12345678Z");
    avisos.Espera(q(u"El campo Nombre no puede ser vacío"), q(NoValidos));
    pulsar(u"cmdAceptar");
    EXPECT_EQ(avisos.Mostrados.size(), 2U);
    EXPECT_EQ(foco(), q(u"txtNombre"));
}

TEST_F(PantallaParticipe, LasReglasEnEuskera) {
    enEuskera();
    abrirNuevo();
    avisos.Espera(q(u"IFZ eremua ezin da hutsik egon"), q(u"Datuak ez dira baliagarriak"));
    pulsar(u"cmdAceptar");
}

// Nobody asks for the percentage of one that was never filled before it is accepted.
TEST_F(PantallaParticipe, UnPorcentajeNuncaPuestoSePideAlAceptar) {
    P sinPorcentaje = participeAjeno();
    sinPorcentaje.PorcenPart = 0;
    verUno(sinPorcentaje);
    pulsar(u"chkRegAgraria1");
    enfocar(u"txtPorcentaje");
    avisos.Espera(q(u"El campo Porcentaje de participación no puede ser cero (dato obligatorio)"),
                  q(NoValidos));
    pulsar(u"cmdAceptar");
    EXPECT_EQ(foco(), q(u"txtPorcentaje"));
}

}  // namespace
}  // namespace padral::pruebas
