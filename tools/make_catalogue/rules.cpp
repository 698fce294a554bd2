#include "make_catalogue/rules.h"

#include <array>

namespace padral::catalogue {

namespace {

// Search values stand in quotes within SQL and are typed through fields that give capitals.
constexpr QStringView Capitals = u"[A-ZÑ0-9][A-ZÑ0-9 ,.:;()/+%&-]*";
constexpr QStringView CapitalsInWords =
    u"capitals without accents, digits, blanks and , . : ; ( ) / + % & -";
constexpr QStringView Name = u"[\\p{L}0-9][\\p{L}0-9 ,.:;()/-]*";
constexpr QStringView NameInWords = u"letters, digits, blanks and , . : ; ( ) / -";
constexpr QStringView Number = u"0|[1-9][0-9]*";
constexpr QStringView NumberInWords = u"a number without zeros in front";
constexpr QStringView TwoDigits = u"[0-9]{2}";
constexpr QStringView TwoDigitsInWords = u"two digits";

// Lengths are those of the fields that take the texts on the screens and in the records.
// clang-format off
constexpr std::array<ColumnRule, 3> Activities{{
    {u"EPICODEPI", u"[123]\\.[0-9]{3,5}|9999999", u"1, 2 or 3, a point and three to five digits", 5, 7, true},
    {u"EPIDEPCAS", Capitals, CapitalsInWords, 3, 60, true},
    {u"EPIDEPEUS", Capitals, CapitalsInWords, 3, 60, true},
}};
constexpr std::array<ColumnRule, 4> LegalForms{{
    {u"CODFORMA", Number, NumberInWords, 1, 2, true, 1, 90},
    {u"LETDNI", u"[A-HJNP-SU-W]?", u"the first letter of the identifiers of entities", 0, 1, false},
    {u"DESCRIFORMACAS", Capitals, CapitalsInWords, 3, 60, true},
    {u"DESCRIFORMAEUS", Capitals, CapitalsInWords, 3, 60, true},
}};
constexpr std::array<ColumnRule, 3> Provinces{{
    {u"T07_PRO_ID", Number, NumberInWords, 1, 2, true, 1, 52},
    {u"T07_PRO_CAS", Name, NameInWords, 3, 20, true},
    {u"T07_PRO_EUS", Name, NameInWords, 3, 20, true},
}};
constexpr std::array<ColumnRule, 2> Municipalities{{
    {u"T08_CODMUN", Number, NumberInWords, 1, 3, true, 1, 999},
    {u"T08_NOMMUN", Name, NameInWords, 2, 25, true},
}};
constexpr std::array<ColumnRule, 3> StreetTypes{{
    {u"Siglas_Codigo", u"[A-Z]{2}", u"two capitals", 2, 2, true},
    {u"siglas_cas", Name, NameInWords, 2, 15, true},
    {u"siglas_eus", Name, NameInWords, 2, 15, true},
}};
constexpr std::array<ColumnRule, 3> Motives{{
    {u"CODIGO", TwoDigits, TwoDigitsInWords, 2, 2, true},
    {u"MOTIVOCAS", Name, NameInWords, 4, 60, true},
    {u"MOTIVOEUS", Name, NameInWords, 4, 60, true},
}};
constexpr std::array<ColumnRule, 3> Causes{{
    {u"CODCAUSA", TwoDigits, TwoDigitsInWords, 2, 2, true},
    {u"CAUSACAS", Capitals, CapitalsInWords, 3, 20, true},
    {u"CAUSAEUS", Capitals, CapitalsInWords, 3, 20, true},
}};
// clang-format on

// Rules and screens know these codes.
constexpr QStringView NoActivity[] = {u"9999999"};
constexpr QStringView OtherForm[] = {u"90"};
constexpr QStringView MotiveCodes[] = {u"00", u"10", u"20", u"30", u"31"};
constexpr QStringView CauseCodes[] = {u"10", u"11", u"20", u"22", u"30",
                                      u"31", u"32", u"33", u"99"};

// Numbered texts and the printed form have these words too.
constexpr FixedRow NoActivityTexts{u"9999999", {u"SIN ACTIVIDAD", u"JARDUERARIK GABE"}};
constexpr FixedRow Territory{u"20", {u"Kelmaria", u"Kelmaria"}};

// A rule of the form compares the last letter of the description with the identifier.
QString endsInItsLetter(const QStringList& form) {
    if ((form[0] == OtherForm[0]) != form[1].isEmpty())
        return QStringLiteral("LETDNI must be empty in row 90 and in no other");
    for (const QString& description : {form[2], form[3]})
        if (!description.endsWith(form[1]))
            return QStringLiteral("\"%1\" must end in its letter %2").arg(description, form[1]);
    return {};
}

// The screen reads the code from the first two characters of the chosen text.
QString startsWithItsCode(const QStringList& motive) {
    for (const QString& text : {motive[1], motive[2]})
        if (!text.startsWith(motive[0] + u'-'))
            return QStringLiteral("\"%1\" must start with %2-").arg(text, motive[0]);
    return {};
}

constexpr std::array<TableRule, 7> Rules{{
    {u"TEpigrafes_2000", Activities, Keys::Among, NoActivity, 0, nullptr, NoActivityTexts},
    {u"TFormasJuridicas", LegalForms, Keys::Among, OtherForm, 0, endsInItsLetter},
    {u"TProvincias", Provinces, Keys::Any, {}, 52, nullptr, Territory},
    {u"TMunicipios", Municipalities},
    {u"TSiglas", StreetTypes},
    {u"TMotivoCambio", Motives, Keys::Exactly, MotiveCodes, 0, startsWithItsCode},
    {u"TCausasCese", Causes, Keys::Exactly, CauseCodes},
}};

}  // namespace

std::span<const TableRule> TableRules() { return Rules; }

}  // namespace padral::catalogue
