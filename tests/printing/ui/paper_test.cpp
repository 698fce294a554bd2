// The sheet of the form: its shape and its margin.

#include "printing/ui/paper.h"

#include <gtest/gtest.h>

#include <QPrinter>

namespace padral::test {
namespace {

TEST(Papel, EsA4DerechoHastaElBorde) {
    for (const auto tamano : {QPageSize::A4, QPageSize::A3, QPageSize::Letter})
        for (const auto giro : {QPageLayout::Portrait, QPageLayout::Landscape}) {
            QPrinter impresora(QPrinter::HighResolution);
            impresora.setOutputFormat(QPrinter::PdfFormat);
            impresora.setPageSize(QPageSize(tamano));
            impresora.setPageOrientation(giro);
            PonerHoja(impresora);
            EXPECT_EQ(impresora.pageLayout().pageSize().id(), QPageSize::A4);
            EXPECT_EQ(impresora.pageLayout().orientation(), QPageLayout::Portrait);
            const QRectF hoja = impresora.pageLayout().paintRect(QPageLayout::Millimeter);
            EXPECT_EQ(hoja, QRectF(0, 0, 210, 297));
        }
}

struct FilaMargen {
    double izquierda, arriba;
    QPointF margen;
};
const FilaMargen margenes[] = {
    {0, 0, {0, 0}},     {3.2, 4.1, {3.2, 4.1}}, {4.999, 5, {4.999, 5}},
    {5.001, 3, {5, 3}}, {3, 12.7, {3, 5}},      {6.35, 6.35, {5, 5}},
};

TEST(Papel, ElMargenEsElDelAparatoYComoMucho5) {
    for (const auto& fila : margenes)
        // The other two sides do not move the origin.
        for (const double otro : {0.0, 4.0, 20.0})
            EXPECT_EQ(Margen({fila.izquierda, fila.arriba, otro, otro}), fila.margen);
}

TEST(Papel, ConEseMargenElImpresoCabe) {
    const QPointF margen = Margen({20, 20, 20, 20});
    EXPECT_LE(margen.x() + 196.2, 210);
    EXPECT_LE(margen.y() + 285, 297);
}

TEST(Papel, ElPdfTiene5) {
    QPrinter impresora(QPrinter::HighResolution);
    impresora.setOutputFormat(QPrinter::PdfFormat);
    PonerHoja(impresora);
    EXPECT_EQ(MargenDe(impresora), QPointF(5, 5));
}

}  // namespace
}  // namespace padral::test
