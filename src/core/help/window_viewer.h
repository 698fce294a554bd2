#pragma once
// The viewer of the systems that have none for help files: a window of the program.

#include "core/help/help_viewer.h"
#include "core/shared_state.h"

namespace padral {

/// Shows the pages that lie in the folder beside the help file, with its name. Each form has its
/// own window, which is used again while it is open and goes with the form; over a modal dialog
/// it belongs to the dialog, so that it can be used there. Without the folder a box says so and
/// nothing opens; a page that is not in it shows a sentence with its name.
class VisorVentana : public VisorAyuda {
public:
    explicit VisorVentana(const EstadoCompartido& estado) : estado_(estado) {}

    void Abrir(const QString& direccion, QWidget* formulario) override;

private:
    const EstadoCompartido& estado_;
};

}  // namespace padral
