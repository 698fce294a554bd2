#pragma once
// The answer of the print service, which the toolkit does not pass on.

#include <QString>

namespace padral {

/// Why the last request of this thread to the print service failed; empty when it did not, or
/// when this system has no such service.
QString FalloDelServicioDeImpresion();

}  // namespace padral
