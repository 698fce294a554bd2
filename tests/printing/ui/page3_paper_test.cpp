// The third page on paper, in both languages: its box numbers can be read, its captions fit with
// the real fonts, its dots reach what follows them.

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <algorithm>

#include "paper_pages.h"
#include "pdf_reader.h"
#include "printing/print_fixture.h"

namespace padral::test {
namespace {

struct ImpresionHoja3 : Impresion {
    ImpresionHoja3(const char16_t* letra, qint32 fecha) {
        Idioma(letra);
        datos.Apartado4 = QStringLiteral("X");
        datos.FECHADECLARACION = fecha;
    }
    void En(FabricaImpresora& destino) {
        Imprimir(estado, registros, destino).ImprimirDeclaracion(QStringLiteral("AD"));
    }
};

QList<int> NumerosDeLaHoja() {
    QList<int> numeros = {1, 2, 60, 61, 62, 75, 76, 80, 81, 83, 84, 98, 100};
    for (int n = 66; n <= 71; ++n) numeros << n;
    for (const int n : {89, 90, 91, 93, 94, 102, 103, 104, 105}) numeros << n;
    for (int n = 107; n <= 110; ++n) numeros << n;
    for (int n = 112; n <= 115; ++n) numeros << n;
    for (int n = 161; n <= 175; ++n) numeros << n;
    return numeros;
}

struct Caso {
    const char16_t* letra;
    qint32 fecha;
};
void PrintTo(const Caso& caso, std::ostream* salida) {
    *salida << QString::fromUtf16(caso.letra).toStdString() << caso.fecha;
}
const Caso casos[] = {{u"E", 20081231}, {u"E", 20090101}, {u"C", 20081231}, {u"C", 20090101}};

class Hoja3EnPapel : public testing::TestWithParam<Caso> {
protected:
    FabricaMedida fabrica;
    std::vector<Tramo> tramos;
    void SetUp() override {
        ImpresionHoja3(GetParam().letra, GetParam().fecha).En(fabrica);
        tramos = Tramos(*fabrica.documento, 2);
        ASSERT_GT(tramos.size(), 120U);
    }
};
INSTANTIATE_TEST_SUITE_P(Idiomas, Hoja3EnPapel, testing::ValuesIn(casos));

TEST_P(Hoja3EnPapel, SeLeenTodosSusNumeros) {
    if (!HayLectorPdf()) GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
    QTemporaryDir carpeta;
    FabricaPapel papel;
    papel.fichero = carpeta.filePath(QStringLiteral("a.pdf"));
    ImpresionHoja3(GetParam().letra, GetParam().fecha).En(papel);
    ASSERT_EQ(PaginasPdf(papel.fichero), 2);
    const QString texto = TextoPdf(papel.fichero).section(u'\f', 1, 1);
    for (const int numero : NumerosDeLaHoja()) EXPECT_TRUE(TieneNumero(texto, numero)) << numero;
    for (const int numero : {57, 58, 59, 77, 78, 99, 106})
        EXPECT_FALSE(TieneNumero(texto, numero)) << numero;
}

TEST_P(Hoja3EnPapel, NingunTextoSaleDelImpreso) {
    for (const auto& t : tramos) {
        EXPECT_GE(t.x1, 0.1F) << t.texto.toStdString();
        EXPECT_LE(t.x2, 193.1F) << t.texto.toStdString();
    }
}

TEST_P(Hoja3EnPapel, NingunTextoPisaAOtro) {
    for (const auto& a : tramos)
        for (const auto& b : tramos) {
            if (&a == &b || !a.MismaLinea(b) || a.x1 > b.x1) continue;
            EXPECT_LT(a.x2, b.x1 + 0.01F)
                << a.texto.toStdString() << " over " << b.texto.toStdString();
        }
}

TEST_P(Hoja3EnPapel, NingunTextoPisaUnCuadro) {
    int cuadros = 0;
    for (const auto& m : fabrica.documento->De(Operacion::Caja)) {
        if (m.pagina != 2 || m.hasta.x - m.desde.x > 5) continue;
        ++cuadros;
        for (const auto& t : tramos)
            EXPECT_FALSE(t.Pisa(m.desde, m.hasta))
                << t.texto.toStdString() << " in " << m.desde.x << ", " << m.desde.y;
    }
    EXPECT_EQ(cuadros, 25 + 52);
}

// ------------------------------------------------------------------------------- filled page

/// Every request and every question answered; `cual` chooses among their answers.
void Rellenar(Impresion& i, std::size_t cual) {
    static constexpr const char16_t* TresLetras[] = {u"O", u"R", u"E"};
    static constexpr const char16_t* TresAltas[] = {u"A", u"R", u"E"};
    static constexpr const char16_t* DosAltas[] = {u"A", u"B"};
    static constexpr const char16_t* SiNo[] = {u"S", u"N"};
    using D4 = DatosApartado4;
    const auto poner = [&](auto D4::*respuesta, const auto& letras) {
        i.apartado4.*respuesta = QString::fromUtf16(letras[cual % std::size(letras)]);
    };
    for (const auto r : {&D4::IRPFDIRECT, &D4::IVACAJA, &D4::IVACUOADU}) poner(r, TresLetras);
    for (const auto r : {&D4::IVAAGRIC, &D4::IVASIMPLIF}) poner(r, TresAltas);
    for (const auto r : {&D4::IVAEXPORT, &D4::IVAEXPORTINTRA}) poner(r, DosAltas);
    for (const auto r : {&D4::IVABIENES, &D4::SONF})
        i.apartado4.*r = QString::fromUtf16(TresLetras[cual % 2]);
    poner(&D4::IVASOCIO, SiNo);
    for (const auto& c : TablaApartado5())
        c.escribir(i.apartado5, QString::fromUtf16(SiNo[cual % 2]));
    i.apartado4.NIF = QStringLiteral("G12345674");
    i.apartado4.NOMBRE = QStringLiteral("COMUNIDAD DE PROPIETARIOS DE LA GRAN VÍA");
    i.datos.DNI = QStringLiteral("A12345674");
    i.datos.NOMBRE = QStringLiteral("COMPAÑÍA MERCANTIL DE GOMAS Y MAQUINARIA");
    i.datos.NumeroArchivo = QStringLiteral("2026000417");
}

class Hoja3Rellena
    : public testing::TestWithParam<std::tuple<const char16_t*, qint32, std::size_t>> {
protected:
    FabricaMedida fabrica;
    std::vector<Tramo> tramos;
    bool euskera() const { return QStringView(std::get<0>(GetParam())) == u"E"; }
    void SetUp() override {
        const auto& [letra, fecha, cual] = GetParam();
        ImpresionHoja3 impresion(letra, fecha);
        Rellenar(impresion, cual);
        ASSERT_EQ(impresion.apartado4.NOMBRE.recortado().size(), 40);
        impresion.En(fabrica);
        tramos = Tramos(*fabrica.documento, 2);
        ASSERT_EQ(std::ranges::count(tramos, QStringLiteral("X"), &Tramo::texto), 10 + 26);
    }
};
INSTANTIATE_TEST_SUITE_P(Idiomas, Hoja3Rellena,
                         testing::Combine(testing::Values(u"E", u"C"),
                                          testing::Values(20081231, 20090101),
                                          testing::Values(0U, 1U, 2U)));

TEST_P(Hoja3Rellena, NingunTextoPisaAOtroNiSaleDelImpreso) {
    for (const auto& a : tramos) {
        EXPECT_GE(a.x1, 0.1F) << a.texto.toStdString();
        EXPECT_LE(a.x2, 193.1F) << a.texto.toStdString();
        for (const auto& b : tramos) {
            if (&a == &b || !a.MismaLinea(b) || a.x1 > b.x1) continue;
            EXPECT_LT(a.x2, b.x1 + 0.01F)
                << a.texto.toStdString() << " over " << b.texto.toStdString();
        }
    }
}

TEST_P(Hoja3Rellena, LasMarcasEstanDentroDeSuCuadroYLoDemasFuera) {
    std::vector<Tramo> sueltas;
    std::ranges::copy_if(tramos, std::back_inserter(sueltas),
                         [](const Tramo& t) { return t.texto == u"X"; });
    for (const auto& m : fabrica.documento->De(Operacion::Caja)) {
        if (m.pagina != 2 || m.hasta.x - m.desde.x > 5) continue;
        for (const auto& t : tramos)
            EXPECT_FALSE(t.texto != u"X" && t.Pisa(m.desde, m.hasta)) << t.texto.toStdString();
        std::erase_if(sueltas, [&](const Tramo& t) {
            return t.Pisa(m.desde, m.hasta) && t.x1 > m.desde.x && t.x2 < m.hasta.x;
        });
    }
    // The form has it so: 107 has no frame for a yes, and in Spanish the frame of 61 moves without
    // its mark, which touches it.
    std::vector<Mm> esperadas;
    if (std::get<2>(GetParam()) % 2 == 0) esperadas.push_back(176.1F);
    if (std::get<2>(GetParam()) == 1 && !euskera()) esperadas.push_back(161.1F);
    ASSERT_EQ(sueltas.size(), esperadas.size());
    for (std::size_t i = 0; i < sueltas.size(); ++i)
        EXPECT_NEAR(sueltas[i].x1, esperadas[i], 0.01F);
}

TEST_P(Hoja3EnPapel, LosPuntosLleganHastaLoQueSigue) {
    // 26 questions and 10 requests; the number of each, or an answer, is next.
    int filas = 0;
    for (const auto& t : tramos) {
        if (!t.texto.endsWith(u"...")) continue;
        ++filas;
        Mm siguiente = 1000;
        for (const auto& otro : tramos)
            if (otro.MismaLinea(t) && otro.x1 > t.x1) siguiente = std::min(siguiente, otro.x1);
        EXPECT_GE(siguiente - t.x2, 0.95F) << t.texto.toStdString();
        EXPECT_LE(siguiente - t.x2, 1.65F) << t.texto.toStdString();  // a dot is 0.57 mm
    }
    EXPECT_EQ(filas, 26 + 10);
}

}  // namespace
}  // namespace padral::test
