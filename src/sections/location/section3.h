#pragma once
// Section 3: census data that are not addresses.

#include <QString>
#include <span>

#include "core/record_table.h"
#include "declaration/general_data.h"
#include "sections/location/address_block.h"
#include "store/catalogue_lookups.h"

namespace padral {

/// Everything that the working copy of section 3 holds too. Channels: "A" high, "B" low, blank.
struct DatosApartado3 {
    bool Lleno = false;                ///< accepted by the screen, or marked when loaded
    bool Modificaciones = false;       ///< touched since opened or last accepted
    Letra ResidenteKelmaria;           ///< "S" resident in the territory, "N" not
    qint32 PorcenDeduccion = 0;        ///< provisional deduction percentage, 0 to 100
    qint32 FechaInicio = 0;            ///< start of the activity, `yyyymmdd`, 0 none
    QString ListaEpigrafe;             ///< activity heading, or its free description
    QString ActivEcon;                 ///< code of the heading; "9999999" without heading
    BloqueDireccion Act;               ///< kept like section 2, used by nothing
    BloqueDireccion Soc;               ///< kept like section 2, used by nothing
    qint32 CodigoFormaJuridica = 0;    ///< legal form; 90 other, with a free description
    QString DescripcionFormaJuridica;  ///< 20 when free
    QString Anagrama;                  ///< trade name, 20
    qint32 FechaCierre = 0;            ///< closing date of the fiscal year, `mmdd`, 0 none
    QString SocPat;                    ///< "X" dormant company
    QString ActVenMov;  ///< "X" reseller of telephones, consoles, computers and tablets
    Letra IdiomaPref;   ///< "C" Spanish, "E" Basque
    Letra MedioPref;    ///< "P" postal, "E" electronic
    Letra Correo;       ///< e-mail channel
    QString DirCorreo;  ///< e-mail address
    Letra Fax;          ///< fax channel
    qint32 numFax = 0;  ///< 9 digits, 0 none
    Letra Movil;        ///< mobile telephone channel
    qint32 numMovil = 0;
    Letra Fijo;  ///< fixed telephone channel
    qint32 numFijo = 0;
    Letra Consentimiento;  ///< "S" consent to share data given
    Letra Revocacion;      ///< "S" earlier consent revoked

    bool operator==(const DatosApartado3&) const = default;
};

/// Activity code of a declarant without heading.
inline const QString ActividadSinEpigrafe = QStringLiteral("9999999");
/// Legal form with a free description.
constexpr qint32 FormaJuridicaOtra = 90;

/// The 23 values of the store row.
std::span<const Columna<DatosApartado3>> TablaApartado3();

class cApartado3 : public DatosApartado3 {
public:
    /// `generales` receives the effective date when the start date is set.
    cApartado3(cDatosGenerales& generales, const ConsultasCatalogo& catalogo)
        : generales_(generales), catalogo_(catalogo) {}

    qint32 FechaInicio() const { return DatosApartado3::FechaInicio; }
    /// Sets the effective date too: to the same value when it is above 0 and the declaration is
    /// not a modification, else to 0.
    void FechaInicio(qint32 valor);

    /// The last accepted state.
    const DatosApartado3& TablaAuxiliar() const { return auxiliar_; }
    void TablaAuxiliar(const DatosApartado3& datos) { auxiliar_ = datos; }

    /// Empties everything, flags and working copy included; the effective date stays.
    void InicializarApartado3();
    void InicializarTablaAuxiliar() { auxiliar_ = {}; }
    /// Takes the 23 values, looks names up that are not free text, renews the working copy. The
    /// effective date stays.
    void CargarDatos(const Fila& fila);
    Fila ObtenerDatos() const;
    void ObtenerDatosTablaAuxiliar() { static_cast<DatosApartado3&>(*this) = auxiliar_; }
    void RellenarTablaAuxiliar() { auxiliar_ = *this; }

    /// Blanks the record for a new declaration: fields, flags and working copy.
    void ResetForNewDeclaration() { InicializarApartado3(); }

private:
    cDatosGenerales& generales_;
    const ConsultasCatalogo& catalogo_;
    DatosApartado3 auxiliar_;
};

}  // namespace padral
