#pragma once
// The values and instances that the whole run shares. There is one EstadoCompartido per run.

#include <QString>
#include <array>
#include <memory>

#include "core/fecha.h"
#include "core/message_port.h"
#include "core/text_catalogue.h"
#include "platform/clock.h"
#include "store/catalogue_lookups.h"
#include "store/common_server.h"

namespace padral {

struct EstadoCompartido;

/// The run's record: language, date limits, counters.
class cMDIPadral {
public:
    explicit cMDIPadral(EstadoCompartido& estado) : estado_(estado) {}

    QString BACKUP_TVC;
    qint32 FECMIN = 0;     ///< lowest date accepted for most dates, `yyyymmdd`
    qint32 FECMAX = 0;     ///< highest date accepted
    qint32 NUMDECLA = 0;   ///< declarations in the store
    qint32 FECDECMIN = 0;  ///< lowest declaration date accepted

    /// Language letter: "E" Basque, "C" Spanish; any letter but "E" means Spanish.
    const QString& IDI() const { return idi_; }
    /// Chooses a language: stores it at once and sets the offset and the language of dates.
    void IDI(const QString& idioma);

    void InicializarContadores();
    void LeerFechaMinimaMaxima();
    /// Reads the letter into the field; writes nothing.
    void LeerIdioma();
    void ModificarIdioma(const QString& idioma);

private:
    EstadoCompartido& estado_;
    QString idi_ = QStringLiteral("C");
};

/// State of the version check.
struct cActOnline {
    qint16 ComVer = 0;  ///< 1: the versions differ; never goes back to 0 in a run
    /// Outcome: 0 not finished, 1 no connection, 3 read and compared, 4 bad data.
    qint16 SitAct = 0;
    QString ActDescripcion;             ///< what the version file says of the current version
    QString ActVer1, ActVer2, ActVer3;  ///< the current version
    QString ActDownloadURL;
    QString ProgVer1, ProgVer2, ProgVer3;  ///< the running version
    QString ActFile;                       ///< full path of the program file
    qint16 ActOnline = 0;                  ///< 1 check at start, 0 don't, negative never decided
    QString URLAct;

    void ObtenerURLAct(const QString& rutaBDLectura);
    void LeerActOnline(const QString& rutaBDModificacion);
    void GuardarActOnline(const QString& rutaBDModificacion) const;
};

struct EstadoCompartido {
    EstadoCompartido(Avisador& avisador, Reloj& reloj);
    ~EstadoCompartido();
    EstadoCompartido(const EstadoCompartido&) = delete;
    EstadoCompartido& operator=(const EstadoCompartido&) = delete;

    Avisador& avisador;
    Reloj& reloj;
    const CatalogoTextos textos;

    QString VersionPrograma;  ///< three parts, e.g. "1.30.1"
    QString VersionProducto;  ///< four parts; kept, read by nobody
    /// The object of the common server in use, whichever it is; released after use.
    std::shared_ptr<void> ObjComun;
    QString CarpetaPrograma;     ///< without a separator at its end
    QString RutaTablas;          ///< data folder, with a separator at its end
    QString RutaBDLectura;       ///< path of DPadralLec.mdb
    QString RutaBDModificacion;  ///< path of DPadralMod.mdb
    qint16 DesplazamientoIdioma = 0;
    QString FormularioOrigen;
    bool ModificacionesPendientes = false;
    /// Effective date set by the rules across sections; 0 none.
    qint32 FechaVigor = 0;

    cMDIPadral mdi;
    cFecha fecha;
    cActOnline act;
    ConsultasCatalogo catalogo;

    /// Catalogue text in the current language. Throws TextoAusente.
    const QString& Texto(int id) const { return textos.Texto(id + DesplazamientoIdioma); }
    /// For texts outside the catalogue.
    QString SegunIdioma(const QString& castellano, const QString& euskera) const {
        return DesplazamientoIdioma == 0 ? castellano : euskera;
    }
    /// A rule failure: information icon and OK.
    void Avisar(int texto, int titulo) const { Avisar(Texto(texto), Texto(titulo)); }
    void Avisar(const QString& texto, const QString& titulo) const;
    /// A question with the exclamation icon, OK and Cancel; true for OK.
    bool Preguntar(const QString& texto, const QString& titulo) const;
    bool Preguntar(int texto, int titulo) const { return Preguntar(Texto(texto), Texto(titulo)); }
    /// Message 545 with title 158.
    void AvisarNifNoValido() const;
    /// Asks the common server, made for the call in `ObjComun` and released after it.
    bool ValidaNifCif(const QString& nif);
};

}  // namespace padral
