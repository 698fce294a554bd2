#include "online/backup/copy_dialogs.h"

#include <QStringList>

namespace padral {

namespace {

const QString Archivos = QStringLiteral("archivos ");
const QString Fitxategiak = QStringLiteral(" fitxategiak");

// "archivos mdb (*.mdb;*.mdb)" without what stands in brackets.
QString nombreSolo(const QString& visible, int idioma) {
    const QString nombre = visible.section(u'(', 0, 0).trimmed();
    if (idioma == 0 || !nombre.startsWith(Archivos)) return nombre;
    return nombre.mid(Archivos.size()) + Fitxategiak;
}

}  // namespace

QString FiltroQt(const QString& filtro, int idioma) {
    QStringList patrones = filtro.section(u'|', 1, 1).split(u';').filter(QStringLiteral("*"));
    patrones.removeDuplicates();
    return QStringLiteral("%1 (%2)").arg(nombreSolo(filtro.section(u'|', 0, 0), idioma),
                                         patrones.join(u' '));
}

}  // namespace padral
