#include "sections/tax/annex2_rules.h"

#include <algorithm>
#include <array>

#include "core/field_rules.h"
#include "sections/location/address_block.h"

namespace padral {

namespace {

using D = DatosAnexoII;
using E = AnexoIIEscrito;

/// Any of them makes a domicile abroad.
constexpr QString D::*Domicilio[] = {&D::DireccionDom, &D::Nacionalidad, &D::FormaJuridica,
                                     &D::PoblacionDom};
/// Any of them makes a representative.
constexpr QString D::*Representante[] = {&D::DomicilioRepresentante,    &D::NombreRepresentante,
                                         &D::NacionalidadRepresentante, &D::NIFRepresentante,
                                         &D::NombreMunicipio,           &D::NombreProvincia};
/// Answers that count as data without either; the percentage is none.
constexpr QString D::*Respuestas[] = {&D::TerritorioHistorico, &D::Obligado, &D::OpcionApl,
                                      &D::OtrosEstablecimientos, &D::Aplicacion};

template <std::size_t N>
bool alguno(const D& datos, QString D::*const (&textos)[N]) {
    return std::ranges::any_of(textos, [&](auto texto) { return !(datos.*texto).isEmpty(); });
}

bool vacio(const D& d) {
    return !alguno(d, Domicilio) && !alguno(d, Representante) && !alguno(d, Respuestas);
}
/// A text that goes with the others of its group is missing.
bool faltaEnDomicilio(const E& e, QString D::*texto) {
    return alguno(e.datos, Domicilio) && (e.datos.*texto).isEmpty();
}
bool faltaEnRepresentante(const E& e, QString D::*texto) {
    return alguno(e.datos, Representante) && (e.datos.*texto).isEmpty();
}
bool nifRechazado(const E& e) {
    return alguno(e.datos, Representante) && !e.validaNif(e.datos.NIFRepresentante);
}
bool sinRespuesta(const QString& pregunta, const QString& respuesta) {
    return pregunta == QStringView(u"S") && respuesta.isEmpty();
}
bool propia(const E& e) { return e.provincia == ProvinciaPropia; }

constexpr std::array<ReglaAnexoII, 16> Reglas = {{
    {1, [](const E& e) { return vacio(e.datos); }, {281, 125}},
    {2,
     [](const E& e) { return faltaEnDomicilio(e, &D::DireccionDom); },
     {114, 115, u"", u"txtDomicilio"}},
    {3,
     [](const E& e) { return faltaEnDomicilio(e, &D::PoblacionDom); },
     {134, 119, u"", u"txtNombreMunicipio"}},
    {4,
     [](const E& e) { return faltaEnDomicilio(e, &D::Nacionalidad); },
     {728, 729, u"", u"txtNacionalidad"}},
    {5,
     [](const E& e) {
         return sinRespuesta(e.datos.TerritorioHistorico, e.datos.ModalidadEstablecimiento);
     },
     {730, 731, u"", u"chkCierra"}},
    {6,
     [](const E& e) { return faltaEnRepresentante(e, &D::NIFRepresentante); },
     {738, 739, u"", u"txtNIF"}},
    {7, nifRechazado, {545, 158, u"", u"txtNIF"}},
    {8,
     [](const E& e) { return faltaEnRepresentante(e, &D::NombreRepresentante); },
     {734, 735, u"", u"txtNombre"}},
    {9,
     [](const E& e) { return faltaEnRepresentante(e, &D::DomicilioRepresentante); },
     {732, 733, u"", u"txtRepDomicilio"}},
    {10,
     [](const E& e) { return faltaEnRepresentante(e, &D::NombreProvincia); },
     {744, 745},
     ListaAnexoII::Provincias},
    {11,
     [](const E& e) { return !propia(e) && faltaEnRepresentante(e, &D::NombreMunicipio); },
     {740, 741, u"", u"txtNombreMunRepr"}},
    {11,
     [](const E& e) { return propia(e) && faltaEnRepresentante(e, &D::NombreMunicipio); },
     {740, 741},
     ListaAnexoII::Municipios},
    // It speaks of another field than the one that it leads to.
    {12,
     [](const E& e) { return sinRespuesta(e.datos.Obligado, e.datos.Establecimientos); },
     {742, 743, u"", u"txtNombreMunRepr"}},
    // The comma alone is an empty mask.
    {13,
     [](const E& e) { return e.revocacion && e.porcentaje.trimmed() == QStringView(u","); },
     {386, 387, u"", u"numPorcentaje"}},
    {14,
     [](const E& e) { return e.revocacion && ValorNumerico(e.porcentaje) == 0; },
     {386, 387, u"", u"numPorcentaje"}},
    {15,
     [](const E& e) { return e.revocacion && ValorNumerico(e.porcentaje) > 100; },
     {695, 387, u"", u"numPorcentaje"}},
}};

}  // namespace

std::span<const ReglaAnexoII> ReglasAnexoII() { return Reglas; }

const ReglaAnexoII* ValidarAnexoII(const AnexoIIEscrito& anexo) {
    const auto rota =
        std::ranges::find_if(Reglas, [&](const ReglaAnexoII& regla) { return regla.rota(anexo); });
    return rota == Reglas.end() ? nullptr : &*rota;
}

}  // namespace padral
