// The entry check of section 5.

#include <algorithm>
#include <array>

#include "sections/tax/section5_rules.h"
#include "sections/tax/tax_rules.h"

namespace padral {

namespace {

using D4 = DatosApartado4;
using R5 = RespuestasApartado5;
using E5 = Entrada5;

/// Requests that need section 5 to be answered. The customs quotas do not.
constexpr Letra D4::*SolicitudesQueObligan[] = {
    &D4::IRPFDIRECT, &D4::IRPFOBJET, &D4::IVAAGENCIAS,    &D4::IVACAJA,    &D4::IVAAGRIC,
    &D4::IVABIENES,  &D4::IVAEXPORT, &D4::IVAEXPORTINTRA, &D4::IVASIMPLIF, &D4::SONF};

/// Answers that every declarant gives. The edition of 2015 no longer asks for modules.
constexpr Letra R5::*Obligatorias[] = {
    &R5::GRANEMPRESA,   &R5::SOCIEDADES,     &R5::ADMINISTRACIONES, &R5::EXENTASOCI,
    &R5::ART117,        &R5::COOPERATIVA,    &R5::CONSOLIDACION,    &R5::DOMINANTE,
    &R5::SATISRENDTRAB, &R5::SATISRENDARREN, &R5::IRPFDIRECTA,      &R5::IRPFDIRECTSIMPLIF,
    &R5::IVA,           &R5::NORECARGO,      &R5::NOAGRIC,          &R5::NOEXENTAS,
    &R5::NOCONCIERTO};

bool es(const Letra& letra, QChar valor) { return letra.texto().at(0) == valor; }

/// A section 4 that only tells of which entity one is a member.
bool soloSocio(const D4& a) {
    return std::ranges::all_of(SolicitudesQueObligan,
                               [&](auto solicitud) { return (a.*solicitud).vacio(); }) &&
           !a.IVASOCIO.vacio() && !a.NIF.vacio() && !a.NOMBRE.vacio();
}
bool faltaAlguna(const R5& r) {
    return std::ranges::any_of(Obligatorias, [&](auto campo) { return (r.*campo).vacio(); });
}
bool todasNo(const R5& r) {
    return std::ranges::all_of(Obligatorias,
                               [&](auto campo) { return (r.*campo).recortado() == u"N"; });
}
/// The cash criterion without a regime that it can go with.
bool cajaSinRegimen(const R5& r, bool cuentaGlobal) {
    const bool ninguno = es(r.GENERAL, u'N') && es(r.AGENCIASOPERACION, u'N') &&
                         (!cuentaGlobal || es(r.AGENCIASGLOBAL, u'N')) &&
                         es(r.BIENESUSADOS, u'N') && es(r.BIENESMARGEN, u'N');
    return es(r.IVACAJA, u'S') && (es(r.IVA, u'N') || ninguno);
}

constexpr std::array<PasoEntrada5, 6> Pasos = {{
    {1, [](const E5& e) { return soloSocio(e.apartado4); }, 0},
    {2, [](const E5& e) { return faltaAlguna(e.respuestas); }, 82},
    {3, [](const E5& e) { return todasNo(e.respuestas); }, 704},
    {4,
     [](const E5& e) {
         return e.fechaVigor < InicioEdicion2015 && cajaSinRegimen(e.respuestas, true);
     },
     872},
    {5,
     [](const E5& e) {
         return e.fechaVigor >= InicioEdicion2015 && cajaSinRegimen(e.respuestas, false);
     },
     872},
    {6,
     [](const E5& e) {
         return es(e.respuestas.IVACAJA, u'S') && e.fechaVigor < InicioCriterioCaja;
     },
     871, u"Ap5- "},
}};

}  // namespace

std::span<const PasoEntrada5> PasosIntroduccion5() { return Pasos; }

Revision ValidarIntroduccionDatos(const RespuestasApartado5& respuestas,
                                  const DatosApartado4& apartado4, qint32 fechaVigor) {
    const Entrada5 entrada{respuestas, apartado4, fechaVigor};
    for (const PasoEntrada5& paso : Pasos) {
        if (!paso.salta(entrada)) continue;
        if (paso.texto == 0) return {};
        return {{{paso.texto, TituloReglasApartado5, paso.prefijo}}};
    }
    return {};
}

}  // namespace padral
