#include "sections/tax/annex2_rules.h"

#include <algorithm>
#include <array>

#include "core/field_rules.h"
#include "sections/location/address_block.h"

namespace padral {

namespace {

using A2 = DatosAnexoII;
using A2E = AnexoIIEscrito;

/// Any of them makes a domicile abroad.
constexpr QString A2::*Domicilio[] = {&A2::DireccionDom, &A2::Nacionalidad, &A2::FormaJuridica,
                                      &A2::PoblacionDom};
/// Any of them makes a representative.
constexpr QString A2::*Representante[] = {&A2::DomicilioRepresentante,    &A2::NombreRepresentante,
                                          &A2::NacionalidadRepresentante, &A2::NIFRepresentante,
                                          &A2::NombreMunicipio,           &A2::NombreProvincia};
/// Answers that count as data without either; the percentage is none.
constexpr QString A2::*Respuestas[] = {&A2::TerritorioHistorico, &A2::Obligado, &A2::OpcionApl,
                                       &A2::OtrosEstablecimientos, &A2::Aplicacion};

template <std::size_t N>
bool alguno(const A2& datos, QString A2::*const (&textos)[N]) {
    return std::ranges::any_of(textos, [&](auto texto) { return !(datos.*texto).isEmpty(); });
}

bool vacio(const A2& d) {
    return !alguno(d, Domicilio) && !alguno(d, Representante) && !alguno(d, Respuestas);
}
/// A text that goes with the others of its group is missing.
bool faltaEnDomicilio(const A2E& e, QString A2::*texto) {
    return alguno(e.datos, Domicilio) && (e.datos.*texto).isEmpty();
}
bool faltaEnRepresentante(const A2E& e, QString A2::*texto) {
    return alguno(e.datos, Representante) && (e.datos.*texto).isEmpty();
}
bool nifRechazado(const A2E& e) {
    return alguno(e.datos, Representante) && !e.validaNif(e.datos.NIFRepresentante);
}
bool sinRespuesta(const QString& pregunta, const QString& respuesta) {
    return pregunta == QStringView(u"S") && respuesta.isEmpty();
}
bool propia(const A2E& e) { return e.provincia == ProvinciaPropia; }

constexpr std::array<ReglaAnexoII, 16> ReglasDelAnexoII = {{
    {1, [](const A2E& e) { return vacio(e.datos); }, {281, 125}},
    {2,
     [](const A2E& e) { return faltaEnDomicilio(e, &A2::DireccionDom); },
     {114, 115, u"", u"txtDomicilio"}},
    {3,
     [](const A2E& e) { return faltaEnDomicilio(e, &A2::PoblacionDom); },
     {134, 119, u"", u"txtNombreMunicipio"}},
    {4,
     [](const A2E& e) { return faltaEnDomicilio(e, &A2::Nacionalidad); },
     {728, 729, u"", u"txtNacionalidad"}},
    {5,
     [](const A2E& e) {
         return sinRespuesta(e.datos.TerritorioHistorico, e.datos.ModalidadEstablecimiento);
     },
     {730, 731, u"", u"chkCierra"}},
    {6,
     [](const A2E& e) { return faltaEnRepresentante(e, &A2::NIFRepresentante); },
     {738, 739, u"", u"txtNIF"}},
    {7, nifRechazado, {545, 158, u"", u"txtNIF"}},
    {8,
     [](const A2E& e) { return faltaEnRepresentante(e, &A2::NombreRepresentante); },
     {734, 735, u"", u"txtNombre"}},
    {9,
     [](const A2E& e) { return faltaEnRepresentante(e, &A2::DomicilioRepresentante); },
     {732, 733, u"", u"txtRepDomicilio"}},
    {10,
     [](const A2E& e) { return faltaEnRepresentante(e, &A2::NombreProvincia); },
     {744, 745},
     ListaAnexoII::Provincias},
    {11,
     [](const A2E& e) { return !propia(e) && faltaEnRepresentante(e, &A2::NombreMunicipio); },
     {740, 741, u"", u"txtNombreMunRepr"}},
    {11,
     [](const A2E& e) { return propia(e) && faltaEnRepresentante(e, &A2::NombreMunicipio); },
     {740, 741},
     ListaAnexoII::Municipios},
    // It speaks of another field than the one that it leads to.
    {12,
     [](const A2E& e) { return sinRespuesta(e.datos.Obligado, e.datos.Establecimientos); },
     {742, 743, u"", u"txtNombreMunRepr"}},
    // The comma alone is an empty mask.
    {13,
     [](const A2E& e) { return e.revocacion && e.porcentaje.trimmed() == QStringView(u","); },
     {386, 387, u"", u"numPorcentaje"}},
    {14,
     [](const A2E& e) { return e.revocacion && ValorNumerico(e.porcentaje) == 0; },
     {386, 387, u"", u"numPorcentaje"}},
    {15,
     [](const A2E& e) { return e.revocacion && ValorNumerico(e.porcentaje) > 100; },
     {695, 387, u"", u"numPorcentaje"}},
}};

}  // namespace

std::span<const ReglaAnexoII> ReglasAnexoII() { return ReglasDelAnexoII; }

const ReglaAnexoII* ValidarAnexoII(const AnexoIIEscrito& anexo) {
    const auto rota = std::ranges::find_if(
        ReglasDelAnexoII, [&](const ReglaAnexoII& regla) { return regla.rota(anexo); });
    return rota == ReglasDelAnexoII.end() ? nullptr : &*rota;
}

}  // namespace padral
