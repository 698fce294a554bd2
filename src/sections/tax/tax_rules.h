#pragma once
// The dates on which the rules of sections 4 and 5 change.

#include <QtGlobal>

namespace padral {

/// Effective date from which the cash criterion exists, `yyyymmdd`.
inline constexpr qint32 InicioCriterioCaja = 20140101;
/// Effective date from which modules are no longer asked.
inline constexpr qint32 FinModulos = 20140101;
/// Effective date of the later edition of both screens, without the global base of travel agencies
/// and with the customs quotas.
inline constexpr qint32 InicioEdicion2015 = 20150101;

}  // namespace padral
