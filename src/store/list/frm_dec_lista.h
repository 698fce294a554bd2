#pragma once
// The declarations list: stored declarations are found, opened, copied and deleted here.

#include "declaration/general_data.h"
#include "store/list/decl_model.h"
#include "ui/list/list_screen.h"

namespace padral {

class FrmDecLista : public PantallaConLista {
    Q_OBJECT
public:
    /// `declaracion` receives key and mode of the declaration to show.
    FrmDecLista(const Contexto& contexto, EstadoDeclaracion& declaracion, cDecLista& lista);

    void Anadir_captions() override;
    void Cargar() override;

    /// Shows the list, or the criteria while they are entered.
    void PresentaDatos() override;
    /// Shows and hides the buttons, turns them on and off.
    void Presentabotones() override;
    /// Runs the query and gives its rows to the grid.
    void CargarFlxDeclaraciones();

protected:
    void showEvent(QShowEvent* evento) override;

private:
    // Construction, in frm_dec_lista_layout.cpp.
    QWidget* crearBotones();
    std::pair<RejillaLista::Anchos, RejillaLista::Anchos> minimos() const override;

    // Data, in frm_dec_lista.cpp.
    void cargarFilas() override;
    int filaPropia() const override;

    // Search, in frm_dec_lista_search.cpp.
    Entrada entradaDe(int columna) const override;
    bool tomarCriterio(int columna, const QString& valor) override;

    // The state of the list.
    bool enBusqueda() const override { return lista_.EnBusqueda(); }
    bool hayFilas() const override { return lista_.HayFilas(); }
    int columnaEnMano() const override { return lista_.SELECCIONACTUAL.toInt(); }
    int columnaDeOrden() const override { return lista_.ORDEN.toInt(); }
    bool ordenAscendente() const override { return lista_.TIPOORDEN == QStringLiteral("ASC"); }
    void iniciarBusqueda() override { lista_.IniciarBusqueda(); }
    void acabarBusqueda() override { lista_.TerminarBusqueda(); }
    void quitarCriterios() override { lista_.VerTodos(); }
    void tomarColumna(int columna) override { lista_.SELECCIONACTUAL = QString::number(columna); }
    bool tomarOrden(int columna) override { return lista_.OrdenarPor(columna); }
    void tomarOrdenInverso() override { lista_.InvertirOrden(); }
    void tomarFila(int fila) override { lista_.Seleccionar(modelo_->Filas(), fila); }

    // Commands, in frm_dec_lista_actions.cpp.
    void conectarBotones();
    void abrir(const QString& modo, qint32 clave, bool pendiente);
    void accionDeFila() override;
    void eliminar();
    void salir();

    EstadoDeclaracion& declaracion_;
    cDecLista& lista_;

    ModeloDeclaraciones* modelo_;
    QPushButton *cmdVerDeclaracion_, *CmdEliminar_, *CmdNuevo_, *CmdCopiarDeclaracion_;
    QPushButton *cmdAnterior_, *cmdBuscar_, *cmdTodos_;
};

}  // namespace padral
