// The fourth page on paper: its box numbers can be read, its captions fit with the real fonts, its
// dots reach what follows them, its marks stand in their frames.

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <algorithm>
#include <cmath>

#include "paper_pages.h"
#include "pdf_reader.h"
#include "printing/print_fixture.h"

namespace padral::test {
namespace {

/// What fills the page beside the empty form.
enum Contenido { Vacio, Primeras, Segundas, ConDescripcion };
struct Caso {
    const char16_t* letra;
    Contenido contenido;
};
void PrintTo(const Caso& caso, std::ostream* salida) {
    *salida << QString::fromUtf16(caso.letra).toStdString() << caso.contenido;
}
const Caso casos[] = {
    {u"C", Vacio}, {u"C", Primeras}, {u"C", Segundas}, {u"C", ConDescripcion},
    {u"E", Vacio}, {u"E", Primeras}, {u"E", Segundas}, {u"E", ConDescripcion},
};

void RellenarRespuestas(DatosApartado7& datos, bool primeras) {
    const auto letra = [&](char16_t una, char16_t otra) {
        return QString(QChar(primeras ? una : otra));
    };
    datos.LimSupPais.fill(letra(u'S', u'N'));
    datos.DestRevocPais.fill(letra(u'D', u'R'));
    datos.Agric = datos.Exentos = datos.NoEmpresarios = QStringLiteral("S");
    datos.MasLimEuros = letra(u'S', u'N');
    datos.TributDestino = letra(u'O', u'R');
}

void Rellenar(Impresion& i, Contenido contenido) {
    if (contenido == Vacio) return;
    i.datos.DNI = QStringLiteral("A12345674");
    i.datos.NOMBRE = QStringLiteral("COMPAÑÍA MERCANTIL DE GOMAS Y MAQUINARIA");
    i.apartado6.FECHACESE = 20261231;
    i.apartado6.FechaInscripcion = 20261228;
    RellenarRespuestas(i.apartado7, contenido == Primeras);
    if (contenido == ConDescripcion)
        i.apartado6.DESCRIPCIONCAUSA = QStringLiteral("MMMMMMMMMMMMMMMMMMMM");
    else
        i.apartado6.CAUSA = contenido == Primeras ? 99 : 20;
}

class Hoja4EnPapel : public testing::TestWithParam<Caso> {
protected:
    FabricaMedida fabrica;
    std::vector<Tramo> tramos;

    static void Imprimir4(FabricaImpresora& destino) {
        Impresion impresion;
        impresion.Idioma(GetParam().letra);
        impresion.almacen->PonerCatalogo();
        impresion.datos.Apartado6 = QStringLiteral("X");
        Rellenar(impresion, GetParam().contenido);
        Imprimir(impresion.estado, impresion.registros, destino)
            .ImprimirDeclaracion(QStringLiteral("AD"));
    }
    void SetUp() override {
        Imprimir4(fabrica);
        tramos = Tramos(*fabrica.documento, 2);
        std::erase_if(tramos, [](const Tramo& t) { return t.texto.trimmed().isEmpty(); });
        ASSERT_GT(tramos.size(), 80U);
    }
    std::vector<Operacion> Cuadros() const {
        auto cuadros = fabrica.documento->De(Operacion::Caja);
        std::erase_if(cuadros, [](const Operacion& o) {
            return o.pagina != 2 || o.hasta.x - o.desde.x > 4.5F;
        });
        return cuadros;
    }
};
INSTANTIATE_TEST_SUITE_P(Casos, Hoja4EnPapel, testing::ValuesIn(casos));

TEST_P(Hoja4EnPapel, SeLeenTodosSusNumeros) {
    if (!HayLectorPdf()) GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
    QTemporaryDir carpeta;
    FabricaPapel papel;
    papel.fichero = carpeta.filePath(QStringLiteral("a.pdf"));
    Imprimir4(papel);
    ASSERT_EQ(PaginasPdf(papel.fichero), 2);
    const QString texto = TextoPdf(papel.fichero).section(u'\f', 1, 1);
    for (const int numero : {1, 2, 417}) EXPECT_TRUE(TieneNumero(texto, numero)) << numero;
    for (int numero = 118; numero <= 128; ++numero)
        EXPECT_TRUE(TieneNumero(texto, numero)) << numero;
    for (const int numero : {117, 129}) EXPECT_FALSE(TieneNumero(texto, numero)) << numero;
}

TEST_P(Hoja4EnPapel, NingunTextoSaleDelImpreso) {
    for (const auto& t : tramos) {
        EXPECT_GE(t.x1, 0.1F) << t.texto.toStdString();
        // The form has it so: the last line of the notice goes 1 mm past the frame.
        const Mm holgura = t.texto.startsWith(u"la baja de todas") ? 1.1F : 0;
        EXPECT_LE(t.x2, 193.1F + holgura) << t.texto.toStdString();
        EXPECT_LE(t.y2, 281) << t.texto.toStdString();
    }
}

/// The form has it so: a description stands on the notice.
bool EsDescripcion(const Tramo& t) { return t.texto.startsWith(u"MMMM"); }
/// The mark of 122, which is printed three times over.
bool EsLaMismaMarca(const Tramo& a, const Tramo& b) {
    return a.texto == u"X" && b.texto == u"X" && a.x1 == b.x1 && std::fabs(a.y1 - b.y1) < 0.01F;
}

TEST_P(Hoja4EnPapel, NingunTextoPisaAOtro) {
    int repetidas = 0;
    for (const auto& a : tramos)
        for (const auto& b : tramos) {
            if (&a == &b || !a.MismaLinea(b) || a.x1 > b.x1) continue;
            if (EsDescripcion(a) || EsDescripcion(b)) continue;
            if (EsLaMismaMarca(a, b))
                ++repetidas;
            else
                EXPECT_LT(a.x2, b.x1 + 0.01F)
                    << a.texto.toStdString() << " over " << b.texto.toStdString();
        }
    EXPECT_EQ(repetidas, GetParam().contenido == Vacio ? 0 : 6);
}

TEST_P(Hoja4EnPapel, LaDescripcionSoloPisaElAvisoYCabeEnSuHueco) {
    if (GetParam().contenido != ConDescripcion) return;
    const auto descripcion = std::ranges::find_if(tramos, EsDescripcion);
    ASSERT_NE(descripcion, tramos.end());
    EXPECT_LE(descripcion->x2, 193.1F);
    for (const auto& t : tramos) {
        if (EsDescripcion(t) || !t.MismaLinea(*descripcion) || t.x2 < descripcion->x1) continue;
        EXPECT_TRUE(t.texto.startsWith(u"Zergan baja") || t.texto.startsWith(u"la baja"))
            << t.texto.toStdString();
    }
}

TEST_P(Hoja4EnPapel, NingunTextoCruzaUnaRaya) {
    int rayas = 0;
    for (const auto& raya : fabrica.documento->De(Operacion::Linea)) {
        if (raya.pagina != 2) continue;
        ++rayas;
        for (const auto& t : tramos)
            EXPECT_FALSE(t.x1 < raya.hasta.x && raya.desde.x < t.x2 && t.y1 < raya.hasta.y &&
                         raya.desde.y < t.y2)
                << t.texto.toStdString() << " across " << raya.desde.x << ", " << raya.desde.y;
    }
    EXPECT_EQ(rayas, 4 + 3 + 3 + 2);
}

TEST_P(Hoja4EnPapel, LasMarcasEstanDentroDeSuCuadroYLoDemasFuera) {
    const auto cuadros = Cuadros();
    EXPECT_EQ(cuadros.size(), 4U * 27 + 7);
    std::size_t marcas = 0;
    for (const auto& m : cuadros) {
        bool marcado = false;
        for (const auto& t : tramos) {
            if (!t.Pisa(m.desde, m.hasta)) continue;
            EXPECT_EQ(t.texto, u"X") << m.desde.x << ", " << m.desde.y;
            EXPECT_GT(t.x1, m.desde.x);
            // The form has the marks of 125 and 127 close to the right side.
            EXPECT_LT(t.x2, m.hasta.x + 0.05F);
            EXPECT_GT(t.y1, m.desde.y);
            EXPECT_LT(t.y2, m.hasta.y);
            marcado = true;
        }
        if (marcado) ++marcas;
    }
    EXPECT_EQ(marcas, GetParam().contenido == Vacio ? 0U : 2U * 27 + 5);
}

TEST_P(Hoja4EnPapel, LosPuntosLleganHastaLoQueSigue) {
    const auto cuadros = Cuadros();
    int filas = 0;
    for (const auto& t : tramos) {
        if (!t.texto.endsWith(u"..")) continue;
        ++filas;
        Mm siguiente = 1000;
        for (const auto& otro : tramos)
            if (otro.MismaLinea(t) && otro.x1 > t.x1) siguiente = std::min(siguiente, otro.x1);
        for (const auto& m : cuadros)
            if (t.y1 < m.hasta.y && m.desde.y < t.y2) siguiente = std::min(siguiente, m.desde.x);
        EXPECT_GE(siguiente - t.x2, 0.95F) << t.texto.toStdString();
        EXPECT_LE(siguiente - t.x2, 1.75F) << t.texto.toStdString();  // a dot is 0.71 mm
    }
    EXPECT_EQ(filas, 27 + 5);
}

TEST_P(Hoja4EnPapel, LosRotulosEnmarcadosCabenEnSuMarco) {
    int enmarcados = 0;
    for (const auto& m : fabrica.documento->De(Operacion::Caja)) {
        const bool deRotulos = m.pagina == 2 && std::fabs(m.desde.x - 5.1F) < 0.01F;
        if (!deRotulos) continue;
        for (const auto& t : tramos) {
            if (!t.Pisa(m.desde, m.hasta)) continue;
            ++enmarcados;
            EXPECT_TRUE(t.x1 > m.desde.x && t.x2 < m.hasta.x && t.y1 > m.desde.y &&
                        t.y2 < m.hasta.y)
                << t.texto.toStdString();
        }
    }
    EXPECT_EQ(enmarcados, 2 + 4);
}

}  // namespace
}  // namespace padral::test
