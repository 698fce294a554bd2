#pragma once
// Section 5: 28 questions on the tax situation of the declarant.

#include <span>

#include "core/record_table.h"
#include "declaration/general_data.h"

namespace padral {

/// The answers: "S", "N" or a blank. Numbers are the boxes of the form.
struct RespuestasApartado5 {
    Letra GRANEMPRESA;        ///< 89 large company
    Letra SOCIEDADES;         ///< 90 obliged to file corporate tax returns
    Letra ADMINISTRACIONES;   ///< 163 pays corporate tax to more than one administration
    Letra EXENTASOCI;         ///< 91 entity of article 9 of N.F. 7/1996
    Letra ART117;             ///< 164 company exempt under article 117
    Letra COOPERATIVA;        ///< 165 non-profit entity of N.F. 3/2004; the name is older
    Letra CONSOLIDACION;      ///< 166 fiscal consolidation
    Letra DOMINANTE;          ///< 167 dominant entity
    Letra SATISRENDTRAB;      ///< 93 pays income from work subject to withholding
    Letra SATISRENDARREN;     ///< 94 pays rents subject to withholding
    Letra IRPFDIRECTA;        ///< 98 normal direct estimation
    Letra IRPFOBJETIVA;       ///< 99 objective estimation, asked before 2015
    Letra IRPFDIRECTSIMPLIF;  ///< 100 simplified direct estimation
    Letra IVA;                ///< 102 obliged to file I.V.A. returns: splits what follows
    Letra GENERAL;            ///< 103 yes branch: general regime
    Letra RECARGO;            ///< 104 yes branch: equivalence surcharge
    Letra AGENCIASOPERACION;  ///< 105 yes branch: travel agencies by operation
    Letra AGENCIASGLOBAL;     ///< 106 yes branch: travel agencies, global; asked before 2015
    Letra BIENESUSADOS;       ///< 107 yes branch: second-hand goods, art, antiques
    Letra BIENESMARGEN;       ///< 108 yes branch: the same, global margin
    Letra Agric;              ///< 109 yes branch: agriculture, livestock and fishing
    Letra SIMPLIF;            ///< 110 yes branch: simplified regime
    Letra OPEXSINDCHO;        ///< 168 yes branch: exempt without right of deduction
    Letra NORECARGO;          ///< 112 no branch: equivalence surcharge
    Letra NOAGRIC;            ///< 113 no branch: agriculture, livestock and fishing
    Letra NOEXENTAS;          ///< 114 no branch: exclusively exempt operations
    Letra NOCONCIERTO;        ///< 115 no branch: Ley 12/81 of the Concierto Económico
    Letra IVACAJA;            ///< 172 yes branch: cash criterion

    bool operator==(const RespuestasApartado5&) const = default;
};

/// Everything that the auxiliary copy of section 5 holds too.
struct DatosApartado5 : RespuestasApartado5 {
    bool APARTADO5LLENO = false;  ///< accepted by the screen, or marked when loaded
    bool MODIFAPARTADO5 = false;  ///< changed since opened or last accepted

    bool operator==(const DatosApartado5&) const = default;
};

/// The 28 values of the store row.
std::span<const Columna<RespuestasApartado5>> TablaApartado5();

class cApartado5 : public DatosApartado5 {
public:
    explicit cApartado5(const cDatosGenerales& generales) : generales_(generales) {}

    /// Empties the answers here and in the auxiliary copy; no flag changes.
    void InicializarApartado5();
    /// Takes the 28 values and renews the auxiliary copy. In a marked section no answer means no.
    void CargarDatos(const Fila& fila);
    /// The 28 values; a marked section stores its "N" as blanks.
    Fila ObtenerDatos() const;
    void GuardarDatosAuxiliares() { auxiliar_ = *this; }
    void RecuperarDatosAuxiliares() { static_cast<DatosApartado5&>(*this) = auxiliar_; }

    /// Blanks the record for a new declaration: answers, flags and auxiliary copy, so that the
    /// section of the declaration before it does not stay marked.
    void ResetForNewDeclaration();

private:
    void BlancoANo();
    static void NoABlanco(Fila& fila);

    const cDatosGenerales& generales_;
    DatosApartado5 auxiliar_;
};

}  // namespace padral
