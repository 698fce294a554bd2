#pragma once
// Trust in the certificate of these tests, for the life of an object.

#include <QSslCertificate>
#include <QSslConfiguration>

namespace padral::pruebas {

class Confianza {
public:
    Confianza() : antes_(QSslConfiguration::defaultConfiguration()) {
        QSslConfiguration con = antes_;
        con.addCaCertificates(
            QStringLiteral(PADRAL_SOURCE_DIR "/tests/online/test_certificate.pem"));
        QSslConfiguration::setDefaultConfiguration(con);
    }
    ~Confianza() { QSslConfiguration::setDefaultConfiguration(antes_); }
    Confianza(const Confianza&) = delete;
    Confianza& operator=(const Confianza&) = delete;

private:
    const QSslConfiguration antes_;
};

}  // namespace padral::pruebas
