// The values of a participant: each in its field, in any row, and nothing for what is empty.

#include <gtest/gtest.h>

#include "annex1_expected.h"
#include "annex1_fixture.h"

namespace padral::test {
namespace {

const QString cruz = QStringLiteral("X");
constexpr int Pagina = 2;

/// One participant.
struct ImpresionUno : ImpresionAnexoI {
    ImpresionUno() { Anadir(); }
    static qsizetype Vacia() {
        static const qsizetype vacia = Escritos(ImpresionUno().Copia(QStringLiteral("IT")), Pagina);
        return vacia;
    }
    void EsperaSolo(const TextoEsperado& valor) {
        const Documento& documento = Copia(QStringLiteral("IT"));
        Trazado(documento, Pagina).Espera(valor);
        EXPECT_EQ(Escritos(documento, Pagina), Vacia() + 1) << valor.texto.toStdString();
    }
    void EsperaNinguno() { EXPECT_EQ(Escritos(Copia(QStringLiteral("IT")), Pagina), Vacia()); }
};

/// Texts of a page of five participants without any data.
qsizetype Vacias() {
    ImpresionAnexoI impresion;
    impresion.Anadir(5);
    return Escritos(impresion.Copia(QStringLiteral("IT")), Pagina);
}

struct FilaCampo {
    const char* propiedad;
    void (*poner)(DatosParticipe&);
    const char16_t* valor;
    float x, y;
};
void PrintTo(const FilaCampo& fila, std::ostream* salida) { *salida << fila.propiedad; }

#define PADRAL_TEXTO(propiedad, valor) \
#propiedad, [](DatosParticipe & p) { p.propiedad = QString::fromUtf16(valor); }, valor
#define PADRAL_NUMERO(propiedad, numero, valor) \
#propiedad, [](DatosParticipe & p) { p.propiedad = numero; }, valor
const FilaCampo campos[] = {
    {PADRAL_TEXTO(DNI, u"12345678Z"), 9, 5},
    {PADRAL_TEXTO(NOMBRE, u"MUÑOZ ETXEBERRIA, ANE"), 49, 5},
    {PADRAL_NUMERO(PorcenPart, 33.25F, u"33,25"), 9, 22},
    {PADRAL_NUMERO(Numero, 12345, u"12345"), 95, 31},
    {PADRAL_TEXTO(Letra, u"BI"), 108, 31},
    {PADRAL_TEXTO(Escalera, u"DR"), 121, 31},
    {PADRAL_TEXTO(Piso, u"3B"), 134, 31},
    {PADRAL_TEXTO(Mano, u"IZD"), 147, 31},
    {PADRAL_NUMERO(Telefono, 943000417, u"943000417"), 163, 31},
    {PADRAL_TEXTO(NombMun, u"Oihanburueta"), 19, 41},
    {PADRAL_NUMERO(CodPostal, 1001, u"1001"), 92, 41},
    {PADRAL_NUMERO(CodMun, 69, u"69"), 113, 41},
    {PADRAL_TEXTO(NombreProvincia, u"Kelmaria"), 125.25F, 41},
    {PADRAL_NUMERO(CodigoProvincia, 20, u"20"), 180, 41},
};
#undef PADRAL_TEXTO
#undef PADRAL_NUMERO

class CadaCampo : public testing::TestWithParam<FilaCampo> {};
INSTANTIATE_TEST_SUITE_P(AnexoI, CadaCampo, testing::ValuesIn(campos));

TEST_P(CadaCampo, EstaEnSuLugarEnCadaFila) {
    const QString valor = QString::fromUtf16(GetParam().valor);
    for (const int fila : {0, 1, 2, 3, 4}) {
        ImpresionAnexoI impresion;
        impresion.Anadir(5);
        GetParam().poner(*impresion.participantes.colParticipes[static_cast<std::size_t>(fila)]);
        const Documento& documento = impresion.Copia(QStringLiteral("IT"));
        Trazado(documento, Pagina)
            .Espera(ValorRomano(topesFilas[fila], GetParam().x, GetParam().y, valor, 10));
        EXPECT_EQ(TextosDePagina(documento, Pagina).count(valor), 1);
    }
    ImpresionUno uno;
    GetParam().poner(uno.Ultimo());
    uno.EsperaSolo(ValorRomano(topesFilas[0], GetParam().x, GetParam().y, valor, 10));
}

// A street without its type begins with the stroke; without its name there is none.
TEST(AnexoI, LaCalleLlevaSuTipoEnCadaFila) {
    const struct {
        const char16_t *tipo, *via, *escrito;
    } calles[] = {{u"CL", u"Mayor", u"CL/ Mayor"},
                  {u"", u"ZUBIETA", u"/ ZUBIETA"},
                  {u"CL", u"", u""},
                  {u"", u"", u""}};
    const qsizetype vacias = Vacias();
    for (const auto& [tipo, via, escrito] : calles)
        for (const std::size_t fila : {0U, 1U, 2U, 3U, 4U}) {
            ImpresionAnexoI impresion;
            impresion.Anadir(5);
            auto& participe = *impresion.participantes.colParticipes[fila];
            participe.SiglasDom = QString::fromUtf16(tipo);
            participe.NombreVia = QString::fromUtf16(via);
            const Documento& documento = impresion.Copia(QStringLiteral("IT"));
            const QString calle = QString::fromUtf16(escrito);
            if (!calle.isEmpty())
                Trazado(documento, Pagina).Espera(ValorRomano(topesFilas[fila], 19, 31, calle, 10));
            EXPECT_EQ(Escritos(documento, Pagina), vacias + (calle.isEmpty() ? 0 : 1));
        }
}

TEST(AnexoI, LaParticipacionEsUnNumeroConComa) {
    const std::pair<float, const char16_t*> filas[] = {
        {50.0F, u"50"},   {100.0F, u"100"},   {0.5F, u"0,5"},     {0.01F, u"0,01"},
        {33.3F, u"33,3"}, {33.33F, u"33,33"}, {66.67F, u"66,67"}, {99.99F, u"99,99"},
    };
    for (const auto& [numero, texto] : filas) {
        ImpresionUno impresion;
        impresion.Ultimo().PorcenPart = numero;
        impresion.EsperaSolo(ValorRomano(topesFilas[0], 9, 22, QString::fromUtf16(texto), 10));
        impresion.Ultimo().PorcenPart = 0;
        impresion.EsperaNinguno();
    }
}

TEST(AnexoI, LoQueNoTieneCampoNoSeImprime) {
    ImpresionUno impresion;
    impresion.Ultimo().DESCRIPCIONVIA = QStringLiteral("Calle");
    impresion.Ultimo().csde = 417;
    impresion.Ultimo().cspa = 418;
    impresion.EsperaNinguno();
}

class CadaRegimen : public testing::TestWithParam<FilaRegimen> {};
INSTANTIATE_TEST_SUITE_P(AnexoI, CadaRegimen, testing::ValuesIn(regimenes));

TEST_P(CadaRegimen, MarcaSuCuadroEnCadaFila) {
    const auto& regimen = GetParam();
    for (const std::size_t fila : {0U, 1U, 2U, 3U, 4U}) {
        ImpresionAnexoI impresion;
        impresion.Anadir(5);
        (*impresion.participantes.colParticipes[fila]).*regimen.regimen =
            QString(QChar(regimen.letra));
        const Documento& documento = impresion.Copia(QStringLiteral("IT"));
        Trazado(documento, Pagina)
            .Espera(ValorRomano(topesFilas[fila], regimen.xMarca, regimen.yMarca, cruz, 6.9F));
        EXPECT_EQ(TextosDePagina(documento, Pagina).count(cruz), 1) << fila;
    }
}

TEST_P(CadaRegimen, LaMinusculaSoloDondeVale) {
    ImpresionUno impresion;
    impresion.Ultimo().*GetParam().regimen = QString(QChar(GetParam().letra));
    const TextoEsperado marca =
        ValorRomano(topesFilas[0], GetParam().xMarca, GetParam().yMarca, cruz, 6.9F);
    impresion.EsperaSolo(marca);
    impresion.Ultimo().*GetParam().regimen = QString(QChar(GetParam().letra).toLower());
    if (GetParam().minuscula)
        impresion.EsperaSolo(marca);
    else
        impresion.EsperaNinguno();
}

TEST_P(CadaRegimen, OtraLetraNoMarcaNada) {
    const bool impuesto = GetParam().letra == u'A' ||
                          GetParam().regimen == &DatosParticipe::SimplifIVA ||
                          GetParam().regimen == &DatosParticipe::Agric;
    const QString letras = impuesto ? QStringLiteral("ARar") : QStringLiteral("OEoRr");
    ImpresionUno impresion;
    for (char16_t c = u' '; c <= u'z'; ++c) {
        if (letras.contains(QChar(c)) && c != u'E') continue;
        impresion.Ultimo().*GetParam().regimen = QString(QChar(c));
        impresion.EsperaNinguno();
    }
}

TEST(AnexoI, TodosLosRegimenesALaVez) {
    ImpresionUno impresion;
    for (const auto& r : regimenes) impresion.Ultimo().*r.regimen = QString(QChar(r.letra));
    EXPECT_EQ(TextosDePagina(impresion.Copia(QStringLiteral("IT")), Pagina).count(cruz), 4);
}

TEST(AnexoI, LaIdentificacionEstaEnCadaPagina) {
    ImpresionAnexoI impresion;
    impresion.Anadir(11);
    impresion.datos.DNI = QStringLiteral("E12345674");
    impresion.datos.NOMBRE = QStringLiteral("ETXEBERRIA ANAIAK, C.B.");
    const Documento& documento = impresion.Copia(QStringLiteral("IT"));
    for (const int pagina : {2, 3, 4}) {
        Trazado trazado(documento, pagina);
        trazado.Espera(ValorRomano(37, 2, 9, impresion.datos.DNI, 10));
        trazado.Espera(ValorRomano(37, 40, 9, impresion.datos.NOMBRE, 10));
    }
}

TEST(AnexoI, ElTextoMasLargoSeEscribeEntero) {
    ImpresionUno impresion;
    impresion.Ultimo().NOMBRE = QString(30, u'Ñ');
    impresion.EsperaSolo(ValorRomano(topesFilas[0], 49, 5, QString(30, u'Ñ'), 10));
}

}  // namespace
}  // namespace padral::test
