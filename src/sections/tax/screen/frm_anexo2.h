#pragma once
// Annex II: non-residents, their establishment and representative, further I.V.A. options.

#include <array>
#include <utility>
#include <vector>

#include "declaration/screen/section_screen.h"
#include "sections/tax/annex2_rules.h"
#include "ui/answer_box.h"

class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QToolButton;
class QVBoxLayout;

namespace padral {

namespace anexo2 {
struct Campo;
struct Marco;
struct Pregunta;
struct Rotulo;
}  // namespace anexo2

class CajaNum;
class CampoTexto;
class ListaEleccion;

/// The last screen of the chain, the same for all dates.
class frmAnexoII : public PantallaApartado {
    Q_OBJECT
public:
    frmAnexoII(const Contexto& contexto, cDeclaraciones& declaracion);

    void Anadir_captions() override;
    void Cargar() override;
    QWidget* FocoInicial() override;

    /// Shows the whole record in the controls. An answer that is no longer asked for is emptied.
    void Refrescar();
    /// Municipalities can be picked in the territory's own province only. From 2014 the option for
    /// the special pro-rata rule is emptied and hidden.
    void ActualizarBotones();

private:
    static constexpr std::size_t NumCodigos = 2;
    static constexpr std::size_t n(ListaAnexoII lista) { return static_cast<std::size_t>(lista); }

    /// A row of exclusive boxes; those that its question does not have are none.
    struct Fila {
        const anexo2::Pregunta* pregunta;
        QLabel* etiqueta;  ///< nullptr: none on the screen
        std::array<CasillaRespuesta*, 3> casillas;
    };
    /// A field with what is read aloud for it.
    struct Nombrado {
        QLineEdit* campo;
        int titulo, texto;
    };

    // Construction, in frm_anexo2_layout.cpp.
    QLabel* crearEtiqueta(const anexo2::Rotulo& rotulo, QWidget* padre);
    QVBoxLayout* bajoRotulo(const anexo2::Rotulo& rotulo, QWidget* campo);
    CampoTexto* crearCampo(const anexo2::Campo& campo, QWidget* padre);
    QGroupBox* crearMarco(const anexo2::Marco& marco);
    void crearCodigos(QGroupBox* grupo);
    QVBoxLayout* crearCodigo(std::size_t i, QWidget* padre);

    // The questions, in frm_anexo2_questions.cpp.
    QWidget* crearPreguntas();
    void crearFila(const anexo2::Pregunta& pregunta, QGridLayout* rejilla, QWidget* padre);
    void crearPorcentaje(QGridLayout* rejilla, QWidget* padre);

    // Captions, in frm_anexo2_captions.cpp.
    void rotularFila(const Fila& fila);

    // Data and answers, in frm_anexo2.cpp.
    bool seContesta(QString DatosAnexoII::*respuesta) const;
    void presentarCodigos();
    void presentar(const Fila& fila);
    void presentarPorcentaje();
    void cerrarProrrata(const Fila& fila);
    void conectarCasillas();
    void pulsar(const Fila& fila, std::size_t i);
    void cambiado();

    // Fields and lists, in frm_anexo2_fields.cpp.
    void conectarCampos();
    void conectarListas();
    bool dejarTexto(const CampoTexto* campo, QString DatosAnexoII::*propiedad);
    bool dejarNif();
    bool dejarPorcentaje();
    bool dejarProvincia();
    bool dejarMunicipio();
    QString buscar(ListaAnexoII lista, qint32 codigo) const;
    void abrir(ListaAnexoII lista);
    bool abrirAlSalir(ListaAnexoII lista);
    void elegirProvincia(const QString& clave, const QString& texto);
    void elegirMunicipio(const QString& clave, const QString& texto);

    // Leaving, in frm_anexo2_commands.cpp.
    bool aceptado() override;
    void descartar() override;
    /// To the general data, whatever stands before.
    void trasCancelar() override { irAGenerales(); }

    cAnexoII& anexo_;

    std::vector<Fila> filas_;
    std::vector<std::pair<CampoTexto*, QString DatosAnexoII::*>> textos_;
    std::array<CajaNum*, NumCodigos> codigos_{};
    std::array<CampoTexto*, NumCodigos> nombres_{};
    std::array<QToolButton*, NumCodigos> botonesLista_{};
    std::array<ListaEleccion*, NumCodigos> listas_{};
    CampoTexto* txtNIF_ = nullptr;
    CajaNum* numPorcentaje_ = nullptr;
    QLabel* lbl15_ = nullptr;
    QCheckBox* chkRevocacion_ = nullptr;
    std::vector<std::pair<QGroupBox*, int>> marcos_;
    std::vector<Nombrado> nombrados_;
    /// Captions that are just a text of the catalogue.
    std::vector<std::pair<QLabel*, int>> etiquetas_;
};

}  // namespace padral
