#pragma once
// Chooses what the user does next, among what the open screen offers, and does it.

#include <QComboBox>
#include <QLineEdit>
#include <optional>

#include "app/program.h"
#include "app/tour/guide.h"
#include "ui/pick_list.h"
#include "walk/walk_answers.h"
#include "walk/walk_recipes.h"
#include "walk/walk_values.h"

namespace padral::pruebas {

/// What was done: the control in hand, and what its property holds after it if nothing spoke.
struct Accion {
    QString control, descripcion;
    std::optional<QString> queda;
    /// The field was not left yet: that is what it holds when it is.
    bool enEspera = false;
};

/// The screen that is open; nullptr on the bare main window.
QWidget* PantallaAbierta(const MDIPadral& ventana);

class Paseante {
public:
    /// `preparadas`: declarations to visit first, in an order of chance. `valor` gives what a
    /// property holds now.
    Paseante(Programa& programa, Guia& guia, AvisadorDelPaseo& avisador, Azar& azar,
             QList<qint32> preparadas, std::function<QString(const QString& propiedad)> valor);

    /// One step.
    Accion Andar();
    /// A field whose text was not taken yet, or refused.
    const QString& Pendiente() const { return pendiente_; }

private:
    using Hecho = std::function<Accion()>;

    // What to do, in walk_walker.cpp.
    Hecho elegirPaso();
    Hecho elegirEnVentana();
    Hecho elegirEnDialogo(QWidget* dialogo);
    Hecho elegirEnPantalla(QWidget* pantalla);
    Hecho elegirEnLista(ListaEleccion* lista);
    Hecho elegirSalida(QWidget* pantalla);
    Hecho elegirSalidaDeGenerales(QWidget* pantalla);
    Hecho abrirFila(QWidget* pantalla);
    void entrar(QWidget* pantalla);
    bool enBlanco(const QString& formulario) const;

    // Editing, in walk_walker_edits.cpp.
    Hecho elegirEdicion(QWidget* pantalla);
    Hecho hacerTarea(QWidget* pantalla);
    Hecho escribir(QLineEdit* campo, bool soloValidos);
    Hecho escribir(QLineEdit* campo, const Escrito& escrito, bool saliendo);
    Hecho marcar(QWidget* casilla);
    Hecho elegir(QComboBox* combo, int pasos);
    Hecho pulsar(const QString& control);
    Hecho editar(QWidget* control);
    QList<QWidget*> editables(const QWidget* pantalla) const;
    bool inocuo(const QWidget* control) const;

    Programa& programa_;
    Guia& guia_;
    AvisadorDelPaseo& avisador_;
    Azar& azar_;
    QList<qint32> preparadas_;
    std::function<QString(const QString&)> valor_;
    QString formulario_, pendiente_;
    bool rechazado_ = false;  ///< the field in `pendiente_` was refused
    QList<Tarea> tareas_;
    /// Steps until the declaration is closed, and whether it shall stay one that can be saved.
    int pasos_ = 0;
    bool prudente_ = false;
    /// Whether the user has been in the sections since the declaration was opened.
    bool recorrida_ = false;
    /// Times that a way out was refused since the screen opened.
    int rechazos_ = 0;
};

}  // namespace padral::pruebas
