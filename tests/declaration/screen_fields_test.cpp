// Typing in the fields and leaving them.

#include "declaration/screen_fixture.h"

namespace padral::pruebas {
namespace {

using S = DatosGeneralesStore;

struct CampoPlano {
    const char16_t* nombre;
    QString S::*propiedad;
};
class TextoPlano : public PantallaGeneral, public ::testing::WithParamInterface<CampoPlano> {
protected:
    void SetUp() override {
        PantallaGeneral::SetUp();
        g.MotivoCambio = 10;
        abrirRegistro();
    }
};

TEST_P(TextoPlano, SeGuardaEnMayusculasAlSalir) {
    const auto& [nombre, propiedad] = GetParam();
    escribir(nombre, QStringLiteral("ab-1"));
    EXPECT_EQ(g.*propiedad, QString()) << "not before the field is left";
    EXPECT_TRUE(habilitado(u"cmdAnterior"));
    tab();
    EXPECT_EQ(g.*propiedad, QStringLiteral("AB-1"));
    EXPECT_EQ(texto(nombre), QStringLiteral("AB-1"));
    EXPECT_TRUE(estado.ModificacionesPendientes);
    EXPECT_FALSE(habilitado(u"cmdAnterior")) << "off after any change";
    EXPECT_NE(foco(), q(nombre));
}

TEST_P(TextoPlano, ElMismoValorNoCambiaNada) {
    const auto& [nombre, propiedad] = GetParam();
    g.*propiedad = QStringLiteral("AB-1");
    abrirRegistro();
    sinCambios([&] { rellenarCampo(nombre, QStringLiteral("ab-1")); });
    sinCambios([&] { rellenarCampo(nombre, QStringLiteral("AB-1")); });
}

TEST_P(TextoPlano, SeVacia) {
    const auto& [nombre, propiedad] = GetParam();
    g.*propiedad = QStringLiteral("AB-1");
    abrirRegistro();
    rellenarCampo(nombre, QString());
    EXPECT_EQ(g.*propiedad, QString());
    EXPECT_TRUE(estado.ModificacionesPendientes);
}

TEST_P(TextoPlano, SoloLoQueElAlfabetoTiene) {
    const auto& [nombre, propiedad] = GetParam();
    rellenarCampo(nombre, QStringLiteral("a\"#'[b]"));
    EXPECT_EQ(g.*propiedad, QStringLiteral("AB"));
}

TEST_P(TextoPlano, IntroPasaAlSiguienteYAlEntrarSeSelecciona) {
    const auto& [nombre, propiedad] = GetParam();
    g.*propiedad = QStringLiteral("VIEJO");
    abrirRegistro();
    enfocar(nombre);
    EXPECT_EQ(c<QLineEdit>(nombre)->selectedText(), QStringLiteral("VIEJO"));
    QTest::keyClicks(c(nombre), QStringLiteral("X"));
    tecla(Qt::Key_Return);
    EXPECT_NE(foco(), q(nombre));
    EXPECT_EQ(g.*propiedad, QStringLiteral("X"));
}
INSTANTIATE_TEST_SUITE_P(
    Campos, TextoPlano,
    ::testing::Values(CampoPlano{u"txtNombre", &S::NOMBRE},
                      CampoPlano{u"txtNumeroArchivo", &S::NumeroArchivo},
                      CampoPlano{u"txtNombreRepresentante", &S::NombreRepresentante},
                      CampoPlano{u"txtNombreAnterior", &S::NombreAnterior},
                      CampoPlano{u"txtFirmaEnCalidadDe", &S::FirmaEnCalidadDe}));

class CampoNif : public TextoPlano {};

TEST_P(CampoNif, ValidoSeGuarda) {
    const auto& [nombre, propiedad] = GetParam();
    for (const auto& nif : {QStringLiteral("12345678Z"), QStringLiteral("X1234567L"),
                            QStringLiteral("A12345674"), QStringLiteral("N1234567D")}) {
        estado.ModificacionesPendientes = false;
        rellenarCampo(nombre, nif.toLower());
        EXPECT_EQ(g.*propiedad, nif);
        EXPECT_TRUE(estado.ModificacionesPendientes);
    }
}

TEST_P(CampoNif, NoValidoVuelveElDeAntesYElFoco) {
    const auto& [nombre, propiedad] = GetParam();
    g.*propiedad = QStringLiteral("E12345674");
    abrirRegistro();
    for (const auto& nif : {QStringLiteral("12345678A"), QStringLiteral("1"),
                            QStringLiteral("A12345675"), QStringLiteral("1234567Z")}) {
        esperaAviso(545, 158);
        sinCambios([&] { rellenarCampo(nombre, nif); });
        avisos.Verificar();
        EXPECT_EQ(texto(nombre), QStringLiteral("E12345674"));
        EXPECT_EQ(foco(), q(nombre));
    }
}

TEST_P(CampoNif, VacioNoEsError) {
    const auto& [nombre, propiedad] = GetParam();
    g.*propiedad = QStringLiteral("E12345674");
    abrirRegistro();
    rellenarCampo(nombre, QStringLiteral("   "));
    EXPECT_EQ((g.*propiedad).trimmed(), QString());
    EXPECT_TRUE(estado.ModificacionesPendientes);
}

TEST_P(CampoNif, ElMismoValorNoSePregunta) {
    const auto& [nombre, propiedad] = GetParam();
    g.*propiedad = QStringLiteral("MALO");
    abrirRegistro();
    sinCambios([&] { rellenarCampo(nombre, QStringLiteral("MALO")); });
}
INSTANTIATE_TEST_SUITE_P(Campos, CampoNif,
                         ::testing::Values(CampoPlano{u"txtDNI", &S::DNI},
                                           CampoPlano{u"txtDNIRepresentante", &S::DNIRepresentante},
                                           CampoPlano{u"txtDNIAnterior", &S::DNIAnterior}));

using Campos = PantallaGeneral;

TEST_F(Campos, ElNifMarcaElAnexoICuandoToca) {
    g.Causa1 = QStringLiteral("I");
    abrirRegistro();
    rellenarCampo(u"txtDNI", QStringLiteral("A12345674"));
    EXPECT_FALSE(marcada(u"chkApartado8"));
    rellenarCampo(u"txtDNI", QStringLiteral("E12345674"));
    EXPECT_TRUE(marcada(u"chkApartado8"));
    EXPECT_FALSE(habilitado(u"chkApartado8"));
    EXPECT_TRUE(habilitado(u"cmdAnexo"));
    EXPECT_EQ(g.AnexoI, QStringLiteral("X"));
}

TEST_F(Campos, ElMismoEscritoSeRechaza) {
    abrirRegistro();
    for (const auto& firma :
         {QStringLiteral("EL MISMO"), QStringLiteral("el mismo"), QStringLiteral("El Mismo")}) {
        esperaAviso(546, 480);
        sinCambios([&] { rellenarCampo(u"txtFirmaEnCalidadDe", firma); });
        avisos.Verificar();
        EXPECT_EQ(foco(), QStringLiteral("txtFirmaEnCalidadDe"));
    }
    rellenarCampo(u"txtFirmaEnCalidadDe", QStringLiteral("EL MISMO GERENTE"));
    EXPECT_EQ(g.FirmaEnCalidadDe, QStringLiteral("EL MISMO GERENTE"));
    EXPECT_EQ(g.ElMismo, QString());
}

TEST_F(Campos, SalirConElRatonGuardaAntesDeLaOrden) {
    abrirValida();
    escribir(u"txtNombre", QStringLiteral("OTRO"));
    pulsar(u"chkPorExtravio");
    EXPECT_EQ(g.NOMBRE, QStringLiteral("OTRO"));
    EXPECT_EQ(g.Causa2, QStringLiteral("D"));
}

TEST_F(Campos, SalirConElRatonAOtroCampoLoSelecciona) {
    abrirValida();
    escribir(u"txtNumeroArchivo", QStringLiteral("R"));
    pulsar(u"txtNombre");
    EXPECT_EQ(g.NumeroArchivo, QStringLiteral("R"));
    EXPECT_EQ(foco(), QStringLiteral("txtNombre"));
    EXPECT_EQ(c<QLineEdit>(u"txtNombre")->selectedText(), QStringLiteral("NOMBRE"));
}

TEST_F(Campos, LaTeclaDeAccesoDejaElCampo) {
    abrirValida();
    escribir(u"txtNombre", QStringLiteral("OTRO"));
    tecla(Qt::Key_M, Qt::AltModifier);
    EXPECT_EQ(g.NOMBRE, QStringLiteral("OTRO"));
    EXPECT_TRUE(visible(u"FraModificacion"));
    EXPECT_EQ(foco(), QStringLiteral("txtDNIAnterior"));
}

TEST_F(Campos, AnteriorSeApagaPorElCambioQueLoDeja) {
    abrirValida();
    escribir(u"txtNombre", QStringLiteral("OTRO"));
    pulsar(u"cmdAnterior");
    EXPECT_FALSE(habilitado(u"cmdAnterior"));
    EXPECT_EQ(pantallas.Tomar(), QStringList());
    EXPECT_EQ(g.NOMBRE, QStringLiteral("OTRO"));
}

/// The ways to ask for Aceptar while a field is being refused.
class AceptarRechazado : public PantallaGeneral, public ::testing::WithParamInterface<int> {};

TEST_P(AceptarRechazado, UnCampoRechazadoSeTragaLaOrden) {
    abrirValida();
    estado.ModificacionesPendientes = true;
    escribir(u"txtDNI", QStringLiteral("12345678A"));
    esperaAviso(545, 158);
    if (GetParam() == 0) pulsar(u"cmdAceptar");
    if (GetParam() == 1) pulsar(u"PicOKey");
    if (GetParam() == 2) tecla(Qt::Key_A, Qt::AltModifier);
    EXPECT_FALSE(c<QPushButton>(u"cmdAceptar")->isDown()) << "no click is on its way";
    avisos.Verificar();
    EXPECT_EQ(foco(), QStringLiteral("txtDNI"));
    EXPECT_EQ(texto(u"txtDNI"), QStringLiteral("A12345674"));
    EXPECT_EQ(pantallas.Tomar(), QStringList());
    EXPECT_EQ(declaracionesGuardadas(), 0);
}
INSTANTIATE_TEST_SUITE_P(Caminos, AceptarRechazado, ::testing::Values(0, 1, 2));

}  // namespace
}  // namespace padral::pruebas
