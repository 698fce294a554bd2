#pragma once
// The about box.

#include <QDialog>

#include "core/shared_state.h"

namespace padral {

class frmAbout : public QDialog {
    Q_OBJECT
public:
    explicit frmAbout(const EstadoCompartido& estado, QWidget* padre = nullptr);
};

}  // namespace padral
