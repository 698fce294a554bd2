#pragma once
// What a printed page says in each numbered box of the form.

#include <QMap>
#include <QStringList>

#include "support/recording_printer.h"

namespace padral::pruebas {

/// A page as it was printed. Boxes that have a letter to each answer are named with it, "24S"; what
/// has no number has a word, "36k" the key beside box 36, "r2.share" in the second row of Annex I.
struct HojaImpresa {
    QMap<QString, QString> casillas;
    QStringList formulario;  ///< all other texts, in order
    QStringList imagenes;
};

/// Page `pagina` of a copy, from 1; `clase`: "1" to "4", "I", "II".
HojaImpresa LeerHoja(const test::Documento& copia, int pagina, const QString& clase);

}  // namespace padral::pruebas
