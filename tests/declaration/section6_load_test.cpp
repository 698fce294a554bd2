// What section 6 shows of a record when it opens, and that opening stores nothing.

#include "declaration/section6_fixture.h"

namespace padral::pruebas {
namespace {

const QStringList Castellano = {
    q(u"CESE DE ACTIVIDAD"), q(u"FALLECIMIENTO"), q(u"CESE SIN DISOLUCION"),
    q(u"TRASPASO"),          q(u"DISOLUCION"),    q(u"FUSION"),
    q(u"ESCISION"),          q(u"LIQUIDACION"),   q(u"OTRAS CAUSAS")};
const QStringList Euskera6 = {q(u"JARDUERA UZTEA"), q(u"HERIOTZA"),   q(u"DESEGIN GABEKO UZTEA"),
                              q(u"ESKUALDAKETA"),   q(u"DESEGITEA"),  q(u"BATEGITEA"),
                              q(u"ZATIKETA"),       q(u"LIKIDAZIOA"), q(u"BESTE ARRAZOI BATZUK")};

TEST_F(PantallaApartado6, VaciaNoMuestraNada) {
    r.MODIFAPARTADO6 = true;
    sinCambios([&] { abrir(); });
    EXPECT_FALSE(r.MODIFAPARTADO6);
    EXPECT_EQ(fecha(u"txtFecha"), q(u"__/__/____"));
    EXPECT_EQ(fecha(u"txtInscripcion"), q(u"__/__/____"));
    EXPECT_EQ(texto(u"txtCausa"), QString());
    EXPECT_EQ(fila(), -1);
    EXPECT_EQ(filas(), Castellano);
    EXPECT_FALSE(visible(u"txtSinEpigrafe"));
    EXPECT_EQ(foco(), q(u"txtFecha"));
    EXPECT_EQ(pantalla->objectName(), q(u"frmApartado6"));
}

TEST_F(PantallaApartado6, EnEuskeraLasFechasVanPorElAnyo) {
    enEuskera();
    abrir();
    EXPECT_EQ(fecha(u"txtFecha"), q(u"____/__/__"));
    EXPECT_EQ(fecha(u"txtInscripcion"), q(u"____/__/__"));
    EXPECT_EQ(filas(), Euskera6);
    poner(20150331, 33, u"LIKIDAZIOA", 20160401);
    abrir();
    EXPECT_EQ(fecha(u"txtFecha"), q(u"2015/03/31"));
    EXPECT_EQ(fecha(u"txtInscripcion"), q(u"2016/04/01"));
    EXPECT_EQ(elegida(), q(u"LIKIDAZIOA"));
}

struct Carga {
    qint16 causa;
    int fila;
};
TEST_F(PantallaApartado6, CadaCausaEnSuFila) {
    const Carga casos[] = {{10, 0}, {11, 1}, {20, 2}, {22, 3},  {30, 4}, {31, 5},
                           {32, 6}, {33, 7}, {99, 8}, {21, -1}, {0, -1}, {98, -1}};
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.causa);
        poner(20150331, caso.causa, u"ALGO", 20150401);
        r.MODIFAPARTADO6 = true;
        sinCambios([&] { abrir(); });
        EXPECT_FALSE(r.MODIFAPARTADO6);
        EXPECT_EQ(fila(), caso.fila);
        EXPECT_EQ(texto(u"txtCausa"), caso.causa ? QString::number(caso.causa) : QString());
        EXPECT_EQ(fecha(u"txtFecha"), q(u"31/03/2015"));
        EXPECT_EQ(fecha(u"txtInscripcion"), q(u"01/04/2015"));
        EXPECT_EQ(visible(u"txtSinEpigrafe"), caso.causa == 99);
        EXPECT_EQ(foco(), q(u"txtFecha"));
    }
}

TEST_F(PantallaApartado6, LaCausaLibreSeMuestraYNoSeGuarda) {
    const struct {
        bool euskera;
        const char16_t *descripcion, *ultima;
    } casos[] = {{false, u"JUBILACION", u"Otras causas"},
                 {false, u"Otras causas", u"Otras causas"},
                 {false, u"FUSION", u"Otras causas"},
                 {false, u"12345678901234567890", u"Otras causas"},
                 {false, u"", u"Otras causas"},
                 {true, u"ERRETIROA", u"Beste arrazoi batzuk"},
                 {true, u"OTRAS CAUSAS", u"Beste arrazoi batzuk"}};
    for (const auto& caso : casos) {
        SCOPED_TRACE(s(caso.descripcion));
        if (caso.euskera) enEuskera();
        poner(20150331, 99, caso.descripcion);
        r.OTRASCAUSAS = q(u"ANTES");
        sinCambios([&] { abrir(); });
        EXPECT_FALSE(r.MODIFAPARTADO6);
        EXPECT_FALSE(estado.ModificacionesPendientes);
        EXPECT_EQ(r.OTRASCAUSAS, q(u"ANTES"));
        EXPECT_EQ(fila(), 8);
        EXPECT_EQ(elegida(), q(caso.ultima));
        EXPECT_EQ(filas().mid(0, 8), (caso.euskera ? Euskera6 : Castellano).mid(0, 8));
        EXPECT_TRUE(visible(u"txtSinEpigrafe"));
        EXPECT_EQ(texto(u"txtSinEpigrafe"), q(caso.descripcion));
        EXPECT_EQ(texto(u"txtCausa"), q(u"99"));
        EXPECT_EQ(foco(), q(u"txtFecha"));
    }
}

TEST_F(PantallaApartado6, UnaDescripcionDelOtroIdiomaSeConserva) {
    enEuskera();
    poner(20150331, 11, u"FALLECIMIENTO");
    sinCambios([&] { abrir(); });
    EXPECT_EQ(elegida(), q(u"HERIOTZA"));
    EXPECT_FALSE(r.MODIFAPARTADO6);
}

TEST_F(PantallaApartado6, UnNumeroQueNoEsFechaSaleVacio) {
    poner(20150230, 10, u"CESE DE ACTIVIDAD", 20151301);
    sinCambios([&] { abrir(); });
    EXPECT_EQ(fecha(u"txtFecha"), q(u"__/__/____"));
    EXPECT_EQ(fecha(u"txtInscripcion"), q(u"__/__/____"));
}

// Only a cause that is chosen asks for the annex.
TEST_F(PantallaApartado6, AbrirNoMarcaElAnexo) {
    for (const qint16 causa : {qint16{10}, qint16{99}}) {
        g.DNI = q(u"E12345674");
        g.AnexoI = g.Apartado7 = q(u" ");
        poner(20150331, causa, u"ALGO");
        sinCambios([&] { abrir(); });
        EXPECT_EQ(g.AnexoI, q(u" ")) << causa;
        EXPECT_FALSE(habilitado(u"cmdSiguiente"));
    }
}

struct Bandera {
    QString DatosGeneralesStore::*marca;
    bool sigue;
};
TEST_F(PantallaApartado6, SiguienteSoloSiHayMas) {
    using D = DatosGeneralesStore;
    const Bandera banderas[] = {{&D::Apartado2, false}, {&D::Apartado3, false},
                                {&D::Apartado4, false}, {&D::Apartado5, false},
                                {&D::Apartado6, false}, {&D::Apartado7, true},
                                {&D::AnexoI, true},     {&D::AnexoII, true}};
    for (const auto& [marca, sigue] : banderas) {
        for (const auto& otra : banderas) g.*otra.marca = q(u" ");
        g.*marca = q(u"X");
        abrir();
        for (const auto* nombre : {u"cmdSiguiente", u"PicSiguiente"})
            EXPECT_EQ(habilitado(nombre), sigue) << s(nombre);
        for (const auto* nombre : {u"cmdInicio", u"cmdCancelar", u"cmdAnterior"}) {
            EXPECT_TRUE(habilitado(nombre)) << s(nombre);
            EXPECT_TRUE(visible(nombre)) << s(nombre);
        }
    }
}

}  // namespace
}  // namespace padral::pruebas
