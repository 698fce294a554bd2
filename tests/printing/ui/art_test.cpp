// The artwork: something is painted, and only inside its rectangle.

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QImage>
#include <QPainter>

#include "printing/ui/fonts.h"
#include "printing/ui/qt_pictures.h"

namespace padral::test {
namespace {

constexpr int Escala = 4;  // device pixels to one pixel of the natural size
constexpr int Borde = 40;

/// The rectangle that holds all painted pixels.
QRect Tinta(const QImage& imagen) {
    QRect tinta;
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x)
            if (qGray(imagen.pixel(x, y)) < 200) tinta = tinta.united(QRect(x, y, 1, 1));
    return tinta;
}

QRect Pintada(const ImagenImpresa& arte) {
    const QSize tamano(arte.ancho * Escala, arte.alto * Escala);
    QImage imagen(tamano + QSize(2 * Borde, 2 * Borde), QImage::Format_RGB32);
    imagen.fill(Qt::white);
    QPainter pintor(&imagen);
    PintarArte(pintor, arte, QRectF(QPointF(Borde, Borde), tamano));
    pintor.end();
    return Tinta(imagen);
}

class Arte : public testing::TestWithParam<std::string> {};
TEST_P(Arte, LlenaSuRectanguloSinSalirse) {
    const ImagenImpresa& arte = BuscarImagen(QString::fromStdString(GetParam()));
    const QRect dentro(Borde, Borde, arte.ancho * Escala, arte.alto * Escala);
    const QRect tinta = Pintada(arte);
    EXPECT_TRUE(dentro.contains(tinta));
    // Legible: it fills a good part of the space in one of the two directions.
    EXPECT_TRUE(tinta.height() > dentro.height() * 7 / 10 || tinta.width() > dentro.width() / 2);
    EXPECT_GT(tinta.height(), dentro.height() / 3);
}
INSTANTIATE_TEST_SUITE_P(Todas, Arte,
                         testing::Values("Diputacion", "ParaAdministracion", "Participe",
                                         "DomicilioFiscal", "Administracion", "Interesado",
                                         "Borrador", "Banco", "Informatica"));

TEST(Fuentes, LasAusentesTienenSustituta) {
    const QStringList instaladas = QFontDatabase::families();
    const std::pair<const char16_t*, const char16_t*> filas[] = {
        {u"times new roman", u"Liberation Serif"}, {u"Arial Narrow", u"Liberation Sans Narrow"}};
    for (const auto& [familia, libre] : filas) {
        const QString pedida = QString::fromUtf16(familia);
        const bool esta = instaladas.contains(pedida, Qt::CaseInsensitive);
        EXPECT_EQ(FamiliaInstalada(pedida), esta ? pedida : QString::fromUtf16(libre));
    }
    ASSERT_FALSE(instaladas.isEmpty());
    EXPECT_EQ(FamiliaInstalada(instaladas.first()), instaladas.first());
}

}  // namespace
}  // namespace padral::test
