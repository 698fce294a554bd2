#pragma once
// A print server of the test's own, with one queue that writes PDF files.

#include <QProcess>
#include <QTemporaryDir>

namespace padral::test {

class ServidorCups {
public:
    /// Starts the server and adds the queue as the default one. `Motivo` tells why it could not.
    ServidorCups();
    /// Removes the queue and stops the server.
    ~ServidorCups();
    ServidorCups(const ServidorCups&) = delete;
    ServidorCups& operator=(const ServidorCups&) = delete;

    bool Listo() const { return motivo_.isEmpty(); }
    const QString& Motivo() const { return motivo_; }
    /// Name of the queue, one for each run of a test.
    static QString Cola();
    void Parar();
    /// The queue takes no more documents.
    void RechazarTrabajos();
    /// Waits for that many files in the queue's output folder; the files that are there at last.
    QStringList EsperarFicheros(int cuantos) const;

private:
    QString queFalta() const;
    void escribirConfiguracion() const;
    QString arrancar();
    QString anadirCola();
    QString ruta(const QString& nombre) const { return carpeta_.filePath(nombre); }

    QTemporaryDir carpeta_;
    QProcess servidor_;
    QString motivo_;
};

}  // namespace padral::test
