// The second page on paper: its box numbers can be read, and its captions fit with the real fonts.

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QTemporaryDir>
#include <cmath>

#include "pdf_reader.h"
#include "printing/print_fixture.h"
#include "printing/ui/qt_printer.h"

namespace padral::test {
namespace {

std::unique_ptr<ImpresoraQt> PapelEn(const QString& fichero) {
    auto impresora = std::make_shared<QPrinter>(QPrinter::HighResolution);
    impresora->setOutputFormat(QPrinter::PdfFormat);
    impresora->setOutputFileName(fichero);
    impresora->setFullPage(true);
    impresora->setPageSize(QPageSize(QPageSize::A4));
    return std::make_unique<ImpresoraQt>(impresora, QPointF(5, 5));
}

struct FabricaPapel : FabricaImpresora {
    QString fichero;
    std::unique_ptr<Impresora> Abrir(const QString& /*titulo*/) override {
        return PapelEn(fichero);
    }
};

/// Writes down what is drawn, measured with the fonts of the paper.
class MedidoraPapel : public RecordingPrinter {
public:
    explicit MedidoraPapel(const std::shared_ptr<Documento>& documento)
        : RecordingPrinter(documento), papel_(PapelEn(QString())) {}
    Mm AnchoTexto(const QString& texto) const override {
        papel_->estado = estado;
        return papel_->AnchoTexto(texto);
    }
    Mm AltoTexto(const QString& texto) const override {
        papel_->estado = estado;
        return papel_->AltoTexto(texto);
    }

private:
    std::unique_ptr<ImpresoraQt> papel_;
};

struct FabricaMedida : FabricaImpresora {
    std::shared_ptr<Documento> documento = std::make_shared<Documento>();
    std::unique_ptr<Impresora> Abrir(const QString& /*titulo*/) override {
        return std::make_unique<MedidoraPapel>(documento);
    }
};

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
    for (const int numero : numeros) {
        // A caption may follow at once.
        const QRegularExpression palabra(QStringLiteral("(?<!\\d)%1(?!\\d)").arg(numero));
        EXPECT_TRUE(texto.contains(palabra)) << numero;
    }
}

/// A text of the second page with the place that it takes; without its blanks at the end.
struct Tramo {
    QString texto;
    Mm x1, x2, y1, y2;
};

std::vector<Tramo> Tramos(const Documento& documento) {
    const auto papel = PapelEn(QString());
    std::vector<Tramo> tramos;
    for (const auto& o : documento.De(Operacion::Texto)) {
        if (o.pagina != 2 || o.texto.isEmpty()) continue;
        papel->estado = o.estado;
        const Mm alto = papel->AltoTexto(o.texto);
        const Mm ancho = papel->AnchoTexto(o.texto);
        // Letters fill the middle of their line.
        tramos.push_back({o.texto, o.desde.x, o.desde.x + ancho, o.desde.y + alto * 0.25F,
                          o.desde.y + alto * 0.8F});
    }
    return tramos;
}

class Hoja2Medida : public testing::Test {
protected:
    FabricaMedida fabrica;
    std::vector<Tramo> tramos;
    void SetUp() override {
        ImpresionHoja2().En(fabrica);
        tramos = Tramos(*fabrica.documento);
        ASSERT_GT(tramos.size(), 200U);
    }
    static bool MismaLinea(const Tramo& a, const Tramo& b) { return a.y1 < b.y2 && b.y1 < a.y2; }
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
            if (&a == &b || !MismaLinea(a, b) || a.x1 > b.x1) continue;
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
