#include "paper_pages.h"

#include <QPrinter>
#include <QRegularExpression>

namespace padral::test {
namespace {

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

}  // namespace

std::unique_ptr<ImpresoraQt> PapelEn(const QString& fichero) {
    auto impresora = std::make_shared<QPrinter>(QPrinter::HighResolution);
    impresora->setOutputFormat(QPrinter::PdfFormat);
    impresora->setOutputFileName(fichero);
    impresora->setFullPage(true);
    impresora->setPageSize(QPageSize(QPageSize::A4));
    return std::make_unique<ImpresoraQt>(impresora, QPointF(5, 5));
}

std::unique_ptr<Impresora> FabricaMedida::Abrir(const QString& /*titulo*/) {
    return std::make_unique<MedidoraPapel>(documento);
}

std::vector<Tramo> Tramos(const Documento& documento, int pagina) {
    const auto papel = PapelEn(QString());
    std::vector<Tramo> tramos;
    for (const auto& o : documento.De(Operacion::Texto)) {
        if (o.pagina != pagina || o.texto.isEmpty()) continue;
        papel->estado = o.estado;
        const Mm alto = papel->AltoTexto(o.texto);
        const Mm ancho = papel->AnchoTexto(o.texto);
        // Letters fill the middle of their line.
        tramos.push_back({o.texto, o.desde.x, o.desde.x + ancho, o.desde.y + alto * 0.25F,
                          o.desde.y + alto * 0.8F});
    }
    return tramos;
}

bool TieneNumero(const QString& texto, int numero) {
    return texto.contains(QRegularExpression(QStringLiteral("(?<!\\d)%1(?!\\d)").arg(numero)));
}

}  // namespace padral::test
