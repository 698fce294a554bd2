#pragma once
// What all screens share: the run, the ports, the guard of their fields.

#include <QAbstractButton>
#include <QWidget>
#include <functional>

#include "core/screens_port.h"
#include "core/shared_state.h"
#include "ui/field_guard.h"

namespace padral {

class ImagenPulsable;

/// What a screen gets from the program.
struct Contexto {
    EstadoCompartido& estado;
    Pantallas& pantallas;
    GuardiaCampos& guardia;
};

/// A screen of the main window. Its object name is its form name. The main window makes it, calls
/// `Cargar`, shows it and gives the focus to `FocoInicial`; when it is left it is unloaded.
class Pantalla : public QWidget {
    Q_OBJECT
public:
    Pantalla(const QString& nombre, const Contexto& contexto)
        : estado_(contexto.estado), pantallas_(contexto.pantallas), guardia_(contexto.guardia) {
        setObjectName(nombre);
    }

    /// Takes every caption, tool tip and mask from the catalogue in the language of the run.
    virtual void Anadir_captions() = 0;
    /// The load of the form, before it shows.
    virtual void Cargar() = 0;
    /// The field that gets the focus first; nothing: the first enabled one.
    virtual QWidget* FocoInicial() { return nullptr; }

protected:
    /// A command of a button: it runs with the wait cursor, unless the field left was refused.
    void Orden(QAbstractButton* boton, std::function<void()> orden);
    /// A picture that clicks its button.
    void Orden(ImagenPulsable* imagen, QAbstractButton* boton);
    const QString& Texto(int id) const { return estado_.Texto(id); }

    EstadoCompartido& estado_;
    Pantallas& pantallas_;
    GuardiaCampos& guardia_;
};

}  // namespace padral
