#pragma once
// Annex II: non-residents and further I.V.A. options.

#include <QString>
#include <span>

#include "core/record_table.h"
#include "declaration/general_data.h"
#include "store/catalogue_lookups.h"

namespace padral {

/// Everything that the auxiliary copy of Annex II holds too; an empty text is not filled.
struct DatosAnexoII {
    QString DireccionDom;  ///< domicile abroad: address
    QString PoblacionDom;  ///< domicile abroad: place
    QString Nacionalidad;
    QString FormaJuridica;             ///< legal form or class of entity
    QString TerritorioHistorico;       ///< acts through a permanent establishment: "S", "N"
    QString ModalidadEstablecimiento;  ///< kind of establishment: "A", "B", "C"
    QString OtrosEstablecimientos;     ///< "S" others in Spain
    QString NIFRepresentante;
    QString NombreRepresentante;
    QString NacionalidadRepresentante;
    QString DomicilioRepresentante;
    qint32 CodigoMunicipio = 0;   ///< of the representative
    QString NombreMunicipio;      ///< of the representative
    qint32 CodigoProvincia = 0;   ///< of the representative
    QString Obligado;             ///< files non-residents' income tax returns: "S", "N"
    QString Establecimientos;     ///< construction establishments, general regime: "S", "N"
    QString Aplicacion;           ///< "S" regime of investment gold
    QString OpcionApl;            ///< special pro-rata rule: "O" option, "R" revocation
    qint16 PORCENTAJE = 0;        ///< provisional percentage of the pro-rata, 0 to 100
    QString NombreProvincia;      ///< not stored, looked up
    bool Lleno = false;           ///< accepted by the screen, or marked when loaded
    bool Modificaciones = false;  ///< changed since opened or last accepted

    bool operator==(const DatosAnexoII&) const = default;
};

/// The 19 values of the store row.
std::span<const Columna<DatosAnexoII>> TablaAnexoII();

class cAnexoII : public DatosAnexoII {
public:
    cAnexoII(const cDatosGenerales& generales, const ConsultasCatalogo& catalogo)
        : generales_(generales), catalogo_(catalogo) {}

    /// Empties the texts; numbers and flags keep their values.
    void InicializarAnexoII();
    /// Takes the 19 values, looks the province's name up and renews the auxiliary copy. A province
    /// code of 0 leaves the one before.
    void CargarDatos(const Fila& fila);
    Fila ObtenerDatos() const { return FilaDe<DatosAnexoII>(*this, TablaAnexoII()); }
    void RellenarTablaAuxiliar() { auxiliar_ = *this; }
    void ObtenerDatosTablaAuxiliar() { static_cast<DatosAnexoII&>(*this) = auxiliar_; }
    void InicializarTablaAuxiliar() { auxiliar_ = {}; }

    /// Blanks the record for a new declaration: texts, numbers, flags and auxiliary copy.
    void ResetForNewDeclaration();

private:
    const cDatosGenerales& generales_;
    const ConsultasCatalogo& catalogo_;
    DatosAnexoII auxiliar_;
};

}  // namespace padral
