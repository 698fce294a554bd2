// The pages themselves: both languages whole, every link leads to a page, every page is in the
// contents, every form has its page.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocument>

#include "core/help/help_contents.h"
#include "core/help/help_topics.h"

using padral::LeerContenido;
using padral::TemasAyuda;

namespace {

const QDir Paginas(QStringLiteral(PADRAL_SOURCE_DIR "/data/help"));

QStringList nombres(const QString& idioma) {
    return QDir(Paginas.filePath(idioma)).entryList({QStringLiteral("*.htm")}, QDir::Files);
}

QString leer(const QString& idioma, const QString& nombre) {
    QFile fichero(Paginas.filePath(idioma + u'/' + nombre));
    EXPECT_TRUE(fichero.open(QIODevice::ReadOnly)) << nombre.toStdString();
    return QString::fromUtf8(fichero.readAll());
}

QStringList enlaces(const QString& html) {
    static const QRegularExpression enlace(QStringLiteral("href=\"([^\"]*)\""));
    QStringList destinos;
    for (auto cada = enlace.globalMatch(html); cada.hasNext();) destinos << cada.next().captured(1);
    return destinos;
}

struct Idioma {
    QString carpeta, inicio;
};
void PrintTo(const Idioma& idioma, std::ostream* salida) {
    *salida << idioma.carpeta.toStdString();
}

class PaginasDeAyuda : public ::testing::TestWithParam<Idioma> {};

TEST_P(PaginasDeAyuda, TienenTituloYTexto) {
    ASSERT_TRUE(nombres(GetParam().carpeta).contains(GetParam().inicio));
    for (const QString& nombre : nombres(GetParam().carpeta)) {
        QTextDocument pagina;
        pagina.setHtml(leer(GetParam().carpeta, nombre));
        EXPECT_FALSE(pagina.metaInformation(QTextDocument::DocumentTitle).isEmpty())
            << nombre.toStdString();
        EXPECT_GT(pagina.toPlainText().size(), 200) << nombre.toStdString();
        EXPECT_FALSE(pagina.toPlainText().contains(QChar::ReplacementCharacter))
            << nombre.toStdString();
    }
}

TEST_P(PaginasDeAyuda, CadaEnlaceLlegaYCadaPaginaSeAlcanza) {
    const QStringList todas = nombres(GetParam().carpeta);
    QStringList alcanzadas{GetParam().inicio};
    for (qsizetype i = 0; i < alcanzadas.size(); ++i)
        for (const QString& destino : enlaces(leer(GetParam().carpeta, alcanzadas[i]))) {
            EXPECT_TRUE(todas.contains(destino))
                << alcanzadas[i].toStdString() << " -> " << destino.toStdString();
            if (!alcanzadas.contains(destino)) alcanzadas << destino;
        }
    EXPECT_EQ(alcanzadas.size(), todas.size());
}

TEST_P(PaginasDeAyuda, ElContenidoLasNombraTodasUnaVez) {
    QStringList nombradas;
    for (const auto& cada : LeerContenido(Paginas.filePath(GetParam().carpeta)))
        nombradas << cada.pagina;
    EXPECT_EQ(nombradas.value(0), GetParam().inicio);
    nombradas.sort();
    EXPECT_EQ(nombradas, nombres(GetParam().carpeta));
}

TEST_P(PaginasDeAyuda, ElTituloEsElDelContenido) {
    for (const auto& cada : LeerContenido(Paginas.filePath(GetParam().carpeta))) {
        if (cada.pagina == GetParam().inicio) continue;
        QTextDocument pagina;
        pagina.setHtml(leer(GetParam().carpeta, cada.pagina));
        EXPECT_EQ(pagina.begin().text().toStdString(), cada.titulo.toStdString());
    }
}

TEST_P(PaginasDeAyuda, CadaFormularioTieneLaSuya) {
    const QStringList todas = nombres(GetParam().carpeta);
    const bool euskera = GetParam().carpeta == QStringLiteral("eu");
    for (const auto& tema : TemasAyuda()) {
        const QString pagina = QString::fromUtf16(euskera ? tema.euskera : tema.castellano);
        EXPECT_TRUE(todas.contains(pagina)) << pagina.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(
    Idiomas, PaginasDeAyuda,
    ::testing::Values(Idioma{QStringLiteral("es"), QStringLiteral("indice.htm")},
                      Idioma{QStringLiteral("eu"), QStringLiteral("aurkibidea.htm")}));

// The page of a form stands at the same place of both contents.
TEST(PaginasDeAyudaIdiomas, LosContenidosVanALaPar) {
    const auto es = LeerContenido(Paginas.filePath(QStringLiteral("es")));
    const auto eu = LeerContenido(Paginas.filePath(QStringLiteral("eu")));
    ASSERT_EQ(es.size(), eu.size());
    QMap<QString, QString> parejas;
    for (qsizetype i = 0; i < es.size(); ++i) {
        parejas[es[i].pagina] = eu[i].pagina;
        EXPECT_EQ(es[i].nivel, eu[i].nivel) << es[i].pagina.toStdString();
    }
    for (const auto& tema : TemasAyuda())
        EXPECT_EQ(parejas.value(QString::fromUtf16(tema.castellano)),
                  QString::fromUtf16(tema.euskera));
}

}  // namespace
