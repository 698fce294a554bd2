// The values of Annex II: each in its box, and nothing for what is empty.

#include <gtest/gtest.h>

#include "annex2_expected.h"
#include "print_fixture.h"

namespace padral::test {
namespace {

const QString cruz = QStringLiteral("X");
constexpr int Pagina = 2;

struct ImpresionAnexoII : Impresion {
    ImpresionAnexoII() { datos.AnexoII = cruz; }
    static qsizetype Vacia() {
        static const qsizetype vacia = Escritos(ImpresionAnexoII().Copia(), Pagina);
        return vacia;
    }
    void EsperaSolo(const TextoEsperado& valor) {
        const Documento& documento = Copia();
        Trazado(documento, Pagina).Espera(valor);
        EXPECT_EQ(Escritos(documento, Pagina), Vacia() + 1) << valor.texto.toStdString();
    }
    void EsperaNinguno() { EXPECT_EQ(Escritos(Copia(), Pagina), Vacia()); }
};

/// A box with a text; `escrito` is what stands in it.
struct FilaTextoII {
    int casilla;
    QString DatosAnexoII::*propiedad;
    const char16_t *valor, *escrito;
    float bloque, x, y;
};
void PrintTo(const FilaTextoII& fila, std::ostream* salida) { *salida << fila.casilla; }
const FilaTextoII cajas[] = {
    {169, &DatosAnexoII::DireccionDom, u"12 Rue de la Paix", u"12 Rue de la Paix", YDomicilio, 3,
     16},
    {170, &DatosAnexoII::PoblacionDom, u"Besançon", u"Besançon", YDomicilio, 3, 25.5F},
    {171, &DatosAnexoII::Nacionalidad, u"francesa", u"francesa", YDomicilio, 61, 25.5F},
    {172, &DatosAnexoII::FormaJuridica, u"S.A.R.L.", u"S.A.R.L.", YDomicilio, 132, 25.5F},
    {178, &DatosAnexoII::NIFRepresentante, u"12345678Z", u"12345678Z", YRepresentante, Fijo(3),
     12.5F},
    {179, &DatosAnexoII::NombreRepresentante, u"Muñoz Etxeberria, Ane", u"Muñoz Etxeberria, Ane",
     YRepresentante, Fijo(43), 12.5F},
    {180, &DatosAnexoII::NacionalidadRepresentante, u"española", u"española", YRepresentante,
     Fijo(153), 12.5F},
    {181, &DatosAnexoII::DomicilioRepresentante, u"Mayor, 7", u"Mayor, 7", YRepresentante, Fijo(3),
     22.5F},
    {182, &DatosAnexoII::NombreMunicipio, u"Oihanburueta", u"Oihanburueta", YRepresentante,
     Fijo(108), 22.5F},
    {183, &DatosAnexoII::NombreProvincia, u"Kelmaria año", u"KELMARIA AÑO", YRepresentante,
     Fijo(153), 22.5F},
};

class CadaCaja : public testing::TestWithParam<FilaTextoII> {};
INSTANTIATE_TEST_SUITE_P(AnexoII, CadaCaja, testing::ValuesIn(cajas));

TEST_P(CadaCaja, LlevaSuTexto) {
    const auto& [casilla, propiedad, valor, escrito, bloque, x, y] = GetParam();
    ImpresionAnexoII impresion;
    impresion.anexoII.*propiedad = QString::fromUtf16(valor);
    impresion.EsperaSolo(ValorRomano(bloque, x, y, QString::fromUtf16(escrito)));
    // A long one is written whole.
    const QString largo(120, u'Ñ');
    impresion.anexoII.*propiedad = largo;
    impresion.EsperaSolo(ValorRomano(bloque, x, y, largo));
}

/// A box with a mark.
struct FilaMarca {
    int casilla;
    QString DatosAnexoII::*propiedad;
    char16_t letra;
    float bloque, x, y;
};
void PrintTo(const FilaMarca& fila, std::ostream* salida) {
    *salida << fila.casilla << static_cast<char>(fila.letra);
}
const FilaMarca marcas[] = {
    {173, &DatosAnexoII::TerritorioHistorico, u'S', YDomicilio, Fijo(166.5F), 32.5F},
    {173, &DatosAnexoII::TerritorioHistorico, u'N', YDomicilio, Fijo(186.5F), 32.5F},
    {174, &DatosAnexoII::ModalidadEstablecimiento, u'A', YDomicilio, Fijo(9.5F), 44.5F},
    {175, &DatosAnexoII::ModalidadEstablecimiento, u'B', YDomicilio, Fijo(76.5F), 44.5F},
    {176, &DatosAnexoII::ModalidadEstablecimiento, u'C', YDomicilio, Fijo(118.5F), 44.5F},
    {177, &DatosAnexoII::OtrosEstablecimientos, u'S', YDomicilio, Fijo(146), 54.5F},
    {184, &DatosAnexoII::Obligado, u'S', YObligaciones, Fijo(166.5F), 17.5F},
    {184, &DatosAnexoII::Obligado, u'N', YObligaciones, Fijo(186.5F), 17.5F},
    {185, &DatosAnexoII::Establecimientos, u'S', YObligaciones, Fijo(166.5F), 32.5F},
    {185, &DatosAnexoII::Establecimientos, u'N', YObligaciones, Fijo(186.5F), 32.5F},
    {186, &DatosAnexoII::Aplicacion, u'S', YOtrasSituaciones, 166.5F, 24.5F},
};

class CadaMarcaII : public testing::TestWithParam<FilaMarca> {};
INSTANTIATE_TEST_SUITE_P(AnexoII, CadaMarcaII, testing::ValuesIn(marcas));

TEST_P(CadaMarcaII, MarcaSuCuadro) {
    const auto& [casilla, propiedad, letra, bloque, x, y] = GetParam();
    ImpresionAnexoII impresion;
    impresion.anexoII.*propiedad = QString(QChar(letra));
    impresion.EsperaSolo(ValorRomano(bloque, x, y, cruz));
}

TEST_P(CadaMarcaII, OtraLetraNoMarcaNada) {
    QString letras;
    for (const auto& otra : marcas)
        if (otra.propiedad == GetParam().propiedad) letras += QChar(otra.letra);
    ImpresionAnexoII impresion;
    for (char16_t c = u' '; c <= u'z'; ++c) {
        if (letras.contains(QChar(c))) continue;
        impresion.anexoII.*GetParam().propiedad = QString(QChar(c));
        impresion.EsperaNinguno();
    }
    impresion.anexoII.*GetParam().propiedad = QString(2, QChar(GetParam().letra));
    impresion.EsperaNinguno();
}

TEST(AnexoII, TodasLasMarcasALaVez) {
    ImpresionAnexoII impresion;
    for (const auto& m : marcas) impresion.anexoII.*m.propiedad = QString(QChar(m.letra));
    EXPECT_EQ(TextosDePagina(impresion.Copia(), Pagina).count(cruz), 6);
}

TEST(AnexoII, ElPorcentajeSoloPorEncimaDeCero) {
    ImpresionAnexoII impresion;
    for (const qint16 porcentaje : {qint16{0}, qint16{-1}}) {
        impresion.anexoII.PORCENTAJE = porcentaje;
        impresion.EsperaNinguno();
    }
    for (const auto& [porcentaje, texto] :
         {std::pair(qint16{1}, u"1"), std::pair(qint16{45}, u"45"),
          std::pair(qint16{100}, u"100")}) {
        impresion.anexoII.PORCENTAJE = porcentaje;
        impresion.EsperaSolo(
            ValorRomano(YOtrasSituaciones, Fijo(164), 45.5F, QString::fromUtf16(texto)));
    }
}

TEST(AnexoII, LoQueNoTieneCasillaNoSeImprime) {
    ImpresionAnexoII impresion;
    impresion.anexoII.CodigoMunicipio = 69;
    impresion.anexoII.CodigoProvincia = 20;
    for (const auto* opcion : {u"O", u"R"}) {
        impresion.anexoII.OpcionApl = QString::fromUtf16(opcion);
        impresion.EsperaNinguno();
    }
}

TEST(AnexoII, LlevaLaIdentificacion) {
    ImpresionAnexoII impresion;
    impresion.datos.DNI = QStringLiteral("N1234567D");
    impresion.datos.NOMBRE = QStringLiteral("GOMMES ET MACHINES S.A.R.L.");
    const Documento& documento = impresion.Copia();
    Trazado trazado(documento, Pagina);
    trazado.Espera(ValorRomano(YIdentificacionII, 2, 9, impresion.datos.DNI, 10));
    trazado.Espera(ValorRomano(YIdentificacionII, 40, 9, impresion.datos.NOMBRE, 10));
    EXPECT_EQ(Escritos(documento, Pagina), ImpresionAnexoII::Vacia() + 2);
}

}  // namespace
}  // namespace padral::test
