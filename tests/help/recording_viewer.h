#pragma once
// The port to the viewer of help files, recorded.

#include <QStringList>

#include "core/help/help_viewer.h"

namespace padral::pruebas {

/// Notes what it should show, and shows nothing.
class GrabadorVisor : public VisorAyuda {
public:
    void Abrir(const QString& direccion, QWidget* formulario) override {
        Direcciones << direccion;
        Formulario = formulario;
    }
    /// The addresses since the last time they were taken.
    QStringList Tomar() { return std::exchange(Direcciones, {}); }

    QStringList Direcciones;
    QWidget* Formulario = nullptr;
};

}  // namespace padral::pruebas
