#include "sections/location/section3_rules.h"

#include <algorithm>
#include <array>

namespace padral {

namespace {

using A = Apartado3Escrito;

bool en(const Letra& letra, QStringView valor) { return QString(letra).trimmed() == valor; }
bool vacia(const Letra& letra) { return QString(letra).trimmed().isEmpty(); }
/// Only the letters of addresses: others have small ones among these, such as the kelvin's sign.
QString enMinusculas(QString texto) {
    for (QChar& c : texto)
        if (c >= u'A' && c <= u'Z') c = QChar(static_cast<char16_t>(c.unicode() + (u'a' - u'A')));
    return texto;
}
bool alfanumerico(QChar c) { return (c >= u'a' && c <= u'z') || (c >= u'0' && c <= u'9'); }

/// A missing mobile number shows the text of the address too.
constexpr int DireccionNoValida = 868;

constexpr std::array<ReglaApartado3, 7> ReglasDelApartado3 = {{
    {1, [](const A& a) { return !a.epigrafeElegido; }, 699, u"txtDescripcionActividad"},
    {2,
     [](const A& a) {
         return a.codigo.trimmed() == ActividadSinEpigrafe && a.sinEpigrafe.trimmed().isEmpty() &&
                a.tipo != u"P";
     },
     696, u"txtSinEpigrafe"},
    {3,
     [](const A& a) {
         return en(a.registro.Correo, u"A") && a.registro.DirCorreo.trimmed().isEmpty();
     },
     843, u"txtDirCorreo"},
    {4,
     [](const A& a) { return en(a.registro.Correo, u"A") && !Validar_Email(a.registro.DirCorreo); },
     DireccionNoValida, u"txtDirCorreo"},
    {5, [](const A& a) { return !vacia(a.registro.Fax) && a.registro.numFax == 0; }, 844,
     u"numFax"},
    {6, [](const A& a) { return !vacia(a.registro.Movil) && a.registro.numMovil == 0; },
     DireccionNoValida, u"numMovil"},
    {7, [](const A& a) { return !vacia(a.registro.Fijo) && a.registro.numFijo == 0; }, 845,
     u"numFijo"},
}};

}  // namespace

bool Validar_Email(const QString& texto) {
    const QString direccion = enMinusculas(texto.trimmed());
    const qsizetype ultimo = direccion.size() - 1;
    qsizetype arroba = -1, punto = -1;
    bool trasSigno = false;
    for (qsizetype i = 0; i <= ultimo; ++i) {
        const QChar c = direccion[i];
        const bool signo = !alfanumerico(c);
        if (signo && (!QStringView(u"_-.@").contains(c) || trasSigno || i == 0 || i == ultimo))
            return false;
        trasSigno = signo;
        if (c == u'@') {
            if (arroba >= 0) return false;
            arroba = i;
        } else if (c == u'.') {
            punto = i;
        }
    }
    return arroba >= 0 && punto > arroba;
}

std::span<const ReglaApartado3> ReglasApartado3() { return ReglasDelApartado3; }

const ReglaApartado3* PrimeraReglaRota(const Apartado3Escrito& apartado) {
    const auto rota = std::ranges::find_if(
        ReglasDelApartado3, [&](const ReglaApartado3& regla) { return regla.rota(apartado); });
    return rota == ReglasDelApartado3.end() ? nullptr : &*rota;
}

}  // namespace padral
