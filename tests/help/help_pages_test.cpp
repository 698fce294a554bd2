// The pages themselves: both languages whole, every link leads to a page.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTextDocument>

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

INSTANTIATE_TEST_SUITE_P(
    Idiomas, PaginasDeAyuda,
    ::testing::Values(Idioma{QStringLiteral("es"), QStringLiteral("indice.htm")},
                      Idioma{QStringLiteral("eu"), QStringLiteral("aurkibidea.htm")}));

TEST(PaginasDeAyudaIdiomas, SonTantasEnUnoComoEnOtro) {
    EXPECT_EQ(nombres(QStringLiteral("es")).size(), nombres(QStringLiteral("eu")).size());
}

}  // namespace
