#pragma once
// What Annex II shows: its fields and questions in reading order.

#include <array>
#include <span>

#include "sections/tax/annex2.h"
#include "ui/section_buttons.h"

namespace padral::anexo2 {

using A2 = DatosAnexoII;

struct Rotulo {
    const char16_t* nombre = nullptr;
    int texto = 0;
};

/// A text of the record.
struct Campo {
    const char16_t* control;
    Rotulo etiqueta;  ///< none: it stands beside its code
    int ancho;        ///< characters
    QString A2::*propiedad;
    std::size_t linea = 0;  ///< of its frame
};

inline constexpr std::array<Campo, 4> CamposDomicilio = {{
    {u"txtDomicilio", {u"lblDomicilio", 110}, 80, &A2::DireccionDom, 0},
    {u"txtNombreMunicipio", {u"lblMunicipio", 103}, 30, &A2::PoblacionDom, 1},
    {u"txtNacionalidad", {u"lblNacionalidad", 721}, 30, &A2::Nacionalidad, 1},
    {u"txtFormaJuridica", {u"lblFormaJuridica", 724}, 40, &A2::FormaJuridica, 2},
}};

inline constexpr std::array<Campo, 4> CamposRepresentante = {{
    {u"txtNIF", {u"lblNif", 720}, 9, &A2::NIFRepresentante, 0},
    {u"txtNombre", {u"lblNombre", 719}, 40, &A2::NombreRepresentante, 0},
    {u"txtNacionalidadRep", {u"lblNacionalidadRep", 721}, 30, &A2::NacionalidadRepresentante, 1},
    {u"txtRepDomicilio", {u"lblRepDomicilio", 110}, 40, &A2::DomicilioRepresentante, 1},
}};

struct Marco {
    Rotulo titulo;
    std::span<const Campo> campos;
};

inline constexpr Marco Domicilio{{u"fraDomicilio", 722}, CamposDomicilio};
inline constexpr Marco Representante{{u"fraRepresentante", 723}, CamposRepresentante};

/// A code of the representative's address, with the button of its list and what it stands for.
struct Codigo {
    const char16_t* control;
    Rotulo etiqueta;
    int cifras;
    const char16_t *formato, *formatoCero;
    qint32 A2::*propiedad;
    const char16_t *boton, *lista;
    int ayuda;  ///< text id of the button's tool tip
    Campo nombre;
};

/// In the order of ListaAnexoII.
inline constexpr std::array<Codigo, 2> Codigos = {{
    {u"numCodigoProvincia",
     {u"lblProvincia", 104},
     2,
     u"##",
     u"00",
     &A2::CodigoProvincia,
     u"cmdListaProvincias",
     u"lstprovincias",
     99,
     {u"txtNombreProvincia", {}, 20, &A2::NombreProvincia}},
    {u"numCodigoMunicipio",
     {u"lblMunicipioRep", 103},
     3,
     u"###",
     u"###",
     &A2::CodigoMunicipio,
     u"cmdListaMunicipios",
     u"lstmunicipios",
     98,
     {u"txtNombreMunRepr", {}, 25, &A2::NombreMunicipio}},
}};

/// A possible answer.
struct Casilla {
    const char16_t* nombre = nullptr;  ///< none: the question has fewer answers
    const char16_t* valor = u"";       ///< what a tick writes
    int texto = 0;
    /// A click takes back the answer that the record holds, whatever the box shows.
    bool alterna = false;
};

inline constexpr int Si = 137, No = 138;

/// Answers that exclude one another.
struct Pregunta {
    Rotulo etiqueta;  ///< without a name it is only read aloud
    QString A2::*propiedad;
    std::array<Casilla, 3> respuestas;
};

inline constexpr std::array<Pregunta, 7> Preguntas = {{
    {{u"lbl1", 706},
     &A2::TerritorioHistorico,
     {{{u"chklbl1Si", u"S", Si, true}, {u"chklbl1No", u"N", No}}}},
    {{nullptr, 708},
     &A2::ModalidadEstablecimiento,
     {{{u"chkCierra", u"A", 714}, {u"chkOcasional", u"B", 715}, {u"chkNoCierra", u"C", 716}}}},
    {{u"lbl2", 707}, &A2::OtrosEstablecimientos, {{{u"chklbl2Si", u"S", Si}}}},
    {{u"lbl5", 712}, &A2::Obligado, {{{u"chklbl5Si", u"S", Si, true}, {u"chklbl5No", u"N", No}}}},
    {{u"lbl6", 713}, &A2::Establecimientos, {{{u"chklbl6Si", u"S", Si}, {u"chklbl6No", u"N", No}}}},
    {{u"lbl4", 709}, &A2::Aplicacion, {{{u"chklbl4Si", u"S", Si}}}},
    {{u"lbl7", 710}, &A2::OpcionApl, {{{u"chkOpcion", u"O", 717}, {u"chkRevocacion", u"R", 718}}}},
}};

/// Answers that are asked for only after a yes to another question.
inline constexpr struct {
    QString A2::*pregunta;
    QString A2::*respuesta;
} Dependencias[] = {{&A2::TerritorioHistorico, &A2::ModalidadEstablecimiento},
                    {&A2::Obligado, &A2::Establecimientos}};

inline constexpr std::array<BotonApartado, 3> BotonesAlPie = {{
    {u"cmdInicio", u"PicInicio", u"home", 670, 671},
    {u"cmdCancelar", u"PicCan", u"cancel", 14, 15},
    {u"cmdAnterior", u"PicAnterior", u"back", 10, 669},
}};

}  // namespace padral::anexo2
