// A download of a whole answer, and what is no connection.

#include <QTcpSocket>

#include "online/download_fixture.h"
#include "platform/failure.h"

namespace padral {
namespace {

using pruebas::RespuestaWeb;

using DescargaWeb = pruebas::Descargas;

TEST_F(DescargaWeb, WritesTheAnswerAndNothingElse) {
    const QByteArray cuerpo = "[informacion]\r\ncurrentversion=1.30.1\r\n" + QByteArray(1, '\0');
    servidor.Pon("/", {.cuerpo = cuerpo});
    EXPECT_TRUE(bajar(servidor.Url("/una/pagina")));
    EXPECT_EQ(recibido(), cuerpo);
    EXPECT_EQ(QDir(carpeta.path()).entryList(QDir::Files | QDir::Hidden),
              QStringList(QStringLiteral("recibido.ini")));
}

TEST_F(DescargaWeb, IsAPlainGet) {
    ASSERT_TRUE(bajar(servidor.Url("/una/pagina.asp?Programa=PADRAL&idioma=c")));
    ASSERT_EQ(servidor.Peticiones.size(), 1U);
    const QByteArray peticion = servidor.Peticiones[0];
    EXPECT_TRUE(peticion.startsWith("GET /una/pagina.asp?Programa=PADRAL&idioma=c HTTP/1.1\r\n"))
        << peticion.toStdString();
    EXPECT_TRUE(peticion.endsWith("\r\n\r\n"));
    EXPECT_EQ(peticion.count("\r\n\r\n"), 1);
    for (const char* cabecera : {"content-length:", "content-type:", "transfer-encoding:",
                                 "cookie:", "referer:", "authorization:", "range:"})
        EXPECT_FALSE(peticion.toLower().contains(cabecera)) << peticion.toStdString();
}

TEST_F(DescargaWeb, TakesThePlaceOfAnOlderFile) {
    servidor.Pon("/", {.cuerpo = "first, the longer one"});
    servidor.Pon("/2", {.cuerpo = "second"});
    EXPECT_TRUE(bajar(servidor.Url("/")));
    EXPECT_TRUE(bajar(servidor.Url("/2")));
    EXPECT_EQ(recibido(), "second");
}

TEST_F(DescargaWeb, LeavesTheOlderFileWhenItFails) {
    servidor.Pon("/", {.cuerpo = "old"});
    ASSERT_TRUE(bajar(servidor.Url("/")));
    servidor.Pon("/", {.cuerpo = "new", .estado = 500});
    EXPECT_FALSE(bajar(servidor.Url("/")));
    EXPECT_EQ(recibido(), "old");
}

TEST_F(DescargaWeb, TakesAnswersOfSuccess) {
    for (const int estado : {200, 201, 203, 299}) {
        servidor.Pon("/", {.cuerpo = "text " + QByteArray::number(estado), .estado = estado});
        EXPECT_TRUE(bajar(servidor.Url())) << estado;
        EXPECT_EQ(recibido(), "text " + QByteArray::number(estado));
    }
}

TEST_F(DescargaWeb, TakesAnEmptyAnswer) {
    servidor.Pon("/", {.cuerpo = ""});
    EXPECT_TRUE(bajar(servidor.Url()));
    EXPECT_EQ(recibido(), "");
}

TEST_F(DescargaWeb, RefusesEveryOtherAnswer) {
    for (const int estado :
         {300, 302, 304, 400, 401, 403, 404, 407, 410, 429, 500, 502, 503, 600}) {
        servidor.Pon("/", {.cuerpo = estado == 304 ? "" : "an error page", .estado = estado});
        esperaNada(servidor.Url());
    }
}

TEST_F(DescargaWeb, RefusesWhatIsNoAnswer) {
    QTcpServer mudo;
    ASSERT_TRUE(mudo.listen(QHostAddress::LocalHost));
    QObject::connect(&mudo, &QTcpServer::newConnection,
                     [&mudo] { mudo.nextPendingConnection()->close(); });
    esperaNada(QStringLiteral("http://127.0.0.1:%1/").arg(mudo.serverPort()));
    esperaNada(pruebas::UrlMuerta());
}

TEST_F(DescargaWeb, RefusesAnAnswerThatBreaksOff) {
    servidor.Pon("/", {.cuerpo = "[informacion]", .modo = RespuestaWeb::Cortada});
    esperaNada(servidor.Url());
}

TEST_F(DescargaWeb, TakesAnAnswerThatTellsNoLength) {
    servidor.Pon("/", {.cuerpo = "[informacion]", .modo = RespuestaWeb::SinLongitud});
    EXPECT_TRUE(bajar(servidor.Url()));
    EXPECT_EQ(recibido(), "[informacion]");
}

TEST_F(DescargaWeb, RefusesOtherSchemes) {
    QFile propio(QStringLiteral(PADRAL_SOURCE_DIR "/tests/online/README.md"));
    ASSERT_TRUE(propio.exists());
    const QString puerto = QString::number(servidor.serverPort());
    for (const QString& url :
         {QString(), QStringLiteral("?Programa=PADRAL&idioma=c"),
          QStringLiteral("127.0.0.1:") + puerto, QStringLiteral("//127.0.0.1:") + puerto,
          QStringLiteral("ftp://127.0.0.1:") + puerto,
          QStringLiteral("file://") + propio.fileName(), propio.fileName(),
          QStringLiteral("data:text/plain,x"), QStringLiteral("qrc:/texts.tsv"),
          QStringLiteral("http://"), QStringLiteral("https:///x")})
        esperaNada(url);
    EXPECT_TRUE(servidor.Peticiones.empty());
}

TEST_F(DescargaWeb, TakesASchemeInCapitals) {
    servidor.Pon("/", {.cuerpo = "text"});
    EXPECT_TRUE(bajar(servidor.Url().replace(QStringLiteral("http"), QStringLiteral("HTTP"))));
    EXPECT_EQ(recibido(), "text");
}

TEST_F(DescargaWeb, ThrowsWhereTheFileCannotBeWrittenAndAsksNobody) {
    QDir(carpeta.path()).mkdir(QStringLiteral("recibido.ini"));
    for (const QString& ruta :
         {fichero(), carpeta.filePath(QStringLiteral("nowhere/recibido.ini"))}) {
        try {
            descarga.Descargar(servidor.Url(), ruta);
            ADD_FAILURE() << ruta.toStdString();
        } catch (const Fallo& fallo) {
            EXPECT_EQ(fallo.Castellano(),
                      QStringLiteral("No se puede escribir en «%1».").arg(ruta));
            EXPECT_EQ(fallo.Euskera(), QStringLiteral("Ezin da «%1» helbidean idatzi.").arg(ruta));
        }
    }
    EXPECT_TRUE(servidor.Peticiones.empty());
}

}  // namespace
}  // namespace padral
