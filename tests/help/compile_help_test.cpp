// The script that compiles a help file: what it refuses, in lines that editors read, and the index
// that it makes.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace padral::pruebas {
namespace {

constexpr const char* Pagina =
    "<html><head><title>Una</title></head><body><h1>Una página</h1></body></html>\n";

struct Resultado {
    int estado;
    QString errores;
};

class Compilacion : public ::testing::Test {
protected:
    Compilacion() {
        for (const char* pagina : {"a.htm", "b.htm", "c.htm"}) escribir(pagina, Pagina);
        tabla("a.htm\tÍndice\t1\nb.htm\tLista\t1\nc.htm\tZona\t2\n");
    }

    QString ruta(const char* nombre) const { return carpeta_.filePath(QString::fromUtf8(nombre)); }
    QString rutaTabla() const { return ruta("es/contenido.tsv"); }
    void escribir(const char* nombre, const QByteArray& texto) const {
        QDir().mkpath(ruta("es"));
        QFile fichero(ruta("es/") + QString::fromUtf8(nombre));
        ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
        fichero.write(texto);
    }
    void tabla(const QByteArray& filas) const {
        escribir("contenido.tsv", "pagina\ttitulo\tnivel\n" + filas);
    }
    Resultado compilar() const {
        const auto dato = [](const char* nombre, const QString& valor) {
            return QStringLiteral("-D%1=%2").arg(QString::fromLatin1(nombre), valor);
        };
        QProcess proceso;
        proceso.start(
            QStringLiteral(CMAKE),
            {dato("CHMCMD", QStringLiteral(CHMCMD)), dato("SOURCE", ruta("es")),
             dato("WORK", ruta("work")), dato("TARGET", ruta("Ayuda")),
             dato("NAME", QStringLiteral("Prueba")), dato("START", QStringLiteral("a.htm")),
             dato("LCID", QStringLiteral("0x0c0a")), dato("TITLE", QStringLiteral("Prueba")),
             QStringLiteral("-P"),
             QStringLiteral(PADRAL_SOURCE_DIR "/data/help/compile_help.cmake")});
        if (!proceso.waitForFinished()) return {-1, proceso.errorString()};
        return {proceso.exitCode(), QString::fromUtf8(proceso.readAllStandardError())};
    }
    /// Refused in that line of the table in these words, and nothing is made.
    void rechazada(int linea, const char* que) const {
        const auto [estado, errores] = compilar();
        EXPECT_NE(estado, 0) << que;
        EXPECT_EQ(errores.section(u'\n', 0, 0).toStdString(),
                  (rutaTabla() + QStringLiteral(":%1: ").arg(linea)).toStdString() + que);
        EXPECT_FALSE(QFile::exists(ruta("Ayuda"))) << que;
    }
    /// Titles of the index in their order.
    QStringList indice() const {
        QFile fichero(ruta("work/Prueba.hhk"));
        EXPECT_TRUE(fichero.open(QIODevice::ReadOnly));
        QStringList titulos;
        for (const QString& parte : QString::fromLatin1(fichero.readAll())
                                        .split(QStringLiteral("name=\"Name\" value=\""))
                                        .mid(1))
            titulos << parte.section(u'"', 0, 0);
        return titulos;
    }

    QTemporaryDir carpeta_;
};

TEST_F(Compilacion, MakesTheFileAndTheFolderBesideIt) {
    const auto [estado, errores] = compilar();
    EXPECT_EQ(estado, 0) << errores.toStdString();
    EXPECT_EQ(errores, QString());
    EXPECT_TRUE(QFile::exists(ruta("Ayuda/Prueba.chm")));
    EXPECT_EQ(QDir(ruta("Ayuda/Prueba")).entryList(QDir::Files).size(), 4);
}

TEST_F(Compilacion, RefusesARowThatIsNotPageTitleAndLevel) {
    for (const char* fila :
         {"b.htm\tLista", "b.htm\tLista\t0", "b.htm\tLista\t10", "b.htm\tLista\t1\t2", "b.htm\t\t1",
          "b.html\tLista\t1", "../b.htm\tLista\t1", "b;.htm\tLista\t1", "", "b.htm [\tLista\t1"}) {
        tabla(QByteArray("a.htm\tUna\t1\n") + fila + "\nc.htm\tZona\t1\n");
        rechazada(3, (std::string("not page, title and level: ") + fila).c_str());
    }
}

// What the letters of the file's code page do not have, and what the table or the project would
// take for something else.
TEST_F(Compilacion, RefusesALetterThatTitlesMayNotHave) {
    for (const char* titulo :
         {"Uno; dos", "Uno [1", "Uno 1]", "Uno \\ dos", "Uno\\", ";", "«Uno»", "“Uno”", "Uno – dos",
          "10 €", "Façana", "Uno \"dos\"", "A & B", "<b>", "A\x01",
          "Espan\xCC\x83"
          "a",
          "A\xF1"}) {
        tabla(QByteArray("a.htm\tUna\t1\nb.htm\t") + titulo + "\t1\nc.htm\tZona\t1\n");
        const auto [estado, errores] = compilar();
        EXPECT_NE(estado, 0) << titulo;
        EXPECT_TRUE(errores.startsWith(rutaTabla() +
                                       QStringLiteral(":3: a letter that titles may not have: ")))
            << titulo << '\n'
            << errores.toStdString();
        EXPECT_FALSE(QFile::exists(ruta("Ayuda"))) << titulo;
    }
}

TEST_F(Compilacion, TakesEveryLetterThatTitlesMayHave) {
    const char* titulo = "ÁÉÍÓÚÑÜ áéíóúñü AZ az 09 !#$%'()*+,-./:=?@^_`{|}~ ${x}";
    tabla(QByteArray("a.htm\t") + titulo + "\t1\nb.htm\tLista\t1\nc.htm\tZona\t2\n");
    const auto [estado, errores] = compilar();
    EXPECT_EQ(estado, 0) << errores.toStdString();
    EXPECT_TRUE(indice().contains(QString::fromUtf8(titulo))) << indice().join(u'\n').toStdString();
}

TEST_F(Compilacion, TakesTheLineEndsOfOtherSystems) {
    tabla("a.htm\tÍndice\t1\r\nb.htm\tLista\t1\r\nc.htm\tZona\t2\r\n");
    const auto [estado, errores] = compilar();
    EXPECT_EQ(estado, 0) << errores.toStdString();
    EXPECT_EQ(indice(), (QStringList{QStringLiteral("Índice"), QStringLiteral("Lista"),
                                     QStringLiteral("Zona")}));
}

TEST_F(Compilacion, RefusesAPageThatIsMissingOrNamedTwice) {
    tabla("a.htm\tUna\t1\nb.htm\tLista\t1\nc.htm\tZona\t1\nd.htm\tNada\t1\n");
    rechazada(5, "no page d.htm");
    tabla("a.htm\tUna\t1\nb.htm\tLista\t1\na.htm\tOtra\t1\nc.htm\tZona\t1\n");
    rechazada(4, "page a.htm is named twice");
}

TEST_F(Compilacion, RefusesAPageThatTheTableDoesNotName) {
    tabla("a.htm\tUna\t1\nc.htm\tZona\t1\n");
    rechazada(3, "the page b.htm has no row");
    tabla("");
    rechazada(1, "the page a.htm has no row");
}

TEST_F(Compilacion, LeavesWhatWasMadeBeforeWhenARowIsBad) {
    ASSERT_EQ(compilar().estado, 0);
    tabla("a.htm\tUna\n");
    EXPECT_NE(compilar().estado, 0);
    EXPECT_TRUE(QFile::exists(ruta("Ayuda/Prueba.chm")));
}

TEST_F(Compilacion, SortsTheIndexAsADictionaryDoes) {
    for (const char* pagina : {"d.htm", "e.htm", "f.htm", "g.htm"}) escribir(pagina, Pagina);
    tabla(
        "g.htm\tZona\t1\nf.htm\tÑandú\t1\ne.htm\tlista de más\t1\nd.htm\tÍndice\t1\n"
        "c.htm\tNuez\t1\nb.htm\tLista\t1\na.htm\tAño\t1\n");
    const auto [estado, errores] = compilar();
    ASSERT_EQ(estado, 0) << errores.toStdString();
    EXPECT_EQ(indice(),
              (QStringList{QStringLiteral("Año"), QStringLiteral("Índice"), QStringLiteral("Lista"),
                           QStringLiteral("lista de más"), QStringLiteral("Nuez"),
                           QStringLiteral("Ñandú"), QStringLiteral("Zona")}));
}

}  // namespace
}  // namespace padral::pruebas
