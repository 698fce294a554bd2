// The printer of the program on a PDF file.

#include "printing/ui/qt_printer.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "pdf_reader.h"
#include "platform/failure.h"

namespace padral::test {
namespace {

constexpr Mm Tolerancia = 0.15F;

class PapelPdf : public testing::Test {
protected:
    QTemporaryDir carpeta;
    QString fichero = carpeta.filePath(QStringLiteral("a.pdf"));

    std::unique_ptr<ImpresoraQt> Abrir(const QString& nombre) const {
        auto impresora = std::make_shared<QPrinter>(QPrinter::HighResolution);
        impresora->setOutputFormat(QPrinter::PdfFormat);
        impresora->setOutputFileName(nombre);
        impresora->setFullPage(true);
        impresora->setPageSize(QPageSize(QPageSize::A4));
        auto papel = std::make_unique<ImpresoraQt>(impresora, QPointF(5, 5));
        papel->estado.fuente = QStringLiteral("Arial Narrow");
        return papel;
    }
    static void Escribir(Impresora& p, Mm x, Mm y, const QString& texto) {
        p.estado.punto = {x, y};
        p.Imprimir(texto);
    }
    void SetUp() override {
        if (!HayLectorPdf()) GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
    }
};

// Liberation Serif: a digit is half its size wide; ascent 0.891, descent 0.216 of it.
TEST_F(PapelPdf, MedidasDeLaRomana) {
    const auto papel = Abrir(fichero);
    papel->estado.fuente = QStringLiteral("times new roman");
    papel->estado.cuerpo = 32;
    constexpr Mm cuerpo = 32 * 25.4F / 72;
    EXPECT_NEAR(papel->AnchoTexto(QStringLiteral("417")), 1.5F * cuerpo, Tolerancia);
    EXPECT_NEAR(papel->AltoTexto(QStringLiteral("417")), 1.107F * cuerpo, Tolerancia);
    EXPECT_EQ(papel->AnchoTexto({}), 0);
}

// Liberation Sans Narrow: a digit is 0.456 of its size wide.
TEST_F(PapelPdf, MedidasDeLaEstrecha) {
    const auto papel = Abrir(fichero);
    papel->estado.cuerpo = 8;
    constexpr Mm cuerpo = 8 * 25.4F / 72;
    EXPECT_NEAR(papel->AnchoTexto(QStringLiteral("0123456789")), 4.56F * cuerpo, Tolerancia);
    const Mm fina = papel->AnchoTexto(QStringLiteral("Declaración"));
    papel->estado.negrita = true;
    EXPECT_GT(papel->AnchoTexto(QStringLiteral("Declaración")), fina);
}

TEST_F(PapelPdf, LosMilimetrosSonLosDelPapel) {
    auto papel = Abrir(fichero);
    Escribir(*papel, 40, 100, QStringLiteral("lugar"));
    const Mm ancho = papel->AnchoTexto(QStringLiteral("lugar"));
    EXPECT_NEAR(papel->estado.punto.x, 40 + ancho, 1e-3F);
    papel->FinPagina();
    papel->Cerrar();
    const QRectF lugar = LugarPalabra(fichero, QStringLiteral("lugar"));
    EXPECT_NEAR(lugar.left(), 45, 0.2);
    EXPECT_NEAR(lugar.right(), 45 + static_cast<double>(ancho), 0.2);
    EXPECT_NEAR(lugar.top(), 105, 0.6);
}

TEST_F(PapelPdf, CadaPaginaConSuTexto) {
    auto papel = Abrir(fichero);
    for (const auto* texto : {u"primera", u"segunda", u"tercera"}) {
        Escribir(*papel, 10, 10, QString::fromUtf16(texto));
        papel->FinPagina();
    }
    papel->Cerrar();
    EXPECT_EQ(PaginasPdf(fichero), 3);
    EXPECT_TRUE(TextoPdf(fichero).contains(QStringLiteral("tercera")));
}

TEST_F(PapelPdf, UnaPaginaAMediasNoSaleYLasAnterioresSi) {
    auto papel = Abrir(fichero);
    Escribir(*papel, 10, 10, QStringLiteral("entera"));
    papel->FinPagina();
    Escribir(*papel, 10, 10, QStringLiteral("amedias"));
    papel.reset();
    EXPECT_EQ(PaginasPdf(fichero), 1);
    EXPECT_TRUE(TextoPdf(fichero).contains(QStringLiteral("entera")));
    EXPECT_FALSE(TextoPdf(fichero).contains(QStringLiteral("amedias")));
}

TEST_F(PapelPdf, SinPaginasNoHayFichero) {
    auto papel = Abrir(fichero);
    Escribir(*papel, 10, 10, QStringLiteral("amedias"));
    papel.reset();
    EXPECT_FALSE(QFile::exists(fichero));
}

TEST_F(PapelPdf, UnFicheroQueNoSePuedeEscribirLoDice) {
    const QString nombre = carpeta.filePath(QStringLiteral("no/hay/a.pdf"));
    auto papel = Abrir(nombre);
    try {
        papel->FinPagina();
        FAIL() << "the failure got lost";
    } catch (const Fallo& fallo) {
        EXPECT_TRUE(fallo.Castellano().contains(nombre));
        EXPECT_TRUE(fallo.Euskera().contains(nombre));
    }
}

TEST_F(PapelPdf, UnDiscoLlenoLoDice) {
    const QString lleno = QStringLiteral("/dev/full");
    if (!QFile::exists(lleno)) GTEST_SKIP() << "this system has no device that is always full";
    auto papel = Abrir(lleno);
    EXPECT_THROW(
        {
            papel->FinPagina();
            papel->Cerrar();
        },
        Fallo);
}

TEST_F(PapelPdf, UnaImagenDesconocidaFalla) {
    const auto papel = Abrir(fichero);
    EXPECT_THROW(papel->PintarImagen(QStringLiteral("Nada"), {0, 0}, std::nullopt), Fallo);
}

}  // namespace
}  // namespace padral::test
