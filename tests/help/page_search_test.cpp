// Words in pages: case, accents, beginnings; the pages that have them all.

#include "core/help/page_search.h"

#include "core/help/text_match.h"
#include "help_fixture.h"

namespace padral {

void PrintTo(const Tramo& tramo, std::ostream* salida) {
    *salida << tramo.inicio << '+' << tramo.largo;
}

namespace pruebas {
namespace {

QStringList palabras(const char16_t* pregunta) {
    return PalabrasBuscadas(QString::fromUtf16(pregunta));
}

TEST(Palabras, AreFoldedAndStandOnce) {
    EXPECT_EQ(
        palabras(u"  Búsqueda, BUSQUEDA 10.000 "),
        QStringList({QStringLiteral("busqueda"), QStringLiteral("10"), QStringLiteral("000")}));
    // The accent as a character of its own, as some keyboards write it.
    EXPECT_EQ(palabras(u"bu\u0301squeda"), QStringList{QStringLiteral("busqueda")});
    EXPECT_TRUE(palabras(u" ¿«»? ").isEmpty());
}

TEST(Palabras, FoldingKeepsEachCharacterAtItsPlace) {
    const QString texto = QStringLiteral("AÑO Güenes, ÍNDICE… € «x»");
    EXPECT_EQ(Plegar(texto), QStringLiteral("ano guenes, indice… € «x»"));
}

TEST(Palabras, AreFoundAtTheBeginningOfWords) {
    const struct {
        const char16_t* texto;
        const char16_t* pregunta;
        QList<Tramo> tramos;
    } filas[] = {
        {u"El NIF significa poco", u"nif", {{3, 3}}},
        {u"IFZ, IFZaren letra", u"ifz", {{0, 3}, {5, 3}}},
        {u"Año y ANO", u"año", {{0, 3}, {6, 3}}},
        {u"el cese, la letra", u"letra cese", {{3, 4}, {12, 5}}},
        {u"nada", u"algo", {}},
    };
    for (const auto& fila : filas)
        EXPECT_EQ(Apariciones(QString::fromUtf16(fila.texto), palabras(fila.pregunta)), fila.tramos)
            << QString::fromUtf16(fila.texto).toStdString();
}

class Busqueda : public ConAyuda {
protected:
    QStringList paginas(const char16_t* pregunta) {
        QStringList nombres;
        for (const auto& cada : buscar(pregunta)) nombres << cada.pagina;
        return nombres;
    }
    QList<Hallazgo> buscar(const char16_t* pregunta) {
        const QString paginas = ruta(QStringLiteral("Ayuda"));
        return BuscarPaginas(paginas, LeerContenido(paginas), palabras(pregunta));
    }
};

TEST_F(Busqueda, ThePagesWithAllTheWordsInTheOrderOfTheContents) {
    const QString lista = QStringLiteral("lista.htm"), nif = QStringLiteral("nif.htm");
    const struct {
        const char16_t* pregunta;
        QStringList paginas;
    } filas[] = {
        {u"nif", {lista, nif}},
        {u"BUSQUEDA", {lista}},
        {u"búsqueda lista", {lista}},
        {u"busqueda letra", {}},
        {u"h1", {}},
        {u"", {}},
        {u"  ", {}},
        {u"lista", {QStringLiteral("indice.htm"), lista}},
    };
    for (const auto& fila : filas)
        EXPECT_EQ(paginas(fila.pregunta), fila.paginas)
            << QString::fromUtf16(fila.pregunta).toStdString();
}

TEST_F(Busqueda, APageThatCannotBeReadIsNotFound) {
    QFile::remove(ruta(QStringLiteral("Ayuda/lista.htm")));
    EXPECT_EQ(paginas(u"nif"), QStringList{QStringLiteral("nif.htm")});
}

TEST_F(Busqueda, TheTitleComesFromTheContentsAndTheTextFromThePage) {
    const auto hallazgos = buscar(u"busqueda");
    ASSERT_EQ(hallazgos.size(), 1);
    EXPECT_EQ(hallazgos[0].titulo, QStringLiteral("La lista"));
    EXPECT_EQ(hallazgos[0].extracto, QStringLiteral("La lista Búsqueda por NIF."));
}

TEST_F(Busqueda, ALongTextIsCutAtBlanksAroundTheHit) {
    const QByteArray relleno = QByteArray("palabra ").repeated(30);
    escribir(QStringLiteral("Ayuda/nif.htm"), "<p>" + relleno + "aguja " + relleno + "</p>");
    const auto hallazgos = buscar(u"aguja");
    ASSERT_EQ(hallazgos.size(), 1);
    const QString extracto = hallazgos[0].extracto;
    EXPECT_TRUE(extracto.contains(QStringLiteral(" aguja "))) << extracto.toStdString();
    EXPECT_TRUE(extracto.startsWith(QStringLiteral("…palabra "))) << extracto.toStdString();
    EXPECT_TRUE(extracto.endsWith(QStringLiteral(" palabra…"))) << extracto.toStdString();
    EXPECT_LT(extracto.size(), 120);
}

TEST(Contenido, IsReadInItsOrderAndBadLinesAreLeftOut) {
    const QTemporaryDir carpeta;
    QFile fichero(carpeta.filePath(QStringLiteral("contenido.tsv")));
    ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
    fichero.write("pagina\ttitulo\tnivel\r\nb.htm\tÓrdenes\t1\r\n\nsola\na.htm\tUno\t2\n");
    fichero.close();
    const QList<PaginaContenido> esperado = {
        {QStringLiteral("b.htm"), QStringLiteral("Órdenes"), 1},
        {QStringLiteral("a.htm"), QStringLiteral("Uno"), 2}};
    EXPECT_EQ(LeerContenido(carpeta.path()), esperado);
    EXPECT_TRUE(LeerContenido(carpeta.filePath(QStringLiteral("nada"))).isEmpty());
}

}  // namespace
}  // namespace pruebas
}  // namespace padral
