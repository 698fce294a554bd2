#pragma once
// What each control of each screen has to show: control -> property of a record.

#include <QString>
#include <QStringList>
#include <QWidget>

#include "walk/walk_records.h"

namespace padral::pruebas {

/// How a control shows its property.
enum class Forma {
    Texto,
    Numero,   ///< the same number, whatever its zeros; nothing for 0
    Decimal,  ///< with a decimal comma
    Fecha,    ///< `yyyymmdd` in the order of the language
    DiaYMes,  ///< `mmdd`
    Casilla,  ///< ticked when the property holds `valor`
    Codigo,   ///< the row that begins with the two digits
};

struct Mando {
    QString control, propiedad;
    Forma forma = Forma::Texto;
    QString valor = {};
};

/// The controls of a screen with something to show, by its form name.
const QList<Mando>& MandosDe(const QString& formulario);
/// The row of a control, nullptr when it shows no property.
const Mando* MandoDe(const QString& formulario, const QString& control);

/// The text of a date field; `euskera`: the year goes first.
QString TextoDeFecha(qint32 fecha, bool euskera);
/// What a control shows, as text; "X" for a ticked box.
QString LoQueMuestra(const QWidget* control);
/// Controls that do not show what the records hold, those of `salvo` left out.
QStringList Desacuerdos(const QWidget& pantalla, const Retrato& retrato, bool euskera,
                        const QStringList& salvo);

}  // namespace padral::pruebas
