// The empty fourth page: every rule, frame, number, caption and picture, nothing else.

#include <gtest/gtest.h>

#include "page4_expected_states.h"
#include "print_fixture.h"

namespace padral::test {
namespace {

struct ImpresionHoja4 : Impresion {
    ImpresionHoja4() { datos.Apartado7 = QStringLiteral("X"); }
};

void EsperaHoja4(const Documento& documento, int pagina) {
    Trazado trazado(documento, pagina);
    EsperaBloque(trazado, CabeceraEsperada4());
    EsperaAutoridad(trazado, YCabecera4);
    EsperaBloque(trazado, Identificacion4Esperada());
    EsperaBloque(trazado, Apartado6Esperado());
    EsperaBloque(trazado, Apartado7Esperado());
    trazado.EsperaImagen(QStringLiteral("Administracion"), 193.5F, 125);
    // The description of a cause has a fixed width.
    trazado.Espera(ValorRomano(YApartado6, 85, 9, QString(20, u' ')));
    trazado.QuitaTextosVacios();
    trazado.EsperaNadaMas();
}

TEST(Hoja4, PaginaVacia) {
    ImpresionHoja4 impresion;
    EsperaHoja4(impresion.Copia(), 2);
}

TEST(Hoja4, EsLaMismaEnLosDosIdiomas) {
    for (const auto* letra : {u"E", u"C"}) {
        ImpresionHoja4 impresion;
        impresion.Idioma(letra);
        EsperaHoja4(impresion.Copia(), 2);
    }
}

TEST(Hoja4, EsLaMismaConUnApartadoOElOtro) {
    ImpresionHoja4 impresion;
    impresion.datos.Apartado6 = QStringLiteral("X");
    impresion.datos.Apartado7 = QString();
    EsperaHoja4(impresion.Copia(), 2);
}

TEST(Hoja4, DespuesDeLasOtrasHojasEsLaMisma) {
    ImpresionHoja4 impresion;
    impresion.datos.Apartado2 = QStringLiteral("X");
    EsperaHoja4(impresion.Copia(), 3);
    impresion.datos.Apartado4 = QStringLiteral("X");
    EsperaHoja4(impresion.Copia(), 4);
}

TEST(Hoja4, LaPlumaGruesaEsSoloDeLosCuatroMarcos) {
    ImpresionHoja4 impresion;
    int gruesas = 0;
    for (const auto& o : impresion.Copia().operaciones) {
        if (o.pagina != 2 || o.tipo == Operacion::Texto || o.tipo == Operacion::Imagen) continue;
        if (o.estado.pluma != 6) continue;
        ++gruesas;
        EXPECT_EQ(o.tipo, Operacion::Caja);
    }
    EXPECT_EQ(gruesas, 4);
}

TEST(Hoja4, SoloLaAutoridadVaEnLetraEstrecha) {
    ImpresionHoja4 impresion;
    int estrechas = 0;
    for (const auto& o : impresion.Copia().De(Operacion::Texto)) {
        if (o.pagina != 2 || o.estado.fuente != u"Arial Narrow") continue;
        ++estrechas;
        EXPECT_LT(o.desde.y, YCabecera4 + 29) << o.texto.toStdString();
    }
    EXPECT_EQ(estrechas, 5);
}

}  // namespace
}  // namespace padral::test
