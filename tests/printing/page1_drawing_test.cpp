// The empty first page: every rule, frame, number, caption and picture, and nothing else.

#include <gtest/gtest.h>

#include "page1_expected.h"
#include "print_fixture.h"

namespace padral::test {
namespace {

constexpr FilaTexto titulos[] = {
    {59, 5, 112.5F, 24, true, true, u"PADRAL AITORPENA"},
    {59, 14, 112.5F, 24, true, false, u"DECLARACIÓN PADRAL"},
};

TEST(Hoja1, PaginaVacia) {
    Impresion impresion;
    Trazado trazado(impresion.Copia());
    EsperaCabecera(trazado, titulos);
    EsperaBloque(trazado, IdentificacionEsperada(43.5F));
    EsperaBloque(trazado, Apartado1Esperado());
    EsperaBloque(trazado, SolicitudEsperada());
    EsperaBloque(trazado, ModificacionEsperada());
    EsperaBloque(trazado, ObligadoEsperado());
    trazado.EsperaImagen(QStringLiteral("ParaAdministracion"), X + 122, 187.5F + 7);
    trazado.EsperaImagen(QStringLiteral("Administracion"), 193.5F, 125);
    // What a blank declaration shows: both date masks and the first reason of change.
    trazado.Espera(ValorEsperado(125.5F, 72, 17.5F, QStringLiteral("__/__/____")));
    trazado.Espera(ValorEsperado(125.5F, 173.5F, 17.5F, QStringLiteral("__/__/____")));
    trazado.Espera(ValorEsperado(135.5F, 151.5F, 39, QStringLiteral("No hay cambios")));
    trazado.QuitaTextosVacios();
    trazado.EsperaNadaMas();
}

TEST(Hoja1, EnEuskeraSoloCambianLasFechas) {
    Impresion castellano;
    Impresion euskera;
    euskera.estado.DesplazamientoIdioma = CatalogoTextos::DesplazamientoEuskera;
    euskera.estado.fecha.fecidioma = QStringLiteral("E");
    QStringList esperados = castellano.Copia().Textos();
    esperados.replaceInStrings(QStringLiteral("__/__/____"), QStringLiteral("____/__/__"));
    EXPECT_EQ(euskera.Copia().Textos(), esperados);
}

}  // namespace
}  // namespace padral::test
