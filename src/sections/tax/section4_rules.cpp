#include "sections/tax/section4_rules.h"

#include <algorithm>

#include "sections/tax/tax_rules.h"

namespace padral {

namespace {

using D4 = DatosApartado4;

constexpr int TituloNif = 68;
constexpr int TituloApartado4 = 75;
constexpr qsizetype LargoNif = 9;

bool claseDeEntidad(const QString& nif) {
    const int clase = ClasificarNif(nif.left(1));
    return clase == 3 || clase == 2;
}

/// The first broken one is told.
constexpr struct {
    bool (*rota)(const QString&, const ServidorNif&);
    AvisoRegla aviso;
} ReglasNif[] = {
    {[](const QString& nif, const ServidorNif&) { return nif.size() != LargoNif; },
     {69, TituloNif, u"", u"txtNIF"}},
    {[](const QString& nif, const ServidorNif&) { return !claseDeEntidad(nif); }, {71, TituloNif}},
    {[](const QString& nif, const ServidorNif& valida) { return !valida(nif); }, {70, TituloNif}},
};

constexpr Letra D4::*Solicitudes[] = {&D4::IRPFOBJET, &D4::IRPFDIRECT,     &D4::IVACAJA,
                                      &D4::IVACUOADU, &D4::IVAAGRIC,       &D4::IVASIMPLIF,
                                      &D4::IVAEXPORT, &D4::IVAEXPORTINTRA, &D4::IVAAGENCIAS,
                                      &D4::IVABIENES, &D4::SONF,           &D4::IVASOCIO};

bool sinSolicitudes(const D4& a) {
    return std::ranges::all_of(Solicitudes, [&](auto solicitud) { return (a.*solicitud).vacio(); });
}

/// Every broken one is told.
constexpr struct {
    bool (*rota)(const D4&, qint32 fechaVigor);
    AvisoRegla aviso;
} ReglasIntroduccion[] = {
    {[](const D4& a, qint32) { return sinSolicitudes(a); }, {76, TituloApartado4}},
    {[](const D4& a, qint32 f) { return !a.IVACAJA.vacio() && f < InicioCriterioCaja; },
     {871, TituloApartado4, u"Ap4- "}},
};

}  // namespace

Revision NIFValido(const QString& texto, const ServidorNif& valida) {
    for (const auto& regla : ReglasNif)
        if (regla.rota(texto, valida)) return {{regla.aviso}};
    return {};
}

Revision Validaciones(const DatosApartado4& apartado, const ServidorNif& valida) {
    if (!apartado.NIF.vacio()) {
        Revision nif = NIFValido(SinRelleno(apartado.NIF), valida);
        if (!nif.valida()) {
            nif.avisos.push_back({78, TituloApartado4});
            return nif;
        }
    }
    if (apartado.IVASOCIO == QStringLiteral("S") && apartado.NOMBRE.vacio())
        return {{{80, TituloApartado4, u"", u"txtNombre"}}};
    return {};
}

Revision ValidarIntroduccionDatos(const DatosApartado4& apartado, qint32 fechaVigor) {
    Revision revision;
    for (const auto& regla : ReglasIntroduccion)
        if (regla.rota(apartado, fechaVigor)) revision.avisos.push_back(regla.aviso);
    return revision;
}

}  // namespace padral
