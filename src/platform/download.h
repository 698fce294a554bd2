#pragma once
// The port through which the program fetches a file from the network.

#include <QString>

namespace padral {

class Descarga {
public:
    virtual ~Descarga() = default;
    /// Fetches an http or https address with a plain GET into a file, which takes the place of an
    /// older one and is only there when whole. Returns when it is done; meanwhile windows paint
    /// and timers run. False: no connection, for whatever reason. Throws Fallo when the file
    /// cannot be written.
    virtual bool Descargar(const QString& direccion, const QString& fichero) = 0;
};

}  // namespace padral
