#pragma once
// The small rules that all fields share, free of any widget.

#include <QString>
#include <QStringView>

namespace padral {

/// The characters that free text fields take.
extern const QString AlfabetoTexto;

inline constexpr int TeclaRetroceso = 8;
inline constexpr int TeclaIntro = 13;

/// The key code to use for a key typed in a text field: the upper-case character if the alphabet
/// holds it, backspace as it is, otherwise 0, which cancels the key. Codes are UTF-16.
int FiltrarTecla(int tecla);
/// The same for a date field: digits, backspace and the slash.
int FiltrarTeclaFecha(int tecla);

/// The leading number of a text, blanks skipped; 0 when there is none. Numbers beyond the range
/// of 32 bits are cut to it.
qint32 ValorNumerico(QStringView texto);

/// The path up to the last separator, without it.
QString DirectorioPadre(const QString& ruta);

/// How a pair of yes/no boxes shows an answer: which box has its mark.
enum class MarcaPareja { Ninguna, Si, No };
/// `valorSi` and `valorNo` are "S" and "N" when `valorSi` is blank.
MarcaPareja PresentarParejaSiNo(const QString& valor, bool hayNo, QString valorSi = {},
                                QString valorNo = {});

/// A value in the form of a numeric field: a text that is no number counts as "0"; without "." in
/// the format the value is cut to its integer part. Formats are runs of "#" and "0" with at most
/// one "." ("##0.00"); the decimal sign shown is a comma.
QString ValorFormateado(const QString& valor, const QString& formato);

}  // namespace padral
