#pragma once
// The participants list of Annex I: participants are found, shown, added and deleted here.

#include <optional>

#include "declaration/declaration.h"
#include "participants/screen/frm_lista_participes_model.h"
#include "store/participants_server.h"
#include "ui/list/list_screen.h"

namespace padral {

class BotonesApartado;

/// Works on the participants of the open declaration in memory; the store has the auxiliary copy
/// that is sorted and searched, for as long as the screen is there.
class frmListaParticipes : public PantallaConLista {
    Q_OBJECT
public:
    frmListaParticipes(const Contexto& contexto, cDeclaraciones& declaracion);
    ~frmListaParticipes() override;

    void Anadir_captions() override;
    void Cargar() override;

    /// Shows the list, or the criteria while they are entered.
    void PresentaDatos() override;
    /// The list as it is sorted and searched now.
    void PresentaDatosTablaAux();
    /// The entry of criteria.
    void PresentaDatos2();
    void Presentabotones() override;
    /// Counts the participants and shows them all, in the order of the collection.
    void CargarflxParticipes();
    /// Fills the auxiliary list anew and shows those of it that meet the criteria.
    void CargarflxParticipesAux();

private:
    /// Places in the two groups of buttons.
    enum Salida : std::size_t { Inicio, Anterior, Siguiente };
    enum Accion : std::size_t { Nuevo, Ver, Eliminar };

    // Construction, in frm_lista_participes_layout.cpp.
    QWidget* crearBotones();

    // Data, in frm_lista_participes.cpp.
    Tabla filasDeColeccion() const;
    SvrVuelco::CriteriosParticipes ObtenerCriterios() const;
    void PresentarFilas(const Tabla& filas);
    void cargarFilas() override { CargarflxParticipesAux(); }
    int filaPropia() const override;
    void tomarFila(int fila) override;
    Entrada entradaDe(int columna) const override;

    // The state of the list, in frm_lista_participes_state.cpp.
    bool enBusqueda() const override { return lista_.BUSQUEDA == QStringLiteral("B"); }
    bool hayFilas() const override { return lista_.NUMPARTLIST > 0; }
    int columnaEnMano() const override { return lista_.SELECCIONACTUAL; }
    int columnaDeOrden() const override { return lista_.ORDEN; }
    bool ordenAscendente() const override;
    void iniciarBusqueda() override;
    void acabarBusqueda() override;
    void quitarCriterios() override;
    void tomarColumna(int columna) override;
    bool tomarCriterio(int columna, const QString& valor) override;
    bool tomarOrden(int columna) override;
    void tomarOrdenInverso() override;

    // Commands, in frm_lista_participes_commands.cpp.
    void conectarBotones();
    bool hayEleccion() const { return listaConFilas() && !lista_.DNI.vacio(); }
    std::shared_ptr<cParticipes> elegido() const;
    void accionDeFila() override;
    void nuevo();
    void ver();
    void eliminar();
    void quitar(const std::shared_ptr<cParticipes>& participe);
    void dejarSinParticipes();
    void mostrarParticipe();
    void siguiente();
    void salirAtras(int numero);
    void anotarCambios();
    void descargar();

    cDeclaraciones& declaracion_;
    cParLista& lista_;
    ModeloParticipes* modelo_;
    std::optional<qint32> auxiliar_;  ///< the declaration whose auxiliary list is filled
    BotonesApartado *salidas_, *acciones_;
    QPushButton *cmdBuscar_, *cmdTodos_;
};

}  // namespace padral
