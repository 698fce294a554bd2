#pragma once
// What the rules of sections 4 and 5 tell, and the dates on which they change.

#include <QString>
#include <vector>

namespace padral {

/// Effective date from which the cash criterion exists, `yyyymmdd`.
inline constexpr qint32 InicioCriterioCaja = 20140101;
/// Effective date from which modules are no longer asked.
inline constexpr qint32 FinModulos = 20140101;
/// Effective date of the later edition of both screens, without the global base of travel agencies
/// and with the customs quotas.
inline constexpr qint32 InicioEdicion2015 = 20150101;

/// One message box with an OK button.
struct AvisoRegla {
    int texto;                      ///< catalogue id of the message
    int titulo;                     ///< catalogue id of the title
    const char16_t* prefijo = u"";  ///< stands before the title
    const char16_t* foco = u"";     ///< control that gets the focus after it, u"" for none
    bool exclamacion = false;       ///< warning icon in the place of the information icon
};

/// What a check found: the boxes to show, all of them and in their order.
struct Revision {
    std::vector<AvisoRegla> avisos;

    bool valida() const { return avisos.empty(); }
};

/// The stored text without the blanks that fill its width, as the user typed it.
inline QString SinRelleno(QString texto) {
    while (texto.endsWith(u' ')) texto.chop(1);
    return texto;
}

}  // namespace padral
