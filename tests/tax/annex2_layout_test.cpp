// Annex II on a small screen: nothing cut, nothing hidden, in both languages and with big letters.

#include "screens/screen_aspects.h"
#include "tax/annex2_fixture.h"

namespace padral::pruebas {
namespace {

class Aspectos2 : public ConAspecto<PantallaAnexoII> {
protected:
    void mirarVacioYCompleto(qint32 fechaVigor) {
        abrir(fechaVigor);
        mirar();
        completo();
        abrir(fechaVigor);
        mirar();
    }
};

TEST_P(Aspectos2, NadaSaleCortadoHasta2013) { mirarVacioYCompleto(20131231); }

TEST_P(Aspectos2, NadaSaleCortadoDesde2014) { mirarVacioYCompleto(20140101); }
INSTANTIATE_TEST_SUITE_P(Tamanos, Aspectos2,
                         ::testing::Values(Aspecto{false, 1}, Aspecto{true, 1}, Aspecto{false, 1.5},
                                           Aspecto{true, 1.5}));

TEST_F(PantallaAnexoII, CabeEnteraEnUnaVentanaPequena) {
    for (const bool euskera : {false, true})
        for (const qint32 fecha : {20131231, 20140101}) {
            if (euskera) enEuskera();
            abrir(fecha);
            EXPECT_GT(pantalla->heightForWidth(1280), 0);
            EXPECT_LE(pantalla->heightForWidth(1280), 600);
            EXPECT_LE(pantalla->minimumSizeHint().width(), 1280);
        }
}

// Names of provinces and municipalities can be read whole.
TEST_F(PantallaAnexoII, LosNombresDeLasListasCabenEnSuCampo) {
    enProvinciaPropia();
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        abrir();
        const std::pair<const char16_t*, const char16_t*> parejas[] = {
            {u"lstprovincias", u"txtNombreProvincia"}, {u"lstmunicipios", u"txtNombreMunRepr"}};
        for (const auto& [nombre, campo] : parejas) {
            const int sitio = c(campo)->width() - 8;
            for (int i = 0; i < lista(nombre)->count(); ++i) {
                const QString fila = lista(nombre)->item(i)->text();
                EXPECT_LE(c(campo)->fontMetrics().horizontalAdvance(fila), sitio)
                    << fila.toStdString();
            }
        }
    }
}

// Both lists lie over the screen, whole and within it.
TEST_F(PantallaAnexoII, LasListasCabenEnLaPantalla) {
    enProvinciaPropia();
    abrir();
    const std::pair<const char16_t*, const char16_t*> parejas[] = {
        {u"cmdListaProvincias", u"lstprovincias"}, {u"cmdListaMunicipios", u"lstmunicipios"}};
    for (const auto& [boton, nombre] : parejas) {
        pulsar(boton);
        EXPECT_TRUE(pantalla->rect().contains(lista(nombre)->geometry())) << s(nombre);
        EXPECT_GE(lista(nombre)->height(), 4 * lista(nombre)->sizeHintForRow(0));
    }
}

}  // namespace
}  // namespace padral::pruebas
