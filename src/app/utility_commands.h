#pragma once
// The commands of the menu of utilities: preferences, version check, backup, online help.

#include <QPointer>
#include <functional>

#include "core/window/mdi_padral.h"
#include "online/backup/copy_dialogs.h"
#include "online/check/version_check.h"
#include "online/frm_preferencias.h"
#include "online/online_commands.h"

namespace padral {

/// What these commands meet outside. A command whose port is missing stays off.
struct PuertosUtilidades {
    Descarga* descarga = nullptr;
    Navegador* navegador = nullptr;
    DialogosCopia* dialogosCopia = nullptr;
    /// Ends the process at once.
    std::function<void()> terminar = [] {};
};

class ComandosUtilidades {
public:
    ComandosUtilidades(PuertosUtilidades puertos, const Contexto& contexto, MDIPadral& ventana,
                       std::function<void()> ponerIdioma);

    /// Carries an older store into the present layout; true ends the process with no message.
    std::function<bool(EstadoCompartido&)> traspasar;

    /// Puts the commands behind their menu entries.
    void Conectar();
    /// What the splash and the choice of language ask of the version check.
    OrdenesVersion OrdenesDeVersion();

private:
    void conectarCopias();
    void conectarAyudaOnline();
    void mostrarPreferencias();
    void restaurar();
    void abrirDireccion(const QString& direccion);
    void describirServicio(const QString& texto);

    PuertosUtilidades puertos_;
    Contexto contexto_;
    MDIPadral& ventana_;
    std::function<void()> ponerIdioma_;
    std::unique_ptr<ActualizacionOnline> actualizacion_;
    QPointer<frmPreferencias> preferencias_;
};

}  // namespace padral
