// The empty second page: every rule, frame, grey cell, number, caption and picture, nothing else.

#include <gtest/gtest.h>

#include <algorithm>

#include "page2_expected_census.h"
#include "print_fixture.h"

namespace padral::test {
namespace {

constexpr FilaTexto titulos[] = {
    {59, 3, 112.5F, 22, true, true, u"PADRAL AITORPENA"},
    {59, 10, 112.5F, 12, true, true, u"HELBIDEAK ETA BESTELAKO DATU PADRALAK"},
    {59, 16, 112.5F, 22, true, false, u"DECLARACIÓN PADRAL"},
    {59, 23, 112.5F, 12, true, false, u"DOMICILIO Y OTROS DATOS PADRALES"},
};

struct ImpresionHoja2 : Impresion {
    ImpresionHoja2() { datos.Apartado2 = QStringLiteral("X"); }
};

TEST(Hoja2, PaginaVacia) {
    ImpresionHoja2 impresion;
    Trazado trazado(impresion.Copia(), 2);
    EsperaCabecera(trazado, titulos);
    EsperaBloque(trazado, IdentificacionEsperada(35.5F));
    EsperaBloque(trazado, FiscalEsperado());
    for (const int domicilio : {1, 2, 3}) EsperaBloque(trazado, OtroDomicilioEsperado(domicilio));
    EsperaBloque(trazado, Apartado3Esperado());
    trazado.EsperaImagen(QStringLiteral("Administracion"), 193.5F, 125);
    // A blank record answers box 261 only.
    trazado.Espera(ValorEsperado(YApartado3, 135, 78, QStringLiteral("X")));
    trazado.QuitaTextosVacios();
    trazado.EsperaNadaMas();
}

TEST(Hoja2, LosTextosNoCambianConElIdioma) {
    ImpresionHoja2 castellano;
    ImpresionHoja2 euskera;
    euskera.estado.DesplazamientoIdioma = CatalogoTextos::DesplazamientoEuskera;
    euskera.estado.fecha.fecidioma = QStringLiteral("E");
    EXPECT_EQ(TextosDePagina(euskera.Copia(), 2), TextosDePagina(castellano.Copia(), 2));
}

TEST(Hoja2, LaPlumaGruesaEsSoloDeLosSieteMarcos) {
    ImpresionHoja2 impresion;
    int gruesas = 0;
    for (const auto& o : impresion.Copia().operaciones) {
        if (o.pagina != 2 || o.tipo == Operacion::Texto || o.tipo == Operacion::Imagen) continue;
        if (o.estado.pluma != 6) continue;
        ++gruesas;
        EXPECT_EQ(o.tipo, Operacion::Caja);
    }
    EXPECT_EQ(gruesas, 7);
}

TEST(Hoja2, LasCeldasGrisesQuedanDebajoDeSusRotulosYCodigos) {
    ImpresionHoja2 impresion;
    for (auto* b : {&impresion.apartado2.Fis, &impresion.apartado2.Soc, &impresion.apartado2.Act,
                    &impresion.apartado2.Not}) {
        b->CodigoMunicipio = 69;
        b->CodigoProvincia = 20;
    }
    const auto& operaciones = impresion.Copia().operaciones;
    int celdas = 0;
    for (auto gris = operaciones.begin(); gris != operaciones.end(); ++gris) {
        if (gris->tipo != Operacion::CajaRellena) continue;
        ++celdas;
        const auto dentro = [&](const Operacion& o) {
            return o.tipo == Operacion::Texto && o.pagina == 2 && o.desde.x > gris->desde.x &&
                   o.desde.x < gris->hasta.x && o.desde.y > gris->desde.y - 1 &&
                   o.desde.y < gris->hasta.y;
        };
        EXPECT_EQ(std::count_if(operaciones.begin(), gris, dentro), 0);
        // Both halves of the caption and the code.
        EXPECT_EQ(std::count_if(gris, operaciones.end(), dentro), 3);
    }
    EXPECT_EQ(celdas, 8);
}

}  // namespace
}  // namespace padral::test
