// The browser of the system, looked for in a folder of the test.

#include "platform/browser.h"

#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

namespace padral {
namespace {

struct NavegadorDelSistema : ::testing::Test {
    QTemporaryDir carpeta;
    NavegadorSistema navegador;
    const QByteArray caminos = qgetenv("PATH"), elegido = qgetenv("BROWSER");

    NavegadorDelSistema() {
        qputenv("PATH", carpeta.path().toLocal8Bit());
        qunsetenv("BROWSER");
        escribir(QStringLiteral("temphtm.HTM"), "<HTML>", false);
    }
    ~NavegadorDelSistema() override {
        qputenv("PATH", caminos);
        if (elegido.isNull())
            qunsetenv("BROWSER");
        else
            qputenv("BROWSER", elegido);
    }

    QString ruta(const QString& nombre) const { return carpeta.filePath(nombre); }
    QString pagina() const { return ruta(QStringLiteral("temphtm.HTM")); }
    void escribir(const QString& nombre, const QByteArray& texto, bool programa) const {
        QFile fichero(ruta(nombre));
        ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
        fichero.write(texto);
        const auto ejecutable =
            QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther;
        ASSERT_TRUE(!programa || fichero.setPermissions(ejecutable));
    }
    void instalar(const char16_t* nombre, const QByteArray& orden = "exit 0") const {
        escribir(QString::fromUtf16(nombre), "#!/bin/sh\n" + orden + "\n", true);
    }
    // Name of what is found, "" for nothing.
    QString encontrado() {
        const QString programa = navegador.Buscar(pagina());
        EXPECT_TRUE(programa.isEmpty() || programa.startsWith(carpeta.path() + u'/'))
            << programa.toStdString();
        return programa.mid(carpeta.path().size() + 1);
    }
};

TEST_F(NavegadorDelSistema, IsNoneWhereNoneIs) {
    EXPECT_EQ(encontrado(), QString());
    escribir(QStringLiteral("x-www-browser"), "no program", false);
    EXPECT_EQ(encontrado(), QString());
}

TEST_F(NavegadorDelSistema, IsNoneForAFileThatIsNotThere) {
    instalar(u"x-www-browser");
    EXPECT_EQ(encontrado(), QStringLiteral("x-www-browser"));
    EXPECT_EQ(navegador.Buscar(ruta(QStringLiteral("otra.HTM"))), QString());
    EXPECT_EQ(navegador.Buscar(carpeta.path()), QString());
}

TEST_F(NavegadorDelSistema, OpensAddressesOfTheWebToo) {
    instalar(u"x-www-browser");
    for (const char16_t* direccion : {u"https://www.kelmaria.example/a", u"http://localhost/"})
        EXPECT_EQ(navegador.Buscar(QString::fromUtf16(direccion)),
                  ruta(QStringLiteral("x-www-browser")));
    for (const char16_t* otra : {u"file:///etc/hosts", u"javascript:alert(1)", u""})
        EXPECT_EQ(navegador.Buscar(QString::fromUtf16(otra)), QString());
}

TEST_F(NavegadorDelSistema, IsTheDesktopsBeforeTheSystems) {
    instalar(u"x-www-browser");
    instalar(u"xdg-open");
    EXPECT_EQ(encontrado(), QStringLiteral("xdg-open"));
    instalar(u"xdg-mime", "[ \"$*\" = \"query default text/html\" ] && echo firefox.desktop");
    EXPECT_EQ(encontrado(), QStringLiteral("xdg-open"));
}

TEST_F(NavegadorDelSistema, IsNotTheDesktopsWithoutAProgramForPages) {
    instalar(u"xdg-open");
    instalar(u"xdg-mime", "echo");
    EXPECT_EQ(encontrado(), QString());
    instalar(u"x-www-browser");
    EXPECT_EQ(encontrado(), QStringLiteral("x-www-browser"));
}

TEST_F(NavegadorDelSistema, IsTheOneThatTheUserNames) {
    instalar(u"x-www-browser");
    instalar(u"xdg-open");
    instalar(u"propio");
    qputenv("BROWSER", "falta:falta --new %s:propio:xdg-open");
    EXPECT_EQ(encontrado(), QStringLiteral("propio"));
    qputenv("BROWSER", ruta(QStringLiteral("propio")).toLocal8Bit());
    EXPECT_EQ(encontrado(), QStringLiteral("propio"));
    for (const char* sin : {"", ":", "falta"}) {
        qputenv("BROWSER", sin);
        EXPECT_EQ(encontrado(), QStringLiteral("xdg-open"));
    }
}

TEST_F(NavegadorDelSistema, OpensTheFileAsItsOnlyArgument) {
    const QString anotado = ruta(QStringLiteral("anotado"));
    instalar(u"propio", "printf '%s|' \"$#\" \"$@\" >\"" + anotado.toLocal8Bit() +
                            ".nuevo\"; PATH=/usr/bin:/bin mv \"" + anotado.toLocal8Bit() +
                            ".nuevo\" \"" + anotado.toLocal8Bit() + "\"");
    const QString conBlanco = ruta(QStringLiteral("una pagina.HTM"));
    ASSERT_TRUE(navegador.Abrir(ruta(QStringLiteral("propio")), conBlanco));
    // The program runs on its own and tells by the file that it has begun.
    for (const QDeadlineTimer limite(10'000); !QFile::exists(anotado) && !limite.hasExpired();)
        QThread::yieldCurrentThread();
    QFile fichero(anotado);
    ASSERT_TRUE(fichero.open(QIODevice::ReadOnly));
    EXPECT_EQ(QString::fromLocal8Bit(fichero.readAll()), QStringLiteral("1|%1|").arg(conBlanco));
}

TEST_F(NavegadorDelSistema, TellsWhenItDoesNotStart) {
    EXPECT_FALSE(navegador.Abrir(ruta(QStringLiteral("falta")), pagina()));
    EXPECT_FALSE(navegador.Abrir(QString(), pagina()));
}

}  // namespace
}  // namespace padral
