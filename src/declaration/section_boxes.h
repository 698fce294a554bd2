#pragma once
// What the boxes of the general data do to the declaration: types, requests, sections.

#include <array>
#include <optional>
#include <span>

#include "declaration/declaration.h"

namespace padral {

/// A section or annex as the general data screen sees it.
struct CasillaApartado {
    const char16_t* casilla;  ///< name of its check box
    const char16_t* boton;    ///< name of its button
    int numero;               ///< 2 to 7, 8 for Annex I, 10 for Annex II, as in the chain
    int caption;              ///< text of the button
    int ayuda;                ///< tool tip of the button
    int pregunta;             ///< question before its data are erased
    int tituloPregunta;
    const char16_t* lista;  ///< how the list of sections to be erased names it
    QString DatosGeneralesStore::*bandera;
    bool (*lleno)(const cDeclaraciones&);
    void (*limpiar)(cDeclaraciones&);
    /// Whether its box can be ticked with this type of declaration ("" none).
    bool (*habilitada)(const cDeclaraciones&, const QString& causa1);
};

enum class Apartado { Dos, Tres, Cuatro, Cinco, Seis, Siete, AnexoI, AnexoII };
std::span<const CasillaApartado, 8> CasillasApartado();
const CasillaApartado& CasillaDe(Apartado apartado);

/// Erases the data of a section and its flag.
void BorrarApartado(cDeclaraciones& declaracion, Apartado apartado);

/// One of the four boxes of the type.
struct CasillaTipo {
    const char16_t* casilla;
    int caption;
    QChar letra;
};
std::span<const CasillaTipo, 4> CasillasTipo();

/// One of the six boxes of the request. `prohibidas` are the types that refuse it, told by
/// `mensaje`.
struct CasillaSolicitud {
    const char16_t* casilla;
    int caption;
    QChar letra;
    const char16_t* prohibidas;
    int mensaje;
};
std::span<const CasillaSolicitud, 6> CasillasSolicitud();

/// A question that has to be answered before data are erased.
struct PreguntaBorrado {
    QString texto;
    QString titulo;
};
/// The question for taking a type; nothing when no data would be lost.
std::optional<PreguntaBorrado> PreguntaMarcarTipo(const cDeclaraciones& declaracion, QChar letra);
/// Takes a type: clears what it does not allow and marks what it asks for.
void MarcarTipo(cDeclaraciones& declaracion, QChar letra);
/// The question for giving up the current type.
std::optional<PreguntaBorrado> PreguntaQuitarTipo(const cDeclaraciones& declaracion);
/// Gives up the current type: clears sections 3 to 7 and Annex II.
void QuitarTipo(cDeclaraciones& declaracion);

/// Empties the fields that the type, the request and the reason for change close, marks Annex I
/// where it is forced, and sets `FECHAVIGOR`. Runs each time the screen shows the record.
void AjustarGenerales(cDeclaraciones& declaracion);
/// The effective date as the type gives it.
qint32 CalcularFechaVigor(const cDeclaraciones& declaracion);
/// Empties answers that the date of change rules out.
void AjustarPorFechaModificacion(cDeclaraciones& declaracion);
/// Empties answers that declarations effective from 20140101 no longer hold; before a save.
void AjustarPorFechaVigor(cDeclaraciones& declaracion);

}  // namespace padral
