#pragma once
// The declarations list: stored declarations are found, opened, copied and deleted here.

#include <QLabel>
#include <QPushButton>

#include "declaration/general_data.h"
#include "store/list/decl_model.h"
#include "store/list/grid_utilities.h"
#include "store/list/list_grid.h"
#include "ui/fields.h"
#include "ui/screen.h"

namespace padral {

class FrmDecLista : public Pantalla {
    Q_OBJECT
public:
    /// `declaracion` receives key and mode of the declaration to show.
    FrmDecLista(const Contexto& contexto, EstadoDeclaracion& declaracion, cDecLista& lista);

    void Anadir_captions() override;
    void Cargar() override;
    QWidget* FocoInicial() override { return flxDeclaraciones_; }

    /// Shows the list, or the criteria while they are entered.
    void PresentaDatos();
    /// Shows and hides the buttons, turns them on and off.
    void Presentabotones();
    /// Runs the query and gives its rows to the grid.
    void CargarFlxDeclaraciones();

protected:
    void showEvent(QShowEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    // Construction and captions, in frm_dec_lista_layout.cpp.
    QWidget* crearBotones();
    QPushButton* crearBoton(const char16_t* nombre, QWidget* padre);
    void crearBusqueda();
    void conectar();
    void presentarTitulo();
    void ponerMinimos();

    // Data, in frm_dec_lista.cpp.
    void presentarLista();
    void elegirFila();
    void presentarFlecha();
    bool listaConFilas() const { return !lista_.EnBusqueda() && lista_.HayFilas(); }

    // Search, in frm_dec_lista_search.cpp.
    void presentarCriterios();
    void pulsarBuscar();
    void terminarBusqueda();
    void elegirColumna(int columna);
    bool moverColumna(int paso);
    bool guardarCriterioEnMano();
    bool teclaEnBusqueda(QKeyEvent* evento);

    // Commands, in frm_dec_lista_actions.cpp.
    void conectarBotones();
    void abrir(const QString& modo, qint32 clave, bool pendiente);
    void accionDeFila();
    void eliminar();
    void salir();
    void verTodos();
    void ordenarPor(int columna);
    void invertirOrden();

    /// Of the arrows on the header, in pixels.
    static constexpr int LadoFlecha = 16, MargenFlecha = 3;

    EstadoDeclaracion& declaracion_;
    cDecLista& lista_;
    cUtilidadesGrid utilidades_;
    qint32 filaMarcada_ = 0;

    ModeloDeclaraciones* modelo_;
    QLabel *titulo_, *lblayuda_, *lblResultado_;
    RejillaDeclaraciones* flxDeclaraciones_;
    CampoTexto* txtBusqueda_;
    ImagenPulsable *picasc_, *picdesc_;
    QPushButton *cmdVerDeclaracion_, *CmdEliminar_, *CmdNuevo_, *CmdCopiarDeclaracion_;
    QPushButton *cmdAnterior_, *cmdBuscar_, *cmdTodos_;
};

}  // namespace padral
