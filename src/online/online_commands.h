#pragma once
// What the dialogs ask of the version check and of the program.

#include <QString>
#include <functional>

namespace padral {

/// The program gives them; one that it leaves out does nothing.
struct OrdenesVersion {
    /// The whole check, with the dialogs that it shows.
    std::function<void()> comprobarVersion = [] {};
    /// Opens the page of the download in the browser, or says that there is none.
    std::function<void(const QString& url)> abrirPagina = [](const QString&) {};
    /// Ends the whole program at once.
    std::function<void()> terminarPrograma = [] {};
};

}  // namespace padral
