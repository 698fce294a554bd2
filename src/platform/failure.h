#pragma once
// A failure that ends the process: told to the user in plain words by the one handler around the
// event loop.

#include <QString>
#include <exception>

namespace padral {

/// The cause in both languages; the handler shows that of the run, or both before the language
/// is known. Where a file is concerned its name stands in the texts.
class Fallo : public std::exception {
public:
    Fallo(QString castellano, QString euskera)
        : castellano_(std::move(castellano)),
          euskera_(std::move(euskera)),
          que_(castellano_.toUtf8()) {}

    const QString& Castellano() const { return castellano_; }
    const QString& Euskera() const { return euskera_; }
    const char* what() const noexcept override { return que_.constData(); }

private:
    QString castellano_, euskera_;
    QByteArray que_;
};

}  // namespace padral
