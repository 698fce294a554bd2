#pragma once
// Section 2: the four domiciles of the declarant, their rules and the ways out.

#include <QCheckBox>
#include <QLabel>
#include <array>

#include "declaration/screen/section_screen.h"
#include "sections/location/screen/address_block_widget.h"

class QHBoxLayout;

namespace padral {

class FrmApartado2 : public PantallaApartado {
    Q_OBJECT
public:
    FrmApartado2(const Contexto& contexto, cDeclaraciones& declaracion);
    /// Gone by no way out of its own, it says where the user comes from.
    ~FrmApartado2() override;

    void Anadir_captions() override;
    void Cargar() override;
    QWidget* FocoInicial() override;

    /// Shows the whole record in the controls; a box that changes by it acts as if clicked.
    void PresentarDatos();
    /// Marks need a fiscal domicile, municipalities the own province, the next section a mark.
    void ActualizarEstadoControles();
    /// Whether every domicile that holds anything is complete; the first broken rule shows its
    /// message and gets the focus.
    bool ValidarDatos();

private:
    static constexpr std::size_t NumDomicilios = 4;

    // Construction, in frm_apartado2.cpp.
    QWidget* crearDomicilio(std::size_t i);
    void crearMarca(std::size_t i, QHBoxLayout* cabeza);
    void crearDireccion(std::size_t i, QWidget* marco);
    void CargarListas();

    // Marks and ways out, in frm_apartado2_commands.cpp.
    void pulsarElMismo(std::size_t i);
    void ponerMarca(std::size_t i, bool marcada);
    /// Empties the controls of a domicile and turns them off, or on again.
    void AplicarElMismo(QStringView sufijo, bool valor);
    int controlesConDatos(QStringView sufijo) const;
    bool aceptado() override;
    void descartar() override;
    /// To the general data, whatever stands before.
    void trasCancelar() override { irAGenerales(); }
    void descargar() override;

    cApartado2& registro_;
    QLabel* titulo_;
    std::array<QLabel*, NumDomicilios> titulos_{};
    std::array<QCheckBox*, NumDomicilios> marcas_{};  ///< nullptr for the fiscal domicile
    std::array<PanelDireccion*, NumDomicilios> direcciones_{};
    bool despedida_ = false;
};

}  // namespace padral
