#include "printing/ui/qt_printer.h"

#include <QDir>
#include <QFile>
#include <QFontMetricsF>

#include "platform/failure.h"
#include "printing/pictures.h"
#include "printing/ui/cups_status.h"
#include "printing/ui/fonts.h"
#include "printing/ui/qt_pictures.h"

namespace padral {
namespace {

constexpr double MmPorPulgada = 25.4;
constexpr double PlumasPorPulgada = 600;

QColor ColorQt(Color color) { return QColor::fromRgb(static_cast<QRgb>(color)); }

}  // namespace

ImpresoraQt::ImpresoraQt(std::shared_ptr<QPrinter> impresora, QPointF margen)
    : impresora_(std::move(impresora)), margen_(margen) {}

ImpresoraQt::~ImpresoraQt() {
    if (pintor_.isActive()) pintor_.end();
}

double ImpresoraQt::puntos(double mm) const { return mm * impresora_->resolution() / MmPorPulgada; }

Mm ImpresoraQt::milimetros(double puntos) const {
    return static_cast<Mm>(puntos * MmPorPulgada / impresora_->resolution());
}

QPointF ImpresoraQt::lugar(Punto p) const {
    return {puntos(margen_.x() + static_cast<double>(p.x)),
            puntos(margen_.y() + static_cast<double>(p.y))};
}

QRectF ImpresoraQt::rectangulo(Punto desde, Punto hasta) const {
    return QRectF(lugar(desde), lugar(hasta)).normalized();
}

QFont ImpresoraQt::fuente() const {
    QFont f(FamiliaInstalada(estado.fuente));
    f.setPointSizeF(static_cast<double>(estado.cuerpo));
    f.setBold(estado.negrita);
    f.setItalic(estado.cursiva);
    f.setUnderline(estado.subrayado);
    return f;
}

QPen ImpresoraQt::pluma(Color color) const {
    return {ColorQt(color), estado.pluma * impresora_->resolution() / PlumasPorPulgada,
            Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin};
}

Mm ImpresoraQt::AnchoTexto(const QString& texto) const {
    return milimetros(QFontMetricsF(fuente(), impresora_.get()).horizontalAdvance(texto));
}

Mm ImpresoraQt::AltoTexto(const QString& /*texto*/) const {
    const QFontMetricsF medidas(fuente(), impresora_.get());
    return milimetros(medidas.ascent() + medidas.descent());
}

void ImpresoraQt::Imprimir(const QString& texto) {
    const QFont f = fuente();
    const QFontMetricsF medidas(f, impresora_.get());
    const QPointF base = lugar(estado.punto) + QPointF(0, medidas.ascent());
    const QColor color = ColorQt(estado.primerPlano);
    estado.punto.x += AnchoTexto(texto);
    if (texto.isEmpty()) return;
    pagina_.emplace_back([=](QPainter& p) {
        p.setFont(f);
        p.setPen(color);
        p.drawText(base, texto);
    });
}

void ImpresoraQt::Linea(Punto desde, Punto hasta, Color color) {
    pagina_.emplace_back([pen = pluma(color), a = lugar(desde), b = lugar(hasta)](QPainter& p) {
        p.setPen(pen);
        p.drawLine(a, b);
    });
}

void ImpresoraQt::Caja(Punto desde, Punto hasta, Color color) {
    pagina_.emplace_back([pen = pluma(color), r = rectangulo(desde, hasta)](QPainter& p) {
        p.setPen(pen);
        p.setBrush(Qt::NoBrush);
        p.drawRect(r);
    });
}

void ImpresoraQt::CajaRellena(Punto desde, Punto hasta, Color color) {
    pagina_.emplace_back(
        [c = ColorQt(color), r = rectangulo(desde, hasta)](QPainter& p) { p.fillRect(r, c); });
}

void ImpresoraQt::PintarImagen(const QString& nombre, Punto en, std::optional<Tamano> tamano) {
    const ImagenImpresa& imagen = BuscarImagen(nombre);
    const Tamano t = tamano.value_or(imagen.TamanoNatural());
    const QRectF r = rectangulo(en, {en.x + t.ancho, en.y + t.alto});
    pagina_.emplace_back([&imagen, r](QPainter& p) { PintarArte(p, imagen, r); });
}

void ImpresoraQt::empezarPagina() {
    const bool empezada = pintor_.isActive() ? impresora_->newPage() : pintor_.begin(&*impresora_);
    const auto estadoImpresora = impresora_->printerState();
    if (!empezada || estadoImpresora == QPrinter::Error || estadoImpresora == QPrinter::Aborted)
        fallar();
}

void ImpresoraQt::FinPagina() {
    empezarPagina();
    for (const Trazo& trazo : pagina_) {
        pintor_.save();
        trazo(pintor_);
        pintor_.restore();
    }
    pagina_.clear();
    ++paginas_;
}

void ImpresoraQt::Cerrar() {
    if (paginas_ == 0) return;
    const bool acabada = pintor_.end();
    if (!acabada || impresora_->printerState() == QPrinter::Error) fallar();
    if (impresora_->outputFileName().isEmpty())
        comprobarCola();
    else
        comprobarFichero();
}

// The document is handed over when the painter ends; the toolkit keeps the answer to itself.
void ImpresoraQt::comprobarCola() const {
    if (!FalloDelServicioDeImpresion().isEmpty()) fallar();
}

// A full disk shows only here: the file lacks its end.
void ImpresoraQt::comprobarFichero() const {
    constexpr qint64 Cola = 32;
    QFile fichero(impresora_->outputFileName());
    if (!fichero.open(QIODevice::ReadOnly) || fichero.isSequential()) fallar();
    fichero.seek(qMax<qint64>(0, fichero.size() - Cola));
    if (!fichero.read(Cola).contains("%%EOF")) fallar();
}

void ImpresoraQt::fallar() const {
    const QString fichero = QDir::toNativeSeparators(impresora_->outputFileName());
    if (!fichero.isEmpty())
        throw Fallo(QStringLiteral("No se ha podido escribir el fichero %1.").arg(fichero),
                    QStringLiteral("Ezin izan da %1 fitxategia idatzi.").arg(fichero));
    const QString nombre = impresora_->printerName();
    throw Fallo(QStringLiteral("La impresora \"%1\" no ha podido imprimir.").arg(nombre),
                QStringLiteral("\"%1\" inprimagailuak ezin izan du inprimatu.").arg(nombre));
}

}  // namespace padral
