// Rules 23 to 49: the sections with one another.

#include "declaration/cross_rules_letters.h"
#include "sections/tax/tax_rules.h"

namespace padral {

namespace {

constexpr int TituloSecciones = 125, TituloCruce = 510;
/// From that effective date on who waives the simplified regime is not in the agricultural one.
constexpr qint32 InicioIncompatibilidad = 20000101;

using A4 = DatosApartado4;
using R5 = RespuestasApartado5;

const A4& a4(const Cruce& c) { return c.d.apartado4; }
const R5& r5(const Cruce& c) { return c.d.apartado5; }

bool exclusionORevocacion(const Letra& letra) { return es(letra, u'E') || es(letra, u'R'); }

/// Nothing in section 5 obliges to I.V.A. or exempts from it.
bool sinOperacionesIva(const R5& r) {
    return !si(r.IVA) && !si(r.NORECARGO) && !si(r.NOAGRIC) && !si(r.NOEXENTAS);
}

bool haySolicitudes(const A4& a) {
    for (const auto* solicitud : {&a.IRPFOBJET, &a.IRPFDIRECT, &a.IVAAGRIC, &a.IVASIMPLIF,
                                  &a.IVACAJA, &a.IVACUOADU, &a.IVAAGENCIAS, &a.IVABIENES})
        if (!solicitud->vacio()) return true;
    return false;
}

/// Causes that end the whole activity.
bool cesaDelTodo(const Cruce& c) {
    return causaEn(c, {10, 20, 21}) || (causaEn(c, {22}) && c.clase > 1);
}

bool sigueObligado(const R5& r) {
    return !no(r.GRANEMPRESA) || !no(r.IVA) || !no(r.NORECARGO) || !no(r.NOAGRIC) ||
           !no(r.NOEXENTAS) || !no(r.NOCONCIERTO);
}

bool conCeseYSituacion(const Cruce& c) {
    return Marcado(c.d.general.Apartado5) && Marcado(c.d.general.Apartado6);
}

bool nadaLleno(const cDeclaraciones& d) {
    return !d.apartado2.Lleno && !d.apartado3.Lleno && !d.apartado4.Lleno &&
           !d.apartado5.APARTADO5LLENO && !d.apartado6.Lleno && !d.apartado7.Lleno &&
           d.NumParti == 0 && !d.anexoII.Lleno;
}

constexpr std::array<ReglaCruzada, 18> CrucesSolicitudes = {{
    {23, [](const Cruce& c) { return es(a4(c).IVAEXPORT, u'A') && !si(r5(c).IVA); }, 792, 483},
    {24, [](const Cruce& c) { return es(a4(c).IVAEXPORTINTRA, u'A') && sinOperacionesIva(r5(c)); },
     793, 483},
    {25, [](const Cruce& c) { return es(a4(c).IRPFOBJET, u'O') && !si(r5(c).IRPFOBJETIVA); }, 496,
     TituloSecciones},
    {26,
     [](const Cruce& c) {
         const bool sinDirecta = !si(r5(c).IRPFDIRECTA) && !si(r5(c).IRPFDIRECTSIMPLIF);
         return exclusionORevocacion(a4(c).IRPFOBJET) && (!no(r5(c).IRPFOBJETIVA) || sinDirecta);
     },
     497, TituloSecciones},
    {27, [](const Cruce& c) { return es(a4(c).IRPFDIRECT, u'O') && !si(r5(c).IRPFDIRECTSIMPLIF); },
     498, TituloSecciones},
    {28,
     [](const Cruce& c) {
         return exclusionORevocacion(a4(c).IRPFDIRECT) && !si(r5(c).IRPFDIRECTSIMPLIF);
     },
     499, TituloSecciones},
    {29,
     [](const Cruce& c) {
         return (es(a4(c).IVAAGRIC, u'E') || es(a4(c).IVAAGRIC, u'A')) &&
                (!no(r5(c).Agric) || !no(r5(c).NOAGRIC));
     },
     500, TituloSecciones},
    {30,
     [](const Cruce& c) {
         return es(a4(c).IVAAGRIC, u'R') && !si(r5(c).Agric) && !si(r5(c).NOAGRIC);
     },
     501, TituloSecciones},
    {31,
     [](const Cruce& c) {
         return es(a4(c).IVASIMPLIF, u'A') && (!si(r5(c).IVA) || !no(r5(c).SIMPLIF));
     },
     502, TituloSecciones},
    {32, [](const Cruce& c) { return es(a4(c).IVASIMPLIF, u'R') && !si(r5(c).SIMPLIF); }, 503,
     TituloSecciones},
    {33,
     [](const Cruce& c) {
         return es(a4(c).IVASIMPLIF, u'A') && si(r5(c).Agric) &&
                c.fechaVigor >= InicioIncompatibilidad;
     },
     698, TituloSecciones},
    {34, [](const Cruce& c) { return es(a4(c).IVASIMPLIF, u'E') && !no(r5(c).SIMPLIF); }, 504,
     TituloSecciones},
    {35,
     [](const Cruce& c) {
         return es(a4(c).IVAAGENCIAS, u'O') &&
                (!si(r5(c).AGENCIASGLOBAL) || !no(r5(c).AGENCIASOPERACION));
     },
     505, TituloSecciones},
    {36,
     [](const Cruce& c) {
         return c.d.general.FECHAVIGOR < InicioEdicion2015 && es(a4(c).IVAAGENCIAS, u'R') &&
                (!no(r5(c).AGENCIASGLOBAL) || !si(r5(c).AGENCIASOPERACION));
     },
     506, TituloSecciones},
    {37,
     [](const Cruce& c) {
         return es(a4(c).IVABIENES, u'O') && (!si(r5(c).BIENESMARGEN) || !no(r5(c).BIENESUSADOS));
     },
     507, TituloSecciones},
    {38,
     [](const Cruce& c) {
         return es(a4(c).IVABIENES, u'R') && (!no(r5(c).BIENESMARGEN) || !si(r5(c).BIENESUSADOS));
     },
     508, TituloSecciones},
    {39, [](const Cruce& c) { return es(a4(c).IVACAJA, u'O') && no(r5(c).IVACAJA); }, 873,
     TituloSecciones},
    {40, [](const Cruce& c) { return exclusionORevocacion(a4(c).IVACAJA) && si(r5(c).IVACAJA); },
     874, TituloSecciones},
}};

constexpr std::array<ReglaCruzada, 9> Finales = {{
    {41,
     [](const Cruce& c) {
         return Marcado(c.d.general.Apartado4) && !es(a4(c).IVAEXPORTINTRA, u'A') &&
                (c.d.apartado7.TributDestino == u"O" || c.d.apartado7.MasLimEuros == u"S");
     },
     786, TituloCruce},
    {42,
     [](const Cruce& c) {
         return Marcado(c.d.general.Apartado4) && !es(a4(c).IVAEXPORTINTRA, u'B') &&
                c.d.apartado7.TributDestino == u"R";
     },
     787, TituloCruce},
    {43,
     [](const Cruce& c) {
         return Marcado(c.d.general.Apartado4) && !c.d.apartado5.APARTADO5LLENO &&
                haySolicitudes(a4(c));
     },
     509, TituloCruce},
    {44,
     [](const Cruce& c) {
         return Marcado(c.d.general.Apartado4) && Marcado(c.d.general.Apartado5) &&
                es(a4(c).IVAEXPORTINTRA, u'A') && sinOperacionesIva(r5(c)) && !tipo(c, u"P");
     },
     767, TituloCruce},
    {45,
     [](const Cruce& c) {
         return !c.d.apartado5.APARTADO5LLENO && causaEn(c, {20, 21});
     },
     511, TituloCruce},
    {46,
     [](const Cruce& c) {
         return conCeseYSituacion(c) && tipo(c, u"C") && cesaDelTodo(c) && sigueObligado(r5(c));
     },
     839, TituloCruce},
    {47,
     [](const Cruce& c) {
         return conCeseYSituacion(c) && c.d.apartado5.APARTADO5LLENO && !cesaDelTodo(c);
     },
     512, 513},
    {48,
     [](const Cruce& c) {
         return tipo(c, u"M") && c.d.general.MotivoCambio == 0 && nadaLleno(c.d);
     },
     514, 468},
    {49,
     [](const Cruce& c) {
         return !tipo(c, u"P") && c.d.apartado3.ActivEcon == ActividadSinEpigrafe &&
                vacio(c.d.apartado3.ListaEpigrafe);
     },
     696, 123},
}};

}  // namespace

std::span<const ReglaCruzada> ReglasSolicitudes() { return CrucesSolicitudes; }
std::span<const ReglaCruzada> ReglasFinales() { return Finales; }

}  // namespace padral
