// The seven rules of section 3: each broken alone, beside its nearest valid neighbour.

#include "sections/location/section3_rules.h"

#include "location/section3_fixture.h"

namespace padral::pruebas {
namespace {

using Cambio = void (*)(cApartado3&, cDatosGenerales&);

struct Caso {
    const char* nombre;
    Cambio romper;
    Cambio arreglar;  ///< after romper
    const char16_t* mensaje;
    int texto;
    const char16_t* foco;
};
void PrintTo(const Caso& c, std::ostream* salida) { *salida << c.nombre; }

constexpr const char16_t* CorreoNoValido = u"La dirección de correo no es válida";
constexpr const char16_t* SinFax = u"No se ha especificado el número de fax";
constexpr const char16_t* SinFijo = u"No se ha especificado el número de teléfono fijo";

void ponerCorreo(cApartado3& r, const char16_t* direccion) {
    r.Correo = q(u"A");
    r.DirCorreo = q(direccion);
}

const Caso Casos[] = {
    {"NoHeading",
     [](cApartado3& r, cDatosGenerales&) { r.ActivEcon = r.ListaEpigrafe = QString(); },
     [](cApartado3& r, cDatosGenerales&) {
         r.ActivEcon = q(u"2.731");
         r.ListaEpigrafe = q(u"ABOGADOS");
     },
     u"Los datos del APARTADO 3 no están completos. Rellene el EPÍGRAFE.", 699,
     u"txtDescripcionActividad"},
    {"HeadingOutsideTheList",
     [](cApartado3& r, cDatosGenerales&) { r.ListaEpigrafe = q(u"LIBRERIAS"); },
     [](cApartado3& r, cDatosGenerales&) { r.ListaEpigrafe = q(u"LIBRERIA"); },
     u"Los datos del APARTADO 3 no están completos. Rellene el EPÍGRAFE.", 699,
     u"txtDescripcionActividad"},
    {"NoDescription",
     [](cApartado3& r, cDatosGenerales&) {
         r.ActivEcon = q(u"9999999");
         r.ListaEpigrafe = q(u"  ");
     },
     [](cApartado3& r, cDatosGenerales&) { r.ListaEpigrafe = q(u" A"); },
     u"Los datos del APARTADO 3 no están completos. Rellene la ACTIVIDAD ECONÓMICA PPAL.", 696,
     u"txtSinEpigrafe"},
    {"NoDescriptionNorPrevia",
     [](cApartado3& r, cDatosGenerales& g) {
         r.ActivEcon = q(u"9999999");
         r.ListaEpigrafe = QString();
         g.Causa1 = q(u"I");
     },
     [](cApartado3&, cDatosGenerales& g) { g.Causa1 = q(u"P"); },
     u"Los datos del APARTADO 3 no están completos. Rellene la ACTIVIDAD ECONÓMICA PPAL.", 696,
     u"txtSinEpigrafe"},
    {"NoAddress", [](cApartado3& r, cDatosGenerales&) { ponerCorreo(r, u" "); },
     [](cApartado3& r, cDatosGenerales&) { r.DirCorreo = q(u"A@B.C"); },
     u"No se ha rellenado la dirección de correo electrónico", 843, u"txtDirCorreo"},
    {"NoAddressNeededForLow", [](cApartado3& r, cDatosGenerales&) { ponerCorreo(r, u""); },
     [](cApartado3& r, cDatosGenerales&) { r.Correo = q(u"B"); },
     u"No se ha rellenado la dirección de correo electrónico", 843, u"txtDirCorreo"},
    {"BadAddress", [](cApartado3& r, cDatosGenerales&) { ponerCorreo(r, u"A@B"); },
     [](cApartado3& r, cDatosGenerales&) { r.DirCorreo = q(u"A@B.C"); }, CorreoNoValido, 868,
     u"txtDirCorreo"},
    {"FaxHigh", [](cApartado3& r, cDatosGenerales&) { r.Fax = q(u"A"); },
     [](cApartado3& r, cDatosGenerales&) { r.numFax = 1; }, SinFax, 844, u"numFax"},
    {"FaxLow", [](cApartado3& r, cDatosGenerales&) { r.Fax = q(u"B"); },
     [](cApartado3& r, cDatosGenerales&) { r.numFax = 943000000; }, SinFax, 844, u"numFax"},
    // The mobile number has the words of the address.
    {"MobileHigh", [](cApartado3& r, cDatosGenerales&) { r.Movil = q(u"A"); },
     [](cApartado3& r, cDatosGenerales&) { r.numMovil = 1; }, CorreoNoValido, 868, u"numMovil"},
    {"MobileLow", [](cApartado3& r, cDatosGenerales&) { r.Movil = q(u"B"); },
     [](cApartado3& r, cDatosGenerales&) { r.numMovil = 600000000; }, CorreoNoValido, 868,
     u"numMovil"},
    {"FixedHigh", [](cApartado3& r, cDatosGenerales&) { r.Fijo = q(u"A"); },
     [](cApartado3& r, cDatosGenerales&) { r.numFijo = 1; }, SinFijo, 845, u"numFijo"},
    {"FixedLow", [](cApartado3& r, cDatosGenerales&) { r.Fijo = q(u"B"); },
     [](cApartado3& r, cDatosGenerales&) { r.Fijo = QString(); }, SinFijo, 845, u"numFijo"},
};

class Reglas3 : public PantallaApartado3, public ::testing::WithParamInterface<Caso> {
protected:
    void SetUp() override {
        PantallaApartado3::SetUp();
        g.Causa1 = q(u"M");
        valida();
        GetParam().romper(r, g);
    }
    void esperaRechazo(const QString& mensaje, const QString& titulo) {
        r.Modificaciones = true;
        avisos.Espera(mensaje, titulo);
        pulsar(u"cmdSiguiente");
        avisos.Verificar();
        EXPECT_EQ(foco(), q(GetParam().foco));
        EXPECT_EQ(pantallas.Tomar(), QStringList());
        EXPECT_FALSE(r.Lleno);
        EXPECT_TRUE(r.Modificaciones);
        EXPECT_FALSE(estado.ModificacionesPendientes);
    }
};

TEST_P(Reglas3, Rota) {
    for (const auto edicion : {Edicion::Hasta2014, Edicion::Desde2015}) {
        abrir(edicion);
        esperaRechazo(q(GetParam().mensaje), q(u"Error en relación de datos"));
    }
}

TEST_P(Reglas3, RotaEnEuskera) {
    enEuskera();
    if (r.ListaEpigrafe == q(u"LIBRERIA")) r.ListaEpigrafe = q(u"LIBURU DENDA");
    abrir();
    esperaRechazo(estado.Texto(GetParam().texto), q(u"Akatsa datuen arteko erlazioan"));
}

TEST_P(Reglas3, LaVecinaVale) {
    GetParam().arreglar(r, g);
    abrir();
    r.Modificaciones = true;
    pulsar(u"cmdSiguiente");
    EXPECT_EQ(pantallas.Tomar(), salida(u"frmApartado4"));
    EXPECT_TRUE(r.Lleno);
}
INSTANTIATE_TEST_SUITE_P(Filas, Reglas3, ::testing::ValuesIn(Casos),
                         [](const auto& i) { return i.param.nombre; });

TEST(OrdenDeReglas, DelUnoAlSiete) {
    const std::pair<int, const char16_t*> esperadas[] = {{699, u"txtDescripcionActividad"},
                                                         {696, u"txtSinEpigrafe"},
                                                         {843, u"txtDirCorreo"},
                                                         {868, u"txtDirCorreo"},
                                                         {844, u"numFax"},
                                                         {868, u"numMovil"},
                                                         {845, u"numFijo"}};
    const auto reglas = ReglasApartado3();
    ASSERT_EQ(reglas.size(), std::size(esperadas));
    for (std::size_t i = 0; i < reglas.size(); ++i) {
        EXPECT_EQ(reglas[i].numero, static_cast<int>(i) + 1);
        EXPECT_EQ(reglas[i].texto, esperadas[i].first);
        EXPECT_EQ(q(reglas[i].foco), q(esperadas[i].second));
    }
}

TEST_F(PantallaApartado3, SoloHablaLaPrimeraRota) {
    valida();
    sinEpigrafe(u"");
    ponerCorreo(r, u"");
    r.Fax = r.Movil = r.Fijo = q(u"A");
    abrir();
    // Without a heading nothing is chosen, whatever its code.
    c<QComboBox>(u"cmbEpigrafe")->setCurrentIndex(-1);
    r.Modificaciones = true;
    const std::pair<int, std::function<void()>> turnos[] = {
        {699, [] {}},  // showing the record chooses the last row
        {696, [this] { r.ListaEpigrafe = q(u"AFINADOR"); }},
        {843, [this] { r.DirCorreo = q(u"A@B"); }},
        {868, [this] { r.DirCorreo = q(u"A@B.C"); }},
        {844, [this] { r.numFax = 1; }},
        {868, [this] { r.numMovil = 1; }},
        {845, [this] { r.numFijo = 1; }}};
    for (const auto& [mensaje, arreglar] : turnos) {
        esperaAviso(mensaje, 123);
        pulsar(u"cmdAnterior");
        avisos.Verificar();
        arreglar();
        static_cast<FrmApartado3*>(pantalla.get())->PresentarDatos();
    }
    pulsar(u"cmdAnterior");
    EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen"));
}

}  // namespace
}  // namespace padral::pruebas
