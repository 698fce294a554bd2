#pragma once
// What a check of a section finds: the messages to show.

#include <QString>
#include <vector>

namespace padral {

/// One message box with an OK button.
struct AvisoRegla {
    int texto;                      ///< catalogue id of the message, 0 one that was made up
    int titulo;                     ///< catalogue id of the title, 0 none
    const char16_t* prefijo = u"";  ///< stands before the title
    const char16_t* foco = u"";     ///< control that gets the focus after it, u"" for none
    bool exclamacion = false;       ///< warning icon in the place of the information icon
};

/// What a check found: the boxes to show, all of them and in their order.
struct Revision {
    std::vector<AvisoRegla> avisos;
    QString compuesto = {};  ///< message made up of several texts

    bool valida() const { return avisos.empty(); }
};

}  // namespace padral
