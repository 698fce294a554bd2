#pragma once
// The general data of a declaration: first page of the form and hub of all sections.

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <array>
#include <vector>

#include "declaration/declaration.h"
#include "declaration/section_boxes.h"
#include "ui/combo.h"
#include "ui/fields.h"
#include "ui/screen.h"

class QBoxLayout;
class QFrame;
class QStackedWidget;

namespace padral {

class FrmDatGen : public Pantalla {
    Q_OBJECT
public:
    FrmDatGen(const Contexto& contexto, cDeclaraciones& declaracion, cDecLista& lista);

    void Anadir_captions() override;
    void Cargar() override;
    QWidget* FocoInicial() override;

    /// Shows the whole record in the controls.
    void PresentaDatos();
    /// Turns the buttons on and off.
    void Presentabotones();

    // Rules, in frm_dat_gen_rules.cpp. The first broken one shows its message and gives false.
    /// Whether name and date are there and, with changes pending, the identifiers are right; the
    /// first failure shows its message. `validarNombre` false skips the test of the name.
    bool ValidacionIntroduccionDatos(bool validarNombre);
    bool NombreVacio() const;
    bool ValidarCausas();
    bool ValidarNifsPantalla();
    /// The rules across the sections; the effective date that they work out becomes the run's.
    bool ValidarApartados();
    /// Whether the participants' shares add up; the declaration keeps their sum.
    bool ValidarPorcentajes();

private:
    // Construction, in frm_dat_gen_layout.cpp.
    QWidget* crearIdentificacion();
    QWidget* crearTipos();
    QWidget* crearSolicitudes();
    QWidget* crearModificacion();
    QWidget* crearPestana();
    QWidget* crearApartados();
    QWidget* crearFirma();
    QWidget* crearBotones();
    CampoTexto* texto(const QString& nombre, int ancho);
    CampoFecha* fecha(const QString& nombre);
    QLabel* etiquetaDe(const QString& nombre, QWidget* campo);

    // Fields, in frm_dat_gen_fields.cpp.
    void conectarCampos();
    void registrarTexto(CampoTexto* campo, QString DatosGeneralesStore::*miembro);
    void registrarNif(CampoTexto* campo, QString DatosGeneralesStore::*miembro);
    bool dejarNif(CampoTexto* campo, QString DatosGeneralesStore::*miembro);
    bool dejarFirma();
    bool dejarFechaDeclaracion();
    struct FechaConRango;
    bool dejarFecha(const FechaConRango& fecha);
    void elegirMotivo();
    void cambiado();

    // Boxes, in frm_dat_gen_boxes.cpp.
    void conectarCasillas();
    void pulsarTipo(const CasillaTipo& tipo, bool marcada);
    void pulsarSolicitud(const CasillaSolicitud& solicitud, bool marcada);
    void pulsarApartado(Apartado apartado, bool marcada);
    void pulsarElMismo(bool marcada);
    void presentarCasillas();
    void presentarPestana(int pestana);

    // Commands, in frm_dat_gen_commands.cpp.
    void conectarBotones();
    /// Name of the screen that the section's button opens.
    QString pantallaDe(const CasillaApartado& casilla) const;
    void abrirApartado(const CasillaApartado& casilla);
    void aceptar();
    void cancelar();
    void anterior();
    void imprimir();
    bool sociedadesYExentas();
    bool validarAntesDeGuardar();
    qint32 guardar();
    void cerrar();

    // Data, in frm_dat_gen_data.cpp.
    void PrepararFormulario();
    void CargarMotivosCambio();
    void presentarFirma();
    void presentarIdentidad();
    void presentarFechas();
    void enfocar(const QString& nombre);

    cDeclaraciones& declaracion_;
    cDatosGenerales& general_;
    cDecLista& lista_;

    QLabel* titulo_;
    CampoTexto *txtDNI_, *txtNombre_, *txtNumeroArchivo_;
    CampoTexto *txtDNIRepresentante_, *txtNombreRepresentante_, *txtFirmaEnCalidadDe_;
    CampoTexto *txtDNIAnterior_, *txtNombreAnterior_;
    CampoFecha *mskFechaDeclaracion_, *mskFechaModificacion_, *mskFechaConst_, *mskFechaInscrip_;
    CajaCombo* cmbMotivoCambio_;
    QCheckBox* chkElMismo_;
    std::array<QCheckBox*, 4> tipos_{};
    std::array<QCheckBox*, 6> solicitudes_{};
    std::array<QCheckBox*, 8> apartados_{};
    std::array<QPushButton*, 8> botonesApartado_{};
    QTabBar* pestana_;
    QStackedWidget* paginas_;
    QFrame *fraSolicitud_, *fraModificacion_;
    QPushButton *cmdAceptar_, *cmdCancelar_, *cmdImprimir_, *cmdAnterior_;
    ImagenPulsable *PicOKey_, *PicCan_, *PicImprimir_, *PicAnterior_;
    /// Captions that are just a text of the catalogue.
    std::vector<std::pair<QLabel*, int>> etiquetas_;
};

}  // namespace padral
