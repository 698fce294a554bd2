// The activity of section 3: its code, the list of headings and the free description.

#include "location/section3_fixture.h"

namespace padral::pruebas {
namespace {

class Actividad : public PantallaApartado3 {
protected:
    void esperaSinEpigrafe(const QString& descripcion = {}) {
        EXPECT_EQ(r.ActivEcon, q(u"9999999"));
        EXPECT_EQ(r.ListaEpigrafe, descripcion);
        EXPECT_TRUE(r.Modificaciones);
        EXPECT_EQ(texto(u"txtDescripcionActividad"), q(u"9999999"));
        EXPECT_EQ(texto(u"txtSinEpigrafe"), descripcion);
        EXPECT_FALSE(bloqueado(q(u"txtSinEpigrafe")));
        EXPECT_FALSE(habilitado(u"cmbEpigrafe"));
        const auto* combo = c<QComboBox>(u"cmbEpigrafe");
        EXPECT_EQ(combo->currentIndex(), combo->count() - 1);
        EXPECT_EQ(foco(), q(u"txtSinEpigrafe"));
    }
};

TEST_F(Actividad, UnCodigoDelCatalogoPoneSuEpigrafe) {
    const std::pair<const char16_t*, const char16_t*> casos[] = {
        {u"1.3333", u"ZAPATERIA"}, {u"11111", u"ALFARERIA"}, {u" 2.731 ", u"ABOGADOS"}};
    for (const auto& [tecleado, epigrafe] : casos) {
        abrirValida();
        rellenar(u"txtDescripcionActividad", tecleado);
        EXPECT_EQ(r.ActivEcon, q(tecleado).trimmed());
        EXPECT_EQ(r.ListaEpigrafe, q(epigrafe));
        EXPECT_EQ(elegido(u"cmbEpigrafe"), q(epigrafe));
        EXPECT_EQ(texto(u"txtDescripcionActividad"), q(tecleado).trimmed());
        EXPECT_TRUE(bloqueado(q(u"txtSinEpigrafe")));
        EXPECT_TRUE(r.Modificaciones);
        EXPECT_EQ(foco(), q(u"cmbEpigrafe"));
    }
}

TEST_F(Actividad, ElMismoCodigoNoCambiaNada) {
    abrirValida();
    sinCambios([&] { rellenar(u"txtDescripcionActividad", u"1.2222"); });
    sinCambios([&] { rellenar(u"txtDescripcionActividad", u"1.2222 "); });
}

class CodigoDesconocido : public Actividad,
                          public ::testing::WithParamInterface<const char16_t*> {};

TEST_P(CodigoDesconocido, Es9999999YPideLaDescripcion) {
    for (const bool antesSinEpigrafe : {false, true})
        for (const auto salida : {Qt::Key_Tab, Qt::Key_Return, Qt::Key_Backtab}) {
            valida();
            if (antesSinEpigrafe) sinEpigrafe(u"AFINADOR");
            abrir();
            escribir(u"txtDescripcionActividad", q(GetParam()));
            tecla(salida);
            esperaSinEpigrafe();
        }
}
INSTANTIATE_TEST_SUITE_P(Filas, CodigoDesconocido,
                         ::testing::Values(u"1234567", u"0", u"1.9999", u"2,731", u"ABC", u"1.22A",
                                           u"LIBRERI", u".", u"-1", u"1 2", u""));

TEST_F(Actividad, ElCodigo9999999TecleadoPideLaDescripcion) {
    abrirValida();
    rellenar(u"txtDescripcionActividad", u"9999999");
    esperaSinEpigrafe();
}

TEST_F(Actividad, EnEuskeraTambien) {
    enEuskera();
    r.ResidenteKelmaria = q(u"S");
    for (const auto* codigo : {u"9999999", u"1234", u"ABC"}) {
        r.ActivEcon = r.ListaEpigrafe = QString();
        abrir();
        rellenar(u"txtDescripcionActividad", codigo);
        esperaSinEpigrafe();
    }
    rellenar(u"txtDescripcionActividad", u"2.731");
    EXPECT_EQ(r.ListaEpigrafe, q(u"ABOKATUAK"));
}

TEST_F(Actividad, ElegirUnEpigrafePoneSuCodigo) {
    abrirValida();
    elegir(u"cmbEpigrafe", u"ZAPATERIA");
    EXPECT_EQ(r.ActivEcon, q(u"1.3333"));
    EXPECT_EQ(r.ListaEpigrafe, q(u"ZAPATERIA"));
    EXPECT_EQ(texto(u"txtDescripcionActividad"), q(u"1.3333"));
    EXPECT_TRUE(r.Modificaciones);
    r.Modificaciones = false;
    sinCambios([&] { elegir(u"cmbEpigrafe", u"ZAPATERIA"); });
}

TEST_F(Actividad, ConLasFlechasTambien) {
    abrirValida();
    enfocar(u"cmbEpigrafe");
    tecla(Qt::Key_Up);
    EXPECT_EQ(r.ActivEcon, q(u"11111"));
    tecla(Qt::Key_Home);
    EXPECT_EQ(r.ActivEcon, q(u"2.731"));
    EXPECT_EQ(r.ListaEpigrafe, q(u"ABOGADOS"));
}

TEST_F(Actividad, ElegirLaUltimaFilaAbreLaDescripcion) {
    abrirValida();
    elegir(u"cmbEpigrafe", u"SIN ACTIVIDAD");
    esperaSinEpigrafe();
}

TEST_F(Actividad, IntroEnLaListaSinCambioSigue) {
    abrirValida();
    enfocar(u"cmbEpigrafe");
    sinCambios([&] { tecla(Qt::Key_Return); });
    EXPECT_EQ(foco(), q(u"chkActVenMov"));
    r.ActivEcon = r.ListaEpigrafe = QString();
    abrir();
    enfocar(u"cmbEpigrafe");
    sinCambios([&] { tecla(Qt::Key_Enter); });
    EXPECT_EQ(foco(), q(u"chkActVenMov"));
}

TEST_F(Actividad, LaDescripcionLibreSeGuardaAlSalir) {
    abrirValida();
    elegir(u"cmbEpigrafe", u"SIN ACTIVIDAD");
    r.Modificaciones = false;
    rellenar(u"txtSinEpigrafe", u"afinador de pianos");
    EXPECT_EQ(r.ListaEpigrafe, q(u"AFINADOR DE PIANOS"));
    EXPECT_EQ(r.ActivEcon, q(u"9999999"));
    EXPECT_TRUE(r.Modificaciones);
    r.Modificaciones = false;
    sinCambios([&] { rellenar(u"txtSinEpigrafe", u"AFINADOR DE PIANOS"); });
}

TEST_F(Actividad, VaciarLaDescripcionDejaElCodigo) {
    valida();
    sinEpigrafe(u"AFINADOR");
    abrir();
    rellenar(u"txtSinEpigrafe", u"");
    EXPECT_EQ(r.ListaEpigrafe, QString());
    EXPECT_EQ(r.ActivEcon, q(u"9999999"));
    EXPECT_EQ(texto(u"txtDescripcionActividad"), q(u"9999999"));
    EXPECT_TRUE(r.Modificaciones);
}

// Leaving the code leaves lists, options and free description without effect until the record is
// shown again or the list of headings is opened.
TEST_F(Actividad, TrasElCodigoNadaRespondeHastaElSiguienteRefresco) {
    abrirValida();
    rellenar(u"txtDescripcionActividad", u"1.3333");
    sinCambios([&] {
        enfocar(u"cmbEpigrafe");
        tecla(Qt::Key_Home);
        elegir(u"cmbDescFormaJuridica", u"SOCIEDAD ANONIMA - A");
        c<QAbstractButton>(u"optResidente(1)")->click();
    });
    rellenar(u"txtAnagrama", u"ABC");
    EXPECT_TRUE(marcada(u"optResidente(0)"));
    EXPECT_EQ(elegido(u"cmbEpigrafe"), q(u"ZAPATERIA"));
    elegir(u"cmbDescFormaJuridica", u"SOCIEDAD LIMITADA - B");
    EXPECT_EQ(r.CodigoFormaJuridica, 6);
    pulsar(u"optResidente(1)");
    EXPECT_EQ(r.ResidenteKelmaria.recortado(), q(u"N"));
}

class CasillaTrasElCodigo : public PantallaApartado3,
                            public ::testing::WithParamInterface<std::pair<const char16_t*, bool>> {
};

TEST_P(CasillaTrasElCodigo, DespiertaLasListasSiMuestraElRegistro) {
    const auto& [casilla, despierta] = GetParam();
    abrirValida();
    rellenar(u"txtDescripcionActividad", u"1.3333");
    pulsar(casilla);
    ASSERT_TRUE(marcada(casilla));
    elegir(u"cmbDescFormaJuridica", u"SOCIEDAD LIMITADA - B");
    EXPECT_EQ(r.CodigoFormaJuridica, despierta ? 6 : 0);
}
INSTANTIATE_TEST_SUITE_P(
    Filas, CasillaTrasElCodigo,
    ::testing::Values(std::pair(u"chkPostal", false), std::pair(u"chkElectronico", false),
                      std::pair(u"chkSocPat", false), std::pair(u"chkActVenMov", false),
                      std::pair(u"chkCastellano", true), std::pair(u"chkEuskera", true),
                      std::pair(u"chkCorreoAlta", true), std::pair(u"chkCorreoBaja", true),
                      std::pair(u"chkFaxAlta", true), std::pair(u"chkFaxBaja", true),
                      std::pair(u"chkTelMovilAlta", true), std::pair(u"chkTelMovilBaja", true),
                      std::pair(u"chkTelFijoAlta", true), std::pair(u"chkTelFijoBaja", true),
                      std::pair(u"chkConsentimiento", true), std::pair(u"chkRevocacion", true)));

TEST_F(Actividad, TrasElCodigoAbrirLaListaLaDespierta) {
    abrirValida();
    rellenar(u"txtDescripcionActividad", u"1.3333");
    elegir(u"cmbEpigrafe", u"ABOGADOS");
    EXPECT_EQ(r.ActivEcon, q(u"2.731"));
}

TEST_F(Actividad, TrasElCodigoIntroEnLasListasResponde) {
    abrirValida();
    rellenar(u"txtDescripcionActividad", u"1.3333");
    enfocar(u"cmbEpigrafe");
    tecla(Qt::Key_Home);
    ASSERT_EQ(r.ActivEcon, q(u"1.3333"));
    tecla(Qt::Key_Return);
    EXPECT_EQ(r.ActivEcon, q(u"2.731"));
    EXPECT_EQ(foco(), q(u"cmbEpigrafe"));

    rellenar(u"txtDescripcionActividad", u"1.3333");
    enfocar(u"cmbEpigrafe");
    tecla(Qt::Key_End);
    tecla(Qt::Key_Return);
    esperaSinEpigrafe();
}

TEST_F(Actividad, TrasUnCodigoDesconocidoLaDescripcionEsperaAlRefresco) {
    abrirValida();
    rellenar(u"txtDescripcionActividad", u"1234");
    sinCambios([&] { rellenar(u"txtSinEpigrafe", u"AFINADOR"); });
    EXPECT_EQ(texto(u"txtSinEpigrafe"), q(u"AFINADOR"));
    rellenar(u"txtAnagrama", u"ABC");
    EXPECT_EQ(texto(u"txtSinEpigrafe"), QString());
    rellenar(u"txtSinEpigrafe", u"AFINADOR");
    EXPECT_EQ(r.ListaEpigrafe, q(u"AFINADOR"));
}

TEST_F(Actividad, UnaOrdenTrasUnCodigoDesconocidoSeCompruebaConEl) {
    abrirValida();
    escribir(u"txtDescripcionActividad", q(u"1234"));
    esperaAviso(696, 123);
    pulsar(u"cmdSiguiente");
    avisos.Verificar();
    esperaSinEpigrafe();
    EXPECT_EQ(pantallas.Tomar(), QStringList());
}

}  // namespace
}  // namespace padral::pruebas
