// How the whole program starts, fails and ends: each case is a process of its own.

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace {

const QString Salida = QStringLiteral("salida");

QByteArray contenido(const QString& ruta) {
    QFile fichero(ruta);
    EXPECT_TRUE(fichero.open(QIODevice::ReadOnly)) << ruta.toStdString();
    return fichero.readAll();
}

void escribir(const QString& ruta, const QByteArray& datos) {
    QFile fichero(ruta);
    ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
    fichero.write(datos);
}

void sql(const QString& ruta, const char* orden) {
    sqlite3* base = nullptr;
    ASSERT_EQ(sqlite3_open(ruta.toUtf8().constData(), &base), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(base, orden, nullptr, nullptr, nullptr), SQLITE_OK)
        << sqlite3_errmsg(base);
    sqlite3_close(base);
}

/// A program folder of its own with fresh data.
class Programa : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(carpeta_.isValid());
        ASSERT_TRUE(QDir(carpeta_.path()).mkpath(QStringLiteral("Tablas")));
        ASSERT_TRUE(QDir(carpeta_.path()).mkpath(Salida));
        for (const char* nombre : {"DPadralLec.mdb", "DPadralMod.mdb"})
            ASSERT_TRUE(QFile::copy(
                QStringLiteral(PADRAL_BINARY_DIR "/data/") + QString::fromLatin1(nombre),
                tabla(nombre)));
    }
    QString tabla(const char* nombre) const {
        return carpeta_.filePath(QStringLiteral("Tablas/") + QString::fromLatin1(nombre));
    }
    QString mod() const { return tabla("DPadralMod.mdb"); }

    /// Runs the program and returns its exit status; the lines it wrote are in `lineas`.
    int correr(const QString& accion) {
        QProcess proceso;
        proceso.start(QStringLiteral(PADRAL_PROBE),
                      {carpeta_.path(), carpeta_.filePath(Salida), accion});
        EXPECT_TRUE(proceso.waitForFinished(60000));
        lineas =
            QString::fromUtf8(proceso.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
        EXPECT_EQ(proceso.exitStatus(), QProcess::NormalExit) << lineas.join(u'\n').toStdString();
        return proceso.exitCode();
    }
    /// The one error box: its title is the program's, it names the file.
    void esperarFallo(const QString& nombre) {
        ASSERT_FALSE(lineas.isEmpty());
        const QString caja = lineas.last();
        EXPECT_TRUE(caja.startsWith(QStringLiteral("BOX 3 [Declaración Padral] ")))
            << caja.toStdString();
        EXPECT_TRUE(caja.contains(nombre)) << caja.toStdString();
        EXPECT_EQ(lineas.filter(QStringLiteral("BOX 3")).size(), 1);
        EXPECT_EQ(lineas.filter(QStringLiteral("BOX 0")).size(), 0);
    }

    QTemporaryDir carpeta_;
    QStringList lineas;
};

TEST_F(Programa, AsksTheLanguageAtTheFirstStartOnly) {
    EXPECT_EQ(correr(QStringLiteral("start")), 0);
    EXPECT_TRUE(lineas.contains(QStringLiteral("LANGUAGE ASKED")));
    EXPECT_EQ(correr(QStringLiteral("start")), 0);
    EXPECT_FALSE(lineas.contains(QStringLiteral("LANGUAGE ASKED")));
    EXPECT_TRUE(lineas.contains(QStringLiteral("WINDOW OPEN")));
}

TEST_F(Programa, ALaterStartWritesNothing) {
    ASSERT_EQ(correr(QStringLiteral("start")), 0);
    const auto antes = contenido(mod());
    ASSERT_EQ(correr(QStringLiteral("start")), 0);
    EXPECT_EQ(contenido(mod()), antes);
}

TEST_F(Programa, ClosingTheWindowEndsTheProcess) {
    ASSERT_EQ(correr(QStringLiteral("start")), 0);
    EXPECT_EQ(correr(QStringLiteral("exec")), 0);
    EXPECT_TRUE(lineas.isEmpty()) << lineas.join(u'\n').toStdString();
}

TEST_F(Programa, AMigrationThatAsksForANewStartEndsWithNoMessage) {
    EXPECT_EQ(correr(QStringLiteral("stop")), 0);
    EXPECT_TRUE(lineas.isEmpty()) << lineas.join(u'\n').toStdString();
}

TEST_F(Programa, MissingDeclarationsFile) {
    ASSERT_TRUE(QFile::remove(mod()));
    EXPECT_EQ(correr(QStringLiteral("start")), 1);
    esperarFallo(QStringLiteral("DPadralMod.mdb"));
    EXPECT_FALSE(QFile::exists(mod()));
    // The language is not known yet: the cause stands in both.
    EXPECT_TRUE(lineas.last().contains(QStringLiteral("No se encuentra")))
        << lineas.last().toStdString();
    EXPECT_TRUE(lineas.last().contains(QStringLiteral("||"))) << lineas.last().toStdString();
}

TEST_F(Programa, MissingCatalogueFile) {
    ASSERT_TRUE(QFile::remove(tabla("DPadralLec.mdb")));
    EXPECT_EQ(correr(QStringLiteral("start")), 1);
    esperarFallo(QStringLiteral("DPadralLec.mdb"));
}

TEST_F(Programa, DamagedFileStaysAsItIs) {
    const QByteArray basura = QByteArray("no es una base de datos").repeated(500);
    escribir(mod(), basura);
    EXPECT_EQ(correr(QStringLiteral("start")), 1);
    esperarFallo(QStringLiteral("DPadralMod.mdb"));
    EXPECT_TRUE(lineas.last().contains(QStringLiteral("ComprobarBDVersion|")));
    EXPECT_EQ(contenido(mod()), basura);
}

TEST_F(Programa, ForeignFileStaysAsItIs) {
    ASSERT_TRUE(QFile::remove(mod()));
    sql(mod(), "CREATE TABLE otra(x); INSERT INTO otra VALUES(1);");
    const auto antes = contenido(mod());
    EXPECT_EQ(correr(QStringLiteral("start")), 1);
    esperarFallo(QStringLiteral("DPadralMod.mdb"));
    EXPECT_EQ(contenido(mod()), antes);
}

TEST_F(Programa, NewerFileStaysAsItIs) {
    sql(mod(), "PRAGMA user_version = 9999;");
    const auto antes = contenido(mod());
    EXPECT_EQ(correr(QStringLiteral("start")), 1);
    esperarFallo(QStringLiteral("DPadralMod.mdb"));
    EXPECT_EQ(contenido(mod()), antes);
}

TEST_F(Programa, FileLockedTooLong) {
    ASSERT_EQ(correr(QStringLiteral("start")), 0);
    sqlite3* base = nullptr;
    ASSERT_EQ(sqlite3_open(mod().toUtf8().constData(), &base), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(base, "BEGIN EXCLUSIVE;", nullptr, nullptr, nullptr), SQLITE_OK);
    EXPECT_EQ(correr(QStringLiteral("start")), 1);
    esperarFallo(QStringLiteral("DPadralMod.mdb"));
    sqlite3_close(base);
    EXPECT_EQ(correr(QStringLiteral("start")), 0);
}

TEST_F(Programa, PrinterThatFailsKeepsTheSavedDeclaration) {
    ASSERT_EQ(correr(QStringLiteral("start")), 0);
    // A file stands where the folder of printed files should be.
    ASSERT_TRUE(QDir(carpeta_.filePath(Salida)).removeRecursively());
    escribir(carpeta_.filePath(Salida), "x");
    EXPECT_EQ(correr(QStringLiteral("print")), 1);
    ASSERT_FALSE(lineas.isEmpty());
    esperarFallo(Salida);
    sqlite3* base = nullptr;
    ASSERT_EQ(sqlite3_open(mod().toUtf8().constData(), &base), SQLITE_OK);
    sqlite3_stmt* consulta = nullptr;
    ASSERT_EQ(sqlite3_prepare_v2(base, "PRAGMA integrity_check", -1, &consulta, nullptr),
              SQLITE_OK);
    ASSERT_EQ(sqlite3_step(consulta), SQLITE_ROW);
    EXPECT_STREQ(reinterpret_cast<const char*>(sqlite3_column_text(consulta, 0)), "ok");
    sqlite3_finalize(consulta);
    ASSERT_EQ(
        sqlite3_prepare_v2(base, "SELECT count(*) FROM TDeclaraciones", -1, &consulta, nullptr),
        SQLITE_OK);
    ASSERT_EQ(sqlite3_step(consulta), SQLITE_ROW);
    EXPECT_EQ(sqlite3_column_int(consulta, 0), 1);
    sqlite3_finalize(consulta);
    sqlite3_close(base);
    ASSERT_TRUE(QFile::remove(carpeta_.filePath(Salida)));
    EXPECT_EQ(correr(QStringLiteral("save")), 0);
}

TEST_F(Programa, PrintsBothCopies) {
    ASSERT_EQ(correr(QStringLiteral("start")), 0);
    EXPECT_EQ(correr(QStringLiteral("print")), 0);
    const auto pdf = QDir(carpeta_.filePath(Salida)).entryList({QStringLiteral("*.pdf")});
    EXPECT_EQ(pdf, (QStringList{QStringLiteral("417-12345678Z-AD-20260131-101500.pdf"),
                                QStringLiteral("417-12345678Z-IT-20260131-101500.pdf")}));
}

TEST_F(Programa, LeavingWithChangesWarnsAndStays) {
    ASSERT_EQ(correr(QStringLiteral("start")), 0);
    EXPECT_EQ(correr(QStringLiteral("leave")), 0);
    EXPECT_TRUE(lineas.contains(QStringLiteral("WINDOW OPEN")));
    EXPECT_EQ(lineas.filter(QStringLiteral("BOX 2")).size(), 1);
    EXPECT_TRUE(
        lineas.filter(QStringLiteral("BOX 2"))
            .value(0)
            .endsWith(QStringLiteral("Existen modificaciones pendientes : grabar o cancelar")));
}

TEST_F(Programa, ClosingTheWindowWarnsAndEnds) {
    ASSERT_EQ(correr(QStringLiteral("start")), 0);
    const auto antes = contenido(mod());
    EXPECT_EQ(correr(QStringLiteral("close")), 0);
    EXPECT_TRUE(lineas.contains(QStringLiteral("WINDOW CLOSED")));
    EXPECT_EQ(lineas.filter(QStringLiteral("BOX 2")).size(), 1);
    EXPECT_EQ(contenido(mod()), antes);
}

TEST_F(Programa, TourLeavesPicturesAndPrintedPages) {
    QProcess proceso;
    proceso.start(QStringLiteral(PADRAL_TOUR), {carpeta_.filePath(Salida)});
    ASSERT_TRUE(proceso.waitForFinished(110000));
    EXPECT_EQ(proceso.exitCode(), 0);
    const QString texto = QString::fromUtf8(proceso.readAllStandardOutput());
    EXPECT_TRUE(texto.contains(QStringLiteral("The tour is over: "))) << texto.toStdString();
    const QDir salida(carpeta_.filePath(Salida));
    // Two copies in each language of a company, a community and a non-resident.
    for (const char* nif : {"A12345674", "E12345674", "N1234567D"})
        EXPECT_EQ(salida.entryList({QStringLiteral("417-%1-*.pdf").arg(QLatin1String(nif))}).size(),
                  4)
            << nif;
    EXPECT_EQ(salida.entryList({QStringLiteral("*.png")}).size(), 74);
}

}  // namespace
