#pragma once
// Catalogues, counters and general settings of the two database files.

#include <QString>
#include <QStringList>
#include <array>

#include "store/busy_timeout.h"
#include "store/row.h"

namespace padral::SvrDPadral {

/// Made for one operation: tell it the file, call it, let it go. No connection stays open. Any
/// failure of a file is thrown as padral::Fallo; a query without rows is none.
class cGeneral {
public:
    /// File of the reading operations; not only the read-only one: language and update setting
    /// are read and written through it in the declarations file.
    QString mdbnameread;
    /// File of `NumeroDeclaraciones`.
    QString mdbnamewrite;
    /// Milliseconds that a file locked by another program is waited for.
    int busyTimeout = store::BusyTimeoutMs;

    qint32 NumeroDeclaraciones() const;
    /// Element 0 lowest date accepted, 1 highest, 2 lowest declaration date; `yyyymmdd`.
    void DameFechaMinimaMaxima(std::array<qint32, 3>& fechas) const;
    /// "C" or "E".
    QString DameIdioma() const;
    void CambiarIdioma(const QString& idioma) const;
    /// Address of the version check.
    QString URLAct() const;
    /// 1 check at start, 0 don't, negative on the first run.
    qint16 ObtenerActOnline() const;
    void GuardarActOnline(qint16 valor) const;
    /// Value of the column BACKUP_TVC of TGENERAL.
    QString BackupTvc() const;

    /// Runs a query with all its columns. A numeric first column comes as "C" followed by the
    /// number, since lists of the screens take no purely numeric key.
    void CargarResultado(const QString& sql, Tabla& resultado) const;
    void CargarMunicipio(const QString& sql, Tabla& resultado) const;
    /// First column, in query order.
    void ObtenerEpigrafe(const QString& sql, QStringList& resultado) const;
    void ObtenerMotivoCambio(const QString& sql, QStringList& resultado) const;
    void ObtenerDescriCese(const QString& sql, QStringList& resultado) const;
    /// Columns code, letter, description.
    void ObtenerFormaJuridica(const QString& sql, Tabla& resultado) const;
    /// First column of the first row, "" when there is none.
    void ObtenerCausaCese(const QString& sql, QString& resultado) const;
    void ObtenerCodigoEpigrafe(const QString& sql, QString& resultado) const;
    void ObtenerDescripcionEpigrafe(const QString& sql, QString& resultado) const;
    void ObtenerCodigoFormaJuridica(const QString& sql, QString& resultado) const;
    void ObtenerNombreProvincia(const QString& sql, QString& resultado) const;
    void ObtenerDescripcionSiglas(const QString& sql, QString& resultado) const;
    void ObtenerDescActivEcon(const QString& sql, QString& resultado) const;
    void ObtenerDescFormaJuridica(const QString& sql, QString& resultado) const;
    void ObtenerCodigoCausa(const QString& sql, QString& resultado) const;
};

}  // namespace padral::SvrDPadral
