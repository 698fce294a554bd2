#pragma once
// Section 7: distance sales to each member state, and acquisitions of subjects in special position.

#include <array>
#include <vector>

#include "declaration/screen/section_screen.h"
#include "ui/answer_box.h"

class QGridLayout;
class QLayout;
class QLabel;

namespace padral {

namespace apartado7 {
struct Rotulo;
struct CasillaSujeto;
struct FilaSujeto;
}  // namespace apartado7
struct FilaEstado;

/// Every box stands for one value of one answer: ticked the answer takes it, unticked it is empty.
class FrmApartado7 : public PantallaApartado {
    Q_OBJECT
public:
    FrmApartado7(const Contexto& contexto, cDeclaraciones& declaracion);

    void Anadir_captions() override;
    void Cargar() override;
    QWidget* FocoInicial() override { return casillas_.front().caja; }

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    struct Casilla {
        CasillaRespuesta* caja;
        QString* respuesta;  ///< of the record
        QString valor;
    };

    // Construction, in frm_apartado7_layout.cpp.
    QLabel* crearRotulo(const apartado7::Rotulo& rotulo, QWidget* padre, bool destacado = false);
    QLabel* rotular(QLabel* etiqueta, int texto);
    QLayout* crearVentas();
    QWidget* crearTabla();
    void crearEstado(const FilaEstado& estado, QGridLayout* rejilla, int fila, QWidget* tabla);
    QWidget* crearSujetos();
    void crearSujeto(const apartado7::FilaSujeto& fila, QGridLayout* rejilla, QWidget* panel);
    CasillaRespuesta* crearCasilla(const apartado7::CasillaSujeto& casilla, QWidget* panel);

    // Captions, in frm_apartado7_captions.cpp.
    void rotularEstados();
    void rotularSujetos();
    void rotularConFlecha(CasillaRespuesta* caja);
    int anchoConFlecha();

    // Answers, in frm_apartado7.cpp.
    void conectarCasillas();
    void Refrescar();
    static void presentar(const Casilla& casilla);
    void ActualizarBotones();
    void pulsar(const Casilla& casilla);
    bool irPorLaColumna(const QObject* desde, bool abajo);

    // Leaving, in frm_apartado7_commands.cpp.
    bool aceptado() override;
    void descartar() override;
    /// The advice to cancel comes again, whatever was told before.
    void trasRechazarSiguiente() override;

    cApartado7& apartado_;
    /// While the boxes are brought in line with the record a click is none.
    bool refrescando_ = false;

    /// In reading order: four for each state, then those of the subjects.
    std::vector<Casilla> casillas_;
    /// Captions that are just a text of the catalogue.
    std::vector<std::pair<QLabel*, int>> etiquetas_;
    std::vector<QLabel*> estados_;
};

}  // namespace padral
