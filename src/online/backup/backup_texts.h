#pragma once
// Texts of backup and restore; they stand outside the catalogue.

#include <QString>

namespace padral {

enum class TextoCopia {
    TituloCopia,
    TituloRestauracion,
    ElegirCarpeta,
    ElegirArchivo,
    Cancelar,
    Copiando,
    Comprobando,
    PreguntaReemplazar,   ///< folder, description of the copy in it
    CopiaHecha,           ///< file, date, number of declarations
    CopiaFallida,         ///< reason
    PreguntaRestaurar,    ///< descriptions of the present file and of the copy
    SeConservara,         ///< follows the question when there is a present file
    RestauracionHecha,    ///< date, number of declarations
    SeConserva,           ///< follows the result: name of the file kept
    RestauracionFallida,  ///< reason
    MismoArchivo,         ///< file
    SinArchivo,           ///< in place of a description
    Ilegible,             ///< in place of a number of declarations
    Una,                  ///< one declaration
    Varias,               ///< their number
    Fecha,                ///< format of a date with its time
};

/// `idioma` 0 Spanish, anything else Basque. What stands for a place is "%1", "%2" ...
QString TextoDeCopia(TextoCopia texto, int idioma);

}  // namespace padral
