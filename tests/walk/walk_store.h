#pragma once
// The declarations file as it lies on the disk, read by plain SQLite.

#include <QMap>
#include <QString>

#include "walk/walk_records.h"

namespace padral::pruebas {

/// Column -> value as text.
using FilaLeida = QMap<QString, QString>;
/// Key -> row.
using TablaLeida = QMap<qint64, FilaLeida>;
/// Table -> rows.
using Almacen = QMap<QString, TablaLeida>;

/// All tables but the settings of the run and the working table of the participants' list.
Almacen LeerAlmacen(const QString& fichero);

/// Rows of one declaration, its participants not included: table -> row.
QMap<QString, FilaLeida> FilasDe(const Almacen& almacen, qint64 csde);
/// Participants of one declaration, by key.
TablaLeida ParticipesDe(const Almacen& almacen, qint64 csde);

/// The eight section flags as a save writes them: "X" for what is filled in.
QString MarcasEsperadas(const cDeclaraciones& declaracion);
/// What the records have to look like in the store, with those flags: table -> columns, without the
/// keys. A marked section 5 keeps no "N", and a municipality of the own province no name.
QMap<QString, FilaLeida> FilasEsperadas(const Retrato& retrato, const QString& marcas);
/// The participants that are not deleted, without key.
QList<FilaLeida> ParticipesEsperados(const Retrato& retrato);

/// What differs between rows of the store and what they should hold; empty: nothing.
QStringList Diferencias(const QMap<QString, FilaLeida>& esperadas,
                        const QMap<QString, FilaLeida>& leidas);
QStringList Diferencias(QList<FilaLeida> esperados, const TablaLeida& leidos);

}  // namespace padral::pruebas
