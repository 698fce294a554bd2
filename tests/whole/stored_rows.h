#pragma once
// What the declarations file holds, read without the program's own store.

#include <QMap>
#include <QStringList>

#include "script.h"

namespace padral::pruebas {

/// One row: table, key of its declaration (0: of none), its own key, and all columns but those
/// keys. What the list is sorted by stands apart, byte by byte.
struct FilaGuardada {
    QString tabla;
    qint64 declaracion = 0, clave = 0;
    QMap<QString, QString> valores;
    QMap<QString, QByteArray> orden;
    bool operator==(const FilaGuardada&) const = default;
};

/// Every row of every table, in the order of the keys, but for the auxiliary copy of the
/// participants.
std::vector<FilaGuardada> FilasGuardadas(const QString& fichero);

/// Those of one declaration.
std::vector<FilaGuardada> De(const std::vector<FilaGuardada>& filas, qint64 declaracion);
/// Those of all the others and of none.
std::vector<FilaGuardada> SinLasDe(const std::vector<FilaGuardada>& filas, qint64 declaracion);
/// Keys of the declarations, rising.
QList<qint64> Declaraciones(const std::vector<FilaGuardada>& filas);

/// "TTable 1 Column" with the values that differ from a blank row; participants count from 1.
QMap<QString, QString> Contenido(const std::vector<FilaGuardada>& filas);
/// The same of the rows that a file tells.
QMap<QString, QString> Contenido(const std::vector<FilaDelGuion>& filas, bool euskera);
/// The values of `despues` that are others than those of `antes`; "-" for one that has become
/// blank.
QMap<QString, QString> Cambios(const std::vector<FilaGuardada>& antes,
                               const std::vector<FilaGuardada>& despues);

}  // namespace padral::pruebas
