// What a click on a box of section 7 puts into the record, and what the boxes show.

#include "tax/section7_fixture.h"

namespace padral::pruebas {
namespace {

TEST_F(PantallaApartado7, CadaCasillaEscribeSuRespuestaYLaSegundaVezLaVacia) {
    abrir();
    const auto casillas = casillas7();
    ASSERT_EQ(casillas.size(), 115U);
    EXPECT_EQ(pantalla->findChildren<QCheckBox*>().size(), 115);
    for (const auto& casilla : casillas) {
        SCOPED_TRACE(casilla.nombre.toStdString());
        pulsar(casilla.nombre);
        EXPECT_EQ(r.ObtenerDatos(), filaCon({{casilla.posicion, casilla.valor}}));
        EXPECT_EQ(marcadas(), QStringList{casilla.nombre});
        EXPECT_TRUE(std::exchange(r.Modificaciones, false));
        pulsar(casilla.nombre);
        EXPECT_EQ(r.ObtenerDatos(), filaCon({}));
        EXPECT_EQ(marcadas(), QStringList());
        EXPECT_TRUE(std::exchange(r.Modificaciones, false));
    }
    EXPECT_FALSE(r.Lleno);
    EXPECT_FALSE(estado.ModificacionesPendientes);
}

/// Two boxes of one answer: the second one unticks the first.
TEST_F(PantallaApartado7, LasCasillasDeUnaParejaSeExcluyen) {
    abrir();
    const auto casillas = casillas7();
    int parejas = 0;
    for (std::size_t i = 0; i + 1 < casillas.size(); ++i) {
        const auto &una = casillas[i], &otra = casillas[i + 1];
        if (una.posicion != otra.posicion) continue;
        ++parejas;
        SCOPED_TRACE(una.nombre.toStdString());
        for (const auto* pulsada : {&una, &otra, &una}) {
            pulsar(pulsada->nombre);
            EXPECT_EQ(r.ObtenerDatos(), filaCon({{una.posicion, pulsada->valor}}));
            EXPECT_EQ(marcadas(), QStringList{pulsada->nombre});
        }
        pulsar(una.nombre);
        EXPECT_EQ(r.ObtenerDatos(), filaCon({}));
        EXPECT_EQ(marcadas(), QStringList());
    }
    EXPECT_EQ(parejas, 56);
}

TEST_F(PantallaApartado7, ElNoTrasElSiYOtraVezElNo) {
    abrir();
    pulsar(q(u"chkLimSupPais1"));
    EXPECT_EQ(r.LimSupPais[0], q(u"S"));
    pulsar(q(u"chkLimInfPais1"));
    EXPECT_EQ(r.LimSupPais[0], q(u"N"));
    EXPECT_EQ(marcadas(), QStringList{q(u"chkLimInfPais1")});
    pulsar(q(u"chkLimInfPais1"));
    EXPECT_EQ(r.LimSupPais[0], QString());
    EXPECT_EQ(marcadas(), QStringList());
}

TEST_F(PantallaApartado7, LasRespuestasSeSuman) {
    abrir();
    const QStringList nombres{q(u"chkLimSupPais1"), q(u"chkRevPais1"),      q(u"chkLimInfPais26"),
                              q(u"chkDestPais24"),  q(u"chkAgric"),         q(u"chkExentos"),
                              q(u"chkNoEmp"),       q(u"chkMenosLimEuros"), q(u"chkRevocacion")};
    for (const auto& nombre : nombres) pulsar(nombre);
    EXPECT_EQ(marcadas(), nombres);
    const auto si = q(u"S"), no = q(u"N"), revoca = q(u"R");
    EXPECT_EQ(r.ObtenerDatos(), filaCon({{0, si},
                                         {1, revoca},
                                         {50, no},
                                         {47, q(u"D")},
                                         {54, si},
                                         {55, si},
                                         {56, si},
                                         {57, no},
                                         {58, revoca}}));
}

TEST_F(PantallaApartado7, ConElTeclado) {
    abrir();
    for (const auto& casilla : casillas7()) {
        EXPECT_EQ(foco(), casilla.nombre);
        tecla(Qt::Key_Space);
    }
    EXPECT_EQ(foco(), q(u"cmdInicio"));
    // The second box of each answer has come after the first.
    for (std::size_t i = 0; i < 27; ++i) {
        EXPECT_EQ(r.LimSupPais.at(i), q(u"N"));
        EXPECT_EQ(r.DestRevocPais.at(i), q(u"R"));
    }
    EXPECT_EQ(r.MasLimEuros, q(u"N"));
    EXPECT_EQ(r.TributDestino, q(u"R"));
}

/// The words beside the boxes of the subjects belong to them.
TEST_F(PantallaApartado7, ElTextoTambienSePulsa) {
    abrir();
    const std::pair<const char16_t*, const char16_t*> parejas[] = {
        {u"Label25", u"chkAgric"}, {u"Label26", u"chkExentos"}, {u"Label27", u"chkNoEmp"}};
    for (const auto& [etiqueta, casilla] : parejas) {
        pulsar(q(etiqueta));
        EXPECT_EQ(marcadas(), QStringList{q(casilla)});
        pulsar(q(etiqueta));
        EXPECT_EQ(marcadas(), QStringList());
    }
    for (const auto* casilla :
         {u"chkMasLimEuros", u"chkMenosLimEuros", u"chkOpcion", u"chkRevocacion"}) {
        const QRect caja = lugar(q(casilla));
        QTest::mouseClick(pantalla->windowHandle(), Qt::LeftButton, {},
                          QPoint(caja.right() - 3, caja.center().y()));
        EXPECT_TRUE(marcada(q(casilla))) << "its own word, too";
    }
}

TEST_F(PantallaApartado7, SeMuestraLoGuardadoTalComoEsta) {
    for (const auto* valor : {u"S", u"N", u"D", u"R", u"O", u"s", u" ", u"X", u""}) {
        SCOPED_TRACE(s(valor));
        const Fila fila(59, QVariant(q(valor)));
        r.CargarDatos(fila);
        abrir();
        QStringList esperadas;
        for (const auto& casilla : casillas7())
            if (casilla.valor == q(valor)) esperadas << casilla.nombre;
        EXPECT_EQ(marcadas(), esperadas);
        EXPECT_EQ(r.ObtenerDatos(), fila);
    }
}

TEST_F(PantallaApartado7, AbrirNoEsCambiar) {
    r.Modificaciones = r.Lleno = true;
    r.Agric = q(u"S");
    r.GuardarDatosAuxiliares();
    const D7 copia = auxiliar();
    abrir();
    EXPECT_FALSE(r.Modificaciones);
    EXPECT_TRUE(r.Lleno);
    EXPECT_EQ(r.ObtenerDatos(), filaCon({{54, q(u"S")}}));
    EXPECT_TRUE(auxiliar() == copia) << "opening takes no copy";
    EXPECT_FALSE(estado.ModificacionesPendientes);
}

// ------------------------------------------------------------------------------ while refreshing

/// The boxes before, in and after the row that the refresh has reached.
TEST_F(PantallaApartado7, UnaPulsacionDuranteElRefrescoNoCambiaNada) {
    for (const auto* guardado : {u"", u"S", u"N"}) {
        SCOPED_TRACE(s(guardado));
        r.InicializarApartado7();
        r.LimSupPais[0] = q(guardado);
        r.MasLimEuros = q(guardado);
        abrir();
        r.DestRevocPais[24] = q(u"D");  // the next refresh ticks its box
        int durante = 0;
        QObject::connect(
            c<QCheckBox>(q(u"chkDestPais25")), &QCheckBox::toggled, pantalla.get(), [&] {
                ++durante;
                for (const auto* otra : {u"chkLimSupPais1", u"chkLimInfPais1", u"chkLimSupPais25",
                                         u"chkMasLimEuros", u"chkMenosLimEuros", u"chkNoEmp"})
                    c<QCheckBox>(q(otra))->click();
            });
        pulsar(q(u"chkExentos"));
        EXPECT_EQ(durante, 1);
        D7 esperado;
        esperado.LimSupPais[0] = esperado.MasLimEuros = q(guardado);
        esperado.DestRevocPais[24] = q(u"D");
        esperado.Exentos = q(u"S");
        esperado.Modificaciones = true;
        EXPECT_TRUE(datos() == esperado);
        EXPECT_EQ(marcada(q(u"chkLimSupPais1")), q(guardado) == u"S");
        EXPECT_EQ(marcada(q(u"chkLimInfPais1")), q(guardado) == u"N");
        EXPECT_EQ(marcada(q(u"chkMasLimEuros")), q(guardado) == u"S");
        EXPECT_EQ(marcada(q(u"chkMenosLimEuros")), q(guardado) == u"N");
        EXPECT_FALSE(marcada(q(u"chkLimSupPais25")));
        EXPECT_FALSE(marcada(q(u"chkNoEmp")));
        pulsar(q(u"chkNoEmp"));
        EXPECT_EQ(r.NoEmpresarios, q(u"S")) << "after the refresh clicks count again";
    }
}

// -------------------------------------------------------------------------------------- next one

TEST_F(PantallaApartado7, SiguienteSoloConAlgunAnexo) {
    g.Apartado2 = g.Apartado3 = g.Apartado4 = g.Apartado5 = g.Apartado6 = g.Apartado7 = q(u"X");
    abrir();
    EXPECT_FALSE(habilitado(q(u"cmdSiguiente")));
    EXPECT_FALSE(habilitado(q(u"PicSiguiente")));
    EXPECT_TRUE(visible(q(u"cmdSiguiente")));
    for (const auto* otro : {u"cmdAnterior", u"cmdInicio", u"cmdCancelar"})
        EXPECT_TRUE(habilitado(q(otro)));
    pulsar(q(u"PicSiguiente"));
    EXPECT_EQ(pantallas.Tomar(), QStringList());
    for (const auto marca : {&DatosGeneralesStore::AnexoI, &DatosGeneralesStore::AnexoII}) {
        g.*marca = q(u"X");
        abrir();
        EXPECT_TRUE(habilitado(q(u"cmdSiguiente")));
        EXPECT_TRUE(habilitado(q(u"PicSiguiente")));
        g.*marca = q(u" ");
        pulsar(q(u"chkLimSupPais1"));
        EXPECT_FALSE(habilitado(q(u"cmdSiguiente"))) << "each click looks again";
        EXPECT_FALSE(habilitado(q(u"PicSiguiente")));
        g.*marca = q(u"X");
        pulsar(q(u"chkLimSupPais1"));
        EXPECT_TRUE(habilitado(q(u"cmdSiguiente")));
        g.*marca = q(u" ");
    }
}

TEST_F(PantallaApartado7, AlActivarseLaImagenSigueAlBoton) {
    g.AnexoII = q(u"X");
    abrir();
    for (const bool activo : {false, true}) {
        c(q(u"cmdSiguiente"))->setEnabled(activo);
        QWidget otra;
        otra.show();
        otra.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&otra));
        otra.hide();
        pantalla->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(pantalla.get()));
        EXPECT_EQ(habilitado(q(u"PicSiguiente")), activo);
        EXPECT_EQ(habilitado(q(u"cmdSiguiente")), activo);
    }
}

}  // namespace
}  // namespace padral::pruebas
