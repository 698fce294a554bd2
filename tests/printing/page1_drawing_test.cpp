// The empty first page: every rule, frame, number, caption and picture, and nothing else.

#include <gtest/gtest.h>

#include "page1_expected.h"
#include "print_fixture.h"

namespace padral::test {
namespace {

constexpr float YCabecera = 4;

template <class Filas>
void EsperaTextos(Trazado& trazado, float origen, const Filas& filas) {
    for (const auto& fila : filas)
        for (const auto& texto : Textos(origen, fila)) trazado.Espera(texto);
}

void EsperaBloque(Trazado& trazado, const BloqueEsperado& b) {
    SCOPED_TRACE(b.nombre);
    trazado.EsperaCaja(b.origen, b.marcoGrueso, 6);
    for (const auto& f : b.rayas) trazado.EsperaLinea(b.origen, f);
    for (const auto& f : b.marcos) trazado.EsperaCaja(b.origen, f, 2);
    EsperaTextos(trazado, b.origen, b.numeros);
    EsperaTextos(trazado, b.origen, b.textos);
    EsperaTextos(trazado, b.origen, b.pares);
}

QString Departamento(int idioma) {
    SvrBaseComunLib::cMiscelaneos comun;
    comun.Idioma = idioma;
    return comun.HaciendaFiscalidad();
}

void EsperaCabecera(Trazado& trazado) {
    SCOPED_TRACE("heading");
    trazado.EsperaCaja(YCabecera, {0, 0, 193, 30}, 6);
    const FilaTrazo rayas[] = {
        {59, 0, 59, 30}, {171.5F, 0, 171.5F, 30}, {171.5F, 17, 193, 17}, {171.5F, 25, 193, 25}};
    for (const auto& raya : rayas) trazado.EsperaLinea(YCabecera, raya);
    trazado.EsperaImagen(QStringLiteral("Diputacion"), X + 2, YCabecera + 3, Tamano{14, 14});
    const FilaTexto textos[] = {
        {20, 10, 0, 7, true, false, u"Kelmariako Foru Aldundia"},
        {20, 13, 0, 7, true, false, u"Diputación Foral de Kelmaria"},
        {171.5F, 18, 21.5F, 8, false, true, u"Erreferentzia zk"},
        {171.5F, 21.5F, 21.5F, 8, false, false, u"Nº Referencia"},
        {59, 5, 112.5F, 24, true, true, u"PADRAL AITORPENA"},
        {59, 14, 112.5F, 24, true, false, u"DECLARACIÓN PADRAL"},
    };
    EsperaTextos(trazado, YCabecera, textos);
}

void EsperaDepartamento(Trazado& trazado) {
    const std::pair<QString, float> lineas[] = {
        {Departamento(1000), 19.0F},
        {Departamento(0), 21.5F},
        {SvrBaseComunLib::DireccionWebAutoridad(), 25.0F},
    };
    for (const auto& [texto, y] : lineas) {
        EXPECT_FALSE(texto.isEmpty());
        trazado.Espera({texto, X + 10, YCabecera + y - 0.35F * 0.4F * 7, 7, false, false,
                        QStringLiteral("Arial Narrow")});
    }
    const float ancho417 = 0.20F * 32 * 3;
    trazado.Espera({QStringLiteral("417"), X + 171.5F + 21.5F / 2 - ancho417 / 2, YCabecera + 3, 32,
                    false, false, QStringLiteral("times new roman")});
}

TEST(Hoja1, PaginaVacia) {
    Impresion impresion;
    Trazado trazado(impresion.Copia());
    EsperaCabecera(trazado);
    EsperaDepartamento(trazado);
    EsperaBloque(trazado, IdentificacionEsperada());
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
