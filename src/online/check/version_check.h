#pragma once
// The version check: fetches the version file, compares, and leads to the download page.

#include <functional>

#include "core/shared_state.h"
#include "platform/browser.h"
#include "platform/download.h"

namespace padral {

/// What the check shows and asks of the screens. All three are there.
struct DialogosActualizacion {
    /// Shows FrmVersionCheck and returns when it has closed.
    std::function<void()> mostrarVersionCheck;
    /// Shows FrmSinConexion, which reads `SitAct`, and returns when it has closed.
    std::function<void()> mostrarSinConexion;
    /// Whether the preferences dialog is on the screen.
    std::function<bool()> preferenciasEnPantalla;
};

class ActualizacionOnline {
public:
    /// The ports have to live as long as this.
    ActualizacionOnline(EstadoCompartido& estado, Descarga& descarga, Navegador& navegador,
                        DialogosActualizacion dialogos);

    /// The whole check, with the dialog that tells how it went. A second call while one runs, from
    /// a click during its waits, does nothing.
    void ComprobarVersion();
    /// Fetches `version.ini` in the language of the run into the program folder. 3 fetched,
    /// 1 failed, 4 something else came in between, such as a folder that cannot be written.
    qint16 DescargarVersionIni();
    /// 3 when the address was fetched and the file is there under the name "version.ini",
    /// otherwise 1. Throws Fallo when the file cannot be written.
    qint16 DescargarArchivo(const QString& url, const QString& fichero);
    /// A value of an ini file; empty when it is not there.
    static QString LeerValorIni(const QString& seccion, const QString& clave,
                                const QString& fichero);
    /// Reads the fetched file into the state and sets `ComVer` when the versions differ. 0 good,
    /// 4 any failure, which leaves the state as it was.
    qint16 LeerVersionIni();
    /// Opens an http or https address in the browser, through a page that sends an empty form to
    /// it; where that cannot be, message 349 with title 350.
    void AbrirPaginaDescarga(const QString& url);

private:
    QString enCarpeta(const QString& nombre) const;
    bool abrirPagina(const QString& url);

    EstadoCompartido& estado_;
    Descarga& descarga_;
    Navegador& navegador_;
    DialogosActualizacion dialogos_;
    bool comprobando_ = false;
};

}  // namespace padral
