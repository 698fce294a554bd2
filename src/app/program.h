#pragma once
// The program: builds its objects and wires them, and runs the start in its order.

#include <functional>
#include <memory>

#include "app/utility_commands.h"
#include "core/help/help_key.h"
#include "core/help/window_viewer.h"
#include "core/shared_state.h"
#include "core/window/mdi_padral.h"
#include "declaration/declaration.h"
#include "printing/ui/print_target.h"
#include "store/list/dec_lista.h"
#include "ui/field_guard.h"
#include "ui/screen.h"

namespace padral {

/// What the program meets outside: real ones in `main`, recording ones in tests.
struct Puertos {
    Avisador& avisador;
    Reloj& reloj;
    DestinoImpresion& impresora;
    /// Shows help files; none: the program's own window.
    VisorAyuda* visorAyuda = nullptr;
    PuertosUtilidades utilidades = {};
};

class Programa {
public:
    /// `carpetaEjecutable` holds the program file, `carpetaPrograma` the data folder.
    Programa(const Puertos& puertos, const QString& carpetaEjecutable,
             const QString& carpetaPrograma);
    ~Programa();

    /// Everything before the main window shows. False: the process has to end at once.
    bool Iniciar();
    /// The splash, then the main window.
    void MostrarVentana();

    EstadoCompartido& estado() { return estado_; }
    cDeclaraciones& declaracion() { return *declaracion_; }
    MDIPadral& ventana() { return *ventana_; }
    GuardiaCampos& guardia() { return guardia_; }
    /// A new list screen, not loaded yet.
    QWidget* CrearLista();
    ComandosUtilidades& utilidades() { return *utilidades_; }
    /// Whether the language of the run has been read from the store.
    bool IdiomaConocido() const { return idiomaConocido_; }

private:
    void registrarPantallas();
    void registrarApartados(const Contexto& contexto);
    template <class Formulario>
    void registrar(const Contexto& contexto, const QString& nombre);
    /// A screen with an edition before 2015 and one since then.
    template <class Formulario>
    void registrarEdiciones(const Contexto& contexto, const QString& nombre);
    void ponerIdioma();

    Puertos puertos_;
    QString carpetaEjecutable_;
    EstadoCompartido estado_;
    GuardiaCampos guardia_;
    cDecLista lista_;
    VisorVentana visorPropio_;
    std::unique_ptr<MDIPadral> ventana_;
    std::unique_ptr<cDeclaraciones> declaracion_;
    std::unique_ptr<ComandosUtilidades> utilidades_;
    TeclaAyuda teclaAyuda_;
    bool idiomaConocido_ = false;
};

}  // namespace padral
