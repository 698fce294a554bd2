#pragma once
// Section 5: 28 questions on the tax situation, each with a yes box and a no box.

#include <array>
#include <vector>

#include "declaration/edition.h"
#include "declaration/screen/section_screen.h"
#include "ui/answer_box.h"

class QGridLayout;
class QGroupBox;
class QLabel;

namespace padral {

namespace apartado5 {
struct Pregunta;
struct Rotulo;
enum class Zona;
}  // namespace apartado5

/// One screen in two editions. The later one asks neither for modules nor for the global base of
/// travel agencies.
class frmApartado5 : public PantallaApartado {
    Q_OBJECT
public:
    /// The form name is "frmApartado5" or "frmApartado5_2015".
    frmApartado5(const Contexto& contexto, cDeclaraciones& declaracion, Edicion edicion);

    void Anadir_captions() override;
    void Cargar() override;
    QWidget* FocoInicial() override { return filas_.front().si; }

private:
    struct FilaPregunta {
        const apartado5::Pregunta* pregunta;
        QLabel* etiqueta;
        QWidget* marco;
        CasillaRespuesta *si, *no;
    };

    /// Where the next row goes.
    struct Sitio {
        QGridLayout* rejilla;
        int columna, fila;
    };

    // Construction, in frm_apartado5_layout.cpp.
    QLabel* crearRotulo(const apartado5::Rotulo& rotulo, QWidget* padre);
    QGridLayout* crearZona(apartado5::Zona zona, QWidget* padre);
    QGroupBox* crearPanel(std::size_t i);
    void crearPregunta(const apartado5::Pregunta& pregunta, Sitio& sitio, QWidget* padre);
    void crearCabecera(Sitio& sitio, QWidget* padre);
    bool sePregunta(const apartado5::Pregunta& pregunta) const;
    void igualarAnchos();
    /// The questions below a hidden one move up.
    void cerrarHueco(const FilaPregunta& escondida);

    // Answers, in frm_apartado5.cpp.
    void conectarCasillas();
    void Refrescar();
    void presentar(const FilaPregunta& fila);
    void ActualizarBotones();
    void esconder(const FilaPregunta& fila);
    void pulsar(const FilaPregunta& fila, bool si);
    void responder(const apartado5::Pregunta& pregunta, bool si);
    void cerrarRamas(bool si, bool repetida);

    // Leaving, in frm_apartado5_commands.cpp.
    bool aceptado() override;
    void descartar() override;

    cApartado5& apartado_;
    const Edicion edicion_;
    /// While the boxes are brought in line with the record a click is none.
    bool refrescando_ = false;

    std::vector<FilaPregunta> filas_;
    QGridLayout* arriba_;
    std::array<QGroupBox*, 2> paneles_{};
    std::vector<QWidget*> cabecerasSi_, cabecerasNo_;
    /// Captions that are just a text of the catalogue.
    std::vector<std::pair<QLabel*, int>> etiquetas_;
};

}  // namespace padral
