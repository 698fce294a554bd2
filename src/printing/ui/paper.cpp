#include "printing/ui/paper.h"

#include <QPrinter>
#include <algorithm>

namespace padral {

void PonerHoja(QPrinter& impresora) {
    impresora.setFullPage(true);
    impresora.setPageSize(QPageSize(QPageSize::A4));
    impresora.setPageOrientation(QPageLayout::Portrait);
}

QPointF Margen(const QMarginsF& minimo) {
    return {std::min(minimo.left(), MargenMaximo), std::min(minimo.top(), MargenMaximo)};
}

QPointF MargenDe(const QPrinter& impresora) {
    if (impresora.outputFormat() == QPrinter::PdfFormat) return {MargenMaximo, MargenMaximo};
    QPageLayout hoja = impresora.pageLayout();
    hoja.setUnits(QPageLayout::Millimeter);
    return Margen(hoja.minimumMargins());
}

}  // namespace padral
