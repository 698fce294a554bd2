#pragma once
// The table of contents of a folder of help pages.

#include <QList>
#include <QString>

namespace padral {

struct PaginaContenido {
    QString pagina;  ///< file name, e.g. "indice.htm"
    QString titulo;
    int nivel = 1;  ///< 1 at the top; a page belongs to the one before it of a lower level
    bool operator==(const PaginaContenido&) const = default;
};

/// Reads `contenido.tsv` of the folder, in its order. A line without three columns is left out; a
/// folder without the file has no contents.
QList<PaginaContenido> LeerContenido(const QString& carpeta);

}  // namespace padral
