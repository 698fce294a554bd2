// The compiled help files of this build: every page of the contents is in them as it was written,
// and so are the pages in the folder beside them.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "core/help/help_contents.h"

namespace padral::pruebas {
namespace {

const QDir Construida(QStringLiteral(PADRAL_BINARY_DIR "/bin/Ayuda"));
const QDir Fuente(QStringLiteral(PADRAL_SOURCE_DIR "/data/help"));

struct FicheroCompilado {
    const char* idioma;
    const char* nombre;
    const char* inicio;
    int lcid;
};
void PrintTo(const FicheroCompilado& fichero, std::ostream* salida) { *salida << fichero.nombre; }

QByteArray leer(const QString& ruta) {
    QFile fichero(ruta);
    EXPECT_TRUE(fichero.open(QIODevice::ReadOnly)) << ruta.toStdString();
    return fichero.readAll();
}

/// The lister of the compiler's package, which some releases install under a name with version.
QString lister() {
    for (const QString& name : {QStringLiteral("chmls"), QStringLiteral("chmls-3.2.2")})
        if (const QString found = QStandardPaths::findExecutable(name); !found.isEmpty())
            return found;
    return {};
}

class Compilada : public ::testing::TestWithParam<FicheroCompilado> {
protected:
    QString nombre() const { return QString::fromLatin1(GetParam().nombre); }
    QString construido() const { return Construida.filePath(nombre() + QStringLiteral(".chm")); }
    QString fichero() const { return copia_.filePath(nombre() + QStringLiteral(".chm")); }
    QString fuente() const { return Fuente.filePath(QString::fromLatin1(GetParam().idioma)); }

    /// What the lister of the compiler's package says.
    QByteArray listar(const QStringList& argumentos) {
        QProcess listador;
        listador.setWorkingDirectory(salida_.path());
        listador.start(programa_, argumentos);
        EXPECT_TRUE(listador.waitForFinished());
        EXPECT_EQ(listador.exitCode(), 0);
        return listador.readAllStandardOutput();
    }
    // The compiler's package is required: without its lister nothing here would be tested.
    void SetUp() override {
        ASSERT_FALSE(programa_.isEmpty()) << "chmls is missing; it comes with the package fp-utils";
        // The lister locks the file: two tests at a time must not list the same one.
        ASSERT_TRUE(QFile::copy(construido(), fichero()));
    }
    void extraer() { listar({QStringLiteral("extractall"), fichero(), salida_.path()}); }

    const QString programa_ = lister();
    QTemporaryDir copia_, salida_;
};

TEST_P(Compilada, HoldsEveryPageAsItWasWritten) {
    extraer();
    const auto contenido = LeerContenido(fuente());
    ASSERT_FALSE(contenido.isEmpty());
    for (const auto& cada : contenido)
        EXPECT_EQ(leer(salida_.filePath(cada.pagina)), leer(fuente() + u'/' + cada.pagina))
            << cada.pagina.toStdString();
}

TEST_P(Compilada, HoldsTheTitlesInItsContentsAndIndex) {
    extraer();
    for (const char* extension : {".hhc", ".hhk"}) {
        const QString mapa =
            QString::fromLatin1(leer(salida_.filePath(nombre() + QString::fromLatin1(extension))));
        for (const auto& cada : LeerContenido(fuente()))
            EXPECT_TRUE(
                mapa.contains(QStringLiteral("value=\"%1\"><param name=\"Local\" value=\"%2\"")
                                  .arg(cada.titulo, cada.pagina)))
                << cada.pagina.toStdString() << ' ' << extension;
    }
}

TEST_P(Compilada, NamesItsLanguageAndFirstPage) {
    const QByteArray sistema = listar({QStringLiteral("printsystem"), fichero()});
    EXPECT_TRUE(sistema.contains(": " + QByteArray::number(GetParam().lcid) + "\n"))
        << sistema.toStdString();
    EXPECT_TRUE(sistema.contains(QByteArray(":") + GetParam().inicio)) << sistema.toStdString();
}

TEST_P(Compilada, TheSamePagesLieBesideIt) {
    const QDir junto(Construida.filePath(nombre()));
    const QStringList tipos = {QStringLiteral("*.htm"), QStringLiteral("*.tsv")};
    const QStringList paginas = QDir(fuente()).entryList(tipos, QDir::Files);
    EXPECT_EQ(junto.entryList(tipos, QDir::Files), paginas);
    for (const QString& pagina : paginas)
        EXPECT_EQ(leer(junto.filePath(pagina)), leer(fuente() + u'/' + pagina))
            << pagina.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Ficheros, Compilada,
                         ::testing::Values(FicheroCompilado{"es", "Ayuda", "indice.htm", 0x0c0a},
                                           FicheroCompilado{"eu", "Laguntza", "aurkibidea.htm",
                                                            0x042d}));

}  // namespace
}  // namespace padral::pruebas
