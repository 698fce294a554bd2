#pragma once
// Fetches files over http and https.

#include <chrono>

#include "platform/download.h"

namespace padral {

/// No connection is: another scheme, an answer other than 2xx, one that is over 1 MiB or breaks
/// off, a certificate that does not hold, more than five redirects or one from https to http, and
/// the time limit, which is that of the whole fetch. The user's clicks and keys wait meanwhile.
class DescargaHttp : public Descarga {
public:
    static constexpr std::chrono::milliseconds LimiteNormal = std::chrono::seconds(15);

    explicit DescargaHttp(std::chrono::milliseconds limite = LimiteNormal) : limite_(limite) {}

    bool Descargar(const QString& direccion, const QString& fichero) override;

private:
    std::chrono::milliseconds limite_;
};

}  // namespace padral
