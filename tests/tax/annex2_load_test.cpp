// Opening Annex II: what its controls show and which of them are open.

#include "tax/annex2_fixture.h"

namespace padral::pruebas {
namespace {

constexpr const char16_t* Modalidades[] = {u"chkCierra", u"chkOcasional", u"chkNoCierra"};

TEST_F(PantallaAnexoII, MuestraElRegistroEntero) {
    completo();
    abrir();
    for (const auto& t : Textos2) EXPECT_EQ(texto(t.nombre), r.*t.propiedad) << s(t.nombre);
    EXPECT_EQ(texto(u"txtNIF"), q(u"12345678Z"));
    EXPECT_EQ(texto(u"numPorcentaje"), q(u"35"));
    esperaDireccion(28, u"Madrid", 0, u"POBLADO");
    for (const auto& una : Casillas2)
        EXPECT_EQ(marcada(una.nombre), r.*una.propiedad == q(una.valor)) << s(una.nombre);
    EXPECT_EQ(foco(), q(u"txtDomicilio"));
}

TEST_F(PantallaAnexoII, VacioNoMuestraNada) {
    abrir();
    for (const auto& t : Textos2) EXPECT_EQ(texto(t.nombre), QString()) << s(t.nombre);
    for (const auto& una : Casillas2) EXPECT_FALSE(marcada(una.nombre)) << s(una.nombre);
    EXPECT_EQ(texto(u"txtNIF"), QString());
    EXPECT_EQ(texto(u"numPorcentaje"), q(u"0"));
    EXPECT_EQ(texto(u"numCodigoProvincia"), q(u"00"));
    EXPECT_EQ(texto(u"numCodigoMunicipio"), QString());
}

TEST_F(PantallaAnexoII, AbrirNoEsUnCambio) {
    for (const auto& lleno : {false, true}) {
        if (lleno) completo();
        r.Modificaciones = true;
        const A2 antes = r;
        abrir();
        EXPECT_FALSE(r.Modificaciones);
        r.Modificaciones = true;
        EXPECT_TRUE(datos() == antes);
    }
    EXPECT_FALSE(estado.ModificacionesPendientes);
}

TEST_F(PantallaAnexoII, LosCodigosTienenSuFormato) {
    const struct {
        qint32 provincia, municipio;
        const char16_t *textoProvincia, *textoMunicipio;
    } casos[] = {{0, 0, u"00", u""},     {1, 0, u"1", u""},        {20, 7, u"20", u"7"},
                 {20, 69, u"20", u"69"}, {20, 902, u"20", u"902"}, {50, 0, u"50", u""}};
    for (const auto& caso : casos) {
        r.CodigoProvincia = caso.provincia;
        r.CodigoMunicipio = caso.municipio;
        abrir();
        EXPECT_EQ(texto(u"numCodigoProvincia"), q(caso.textoProvincia));
        EXPECT_EQ(texto(u"numCodigoMunicipio"), q(caso.textoMunicipio));
    }
}

// The territory's own province is 20.
TEST_F(PantallaAnexoII, LaProvinciaDiceDeDondeVieneElMunicipio) {
    for (const qint32 provincia : {0, 1, 19, 20, 21, 28}) {
        SCOPED_TRACE(provincia);
        const bool propia = provincia == 20;
        r.CodigoProvincia = provincia;
        abrir();
        EXPECT_EQ(bloqueado(u"numCodigoMunicipio"), !propia);
        EXPECT_EQ(bloqueado(u"txtNombreMunRepr"), propia);
        EXPECT_EQ(habilitado(u"cmdListaMunicipios"), propia);
        EXPECT_TRUE(habilitado(u"cmdListaProvincias"));
        EXPECT_TRUE(habilitado(u"cmdCancelar"));
        EXPECT_TRUE(bloqueado(u"txtNombreProvincia"));
        EXPECT_FALSE(bloqueado(u"numCodigoProvincia"));
        EXPECT_EQ(fondo(q(propia ? u"txtNombreMunRepr" : u"numCodigoMunicipio")), 0xFFE0E0E0);
    }
}

TEST_F(PantallaAnexoII, LaModalidadSoloSeContestaConUnSi) {
    for (const auto* territorio : {u"S", u"N", u""})
        for (const auto* modalidad : {u"A", u"B", u"C", u""}) {
            SCOPED_TRACE(s(territorio) + "/" + s(modalidad));
            const bool si = q(territorio) == q(u"S");
            r.TerritorioHistorico = q(territorio);
            r.ModalidadEstablecimiento = q(modalidad);
            abrir();
            EXPECT_EQ(r.ModalidadEstablecimiento, si ? q(modalidad) : QString());
            const char16_t* const valores[] = {u"A", u"B", u"C"};
            for (std::size_t i = 0; i < 3; ++i) {
                EXPECT_EQ(habilitado(Modalidades[i]), si);
                EXPECT_EQ(marcada(Modalidades[i]), si && q(valores[i]) == q(modalidad));
            }
            EXPECT_FALSE(r.Modificaciones);
        }
}

TEST_F(PantallaAnexoII, LaOpcionDeEstablecimientosSoloSeContestaConUnSi) {
    for (const auto* obligado : {u"S", u"N", u""})
        for (const auto* opcion : {u"S", u"N", u""}) {
            SCOPED_TRACE(s(obligado) + "/" + s(opcion));
            const bool si = q(obligado) == q(u"S");
            r.Obligado = q(obligado);
            r.Establecimientos = q(opcion);
            abrir();
            EXPECT_EQ(r.Establecimientos, si ? q(opcion) : QString());
            for (const auto* control : {u"chklbl6Si", u"chklbl6No", u"lbl6"})
                EXPECT_EQ(habilitado(control), si) << s(control);
            EXPECT_EQ(marcada(u"chklbl6Si"), si && q(opcion) == q(u"S"));
            EXPECT_EQ(marcada(u"chklbl6No"), si && q(opcion) == q(u"N"));
        }
}

// The record keeps its percentage while the field shows none.
TEST_F(PantallaAnexoII, LaOpcionCierraElPorcentaje) {
    const struct {
        const char16_t* opcion;
        bool o, r, abierto;
        const char16_t* porcentaje;
    } casos[] = {{u"O", true, false, false, u"0"},
                 {u"R", false, true, true, u"35"},
                 {u"", false, false, true, u"35"}};
    for (const auto& caso : casos) {
        r.OpcionApl = q(caso.opcion);
        r.PORCENTAJE = 35;
        abrir();
        EXPECT_EQ(marcada(u"chkOpcion"), caso.o);
        EXPECT_EQ(marcada(u"chkRevocacion"), caso.r);
        EXPECT_EQ(habilitado(u"numPorcentaje"), caso.abierto);
        EXPECT_EQ(texto(u"numPorcentaje"), q(caso.porcentaje));
        EXPECT_EQ(r.PORCENTAJE, 35);
        EXPECT_EQ(r.OpcionApl, q(caso.opcion));
    }
}

TEST_F(PantallaAnexoII, Desde2014NoHayProrrataEspecial) {
    for (const qint32 fecha : {0, 20131231, 20140101, 20141231, 20150101, 20210101})
        for (const auto* opcion : {u"O", u"R", u""}) {
            SCOPED_TRACE(fecha);
            const bool antes = fecha < 20140101;
            r.OpcionApl = q(opcion);
            r.PORCENTAJE = 35;
            abrir(fecha);
            for (const auto* control : {u"chkOpcion", u"chkRevocacion", u"lbl7"})
                EXPECT_EQ(visible(control), antes) << s(control);
            EXPECT_EQ(r.OpcionApl, antes ? q(opcion) : QString());
            if (!antes) {
                EXPECT_FALSE(marcada(u"chkOpcion"));
                EXPECT_FALSE(marcada(u"chkRevocacion"));
                EXPECT_TRUE(habilitado(u"numPorcentaje")) << "open for entry";
                EXPECT_EQ(texto(u"numPorcentaje"), q(u"35"));
            }
            for (const auto* control : {u"lbl8", u"lbl15", u"numPorcentaje"})
                EXPECT_TRUE(visible(control)) << s(control);
            EXPECT_FALSE(r.Modificaciones);
        }
}

TEST_F(PantallaAnexoII, LasListasTienenSusFilasEnElIdiomaDeLaVez) {
    const auto filas = [&](const char16_t* nombre) {
        QStringList todas;
        for (int i = 0; i < lista(nombre)->count(); ++i) todas << lista(nombre)->item(i)->text();
        return todas;
    };
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        abrir();
        EXPECT_FALSE(visible(u"lstprovincias"));
        EXPECT_FALSE(visible(u"lstmunicipios"));
        const QStringList provincias = filas(u"lstprovincias");
        ASSERT_EQ(provincias.size(), 52);
        const QStringList principio =
            euskera ? QStringList{q(u"A Coruña"), q(u"Alacant"), q(u"Albacete"), q(u"Almería")}
                    : QStringList{q(u"A Coruña"), q(u"Álava"), q(u"Albacete"), q(u"Alicante")};
        EXPECT_EQ(provincias.first(4), principio);
        EXPECT_EQ(provincias.last(2), (QStringList{q(u"Zamora"), q(u"Zaragoza")}));
        EXPECT_EQ(provincias.count(euskera ? q(u"Araba") : q(u"Álava")), 1);
        EXPECT_FALSE(provincias.contains(euskera ? q(u"Álava") : q(u"Araba")));
        const QStringList municipios = filas(u"lstmunicipios");
        ASSERT_EQ(municipios.size(), 93);
        EXPECT_EQ(municipios.first(2), (QStringList{q(u"Aldabarri"), q(u"Aranbideta")}));
        EXPECT_EQ(municipios.last(2), (QStringList{q(u"Zuhaizpe"), q(u"Zumelbaso")}));
        // The Ñ has a place of its own.
        EXPECT_EQ(municipios.sliced(municipios.indexOf(q(u"Ñabarreta")) - 1, 3),
                  (QStringList{q(u"Negutegi"), q(u"Ñabarreta"), q(u"Oihanburueta")}));
        EXPECT_TRUE(municipios.contains(q(u"Garagorta")));
    }
}

}  // namespace
}  // namespace padral::pruebas
