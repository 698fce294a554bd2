// The check with the real download, against a server.

#include <QTimer>

#include "online/download_fixture.h"
#include "online/online_fixture.h"
#include "online/tls_trust.h"

namespace padral {
namespace {

using pruebas::GrabadorDescarga;
using pruebas::RespuestaWeb;
using pruebas::ServidorWeb;

struct ComprobarConServidor : pruebas::Actualizaciones {
    ServidorWeb servidor;
    DescargaHttp descargaHttp{std::chrono::seconds(10)};
    ActualizacionOnline real{estado, descargaHttp, navegador, dialogos()};

    ComprobarConServidor() { act.URLAct = servidor.Url("/version.asp"); }

    /// Checks with that answer: dialogs shown, joined by "|".
    QString comprobar(const RespuestaWeb& respuesta) {
        servidor.Pon("/version.asp", respuesta);
        return comprobar();
    }
    QString comprobar() {
        mostrados.clear();
        real.ComprobarVersion();
        return mostrados.join(u'|');
    }
    static RespuestaWeb version(const char* texto) {
        return {.cuerpo =
                    GrabadorDescarga::FicheroVersion(texto, "http://127.0.0.1/baja", "Texto")};
    }
    void esperaSinConexion(const QString& url) {
        act.SitAct = 0;
        act.URLAct = url;
        EXPECT_EQ(comprobar(), QStringLiteral("FrmSinConexion 1 0")) << url.toStdString();
        EXPECT_EQ(act.SitAct, 1);
        EXPECT_EQ(contenido(ini()), "(none)");
    }
};

TEST_F(ComprobarConServidor, AsksWithTheProgramAndTheLanguage) {
    comprobar(version("1.30.1"));
    ponerEuskera();
    comprobar();
    ASSERT_EQ(servidor.Peticiones.size(), 2U);
    EXPECT_EQ(servidor.Peticiones[0].split('\r').first(),
              "GET /version.asp?Programa=PADRAL&idioma=c HTTP/1.1");
    EXPECT_EQ(servidor.Peticiones[1].split('\r').first(),
              "GET /version.asp?Programa=PADRAL&idioma=e HTTP/1.1");
    for (const QByteArray& peticion : servidor.Peticiones)
        EXPECT_EQ(peticion.indexOf("\r\n\r\n"), peticion.size() - 4);
}

struct CasoServidor {
    const char* version;
    const char16_t *alEmpezar, *desdePreferencias;
    int sitAct, comVer;
};

TEST_F(ComprobarConServidor, ComparesWhatItGets) {
    const CasoServidor casos[] = {
        {"1.30.1", u"", u"FrmVersionCheck 0 0", 3, 0},
        {"1.30.2", u"FrmVersionCheck 0 1", u"FrmVersionCheck 0 1", 3, 1},
        {"1.29.9", u"FrmVersionCheck 0 1", u"FrmVersionCheck 0 1", 3, 1},
        {"1.30", u"FrmSinConexion 4 0", u"FrmSinConexion 4 0", 4, 0},
    };
    for (const auto& caso : casos) {
        for (const bool enPreferencias : {false, true}) {
            preferencias = enPreferencias;
            act.SitAct = act.ComVer = 0;
            EXPECT_EQ(comprobar(version(caso.version)),
                      QString::fromUtf16(enPreferencias ? caso.desdePreferencias : caso.alEmpezar))
                << caso.version;
            EXPECT_EQ(act.SitAct, caso.sitAct) << caso.version;
            EXPECT_EQ(act.ComVer, caso.comVer) << caso.version;
            EXPECT_EQ(contenido(ini()), version(caso.version).cuerpo);
        }
    }
}

TEST_F(ComprobarConServidor, FillsTheState) {
    comprobar(version("1.31.4"));
    EXPECT_EQ(act.ActVer1, QStringLiteral("1"));
    EXPECT_EQ(act.ActVer2, QStringLiteral("31"));
    EXPECT_EQ(act.ActVer3, QStringLiteral("4"));
    EXPECT_EQ(act.ActDownloadURL, QStringLiteral("http://127.0.0.1/baja"));
    EXPECT_EQ(act.ActDescripcion, QStringLiteral("Texto"));
}

TEST_F(ComprobarConServidor, FindsBadDataInAnEmptyAnswerAndInAPage) {
    for (const char* cuerpo : {"", "<html><body>1.31.4</body></html>"}) {
        act.SitAct = 0;
        EXPECT_EQ(comprobar({.cuerpo = cuerpo}), QStringLiteral("FrmSinConexion 4 0"));
        EXPECT_EQ(act.SitAct, 4);
    }
}

TEST_F(ComprobarConServidor, HasNoConnection) {
    RespuestaWeb noEsta = version("1.31.4");
    noEsta.estado = 404;
    servidor.Pon("/falta", noEsta);
    esperaSinConexion(servidor.Url("/falta"));
    esperaSinConexion(pruebas::UrlMuerta());
    esperaSinConexion(QString());
    esperaSinConexion(QStringLiteral("file://") + ini());
    servidor.Pon("/enorme", {.modo = RespuestaWeb::Inundacion, .total = 100 * 1024 * 1024});
    esperaSinConexion(servidor.Url("/enorme"));
    ServidorWeb seguro(true);
    seguro.Pon("/", version("1.31.4"));
    esperaSinConexion(seguro.Url());
}

TEST_F(ComprobarConServidor, GivesUpOnAServerThatIsSilentAndTheProgramGoesOn) {
    descargaHttp = DescargaHttp(std::chrono::milliseconds(150));
    int vueltas = 0;
    QTimer contador;
    QObject::connect(&contador, &QTimer::timeout, &contador, [&vueltas] { ++vueltas; });
    contador.start(5);
    servidor.Pon("/callada", {.modo = RespuestaWeb::Callada});
    esperaSinConexion(servidor.Url("/callada"));
    EXPECT_GE(vueltas, 3);
}

TEST_F(ComprobarConServidor, LosesTheFileOfBeforeWhenItFails) {
    comprobar(version("1.30.1"));
    ASSERT_NE(contenido(ini()), "(none)");
    esperaSinConexion(pruebas::UrlMuerta());
}

TEST_F(ComprobarConServidor, FollowsARedirect) {
    servidor.Pon("/otra", version("1.31.4"));
    servidor.Redirige("/version.asp", QStringLiteral("/otra"));
    EXPECT_EQ(comprobar(), QStringLiteral("FrmVersionCheck 0 1"));
}

TEST_F(ComprobarConServidor, TakesAnEndpointWithACertificate) {
    const pruebas::Confianza confianza;
    ServidorWeb seguro(true);
    seguro.Pon("/", version("1.30.1"));
    act.URLAct = seguro.Url();
    EXPECT_EQ(comprobar(), QString());
    EXPECT_EQ(act.SitAct, 3);
}

TEST_F(ComprobarConServidor, IsSilentWhereTheFolderCannotBeWritten) {
    estado.CarpetaPrograma = carpeta.filePath(QStringLiteral("nowhere"));
    EXPECT_EQ(real.DescargarVersionIni(), 4);
    EXPECT_EQ(comprobar(version("1.31.4")), QString());
    EXPECT_EQ(act.SitAct, 0);
    EXPECT_EQ(act.ComVer, 0);
    estado.CarpetaPrograma = carpeta.path();
    ocupar(ini());
    EXPECT_EQ(comprobar(), QString());
    EXPECT_EQ(act.SitAct, 0);
    EXPECT_TRUE(servidor.Peticiones.empty());
}

}  // namespace
}  // namespace padral
