#pragma once
// The window of the help: contents and search at the left, the page at the right, and the ways
// back, on and to the start page.

#include <QDialog>

#include "core/shared_state.h"

class QTabWidget;
class QToolButton;

namespace padral {

class ArbolContenido;
class NavegadorAyuda;
class PanelBusqueda;

class VentanaAyuda : public QDialog {
    Q_OBJECT
public:
    explicit VentanaAyuda(QWidget* dueño);

    /// Takes title and captions in the language of the run.
    void Poner(const EstadoCompartido& estado);
    /// Shows the page `tema` of the pages in `carpeta`; the contents button leads to `inicio`.
    void Abrir(const QString& carpeta, const QString& tema, const QString& inicio);

private:
    QToolButton* boton(const QString& nombre, int icono);
    void crearBotones();
    QWidget* crearPaneles();
    void crearAtajos();
    void abrirPagina(const QString& pagina);
    void irABuscar();

    NavegadorAyuda* navegador_;
    ArbolContenido* arbol_;
    PanelBusqueda* busqueda_;
    QTabWidget* fichas_;
    QToolButton* atras_ = nullptr;
    QToolButton* adelante_ = nullptr;
    QToolButton* indice_ = nullptr;
    QString carpeta_, inicio_;
};

}  // namespace padral
