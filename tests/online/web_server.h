#pragma once
// A web server on the loopback address, in the process of the test.

#include <QHash>
#include <QTcpServer>
#include <functional>
#include <vector>

namespace padral::pruebas {

/// How the server answers a path.
struct RespuestaWeb {
    enum Modo {
        Entera,       ///< sends `cuerpo` with its length
        SinLongitud,  ///< the same without a length; the end of the connection ends it
        Cortada,      ///< announces one byte more than it sends, then closes
        Callada,      ///< never answers
        Goteo,        ///< one byte of the body every few milliseconds
        Inundacion,   ///< sends `total` bytes as fast as they are taken
    };
    QByteArray cuerpo = {};
    int estado = 200;
    QByteArray cabeceras = {};  ///< further ones, each ending in CR LF
    Modo modo = Entera;
    qint64 total = 0;
    bool conLongitud = true;  ///< of an Inundacion
};

class ServidorWeb : public QTcpServer {
public:
    /// With `seguro` it speaks TLS with the certificate of these tests, which is for 127.0.0.1.
    explicit ServidorWeb(bool seguro = false, const QString& maquina = QStringLiteral("127.0.0.1"));

    /// The answer to a path, "/" for every one that is not named.
    void Pon(const QByteArray& ruta, const RespuestaWeb& respuesta) {
        respuestas_[ruta] = respuesta;
    }
    void Redirige(const QByteArray& ruta, const QString& destino, int estado = 302);

    /// "http://127.0.0.1:port", or https, followed by the path.
    QString Url(const char* ruta = "/") const;

    /// Whole requests in the order in which they came, head and body.
    std::vector<QByteArray> Peticiones;
    /// Bytes of bodies handed to the system.
    qint64 Enviados = 0;

protected:
    void incomingConnection(qintptr descriptor) override;

private:
    void atender(QTcpSocket* enlace);
    void responder(QTcpSocket* enlace, const RespuestaWeb& r);
    void gotear(QTcpSocket* enlace, const QByteArray& cuerpo);
    void inundar(QTcpSocket* enlace, qint64 total);

    bool seguro_;
    QHash<QByteArray, RespuestaWeb> respuestas_;
};

}  // namespace padral::pruebas
