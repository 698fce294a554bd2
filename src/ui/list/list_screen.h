#pragma once
// What the screens of a list share: the grid with its search box and its sort arrows, the lines of
// help and result, the entry of search criteria.

#include <QLabel>
#include <QPushButton>
#include <span>
#include <utility>

#include "ui/fields.h"
#include "ui/list/grid_utilities.h"
#include "ui/list/list_grid.h"
#include "ui/screen.h"

namespace padral {

/// A column of a list, from 1 on.
struct ColumnaLista {
    int titulo;                ///< text id of the caption
    int proporcion;            ///< share of the width
    const char16_t* muestra;   ///< the widest usual text
    const char16_t* estrecha;  ///< what still shows where room is scarce: null all of it, empty
                               ///< as much as the caption leaves room for
};

/// A screen with a list. Columns count from 1, 0 is none; rows of the model count from 0. The
/// state of the list stays with the screen that derives from this one.
class PantallaConLista : public Pantalla {
    Q_OBJECT
public:
    /// The search box while criteria are entered, else the grid.
    QWidget* FocoInicial() override;

    /// Shows the list, or the criteria while they are entered.
    virtual void PresentaDatos();
    /// Turns the buttons on and off.
    virtual void Presentabotones() = 0;

protected:
    /// `columnas` outlives the screen; the second one takes the width that is left over.
    PantallaConLista(const QString& nombre, const Contexto& contexto, const QString& nombreRejilla,
                     std::span<const ColumnaLista> columnas);

    /// The last step of the construction.
    void montar(ModeloLista* modelo, QWidget* botones);
    /// Title, captions of the columns and the least widths of these.
    void ponerTitulos(const QString& titulo);
    /// What each column should have at least, and what it can make do with.
    virtual std::pair<RejillaLista::Anchos, RejillaLista::Anchos> minimos() const;
    void rotular(QPushButton* boton, int caption, int ayuda);
    /// Room around a caption.
    static void darHolgura(QPushButton* boton);

    /// Characters that a criterion takes, and their filter.
    struct Entrada {
        int ancho;
        int (*filtro)(int);
    };
    virtual Entrada entradaDe(int columna) const = 0;

    // What the state says.
    virtual bool enBusqueda() const = 0;
    virtual bool hayFilas() const = 0;
    virtual int columnaEnMano() const = 0;
    virtual int columnaDeOrden() const = 0;
    virtual bool ordenAscendente() const = 0;

    // What changes it; nothing shows before PresentaDatos.
    virtual void iniciarBusqueda() = 0;
    virtual void acabarBusqueda() = 0;
    virtual void quitarCriterios() = 0;
    virtual void tomarColumna(int columna) = 0;
    /// False: the text is refused, and its message has been shown.
    virtual bool tomarCriterio(int columna, const QString& valor) = 0;
    /// False, and nothing changes, for a column that does not sort and while criteria are entered.
    virtual bool tomarOrden(int columna) = 0;
    virtual void tomarOrdenInverso() = 0;
    virtual void tomarFila(int fila) = 0;

    /// Runs the query and gives its rows to the grid.
    virtual void cargarFilas() = 0;
    /// The row to mark when the list shows.
    virtual int filaPropia() const = 0;
    /// Double click or Enter on a row.
    virtual void accionDeFila() = 0;

    const cUtilidadesGrid& utilidades() const { return utilidades_; }
    bool listaConFilas() const { return !enBusqueda() && hayFilas(); }
    void presentarLista();
    void presentarCriterios();
    void presentarFlecha();
    void pulsarBuscar();
    void verTodos();

    RejillaLista* rejilla_;
    QLabel *lblayuda_, *lblResultado_;

private:
    // Construction, in list_screen_layout.cpp.
    void crearBusqueda();
    void conectar();

    // The list, in list_screen.cpp.
    void refrescar();
    void elegirFila();
    void pulsarCabecera(int columna);
    void ordenarPor(int columna);
    void invertirOrden();

    // Search, in list_screen_search.cpp.
    void terminarBusqueda();
    void elegirColumna(int columna);
    bool moverColumna(int paso);
    bool guardarCriterioEnMano();
    bool teclaEnBusqueda(QKeyEvent* evento);
    bool eventFilter(QObject* objeto, QEvent* evento) override;

    /// Of the arrows on the header, in pixels.
    static constexpr int LadoFlecha = 16, MargenFlecha = 3;

    std::span<const ColumnaLista> columnas_;
    ModeloLista* modelo_ = nullptr;
    cUtilidadesGrid utilidades_;
    qint32 filaMarcada_ = 0;
    QLabel* titulo_;
    CampoTexto* txtBusqueda_;
    ImagenPulsable *picasc_, *picdesc_;
};

}  // namespace padral
