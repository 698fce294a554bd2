#include "printing/ui/qt_pictures.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QSvgRenderer>

#include "platform/failure.h"
#include "printing/ui/fonts.h"

// A resource of a static library is not registered by itself.
static void registrarArte() { Q_INIT_RESOURCE(print_art); }

namespace padral {
namespace {

constexpr double Holgura = 0.98;  // part of the rectangle that a caption may fill

void PintarEmblema(QPainter& pintor, const QRectF& donde) {
    registrarArte();
    QSvgRenderer arte(QStringLiteral(":/padral/print/emblem.svg"));
    if (!arte.isValid())
        throw Fallo(QStringLiteral("Falta el emblema del impreso (emblem.svg)."),
                    QStringLiteral("Inprimakiaren ikurra falta da (emblem.svg)."));
    arte.render(&pintor, donde);
}

/// The largest font with which all lines fit in bands of `largo` by `alto` device units.
QFont FuenteQueCabe(QPainter& pintor, const QStringList& lineas, double largo, double alto) {
    QFont fuente(FamiliaInstalada(QStringLiteral("Arial Narrow")));
    constexpr int Prueba = 200;
    fuente.setPixelSize(Prueba);
    const QFontMetricsF medidas(fuente, pintor.device());
    double escala = alto / (medidas.ascent() + medidas.descent());
    for (const QString& linea : lineas)
        escala = qMin(escala, largo / medidas.horizontalAdvance(linea));
    fuente.setPixelSize(qMax(1, static_cast<int>(Prueba * escala * Holgura)));
    return fuente;
}

void PintarRotulo(QPainter& pintor, const QStringList& lineas, const QRectF& donde) {
    // After the turn the x axis runs up the page.
    pintor.translate(donde.bottomLeft());
    pintor.rotate(-90);
    const double banda = donde.width() / static_cast<double>(lineas.size());
    pintor.setFont(FuenteQueCabe(pintor, lineas, donde.height(), banda));
    pintor.setPen(Qt::black);
    double arriba = 0;
    for (const QString& linea : lineas) {
        pintor.drawText(QRectF(0, arriba, donde.height(), banda), Qt::AlignCenter, linea);
        arriba += banda;
    }
}

}  // namespace

void PintarArte(QPainter& pintor, const ImagenImpresa& imagen, const QRectF& donde) {
    QStringList lineas;
    for (const char16_t* linea : imagen.lineas)
        if (linea != nullptr) lineas << QString::fromUtf16(linea);
    if (lineas.isEmpty())
        PintarEmblema(pintor, donde);
    else
        PintarRotulo(pintor, lineas, donde);
}

}  // namespace padral
