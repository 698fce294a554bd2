// Choosing the cause of section 6, and writing the free one.

#include <QClipboard>

#include "declaration/section6_fixture.h"

namespace padral::pruebas {
namespace {

struct Causa {
    int fila;
    qint16 codigo;
    const char16_t *castellano, *euskera;
};
constexpr Causa Causas[] = {
    {0, 10, u"CESE DE ACTIVIDAD", u"JARDUERA UZTEA"},
    {1, 11, u"FALLECIMIENTO", u"HERIOTZA"},
    {2, 20, u"CESE SIN DISOLUCION", u"DESEGIN GABEKO UZTEA"},
    {3, 22, u"TRASPASO", u"ESKUALDAKETA"},
    {4, 30, u"DISOLUCION", u"DESEGITEA"},
    {5, 31, u"FUSION", u"BATEGITEA"},
    {6, 32, u"ESCISION", u"ZATIKETA"},
    {7, 33, u"LIQUIDACION", u"LIKIDAZIOA"},
    {8, 99, u"OTRAS CAUSAS", u"BESTE ARRAZOI BATZUK"},
};

TEST_F(PantallaApartado6, CadaFilaPoneSuCausa) {
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        for (const auto& causa : Causas) {
            const auto* descripcion = euskera ? causa.euskera : causa.castellano;
            SCOPED_TRACE(s(descripcion));
            r.LIMPIARDATOS();
            abrir();
            elegir(causa.fila);
            esperaCausa(causa.codigo, descripcion);
            EXPECT_TRUE(r.MODIFAPARTADO6);
            EXPECT_EQ(fila(), causa.fila);
            const bool libre = causa.codigo == 99;
            EXPECT_EQ(visible(u"txtSinEpigrafe"), libre);
            EXPECT_EQ(foco(), libre ? q(u"txtSinEpigrafe") : q(u"cmbDescripcion"));
            if (libre) {
                EXPECT_EQ(texto(u"txtSinEpigrafe"), q(descripcion));
            }
        }
    }
}

TEST_F(PantallaApartado6, LasFlechasYLasLetrasTambienEligen) {
    abrirValida();
    enfocar(u"cmbDescripcion");
    tecla(Qt::Key_Down);
    esperaCausa(22, u"TRASPASO");
    tecla(Qt::Key_Up);
    tecla(Qt::Key_Up);
    esperaCausa(11, u"FALLECIMIENTO");
    tecla(Qt::Key_L);
    esperaCausa(33, u"LIQUIDACION");
    tecla(Qt::Key_Down);
    esperaCausa(99, u"OTRAS CAUSAS");
    EXPECT_EQ(foco(), q(u"txtSinEpigrafe"));
}

TEST_F(PantallaApartado6, LaMismaFilaNoCambiaNada) {
    for (const auto* guardada : {u"FUSION", u"fusion", u" Fusion"}) {
        poner(20150331, 31, guardada);
        abrir();
        sinCambios([&] { elegir(5); });
        EXPECT_FALSE(r.MODIFAPARTADO6);
        EXPECT_EQ(foco(), q(u"cmbDescripcion"));
    }
}

TEST_F(PantallaApartado6, LaMismaDescripcionConOtroCodigoNoCambia) {
    poner(20150331, 99, u"FUSION");
    abrir();
    sinCambios([&] { elegir(5); });
    EXPECT_FALSE(r.MODIFAPARTADO6);
    EXPECT_EQ(fila(), 8) << "the list shows the cause of the record";
}

TEST_F(PantallaApartado6, OtraFilaQuitaLaCausaLibre) {
    poner(20150331, 99, u"JUBILACION");
    abrir();
    elegir(1);
    esperaCausa(11, u"FALLECIMIENTO");
    EXPECT_FALSE(visible(u"txtSinEpigrafe"));
    elegir(8);
    esperaCausa(99, u"OTRAS CAUSAS");
    EXPECT_TRUE(visible(u"txtSinEpigrafe"));
}

// The last row shows the name of the cause and not what was written: choosing it takes the name.
TEST_F(PantallaApartado6, LaFilaLibreElegidaDeNuevoQuitaLoEscrito) {
    const struct {
        bool euskera;
        const char16_t* guardada;
        bool cambia = true;
    } casos[] = {{false, u"JUBILACION"},
                 {false, u""},
                 {false, u"OTRAS CAUSAS", false},
                 {false, u"Otras causas", false},
                 {true, u"ERRETIROA"},
                 {true, u"OTRAS CAUSAS"},
                 {true, u"BESTE ARRAZOI BATZUK", false},
                 {true, u"Beste arrazoi batzuk", false}};
    for (const auto& caso : casos) {
        SCOPED_TRACE(s(caso.guardada));
        if (caso.euskera) enEuskera();
        poner(20150331, 99, caso.guardada);
        const DatosApartado6 antes = r;
        abrir();
        ASSERT_EQ(filas().last(), caso.euskera ? q(u"Beste arrazoi batzuk") : q(u"Otras causas"));
        elegir(8);
        if (caso.cambia)
            esperaCausa(99, caso.euskera ? u"BESTE ARRAZOI BATZUK" : u"OTRAS CAUSAS");
        else
            EXPECT_TRUE(datos() == antes);
        EXPECT_EQ(r.MODIFAPARTADO6, caso.cambia);
        EXPECT_EQ(texto(u"txtSinEpigrafe"), r.DESCRIPCIONCAUSA.recortado());
        EXPECT_EQ(foco(), q(u"txtSinEpigrafe"));
    }
}

/// Rows that are longer than the record, with blanks around them, in small letters.
class CausaLarga : public PantallaApartado6 {
protected:
    void SetUp() override {
        PantallaApartado6::SetUp();
        store::CreateCatalogueFile(estado.RutaBDLectura, [](SQLite::Database& db) {
            db.exec(
                "INSERT INTO TCausasCese (CODCAUSA, CAUSACAS, CAUSAEUS) VALUES"
                " ('10', 'CESE DE LA ACTIVIDAD POR JUBILACION', 'UZTEA'),"
                " ('11', ' Fallecimiento ', '  Heriotza '),"
                " ('20', 'Jubilación', 'Erretiroa')");
        });
    }
};

TEST_F(CausaLarga, SeGuardaSinBlancosAlrededorYEnMayusculas) {
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        r.LIMPIARDATOS();
        abrir();
        elegir(1);
        EXPECT_EQ(r.ObtenerDatos()[2],
                  QVariant(euskera ? q(u"HERIOTZA            ") : q(u"FALLECIMIENTO       ")));
        EXPECT_TRUE(cambiado());
        elegir(2);
        EXPECT_EQ(r.ObtenerDatos()[2],
                  QVariant(euskera ? q(u"ERRETIROA           ") : q(u"JUBILACIÓN          ")));
        EXPECT_EQ(r.CAUSA, 20) << "the catalogue knows it in capitals, too";
        EXPECT_TRUE(cambiado());
    }
}

TEST_F(CausaLarga, SeGuardanVeinteCaracteresYElCodigoDeLaEntera) {
    abrir();
    elegir(0);
    esperaCausa(10, u"CESE DE LA ACTIVIDAD");
    EXPECT_EQ(r.ObtenerDatos()[2], QVariant(q(u"CESE DE LA ACTIVIDAD")));
    EXPECT_TRUE(cambiado());
    sinCambios([&] { elegir(0); });
    EXPECT_FALSE(r.MODIFAPARTADO6) << "the same row again";
}

class CausaLibre6 : public PantallaApartado6 {
protected:
    void abrirLibre(const char16_t* descripcion = u"JUBILACION") {
        poner(20150331, 99, descripcion);
        r.OTRASCAUSAS.clear();
        abrir();
    }
};

TEST_F(CausaLibre6, LoEscritoVaALaDescripcionYALaFila) {
    for (const auto salida : {Qt::Key_Tab, Qt::Key_Return, Qt::Key_Backtab}) {
        abrirLibre();
        escribir(u"txtSinEpigrafe", u"cierre de la tienda");
        EXPECT_FALSE(r.MODIFAPARTADO6);
        tecla(salida);
        esperaCausa(99, u"CIERRE DE LA TIENDA");
        EXPECT_EQ(r.OTRASCAUSAS, q(u"CIERRE DE LA TIENDA"));
        EXPECT_EQ(elegida(), q(u"CIERRE DE LA TIENDA"));
        EXPECT_EQ(fila(), 8);
        EXPECT_TRUE(r.MODIFAPARTADO6);
        EXPECT_EQ(foco(), salida == Qt::Key_Backtab ? q(u"cmbDescripcion") : q(u"txtInscripcion"));
    }
}

TEST_F(CausaLibre6, NoPasaDeVeinteCaracteres) {
    abrirLibre();
    rellenar(u"txtSinEpigrafe", u"ABCDEFGHIJKLMNOPQRSTUVWXYZ");
    esperaCausa(99, u"ABCDEFGHIJKLMNOPQRST");
    EXPECT_EQ(texto(u"txtSinEpigrafe"), q(u"ABCDEFGHIJKLMNOPQRST"));
    EXPECT_EQ(r.OTRASCAUSAS, q(u"ABCDEFGHIJKLMNOPQRST"));
}

TEST_F(CausaLibre6, SoloSeEscribeElAlfabeto) {
    abrirLibre();
    rellenar(u"txtSinEpigrafe", u"a\"#'[]b (1)");
    esperaCausa(99, u"AB (1)");
    QGuiApplication::clipboard()->setText(q(u"cañada \"de\" arriba"));
    enfocar(u"txtSinEpigrafe");
    tecla(Qt::Key_V, Qt::ControlModifier);
    tecla(Qt::Key_Tab);
    esperaCausa(99, u"CAÑADA DE ARRIBA");
}

TEST_F(CausaLibre6, VaciaOIgualNoSeGuarda) {
    for (const auto* escrita : {u"", u"JUBILACION", u"JUBILACION  "}) {
        SCOPED_TRACE(s(escrita));
        abrirLibre();
        sinCambios([&] { rellenar(u"txtSinEpigrafe", escrita); });
        EXPECT_FALSE(r.MODIFAPARTADO6);
        EXPECT_EQ(r.OTRASCAUSAS, QString());
        EXPECT_EQ(elegida(), q(u"Otras causas"));
        EXPECT_EQ(texto(u"txtSinEpigrafe"), q(u"JUBILACION")) << "what the record holds";
    }
}

// The blanks before it are the user's, those behind it fill the width.
TEST_F(CausaLibre6, PasarPorElCampoNoQuitaElBlancoDelComienzo) {
    abrirLibre();
    rellenar(u"txtSinEpigrafe", u" CIERRE");
    EXPECT_EQ(texto(u"txtSinEpigrafe"), q(u" CIERRE"));
    cambiado();
    enfocar(u"txtSinEpigrafe");
    enfocar(u"txtInscripcion");
    EXPECT_FALSE(cambiado());
    EXPECT_TRUE(datos().DESCRIPCIONCAUSA == q(u" CIERRE"));
}

TEST_F(CausaLibre6, EnBlancoEsSinDescripcion) {
    abrirLibre();
    rellenar(u"txtSinEpigrafe", u"   ");
    EXPECT_TRUE(r.DESCRIPCIONCAUSA.vacio());
    EXPECT_TRUE(r.MODIFAPARTADO6);
    EXPECT_EQ(elegida(), q(u"OTRAS CAUSAS")) << "no row is empty";
    esperaAviso(90, 75);
    pulsar(u"cmdInicio");
    EXPECT_EQ(pantallas.Tomar(), QStringList());
}

TEST_F(CausaLibre6, OtraCausaDevuelveElNombreALaFila) {
    abrirLibre();
    rellenar(u"txtSinEpigrafe", u"FUSION FRIA");
    ASSERT_EQ(filas().last(), q(u"FUSION FRIA"));
    sinCambios([&] { elegir(8); });
    EXPECT_EQ(foco(), q(u"txtSinEpigrafe"));
    elegir(4);
    esperaCausa(30, u"DISOLUCION");
    EXPECT_EQ(filas().last(), q(u"OTRAS CAUSAS"));
    elegir(8);
    esperaCausa(99, u"OTRAS CAUSAS");
    EXPECT_EQ(texto(u"txtSinEpigrafe"), q(u"OTRAS CAUSAS"));
}

struct Comunidad {
    const char16_t *dni, *causa1;
    int fila;
    bool marca;
};
TEST_F(PantallaApartado6, LaCausaMarcaElAnexoDeLaComunidad) {
    const Comunidad casos[] = {
        {u"E12345674", u"C", 0, true},  {u"G12345674", u"C", 8, true},
        {u"H12345674", u"C", 0, true},  {u"J12345674", u"C", 8, true},
        {u"E12345674", u"C", 1, false}, {u"E12345674", u"C", 2, false},
        {u"E12345674", u"C", 3, false}, {u"E12345674", u"C", 7, false},
        {u"A12345674", u"C", 0, false}, {u"12345678Z", u"C", 8, false},
        {u"E12345674", u"M", 0, false},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(s(caso.dni) + "/" + std::to_string(caso.fila));
        r.LIMPIARDATOS();
        g.DNI = q(caso.dni);
        g.Causa1 = q(caso.causa1);
        g.Apartado7 = g.AnexoI = g.AnexoII = q(u" ");
        abrir();
        ASSERT_FALSE(habilitado(u"cmdSiguiente"));
        elegir(caso.fila);
        EXPECT_EQ(g.AnexoI == u"X", caso.marca);
        EXPECT_EQ(habilitado(u"cmdSiguiente"), caso.marca);
        EXPECT_EQ(habilitado(u"PicSiguiente"), caso.marca);
    }
}

// The mark comes even with a choice that changes nothing.
TEST_F(PantallaApartado6, LaMismaCausaTambienMarcaElAnexo) {
    poner(20150331, 10, u"CESE DE ACTIVIDAD");
    g.DNI = q(u"E12345674");
    g.AnexoI = q(u" ");
    abrir();
    g.AnexoI = q(u" ");
    sinCambios([&] { elegir(0); });
    EXPECT_EQ(g.AnexoI, q(u"X"));
}

}  // namespace
}  // namespace padral::pruebas
