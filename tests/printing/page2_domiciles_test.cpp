// The values of the four domiciles: each property in its box, under its rule.

#include <gtest/gtest.h>

#include <utility>

#include "page2_expected.h"
#include "print_fixture.h"

namespace padral::test {
namespace {

struct FilaDomicilio {
    const char* nombre;
    BloqueDireccion DatosApartado2::*bloque;
    QString DatosApartado2::*marca;
    float origen;
    float primera, segunda;  ///< rows of values
};
const FilaDomicilio domicilios[] = {
    {"Fis", &DatosApartado2::Fis, nullptr, 48.5F, 16, 24},
    {"Soc", &DatosApartado2::Soc, &DatosApartado2::ElMismoSoc, 88.5F, 16, 25},
    {"Act", &DatosApartado2::Act, &DatosApartado2::ElMismoAct, 120.5F, 16, 25},
    {"Not", &DatosApartado2::Not, &DatosApartado2::ElMismoNot, 152.5F, 16, 25},
};
void PrintTo(const FilaDomicilio& fila, std::ostream* salida) { *salida << fila.nombre; }

struct FilaValor {
    void (*poner)(BloqueDireccion&);
    const char16_t* texto;
    float x;
    bool segundaFila;
};
// Longer than any field: nothing is cut.
const FilaValor valores[] = {
    {[](BloqueDireccion& b) { b.NombreDomicilio = QStringLiteral("Mayor"); }, u"/ Mayor", 1, false},
    {[](BloqueDireccion& b) {
         b.SiglasDomicilio = QStringLiteral("CL");
         b.DescripcionSiglas = QStringLiteral("Calle");
         b.NombreDomicilio = QStringLiteral("de la Constitución y de los Ñandúes, antes del Mar");
     },
     u"CL/ de la Constitución y de los Ñandúes, antes del Mar", 1, false},
    {[](BloqueDireccion& b) { b.Numero = 12345; }, u"12345", 80.5F, false},
    {[](BloqueDireccion& b) { b.Letra = QStringLiteral("BB"); }, u"BB", 99.5F, false},
    {[](BloqueDireccion& b) { b.Escalera = QStringLiteral("E2"); }, u"E2", 117, false},
    {[](BloqueDireccion& b) { b.Piso = QStringLiteral("10"); }, u"10", 133, false},
    {[](BloqueDireccion& b) { b.Mano = QStringLiteral("IZQ"); }, u"IZQ", 147.5F, false},
    {[](BloqueDireccion& b) { b.Telefono = 943112233; }, u"943112233", 163.5F, false},
    {[](BloqueDireccion& b) { b.NombreMunicipio = QStringLiteral("Puerto"); }, u"Puerto", 1, true},
    {[](BloqueDireccion& b) { b.CodigoPostal = 20500; }, u"20500", 83.5F, true},
    {[](BloqueDireccion& b) { b.CodigoPostal = 1005; }, u"1005", 83.5F, true},
    {[](BloqueDireccion& b) { b.CodigoMunicipio = 69; }, u"69", 112, true},
    {[](BloqueDireccion& b) { b.NombreProvincia = QStringLiteral("Lejana"); }, u"Lejana", 134,
     true},
    {[](BloqueDireccion& b) { b.CodigoProvincia = 7; }, u"7", 174, true},
};

/// Texts of the second page that are not empty.
qsizetype Escritos(const Documento& documento) {
    QStringList textos = TextosDePagina(documento, 2);
    textos.removeAll(QString());
    return textos.size();
}

struct ImpresionHoja2 : Impresion {
    ImpresionHoja2() { datos.Apartado2 = QStringLiteral("X"); }
    static qsizetype Vacia() {
        ImpresionHoja2 impresion;
        return Escritos(impresion.Copia());
    }
};

class Domicilio : public testing::TestWithParam<FilaDomicilio> {
protected:
    ImpresionHoja2 impresion;
    BloqueDireccion& bloque() { return impresion.apartado2.*GetParam().bloque; }
    static float fila(bool segunda) { return segunda ? GetParam().segunda : GetParam().primera; }
    void llenar() {
        for (const auto& valor : valores) valor.poner(bloque());
    }
};
INSTANTIATE_TEST_SUITE_P(Los, Domicilio, testing::ValuesIn(domicilios));

class DomicilioConMarca : public Domicilio {};
INSTANTIATE_TEST_SUITE_P(Los, DomicilioConMarca,
                         testing::ValuesIn(std::begin(domicilios) + 1, std::end(domicilios)));

TEST_P(Domicilio, CadaValorEnSuSitio) {
    const qsizetype vacia = ImpresionHoja2::Vacia();
    for (const auto& valor : valores) {
        bloque() = {};
        valor.poner(bloque());
        const Documento& documento = impresion.Copia();
        Trazado(documento, 2)
            .Espera(ValorEsperado(GetParam().origen, valor.x, fila(valor.segundaFila),
                                  QString::fromUtf16(valor.texto)));
        EXPECT_EQ(Escritos(documento), vacia + 1) << QString::fromUtf16(valor.texto).toStdString();
    }
}

TEST_P(Domicilio, SinCalleNoHaySiglas) {
    bloque().SiglasDomicilio = QStringLiteral("CL");
    bloque().DescripcionSiglas = QStringLiteral("Calle");
    EXPECT_EQ(Escritos(impresion.Copia()), ImpresionHoja2::Vacia());
}

TEST_P(Domicilio, LosCerosNoSeEscriben) {
    llenar();
    const qsizetype lleno = Escritos(impresion.Copia());
    BloqueDireccion& b = bloque();
    for (qint32* numero :
         {&b.Numero, &b.Telefono, &b.CodigoPostal, &b.CodigoMunicipio, &b.CodigoProvincia}) {
        const qint32 valor = std::exchange(*numero, 0);
        const Documento& documento = impresion.Copia();
        EXPECT_EQ(Escritos(documento), lleno - 1) << valor;
        EXPECT_FALSE(TextosDePagina(documento, 2).contains(QStringLiteral("0")));
        *numero = valor;
    }
}

TEST_P(Domicilio, SinPostalSiguenProvinciaYClaves) {
    llenar();
    bloque().CodigoPostal = 0;
    Trazado trazado(impresion.Copia(), 2);
    for (const auto& [texto, x] :
         {std::pair(u"69", 112.0F), std::pair(u"Lejana", 134.0F), std::pair(u"7", 174.0F)})
        trazado.Espera(ValorEsperado(GetParam().origen, x, fila(true), QString::fromUtf16(texto)));
}

TEST_P(DomicilioConMarca, MarcadoComoElFiscalSoloImprimeLaCruz) {
    llenar();
    impresion.apartado2.*GetParam().marca = QStringLiteral("X");
    const Documento& documento = impresion.Copia();
    Trazado(documento, 2).Espera(ValorEsperado(GetParam().origen, 181, 5.5F, QStringLiteral("X")));
    EXPECT_EQ(Escritos(documento), ImpresionHoja2::Vacia() + 1);
}

TEST_P(DomicilioConMarca, OtraMarcaDejaLosDatos) {
    llenar();
    const qsizetype lleno = Escritos(impresion.Copia());
    for (const auto* marca : {u"", u" ", u"x", u"XX", u"S"}) {
        impresion.apartado2.*GetParam().marca = QString::fromUtf16(marca);
        EXPECT_EQ(Escritos(impresion.Copia()), lleno);
    }
}

TEST(Domicilios, LasMarcasNoTocanLosOtros) {
    ImpresionHoja2 impresion;
    for (const auto& d : domicilios)
        (impresion.apartado2.*d.bloque).NombreMunicipio = QString::fromLatin1(d.nombre);
    impresion.apartado2.ElMismoAct = QStringLiteral("X");
    const QStringList textos = TextosDePagina(impresion.Copia(), 2);
    for (const auto& d : domicilios)
        EXPECT_EQ(textos.contains(QString::fromLatin1(d.nombre)), std::string(d.nombre) != "Act");
}

TEST(Domicilios, LosTextosVaciosTambienSeEscriben) {
    ImpresionHoja2 impresion;
    // Letter, staircase, floor, door, municipality and province of each domicile, and those of
    // identification, activity, its code, e-mail address and legal form.
    EXPECT_EQ(TextosDePagina(impresion.Copia(), 2).count(QString()), 4 * 6 + 2 + 4);
}

}  // namespace
}  // namespace padral::test
