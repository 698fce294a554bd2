#include "sections/tax/section5_rules.h"

#include <array>

#include "sections/tax/tax_rules.h"

namespace padral {

namespace {

using R = RespuestasApartado5;

bool si(const Letra& letra) { return letra.texto().at(0) == u'S'; }
bool no(const Letra& letra) { return letra.texto().at(0) == u'N'; }
/// Further answers are read in either case.
bool otroSi(const Letra& letra) { return letra.texto().at(0).toUpper() == u'S'; }
bool otroNo(const Letra& letra) { return letra.texto().at(0).toUpper() == u'N'; }
template <class... Letras>
bool algunaVacia(const Letras&... letras) {
    return (letras.vacio() || ...);
}

/// The three comparisons of a leading answer, read as it stands, with further answers. False when
/// the rule is broken.
template <class... Otras>
bool ComprobarIncompatibles(const Letra& primera, const Otras&... otras) {
    return !(si(primera) && (otroSi(otras) || ...));
}
template <class... Otras>
bool ComprobarIncompatiblesConIVA(const Letra& primera, const Letra& iva, const Otras&... otras) {
    return !(si(primera) && (!otroSi(iva) || (otroSi(otras) || ...)));
}
template <class... Otras>
bool ComprobarIncompatiblesSinIVA(const Letra& primera, const Letra& iva, const Otras&... otras) {
    return !(si(primera) && (!otroNo(iva) || (otroSi(otras) || ...)));
}

bool antesDe2015(qint32 fechaVigor) { return fechaVigor < InicioEdicion2015; }

/// Some question of the yes branch has no answer. Exempt operations may go unanswered.
bool faltaEnRamaSi(const R& r, qint32 f) {
    return algunaVacia(r.GENERAL, r.RECARGO, r.AGENCIASOPERACION, r.BIENESUSADOS, r.BIENESMARGEN,
                       r.Agric, r.IVACAJA, r.SIMPLIF) ||
           (antesDe2015(f) && r.AGENCIASGLOBAL.vacio());
}
bool sinRegimen(const R& r, qint32 f) {
    return no(r.GENERAL) && no(r.AGENCIASOPERACION) && no(r.BIENESUSADOS) && no(r.BIENESMARGEN) &&
           no(r.SIMPLIF) && (!antesDe2015(f) || no(r.AGENCIASGLOBAL));
}
/// Companies and exempt entities against what only natural persons answer.
bool conRegimenDePersona(const Letra& primera, const R& r) {
    return !ComprobarIncompatibles(primera, r.IRPFDIRECTA, r.IRPFOBJETIVA, r.IRPFDIRECTSIMPLIF,
                                   r.RECARGO, r.SIMPLIF, r.NORECARGO);
}
bool metodoDeSociedad(const Letra& metodo, const R& r) {
    return !ComprobarIncompatibles(metodo, r.SOCIEDADES, r.EXENTASOCI);
}

constexpr bool Exclamacion = true;

constexpr std::array<ReglaApartado5, 25> ReglasDelApartado5 = {{
    {1, [](const R& r, qint32 f) { return si(r.IVA) && faltaEnRamaSi(r, f); }, 82},
    {2,
     [](const R& r, qint32) {
         return no(r.IVA) && algunaVacia(r.NORECARGO, r.NOAGRIC, r.NOEXENTAS, r.NOCONCIERTO);
     },
     82},
    {3, [](const R& r, qint32 f) { return si(r.IVA) && sinRegimen(r, f); }, 674},
    {4, [](const R& r, qint32) { return si(r.EXENTASOCI) && si(r.SOCIEDADES); }, 692},
    {5, [](const R& r, qint32) { return si(r.ART117) && !si(r.SOCIEDADES); }, 782},
    {6, [](const R& r, qint32) { return si(r.COOPERATIVA) && !si(r.SOCIEDADES); }, 783},
    {7, [](const R& r, qint32) { return si(r.CONSOLIDACION) && !si(r.SOCIEDADES); }, 784},
    {8, [](const R& r, qint32) { return si(r.DOMINANTE) && !si(r.SOCIEDADES); }, 785},
    {9, [](const R& r, qint32) { return conRegimenDePersona(r.SOCIEDADES, r); }, 678},
    {10, [](const R& r, qint32) { return conRegimenDePersona(r.ADMINISTRACIONES, r); }, 788},
    {11, [](const R& r, qint32) { return conRegimenDePersona(r.EXENTASOCI, r); }, 679},
    {12, [](const R& r, qint32) { return metodoDeSociedad(r.IRPFDIRECTA, r); }, 680},
    {13, [](const R& r, qint32) { return metodoDeSociedad(r.IRPFOBJETIVA, r); }, 681},
    {14, [](const R& r, qint32) { return metodoDeSociedad(r.IRPFDIRECTSIMPLIF, r); }, 682},
    {15,
     [](const R& r, qint32) { return si(r.EXENTASOCI) + si(r.ART117) + si(r.COOPERATIVA) >= 2; },
     762, Exclamacion},
    {16, [](const R& r, qint32) { return si(r.DOMINANTE) && no(r.CONSOLIDACION); }, 763,
     Exclamacion},
    {17,
     [](const R& r, qint32) {
         return !ComprobarIncompatiblesConIVA(r.RECARGO, r.IVA, r.EXENTASOCI, r.SOCIEDADES);
     },
     683},
    {18,
     [](const R& r, qint32 f) {
         return antesDe2015(f) &&
                !ComprobarIncompatiblesConIVA(r.AGENCIASOPERACION, r.IVA, r.AGENCIASGLOBAL);
     },
     684},
    {19,
     [](const R& r, qint32 f) {
         return antesDe2015(f) &&
                !ComprobarIncompatiblesConIVA(r.AGENCIASGLOBAL, r.IVA, r.AGENCIASOPERACION);
     },
     685},
    {20,
     [](const R& r, qint32) {
         return !ComprobarIncompatiblesConIVA(r.BIENESUSADOS, r.IVA, r.BIENESMARGEN);
     },
     686},
    {21,
     [](const R& r, qint32) {
         return !ComprobarIncompatiblesConIVA(r.BIENESMARGEN, r.IVA, r.BIENESUSADOS);
     },
     687},
    {22,
     [](const R& r, qint32) {
         return !ComprobarIncompatiblesConIVA(r.SIMPLIF, r.IVA, r.SOCIEDADES, r.EXENTASOCI);
     },
     688},
    {23,
     [](const R& r, qint32) {
         return !ComprobarIncompatiblesSinIVA(r.NORECARGO, r.IVA, r.SOCIEDADES, r.EXENTASOCI,
                                              r.NOCONCIERTO);
     },
     689},
    {24,
     [](const R& r, qint32) {
         return !ComprobarIncompatiblesSinIVA(r.NOAGRIC, r.IVA, r.NOCONCIERTO);
     },
     690},
    {25,
     [](const R& r, qint32) {
         return !ComprobarIncompatiblesSinIVA(r.NOEXENTAS, r.IVA, r.NOCONCIERTO);
     },
     691},
}};

}  // namespace

std::span<const ReglaApartado5> ReglasApartado5() { return ReglasDelApartado5; }

const ReglaApartado5* PrimeraReglaRota(const RespuestasApartado5& respuestas, qint32 fechaVigor) {
    for (const ReglaApartado5& regla : ReglasDelApartado5)
        if (regla.rota(respuestas, fechaVigor)) return &regla;
    return nullptr;
}

Revision DatosValidos(const RespuestasApartado5& respuestas, qint32 fechaVigor) {
    const ReglaApartado5* rota = PrimeraReglaRota(respuestas, fechaVigor);
    if (rota == nullptr) return {};
    return {{{rota->texto, TituloReglasApartado5, u"", u"", rota->exclamacion}}};
}

}  // namespace padral
