#pragma once
// Section 6: why and when the activity ends.

#include <QString>
#include <span>

#include "core/record_table.h"
#include "declaration/general_data.h"

namespace padral {

/// The stored values, which the private copy holds too. Dates are `yyyymmdd`, 0 none.
struct DatosApartado6 {
    qint32 FECHACESE = 0;  ///< effective cessation; also the effective date of the declaration
    qint16 CAUSA = 0;      ///< code of TCausasCese, 0 none, 99 with a free description
    TextoFijo<20> DESCRIPCIONCAUSA;
    qint32 FechaInscripcion = 0;  ///< entry in the register

    bool operator==(const DatosApartado6&) const = default;
};

/// The 4 values of the store row.
std::span<const Columna<DatosApartado6>> TablaApartado6();

class cApartado6 : public DatosApartado6 {
public:
    explicit cApartado6(const cDatosGenerales& generales) : generales_(generales) {}

    QString OTRASCAUSAS;          ///< text of cause 99; not stored, the description carries it
    bool Lleno = false;           ///< accepted by the screen, or marked when loaded
    bool MODIFAPARTADO6 = false;  ///< changed since opened or last accepted

    void InicializarApartado6() { LIMPIARDATOS(); }
    /// Empties the stored values and the flags and renews the copy.
    void LIMPIARDATOS();
    void CargarDatos(const Fila& fila);
    Fila ObtenerDatos() const { return FilaDe<DatosApartado6>(*this, TablaApartado6()); }
    void GuardarDatosAuxiliares() { auxiliar_ = *this; }
    void RecuperarDatosAuxiliares() { static_cast<DatosApartado6&>(*this) = auxiliar_; }

    /// Blanks the record for a new declaration: values, the free text, flags and copy.
    void ResetForNewDeclaration();

private:
    const cDatosGenerales& generales_;
    DatosApartado6 auxiliar_;
};

}  // namespace padral
