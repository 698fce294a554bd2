#include "online/web_server.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QSslCertificate>
#include <QSslKey>
#include <QSslSocket>
#include <QTimer>
#include <algorithm>
#include <memory>

namespace padral::pruebas {

namespace {

constexpr int PasoGoteo = 5;  // milliseconds
constexpr qint64 TrozoInundacion = 64 * 1024;

QByteArray deLaCarpeta(const char* nombre) {
    QFile fichero(QStringLiteral(PADRAL_SOURCE_DIR "/tests/online/") + QString::fromLatin1(nombre));
    EXPECT_TRUE(fichero.open(QIODevice::ReadOnly)) << nombre;
    return fichero.readAll();
}

QTcpSocket* enlaceSeguro(qintptr descriptor, QObject* padre) {
    auto* enlace = new QSslSocket(padre);
    enlace->setSocketDescriptor(descriptor);
    enlace->setLocalCertificate(QSslCertificate(deLaCarpeta("test_certificate.pem")));
    enlace->setPrivateKey(QSslKey(deLaCarpeta("test_key.pem"), QSsl::Ec));
    enlace->startServerEncryption();
    return enlace;
}

QTcpSocket* enlaceClaro(qintptr descriptor, QObject* padre) {
    auto* enlace = new QTcpSocket(padre);
    enlace->setSocketDescriptor(descriptor);
    return enlace;
}

QByteArray cabeza(const RespuestaWeb& r) {
    QByteArray texto = "HTTP/1.1 " + QByteArray::number(r.estado) + " Text\r\n" + r.cabeceras;
    qint64 largo = r.cuerpo.size();
    if (r.modo == RespuestaWeb::Inundacion) largo = r.total;
    if (r.modo == RespuestaWeb::Cortada) ++largo;
    if (r.modo != RespuestaWeb::SinLongitud && r.conLongitud)
        texto += "Content-Length: " + QByteArray::number(largo) + "\r\n";
    return texto + "\r\n";
}

}  // namespace

ServidorWeb::ServidorWeb(bool seguro, const QString& maquina) : seguro_(seguro) {
    EXPECT_TRUE(listen(QHostAddress(maquina)));
}

void ServidorWeb::Redirige(const QByteArray& ruta, const QString& destino, int estado) {
    Pon(ruta, {.cuerpo = "elsewhere",
               .estado = estado,
               .cabeceras = "Location: " + destino.toUtf8() + "\r\n"});
}

QString ServidorWeb::Url(const char* ruta) const {
    return QStringLiteral("%1://%2:%3%4")
        .arg(seguro_ ? QStringLiteral("https") : QStringLiteral("http"), serverAddress().toString(),
             QString::number(serverPort()), QString::fromLatin1(ruta));
}

void ServidorWeb::incomingConnection(qintptr descriptor) {
    QTcpSocket* enlace = seguro_ ? enlaceSeguro(descriptor, this) : enlaceClaro(descriptor, this);
    connect(enlace, &QTcpSocket::readyRead, this, [this, enlace] { atender(enlace); });
    connect(enlace, &QTcpSocket::disconnected, enlace, &QObject::deleteLater);
}

void ServidorWeb::atender(QTcpSocket* enlace) {
    const QByteArray peticion = enlace->property("peticion").toByteArray() + enlace->readAll();
    const bool entera = peticion.contains("\r\n\r\n");
    enlace->setProperty("peticion", entera ? QByteArray() : peticion);
    if (!entera) return;
    Peticiones.push_back(peticion);
    const QByteArray ruta = peticion.split(' ').value(1).split('?').first();
    responder(enlace, respuestas_.contains(ruta) ? respuestas_[ruta] : respuestas_["/"]);
}

void ServidorWeb::responder(QTcpSocket* enlace, const RespuestaWeb& r) {
    if (r.modo == RespuestaWeb::Callada) return;
    enlace->write(cabeza(r));
    if (r.modo == RespuestaWeb::Goteo) {
        gotear(enlace, r.cuerpo);
    } else if (r.modo == RespuestaWeb::Inundacion) {
        inundar(enlace, r.total);
    } else {
        enlace->write(r.cuerpo);
        if (r.modo != RespuestaWeb::Entera) enlace->disconnectFromHost();
    }
}

void ServidorWeb::gotear(QTcpSocket* enlace, const QByteArray& cuerpo) {
    auto* reloj = new QTimer(enlace);
    connect(reloj, &QTimer::timeout, enlace, [this, enlace, reloj, falta = cuerpo]() mutable {
        Enviados += enlace->write(falta.left(1));
        falta.remove(0, 1);
        if (falta.isEmpty()) reloj->deleteLater();
    });
    reloj->start(PasoGoteo);
}

void ServidorWeb::inundar(QTcpSocket* enlace, qint64 total) {
    auto falta = std::make_shared<qint64>(total);
    const auto seguir = [this, enlace, falta] {
        if (enlace->bytesToWrite() > 0) return;
        if (*falta == 0) {
            enlace->disconnectFromHost();
            return;
        }
        const QByteArray trozo(qsizetype{std::min(TrozoInundacion, *falta)}, 'x');
        Enviados += enlace->write(trozo);
        *falta -= trozo.size();
    };
    connect(enlace, &QTcpSocket::bytesWritten, enlace, seguir);
}

}  // namespace padral::pruebas
