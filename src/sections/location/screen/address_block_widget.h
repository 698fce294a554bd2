#pragma once
// The entries of one address: fields, list buttons and pick lists over one address record.

#include <QLabel>
#include <QToolButton>
#include <array>
#include <functional>
#include <span>

#include "sections/location/address_block.h"
#include "ui/number_field.h"
#include "ui/pick_list.h"
#include "ui/screen.h"

class QHBoxLayout;
class QVBoxLayout;

namespace padral {

class CampoTexto;

/// The fields of an address, in tab order. The button of a pick list stands behind its code.
enum class Dato : std::size_t {
    Siglas,
    Via,
    Calle,
    Numero,
    LetraPortal,
    Escalera,
    Piso,
    Mano,
    CodProvincia,
    Provincia,
    Postal,
    CodMunicipio,
    Municipio,
    Telefono
};
constexpr std::size_t NumDatos = 14;

/// The catalogue lists of an address.
enum class Catalogo : std::size_t { Vias, Provincias, Municipios };
constexpr std::size_t NumCatalogos = 3;
/// The code and the name that a catalogue gives, in the order of `Catalogo`.
constexpr struct {
    Dato codigo, nombre;
} DatosDeCatalogo[NumCatalogos] = {{Dato::Siglas, Dato::Via},
                                   {Dato::CodProvincia, Dato::Provincia},
                                   {Dato::CodMunicipio, Dato::Municipio}};
using TablasCatalogo = std::array<Tabla, NumCatalogos>;

/// A field: its control, its caption and its place in the record.
struct FilaDireccion {
    const char16_t* control;   ///< nullptr: this address has no such field
    const char16_t* etiqueta;  ///< nullptr: under the caption of the field before it
    int caption;               ///< text id
    int ancho;                 ///< characters, or digits of a number
    const char16_t* formato;   ///< of a number; nullptr for a text
    QString BloqueDireccion::*texto;
    qint32 BloqueDireccion::*numero;
    bool conCero = false;  ///< of a number: 0 shows in its format, otherwise as nothing
};

/// The names of a pick list and its button.
struct FilaLista {
    const char16_t* boton;  ///< nullptr: this address has no such list
    const char16_t* lista;
    int ayuda;            ///< text id of the button's tool tip
    bool escapeAlCodigo;  ///< Esc goes to the code, otherwise to where the focus came from
};

/// What makes up an address on a screen, in the orders of `Dato` and `Catalogo`.
struct TablaDireccion {
    std::span<const FilaDireccion, NumDatos> campos;
    std::array<FilaLista, NumCatalogos> listas;
    /// Gives the name of a control from its name in the tables.
    std::function<QString(const char16_t*)> nombrar;
    int textoBoton = 97;  ///< text id on the buttons of the lists
    /// Picking a province, too, empties code and name of the municipality. Otherwise the
    /// territory's own province keeps the code.
    bool provinciaVaciaMunicipio = false;
};

/// The address on a screen, two rows of fields. What is typed or picked goes into the record at
/// once when the field is left; the controls follow the record by `PresentarDatos`. A code that
/// the catalogue does not know empties its data and opens the list, and the command that left the
/// field does nothing more.
class PanelDireccion : public QWidget {
    Q_OBJECT
public:
    /// `bloque` outlives the panel; a screen with a record of another shape keeps one of its own
    /// and copies it in `alModificar`. The lists lie over `pantalla`.
    PanelDireccion(const Contexto& contexto, const TablaDireccion& tabla, BloqueDireccion& bloque,
                   QWidget* pantalla, QWidget* padre);

    /// The user has changed the record.
    std::function<void()> alModificar;
    /// Runs after `alModificar` where the controls have to follow.
    std::function<void()> alRefrescar;

    /// `titulo` names the address in front of every accessible name; empty: there is just one.
    void Anadir_captions(const QString& titulo);
    void CargarListas(const TablasCatalogo& tablas);
    /// Shows the record and locks the municipality's code or its name, by the province.
    void PresentarDatos();
    /// The municipalities can be picked in the territory's own province only.
    void ActualizarBotones();
    /// The control of a field, nullptr when the address has none.
    QLineEdit* Campo(Dato dato) const;

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    struct Entrada {
        CampoTexto* texto = nullptr;
        CajaNum* numero = nullptr;
        QLabel* etiqueta = nullptr;
    };
    static constexpr std::size_t n(Dato d) { return static_cast<std::size_t>(d); }
    static constexpr std::size_t n(Catalogo c) { return static_cast<std::size_t>(c); }

    // Construction, in address_block_widget.cpp.
    void crearCampos();
    void crearCampo(std::size_t i);
    void crearLista(std::size_t i, QWidget* pantalla);
    void componer();
    QVBoxLayout* columna(Dato dato) const;
    void anadir(QHBoxLayout* fila, std::initializer_list<Dato> datos) const;

    // Reactions, in address_block_widget_data.cpp.
    void conectar();
    void registrar(Dato dato);
    bool dejarPlano(Dato dato);
    bool dejarVia();
    bool dejarProvincia();
    bool dejarNombreProvincia();
    bool dejarMunicipio();
    void elegirVia(const QString& clave, const QString& texto, bool conIntro);
    void elegirProvincia(const QString& clave, const QString& texto, bool conIntro);
    void elegirMunicipio(const QString& clave, const QString& texto, bool conIntro);
    void abandonar(Catalogo catalogo);
    QString prepararLista(Catalogo catalogo);
    void abrir(Catalogo catalogo);
    void mostrar(Catalogo catalogo, const QString& texto);
    bool abrirAlSalir(Catalogo catalogo);
    QString buscar(Catalogo catalogo, qint32 codigo) const;
    void cambiado();

    EstadoCompartido& estado_;
    Pantallas& pantallas_;
    GuardiaCampos& guardia_;
    const TablaDireccion tabla_;
    BloqueDireccion& bloque_;
    std::array<Entrada, NumDatos> entradas_;
    std::array<QToolButton*, NumCatalogos> botones_{};
    std::array<ListaEleccion*, NumCatalogos> listas_{};
};

/// Grey for a field that is off, its normal colours for one that is on.
void PonerFondo(QLineEdit* campo, bool gris);

}  // namespace padral
