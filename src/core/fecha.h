#pragma once
// Conversion between the date texts of a screen and the date numbers of a record.

#include <QString>
#include <optional>

namespace padral {

class CatalogoTextos;

/// Dates are 32-bit numbers `yyyymmdd`, 0 for none; closing dates of a financial year `mmdd`.
/// On screen a date has always 10 characters: "dd/mm/yyyy" in Spanish, "yyyy/mm/dd" in Basque,
/// with "_" at each position that is not filled. This class shows no message: a failed
/// conversion gives false, 0, -1 or the empty text as told at each member.
class cFecha {
public:
    explicit cFecha(const CatalogoTextos& textos);

    /// Language of date texts: "C" Spanish, "E" Basque.
    QString fecidioma = QStringLiteral("C");

    /// The mask of a field that is not filled, in the order of the language.
    QString FecVacia() const;
    /// The year of a date text; 0 when it has none.
    int miYear(const QString& fecha) const;
    /// Whether the text is a date of the calendar or the empty mask. Years below 1000 are not
    /// dates, nor are those below `anyoMinimo` where it is given.
    bool EsFecha(const QString& fecha, std::optional<int> anyoMinimo = std::nullopt) const;
    /// The number `yyyymmdd` of a text; 0 for the empty mask, -1 for what is no date.
    qint32 StringToLong(const QString& fecha, std::optional<int> anyoMinimo = std::nullopt) const;
    /// The text of a number; the empty mask for numbers below 1 and for those that are no date.
    /// With `ddmmaaaa`, whatever its value, the number is read as `ddmmyyyy`.
    QString LongToString(qint32 valor, std::optional<bool> ddmmaaaa = std::nullopt);

    QString FecVaciaMMDD() const;
    /// Whether "dd/mm" is a day of a year; 29/02 always is. Throws ErrorDeConversion when a part
    /// is not a number.
    bool EsFechaMMDD(const QString& fecha) const;
    /// The number `mmdd`; 0 for the empty mask and for what cannot be read.
    qint32 StringToLongMMDD(const QString& fecha) const;
    /// "dd/mm"; the empty mask for numbers below 1 and for those that are no day.
    QString LongToStringMMDD(qint32 valor);

    /// Catalogue text kept after a failed conversion; nothing shows it.
    const QString& UltimoError() const { return ultimoError_; }

private:
    void guardarError();

    const CatalogoTextos& textos_;
    const QString vaciaDiaPrimero_ = QStringLiteral("__/__/____");
    const QString vaciaAnyoPrimero_ = QStringLiteral("____/__/__");
    QString ultimoError_;
};

/// A part of a date that had to be a number is not.
struct ErrorDeConversion {};

}  // namespace padral
