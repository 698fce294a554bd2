// Redirects of a download.

#include "online/download_fixture.h"
#include "online/tls_trust.h"

namespace padral {
namespace {

using pruebas::ServidorWeb;

struct Redirecciones : pruebas::Descargas {
    Redirecciones() { servidor.Pon("/final", {.cuerpo = "text"}); }

    // A chain of so many redirects that ends at "/final".
    QString cadena(int pasos) {
        for (int i = 1; i <= pasos; ++i) {
            const QString destino =
                i == 1 ? QStringLiteral("/final") : QStringLiteral("/paso%1").arg(i - 1);
            servidor.Redirige("/paso" + QByteArray::number(i), destino);
        }
        return servidor.Url("/paso") + QString::number(pasos);
    }
};

TEST_F(Redirecciones, AreFollowed) {
    for (const int estado : {301, 302, 303, 307, 308}) {
        servidor.Redirige("/otra", servidor.Url("/final"), estado);
        EXPECT_TRUE(bajar(servidor.Url("/otra"))) << estado;
        EXPECT_EQ(recibido(), "text");
        ASSERT_TRUE(QFile::remove(fichero()));
    }
}

TEST_F(Redirecciones, AreFollowedFiveTimes) {
    EXPECT_TRUE(bajar(cadena(5)));
    EXPECT_EQ(recibido(), "text");
    EXPECT_EQ(servidor.Peticiones.size(), 6U);
}

TEST_F(Redirecciones, AreNotFollowedSixTimes) {
    esperaNada(cadena(6));
    for (const QByteArray& peticion : servidor.Peticiones)
        EXPECT_FALSE(peticion.startsWith("GET /final ")) << peticion.toStdString();
}

TEST_F(Redirecciones, InACircleEnd) {
    servidor.Redirige("/circulo", QStringLiteral("/circulo"));
    esperaNada(servidor.Url("/circulo"));
}

// Each step takes at least 60 milliseconds and none the whole time.
TEST_F(Redirecciones, ShareOneTimeLimit) {
    descarga = DescargaHttp(std::chrono::milliseconds(200));
    servidor.Pon("/lenta", {.cuerpo = QByteArray(12, 'x'),
                            .estado = 302,
                            .cabeceras = "Location: /lenta\r\n",
                            .modo = pruebas::RespuestaWeb::Goteo});
    esperaNada(servidor.Url("/lenta"));
    EXPECT_LE(servidor.Peticiones.size(), 4U);
}

TEST_F(Redirecciones, LeadToAnAnswerThatCounts) {
    servidor.Pon("/falta", {.cuerpo = "an error page", .estado = 404});
    servidor.Redirige("/otra", QStringLiteral("/falta"));
    esperaNada(servidor.Url("/otra"));
}

TEST_F(Redirecciones, ToOtherSchemesAreRefused) {
    const QString propio = QStringLiteral("file://" PADRAL_SOURCE_DIR "/tests/online/README.md");
    for (const QString& destino :
         {propio, QStringLiteral("ftp://127.0.0.1/x"), QStringLiteral("data:text/plain,x"),
          QStringLiteral("qrc:/texts.tsv"), QString()}) {
        servidor.Redirige("/otra", destino);
        esperaNada(servidor.Url("/otra"));
    }
}

TEST_F(Redirecciones, CarryNoCookie) {
    servidor.Pon("/otra",
                 {.estado = 302, .cabeceras = "Location: /final\r\nSet-Cookie: quien=tu\r\n"});
    ASSERT_TRUE(bajar(servidor.Url("/otra")));
    ASSERT_EQ(servidor.Peticiones.size(), 2U);
    EXPECT_FALSE(servidor.Peticiones[1].toLower().contains("cookie"));
}

TEST_F(Redirecciones, GoFromHttpToHttps) {
    const pruebas::Confianza confianza;
    ServidorWeb seguro(true);
    seguro.Pon("/final", {.cuerpo = "safe"});
    servidor.Redirige("/otra", seguro.Url("/final"));
    EXPECT_TRUE(bajar(servidor.Url("/otra")));
    EXPECT_EQ(recibido(), "safe");
}

TEST_F(Redirecciones, NeverGoFromHttpsToHttp) {
    const pruebas::Confianza confianza;
    ServidorWeb seguro(true);
    seguro.Redirige("/otra", servidor.Url("/final"));
    esperaNada(seguro.Url("/otra"));
    EXPECT_EQ(seguro.Peticiones.size(), 1U);
    EXPECT_TRUE(servidor.Peticiones.empty());
}

}  // namespace
}  // namespace padral
