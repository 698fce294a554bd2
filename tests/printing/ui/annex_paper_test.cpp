// The annexes on paper: their texts fit with the real fonts, marks stand in their boxes, and what
// is printed can be read back.

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <algorithm>

#include "paper_pages.h"
#include "pdf_reader.h"
#include "printing/annex1_fixture.h"
#include "printing/pictures.h"

namespace padral::test {
namespace {

constexpr int Pagina = 2;
const QString cruz = QStringLiteral("X");
const QString copia = QStringLiteral("IT");

void Imprime(Impresion& i, FabricaImpresora& destino) {
    Imprimir(i.estado, i.registros, destino).ImprimirDeclaracion(copia);
}

/// Regimes of all participants; `cual` chooses among their letters.
void PonerRegimenes(cParticipes& p, int cual) {
    const QString irpf = cual == 0 ? QStringLiteral("O") : QStringLiteral("R");
    const QString iva = cual == 0 ? QStringLiteral("A") : QStringLiteral("R");
    p.EdIRPF = p.EqIRPF = irpf;
    p.SimplifIVA = p.Agric = iva;
}

void RellenarParticipe(cParticipes& p, int cual) {
    p.DNI = QStringLiteral("A12345674");
    p.NOMBRE = QStringLiteral("MAQUINARIA Y COMPUESTOS, S.A.L");
    p.SiglasDom = QStringLiteral("GV");
    p.NombreVia = QStringLiteral("GRAN VIA DEL COMERCIO MARITIMO");
    p.Numero = 12345;
    p.Letra = p.Escalera = p.Piso = QStringLiteral("DM");
    p.Mano = QStringLiteral("DCH");
    p.CodigoProvincia(u"20");
    p.NombreProvincia = QStringLiteral("S.C. DE TENERIFE");
    p.Telefono = 943000417;
    p.CodPostal = 20417;
    p.CodMun = 699;
    p.NombMun = QStringLiteral("OIHANBURUETA DE ARRIBA");
    p.PorcenPart = 33.33F;
    PonerRegimenes(p, cual);
}

void RellenarAnexoII(DatosAnexoII& a, int cual) {
    const QString si = cual == 0 ? QStringLiteral("S") : QStringLiteral("N");
    const QStringList modalidades = {QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")};
    a.DireccionDom = QStringLiteral("128 BOULEVARD DU GENERAL DE GAULLE, BATIMENT C");
    a.PoblacionDom = QStringLiteral("SAINT-JEAN-PIED-DE-PORT");
    a.Nacionalidad = QStringLiteral("BRITANICA (REINO UNIDO)");
    a.FormaJuridica = QStringLiteral("SOCIEDAD LIMITADA EXTRANJERA");
    a.TerritorioHistorico = a.Obligado = a.Establecimientos = si;
    a.ModalidadEstablecimiento = modalidades[cual];
    a.OtrosEstablecimientos = a.Aplicacion = QStringLiteral("S");
    a.NIFRepresentante = QStringLiteral("A12345674");
    a.NombreRepresentante = QStringLiteral("COMPAÑIA MERCANTIL DE GOMAS Y MAQUINARIA");
    a.NacionalidadRepresentante = QStringLiteral("NEERLANDESA");
    a.DomicilioRepresentante = QStringLiteral("GRAN VIA DEL COMERCIO MARITIMO, 128, 3º IZDA");
    a.NombreMunicipio = QStringLiteral("OIHANBURUETA");
    a.NombreProvincia = QStringLiteral("S.C. de Tenerife");
    a.PORCENTAJE = 100;
}

struct Caso {
    bool anexoII;
    int cual;  ///< answers; below 0 an empty page
};
void PrintTo(const Caso& caso, std::ostream* salida) {
    *salida << (caso.anexoII ? "II" : "I") << caso.cual;
}
const Caso casos[] = {{false, -1}, {false, 0}, {false, 1}, {true, -1},
                      {true, 0},   {true, 1},  {true, 2}};

struct ImpresionAnexo : ImpresionAnexoI {
    explicit ImpresionAnexo(const Caso& caso) {
        (caso.anexoII ? datos.AnexoI : datos.AnexoII).clear();
        if (caso.anexoII) datos.AnexoII = cruz;
        Anadir(5);
        if (caso.cual < 0) return;
        datos.DNI = QStringLiteral("A12345674");
        datos.NOMBRE = QStringLiteral("COMPAÑÍA MERCANTIL DE GOMAS Y MAQUINARIA");
        for (const auto& p : participantes.colParticipes) RellenarParticipe(*p, caso.cual);
        RellenarAnexoII(anexoII, caso.cual);
    }
};

class AnexoEnPapel : public testing::TestWithParam<Caso> {
protected:
    FabricaMedida fabrica;
    std::vector<Tramo> tramos;
    void SetUp() override {
        ImpresionAnexo impresion(GetParam());
        Imprime(impresion, fabrica);
        tramos = Tramos(*fabrica.documento, Pagina);
        ASSERT_GT(tramos.size(), 90U);
    }
    std::vector<Operacion> De(Operacion::Tipo tipo) const {
        auto todas = fabrica.documento->De(tipo);
        std::erase_if(todas, [](const Operacion& o) { return o.pagina != Pagina; });
        return todas;
    }
    /// Frames of check marks and of the percentage.
    std::vector<Operacion> Cuadros() const {
        auto cajas = De(Operacion::Caja);
        std::erase_if(cajas, [](const Operacion& o) { return o.hasta.x - o.desde.x > 10; });
        return cajas;
    }
};
INSTANTIATE_TEST_SUITE_P(Anexos, AnexoEnPapel, testing::ValuesIn(casos));

TEST_P(AnexoEnPapel, NingunTextoSaleDelImpreso) {
    for (const auto& t : tramos) {
        EXPECT_GE(t.x1, 0.1F) << t.texto.toStdString();
        EXPECT_LE(t.x2, 193.1F) << t.texto.toStdString();
    }
}

TEST_P(AnexoEnPapel, NingunTextoPisaAOtro) {
    for (const auto& a : tramos)
        for (const auto& b : tramos) {
            if (&a == &b || !a.MismaLinea(b) || a.x1 > b.x1) continue;
            EXPECT_LT(a.x2, b.x1 + 0.01F)
                << a.texto.toStdString() << " over " << b.texto.toStdString();
        }
}

TEST_P(AnexoEnPapel, NingunTextoCruzaUnaRaya) {
    for (const auto& raya : De(Operacion::Linea))
        for (const auto& t : tramos) {
            const bool vertical = raya.desde.x == raya.hasta.x;
            const bool dentro = vertical ? t.x1 < raya.desde.x && raya.desde.x < t.x2
                                         : t.y1 < raya.desde.y && raya.desde.y < t.y2;
            const bool alcanza = vertical ? raya.desde.y < t.y2 && t.y1 < raya.hasta.y
                                          : raya.desde.x < t.x2 && t.x1 < raya.hasta.x;
            EXPECT_FALSE(dentro && alcanza)
                << t.texto.toStdString() << " across " << raya.desde.x << ", " << raya.desde.y;
        }
}

TEST_P(AnexoEnPapel, LasMarcasEstanDentroDeSuCuadroYLoDemasFuera) {
    const auto cuadros = Cuadros();
    EXPECT_EQ(cuadros.size(), GetParam().anexoII ? 12U : 5U * 8);
    std::vector<Tramo> sueltas;
    std::ranges::copy_if(tramos, std::back_inserter(sueltas),
                         [](const Tramo& t) { return t.texto == cruz; });
    const auto marcas = GetParam().anexoII ? 6U : 5U * 4;
    EXPECT_EQ(sueltas.size(), GetParam().cual < 0 ? 0U : marcas);
    for (const auto& m : cuadros) {
        for (const auto& t : tramos) {
            const bool valor = t.texto == cruz || t.texto == u"100";
            EXPECT_FALSE(!valor && t.Pisa(m.desde, m.hasta)) << t.texto.toStdString();
        }
        std::erase_if(sueltas, [&](const Tramo& t) {
            return t.x1 > m.desde.x && t.x2 < m.hasta.x && t.y1 > m.desde.y && t.y2 < m.hasta.y;
        });
    }
    EXPECT_TRUE(sueltas.empty());
}

TEST_P(AnexoEnPapel, LasImagenesCabenEnSuColumna) {
    for (const auto& i : De(Operacion::Imagen)) {
        const Tamano t = i.tamano.value_or(BuscarImagen(i.texto).TamanoNatural());
        const Punto hasta = {i.desde.x + t.ancho, i.desde.y + t.alto};
        for (const auto& raya : De(Operacion::Linea)) {
            const bool fuera = raya.hasta.x <= i.desde.x || hasta.x <= raya.desde.x ||
                               raya.hasta.y <= i.desde.y || hasta.y <= raya.desde.y;
            EXPECT_TRUE(fuera) << i.texto.toStdString() << " across " << raya.desde.x;
        }
        for (const auto& texto : tramos)
            EXPECT_FALSE(texto.Pisa(i.desde, hasta)) << texto.texto.toStdString();
    }
}

// ---------------------------------------------------------------------------------- read back

class AnexoEnPdf : public testing::Test {
protected:
    QTemporaryDir carpeta;
    FabricaPapel papel;
    void SetUp() override {
        if (!HayLectorPdf()) GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
        papel.fichero = carpeta.filePath(QStringLiteral("a.pdf"));
    }
    QString Texto(int pagina) const {
        return TextoPdf(papel.fichero).section(u'\f', pagina - 1, pagina - 1);
    }
};

TEST_F(AnexoEnPdf, SeLeenTodosLosNumerosDelAnexoII) {
    ImpresionAnexo impresion({true, -1});
    Imprime(impresion, papel);
    ASSERT_EQ(PaginasPdf(papel.fichero), 2);
    QList<int> numeros = {1, 2, 188};
    for (int n = 169; n <= 186; ++n) numeros << n;
    for (const int numero : numeros) EXPECT_TRUE(TieneNumero(Texto(Pagina), numero)) << numero;
    EXPECT_FALSE(TieneNumero(Texto(Pagina), 187));
}

TEST_F(AnexoEnPdf, SeLeenLosParticipesDeCadaPagina) {
    ImpresionAnexoI impresion;
    impresion.Anadir(7);
    int numero = 10000000;
    for (const auto& p : impresion.participantes.colParticipes)
        p->DNI = QString::number(numero++) + u'Z';
    Imprime(impresion, papel);
    ASSERT_EQ(PaginasPdf(papel.fichero), 3);
    for (int i = 0; i < 7; ++i) {
        const QString dni = impresion.participantes.colParticipes[static_cast<std::size_t>(i)]->DNI;
        for (const int pagina : {2, 3})
            EXPECT_EQ(Texto(pagina).count(dni), pagina == 2 + i / 5 ? 1 : 0)
                << dni.toStdString() << " on " << pagina;
    }
}

}  // namespace
}  // namespace padral::test
