#pragma once
// Section 4: requests for special regimes, registers, and the entity of which one is a member.

#include <span>

#include "core/record_table.h"
#include "declaration/general_data.h"

namespace padral {

/// Everything that the auxiliary copy of section 4 holds too. Requests are "O" option,
/// "R" revocation or waiver, "E" exclusion, "A" waiver; entry "A" and removal "B" for the two
/// registers; a blank is no request. Numbers are the boxes of the form.
struct DatosApartado4 {
    Letra IRPFOBJET;       ///< objective estimation by modules: O 57, R 58, E 59
    Letra IRPFDIRECT;      ///< simplified direct estimation: O 60, R 61, E 62
    Letra IVAAGRIC;        ///< agriculture, livestock and fishing: A 66, R 67, E 68
    Letra IVASIMPLIF;      ///< simplified regime: A 69, R 70, E 71
    Letra IVAEXPORT;       ///< exporters, since 2009 monthly refunds: A 75, B 76
    Letra IVAEXPORTINTRA;  ///< intra-community operators: A 161, B 162
    Letra IVAAGENCIAS;     ///< travel agencies, global base: O 77, R 78
    Letra IVABIENES;       ///< second-hand goods, global margin: O 80, R 81
    Letra IVASOCIO;        ///< member of an entity under income attribution: S 83, N 84
    TextoFijo<9> NIF;      ///< identifier of that entity
    TextoFijo<40> NOMBRE;  ///< name of that entity
    Letra SONF;            ///< companies, title II of N.F. 3/2004: O, R
    Letra IVACAJA;         ///< cash criterion: O 169, R 170, E 171
    Letra IVACUOADU;       ///< customs quotas in the returns: O 173, R 174, E 175
    bool Lleno = false;    ///< accepted by the screen, or marked when loaded

    bool operator==(const DatosApartado4&) const = default;
};

/// The 14 values of the store row.
std::span<const Columna<DatosApartado4>> TablaApartado4();

class cApartado4 : public DatosApartado4 {
public:
    explicit cApartado4(const cDatosGenerales& generales) : generales_(generales) {}

    bool MODIFAPARTADO4 = false;  ///< changed since opened or last accepted

    void InicializarApartado4() { LIMPIARDATOS(); }
    /// Empties values and flags and renews the auxiliary copy.
    void LIMPIARDATOS();
    /// Takes the 14 values as they stand and renews the auxiliary copy.
    void CargarDatos(const Fila& fila);
    Fila ObtenerDatos() const { return FilaDe<DatosApartado4>(*this, TablaApartado4()); }
    void GuardarDatosAuxiliares() { auxiliar_ = *this; }
    void RecuperarDatosAuxiliares() { static_cast<DatosApartado4&>(*this) = auxiliar_; }

    /// Blanks the record for a new declaration: values, flags and auxiliary copy.
    void ResetForNewDeclaration() { LIMPIARDATOS(); }

private:
    const cDatosGenerales& generales_;
    DatosApartado4 auxiliar_;
};

}  // namespace padral
