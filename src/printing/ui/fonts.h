#pragma once
// The fonts of the form on this system.

#include <QString>

namespace padral {

/// The family itself where it is installed; otherwise the free one with the same metrics, for
/// "times new roman" and "Arial Narrow".
QString FamiliaInstalada(const QString& familia);

}  // namespace padral
