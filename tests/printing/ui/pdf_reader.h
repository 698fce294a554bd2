#pragma once
// Reads a printed PDF back with poppler's tools.

#include <QImage>
#include <QRectF>
#include <QString>
#include <QStringList>

namespace padral::test {

/// Whether the tools are there.
bool HayLectorPdf();
/// The whole text, laid out as on the page.
QString TextoPdf(const QString& fichero);
int PaginasPdf(const QString& fichero);
/// Size of the first page in millimetres.
QSizeF HojaPdf(const QString& fichero);
/// Names of the fonts in the file ("LiberationSerif-Bold"); needs pdffonts.
QStringList FuentesPdf(const QString& fichero);
/// Whether the tool that makes an image of a page is there.
bool HayPintorPdf();
/// That part of the first page, in millimetres from the corner of the paper, as an image of so
/// many pixels an inch.
QImage ImagenPdf(const QString& fichero, const QRectF& parte, int puntosPorPulgada);
/// Place of the first such word on its page, in millimetres from the corner of the paper; a null
/// rectangle when there is none.
QRectF LugarPalabra(const QString& fichero, const QString& palabra);

}  // namespace padral::test
