// Province and municipality of the representative, typed and picked from their lists.

#include "tax/annex2_fixture.h"

namespace padral::pruebas {
namespace {

using Direccion = PantallaAnexoII;

TEST_F(Direccion, UnaProvinciaConocidaTomaSuNombreYVaciaElMunicipio) {
    for (const auto salir : {Qt::Key_Tab, Qt::Key_Return}) {
        enProvinciaPropia();
        abrir();
        escribir(u"numCodigoProvincia", u"28");
        tecla(salir);
        esperaDireccion(28, u"Madrid", 0, u"");
        EXPECT_TRUE(cambiado());
        EXPECT_EQ(foco(), q(u"cmdListaProvincias"));
        EXPECT_TRUE(bloqueado(u"numCodigoMunicipio"));
        EXPECT_FALSE(bloqueado(u"txtNombreMunRepr"));
        EXPECT_FALSE(habilitado(u"cmdListaMunicipios"));
    }
}

TEST_F(Direccion, LaPropiaAbreElCodigoDelMunicipio) {
    enOtraProvincia();
    abrir();
    rellenar(u"numCodigoProvincia", u"20");
    esperaDireccion(20, u"Kelmaria", 0, u"");
    EXPECT_FALSE(bloqueado(u"numCodigoMunicipio"));
    EXPECT_TRUE(bloqueado(u"txtNombreMunRepr"));
    EXPECT_TRUE(habilitado(u"cmdListaMunicipios"));
}

TEST_F(Direccion, UnCeroDelanteNoCuenta) {
    abrir();
    rellenar(u"numCodigoProvincia", u"01");
    EXPECT_EQ(r.CodigoProvincia, 1);
    EXPECT_EQ(r.NombreProvincia, q(u"Álava"));
    EXPECT_EQ(texto(u"numCodigoProvincia"), q(u"1"));
}

TEST_F(Direccion, UnaProvinciaDesconocidaVaciaLosCuatroYAbreLaLista) {
    for (const auto* codigo : {u"99", u"60"})
        for (const bool propia : {true, false}) {
            if (propia) enProvinciaPropia();
            if (!propia) enOtraProvincia();
            abrir();
            rellenar(u"numCodigoProvincia", codigo);
            esperaDireccion(0, u"", 0, u"");
            esperaLista(u"lstprovincias", primera(u"lstprovincias"));
            EXPECT_TRUE(cambiado());
            EXPECT_FALSE(habilitado(u"cmdListaMunicipios"));
        }
}

TEST_F(Direccion, LaProvinciaDesconocidaPierdeElClicQueLaDeja) {
    valida();
    abrir();
    escribir(u"numCodigoProvincia", u"99");
    pulsar(u"cmdInicio");
    EXPECT_EQ(pantallas.Tomar(), QStringList());
    esperaLista(u"lstprovincias", primera(u"lstprovincias"));
    elegir(u"lstprovincias", q(u"Madrid"), true);
    esperaDireccion(28, u"Madrid", 0, u"");
}

// The same code again looks it up again; passing by does nothing.
TEST_F(Direccion, LaMismaProvinciaTecleadaOtraVezVaciaElMunicipio) {
    enProvinciaPropia();
    abrir();
    for (const auto ir : {Qt::Key_Tab, Qt::Key_Backtab}) {
        enfocar(u"numCodigoProvincia");
        sinCambios([&] { tecla(ir); });
    }
    rellenar(u"numCodigoProvincia", u"20");
    esperaDireccion(20, u"Kelmaria", 0, u"");
    EXPECT_TRUE(cambiado());
    rellenar(u"numCodigoMunicipio", u"1");
    EXPECT_TRUE(cambiado());
    enfocar(u"numCodigoProvincia");
    sinCambios([&] { tecla(Qt::Key_Tab); });
}

TEST_F(Direccion, BorrarLaProvinciaBorraLaDireccionSinAbrirLaLista) {
    for (const auto* nada : {u"", u"0", u"00"}) {
        enProvinciaPropia();
        abrir();
        rellenar(u"numCodigoProvincia", nada);
        esperaDireccion(0, u"", 0, u"");
        EXPECT_FALSE(visible(u"lstprovincias"));
        EXPECT_TRUE(cambiado());
    }
    enOtraProvincia();
    r.CodigoProvincia = 0;
    r.NombreProvincia.clear();
    abrir();
    sinCambios([&] { rellenar(u"numCodigoProvincia", u""); });
    esperaDireccion(0, u"", 0, u"POBLADO");
}

TEST_F(Direccion, UnMunicipioConocidoSeQueda) {
    enProvinciaPropia();
    abrir();
    rellenar(u"numCodigoMunicipio", u"69");
    esperaDireccion(20, u"Kelmaria", 69, u"Garagorta");
    EXPECT_TRUE(cambiado());
    EXPECT_EQ(foco(), q(u"cmdListaMunicipios"));
    sinCambios([&] { rellenar(u"numCodigoMunicipio", u"069"); });
    EXPECT_EQ(texto(u"numCodigoMunicipio"), q(u"69"));
}

TEST_F(Direccion, UnMunicipioDesconocidoSeVaciaYAbreLaLista) {
    enProvinciaPropia();
    abrir();
    rellenar(u"numCodigoMunicipio", u"999");
    esperaDireccion(20, u"Kelmaria", 0, u"");
    esperaLista(u"lstmunicipios", primera(u"lstmunicipios"));
    EXPECT_TRUE(cambiado());
    tecla(Qt::Key_Escape);
    EXPECT_EQ(foco(), q(u"numCodigoMunicipio"));
    rellenar(u"numCodigoMunicipio", u"1");
    esperaDireccion(20, u"Kelmaria", 1, u"Aldabarri");
}

TEST_F(Direccion, ElMunicipioDesconocidoPierdeElClicQueLoDeja) {
    for (const auto* boton : {u"cmdInicio", u"cmdAnterior", u"cmdCancelar"}) {
        static_cast<A2&>(r) = {};
        conRepresentante();
        enProvinciaPropia();
        abrir();
        escribir(u"numCodigoMunicipio", u"999");
        pulsar(boton);
        EXPECT_EQ(pantallas.Tomar(), QStringList()) << s(boton);
        EXPECT_FALSE(pantallas.EnEspera());
        esperaDireccion(20, u"Kelmaria", 0, u"");
        esperaLista(u"lstmunicipios", q(u"Aldabarri"));
        EXPECT_FALSE(r.Lleno);
    }
}

TEST_F(Direccion, ElMunicipioConocidoDejaSeguirAlClic) {
    conRepresentante();
    enProvinciaPropia();
    abrir();
    escribir(u"numCodigoMunicipio", u"69");
    pulsar(u"cmdInicio");
    EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen"));
    esperaDireccion(20, u"Kelmaria", 69, u"Garagorta");
    EXPECT_FALSE(visible(u"lstmunicipios"));
    EXPECT_TRUE(r.Lleno);
}

TEST_F(Direccion, UnCeroVaciaElMunicipioSinAbrirLaLista) {
    for (const auto* nada : {u"0", u"000", u""}) {
        enProvinciaPropia();
        abrir();
        rellenar(u"numCodigoMunicipio", nada);
        esperaDireccion(20, u"Kelmaria", 0, u"");
        EXPECT_FALSE(visible(u"lstmunicipios"));
        EXPECT_TRUE(cambiado());
    }
    // A name without its code, too.
    enProvinciaPropia();
    r.CodigoMunicipio = 0;
    abrir();
    enfocar(u"numCodigoMunicipio");
    tecla(Qt::Key_Tab);
    esperaDireccion(20, u"Kelmaria", 0, u"");
}

TEST_F(Direccion, EnOtraProvinciaSoloSeTecleaElNombre) {
    enOtraProvincia();
    abrir();
    pulsar(u"numCodigoMunicipio");
    QTest::keyClicks(c(u"numCodigoMunicipio"), q(u"69"));
    sinCambios([&] { tecla(Qt::Key_Tab); });
    EXPECT_EQ(texto(u"numCodigoMunicipio"), QString());
    rellenar(u"txtNombreMunRepr", u"getafe");
    esperaDireccion(28, u"Madrid", 0, u"GETAFE");
}

TEST_F(Direccion, EnLaPropiaElNombreNoSeTeclea) {
    enProvinciaPropia();
    abrir();
    for (const auto* campo : {u"txtNombreMunRepr", u"txtNombreProvincia"}) {
        pulsar(campo);
        EXPECT_EQ(foco(), q(campo));
        QTest::keyClicks(c(campo), q(u"OTRO"));
        sinCambios([&] { tecla(Qt::Key_Tab); });
    }
    esperaDireccion(20, u"Kelmaria", 1, u"Aldabarri");
}

TEST_F(Direccion, LasListasSeAbrenEnLoQueElCampoMuestra) {
    enProvinciaPropia();
    for (const auto codigo : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        abrir();
        sinCambios([&] {
            enfocar(u"cmdListaProvincias");
            tecla(codigo);
            esperaLista(u"lstprovincias", q(u"Kelmaria"));
            pulsar(u"cmdListaMunicipios");
            esperaLista(u"lstmunicipios", q(u"Aldabarri"));
            EXPECT_FALSE(visible(u"lstprovincias")) << "it goes with the focus";
        });
    }
    static_cast<A2&>(r) = {};
    abrir();
    pulsar(u"cmdListaProvincias");
    esperaLista(u"lstprovincias", primera(u"lstprovincias"));
    EXPECT_FALSE(pantallas.EnEspera());
}

TEST_F(Direccion, ElegirOtraProvincia) {
    for (const bool conIntro : {false, true}) {
        enProvinciaPropia();
        abrir();
        pulsar(u"cmdListaProvincias");
        elegir(u"lstprovincias", q(u"Madrid"), conIntro);
        esperaDireccion(28, u"Madrid", 0, u"");
        EXPECT_FALSE(visible(u"lstprovincias"));
        EXPECT_EQ(foco(), q(u"cmdListaProvincias"));
        EXPECT_FALSE(habilitado(u"cmdListaMunicipios"));
        EXPECT_TRUE(cambiado());
        pulsar(u"cmdListaProvincias");
        elegir(u"lstprovincias", q(u"Kelmaria"), conIntro);
        esperaDireccion(20, u"Kelmaria", 0, u"");
        EXPECT_TRUE(habilitado(u"cmdListaMunicipios"));
    }
}

TEST_F(Direccion, ElegirLaMismaProvinciaDejaElMunicipio) {
    enProvinciaPropia();
    abrir();
    pulsar(u"cmdListaProvincias");
    elegir(u"lstprovincias", q(u"Kelmaria"), true);
    esperaDireccion(20, u"Kelmaria", 1, u"Aldabarri");
    EXPECT_TRUE(cambiado());
}

TEST_F(Direccion, ElegirMunicipio) {
    for (const bool conIntro : {false, true}) {
        enProvinciaPropia();
        abrir();
        pulsar(u"cmdListaMunicipios");
        elegir(u"lstmunicipios", q(u"Garagorta"), conIntro);
        esperaDireccion(20, u"Kelmaria", 69, u"Garagorta");
        EXPECT_FALSE(visible(u"lstmunicipios"));
        EXPECT_TRUE(cambiado());
        EXPECT_EQ(foco(), q(u"cmdListaMunicipios"));
    }
}

TEST_F(Direccion, EnEuskeraTomaElNombreEnEuskera) {
    enEuskera();
    abrir();
    rellenar(u"numCodigoProvincia", u"1");
    EXPECT_EQ(r.NombreProvincia, q(u"Araba"));
    rellenar(u"numCodigoProvincia", u"28");
    pulsar(u"cmdListaProvincias");
    elegir(u"lstprovincias", q(u"Araba"), true);
    EXPECT_EQ(r.CodigoProvincia, 1);
}

TEST_F(Direccion, EscapeEscondeLaListaSinCambiarNada) {
    const std::pair<const char16_t*, std::array<const char16_t*, 2>> casos[] = {
        {u"cmdListaProvincias", {u"lstprovincias", u"numCodigoProvincia"}},
        {u"cmdListaMunicipios", {u"lstmunicipios", u"numCodigoMunicipio"}}};
    for (const auto& [boton, resto] : casos) {
        enProvinciaPropia();
        abrir();
        pulsar(boton);
        ASSERT_TRUE(visible(resto[0]));
        tecla(Qt::Key_Down);
        sinCambios([&] {
            tecla(Qt::Key_Escape);
            EXPECT_FALSE(visible(resto[0]));
            EXPECT_EQ(foco(), q(resto[1]));
            tecla(Qt::Key_Tab);
        });
        EXPECT_FALSE(r.Modificaciones);
    }
}

}  // namespace
}  // namespace padral::pruebas
