#pragma once
// Section 7: intra-community operations.

#include <QString>
#include <array>
#include <span>

#include "core/record_table.h"
#include "declaration/general_data.h"

namespace padral {

/// Member states of the form. A state's suffix is 1 to 27 and is not its row on the form: the
/// last three to join have 25 to 27 in the middle of the list.
inline constexpr std::size_t NumEstadosMiembros = 27;

/// Everything that the auxiliary copy of section 7 holds too; "" is no answer. The arrays are
/// indexed by the suffix less 1.
struct DatosApartado7 {
    std::array<QString, NumEstadosMiembros> LimSupPais;     ///< "S" limit passed, "N" not
    std::array<QString, NumEstadosMiembros> DestRevocPais;  ///< "D" at destination, "R" revoked
    QString Agric;                ///< "S" regime of agriculture, livestock and fishing
    QString Exentos;              ///< "S" exempt taxpayer
    QString NoEmpresarios;        ///< "S" legal person not acting as entrepreneur
    QString MasLimEuros;          ///< acquisitions above 10.000 euros: "S", "N"
    QString TributDestino;        ///< taxation at destination: "O" option, "R" revocation
    bool Lleno = false;           ///< accepted by the screen, or marked when loaded
    bool Modificaciones = false;  ///< changed since opened or last accepted

    bool operator==(const DatosApartado7&) const = default;
};

/// The 59 values of the store row: both answers of each state by suffix, then the other five.
std::span<const Columna<DatosApartado7>> TablaApartado7();

class cApartado7 : public DatosApartado7 {
public:
    explicit cApartado7(const cDatosGenerales& generales) : generales_(generales) {}

    /// Empties the 59 answers and renews the auxiliary copy; the flags stay.
    void InicializarApartado7();
    void CargarDatos(const Fila& fila);
    Fila ObtenerDatos() const { return FilaDe<DatosApartado7>(*this, TablaApartado7()); }
    void GuardarDatosAuxiliares() { auxiliar_ = *this; }
    void RecuperarDatosAuxiliares() { static_cast<DatosApartado7&>(*this) = auxiliar_; }

    // The auxiliary record as a whole.
    void RellenarTablaAuxiliar(const DatosApartado7& datos) { auxiliar_ = datos; }
    const DatosApartado7& ObtenerDatosTablaAuxiliar() const { return auxiliar_; }
    void InicializarTablaAuxiliar() { auxiliar_ = {}; }

    /// Blanks the record for a new declaration: answers, flags and auxiliary copy.
    void ResetForNewDeclaration();

private:
    const cDatosGenerales& generales_;
    DatosApartado7 auxiliar_;
};

}  // namespace padral
