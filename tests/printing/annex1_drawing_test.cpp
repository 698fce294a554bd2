// The empty pages of Annex I: every rule, frame, caption and picture of each row, nothing else.

#include <gtest/gtest.h>

#include <algorithm>

#include "annex1_expected.h"
#include "annex1_fixture.h"

namespace padral::test {
namespace {

constexpr float YIdentificacion = 37;

void EsperaPagina(const Documento& documento, int pagina, int filas) {
    const Documento sinFinas = SinRayasFinas(documento, pagina, YIdentificacion);
    Trazado trazado(sinFinas, pagina);
    EsperaBloque(trazado, CabeceraAnexoEsperada(4, 29, 17, lineasAnexoI));
    EsperaAutoridad(trazado, 4);
    BloqueEsperado identificacion = IdentificacionAnexoEsperada(YIdentificacion);
    identificacion.pares.push_back(
        {70, 2.25F, 0, 8, true, u"IDENTIFIKAZIO DATUAK", u"DATOS IDENTIFICATIVOS"});
    EsperaBloque(trazado, identificacion);
    for (int i = 0; i < filas; ++i) {
        const float tope = topesFilas[i];
        EsperaBloque(trazado, ParticipeEsperado(tope));
        trazado.EsperaImagen(QStringLiteral("Participe"), X + 1.5F, tope + 4);
        trazado.EsperaImagen(QStringLiteral("DomicilioFiscal"), X + 8.5F, tope + 28);
    }
    trazado.EsperaImagen(QStringLiteral("Interesado"), 193.5F, 125);
    trazado.QuitaTextosVacios();
    trazado.EsperaNadaMas();
}

TEST(AnexoI, PaginaVaciaConCadaNumeroDeFilas) {
    for (const int filas : {1, 2, 3, 4, 5}) {
        SCOPED_TRACE(filas);
        ImpresionAnexoI impresion;
        impresion.Anadir(filas);
        const Documento& documento = impresion.Copia(QStringLiteral("IT"));
        ASSERT_EQ(documento.paginasTerminadas, 2);
        EsperaPagina(documento, 2, filas);
    }
}

TEST(AnexoI, CadaPaginaEmpiezaDeNuevo) {
    ImpresionAnexoI impresion;
    impresion.Anadir(12);
    const Documento& documento = impresion.Copia(QStringLiteral("IT"));
    ASSERT_EQ(documento.paginasTerminadas, 4);
    EsperaPagina(documento, 2, 5);
    EsperaPagina(documento, 3, 5);
    EsperaPagina(documento, 4, 2);
}

TEST(AnexoI, EsIgualDetrasDeCualquierHoja) {
    for (const auto apartado :
         {&cDatosGenerales::Apartado2, &cDatosGenerales::Apartado4, &cDatosGenerales::Apartado6}) {
        ImpresionAnexoI impresion;
        impresion.Anadir(2);
        impresion.datos.*apartado = QStringLiteral("X");
        EsperaPagina(impresion.Copia(QStringLiteral("IT")), 3, 2);
    }
}

TEST(AnexoI, LosTextosNoCambianConElIdioma) {
    ImpresionAnexoI castellano;
    ImpresionAnexoI euskera;
    for (auto* impresion : {&castellano, &euskera}) impresion->Anadir(6);
    euskera.Idioma(u"E");
    for (const int pagina : {2, 3})
        EXPECT_EQ(TextosDePagina(euskera.Copia(), pagina),
                  TextosDePagina(castellano.Copia(), pagina));
}

TEST(AnexoI, LaPlumaGruesaEsSoloDeLosMarcos) {
    ImpresionAnexoI impresion;
    impresion.Anadir(5);
    int gruesas = 0;
    for (const auto& o : impresion.Copia(QStringLiteral("IT")).operaciones) {
        if (o.pagina != 2 || o.tipo == Operacion::Texto || o.tipo == Operacion::Imagen) continue;
        if (o.estado.pluma != 6) continue;
        ++gruesas;
        EXPECT_EQ(o.tipo, Operacion::Caja);
    }
    EXPECT_EQ(gruesas, 2 + 5);
}

/// Pictures of a page in their order: captions of rows, and stamps.
QStringList Imagenes(const Documento& documento, int pagina) {
    QStringList nombres;
    for (const auto& o : documento.De(Operacion::Imagen))
        if (o.pagina == pagina && o.texto != u"Diputacion" && o.texto != u"DomicilioFiscal")
            nombres << o.texto;
    return nombres;
}

TEST(AnexoI, LaPaginaLlenaSeSellaAntesDeSuUltimaFila) {
    ImpresionAnexoI impresion;
    impresion.Anadir(9);
    const Documento& documento = impresion.Copia(QStringLiteral("IT"));
    const QString fila = QStringLiteral("Participe");
    const QString sello = QStringLiteral("Interesado");
    EXPECT_EQ(Imagenes(documento, 2), QStringList({fila, fila, fila, fila, sello, fila}));
    EXPECT_EQ(Imagenes(documento, 3), QStringList({fila, fila, fila, fila, sello}));
    // Nothing of the last row stands before the stamp.
    bool sellada = false;
    for (const auto& o : documento.operaciones) {
        if (o.pagina != 2) continue;
        sellada = sellada || o.texto == sello;
        EXPECT_TRUE(sellada || o.desde.y < 239) << o.texto.toStdString();
    }
    EXPECT_TRUE(sellada);
}

TEST(AnexoI, LaCopiaDeLaAdministracionTieneDosJuegos) {
    ImpresionAnexoI impresion;
    impresion.Anadir(7);
    const Documento& documento = impresion.Copia(QStringLiteral("AD"));
    ASSERT_EQ(documento.paginasTerminadas, 5);
    for (const int pagina : {2, 3}) {
        EXPECT_EQ(TextosDePagina(documento, pagina), TextosDePagina(documento, pagina + 2));
        EXPECT_EQ(Imagenes(documento, pagina), Imagenes(documento, pagina + 2));
    }
}

}  // namespace
}  // namespace padral::test
