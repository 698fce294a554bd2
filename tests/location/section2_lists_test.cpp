// Picking street types, provinces and municipalities from their lists.

#include <QScopeGuard>

#include "location/section2_fixture.h"

namespace padral::pruebas {
namespace {

using Listas = EnCadaDomicilio;

TEST_P(Listas, SeAbrenEnLoQueElCampoMuestra) {
    b() = enProvinciaPropia();
    abrir();
    sinCambios([&] {
        pulsar(n(u"cmdLstVia"));
        esperaLista(n(u"lstVia"), q(u"Calle"));
        enfocar(n(u"txtDom"));
        EXPECT_FALSE(visible(n(u"lstVia"))) << "it goes with the focus";
        pulsar(n(u"cmdLstProv"));
        esperaLista(n(u"lstProv"), q(u"Kelmaria"));
        pulsar(n(u"cmdLstMun"));
        esperaLista(n(u"lstMun"), q(u"Aldabarri"));
        EXPECT_FALSE(visible(n(u"lstProv")));
    });
    EXPECT_EQ(texto(n(u"txtSigDom")), q(u"CL"));
    EXPECT_EQ(texto(n(u"numCodProv")), q(u"20"));
    EXPECT_FALSE(pantallas.EnEspera());
}

TEST_P(Listas, SinNombreSeAbrenEnLaPrimeraFila) {
    abrir();
    escribir(n(u"txtSigDom"), QString());
    pulsar(n(u"cmdLstVia"));
    esperaLista(n(u"lstVia"), lista(n(u"lstVia"))->item(0)->text());
    EXPECT_EQ(texto(n(u"txtSigDom")), QString());
    tecla(Qt::Key_Escape);
    pulsar(n(u"cmdLstProv"));
    esperaLista(n(u"lstProv"), lista(n(u"lstProv"))->item(0)->text());
    EXPECT_EQ(texto(n(u"numCodProv")), q(u"0"));
    EXPECT_EQ(b().CodigoProvincia, 0);
    b() = enProvinciaPropia();
    b().CodigoMunicipio = 0;
    b().NombreMunicipio.clear();
    abrir();
    pulsar(n(u"cmdLstMun"));
    esperaLista(n(u"lstMun"), lista(n(u"lstMun"))->item(0)->text());
}

TEST_P(Listas, UnCodigoSinNombreSeVaciaAlAbrirLaDeVias) {
    b().SiglasDomicilio = q(u"L");
    abrir();
    pulsar(n(u"cmdLstVia"));
    EXPECT_EQ(texto(n(u"txtSigDom")), QString());
}

TEST_P(Listas, IntroYEspacioPulsanElBoton) {
    b() = enProvinciaPropia();
    for (const auto codigo : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        abrir();
        enfocar(n(u"cmdLstProv"));
        tecla(codigo);
        esperaLista(n(u"lstProv"), q(u"Kelmaria"));
    }
}

TEST_P(Listas, ElegirViaConDobleClicTomaLaClaveEntera) {
    abrir();
    pulsar(n(u"cmdLstVia"));
    elegir(n(u"lstVia"), q(u"Plaza"), false);
    EXPECT_EQ(b().SiglasDomicilio, q(u"PZ"));
    EXPECT_EQ(b().DescripcionSiglas, q(u"Plaza"));
    EXPECT_EQ(texto(n(u"txtSigDom")), q(u"PZ"));
    EXPECT_EQ(texto(n(u"txtVia")), q(u"Plaza"));
    EXPECT_FALSE(visible(n(u"lstVia")));
    EXPECT_EQ(foco(), n(u"txtDom"));
    EXPECT_TRUE(r.Modificaciones);
}

TEST_P(Listas, ElegirViaConIntroPierdeLaPrimeraLetra) {
    abrir();
    pulsar(n(u"cmdLstVia"));
    elegir(n(u"lstVia"), q(u"Plaza"), true);
    EXPECT_EQ(b().SiglasDomicilio, q(u"Z"));
    EXPECT_EQ(b().DescripcionSiglas, q(u"Plaza"));
    EXPECT_EQ(texto(n(u"txtSigDom")), q(u"Z"));
    EXPECT_FALSE(visible(n(u"lstVia")));
    EXPECT_EQ(foco(), n(u"txtDom"));
    EXPECT_TRUE(r.Modificaciones);
}

TEST_P(Listas, ElegirProvinciaAjenaVaciaElMunicipio) {
    for (const bool conIntro : {false, true}) {
        b() = enProvinciaPropia();
        abrir();
        pulsar(n(u"cmdLstProv"));
        elegir(n(u"lstProv"), q(u"Madrid"), conIntro);
        EXPECT_EQ(b().CodigoProvincia, 28);
        EXPECT_EQ(b().NombreProvincia, q(u"Madrid"));
        EXPECT_EQ(b().CodigoMunicipio, 0);
        EXPECT_EQ(b().NombreMunicipio, QString());
        EXPECT_EQ(texto(n(u"numCodProv")), q(u"28"));
        EXPECT_FALSE(habilitado(n(u"cmdLstMun")));
        EXPECT_TRUE(bloqueado(n(u"numCodMun")));
        EXPECT_FALSE(bloqueado(n(u"txtMun")));
        EXPECT_EQ(foco(), conIntro ? n(u"cmdLstProv") : n(u"numCod"));
        EXPECT_TRUE(r.Modificaciones);
    }
}

TEST_P(Listas, ElegirOtraVezLaPropiaGuardaElCodigoYVaciaElNombre) {
    for (const bool conIntro : {false, true}) {
        b() = enProvinciaPropia();
        abrir();
        pulsar(n(u"cmdLstProv"));
        elegir(n(u"lstProv"), q(u"Kelmaria"), conIntro);
        EXPECT_EQ(b().CodigoProvincia, 20);
        EXPECT_EQ(b().CodigoMunicipio, 1);
        EXPECT_EQ(b().NombreMunicipio, QString());
        EXPECT_EQ(texto(n(u"numCodMun")), q(u"1"));
        EXPECT_EQ(texto(n(u"txtMun")), QString());
        EXPECT_TRUE(r.Modificaciones);
        // The next load brings the name back.
        r.CargarDatos(r.ObtenerDatos());
        EXPECT_EQ(b().NombreMunicipio, q(u"Aldabarri"));
    }
}

TEST_P(Listas, ElegirMunicipio) {
    for (const bool conIntro : {false, true}) {
        b() = enProvinciaPropia();
        abrir();
        const QString otro = estado.catalogo.NombreMunicipio(69);
        pulsar(n(u"cmdLstMun"));
        elegir(n(u"lstMun"), otro, conIntro);
        EXPECT_EQ(b().CodigoMunicipio, 69);
        EXPECT_EQ(b().NombreMunicipio, otro);
        EXPECT_EQ(texto(n(u"numCodMun")), q(u"69"));
        EXPECT_EQ(texto(n(u"txtMun")), otro);
        EXPECT_EQ(foco(), conIntro ? n(u"cmdLstMun") : n(u"numTel"));
        EXPECT_TRUE(r.Modificaciones);
    }
}

TEST_P(Listas, EscapeCierraSinCambiarNada) {
    b() = enProvinciaPropia();
    const struct {
        const char16_t *boton, *lista, *foco;
    } casos[] = {{u"cmdLstVia", u"lstVia", fiscal() ? u"cmdLstVia" : u"txtSigDom"},
                 {u"cmdLstProv", u"lstProv", u"numCodProv"},
                 {u"cmdLstMun", u"lstMun", u"numCodMun"}};
    for (const auto& caso : casos) {
        abrir();
        pulsar(n(caso.boton));
        ASSERT_TRUE(visible(n(caso.lista)));
        sinCambios([&] { tecla(Qt::Key_Escape); });
        EXPECT_FALSE(visible(n(caso.lista)));
        EXPECT_EQ(foco(), n(caso.foco)) << "the fiscal street types move no focus";
        EXPECT_FALSE(r.Modificaciones);
    }
}

TEST_P(Listas, LaLetraBuscaYLoQueNoEsLetraSeTira) {
    // However slow the machine, the letters make one search.
    const auto devolver = qScopeGuard([antes = QApplication::keyboardInputInterval()] {
        QApplication::setKeyboardInputInterval(antes);
    });
    QApplication::setKeyboardInputInterval(600000);
    abrir();
    pulsar(n(u"cmdLstVia"));
    QTest::keyClick(lista(n(u"lstVia")), 'p');
    QTest::keyClick(lista(n(u"lstVia")), '"');
    QTest::keyClick(lista(n(u"lstVia")), 'l');
    EXPECT_EQ(lista(n(u"lstVia"))->currentItem()->text(), q(u"Placeta"));
}

TEST_P(Listas, EscapeTrasUnaViaDesconocidaVuelveAlCodigo) {
    b() = enOtraProvincia();
    abrir();
    rellenar(n(u"txtSigDom"), q(u"ZZ"));
    ASSERT_TRUE(visible(n(u"lstVia")));
    tecla(Qt::Key_Escape);
    EXPECT_FALSE(visible(n(u"lstVia")));
    EXPECT_EQ(foco(), n(u"txtSigDom"));
    EXPECT_EQ(texto(n(u"txtSigDom")) + texto(n(u"txtVia")), QString());
    EXPECT_EQ(b().SiglasDomicilio + b().DescripcionSiglas, QString());
    rellenar(n(u"txtSigDom"), q(u"CL"));
    EXPECT_EQ(b().DescripcionSiglas, q(u"Calle"));
}

TEST_P(Listas, TrasUnDesconocidoSeEligeDeLaLista) {
    abrir();
    rellenar(n(u"numCodProv"), q(u"99"));
    elegir(n(u"lstProv"), q(u"Madrid"), false);
    EXPECT_EQ(b().CodigoProvincia, 28);
    EXPECT_EQ(foco(), n(u"numCod"));
    rellenar(n(u"txtSigDom"), q(u"ZZ"));
    elegir(n(u"lstVia"), q(u"Calle"), false);
    EXPECT_EQ(b().SiglasDomicilio, q(u"CL"));
    rellenar(n(u"numCodProv"), q(u"99"));
    tecla(Qt::Key_Escape);
    EXPECT_EQ(foco(), n(u"numCodProv"));
    EXPECT_EQ(b().CodigoProvincia, 0);
}
INSTANTIATE_TEST_SUITE_P(Domicilios, Listas, LosCuatro());

}  // namespace
}  // namespace padral::pruebas
