// The artwork: something is painted, and only inside its rectangle.

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QImage>
#include <QPaintEngine>
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

struct LineaPintada {
    QString texto;
    QTransform giro;
    QPointF base;  ///< begin of its base line on the device
};

/// A device that notes the texts and how they are turned.
class MotorTextos : public QPaintEngine {
public:
    std::vector<LineaPintada> lineas;

    MotorTextos() : QPaintEngine(AllFeatures) {}
    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& estado) override {
        if (estado.state() & DirtyTransform) giro_ = estado.transform();
    }
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawTextItem(const QPointF& base, const QTextItem& texto) override {
        lineas.push_back({texto.text(), giro_, giro_.map(base)});
    }
    Type type() const override { return User; }

private:
    QTransform giro_;
};

class PapelTextos : public QPaintDevice {
public:
    mutable MotorTextos motor;
    QPaintEngine* paintEngine() const override { return &motor; }

protected:
    int metric(PaintDeviceMetric medida) const override {
        switch (medida) {
            case PdmWidth:
            case PdmHeight:
                return 2000;
            case PdmDpiX:
            case PdmDpiY:
            case PdmPhysicalDpiX:
            case PdmPhysicalDpiY:
                return 600;
            case PdmDevicePixelRatio:
                return 1;
            default:
                return QPaintDevice::metric(medida);
        }
    }
};

/// The texts of a picture that lies at (100, 200), four times its natural size.
std::vector<LineaPintada> LineasDe(const ImagenImpresa& arte) {
    PapelTextos papel;
    QPainter pintor(&papel);
    PintarArte(pintor, arte, QRectF(100, 200, arte.ancho * Escala, arte.alto * Escala));
    pintor.end();
    return papel.motor.lineas;
}

class Rotulo : public testing::TestWithParam<std::string> {};
TEST_P(Rotulo, SeLeeHaciaArriba) {
    const ImagenImpresa& arte = BuscarImagen(QString::fromStdString(GetParam()));
    const auto lineas = LineasDe(arte);
    const std::size_t cuantas = arte.lineas[1] == nullptr ? 1 : 2;
    ASSERT_EQ(lineas.size(), cuantas);
    const double banda = arte.ancho * Escala / static_cast<double>(cuantas);
    for (std::size_t i = 0; i < cuantas; ++i) {
        EXPECT_EQ(lineas[i].texto, QStringView(arte.lineas[i]));
        // 270 degrees: along the text is up the page, below it is to the right.
        const QTransform& giro = lineas[i].giro;
        EXPECT_EQ(giro.map(QLineF(0, 0, 1, 0)).angle(), 90);
        EXPECT_EQ(giro.map(QLineF(0, 0, 0, 1)).angle(), 0);
        EXPECT_EQ(giro.determinant(), 1);
        // Two lines lie one beside the other, the first one on the left.
        const double izquierda = 100 + banda * static_cast<double>(i);
        EXPECT_GT(lineas[i].base.x(), izquierda + banda / 2);
        EXPECT_LT(lineas[i].base.x(), izquierda + banda);
        // It begins in the lower half.
        EXPECT_GT(lineas[i].base.y(), 200 + arte.alto * Escala / 2);
    }
}
INSTANTIATE_TEST_SUITE_P(Todos, Rotulo,
                         testing::Values("ParaAdministracion", "Participe", "DomicilioFiscal",
                                         "Administracion", "Interesado", "Borrador", "Banco",
                                         "Informatica"));

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
