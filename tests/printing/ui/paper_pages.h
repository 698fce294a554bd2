#pragma once
// Pages on real paper: a PDF, or the record of what is drawn measured with the fonts of the paper.

#include <vector>

#include "printing/ui/qt_printer.h"
#include "support/recording_printer.h"

namespace padral::test {

/// A4 with margins of 5 mm as PDF.
std::unique_ptr<ImpresoraQt> PapelEn(const QString& fichero);

struct FabricaPapel : FabricaImpresora {
    QString fichero;
    std::unique_ptr<Impresora> Abrir(const QString& /*titulo*/) override {
        return PapelEn(fichero);
    }
};

struct FabricaMedida : FabricaImpresora {
    std::shared_ptr<Documento> documento = std::make_shared<Documento>();
    std::unique_ptr<Impresora> Abrir(const QString& titulo) override;
};

/// A text with the place that its letters take on the paper.
struct Tramo {
    QString texto;
    Mm x1, x2, y1, y2;

    bool MismaLinea(const Tramo& otro) const { return y1 < otro.y2 && otro.y1 < y2; }
    bool Pisa(Punto desde, Punto hasta) const {
        return x1 < hasta.x && desde.x < x2 && y1 < hasta.y && desde.y < y2;
    }
};
/// Those of a page that are not empty.
std::vector<Tramo> Tramos(const Documento& documento, int pagina);

/// Whether the number can be read; a caption or dots may touch it.
bool TieneNumero(const QString& texto, int numero);

}  // namespace padral::test
