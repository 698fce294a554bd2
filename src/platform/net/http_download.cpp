#include "platform/net/http_download.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSaveFile>
#include <QTimer>
#include <memory>

#include "platform/failure.h"

namespace padral {

namespace {

constexpr qint64 TamanoMaximo = 1024 * 1024;
constexpr int RedireccionesMaximas = 5;

bool esSegura(const QUrl& direccion) { return direccion.scheme() == QStringLiteral("https"); }

bool esDeWeb(const QUrl& direccion) {
    return direccion.scheme() == QStringLiteral("http") || esSegura(direccion);
}

[[noreturn]] void fallarEscritura(const QString& ruta) {
    const QString nombre = QDir::toNativeSeparators(ruta);
    throw Fallo(QStringLiteral("No se puede escribir en «%1».").arg(nombre),
                QStringLiteral("Ezin da «%1» helbidean idatzi.").arg(nombre));
}

bool esBuena(const QNetworkReply& respuesta) {
    return respuesta.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() / 100 == 2;
}

// Redirects are followed by hand: Qt's own way asks for some pages twice.
QNetworkRequest peticion(const QUrl& direccion) {
    QNetworkRequest p(direccion);
    p.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    return p;
}

class Recepcion {
public:
    Recepcion(QSaveFile& salida, std::chrono::milliseconds limite)
        : salida_(salida), limite_(limite) {}

    // Whether an answer of success came whole.
    bool Completa(QUrl direccion) {
        for (int redirecciones = 0; redirecciones <= RedireccionesMaximas; ++redirecciones) {
            const Final final = recibir(direccion);
            if (final.destino.isEmpty()) return final.buena;
            if (!seSigue(direccion, final.destino)) return false;
            direccion = final.destino;
        }
        return false;
    }

private:
    struct Final {
        bool buena = false;
        QUrl destino;  // of a redirect
    };

    // Never from https to http, and never to another scheme.
    static bool seSigue(const QUrl& desde, const QUrl& hasta) {
        return hasta.scheme() == desde.scheme() || esSegura(hasta);
    }

    Final recibir(const QUrl& direccion) {
        QNetworkAccessManager gestor;
        const std::unique_ptr<QNetworkReply> respuesta(gestor.get(peticion(direccion)));
        // The far side waits once this much has come and nobody has read it.
        respuesta->setReadBufferSize(TamanoMaximo);
        recibidos_ = 0;
        QEventLoop bucle;
        QObject::connect(respuesta.get(), &QNetworkReply::readyRead, &bucle,
                         [&] { guardarLlegado(*respuesta); });
        QObject::connect(respuesta.get(), &QNetworkReply::finished, &bucle, &QEventLoop::quit);
        QTimer::singleShot(static_cast<int>(limite_.remainingTime()), respuesta.get(),
                           &QNetworkReply::abort);
        if (!respuesta->isFinished()) bucle.exec(QEventLoop::ExcludeUserInputEvents);
        guardarLlegado(*respuesta);
        return finalDe(*respuesta);
    }

    // Writes what comes of a good answer until there is too much of it.
    void guardarLlegado(QNetworkReply& respuesta) {
        if (!respuesta.isOpen()) return;  // given up
        const QByteArray trozo = respuesta.readAll();
        recibidos_ += trozo.size();
        if (recibidos_ > TamanoMaximo)
            respuesta.abort();
        else if (esBuena(respuesta))
            salida_.write(trozo);
    }

    Final finalDe(const QNetworkReply& respuesta) const {
        // The loop also ends with the program.
        if (!respuesta.isFinished() || respuesta.error() != QNetworkReply::NoError) return {};
        const QUrl destino =
            respuesta.attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
        if (!destino.isEmpty()) return {false, respuesta.url().resolved(destino)};
        return {esBuena(respuesta) && recibidos_ <= TamanoMaximo, {}};
    }

    QSaveFile& salida_;
    QDeadlineTimer limite_;
    qint64 recibidos_ = 0;
};

}  // namespace

bool DescargaHttp::Descargar(const QString& direccion, const QString& fichero) {
    const QUrl url(direccion);
    if (!esDeWeb(url)) return false;
    // Written under another name; without a commit nothing of it stays.
    QSaveFile salida(fichero);
    if (!salida.open(QIODevice::WriteOnly)) fallarEscritura(fichero);
    if (!Recepcion(salida, limite_).Completa(url)) return false;
    if (!salida.commit()) fallarEscritura(fichero);
    return true;
}

}  // namespace padral
