#pragma once
// What the tour puts in the place of network, browser and choosers: nothing leaves the machine.

#include <QFile>
#include <optional>

#include "online/backup/screen_dialogs.h"
#include "platform/browser.h"
#include "platform/download.h"

namespace padral {

/// Answers with a version file of its own; without one there is no connection.
class DescargaVisita : public Descarga {
public:
    std::optional<QByteArray> contenido;
    bool Descargar(const QString&, const QString& fichero) override {
        QFile salida(fichero);
        return contenido && salida.open(QIODevice::WriteOnly) &&
               salida.write(*contenido) == contenido->size();
    }
};

class NavegadorVisita : public Navegador {
public:
    QString Buscar(const QString&) override { return {}; }
    bool Abrir(const QString&, const QString&) override { return false; }
};

/// Chooses what the tour says; the progress is the program's own.
class EleccionesVisita : public DialogosPantalla {
public:
    QString elegido;
    QString ElegirCarpeta(const Eleccion&) override { return elegido; }
    QString ElegirArchivo(const Eleccion&) override { return elegido; }
};

}  // namespace padral
