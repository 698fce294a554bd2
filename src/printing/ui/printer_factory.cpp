#include "printing/ui/printer_factory.h"

#include <QDir>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <QStandardPaths>
#include <algorithm>

#include "platform/failure.h"
#include "printing/ui/qt_printer.h"

namespace padral {
namespace {

std::shared_ptr<QPrinter> NuevaImpresora(const QString& cola) {
    auto impresora = std::make_shared<QPrinter>(QPrinter::HighResolution);
    impresora->setPrinterName(cola);
    return impresora;
}

bool ExisteCola(const QString& cola) {
    return !cola.isEmpty() && !QPrinterInfo::printerInfo(cola).isNull();
}

void ComprobarCola(const QString& cola) {
    if (ExisteCola(cola)) return;
    throw Fallo(QStringLiteral("La impresora \"%1\" no está disponible.").arg(cola),
                QStringLiteral("\"%1\" inprimagailua ez dago erabilgarri.").arg(cola));
}

/// As small as the device allows. The file has the widest margin: it is meant for paper later.
QPointF Margen(const QPrinter& impresora) {
    if (impresora.outputFormat() == QPrinter::PdfFormat) return {MargenMaximo, MargenMaximo};
    QPageLayout hoja = impresora.pageLayout();
    hoja.setUnits(QPageLayout::Millimeter);
    const QMarginsF minimo = hoja.minimumMargins();
    return {std::min(minimo.left(), MargenMaximo), std::min(minimo.top(), MargenMaximo)};
}

/// The letters, digits and hyphens of a text, for a file name.
QString ParaFichero(QString texto) {
    static const QRegularExpression otros(QStringLiteral("[^\\w-]"),
                                          QRegularExpression::UseUnicodePropertiesOption);
    return texto.replace(otros, QStringLiteral("_"));
}

}  // namespace

void FabricaQt::UsarCola(const QString& nombre) {
    elegida_.reset();
    pdf_ = false;
    cola_ = nombre;
}

void FabricaQt::UsarPdf(const QString& carpeta) {
    elegida_.reset();
    pdf_ = true;
    carpeta_ = carpeta;
}

QStringList FabricaQt::TomarFicheros() { return std::exchange(ficheros_, {}); }

QString FabricaQt::carpetaPdf() const {
    return carpeta_.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                              : carpeta_;
}

// A file that is there is never written over.
QString FabricaQt::ficheroNuevo(const QString& titulo) const {
    const QString raiz = QStringLiteral("%1/%2-%3")
                             .arg(carpetaPdf(), ParaFichero(titulo),
                                  reloj_.Ahora().toString(QStringLiteral("yyyyMMdd-HHmmss")));
    QString fichero = raiz + QStringLiteral(".pdf");
    for (int n = 2; QFile::exists(fichero); ++n)
        fichero = QStringLiteral("%1-%2.pdf").arg(raiz).arg(n);
    return fichero;
}

std::shared_ptr<QPrinter> FabricaQt::impresoraPdf(const QString& titulo) {
    const QString carpeta = QDir::toNativeSeparators(carpetaPdf());
    if (!QDir().mkpath(carpeta))
        throw Fallo(QStringLiteral("No se ha podido crear la carpeta %1.").arg(carpeta),
                    QStringLiteral("Ezin izan da %1 karpeta sortu.").arg(carpeta));
    auto impresora = std::make_shared<QPrinter>(QPrinter::HighResolution);
    impresora->setOutputFormat(QPrinter::PdfFormat);
    impresora->setOutputFileName(ficheroNuevo(titulo));
    return impresora;
}

QString FabricaQt::cola() const {
    if (pdf_) return {};
    if (elegida_ != nullptr) return elegida_->printerName();
    return cola_.isEmpty() ? QPrinterInfo::defaultPrinter().printerName() : cola_;
}

std::shared_ptr<QPrinter> FabricaQt::impresoraDeCola(const QString& nombre) const {
    return elegida_ != nullptr ? elegida_ : NuevaImpresora(nombre);
}

std::unique_ptr<Impresora> FabricaQt::Abrir(const QString& titulo) {
    const QString nombre = cola();
    if (!nombre.isEmpty()) ComprobarCola(nombre);
    auto impresora = nombre.isEmpty() ? impresoraPdf(titulo) : impresoraDeCola(nombre);
    impresora->setDocName(titulo);
    impresora->setFullPage(true);
    impresora->setPageSize(QPageSize(QPageSize::A4));
    if (!impresora->outputFileName().isEmpty())
        ficheros_ << QDir::toNativeSeparators(impresora->outputFileName());
    const QPointF margen = Margen(*impresora);
    return std::make_unique<ImpresoraQt>(std::move(impresora), margen);
}

void FabricaQt::Elegir(QWidget* padre) {
    const QString actual = cola();
    std::shared_ptr<QPrinter> impresora;
    if (ExisteCola(actual)) {
        impresora = impresoraDeCola(actual);
    } else {
        impresora = std::make_shared<QPrinter>(QPrinter::HighResolution);
        impresora->setOutputFormat(QPrinter::PdfFormat);
        impresora->setOutputFileName(carpetaPdf() + QStringLiteral("/417.pdf"));
    }
    QPrintDialog dialogo(impresora.get(), padre);
    dialogo.setOptions(QAbstractPrintDialog::PrintToFile);
    if (dialogo.exec() != QDialog::Accepted) return;
    if (impresora->outputFormat() == QPrinter::PdfFormat) {
        UsarPdf(QFileInfo(impresora->outputFileName()).absolutePath());
        return;
    }
    elegida_ = impresora;
    pdf_ = false;
}

}  // namespace padral
