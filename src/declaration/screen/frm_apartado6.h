#pragma once
// Section 6: why and when the activity ends.

#include <vector>

#include "declaration/screen/section_screen.h"
#include "ui/combo.h"
#include "ui/fields.h"

class QGridLayout;

namespace padral {

class frmApartado6 : public PantallaApartado {
    Q_OBJECT
public:
    frmApartado6(const Contexto& contexto, cDeclaraciones& declaracion);

    void Anadir_captions() override;
    void Cargar() override;
    QWidget* FocoInicial() override { return txtFecha_; }

    /// Shows the whole record in the controls; the field of the free cause only with that cause.
    void PresentaDatos();
    void Presentabotones();

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    // Construction and captions, in frm_apartado6_layout.cpp.
    void rotular(QGridLayout* rejilla, const char16_t* nombre, int texto, QWidget* campo);

    // Causes, in frm_apartado6_causes.cpp.
    void CargarCombo();
    void nombrarFilaLibre(const QString& texto);
    bool causaLibre() const;
    void elegirCausa();
    bool dejarCausaLibre();

    // Fields and leaving, in frm_apartado6.cpp.
    void conectarCampos();
    bool dejarFecha(CampoFecha* campo, qint32 DatosApartado6::*miembro, bool puedeFaltar);
    void cambiado();
    bool esAvance(const QObject* objeto, const QEvent& evento) const;
    bool aceptado() override;
    void descartar() override;
    /// To the general data, whatever stands before.
    void trasCancelar() override;

    cApartado6& apartado_;
    QString filaLibre_;  ///< the last row of the list as the catalogue has it

    CampoFecha* txtFecha_;
    CampoTexto* txtCausa_;
    CajaCombo* cmbDescripcion_;
    CampoTexto* txtSinEpigrafe_;
    CampoFecha* txtInscripcion_;
    /// Captions that are just a text of the catalogue.
    std::vector<std::pair<QLabel*, int>> etiquetas_;
};

}  // namespace padral
