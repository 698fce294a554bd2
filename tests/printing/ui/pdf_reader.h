#pragma once
// Reads a printed PDF back with poppler's tools.

#include <QRectF>
#include <QString>
#include <QStringList>

namespace padral::test {

/// Whether the tools are there.
bool HayLectorPdf();
/// The whole text, laid out as on the page.
QString TextoPdf(const QString& fichero);
int PaginasPdf(const QString& fichero);
/// Place of the first such word on its page, in millimetres from the corner of the paper; a null
/// rectangle when there is none.
QRectF LugarPalabra(const QString& fichero, const QString& palabra);

}  // namespace padral::test
