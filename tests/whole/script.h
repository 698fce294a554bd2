#pragma once
// A whole declaration as a readable file: what is entered, and what must come of it.

#include <QMap>
#include <QStringList>
#include <vector>

#include "core/message_port.h"

namespace padral::pruebas {

/// A message box that must answer the command before it.
struct AvisoDelGuion {
    /// Numbers of texts, dates "@yyyymmdd", literals "'...'".
    QStringList texto, titulo;
    Botones botones = Botones::Aceptar;
    Respuesta respuesta = Respuesta::Aceptar;
};

/// One line of a file: a command, with the messages that it must raise.
struct Paso {
    enum Orden {
        Pantalla,   ///< that screen must be open
        Escribir,   ///< type, and leave the field
        Marcar,     ///< click a box, which must then be ticked
        Desmarcar,  ///< click a box, which must then be clear
        Vacio,      ///< the program has cleared that control itself
        Pulsar,
        Elegir,       ///< choose in a combo
        Pestana,      ///< choose a tab, from 1
        Seleccionar,  ///< click the row of a list with that identifier
        Foco,         ///< the control with the focus
        Activo,
        Inactivo,
        Muestra,  ///< what a control shows, where that is not what was typed
    };
    int linea = 0;
    Orden orden = Pantalla;
    QString control, valor;
    std::vector<AvisoDelGuion> avisos;
};

/// The columns of one stored row that are not as in a blank row.
struct FilaDelGuion {
    QString tabla;
    QMap<QString, QString> valores;
};

/// A printed page: what stands in its boxes. All others are empty.
struct HojaDelGuion {
    QString nombre;  ///< "1" to "4", "I", "II"; with a point and more where a kind comes twice
    QMap<QString, QString> casillas;
};

struct Guion {
    QString fichero;
    QStringList idiomas;  ///< "C", "E"
    std::vector<Paso> entrada, recorrido, cambio;
    std::vector<FilaDelGuion> filas, filasCambiadas;
    QMap<QString, QStringList> copias;  ///< names of the pages of each copy, in order
    std::vector<HojaDelGuion> hojas;
};

/// Throws std::runtime_error with file and line.
Guion LeerGuion(const QString& fichero);
/// The same from a text; `nombre` is told in failures.
Guion LeerGuionDe(const QString& nombre, const QString& texto);

/// The value in the language of a run: of "es | eu" one side, of "dd/mm/yyyy" the form of a date.
QString EnIdioma(const QString& valor, bool euskera);

}  // namespace padral::pruebas
