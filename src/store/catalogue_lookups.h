#pragma once
// The operations by which screens and records read the catalogue tables.

#include <QString>
#include <QStringList>

#include "store/row.h"

namespace padral {

namespace sql {
struct Consulta;
}

/// Lookups in the read-only file, in the language of the moment. Each makes its server object,
/// calls it and lets it go. An unknown key gives an empty text.
class ConsultasCatalogo {
public:
    /// `rutaBDLectura` and `desplazamientoIdioma` (0 Spanish, 10000 Basque) are read at each call.
    ConsultasCatalogo(const QString& rutaBDLectura, const qint16& desplazamientoIdioma)
        : ruta_(rutaBDLectura), desplazamiento_(desplazamientoIdioma) {}

    QString ObtenerCodigoEpigrafe(const QString& descripcion) const;
    QString ObtenerDescripcionEpigrafe(const QString& codigo) const;
    QString ObtenerDescActivEcon(const QString& codigo) const;
    QString ObtenerCodigoFormaJuridica(const QString& descripcion) const;
    QString ObtenerDescFormaJuridica(qint32 codigo) const;
    QString ObtenerNombreProvincia(qint32 codigo) const;
    QString ObtenerDescripcionSiglas(const QString& codigo) const;
    QString ObtenerCodigoCausa(const QString& descripcion) const;
    /// Description of a cause, for printing.
    QString ObtenerCausaCese(const QString& codigo) const;
    /// Name of a municipality of the territory.
    QString NombreMunicipio(qint32 codigo) const;

    /// Tables of key ("C" + number for numeric keys) and text, sorted by text.
    Tabla ListaSiglas() const;
    Tabla ListaProvincias() const;
    Tabla ListaMunicipios() const;
    /// Activities without the row '9999999', and that row alone.
    QStringList Epigrafes() const;
    QStringList EpigrafeSinActividad() const;
    /// Code, letter, description.
    Tabla FormasJuridicas() const;
    QStringList MotivosCambio() const;
    QStringList CausasCese() const;

private:
    /// The query in the language of the moment with its key.
    QString texto(const sql::Consulta& consulta, const QString& clave = {}) const;
    const QString& ruta_;
    const qint16& desplazamiento_;
};

/// Text of the first row of a key/text table that matches; "" when none. Case is ignored. A
/// key of digits alone is compared as "c" followed by its number with the row's key, any other as
/// it stands.
QString BuscarListItem(const Tabla& lista, const QString& clave);
/// Index of the first item whose first two characters equal the code in upper case; -1 when none
/// or the code is empty.
int SeleccionarComboPorCodigo(const QString& codigo, const QStringList& items);
/// Items of the legal form combo in their order: the last row first, then the others, then the
/// `anagrama` where it is not empty and the form of the declaration is 90.
QStringList OrdenFormasJuridicas(const Tabla& tabla, const QString& anagrama, qint32 codigoForma);

}  // namespace padral
