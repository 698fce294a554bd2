// What reaches the paper: a printed PDF file made into an image and measured.

#include <gtest/gtest.h>

#include <QPainter>
#include <QTemporaryDir>

#include "pdf_reader.h"
#include "printing/primitives.h"
#include "printing/ui/fonts.h"
#include "printing/ui/paper.h"
#include "printing/ui/qt_pictures.h"
#include "printing/ui/qt_printer.h"

namespace padral::test {
namespace {

constexpr double MmPorPulgada = 25.4;
constexpr double Margen5 = 5;

class EnPapel : public testing::Test {
protected:
    QTemporaryDir carpeta;
    QString fichero = carpeta.filePath(QStringLiteral("a.pdf"));
    std::unique_ptr<ImpresoraQt> papel;

    void SetUp() override {
        if (!HayLectorPdf() || !HayPintorPdf())
            GTEST_SKIP() << "pdftoppm (poppler-utils) is not installed";
        auto impresora = std::make_shared<QPrinter>(QPrinter::HighResolution);
        impresora->setOutputFormat(QPrinter::PdfFormat);
        impresora->setOutputFileName(fichero);
        PonerHoja(*impresora);
        papel = std::make_unique<ImpresoraQt>(impresora, MargenDe(*impresora));
        papel->estado.fuente = QStringLiteral("Arial Narrow");
    }
    void Acabar() const {
        papel->FinPagina();
        papel->Cerrar();
    }
    /// Part of the page, in millimetres of the form.
    QImage Ver(const QRectF& parte, int puntosPorPulgada) const {
        const QImage imagen =
            ImagenPdf(fichero, parte.translated(Margen5, Margen5), puntosPorPulgada);
        EXPECT_FALSE(imagen.isNull());
        return imagen;
    }
    QColor ColorEn(Punto p) const {
        const QPointF lugar(static_cast<double>(p.x), static_cast<double>(p.y));
        const QImage imagen = Ver(QRectF(lugar - QPointF(0.5, 0.5), QSizeF(1, 1)), 300);
        return imagen.pixelColor(imagen.rect().center());
    }
};

/// Black along the middle row, in millimetres: the width of an upright line.
double Grosor(const QImage& imagen, int puntosPorPulgada) {
    double negro = 0;
    for (int x = 0; x < imagen.width(); ++x)
        negro += 1 - imagen.pixelColor(x, imagen.height() / 2).lightnessF();
    return negro * MmPorPulgada / puntosPorPulgada;
}

TEST_F(EnPapel, GrosorDeLasPlumas) {
    constexpr int Fino = 2400;
    papel->estado.pluma = PlumaGruesa;
    DibujarLinea(*papel, 20, 10, 20, 30);
    DibujarMarco(*papel, 40, 10, 60, 30);  // leaves the thin pen
    DibujarLinea(*papel, 80, 10, 80, 30);
    Acabar();
    for (const double x : {20.0, 40.0, 60.0})
        EXPECT_NEAR(Grosor(Ver(QRectF(x - 1, 20, 2, 0.5), Fino), Fino), 0.254, 0.012) << x;
    EXPECT_NEAR(Grosor(Ver(QRectF(79, 20, 2, 0.5), Fino), Fino), 0.254 / 3, 0.012);
}

TEST_F(EnPapel, LaCajaNoRellena) {
    papel->CajaRellena({20, 20}, {30, 30}, ColorGris);
    for (const Color relleno : {ColorBlanco, ColorNegro}) {
        papel->estado.relleno = relleno;
        papel->Caja({15, 15}, {35, 35}, ColorNegro);
        papel->Caja({22, 22}, {28, 28}, ColorNegro);
    }
    DibujarMarco(*papel, 21, 21, 29, 29);
    Acabar();
    EXPECT_EQ(ColorEn({25, 25}), QColor(0xE0, 0xE0, 0xE0));
    EXPECT_EQ(ColorEn({17, 25}), QColor(Qt::white));
}

TEST_F(EnPapel, LaCajaGrisEsGrisDeBordeABorde) {
    DibujarCajaGris(*papel, 20, 20, 30, 24);
    Acabar();
    for (const Punto dentro : {Punto{20.2F, 20.2F}, Punto{25, 22}, Punto{29.8F, 23.8F}})
        EXPECT_EQ(ColorEn(dentro), QColor(0xE0, 0xE0, 0xE0)) << dentro.x;
    for (const Punto fuera :
         {Punto{19.8F, 22}, Punto{30.2F, 22}, Punto{25, 19.8F}, Punto{25, 24.2F}})
        EXPECT_EQ(ColorEn(fuera), QColor(Qt::white)) << fuera.x;
}

/// The rectangle that holds all dark pixels.
QRectF Tinta(const QImage& imagen) {
    QRect tinta;
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x)
            if (qGray(imagen.pixel(x, y)) < 200) tinta = tinta.united(QRect(x, y, 1, 1));
    return tinta;
}

struct FilaArte {
    const char* nombre;
    double ancho, alto;  ///< natural size in pixels of 1/96 inch
};
void PrintTo(const FilaArte& fila, std::ostream* salida) { *salida << fila.nombre; }

constexpr int Puntos = 300;
constexpr double MmPorPixel = MmPorPulgada / 96;
const QRectF Ventana(10, 10, 60, 100);  // millimetres, round the picture at (20, 15)

/// The picture as it must lie in the window: painted straight into its rectangle.
QRectF TintaEsperada(const QString& nombre, const QSizeF& tamano) {
    const double escala = Puntos / MmPorPulgada;
    QImage imagen((Ventana.size() * escala).toSize(), QImage::Format_RGB32);
    imagen.fill(Qt::white);
    QPainter pintor(&imagen);
    PintarArte(pintor, BuscarImagen(nombre), QRectF(QPointF(10, 5) * escala, tamano * escala));
    pintor.end();
    return Tinta(imagen);
}

// The sizes of letters are whole pixels: a caption is a little longer on the finer device.
void EsperaTinta(const QRectF& hallada, const QRectF& esperada) {
    constexpr double Tolerancia = 0.25 * Puntos / MmPorPulgada;
    constexpr double Redondeo = 0.025;
    ASSERT_FALSE(esperada.isEmpty());
    EXPECT_NEAR(hallada.center().x(), esperada.center().x(), Tolerancia);
    EXPECT_NEAR(hallada.center().y(), esperada.center().y(), Tolerancia);
    EXPECT_NEAR(hallada.width(), esperada.width(), Tolerancia);
    EXPECT_NEAR(hallada.height(), esperada.height(),
                std::max(Tolerancia, esperada.height() * Redondeo));
}

class ArteEnPapel : public EnPapel, public testing::WithParamInterface<FilaArte> {};
TEST_P(ArteEnPapel, TieneSuTamanoYSuLugar) {
    const QString nombre = QString::fromLatin1(GetParam().nombre);
    papel->PintarImagen(nombre, {20, 15}, std::nullopt);
    Acabar();
    const QSizeF natural = QSizeF(GetParam().ancho, GetParam().alto) * MmPorPixel;
    EsperaTinta(Tinta(Ver(Ventana, Puntos)), TintaEsperada(nombre, natural));
}
INSTANTIATE_TEST_SUITE_P(
    Imagenes, ArteEnPapel,
    testing::Values(FilaArte{"Diputacion", 64, 54}, FilaArte{"ParaAdministracion", 35, 94},
                    FilaArte{"Participe", 23, 140}, FilaArte{"DomicilioFiscal", 35, 55},
                    FilaArte{"Administracion", 10, 247}, FilaArte{"Interesado", 10, 213},
                    FilaArte{"Borrador", 9, 91}, FilaArte{"Banco", 17, 295},
                    FilaArte{"Informatica", 17, 295}));

TEST_F(EnPapel, LaImagenTomaElTamanoQueSeLeDa) {
    const QString emblema = QString::fromUtf16(ImagenEmblema);
    papel->PintarImagen(emblema, {20, 15}, Tamano{14, 14});
    Acabar();
    EsperaTinta(Tinta(Ver(Ventana, Puntos)), TintaEsperada(emblema, QSizeF(14, 14)));
}

struct FilaLetra {
    const char16_t* fuente;
    bool negrita, cursiva;
    const char16_t* estilo;
};
const FilaLetra letras[] = {
    {u"Arial Narrow", false, false, u""},          {u"Arial Narrow", true, false, u"-Bold"},
    {u"Arial Narrow", false, true, u"-Italic"},    {u"Arial Narrow", true, true, u"-BoldItalic"},
    {u"times new roman", false, false, u""},       {u"times new roman", true, false, u"-Bold"},
    {u"times new roman", false, true, u"-Italic"}, {u"times new roman", true, true, u"-BoldItalic"},
};

TEST_F(EnPapel, LaNegritaYLaCursivaLlegan) {
    for (const auto& fila : letras) {
        SetUp();
        papel->estado.fuente = QString::fromUtf16(fila.fuente);
        papel->estado.negrita = fila.negrita;
        papel->estado.cursiva = fila.cursiva;
        papel->estado.punto = {20, 20};
        papel->Imprimir(QStringLiteral("letra"));
        Acabar();
        const QString familia = FamiliaInstalada(papel->estado.fuente).remove(u' ');
        EXPECT_EQ(FuentesPdf(fichero), QStringList(familia + QString::fromUtf16(fila.estilo)));
    }
}

TEST_F(EnPapel, ElTituloDeLaCopiaSeLeeHaciaArriba) {
    EstamparCopia(*papel, QStringLiteral("Interesado"));
    Acabar();
    const QRectF primera = LugarPalabra(fichero, QStringLiteral("Aitortzailearentzako"));
    const QRectF ultima = LugarPalabra(fichero, QStringLiteral("interesado"));
    constexpr double Holgura = 0.05;
    const QRectF sitio(Margen5 + 193.5, Margen5 + 125, 10 * MmPorPixel, 213 * MmPorPixel);
    for (const QRectF& palabra : {primera, ultima}) {
        EXPECT_GT(palabra.height(), palabra.width());
        EXPECT_TRUE(sitio.adjusted(-Holgura, 0, Holgura, 0).contains(palabra));
    }
    EXPECT_GT(primera.top(), ultima.bottom());
}

}  // namespace
}  // namespace padral::test
