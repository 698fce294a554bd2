#pragma once
// Section 4: requests for special regimes, registers, and the entity of which one is a member.

#include <array>
#include <vector>

#include "declaration/edition.h"
#include "declaration/screen/section_screen.h"
#include "ui/answer_box.h"
#include "ui/fields.h"

class QGridLayout;

namespace padral {

namespace apartado4 {
struct Bloque;
struct Cabecera;
struct CasillaFila;
struct Rotulo;
struct Solicitud;
}  // namespace apartado4

class EtiquetaPuntos;

/// One screen in two editions. The later one asks for the customs quotas, and no longer for modules
/// and travel agencies, whose answers it leaves alone.
class frmApartado4 : public PantallaApartado {
    Q_OBJECT
public:
    /// The form name is "frmApartado4" or "frmApartado4_2015".
    frmApartado4(const Contexto& contexto, cDeclaraciones& declaracion, Edicion edicion);

    void Anadir_captions() override;
    void Cargar() override;
    QWidget* FocoInicial() override;

    /// Shows the whole record in the controls. Who is not a member of an entity loses its data.
    void PresentaDatos();
    /// Ways on. From 2014 the earlier edition no longer asks for modules and empties that answer.
    void Presentabotones();

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    /// A row of exclusive boxes; those that its request does not have are none.
    struct Fila {
        const apartado4::Solicitud* solicitud;
        const apartado4::Cabecera* cabecera;
        QLabel* etiqueta;
        std::array<CasillaRespuesta*, 3> casillas;
    };

    // Construction, in frm_apartado4_layout.cpp.
    bool existe(const apartado4::Solicitud& solicitud) const;
    void crearBloque(const apartado4::Bloque& bloque, QGridLayout* rejilla);
    void crearCabecera(const apartado4::Cabecera& cabecera, QGridLayout* rejilla);
    void crearFila(const apartado4::Solicitud& solicitud, const apartado4::Cabecera& cabecera,
                   QGridLayout* rejilla);
    QLabel* etiquetaDe(const apartado4::Rotulo& rotulo);
    void crearEntidad(QGridLayout* rejilla);

    // Captions, in frm_apartado4_captions.cpp.
    QString textoDe(const apartado4::Rotulo& rotulo) const;
    QString rotuloDe(const apartado4::CasillaFila& respuesta) const;
    void rotularFila(const Fila& fila);

    // Data, in frm_apartado4_data.cpp.
    void presentarEntidad();
    bool sinModulos() const;
    void conectarCasillas();
    void pulsar(const Fila& fila, std::size_t i);
    void anotar(const apartado4::Solicitud& solicitud, std::size_t i, bool marcada);

    // Fields, in frm_apartado4.cpp.
    void conectarCampos();
    bool dejarNif();
    template <int N>
    bool guardarTexto(CampoTexto* campo, TextoFijo<N> DatosApartado4::*propiedad);

    // Leaving, in frm_apartado4_commands.cpp.
    bool aceptado() override;
    void descartar() override;

    cApartado4& apartado_;
    const Edicion edicion_;

    std::vector<Fila> filas_;
    CampoTexto *txtNIF_, *txtNombre_;
    EtiquetaPuntos* lblSONF_ = nullptr;
    /// Captions that are just a text of the catalogue.
    std::vector<std::pair<QLabel*, int>> etiquetas_;
};

}  // namespace padral
