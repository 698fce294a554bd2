#pragma once
// One participant of Annex I: who it is, where it lives, its share, its regimes.

#include <array>
#include <vector>

#include "declaration/declaration.h"
#include "sections/location/screen/address_block_widget.h"
#include "ui/answer_box.h"
#include "ui/fields.h"
#include "ui/number_field.h"
#include "ui/section_buttons.h"

class QFrame;
class QGridLayout;

namespace padral {

namespace participe {
struct BloqueRegimenes;
struct Regimen;
struct Rotulo;
}  // namespace participe

/// The screen of the current participant. Another identifier makes another participant the current
/// one: it never renames the one that was shown. Only accepting takes a new one into the
/// collection.
class frmDatosParticipe : public Pantalla {
    Q_OBJECT
public:
    frmDatosParticipe(const Contexto& contexto, cDeclaraciones& declaracion);

    void Anadir_captions() override;
    void Cargar() override;
    QWidget* FocoInicial() override { return txtDNI_; }

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    /// Places in the table of buttons.
    enum Boton : std::size_t { Aceptar, Cancelar, OtroParticipe, Volver };
    struct Fila {
        const participe::Regimen* regimen;
        const participe::BloqueRegimenes* bloque;
        QLabel* etiqueta;
        std::array<CasillaRespuesta*, 2> casillas;
    };

    // Construction and captions, in frm_datos_participe.cpp.
    QWidget* crearPersona();
    QWidget* crearParticipacion();
    void crearDireccion(QWidget* marco);
    QGridLayout* crearRegimenes(const participe::BloqueRegimenes& bloque, QWidget* marco);
    QLabel* etiquetaDe(const participe::Rotulo& rotulo, QWidget* padre);
    void rotularFila(const Fila& fila);
    void CargarListas();

    // Data, in frm_datos_participe_data.cpp.
    /// The current participant, which a field may have changed for another one.
    cParticipes& actual() const { return *declaracion_.participantes.ParticipeActual; }
    void PresentarDatos();
    void ActualizarEstadoControles();
    void refrescar();
    void cambiado();
    void anotarDireccion();
    void ponerAyudaVolver();
    void conectarCasillas();
    void pulsar(const Fila& fila, std::size_t i);

    // Fields, in frm_datos_participe_fields.cpp.
    void conectarCampos();
    bool dejarDNI();
    bool ponerDNI(const QString& dni);
    bool dejarNombre();
    bool dejarPorcentaje();

    // Ways out, in frm_datos_participe_commands.cpp.
    void conectarBotones();
    bool ValidarDatos();
    void aceptar();
    bool anadir(cParticipes& nuevo);
    void empezarOtro();
    void volver();
    /// Gives up what was changed since the participant was last accepted.
    static void descartar(cParticipes& participe);
    void cancelar();
    void salir();

    cDeclaraciones& declaracion_;
    /// The address of the participant that is shown, as the fields of an address take it.
    BloqueDireccion bloque_;
    /// Cancel has been pressed by Enter: the identifier is no longer checked.
    bool cancelando_ = false;

    CampoTexto *txtDNI_ = nullptr, *txtNombre_ = nullptr;
    PanelDireccion* direccion_ = nullptr;
    CajaNum* txtPorcentaje_ = nullptr;
    std::vector<Fila> filas_;
    BotonesApartado* botones_ = nullptr;
    /// Captions that are just a text of the catalogue.
    std::vector<std::pair<QLabel*, int>> etiquetas_;
};

}  // namespace padral
