#pragma once
// Section 3: census data that are not addresses.

#include <QCheckBox>
#include <array>
#include <vector>

#include "declaration/edition.h"
#include "declaration/screen/section_screen.h"
#include "ui/combo.h"
#include "ui/fields.h"
#include "ui/number_field.h"
#include "ui/option_pair.h"

class QBoxLayout;
class QButtonGroup;
class QFrame;
class QGridLayout;
class QRadioButton;

namespace padral {

/// One screen in two editions; only the later one asks resellers of mobile telephones.
class FrmApartado3 : public PantallaApartado {
    Q_OBJECT
public:
    /// The form name is "FrmApartado3" or "FrmApartado3_2015".
    FrmApartado3(const Contexto& contexto, cDeclaraciones& declaracion, Edicion edicion);

    void Anadir_captions() override;
    void Cargar() override;
    QWidget* FocoInicial() override { return numPorcenIVA_; }

    /// Shows the whole record in the controls. A channel without a mark loses its number, and an
    /// e-mail address without the high mark goes, too.
    void PresentarDatos();
    /// Whether the residence is answered; if not, the message.
    bool ValidarResidente();
    /// Whether no rule of the section is broken; the first broken one is told and gets the focus.
    bool ValidarDatos();

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    // Construction, in frm_apartado3_layout.cpp and frm_apartado3_contact.cpp.
    QWidget* crearResidencia();
    QWidget* crearActividad();
    QWidget* crearForma();
    QWidget* crearAdicionales();
    QWidget* crearCanal(std::size_t i);
    QBoxLayout* filaOpciones();
    QFrame* marco(const char16_t* nombre, int texto, QWidget* padre);
    QWidget* crearPreferencia(const char16_t* nombre, std::size_t i);
    QLabel* etiquetaDe(const char16_t* nombre, int texto, QWidget* campo);
    void rotular(QGridLayout* fila, const char16_t* nombre, int texto, QWidget* campo);
    QCheckBox* casilla(const char16_t* nombre, QWidget* padre);
    QBoxLayout* casillaRotulada(QCheckBox* caja, const char16_t* etiqueta, int texto);

    // Captions, in frm_apartado3_captions.cpp.
    void nombrarCasillas();

    // Data, in frm_apartado3_data.cpp.
    void CargarListas();
    void CargarCombos();
    void presentarResidente();
    bool esResidencia(std::size_t i) const;
    void ponerParadas();
    void presentarActividad();
    void presentarFormaJuridica();
    void presentarParejas();
    void presentarCanales();
    void PosicionarDescripcion(CajaCombo* combo, const QString& texto);
    void ActualizarEstadoControles();
    void cambiado();

    // Fields, in frm_apartado3_fields.cpp.
    void conectarCampos();
    void registrarNumero(CajaNum* campo, qint32 DatosApartado3::*miembro);
    void registrarTexto(CampoTexto* campo, QString DatosApartado3::*miembro);
    bool dejarPorcentaje();
    bool dejarFechaInicio();
    bool dejarFechaCierre();

    // Activity and legal form, in frm_apartado3_activity.cpp.
    void conectarActividad();
    bool elegirEpigrafe();
    void elegirUltimoEpigrafe();
    void dejarCodigo();
    void ponerCodigo(const QString& codigo);
    void dejarSinEpigrafe();
    bool elegirFormaJuridica();
    void dejarOtros();
    void pulsarIntro(CajaCombo* combo);
    bool sinEpigrafe() const;

    // Boxes and options, in frm_apartado3_boxes.cpp.
    void conectarCasillas();
    void pulsarPareja(std::size_t i, MarcaPareja marca);
    void pulsarMarca(QCheckBox* caja, QString DatosApartado3::*miembro);
    void elegirResidente(std::size_t i);
    void enfocarResidente(std::size_t i, Qt::FocusReason motivo);
    void resaltar(std::size_t i, bool resaltada);
    bool filtrarOpcion(std::size_t i, QEvent* evento);

    // Leaving, in frm_apartado3_commands.cpp.
    bool aceptado() override;
    void descartar() override;

    cApartado3& apartado_;
    const Edicion edicion_;
    /// While false, choosing a heading, a legal form or an option, and the free description,
    /// change nothing.
    bool activo_ = false;

    std::array<QRadioButton*, 2> optResidente_{};
    std::array<QLabel*, 2> lblOpcion_{};
    QButtonGroup* grupoResidente_;
    CajaNum *numPorcenIVA_, *numFormaJuridica_;
    CampoFecha *mskFechaInicio_, *mskFechaCierre_;
    CampoTexto *txtDescripcionActividad_, *txtSinEpigrafe_, *txtOtros_, *txtAnagrama_;
    CajaCombo *cmbEpigrafe_, *cmbDescFormaJuridica_;
    QCheckBox* chkSocPat_;
    QCheckBox* chkActVenMov_ = nullptr;  ///< only since 2015
    CampoTexto* txtDirCorreo_;
    std::array<CajaNum*, 4> numeros_{};  ///< of the channels; e-mail has none
    std::vector<ParejaCasillas*> parejas_;
    /// Captions that are just a text of the catalogue.
    std::vector<std::pair<QLabel*, int>> etiquetas_;
    /// Frames and the text that names them.
    std::vector<std::pair<QFrame*, int>> marcos_;
};

}  // namespace padral
