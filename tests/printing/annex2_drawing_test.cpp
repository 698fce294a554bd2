// The empty page of Annex II: every rule, frame, number, caption and picture, nothing else.

#include <gtest/gtest.h>

#include "annex2_expected.h"
#include "print_fixture.h"

namespace padral::test {
namespace {

struct ImpresionAnexoII : Impresion {
    ImpresionAnexoII() { datos.AnexoII = QStringLiteral("X"); }
};

void EsperaAnexoII(const Documento& documento, int pagina) {
    const Documento sinFinas = SinRayasFinas(documento, pagina, YIdentificacionII);
    Trazado trazado(sinFinas, pagina);
    EsperaBloque(trazado, CabeceraAnexoEsperada(YCabeceraII, 28, 16, lineasAnexoII));
    EsperaAutoridad(trazado, YCabeceraII);
    BloqueEsperado identificacion = IdentificacionAnexoEsperada(YIdentificacionII);
    identificacion.centrados = {
        {100, 2.25F, 8, false, u"IDENTIFIKAZIO DATUAK", u"DATOS IDENTIFICATIVOS"}};
    EsperaBloque(trazado, identificacion);
    EsperaBloque(trazado, DomicilioExtranjeroEsperado());
    EsperaBloque(trazado, RepresentanteEsperado());
    EsperaBloque(trazado, ObligacionesEsperado());
    EsperaBloque(trazado, OtrasSituacionesEsperado());
    trazado.QuitaTextosVacios();
    // No copy title either.
    trazado.EsperaNadaMas();
}

TEST(AnexoII, PaginaVaciaIgualEnTodasLasCopias) {
    for (const auto* tipo : {u"AD", u"IT", u"BO", u"BA", u"IF"}) {
        ImpresionAnexoII impresion;
        EsperaAnexoII(impresion.Copia(QString::fromUtf16(tipo)), 2);
    }
}

TEST(AnexoII, EsIgualDetrasDeCualquierHoja) {
    for (const auto apartado :
         {&cDatosGenerales::Apartado2, &cDatosGenerales::Apartado4, &cDatosGenerales::Apartado6}) {
        ImpresionAnexoII impresion;
        impresion.datos.*apartado = QStringLiteral("X");
        EsperaAnexoII(impresion.Copia(), 3);
    }
}

TEST(AnexoII, LosTextosNoCambianConElIdioma) {
    ImpresionAnexoII castellano;
    ImpresionAnexoII euskera;
    euskera.Idioma(u"E");
    EXPECT_EQ(TextosDePagina(euskera.Copia(), 2), TextosDePagina(castellano.Copia(), 2));
}

TEST(AnexoII, LaPlumaGruesaEsSoloDeLosSeisMarcos) {
    ImpresionAnexoII impresion;
    int gruesas = 0;
    for (const auto& o : impresion.Copia().operaciones) {
        if (o.pagina != 2 || o.tipo == Operacion::Texto || o.tipo == Operacion::Imagen) continue;
        if (o.estado.pluma != 6) continue;
        ++gruesas;
        EXPECT_EQ(o.tipo, Operacion::Caja);
    }
    EXPECT_EQ(gruesas, 6);
}

TEST(AnexoII, LaCasilla187NoEsta) {
    ImpresionAnexoII impresion;
    EXPECT_FALSE(TextosDePagina(impresion.Copia(), 2).contains(QStringLiteral("187")));
}

}  // namespace
}  // namespace padral::test
