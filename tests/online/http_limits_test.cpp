// Time and size of a download.

#include <QElapsedTimer>
#include <QTimer>

#include "online/download_fixture.h"

namespace padral {
namespace {

using pruebas::RespuestaWeb;

constexpr qint64 Mega = 1024 * 1024;

struct LimitesDescarga : pruebas::Descargas {
    LimitesDescarga() { descarga = DescargaHttp(std::chrono::milliseconds(150)); }

    // Refused by its time, and timers ran meanwhile.
    void esperaLimite() {
        int vueltas = 0;
        QTimer contador;
        QObject::connect(&contador, &QTimer::timeout, &contador, [&vueltas] { ++vueltas; });
        contador.start(5);
        QElapsedTimer reloj;
        reloj.start();
        esperaNada(servidor.Url());
        EXPECT_GE(reloj.elapsed(), 145);
        EXPECT_LT(reloj.elapsed(), 10'000);
        EXPECT_GE(vueltas, 3);
    }
};

TEST(LimiteDescarga, IsFifteenSeconds) {
    EXPECT_EQ(DescargaHttp::LimiteNormal, std::chrono::seconds(15));
}

TEST_F(LimitesDescarga, EndsAServerThatNeverAnswers) {
    servidor.Pon("/", {.modo = RespuestaWeb::Callada});
    esperaLimite();
    EXPECT_EQ(servidor.Peticiones.size(), 1U);
}

TEST_F(LimitesDescarga, CountsFromTheStartAndNotFromTheLastByte) {
    servidor.Pon("/", {.cuerpo = QByteArray(100'000, 'x'), .modo = RespuestaWeb::Goteo});
    esperaLimite();
    EXPECT_GE(servidor.Enviados, 2);
}

TEST_F(LimitesDescarga, LetsASlowAnswerEndInTime) {
    descarga = DescargaHttp();
    servidor.Pon("/", {.cuerpo = "slow", .modo = RespuestaWeb::Goteo});
    EXPECT_TRUE(bajar(servidor.Url()));
    EXPECT_EQ(recibido(), "slow");
}

TEST_F(LimitesDescarga, IsOneMegabyte) {
    descarga = DescargaHttp();
    for (const auto modo : {RespuestaWeb::Entera, RespuestaWeb::SinLongitud}) {
        const QByteArray justo(Mega, 'x');
        servidor.Pon("/", {.cuerpo = justo, .modo = modo});
        EXPECT_TRUE(bajar(servidor.Url()));
        EXPECT_TRUE(recibido() == justo);
        ASSERT_TRUE(QFile::remove(fichero()));
        servidor.Pon("/", {.cuerpo = justo + 'x', .modo = modo});
        esperaNada(servidor.Url());
    }
}

// The far side cannot hand over more than what lies in the buffers between.
TEST_F(LimitesDescarga, StopsReadingAHugeAnswer) {
    descarga = DescargaHttp();
    for (const bool conLongitud : {true, false}) {
        servidor.Enviados = 0;
        servidor.Pon(
            "/",
            {.modo = RespuestaWeb::Inundacion, .total = 100 * Mega, .conLongitud = conLongitud});
        esperaNada(servidor.Url());
        EXPECT_GT(servidor.Enviados, 0);
        EXPECT_LT(servidor.Enviados, 32 * Mega);
    }
}

TEST_F(LimitesDescarga, CountsAPackedAnswerUnpacked) {
    descarga = DescargaHttp();
    const auto empaquetado = [](qint64 largo) {
        return qCompress(QByteArray(largo, 'x')).sliced(4);  // without the length before it
    };
    const QByteArray cabecera = "Content-Encoding: deflate\r\n";
    servidor.Pon("/", {.cuerpo = empaquetado(Mega), .cabeceras = cabecera});
    EXPECT_TRUE(bajar(servidor.Url()));
    EXPECT_EQ(recibido().size(), Mega);
    ASSERT_TRUE(QFile::remove(fichero()));
    for (const qint64 largo : {Mega + 1, 20 * Mega}) {
        servidor.Pon("/", {.cuerpo = empaquetado(largo), .cabeceras = cabecera});
        esperaNada(servidor.Url());
    }
}

}  // namespace
}  // namespace padral
