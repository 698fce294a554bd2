#pragma once
// The choosers and the progress of backup and restore on the screen.

#include <functional>

#include "online/backup/copy_dialogs.h"

namespace padral {

class DialogosPantalla : public DialogosCopia {
public:
    /// Milliseconds of work after which the progress shows.
    static constexpr int Notable = 600;

    /// `muestraTras`: milliseconds of work after which the progress shows.
    explicit DialogosPantalla(int muestraTras = Notable) : muestraTras_(muestraTras) {}

    /// Ends the wait cursor before a dialog shows.
    std::function<void()> finEspera;

    QString ElegirCarpeta(const Eleccion& eleccion) override;
    QString ElegirArchivo(const Eleccion& eleccion) override;
    std::unique_ptr<Progreso> Empezar(const RotulosProgreso& rotulos) override;

private:
    int muestraTras_;
};

}  // namespace padral
