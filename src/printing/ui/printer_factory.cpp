#include "printing/ui/printer_factory.h"

#include <QDir>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <QStandardPaths>

#include "platform/failure.h"
#include "printing/ui/paper.h"
#include "printing/ui/qt_printer.h"

namespace padral {
namespace {

std::shared_ptr<QPrinter> NuevaImpresora(const QString& cola) {
    auto impresora = std::make_shared<QPrinter>(QPrinter::HighResolution);
    impresora->setPrinterName(cola);
    return impresora;
}

std::shared_ptr<QPrinter> ImpresoraPdf(const QString& fichero) {
    auto impresora = std::make_shared<QPrinter>(QPrinter::HighResolution);
    impresora->setOutputFormat(QPrinter::PdfFormat);
    impresora->setOutputFileName(fichero);
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

/// The letters, digits and hyphens of a text, for a file name.
QString ParaFichero(QString texto) {
    static const QRegularExpression otros(QStringLiteral("[^\\w-]"),
                                          QRegularExpression::UseUnicodePropertiesOption);
    return texto.replace(otros, QStringLiteral("_"));
}

/// Name of a file before its code, as the printer dialog proposes it.
constexpr const char16_t* NombrePropuesto = u"417";
const QString FinPdf = QStringLiteral(".pdf");

QString SinPdf(QString nombre) {
    if (nombre.endsWith(FinPdf, Qt::CaseInsensitive)) nombre.chop(FinPdf.size());
    return nombre;
}

}  // namespace

void FabricaQt::UsarCola(const QString& nombre) {
    elegida_.reset();
    pdf_ = false;
    cola_ = nombre;
    OlvidarNombre();
}

void FabricaQt::UsarPdf(const QString& carpeta) {
    elegida_.reset();
    pdf_ = true;
    carpeta_ = carpeta;
    OlvidarNombre();
}

QStringList FabricaQt::TomarFicheros() { return std::exchange(ficheros_, {}); }

void FabricaQt::OlvidarNombre() { nombre_.clear(); }

QString FabricaQt::carpetaPdf() const {
    return carpeta_.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                              : carpeta_;
}

QString FabricaQt::raizFichero(const QString& titulo) const {
    if (!nombre_.isEmpty()) return nombre_ + u'-' + titulo.section(u'-', -1);
    return ParaFichero(titulo) + reloj_.Ahora().toString(QStringLiteral("-yyyyMMdd-HHmmss"));
}

// A file that is there is never written over.
QString FabricaQt::ficheroNuevo(const QString& titulo) const {
    const QString raiz = QDir(carpetaPdf()).filePath(raizFichero(titulo));
    QString fichero = raiz + FinPdf;
    for (int n = 2; QFile::exists(fichero); ++n)
        fichero = QStringLiteral("%1-%2.pdf").arg(raiz).arg(n);
    return fichero;
}

std::shared_ptr<QPrinter> FabricaQt::impresoraPdf(const QString& titulo) {
    const QString carpeta = QDir::toNativeSeparators(carpetaPdf());
    if (!QDir().mkpath(carpeta))
        throw Fallo(QStringLiteral("No se ha podido crear la carpeta %1.").arg(carpeta),
                    QStringLiteral("Ezin izan da %1 karpeta sortu.").arg(carpeta));
    return ImpresoraPdf(ficheroNuevo(titulo));
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
    PonerHoja(*impresora);
    if (!impresora->outputFileName().isEmpty())
        ficheros_ << QDir::toNativeSeparators(impresora->outputFileName());
    const QPointF margen = MargenDe(*impresora);
    return std::make_unique<ImpresoraQt>(std::move(impresora), margen);
}

// The dialog changes this printer while the user looks around.
std::shared_ptr<QPrinter> FabricaQt::impresoraDelDialogo(const QString& cola) const {
    const QString propuesto = QString::fromUtf16(NombrePropuesto);
    const QString nombre = nombre_.isEmpty() ? propuesto : nombre_;
    auto impresora = ExisteCola(cola) ? impresoraDeCola(cola)
                                      : ImpresoraPdf(QDir(carpetaPdf()).filePath(nombre + FinPdf));
    // The name that the dialog proposes when the user passes from a queue to a file.
    impresora->setDocName(propuesto);
    return impresora;
}

void FabricaQt::tomarEleccion(const std::shared_ptr<QPrinter>& impresora) {
    if (impresora->outputFormat() != QPrinter::PdfFormat) {
        UsarCola(impresora->printerName());
        elegida_ = impresora;
        return;
    }
    const QFileInfo fichero(impresora->outputFileName());
    UsarPdf(fichero.absolutePath());
    nombre_ = SinPdf(fichero.fileName());
    if (nombre_ == QStringView(NombrePropuesto)) OlvidarNombre();
}

void FabricaQt::Elegir(QWidget* padre) {
    const QString actual = cola();
    const auto impresora = impresoraDelDialogo(actual);
    QPrintDialog dialogo(impresora.get(), padre);
    dialogo.setOptions(QAbstractPrintDialog::PrintToFile);
    if (dialogo.exec() == QDialog::Accepted)
        tomarEleccion(impresora);
    else if (elegida_ != nullptr)
        elegida_ = NuevaImpresora(actual);  // what the user looked at before cancelling is gone
}

}  // namespace padral
