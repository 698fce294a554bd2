#pragma once
// Search in the pages of the help.

#include <QList>
#include <QStringList>

#include "core/help/help_contents.h"

namespace padral {

/// A page that was found.
struct Hallazgo {
    QString pagina;
    QString titulo;
    QString extracto;  ///< the text around the first hit, in one line
};

/// The text of a page in its file; what cannot be read is empty.
QString LeerPagina(const QString& fichero);

/// The pages of `contenido` in `carpeta` that contain all of `palabras` (as `PalabrasBuscadas`
/// gives them), in the order of the contents. No words: no pages.
QList<Hallazgo> BuscarPaginas(const QString& carpeta, const QList<PaginaContenido>& contenido,
                              const QStringList& palabras);

}  // namespace padral
