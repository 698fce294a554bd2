// The values of the first page: each property in its box, under its rule.

#include <gtest/gtest.h>

#include <algorithm>

#include "expected.h"
#include "print_fixture.h"

namespace padral::test {
namespace {

constexpr float YIdentificacion = 43.5F;
constexpr float YApartado1 = 65.5F;
constexpr float YSolicitud = 125.5F;
constexpr float YModificacion = 135.5F;
constexpr float YObligado = 187.5F;

/// Places (offsets from the block) of the marks "X" on the page.
int Marcas(const Documento& documento) {
    return static_cast<int>(TextosDePagina(documento, 1).count(QStringLiteral("X")));
}

bool Escribe(const Documento& documento, const QString& texto) {
    return documento.Textos().contains(texto);
}

struct FilaMarca {
    const char16_t* letra;
    float origen, x, y;
};

// Names of the tests.
void PrintTo(const FilaMarca& fila, std::ostream* salida) {
    *salida << QString::fromUtf16(fila.letra).toStdString();
}

class Causa1 : public testing::TestWithParam<FilaMarca> {};
TEST_P(Causa1, MarcaSuCasilla) {
    Impresion impresion;
    impresion.datos.Causa1 = QString::fromUtf16(GetParam().letra);
    const Documento& documento = impresion.Copia();
    Trazado trazado(documento);
    trazado.Espera(
        ValorEsperado(GetParam().origen, GetParam().x, GetParam().y, QStringLiteral("X")));
    EXPECT_EQ(Marcas(documento), 1);
}
INSTANTIATE_TEST_SUITE_P(Tipos, Causa1,
                         testing::Values(FilaMarca{u"P", YApartado1, 32, 9.5F},
                                         FilaMarca{u"I", YApartado1, 32, 18},
                                         FilaMarca{u"C", YApartado1, 32, 30.5F}));

TEST(Causa1, OtrosValoresNoMarcan) {
    for (const auto* letra : {u"", u"M", u" ", u"p", u"PI"}) {
        Impresion impresion;
        impresion.datos.Causa1 = QString::fromUtf16(letra);
        EXPECT_EQ(Marcas(impresion.Copia()), 0);
    }
}

class Causa2 : public testing::TestWithParam<FilaMarca> {};
TEST_P(Causa2, MarcaSuCasillaYLa13) {
    Impresion impresion;
    impresion.datos.Causa2 = QString::fromUtf16(GetParam().letra);
    const Documento& documento = impresion.Copia();
    Trazado trazado(documento);
    trazado.Espera(ValorEsperado(YApartado1, 82, 43, QStringLiteral("X")));
    trazado.Espera(
        ValorEsperado(GetParam().origen, GetParam().x, GetParam().y, QStringLiteral("X")));
    EXPECT_EQ(Marcas(documento), 2);
}
// The mark of "E" stands in the row above its frame.
INSTANTIATE_TEST_SUITE_P(Motivos, Causa2,
                         testing::Values(FilaMarca{u"A", YSolicitud, 82, 13.5F},
                                         FilaMarca{u"B", YSolicitud, 82, 21.5F},
                                         FilaMarca{u"C", YSolicitud, 82, 25.5F},
                                         FilaMarca{u"D", YSolicitud, 183.5F, 13.5F},
                                         FilaMarca{u"E", YSolicitud, 183.5F, 17.5F},
                                         FilaMarca{u"F", YSolicitud, 183.5F, 25.5F}));

TEST(Causa2, UnValorDesconocidoMarcaSoloLa13) {
    Impresion impresion;
    impresion.datos.Causa2 = QStringLiteral("Z");
    const Documento& documento = impresion.Copia();
    Trazado(documento).Espera(ValorEsperado(YApartado1, 82, 43, QStringLiteral("X")));
    EXPECT_EQ(Marcas(documento), 1);
}

struct FilaTextoPropiedad {
    QString cDatosGenerales::*propiedad;
    float origen, x, y, cuerpo;
};
const FilaTextoPropiedad propiedades[] = {
    {&cDatosGenerales::DNI, YIdentificacion, 2, 9, 10},
    {&cDatosGenerales::NOMBRE, YIdentificacion, 41, 9, 10},
    {&cDatosGenerales::Apartado2, YApartado1, 147.5F, 9.5F, 8},
    {&cDatosGenerales::Apartado3, YApartado1, 147.5F, 13.5F, 8},
    {&cDatosGenerales::Apartado4, YApartado1, 147.5F, 17.5F, 8},
    {&cDatosGenerales::Apartado5, YApartado1, 147.5F, 21.5F, 8},
    {&cDatosGenerales::Apartado7, YApartado1, 147.5F, 25.5F, 8},
    {&cDatosGenerales::AnexoI, YApartado1, 147.5F, 29.5F, 8},
    {&cDatosGenerales::AnexoII, YApartado1, 147.5F, 33.5F, 8},
    {&cDatosGenerales::DNIAnterior, YModificacion, 2, 39, 8},
    {&cDatosGenerales::NombreAnterior, YModificacion, 49, 39, 8},
    {&cDatosGenerales::DNIRepresentante, YObligado, 2, 9, 8},
    {&cDatosGenerales::NombreRepresentante, YObligado, 48.5F, 9, 8},
    {&cDatosGenerales::FirmaEnCalidadDe, YObligado, 2, 17, 8},
};

TEST(Hoja1, CadaTextoEnSuCasilla) {
    // Longer than any field: nothing is cut or wrapped.
    const QString largo = QString(30, u'W') + QStringLiteral(" & ÑANDÚ, S.A. ") + QString(60, u'M');
    for (const auto& fila : propiedades)
        for (const QString& valor : {largo, QStringLiteral("X"), QStringLiteral(" ")}) {
            Impresion impresion;
            impresion.datos.*fila.propiedad = valor;
            const Documento& documento = impresion.Copia();
            Trazado(documento).Espera(
                ValorEsperado(fila.origen, fila.x, fila.y, valor, fila.cuerpo));
            EXPECT_EQ(TextosDePagina(documento, 1).count(valor), 1);
        }
}

TEST(Hoja1, ElApartado6NoTieneCasilla) {
    Impresion impresion;
    impresion.datos.Apartado6 = QStringLiteral("X");
    EXPECT_EQ(Marcas(impresion.Copia()), 0);
}

TEST(Hoja1, FechaDeModificacionSoloEnUnaModificacion) {
    const QString fecha = QStringLiteral("31/12/2015");
    for (const auto* causa : {u"", u"P", u"I", u"C", u"M"}) {
        Impresion impresion;
        impresion.datos.Causa1 = QString::fromUtf16(causa);
        impresion.datos.FechaModificacion(20151231);
        const Documento& documento = impresion.Copia();
        EXPECT_EQ(Escribe(documento, fecha), impresion.datos.Causa1 == u"M");
        if (impresion.datos.Causa1 == u"M")
            Trazado(documento).Espera(ValorEsperado(YApartado1, 148, 41.5F, fecha));
    }
}

TEST(Hoja1, ModificacionSinFechaDejaVaciaLa12) {
    Impresion impresion;
    impresion.datos.Causa1 = QStringLiteral("M");
    // The two masks are those of the constitution and of the register.
    EXPECT_EQ(impresion.Copia().Textos().count(QStringLiteral("__/__/____")), 2);
}

TEST(Hoja1, FechasDeConstitucionEInscripcion) {
    Impresion impresion;
    impresion.datos.FechaConstitucion = 20010203;
    impresion.datos.FechaInscripcion = 20020304;
    Trazado trazado(impresion.Copia());
    trazado.Espera(ValorEsperado(YSolicitud, 72, 17.5F, QStringLiteral("03/02/2001")));
    trazado.Espera(ValorEsperado(YSolicitud, 173.5F, 17.5F, QStringLiteral("04/03/2002")));
}

TEST(Hoja1, FechaDeLaDeclaracionEnElOrdenDelIdioma) {
    Impresion impresion;
    impresion.datos.FECHADECLARACION = 20260131;
    Trazado(impresion.Copia())
        .Espera(ValorEsperado(YObligado, 79, 17, QStringLiteral("31/01/2026")));
    impresion.estado.fecha.fecidioma = QStringLiteral("E");
    Trazado(impresion.Copia())
        .Espera(ValorEsperado(YObligado, 79, 17, QStringLiteral("2026/01/31")));
}

struct FilaMotivo {
    int codigo;
    const char16_t* texto;
    float x, cuerpo;
};
void PrintTo(const FilaMotivo& fila, std::ostream* salida) { *salida << fila.codigo; }

class MotivoCambio : public testing::TestWithParam<FilaMotivo> {};
TEST_P(MotivoCambio, ImprimeSuTexto) {
    Impresion impresion;
    impresion.datos.MotivoCambio = static_cast<qint16>(GetParam().codigo);
    // The texts are Spanish in all languages.
    impresion.estado.DesplazamientoIdioma = CatalogoTextos::DesplazamientoEuskera;
    Trazado(impresion.Copia())
        .Espera(ValorEsperado(YModificacion, GetParam().x, 39, QString::fromUtf16(GetParam().texto),
                              GetParam().cuerpo));
}
INSTANTIATE_TEST_SUITE_P(
    Codigos, MotivoCambio,
    testing::Values(FilaMotivo{0, u"No hay cambios", 151.5F, 8},
                    FilaMotivo{10, u"Errores anteriores", 151.5F, 8},
                    FilaMotivo{20, u"Cambio de razón social o nombre", 151.5F, 8},
                    FilaMotivo{30, u"Transformación de CIF y forma jurídica", 151.5F, 8},
                    FilaMotivo{31, u"Transformación de forma jurídica sin cambio de CIF", 150, 5}));

TEST(MotivoCambio, OtrosValoresNoImprimenNada) {
    Impresion base;
    base.datos.MotivoCambio = 10;
    const auto textos = base.Copia().Textos().size();
    for (const int codigo : {-1, 1, 11, 32, 40}) {
        Impresion impresion;
        impresion.datos.MotivoCambio = static_cast<qint16>(codigo);
        EXPECT_EQ(impresion.Copia().Textos().size(), textos - 1) << codigo;
    }
}

TEST(Hoja1, LosValoresVanDespuesDelImpresoDeSuBloque) {
    Impresion impresion;
    impresion.datos.Causa2 = QStringLiteral("E");
    impresion.datos.FechaInscripcion = 20020304;
    const QStringList textos = impresion.Copia().Textos();
    EXPECT_LT(textos.indexOf(QStringLiteral("/ Por otros motivos")),
              textos.indexOf(QStringLiteral("04/03/2002")));
}

TEST(Hoja1, LaPlumaGruesaEsSoloDeLosSeisMarcos) {
    Impresion impresion;
    const Documento& documento = impresion.Copia();
    const auto gruesas = std::count_if(
        documento.operaciones.begin(), documento.operaciones.end(), [](const Operacion& o) {
            return o.tipo != Operacion::Texto && o.tipo != Operacion::Imagen && o.estado.pluma == 6;
        });
    EXPECT_EQ(gruesas, 6);
}

}  // namespace
}  // namespace padral::test
