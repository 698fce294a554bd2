// The pages themselves: both languages whole, every link leads to a page, every page is in the
// contents, every form has its page, and what they quote from the screens is what the screens say.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>
#include <QTextLayout>
#include <algorithm>

#include "core/help/help_contents.h"
#include "core/help/help_topics.h"
#include "page_texts.h"

namespace padral::pruebas {
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

/// The first word of a laid out paragraph that goes on in the next line; empty when none does.
QString palabraPartida(const QTextBlock& bloque) {
    const QString texto = bloque.text();
    for (int i = 0; i + 1 < bloque.layout()->lineCount(); ++i) {
        const QTextLine linea = bloque.layout()->lineAt(i);
        const int corte = linea.textStart() + linea.textLength();
        if (texto[corte - 1].isLetterOrNumber() && texto[corte].isLetterOrNumber())
            return texto.left(corte) + u'|' + texto.mid(corte);
    }
    return {};
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

TEST_P(PaginasDeAyuda, LosRotulosEnNegritaSonDeLasPantallas) {
    QSet<QString> conocidos = TextosAjenos(GetParam().carpeta);
    for (const QString& texto : TextosDelCatalogo(GetParam().carpeta))
        conocidos << ComoSeLee(texto);
    int vistos = 0;
    for (const QString& nombre : nombres(GetParam().carpeta))
        for (const QString& rotulo : Rotulos(leer(GetParam().carpeta, nombre))) {
            EXPECT_TRUE(conocidos.contains(ComoSeLee(rotulo)))
                << nombre.toStdString() << ": " << rotulo.toStdString();
            ++vistos;
        }
    EXPECT_GT(vistos, 200);
}

// A row that no page needs any more, or that came to be a catalogue text, goes.
TEST_P(PaginasDeAyuda, LosTextosAjenosHacenFalta) {
    QSet<QString> rotulos, catalogo;
    for (const QString& nombre : nombres(GetParam().carpeta))
        for (const QString& rotulo : Rotulos(leer(GetParam().carpeta, nombre))) rotulos << rotulo;
    for (const QString& texto : TextosDelCatalogo(GetParam().carpeta)) catalogo << ComoSeLee(texto);
    for (const QString& ajeno : TextosAjenos(GetParam().carpeta)) {
        EXPECT_TRUE(rotulos.contains(ajeno)) << ajeno.toStdString();
        EXPECT_FALSE(catalogo.contains(ajeno)) << ajeno.toStdString();
    }
}

TEST_P(PaginasDeAyuda, LosMensajesCitadosSonDelCatalogo) {
    QStringList textos;
    for (const QString& texto : TextosDelCatalogo(GetParam().carpeta)) textos << ComoSeLee(texto);
    int vistas = 0;
    for (const QString& nombre : nombres(GetParam().carpeta))
        for (QString cita : Citas(leer(GetParam().carpeta, nombre))) {
            const QString entera = ComoSeLee(cita);
            // A quote may leave out the end of its text.
            if (cita.endsWith(QStringLiteral("..."))) cita.chop(3);
            const auto es = [&](const QString& texto) {
                return texto == entera || (!cita.isEmpty() && EsComienzo(ComoSeLee(cita), texto));
            };
            EXPECT_TRUE(std::any_of(textos.cbegin(), textos.cend(), es))
                << nombre.toStdString() << ": " << entera.toStdString();
            ++vistas;
        }
    EXPECT_GT(vistas, 90);
}

TEST_P(PaginasDeAyuda, LasTeclasSonLasDeSusRotulos) {
    const QStringList textos = TextosDelCatalogo(GetParam().carpeta);
    int vistas = 0;
    for (const QString& nombre : nombres(GetParam().carpeta)) {
        const QString html = leer(GetParam().carpeta, nombre);
        const auto teclas = TeclasNombradas(html);
        EXPECT_EQ(teclas.size(), html.count(QStringLiteral("Alt+"))) << nombre.toStdString();
        vistas += static_cast<int>(teclas.size());
        for (const auto& tecla : teclas) {
            const auto suya = [&](const QString& texto) {
                return ComoSeLee(texto) == tecla.rotulo &&
                       texto.contains(u'&' + tecla.letra, Qt::CaseInsensitive);
            };
            EXPECT_TRUE(std::any_of(textos.cbegin(), textos.cend(), suya))
                << nombre.toStdString() << ": Alt+" << tecla.letra.toStdString() << ' '
                << tecla.rotulo.toStdString();
        }
    }
    EXPECT_GT(vistas, 30);
}

// A table whose columns are too narrow breaks its words.
TEST_P(PaginasDeAyuda, NingunaPalabraSeParteEnUnaVentanaEstrecha) {
    constexpr int Ancho = 500;
    for (const QString& nombre : nombres(GetParam().carpeta)) {
        QTextBrowser navegador;
        navegador.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
        navegador.resize(Ancho, Ancho);
        navegador.setHtml(leer(GetParam().carpeta, nombre));
        navegador.document()->setTextWidth(navegador.viewport()->width());
        for (auto bloque = navegador.document()->begin(); bloque.isValid(); bloque = bloque.next())
            EXPECT_EQ(palabraPartida(bloque).toStdString(), "") << nombre.toStdString();
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
}  // namespace padral::pruebas
