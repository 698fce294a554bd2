// The steps of the check: fetching the version file and reading it.

#include "online/online_fixture.h"
#include "platform/another_user.h"
#include "platform/failure.h"

namespace padral {
namespace {

using FicheroVersion = pruebas::Actualizaciones;
using pruebas::GrabadorDescarga;

TEST_F(FicheroVersion, IsAskedForInTheLanguageOfTheRun) {
    descarga.Contenido = "x";
    EXPECT_EQ(online.DescargarVersionIni(), 3);
    ponerEuskera();
    EXPECT_EQ(online.DescargarVersionIni(), 3);
    EXPECT_EQ(
        descarga.Direcciones,
        (QStringList{QStringLiteral("http://127.0.0.1/version.asp?Programa=PADRAL&idioma=c"),
                     QStringLiteral("http://127.0.0.1/version.asp?Programa=PADRAL&idioma=e")}));
    EXPECT_EQ(descarga.Ficheros, (QStringList{ini(), ini()}));
}

TEST_F(FicheroVersion, OfBeforeIsDeletedFirst) {
    escribir(ini(), "old");
    bool estaba = true;
    descarga.alDescargar = [&] { estaba = QFile::exists(ini()); };
    EXPECT_EQ(online.DescargarVersionIni(), 1);
    EXPECT_FALSE(estaba);
    EXPECT_EQ(contenido(ini()), "(none)");
}

TEST_F(FicheroVersion, ThatIsALinkToNothingIsDeletedToo) {
    ASSERT_TRUE(QFile::link(carpeta.filePath(QStringLiteral("nowhere")), ini()));
    descarga.Contenido = "new";
    EXPECT_EQ(online.DescargarVersionIni(), 3);
    EXPECT_FALSE(QFileInfo(ini()).isSymLink());
    EXPECT_EQ(contenido(ini()), "new");
}

TEST_F(FicheroVersion, ThatCannotBeDeletedIsAFailureAndAsksNobody) {
    ocupar(ini());
    EXPECT_EQ(online.DescargarVersionIni(), 4);
    EXPECT_TRUE(descarga.Direcciones.isEmpty());
}

TEST_F(FicheroVersion, InAFolderThatCannotBeWrittenIsAFailure) {
    escribir(ini(), "old");
    const auto leer = QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup |
                      QFile::ReadOther | QFile::ExeOther;
    ASSERT_TRUE(QFile::setPermissions(carpeta.path(), leer));
    {
        const test::AnotherUser otro;
        EXPECT_EQ(online.DescargarVersionIni(), 4);
    }
    EXPECT_TRUE(descarga.Direcciones.isEmpty());
    ASSERT_TRUE(QFile::setPermissions(carpeta.path(), leer | QFile::WriteOwner));
}

TEST_F(FicheroVersion, IsAFailureWhenAnExceptionOccurs) {
    descarga.Contenido = "x";
    descarga.alDescargar = [] { throw Fallo(QStringLiteral("no"), QStringLiteral("ez")); };
    EXPECT_EQ(online.DescargarVersionIni(), 4);
    descarga.alDescargar = [] { throw std::bad_alloc(); };
    EXPECT_EQ(online.DescargarVersionIni(), 4);
}

TEST_F(FicheroVersion, CountsAsFetchedUnderItsNameAlone) {
    const QString url = QStringLiteral("http://127.0.0.1/x?y");
    EXPECT_EQ(online.DescargarArchivo(url, ini()), 1);
    descarga.Contenido = "x";
    EXPECT_EQ(online.DescargarArchivo(url, ini()), 3);
    EXPECT_EQ(online.DescargarArchivo(url, carpeta.filePath(QStringLiteral("otro.ini"))), 1);
    EXPECT_EQ(descarga.Direcciones, (QStringList{url, url, url}));
}

TEST_F(FicheroVersion, CountsAsFetchedOnlyWhenItIsThere) {
    descarga.Contenido = "x";
    struct SoloDice : Descarga {
        bool Descargar(const QString&, const QString&) override { return true; }
    } soloDice;
    ActualizacionOnline otra(estado, soloDice, navegador, dialogos());
    EXPECT_EQ(otra.DescargarArchivo(act.URLAct, ini()), 1);
    EXPECT_EQ(otra.DescargarVersionIni(), 1);
    ocupar(ini());
    EXPECT_EQ(otra.DescargarArchivo(act.URLAct, ini()), 1);
}

TEST_F(FicheroVersion, IsReadIntoTheState) {
    escribir(ini(), GrabadorDescarga::FicheroVersion(" \" 1.31.2 \" ", "\" http://a/b?c=d \"",
                                                     "\" Versi\xF3n nueva; con todo = m\xE1s \""));
    EXPECT_EQ(online.LeerVersionIni(), 0);
    EXPECT_EQ(act.ActVer1, QStringLiteral("1"));
    EXPECT_EQ(act.ActVer2, QStringLiteral("31"));
    EXPECT_EQ(act.ActVer3, QStringLiteral("2"));
    EXPECT_EQ(act.ActDownloadURL, QStringLiteral("http://a/b?c=d"));
    EXPECT_EQ(act.ActDescripcion, QStringLiteral("Versión nueva; con todo = más"));
    EXPECT_EQ(act.SitAct, 0);
}

TEST_F(FicheroVersion, NeedsOnlyTheVersion) {
    act.ActDownloadURL = act.ActDescripcion = QStringLiteral("old");
    escribir(ini(), "[informacion]\ncurrentversion=1.30.1\n");
    EXPECT_EQ(online.LeerVersionIni(), 0);
    EXPECT_EQ(act.ActDownloadURL, QString());
    EXPECT_EQ(act.ActDescripcion, QString());
}

struct CasoVersion {
    const char* version;
    int resultado, distinta;
};

TEST_F(FicheroVersion, IsComparedAsText) {
    const CasoVersion casos[] = {
        {"1.30.1", 0, 0},     {"1.30.2", 0, 1}, {"1.31.1", 0, 1},  {"2.30.1", 0, 1},
        {"1.29.9", 0, 1},     {"0.30.1", 0, 1}, {"01.30.1", 0, 1}, {"1.030.1", 0, 1},
        {"1.30.01", 0, 1},    {"1.30.", 0, 1},  {"..", 0, 1},      {"1.30.1.7", 0, 0},
        {"1 . 30 . 1", 0, 0}, {"a.b.c", 0, 1},  {"1.30", 4, 0},    {"1", 4, 0},
        {"", 4, 0},           {"1,30,1", 4, 0}, {".", 4, 0},
    };
    for (const auto& caso : casos) {
        act.ComVer = 0;
        escribir(ini(), GrabadorDescarga::FicheroVersion(caso.version, "u", "d"));
        EXPECT_EQ(online.LeerVersionIni(), caso.resultado) << caso.version;
        EXPECT_EQ(act.ComVer, caso.distinta) << caso.version;
    }
}

TEST_F(FicheroVersion, ComparesWithARunningVersionWithoutItsBlanks) {
    act.ProgVer2 = QStringLiteral(" 30 ");
    escribir(ini(), GrabadorDescarga::FicheroVersion("1.30.1", "u", "d"));
    EXPECT_EQ(online.LeerVersionIni(), 0);
    EXPECT_EQ(act.ComVer, 0);
}

TEST_F(FicheroVersion, ThatIsMissingOrEmptyOrNoneIsAFailure) {
    EXPECT_EQ(online.LeerVersionIni(), 4);
    for (const char* texto : {"", "<html>1.2.3</html>", "[otra]\ncurrentversion=1.30.1\n"}) {
        escribir(ini(), texto);
        EXPECT_EQ(online.LeerVersionIni(), 4) << texto;
    }
    EXPECT_EQ(act.ComVer, 0);
}

TEST_F(FicheroVersion, GivesItsValuesByName) {
    escribir(ini(), "[otra]\nuna=1\n[informacion]\nuna=2\n");
    EXPECT_EQ(ActualizacionOnline::LeerValorIni(QStringLiteral("informacion"),
                                                QStringLiteral("UNA"), ini()),
              QStringLiteral("2"));
    EXPECT_EQ(ActualizacionOnline::LeerValorIni(QStringLiteral("informacion"),
                                                QStringLiteral("otra"), ini()),
              QString());
}

}  // namespace
}  // namespace padral
