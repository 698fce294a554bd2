// Certificates: the download takes none that does not hold.

#include <QTcpSocket>

#include "online/download_fixture.h"
#include "online/tls_trust.h"

namespace padral {
namespace {

using pruebas::Confianza;
using pruebas::ServidorWeb;

struct DescargaSegura : pruebas::Descargas {
    ServidorWeb seguro{true};
    DescargaSegura() { seguro.Pon("/", {.cuerpo = "text"}); }
};

TEST_F(DescargaSegura, TakesAGoodCertificate) {
    const Confianza confianza;
    EXPECT_TRUE(bajar(seguro.Url()));
    EXPECT_EQ(recibido(), "text");
    EXPECT_EQ(seguro.Peticiones.size(), 1U);
}

TEST_F(DescargaSegura, RefusesOneThatNobodySigned) {
    esperaNada(seguro.Url());
    EXPECT_TRUE(seguro.Peticiones.empty());
}

TEST_F(DescargaSegura, RefusesOneOfAnotherMachine) {
    const Confianza confianza;
    ServidorWeb otra(true, QStringLiteral("127.0.0.2"));
    otra.Pon("/", {.cuerpo = "text"});
    esperaNada(otra.Url());
    EXPECT_TRUE(otra.Peticiones.empty());
}

TEST_F(DescargaSegura, RefusesAServerThatDoesNotSpeakIt) {
    QTcpServer otro;
    ASSERT_TRUE(otro.listen(QHostAddress::LocalHost));
    QObject::connect(&otro, &QTcpServer::newConnection,
                     [&otro] { otro.nextPendingConnection()->write("220 good day\r\n"); });
    esperaNada(QStringLiteral("https://127.0.0.1:%1/").arg(otro.serverPort()));
}

}  // namespace
}  // namespace padral
