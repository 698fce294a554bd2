// Each drawing routine with the fixed metric: 0.2 mm a point and letter (bold 0.22, italics 0.02
// less), 0.4 mm a point high.

#include "printing/primitives.h"

#include <gtest/gtest.h>

#include "platform/failure.h"
#include "printing/pictures.h"
#include "support/recording_printer.h"

namespace padral::test {
namespace {

class Primitivas : public testing::Test {
protected:
    std::shared_ptr<Documento> documento = std::make_shared<Documento>();
    RecordingPrinter p{documento};
    void SetUp() override { p.estado.cuerpo = 10; }
    const Operacion& op(std::size_t n) const { return documento->operaciones.at(n); }

    void EsperaTexto(std::size_t n, const char16_t* texto, float x, float y, bool cursiva) const {
        EXPECT_EQ(op(n).texto, QString::fromUtf16(texto));
        EXPECT_NEAR(op(n).desde.x, x, 1e-3F);
        EXPECT_NEAR(op(n).desde.y, y, 1e-3F);
        EXPECT_EQ(op(n).estado.cursiva, cursiva);
    }
};

const QString Eus = QStringLiteral("IFZ");     // italics, size 10: 5.4 mm
const QString Cas = QStringLiteral("N.I.F.");  // size 10: 12 mm

TEST_F(Primitivas, Linea) {
    p.estado.pluma = 6;
    DibujarLinea(p, 1, 2, 3, 4);
    EXPECT_EQ(op(0).tipo, Operacion::Linea);
    EXPECT_EQ(op(0).color, 0x000000U);
    EXPECT_EQ(op(0).desde.x, 1);
    EXPECT_EQ(op(0).desde.y, 2);
    EXPECT_EQ(op(0).hasta.x, 3);
    EXPECT_EQ(op(0).hasta.y, 4);
    EXPECT_EQ(p.estado.pluma, 6);
}

TEST_F(Primitivas, MarcoPoneRellenoBlancoYDejaLaPlumaFina) {
    p.estado.pluma = 6;
    p.estado.relleno = 0x123456;
    DibujarMarco(p, 1, 2, 3, 4);
    EXPECT_EQ(op(0).tipo, Operacion::Caja);
    EXPECT_EQ(op(0).estado.pluma, 6);
    EXPECT_EQ(op(0).estado.relleno, 0xFFFFFFU);
    EXPECT_EQ(op(0).color, 0x000000U);
    EXPECT_EQ(p.estado.pluma, 2);
    DibujarMarco(p, 1, 2, 3, 4);
    EXPECT_EQ(op(1).estado.pluma, 2);
}

TEST_F(Primitivas, CajaGrisNoTocaLaPluma) {
    p.estado.pluma = 6;
    DibujarCajaGris(p, 1, 2, 3, 4);
    EXPECT_EQ(op(0).tipo, Operacion::CajaRellena);
    EXPECT_EQ(op(0).color, 0xE0E0E0U);
    EXPECT_EQ(p.estado.relleno, 0xE0E0E0U);
    EXPECT_EQ(p.estado.pluma, 6);
}

TEST_F(Primitivas, TextoEmpiezaA035DeSuAltura) {
    EscribirTexto(p, 20, 30, QStringLiteral("abc"));
    EsperaTexto(0, u"abc", 20, 30 - 4 * 0.35F, false);
}

TEST_F(Primitivas, TextosDeDistintoCuerpoCompartenLinea) {
    p.estado.cuerpo = 6;
    EscribirTexto(p, 20, 30, QStringLiteral("a"));
    EsperaTexto(0, u"a", 20, 30 - 2.4F * 0.35F, false);
}

struct FilaPuntos {
    float hasta;
    const char16_t* escrito;
};
// "abc" takes 6 mm and each dot 2 mm; the dots end 1 mm before.
constexpr FilaPuntos filasPuntos[] = {
    {20, u"abc"},     {27.5F, u"abc"},   {28.9F, u"abc"},      {29.1F, u"abc."},
    {30.9F, u"abc."}, {31.1F, u"abc.."}, {38.9F, u"abc....."}, {39.1F, u"abc......"},
};

TEST_F(Primitivas, PuntosHastaLoQueSigue) {
    for (std::size_t i = 0; i < std::size(filasPuntos); ++i) {
        EscribirConPuntos(p, 20, 30, filasPuntos[i].hasta, QStringLiteral("abc"));
        EsperaTexto(i, filasPuntos[i].escrito, 20, 28.6F, false);
    }
}

TEST_F(Primitivas, BilingueEnUnPunto) {
    EscribirBilingue(p, 20, 30, Eus, Cas);
    EsperaTexto(0, u"IFZ", 20, 28.6F, true);
    EsperaTexto(1, u"/ N.I.F.", 20 + 4 * 1.8F, 28.6F, false);  // after "IFZ " in italics
    EXPECT_FALSE(p.estado.cursiva);
}

TEST_F(Primitivas, CentradoEnAnchoTomaLaYComoArriba) {
    EscribirCentradoEnAncho(p, 20, 30, 50, QStringLiteral("abcde"));
    EsperaTexto(0, u"abcde", 20 + 25 - 5, 30, false);
}

TEST_F(Primitivas, BilingueCentradoEnAnchoMideSinBlancos) {
    EscribirBilingueCentradoEnAncho(p, 20, 30, 50, Eus, Cas);
    const float x0 = 25 + 20 - 10 * 2.0F / 2;  // ten letters: "IFZ/N.I.F."
    EsperaTexto(0, u"IFZ", x0, 30, true);
    EsperaTexto(1, u" / N.I.F.", x0 + 3 * 1.8F, 30, false);
    EXPECT_FALSE(p.estado.cursiva);
}

TEST_F(Primitivas, CentradoQuitaLaCursivaYPoneLaNegritaPedida) {
    p.estado.cursiva = true;
    p.estado.negrita = true;
    EscribirCentrado(p, 20, 30, QStringLiteral("abcd"), false);
    EsperaTexto(0, u"abcd", 20 - 4, 30 - 2, false);
    EXPECT_FALSE(op(0).estado.negrita);
    EscribirCentrado(p, 20, 30, QStringLiteral("abcd"), true);
    EsperaTexto(1, u"abcd", 20 - 4.4F, 30 - 2, false);
    EXPECT_TRUE(op(1).estado.negrita);
}

TEST_F(Primitivas, BilingueCentradoMideConBlancos) {
    p.estado.negrita = true;
    EscribirBilingueCentrado(p, 20, 30, Eus, Cas);
    const float x0 = 20 - 12 * 2.0F / 2;  // twelve letters: "IFZ / N.I.F."
    EsperaTexto(0, u"IFZ", x0, 28, true);
    EsperaTexto(1, u" / N.I.F.", x0 + 3 * 1.8F, 28, false);
    EXPECT_FALSE(op(0).estado.negrita);
    EXPECT_FALSE(op(1).estado.negrita);
}

TEST_F(Primitivas, DerechaTomaLaYComoArriba) {
    EscribirDerecha(p, 20, 30, QStringLiteral("130"));
    EsperaTexto(0, u"130", 20 - 6, 30, false);
}

TEST_F(Primitivas, EstampaEnElMargenDerechoATamanoNatural) {
    EstamparCopia(p, QStringLiteral("Borrador"));
    EXPECT_EQ(op(0).tipo, Operacion::Imagen);
    EXPECT_EQ(op(0).texto, u"Borrador");
    EXPECT_EQ(op(0).desde.x, 193.5F);
    EXPECT_EQ(op(0).desde.y, 125);
    EXPECT_FALSE(op(0).tamano.has_value());
}

TEST_F(Primitivas, SinImagenNoHayEstampa) {
    EXPECT_THROW(EstamparCopia(p, {}), Fallo);
    EXPECT_TRUE(documento->operaciones.empty());
}

struct FilaImagen {
    const char16_t* nombre;
    int ancho, alto;
};
TEST(Imagenes, TamanosNaturales) {
    const FilaImagen filas[] = {
        {u"Diputacion", 64, 54},      {u"ParaAdministracion", 35, 94},
        {u"Participe", 23, 140},      {u"DomicilioFiscal", 35, 55},
        {u"Administracion", 10, 247}, {u"Interesado", 10, 213},
        {u"Borrador", 9, 91},         {u"Banco", 17, 295},
        {u"Informatica", 17, 295},
    };
    for (const auto& fila : filas) {
        const Tamano tamano = BuscarImagen(fila.nombre).TamanoNatural();
        EXPECT_NEAR(tamano.ancho, static_cast<float>(fila.ancho) * 25.4F / 96, 1e-3F);
        EXPECT_NEAR(tamano.alto, static_cast<float>(fila.alto) * 25.4F / 96, 1e-3F);
    }
}

struct FilaRotulo {
    const char16_t *nombre, *primera, *segunda;
};
TEST(Imagenes, TextosDeLosRotulosGirados) {
    const FilaRotulo filas[] = {
        {u"Diputacion", nullptr, nullptr},
        {u"ParaAdministracion", u"Administrazioarentzat /", u"Para la Administración"},
        {u"Participe", u"PARTAIDEA / PARTICIPE", nullptr},
        {u"DomicilioFiscal", u"ZERGA HELBIDEA /", u"DOMICILIO FISCAL"},
        {u"Administracion", u"Administrazioarentzako alea / Ejemplar para la Administración",
         nullptr},
        {u"Interesado", u"Aitortzailearentzako alea / Ejemplar para el interesado", nullptr},
        {u"Borrador", u"Zirriborroa / Borrador", nullptr},
        {u"Banco", u"Bankuarentzako alea / Ejemplar para el banco", nullptr},
        {u"Informatica", u"Informatikarako alea / Ejemplar para informática", nullptr},
    };
    for (const auto& fila : filas) {
        const auto& lineas = BuscarImagen(fila.nombre).lineas;
        EXPECT_EQ(QStringView(lineas[0]), QStringView(fila.primera));
        EXPECT_EQ(QStringView(lineas[1]), QStringView(fila.segunda));
    }
}

}  // namespace
}  // namespace padral::test
