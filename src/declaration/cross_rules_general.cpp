// Rules 1 to 22: general data against the sections.

#include "declaration/cross_rules_letters.h"

namespace padral {

namespace {

constexpr int Titulo = 125, TituloApartados = 483;

bool hayDomicilioSocial(const DatosApartado2& a) {
    return !vacio(a.ElMismoSoc) || !vacio(a.Soc.NombreDomicilio) || a.Soc.CodigoProvincia != 0;
}

/// Section 4 asks for nothing, and yet names the entity of which one is a member.
bool soloEntidad(const DatosApartado4& a) {
    for (const auto* solicitud : {&a.IRPFDIRECT, &a.IRPFOBJET, &a.IVAAGENCIAS, &a.IVAAGRIC,
                                  &a.IVABIENES, &a.IVAEXPORT, &a.IVAEXPORTINTRA, &a.IVASIMPLIF})
        if (!solicitud->vacio()) return false;
    return !a.IVASOCIO.vacio() && !a.NIF.vacio() && !a.NOMBRE.vacio() && a.SONF.vacio();
}

/// The letter of a legal form ends its description.
bool formaDeOtraLetra(const Cruce& c) {
    const qint32 forma = c.d.apartado3.CodigoFormaJuridica;
    if (vacio(c.d.general.DNI) || forma == 0 || forma == FormaJuridicaOtra) return false;
    return c.d.apartado3.DescripcionFormaJuridica.trimmed().right(1) != c.d.general.DNI.left(1);
}

bool hayFormaJuridica(const DatosApartado3& a) {
    return a.CodigoFormaJuridica != 0 || a.FechaCierre != 0 || !vacio(a.DescripcionFormaJuridica) ||
           !vacio(a.Anagrama);
}

bool con(const Cruce& c, QString DatosGeneralesStore::*marca) {
    return Marcado(c.d.general.*marca);
}

using S = DatosGeneralesStore;

constexpr std::array<ReglaCruzada, 6> Primeras = {{
    {1, [](const Cruce& c) { return vacio(c.d.general.DNI) && !c.d.apartado2.Lleno; }, 677,
     TituloApartados},
    {2,
     [](const Cruce& c) {
         return con(c, &S::Apartado2) && !tipo(c, u"P") && vacio(c.d.apartado2.ElMismoAct) &&
                c.d.apartado2.Act.CodigoProvincia == 0;
     },
     780, TituloApartados},
    {3,
     [](const Cruce& c) {
         return con(c, &S::Apartado2) && personaFisica(c) && hayDomicilioSocial(c.d.apartado2);
     },
     835, TituloApartados},
    {4, [](const Cruce& c) { return tipo(c, u"P") && !c.d.apartado3.Lleno; }, 482, TituloApartados},
    {5,
     [](const Cruce& c) {
         return tipo(c, u"I") && !c.d.apartado5.APARTADO5LLENO && soloEntidad(c.d.apartado4);
     },
     484, TituloApartados},
    {6, [](const Cruce& c) { return tipo(c, u"C") && !c.d.apartado6.Lleno; }, 485, TituloApartados},
}};

constexpr std::array<ReglaCruzada, 14> Generales = {{
    {9, [](const Cruce& c) { return con(c, &S::Apartado3) && formaDeOtraLetra(c); }, 486, Titulo,
     u"txtDNI"},
    {10,
     [](const Cruce& c) {
         return con(c, &S::Apartado3) && c.d.apartado3.CodigoFormaJuridica != 0 && personaFisica(c);
     },
     487, 488, u"txtDNI"},
    {11,
     [](const Cruce& c) {
         return con(c, &S::Apartado3) && !vacio(c.d.general.DNI) && sociedad(c) &&
                (c.d.apartado3.FechaCierre == 0 || c.d.apartado3.CodigoFormaJuridica == 0);
     },
     755, Titulo},
    // The screen marks a dormant company with an "X", so that this one never tells anything.
    {12,
     [](const Cruce& c) {
         return con(c, &S::Apartado3) && !vacio(c.d.general.DNI) && !sociedad(c) && c.clase != 3 &&
                c.d.apartado3.SocPat.trimmed() == u"S";
     },
     842, Titulo},
    {13, [](const Cruce& c) { return personaFisica(c) && hayFormaJuridica(c.d.apartado3); }, 489,
     Titulo},
    {14,
     [](const Cruce& c) {
         return con(c, &S::Apartado4) && (personaFisica(c) || c.clase == 2) &&
                !c.d.apartado4.SONF.vacio();
     },
     838, Titulo},
    {15,
     [](const Cruce& c) {
         const DatosApartado4& a = c.d.apartado4;
         return con(c, &S::Apartado4) && sociedad(c) &&
                (!a.IRPFOBJET.vacio() || !a.IRPFDIRECT.vacio() || !a.IVASIMPLIF.vacio());
     },
     490, Titulo},
    {16,
     [](const Cruce& c) {
         const RespuestasApartado5& r = c.d.apartado5;
         return con(c, &S::Apartado5) && (personaFisica(c) || c.clase == 2) &&
                (noEsNo(r.SOCIEDADES) || noEsNo(r.EXENTASOCI) || noEsNo(r.ADMINISTRACIONES));
     },
     491, Titulo},
    {17,
     [](const Cruce& c) {
         const RespuestasApartado5& r = c.d.apartado5;
         return con(c, &S::Apartado5) && sociedad(c) &&
                (noEsNo(r.IRPFDIRECTA) || noEsNo(r.IRPFOBJETIVA) || noEsNo(r.IRPFDIRECTSIMPLIF) ||
                 noEsNo(r.RECARGO) || noEsNo(r.SIMPLIF) || noEsNo(r.NORECARGO));
     },
     492, Titulo},
    {18,
     [](const Cruce& c) {
         return con(c, &S::Apartado5) && tipo(c, u"I") && si(c.d.apartado5.IRPFDIRECTSIMPLIF) &&
                !es(c.d.apartado4.IRPFDIRECT, u'O');
     },
     881, Titulo},
    {19, [](const Cruce& c) { return con(c, &S::Apartado6) && sociedad(c) && causaEn(c, {10}); },
     493, Titulo, u"txtDNI"},
    {20,
     [](const Cruce& c) { return con(c, &S::Apartado6) && causaEn(c, {11}) && !personaFisica(c); },
     494, Titulo, u"txtDNI"},
    {21,
     [](const Cruce& c) {
         return con(c, &S::Apartado6) && personaFisica(c) && causaEn(c, {20, 21, 30, 31, 32, 33});
     },
     495, Titulo, u"txtDNI"},
    {22,
     [](const Cruce& c) {
         return con(c, &S::Apartado6) && personaFisica(c) && c.d.apartado6.FechaInscripcion != 0;
     },
     766, Titulo, u"txtDNI"},
}};

}  // namespace

std::span<const ReglaCruzada> ReglasPrimeras() { return Primeras; }
std::span<const ReglaCruzada> ReglasGenerales() { return Generales; }

}  // namespace padral
