#pragma once
// Section 2: the four domiciles of the declarant.

#include <QString>
#include <QStringView>
#include <span>

#include "core/record_table.h"
#include "declaration/general_data.h"
#include "sections/location/address_block.h"
#include "store/catalogue_lookups.h"

namespace padral {

/// Everything that the working copy of section 2 holds too. A mark is "X" when the domicile
/// coincides with the fiscal one, "" otherwise.
struct DatosApartado2 {
    BloqueDireccion Fis;  ///< fiscal
    BloqueDireccion Act;  ///< activity
    QString ElMismoAct;
    BloqueDireccion Soc;  ///< social
    QString ElMismoSoc;
    BloqueDireccion Not;  ///< notification
    QString ElMismoNot;
    bool Lleno = false;           ///< accepted by the screen, or marked when loaded
    bool Modificaciones = false;  ///< touched since opened or last accepted

    bool operator==(const DatosApartado2&) const = default;
};

/// The 47 values of the store row. Province, names of street type and province are not stored.
std::span<const Columna<DatosApartado2>> TablaApartado2();

class cApartado2 : public DatosApartado2 {
public:
    cApartado2(const cDatosGenerales& generales, const ConsultasCatalogo& catalogo)
        : generales_(generales), catalogo_(catalogo) {}

    /// The last accepted state.
    const DatosApartado2& TablaAuxiliar() const { return auxiliar_; }
    void TablaAuxiliar(const DatosApartado2& datos) { auxiliar_ = datos; }

    /// Empties the block "FIS", "ACT", "SOC" or "NOT" and turns its mark over, or with "TODOS"
    /// empties everything, flags and working copy included. The working copy stays with a single
    /// block, so that the block can still be restored.
    void InicializarApartado2(QStringView sufijo);
    /// The same for the working copy; a single block's mark is set rather than turned over.
    void InicializarTablaAuxiliar(QStringView sufijo);
    /// Takes the 47 values, looks the derived names up and renews the working copy. A postal code
    /// of 0 leaves the province as it was.
    void CargarDatos(const Fila& fila);
    /// The 47 values; the municipality's name is left out where its code says it.
    Fila ObtenerDatos() const;
    void ObtenerDatosTablaAuxiliar() { static_cast<DatosApartado2&>(*this) = auxiliar_; }
    void RellenarTablaAuxiliar() { auxiliar_ = *this; }

    /// Blanks the record for a new declaration: fields, flags and working copy.
    void ResetForNewDeclaration() { InicializarApartado2(u"TODOS"); }

private:
    void completarBloque(BloqueDireccion& bloque) const;

    const cDatosGenerales& generales_;
    const ConsultasCatalogo& catalogo_;
    DatosApartado2 auxiliar_;
};

}  // namespace padral
