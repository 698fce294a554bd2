#pragma once
// The main window.

#include <QMainWindow>
#include <QMap>
#include <QPointer>
#include <functional>

#include "core/screens_port.h"
#include "core/shared_state.h"
#include "ui/field_guard.h"

class QAction;
class QLabel;
class QScrollArea;
class QStackedWidget;

namespace padral {

class Pantalla;

/// What the main window asks of the declaration and its list.
struct OrdenesDeclaraciones {
    /// A flow starts: mode of the declaration and how the list is entered ("" for a new one).
    std::function<void(const QString& modo, const QString& entrada)> empezar;
    /// Whether the open declaration has changes that are not in the store.
    std::function<bool()> hayModificaciones;
};

class MDIPadral : public QMainWindow, public Pantallas {
    Q_OBJECT
public:
    MDIPadral(EstadoCompartido& estado, GuardiaCampos& guardia, OrdenesDeclaraciones ordenes);
    ~MDIPadral() override;

    /// A screen or dialog by its form name. Dialogs are shown modal over the window.
    void Registrar(const QString& nombre, std::function<QWidget*()> fabrica);
    /// Shown once, at the first activation of a fresh installation.
    std::function<void()> primerArranque;
    /// Shows a page of the help.
    std::function<void(const QString& tema)> mostrarAyuda;
    /// Puts a command of the program behind the menu entry of that name, which is off without one.
    /// The command shows dialogs: it runs without the wait cursor.
    void PonerComando(const QString& entrada, std::function<void()> comando);

    void Anadir_captions();
    /// Shows the window in its own size, or over the whole screen where that is smaller.
    void MostrarEnPantalla();
    /// The help on a form, wherever it was asked for; on the window itself: on its open screen.
    void AyudaDe(const QString& formulario);
    /// Unloads every screen and dialog whose name differs.
    void DescargarTodosLosFormularios(const QString& nombre);
    bool HayModificaciones() const { return ordenes_.hayModificaciones(); }

    void Mostrar(const QString& nombre) override;
    void Descargar(const QString& nombre) override;
    bool Disponible(const QString& nombre) const override { return fabricas_.contains(nombre); }
    void HabilitarMenus() override;
    void DeshabilitarMenus() override;
    void CursorEspera(bool activo) override;

    QSize sizeHint() const override { return {1240, 690}; }

protected:
    void closeEvent(QCloseEvent* evento) override;
    void changeEvent(QEvent* evento) override;

private:
    void crearMenus();
    void crearBarra();
    QAction* accion(const QString& nombre, QWidget* menu, std::function<void()> orden);
    void conectar(const QString& entrada, std::function<void()> hacer);
    void orden(const std::function<void()>& hacer);
    void abrirLista(const QString& modo, const QString& entrada, bool desdeMenu);
    void nueva();
    void ayuda(const QString& formulario);
    QString formularioEnMano() const;
    void salir();
    void primeraActivacion();
    bool avisarPendientes();
    void enfocar(Pantalla* pantalla);
    void tenerALaVista(QWidget* control);
    void activarDeclaraciones(bool activo);

    EstadoCompartido& estado_;
    GuardiaCampos& guardia_;
    OrdenesDeclaraciones ordenes_;
    QMap<QString, std::function<QWidget*()>> fabricas_;
    QMap<QString, QPointer<QWidget>> abiertas_;
    QStackedWidget* paginas_;
    QWidget* fondo_;
    QMap<QString, QMenu*> menus_;
    QMap<QString, QAction*> acciones_;
    QAction* botones_[5] = {};
    bool primera_ = true;
    bool cierreDesdeCodigo_ = false;
    bool esperando_ = false;
    bool hayPantalla_ = false;
};

}  // namespace padral
