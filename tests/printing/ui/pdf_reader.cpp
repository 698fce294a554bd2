#include "pdf_reader.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

namespace padral::test {
namespace {

constexpr double MmPorPunto = 25.4 / 72;

QByteArray SalidaCruda(const QString& programa, const QStringList& argumentos) {
    QProcess proceso;
    proceso.start(programa, argumentos);
    proceso.waitForFinished();
    return proceso.readAllStandardOutput();
}

QString Salida(const QString& programa, const QStringList& argumentos) {
    return QString::fromUtf8(SalidaCruda(programa, argumentos));
}

bool Hay(const QString& programa) { return !QStandardPaths::findExecutable(programa).isEmpty(); }

}  // namespace

bool HayLectorPdf() {
    return Hay(QStringLiteral("pdftotext")) && Hay(QStringLiteral("pdfinfo")) &&
           Hay(QStringLiteral("pdffonts"));
}

QString TextoPdf(const QString& fichero) {
    return Salida(QStringLiteral("pdftotext"),
                  {QStringLiteral("-layout"), fichero, QStringLiteral("-")});
}

int PaginasPdf(const QString& fichero) {
    static const QRegularExpression paginas(QStringLiteral("Pages:\\s+(\\d+)"));
    return paginas.match(Salida(QStringLiteral("pdfinfo"), {fichero})).captured(1).toInt();
}

QSizeF HojaPdf(const QString& fichero) {
    static const QRegularExpression hoja(QStringLiteral("Page size:\\s+([\\d.]+) x ([\\d.]+) pts"));
    const auto hallada = hoja.match(Salida(QStringLiteral("pdfinfo"), {fichero}));
    return QSizeF(hallada.captured(1).toDouble(), hallada.captured(2).toDouble()) * MmPorPunto;
}

QStringList FuentesPdf(const QString& fichero) {
    // Two lines of heading; a name may begin with the mark of a subset ("ABCDEF+").
    static const QRegularExpression nombre(QStringLiteral("^(?:[A-Z]{6}\\+)?(\\S+)"));
    QStringList fuentes;
    const auto filas = Salida(QStringLiteral("pdffonts"), {fichero}).split(u'\n').mid(2);
    for (const QString& fila : filas)
        if (const auto hallado = nombre.match(fila); hallado.hasMatch())
            fuentes << hallado.captured(1);
    return fuentes;
}

bool HayPintorPdf() { return Hay(QStringLiteral("pdftoppm")); }

QImage ImagenPdf(const QString& fichero, const QRectF& parte, int puntosPorPulgada) {
    const auto pixeles = [&](double mm) {
        return QString::number(qRound(mm * puntosPorPulgada / 25.4));
    };
    const QByteArray png = SalidaCruda(
        QStringLiteral("pdftoppm"),
        {QStringLiteral("-png"), QStringLiteral("-singlefile"), QStringLiteral("-r"),
         QString::number(puntosPorPulgada), QStringLiteral("-x"), pixeles(parte.x()),
         QStringLiteral("-y"), pixeles(parte.y()), QStringLiteral("-W"), pixeles(parte.width()),
         QStringLiteral("-H"), pixeles(parte.height()), fichero});
    return QImage::fromData(png).convertToFormat(QImage::Format_RGB32);
}

QRectF LugarPalabra(const QString& fichero, const QString& palabra) {
    const QString cajas = Salida(QStringLiteral("pdftotext"),
                                 {QStringLiteral("-bbox"), fichero, QStringLiteral("-")});
    const QRegularExpression caja(
        QStringLiteral("xMin=\"([\\d.]+)\" yMin=\"([\\d.]+)\" xMax=\"([\\d.]+)\" "
                       "yMax=\"([\\d.]+)\">") +
        QRegularExpression::escape(palabra) + u'<');
    const auto hallada = caja.match(cajas);
    if (!hallada.hasMatch()) return {};
    double c[4];
    for (int i = 0; i < 4; ++i) c[i] = hallada.captured(i + 1).toDouble() * MmPorPunto;
    return {QPointF(c[0], c[1]), QPointF(c[2], c[3])};
}

}  // namespace padral::test
