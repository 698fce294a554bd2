#include "core/help/help_contents.h"

#include <QDir>
#include <QFile>

namespace padral {

QList<PaginaContenido> LeerContenido(const QString& carpeta) {
    QFile fichero(QDir(carpeta).filePath(QStringLiteral("contenido.tsv")));
    QList<PaginaContenido> paginas;
    if (!fichero.open(QIODevice::ReadOnly | QIODevice::Text)) return paginas;
    fichero.readLine();  // names of the columns
    while (!fichero.atEnd()) {
        const auto columnas = QString::fromUtf8(fichero.readLine()).trimmed().split(u'\t');
        if (columnas.size() == 3) paginas.append({columnas[0], columnas[1], columnas[2].toInt()});
    }
    return paginas;
}

}  // namespace padral
