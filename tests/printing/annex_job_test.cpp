// How many pages the annexes take in each copy, and where they stand.

#include <gtest/gtest.h>

#include "expected.h"
#include "print_fixture.h"

namespace padral::test {
namespace {

/// So many participants, each between two deleted ones.
void PonerParticipes(Impresion& impresion, int vivos) {
    const QString modos = QStringLiteral("ACE");
    for (int i = 0; i <= 2 * vivos; ++i) {
        const QChar modo = modos[i % 2 == 0 ? 2 : (i / 2) % 2];
        auto participe = std::make_shared<cParticipes>(impresion.participantes, QString());
        participe->Modo = QString(modo);
        participe->DNI = QStringLiteral("%1%2").arg(i, 8, 10, QChar(u'0')).arg(modo);
        impresion.participantes.colParticipes.push_back(participe);
    }
}

struct FilaAnexoI {
    int participes, paginas;
};
void PrintTo(const FilaAnexoI& fila, std::ostream* salida) { *salida << fila.participes; }

class AnexoIEnCadaCopia : public testing::TestWithParam<FilaAnexoI> {};
TEST_P(AnexoIEnCadaCopia, CincoPorPaginaYDosJuegosParaLaAdministracion) {
    const auto [participes, paginas] = GetParam();
    for (const auto& [tipo, juegos] :
         {std::pair(u"AD", 2), std::pair(u"IT", 1), std::pair(u"BO", 1), std::pair(u"BA", 1),
          std::pair(u"IF", 1)}) {
        Impresion impresion;
        impresion.datos.AnexoI = QStringLiteral("X");
        PonerParticipes(impresion, participes);
        const Documento& documento = impresion.Copia(QString::fromUtf16(tipo));
        EXPECT_EQ(documento.paginasTerminadas, 1 + juegos * paginas);
        QStringList esperados;
        for (int juego = 0; juego < juegos; ++juego)
            for (const auto& p : impresion.participantes.colParticipes)
                if (p->Modo != QStringLiteral("E")) esperados << p->DNI;
        QStringList impresos;
        for (const auto& o : documento.De(Operacion::Texto))
            if (o.pagina > 1 && o.texto.startsWith(u'0')) impresos << o.texto;
        EXPECT_EQ(impresos, esperados);
        // The first page and each of the annex has one stamp.
        EXPECT_EQ(documento.Textos().count(QStringLiteral("I eranskina")), juegos * paginas);
        int sellos = 0;
        for (const auto& o : documento.De(Operacion::Imagen)) sellos += o.desde.x > 190 ? 1 : 0;
        EXPECT_EQ(sellos, 1 + juegos * paginas);
    }
}
INSTANTIATE_TEST_SUITE_P(Participes, AnexoIEnCadaCopia,
                         testing::Values(FilaAnexoI{0, 0}, FilaAnexoI{1, 1}, FilaAnexoI{5, 1},
                                         FilaAnexoI{6, 2}, FilaAnexoI{100, 20}));

// Printing follows a save, which may leave the mode blank.
TEST(AnexosDeLaCopia, SoloElEliminadoNoSeImprime) {
    const std::pair<const char16_t*, const char16_t*> participes[] = {
        {u"00000001R", u""},  {u"00000002W", u"E"}, {u"00000003A", u"A"},
        {u"00000004G", u" "}, {u"00000005M", u"C"}, {u"00000006Y", u"E"}};
    Impresion impresion;
    impresion.datos.AnexoI = QStringLiteral("X");
    for (const auto& [dni, modo] : participes) {
        auto participe = std::make_shared<cParticipes>(impresion.participantes, QString());
        participe->DNI = QString::fromUtf16(dni);
        participe->Modo = QString::fromUtf16(modo);
        impresion.participantes.colParticipes.push_back(participe);
    }
    const Documento& documento = impresion.Copia(QStringLiteral("IT"));
    EXPECT_EQ(documento.paginasTerminadas, 2);
    EXPECT_EQ(TextosDePagina(documento, 2).filter(QStringLiteral("0000000")),
              QStringList({QStringLiteral("00000001R"), QStringLiteral("00000003A"),
                           QStringLiteral("00000004G"), QStringLiteral("00000005M")}));
}

// One set: only the administration keeps two.
TEST(AnexosDeLaCopia, LaCopiaDeInformaticaTieneUnJuego) {
    Impresion impresion;
    impresion.datos.AnexoI = impresion.datos.AnexoII = QStringLiteral("X");
    PonerParticipes(impresion, 6);
    const Documento& documento = impresion.Copia(QStringLiteral("IF"));
    EXPECT_EQ(documento.paginasTerminadas, 4);
    QStringList sellos;
    for (const auto& o : documento.De(Operacion::Imagen))
        if (o.desde.x > 190) sellos << QStringLiteral("%1 %2").arg(o.pagina).arg(o.texto);
    EXPECT_EQ(sellos, QStringList({QStringLiteral("1 Informatica"), QStringLiteral("2 Informatica"),
                                   QStringLiteral("3 Informatica")}));
}

TEST(AnexosDeLaCopia, LosAnexosSoloConSuMarca) {
    for (const auto& [marca, paginas] : {std::pair(u"", 0), std::pair(u" ", 0), std::pair(u"x", 0),
                                         std::pair(u"S", 0), std::pair(u"X", 1)}) {
        Impresion conPrimero;
        PonerParticipes(conPrimero, 1);
        conPrimero.datos.AnexoI = QString::fromUtf16(marca);
        EXPECT_EQ(conPrimero.Copia(QStringLiteral("IT")).paginasTerminadas, 1 + paginas);
        Impresion conSegundo;
        conSegundo.datos.AnexoII = QString::fromUtf16(marca);
        for (const auto* tipo : {u"AD", u"IT", u"BO"})
            EXPECT_EQ(conSegundo.Copia(QString::fromUtf16(tipo)).paginasTerminadas, 1 + paginas);
    }
}

TEST(AnexosDeLaCopia, LosAnexosVanDetrasDeTodasLasHojas) {
    Impresion impresion;
    for (const auto marca :
         {&cDatosGenerales::Apartado2, &cDatosGenerales::Apartado5, &cDatosGenerales::Apartado7,
          &cDatosGenerales::AnexoI, &cDatosGenerales::AnexoII})
        impresion.datos.*marca = QStringLiteral("X");
    PonerParticipes(impresion, 6);
    const QString primero = QStringLiteral("I eranskina");
    const QString segundo = QStringLiteral("II eranskina");
    for (const auto& [tipo, paginas] : {std::pair(u"AD", 9), std::pair(u"IT", 7)}) {
        const Documento& documento = impresion.Copia(QString::fromUtf16(tipo));
        ASSERT_EQ(documento.paginasTerminadas, paginas);
        for (int pagina = 1; pagina <= paginas; ++pagina) {
            Documento una;
            for (const auto& o : documento.operaciones)
                if (o.pagina == pagina) una.operaciones.push_back(o);
            EXPECT_EQ(una.Textos().contains(primero), pagina > 4 && pagina < paginas) << pagina;
            EXPECT_EQ(una.Textos().contains(segundo), pagina == paginas) << pagina;
        }
        // The last page bears no stamp.
        for (const auto& o : documento.De(Operacion::Imagen))
            EXPECT_FALSE(o.pagina == paginas && o.desde.x > 190);
    }
}

TEST(AnexosDeLaCopia, NoCambiaLosAnexos) {
    Impresion impresion;
    impresion.datos.AnexoI = impresion.datos.AnexoII = QStringLiteral("X");
    PonerParticipes(impresion, 6);
    impresion.anexoII.NombreProvincia = QStringLiteral("Kelmaria");
    impresion.anexoII.PORCENTAJE = 45;
    std::vector<DatosParticipe> antes;
    for (const auto& p : impresion.participantes.colParticipes) antes.push_back(*p);
    const DatosAnexoII antesII = impresion.anexoII;
    impresion.Copia();
    ASSERT_EQ(impresion.participantes.colParticipes.size(), antes.size());
    for (std::size_t i = 0; i < antes.size(); ++i)
        EXPECT_EQ(static_cast<const DatosParticipe&>(*impresion.participantes.colParticipes[i]),
                  antes[i]);
    EXPECT_EQ(impresion.anexoII, antesII);
}

}  // namespace
}  // namespace padral::test
