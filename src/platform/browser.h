#pragma once
// The browser of the user: which one it is, and a page opened with it.

#include <QString>

namespace padral {

class Navegador {
public:
    virtual ~Navegador() = default;
    /// The program that opens a web page, a file or an address of the web; empty when there is none
    /// or the file is not there.
    virtual QString Buscar(const QString& pagina) = 0;
    /// Opens the page with the program that was found, without waiting. False: it did not start.
    virtual bool Abrir(const QString& programa, const QString& pagina) = 0;
};

/// The browser that the user chose: the first program of BROWSER that is there, then the desktop's
/// own opener where something is registered for web pages, then the system's browser.
class NavegadorSistema : public Navegador {
public:
    QString Buscar(const QString& pagina) override;
    bool Abrir(const QString& programa, const QString& pagina) override;
};

}  // namespace padral
