// The second page on paper: its box numbers can be read, and its captions fit with the real fonts.

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <cmath>

#include "paper_pages.h"
#include "pdf_reader.h"
#include "printing/print_fixture.h"

namespace padral::test {
namespace {

struct ImpresionHoja2 : Impresion {
    ImpresionHoja2() { datos.Apartado3 = QStringLiteral("X"); }
    void En(FabricaImpresora& destino) {
        Imprimir(estado, registros, destino).ImprimirDeclaracion(QStringLiteral("AD"));
    }
};

TEST(Hoja2EnPapel, SeLeenTodosSusNumeros) {
    if (!HayLectorPdf()) GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
    QTemporaryDir carpeta;
    FabricaPapel fabrica;
    fabrica.fichero = carpeta.filePath(QStringLiteral("a.pdf"));
    ImpresionHoja2().En(fabrica);
    ASSERT_EQ(PaginasPdf(fabrica.fichero), 2);
    const QString texto = TextoPdf(fabrica.fichero).section(u'\f', 1, 1);
    QList<int> numeros = {1, 2, 24, 25, 26, 27, 28, 49, 50};
    for (int n = 29; n <= 38; ++n) numeros << n;
    for (int n = 131; n <= 160; ++n) numeros << n;
    for (int n = 251; n <= 264; ++n) numeros << n;
    for (const int numero : numeros) EXPECT_TRUE(TieneNumero(texto, numero)) << numero;
}

class Hoja2Medida : public testing::Test {
protected:
    FabricaMedida fabrica;
    std::vector<Tramo> tramos;
    void SetUp() override {
        ImpresionHoja2().En(fabrica);
        tramos = Tramos(*fabrica.documento, 2);
        ASSERT_GT(tramos.size(), 200U);
    }
};

TEST_F(Hoja2Medida, NingunTextoSaleDelImpreso) {
    for (const auto& t : tramos) {
        EXPECT_GE(t.x1, 0.1F) << t.texto.toStdString();
        EXPECT_LE(t.x2, 193.1F) << t.texto.toStdString();
    }
}

TEST_F(Hoja2Medida, NingunTextoPisaAOtro) {
    // Three millimetres hold no bold number of three digits: the form has it so.
    const QStringList justos = {QStringLiteral("136"), QStringLiteral("146"),
                                QStringLiteral("156")};
    for (const auto& a : tramos)
        for (const auto& b : tramos) {
            if (&a == &b || !a.MismaLinea(b) || a.x1 > b.x1) continue;
            const Mm holgura = justos.contains(a.texto) ? 0.5F : 0.01F;
            EXPECT_LT(a.x2, b.x1 + holgura)
                << a.texto.toStdString() << " over " << b.texto.toStdString();
        }
}

TEST_F(Hoja2Medida, NingunTextoCruzaUnaRayaVertical) {
    for (const auto& raya : fabrica.documento->De(Operacion::Linea)) {
        if (raya.pagina != 2 || raya.desde.x != raya.hasta.x) continue;
        const Mm x = raya.desde.x;
        for (const auto& t : tramos)
            EXPECT_FALSE(t.x1 < x && x < t.x2 && raya.desde.y < t.y2 && t.y1 < raya.hasta.y)
                << t.texto.toStdString() << " across " << x;
    }
}

TEST_F(Hoja2Medida, NingunRotuloPisaUnCuadro) {
    int cuadros = 0;
    for (const auto& m : fabrica.documento->De(Operacion::Caja)) {
        if (m.pagina != 2 || m.hasta.x - m.desde.x > 5) continue;
        // The two frames away from any mark.
        if (std::abs(m.desde.x - 134.1F) < 0.01F || std::abs(m.desde.x - 154.1F) < 0.01F) continue;
        ++cuadros;
        for (const auto& t : tramos)
            EXPECT_FALSE(t.x1 < m.hasta.x && m.desde.x < t.x2 && t.y1 < m.hasta.y &&
                         m.desde.y < t.y2)
                << t.texto.toStdString() << " in " << m.desde.x << ", " << m.desde.y;
    }
    EXPECT_EQ(cuadros, 3 + 17);
}

}  // namespace
}  // namespace padral::test
