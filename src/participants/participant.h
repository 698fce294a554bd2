#pragma once
// One participant of an entity under income attribution (Annex I), and the participants of the
// open declaration.

#include <QString>
#include <memory>
#include <span>
#include <vector>

#include "core/record_table.h"
#include "store/catalogue_lookups.h"

namespace padral {

/// Everything that the working copy of a participant holds too. Regime letters: "O" option,
/// "A" renunciation, "R" revocation, blank none.
struct DatosParticipe {
    qint32 csde = 0;  ///< key of the declaration
    qint32 cspa = 0;  ///< key in the store, 0 until stored
    TextoFijo<9> DNI;
    TextoFijo<30> NOMBRE;
    TextoFijo<2> SiglasDom;  ///< street type code
    QString DESCRIPCIONVIA;  ///< street type, derived, 15
    TextoFijo<30> NombreVia;
    qint32 Numero = 0;  ///< 5 digits
    TextoFijo<2> Letra;
    TextoFijo<2> Escalera;
    TextoFijo<2> Piso;
    TextoFijo<3> Mano;
    qint16 CodigoProvincia = 0;  ///< 2 digits
    QString NombreProvincia;     ///< derived, 20
    qint32 Telefono = 0;         ///< 9 digits
    qint32 CodPostal = 0;        ///< 5 digits without leading zeros
    qint32 CodMun = 0;           ///< only in the territory's own province
    QString NombMun;             ///< derived there, free text elsewhere, 25
    float PorcenPart = 0;        ///< percentage of participation, above 0 and at most 100
    TextoFijo<1> EdIRPF;         ///< simplified direct estimation: "O", "R"
    TextoFijo<1> EqIRPF;         ///< objective estimation by modules: "O", "R"
    TextoFijo<1> SimplifIVA;     ///< simplified I.V.A. regime: "A", "R"
    TextoFijo<1> Agric;          ///< agriculture, livestock and fishing: "A", "R"

    bool operator==(const DatosParticipe&) const = default;
};

/// The 20 values of the store row.
std::span<const Columna<DatosParticipe>> TablaParticipe();

class cParticipes;

/// Participants that the whole program shares.
struct Participantes {
    /// Those of the open declaration, deleted ones included until the save.
    std::vector<std::shared_ptr<cParticipes>> colParticipes;
    std::shared_ptr<cParticipes> ParticipeActual;  ///< the one being worked on
};

class cParticipes : public DatosParticipe {
public:
    /// `rutaBDModificacion` is read at each store operation.
    cParticipes(Participantes& participantes, const QString& rutaBDModificacion)
        : participantes_(participantes), rutaBDModificacion_(rutaBDModificacion) {}

    TextoFijo<1> Modo;                        ///< "A" new, "C" existing, "E" deleted
    QString Lleno = QStringLiteral("False");  ///< truth value as text
    bool MODIFPARTICIPES = false;             ///< changes pending on the participant screen

    qint16 CodigoProvincia() const { return DatosParticipe::CodigoProvincia; }
    /// Takes the leading number of a text.
    void CodigoProvincia(QStringView texto);

    /// Empties every property; the working copy stays.
    void InicializarDatos();
    void RellenarTablaAuxiliar() { auxiliar_ = *this; }
    void ObtenerDatosTablaAuxiliar() { static_cast<DatosParticipe&>(*this) = auxiliar_; }
    /// Takes the 20 values and looks the derived names up; a postal code of 0 leaves the province.
    void CargarDatos(const Fila& fila, const ConsultasCatalogo& catalogo);
    /// The 20 values; the municipality's name is left out where its code says it.
    Fila ObtenerDatos() const;

    /// Looks for an identifier (capitals) among the participants that are not deleted. The first
    /// one found becomes the current one with mode "C" and `resultado` true; else nothing changes.
    void ExisteDNI(const QString& dni, bool& resultado) const;

    /// Stores the participant under a new key, which `cspa` takes.
    void AñadirParticipe();
    void ModificarParticipe() const;
    void EliminarParticipe() const;

    /// Blanks the record for a new declaration, working copy included.
    void ResetForNewDeclaration();

private:
    Participantes& participantes_;
    const QString& rutaBDModificacion_;
    DatosParticipe auxiliar_;
};

}  // namespace padral
