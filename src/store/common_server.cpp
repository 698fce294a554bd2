#include "store/common_server.h"

#include "store/authority.h"

namespace padral::SvrBaseComunLib {

namespace {

constexpr qsizetype Ancho = 9;
constexpr QStringView LetrasPersona = u"TRWAGMYFPDXBNJZSQVHLCKE";
constexpr QStringView InicialesPersona = u"KLMXYZ";
constexpr QStringView InicialesEntidad = u"ABCDEFGHJNPQRSUVW";
/// Entities whose control is always a digit, always a letter; the others may have either.
constexpr QStringView ControlDigito = u"ABEH";
constexpr QStringView ControlLetra = u"NPQRSW";
constexpr QStringView LetrasEntidad = u"JABCDEFGHI";

bool soloDigitos(QStringView texto) {
    for (const QChar c : texto)
        if (c < u'0' || c > u'9') return false;
    return true;
}

int digito(QChar c) { return c.unicode() - u'0'; }

// Eight digits, or an initial with seven; X, Y and Z stand for 0, 1 and 2.
bool validaPersona(const QString& nif) {
    const QChar inicial = nif.front();
    int numero = QStringView(nif).sliced(1, 7).toInt();
    if (soloDigitos(QStringView(nif).first(1)))
        numero += digito(inicial) * 10'000'000;
    else if (inicial == u'Y' || inicial == u'Z')
        numero += (inicial == u'Y' ? 1 : 2) * 10'000'000;
    return nif.back() == LetrasPersona[numero % LetrasPersona.size()];
}

// Digits in odd places count twice, as the sum of the digits of the double.
int controlEntidad(QStringView digitos) {
    int suma = 0;
    for (qsizetype i = 0; i < digitos.size(); ++i) {
        const int d = digito(digitos[i]);
        suma += i % 2 == 0 ? 2 * d / 10 + 2 * d % 10 : d;
    }
    return (10 - suma % 10) % 10;
}

bool validaEntidad(const QString& nif) {
    const QChar inicial = nif.front(), dado = nif.back();
    const int control = controlEntidad(QStringView(nif).sliced(1, 7));
    const bool esDigito = dado == QChar(u'0' + control);
    const bool esLetra = dado == LetrasEntidad[control];
    if (ControlDigito.contains(inicial)) return esDigito;
    if (ControlLetra.contains(inicial)) return esLetra;
    return esDigito || esLetra;
}

}  // namespace

bool cMiscelaneos::ValidaNifCif(const QString& nif) const {
    if (nif.size() != Ancho || !soloDigitos(QStringView(nif).sliced(1, 7))) return false;
    const QChar inicial = nif.front();
    if (soloDigitos(QStringView(nif).first(1)) || InicialesPersona.contains(inicial))
        return validaPersona(nif);
    return InicialesEntidad.contains(inicial) && validaEntidad(nif);
}

QString cMiscelaneos::HaciendaFiscalidad() const {
    return (Idioma == 0 ? store::authority::OfficeSpanish : store::authority::OfficeBasque)
        .toString();
}

void cMiscelaneos::AccesoAyuOnline() const {
    servicio_.abrir(
        (Idioma == 0 ? store::authority::HelpAddressSpanish : store::authority::HelpAddressBasque)
            .toString());
}

void cMiscelaneos::MostrarOnlineInfo() const {
    servicio_.describir(
        (Idioma == 0 ? store::authority::HelpServiceSpanish : store::authority::HelpServiceBasque)
            .toString(),
        Parent);
}

QString DireccionWebAutoridad() { return store::authority::WebAddress.toString(); }

}  // namespace padral::SvrBaseComunLib
