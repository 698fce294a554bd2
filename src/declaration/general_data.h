#pragma once
// The general data of a declaration: the first page of the form.

#include <QString>

#include "core/record_table.h"

namespace padral {

/// What the aggregate keeps about the open declaration; see cDeclaraciones.
struct EstadoDeclaracion {
    qint32 csde = 0;        ///< key in the store; 0 for one that the store has not seen
    QString Modo;           ///< "A" new or copy, "C" stored, "E" delete, "" nothing open
    qint16 NumParti = 0;    ///< participants of the open declaration
    double SumaPorcen = 0;  ///< running sum of their percentages
};

/// The stored texts of the general data. Section flags are "X", " " or "" (new or unticked).
struct DatosGeneralesStore {
    QString DNI, NOMBRE, NumeroArchivo;
    qint32 FECHADECLARACION = 0;   ///< `yyyymmdd`, 0 none, as all dates here
    qint32 FechaConstitucion = 0;  ///< constitution of the entity
    qint32 FechaInscripcion = 0;   ///< entry in the register
    QString Causa1;                ///< type: "P" before the start, "I" start, "M" change, "C" end
    QString Causa2;                ///< request: "A" to "F", "" none
    QString DNIAnterior, NombreAnterior;
    qint16 MotivoCambio = 0;  ///< code of TMotivoCambio: 0 none, 10, 20, 30, 31
    QString Apartado2, Apartado3, Apartado4, Apartado5, Apartado6, Apartado7, AnexoI, AnexoII;
    QString DNIRepresentante, NombreRepresentante;
    QString FirmaEnCalidadDe;  ///< capacity in which it is signed, or "EL MISMO"
    QString ElMismo;           ///< "X" when the declarant signs
    QString SolicitaModif;     ///< "X" when element 11 of the loaded array is not 0
    QString SolicitaNIF;       ///< "X" when element 8 of the loaded array is not empty
};

class cDatosGenerales : public DatosGeneralesStore {
public:
    /// `declaracion` receives the counters of IniciarVarGen and gives the key for element 0.
    explicit cDatosGenerales(EstadoDeclaracion& declaracion) : declaracion_(declaracion) {}

    qint16 NumParti = 0;
    /// Effective date `yyyymmdd`: chooses editions of screens and rules. Not stored.
    qint32 FECHAVIGOR = 0;

    qint32 FechaModificacion() const { return fechaModificacion_; }
    /// Sets FECHAVIGOR to the same value.
    void FechaModificacion(qint32 valor) { fechaModificacion_ = FECHAVIGOR = valor; }

    /// Takes the fields from the 18 values of the store.
    void CargarDatos(const Fila& datos, qint16 numParti);
    /// The 18 values; element 0 is the key of the open declaration, element 12 always 8 characters.
    Fila ObtenerDatos() const;
    /// Empties all texts, the reason and the four stored dates; FECHAVIGOR and NumParti stay.
    void InicializarDatosGenerales();
    /// Participants and the sum of their percentages to 0.
    void IniciarVarGen();

private:
    EstadoDeclaracion& declaracion_;
    qint32 fechaModificacion_ = 0;
};

/// Text of the signature when the declarant signs.
inline const QString FirmaElMismo = QStringLiteral("EL MISMO");

/// Whether a section flag marks its section.
inline bool Marcado(const QString& bandera) { return bandera == QStringLiteral("X"); }

}  // namespace padral
