#pragma once
// Backup and restore of a database file, for all programs of the authority.

#include <QString>
#include <functional>
#include <optional>

#include "core/message_port.h"
#include "online/backup/backup_texts.h"
#include "online/backup/copy_dialogs.h"
#include "platform/clock.h"
#include "store/file_check.h"

namespace padral::SvrBaseComunLib {

/// Made for one use: tell it the job, call it, let it go. It tells the user what went wrong; no
/// failure of a file leaves it, and after one nothing has changed.
class cSaveAsRestore {
public:
    cSaveAsRestore(Avisador& avisador, const Reloj& reloj, DialogosCopia& dialogos)
        : avisador_(avisador), reloj_(reloj), dialogos_(dialogos) {}

    QString ArchivoOrigen;
    QString ArchivoDestino;
    QString RutaOrigen;
    /// Of a backup: where the choice of the folder starts; made when it is missing.
    QString RutaDestino;
    /// "name|patterns" of the files to choose from.
    QString Filtro;
    /// 0 Spanish, anything else Basque.
    int Idioma = 0;
    /// Window handle of the owner of what is shown; 0 none.
    quintptr Parent = 0;
    /// File, table and column that keep date and folder of the last backup. The backup counts
    /// as done also when they cannot be written.
    QString BDLectura;
    QString BDTabla;
    QString BDCampo;

    /// Copies `ArchivoOrigen` as `ArchivoDestino` into a folder that the user chooses.
    void CrearBackup();
    /// Replaces `ArchivoDestino` by a copy that the user chooses, and keeps what was there under
    /// a name with the date. True when it was replaced.
    bool CrearRestore();

private:
    QString texto(TextoCopia cual) const { return TextoDeCopia(cual, Idioma); }
    QString fechaEscrita(const QDateTime& fecha) const;
    QString cuantas(std::optional<int> declaraciones) const;
    QString descripcion(const QString& ruta, std::optional<int> declaraciones) const;
    bool preguntar(TextoCopia titulo, const QString& pregunta);
    void avisar(TextoCopia titulo, const QString& mensaje, Icono icono);
    /// Runs a step whose failures are told as the reason in `fallida`; true when it went through.
    bool intentar(TextoCopia titulo, TextoCopia fallida, const std::function<bool()>& paso);
    /// How the store asks whether to go on, shown by `progreso`.
    store::GoOn seguimiento(Progreso& progreso) const;
    void comprobarDistintos(const QString& uno, const QString& otro) const;
    bool confirmarReemplazo(const QString& destino);
    bool copiar(const QString& origen, const QString& destino);
    void anotar(const QString& destino, const QDateTime& fecha) const;
    bool restaurar(const QString& copia, const QString& actual);
    bool confirmarRestauracion(const QString& copia, int declaraciones, const QString& actual);

    Avisador& avisador_;
    const Reloj& reloj_;
    DialogosCopia& dialogos_;
};

}  // namespace padral::SvrBaseComunLib
