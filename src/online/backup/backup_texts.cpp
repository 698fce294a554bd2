#include "online/backup/backup_texts.h"

#include <array>

namespace padral {

namespace {

using enum TextoCopia;

struct FilaTexto {
    TextoCopia texto;
    QStringView castellano;
    QStringView euskera;
};

constexpr std::array<FilaTexto, 21> Textos{{
    {TituloCopia, u"Crear copia de seguridad", u"Sortu segurtasun kopia"},
    {TituloRestauracion, u"Restaurar copia de seguridad", u"Leheneratu segurtasun kopia"},
    {ElegirCarpeta, u"Elija la carpeta para la copia de seguridad",
     u"Aukeratu segurtasun kopiarako karpeta"},
    {ElegirArchivo, u"Elija la copia de seguridad que quiere restaurar",
     u"Aukeratu leheneratu nahi duzun segurtasun kopia"},
    {Cancelar, u"&Cancelar", u"&Utzi"},
    {Copiando, u"Copiando las declaraciones...", u"Aitorpenak kopiatzen..."},
    {Comprobando, u"Comprobando la copia...", u"Kopia egiaztatzen..."},
    {PreguntaReemplazar,
     u"En la carpeta «%1» ya hay una copia de seguridad:\n%2.\n\n¿Quiere reemplazarla?",
     u"«%1» karpetan badago segurtasun kopia bat:\n%2.\n\nOrdeztu nahi duzu?"},
    {CopiaHecha,
     u"Se ha creado la copia de seguridad.\n\nArchivo: %1\nFecha: %2\nDeclaraciones: %3",
     u"Segurtasun kopia sortu da.\n\nFitxategia: %1\nData: %2\nAitorpenak: %3"},
    {CopiaFallida, u"No se ha podido crear la copia de seguridad.\n\n%1\n\nNo se ha cambiado nada.",
     u"Ezin izan da segurtasun kopia sortu.\n\n%1\n\nEz da ezer aldatu."},
    {PreguntaRestaurar,
     u"Las declaraciones de la copia sustituirán a todas las que hay ahora en el programa.\n\n"
     u"Ahora: %1\nCopia: %2%3\n\n¿Quiere restaurar la copia?",
     u"Kopiako aitorpenek programan orain dauden guztiak ordeztuko dituzte.\n\n"
     u"Orain: %1\nKopia: %2%3\n\nKopia leheneratu nahi duzu?"},
    {SeConservara,
     u"\n\nEl archivo actual se conservará en su carpeta con la fecha de hoy en el nombre.",
     u"\n\nOraingo fitxategia bere karpetan gordeko da, gaurko data izenean duela."},
    {RestauracionHecha,
     u"Se han restaurado las declaraciones de la copia.\n\nFecha: %1\nDeclaraciones: %2",
     u"Kopiako aitorpenak leheneratu dira.\n\nData: %1\nAitorpenak: %2"},
    {SeConserva, u"\n\nEl archivo anterior se conserva con este nombre:\n%1",
     u"\n\nAurreko fitxategia izen honekin gorde da:\n%1"},
    {RestauracionFallida, u"No se ha podido restaurar la copia.\n\n%1\n\nNo se ha cambiado nada.",
     u"Ezin izan da kopia leheneratu.\n\n%1\n\nEz da ezer aldatu."},
    {MismoArchivo,
     u"El archivo «%1» es el mismo con el que trabaja el programa, no una copia de él.",
     u"«%1» programak darabilen fitxategia bera da, ez haren kopia bat."},
    {SinArchivo, u"no hay archivo de declaraciones", u"ez dago aitorpenen fitxategirik"},
    {Ilegible, u"no se puede leer", u"ezin da irakurri"},
    {Una, u"1 declaración", u"aitorpen 1"},
    {Varias, u"%1 declaraciones", u"%1 aitorpen"},
    {Fecha, u"dd/MM/yyyy HH:mm", u"yyyy/MM/dd HH:mm"},
}};

}  // namespace

QString TextoDeCopia(TextoCopia texto, int idioma) {
    for (const FilaTexto& fila : Textos)
        if (fila.texto == texto) return (idioma == 0 ? fila.castellano : fila.euskera).toString();
    return {};
}

}  // namespace padral
