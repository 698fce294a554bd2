#include "online/about_texts.h"

#include "store/authority.h"

namespace padral {

QString LineaCopyright() { return store::authority::CopyrightLine.toString(); }

QString DescripcionCastellano() {
    return QStringLiteral(
        "La aplicación Declaración Padral permite confeccionar, desde un ordenador personal, "
        "declaraciones padrales, Modelo 417, que han de presentar a efectos fiscales los "
        "empresarios, los profesionales y otros obligados tributarios, en la Diputación Foral de "
        "Kelmaria.");
}

QString DescripcionEuskera() {
    return QStringLiteral(
        "Padral Aitorpenaren Laguntza Programari esker, ordenadore pertsonal bat erabiliz 417 "
        "ereduko padral aitorpenak egin daitezke, hain zuzen enpresariek, profesionalek eta "
        "aitorpena aurkeztera behartutako beste batzuek zerga ondorioetarako Kelmariako Foru "
        "Aldundiari aurkeztu behar dizkiotenak.");
}

}  // namespace padral
