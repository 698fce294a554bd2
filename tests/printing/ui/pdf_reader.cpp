#include "pdf_reader.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

namespace padral::test {
namespace {

constexpr double MmPorPunto = 25.4 / 72;

QString Salida(const QString& programa, const QStringList& argumentos) {
    QProcess proceso;
    proceso.start(programa, argumentos);
    proceso.waitForFinished();
    return QString::fromUtf8(proceso.readAllStandardOutput());
}

}  // namespace

bool HayLectorPdf() {
    return !QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty() &&
           !QStandardPaths::findExecutable(QStringLiteral("pdfinfo")).isEmpty();
}

QString TextoPdf(const QString& fichero) {
    return Salida(QStringLiteral("pdftotext"),
                  {QStringLiteral("-layout"), fichero, QStringLiteral("-")});
}

int PaginasPdf(const QString& fichero) {
    static const QRegularExpression paginas(QStringLiteral("Pages:\\s+(\\d+)"));
    return paginas.match(Salida(QStringLiteral("pdfinfo"), {fichero})).captured(1).toInt();
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
