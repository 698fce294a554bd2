#pragma once
// The tables of a participant's screen: the fields of the address, the regimes, the buttons.

#include <array>

#include "participants/participant.h"
#include "sections/location/screen/address_block_widget.h"
#include "ui/section_buttons.h"

namespace padral::participe {

using B = BloqueDireccion;
using DP = DatosParticipe;

struct Rotulo {
    const char16_t* nombre;
    int texto;
};

inline constexpr std::array<FilaDireccion, NumDatos> Campos = {{
    {u"txtSiglas", u"Label1", 111, 2, nullptr, &B::SiglasDomicilio, nullptr},
    {u"txtDescripcion", nullptr, 111, 15, nullptr, &B::DescripcionSiglas, nullptr},
    {u"txtDomicilio", u"Label2", 110, 30, nullptr, &B::NombreDomicilio, nullptr},
    {u"txtNumero", u"lblNumeroArchivo", 109, 5, u"#####", nullptr, &B::Numero},
    {u"txtLetra", u"Label11", 108, 2, nullptr, &B::Letra, nullptr},
    {u"txtEscalera", u"Label12", 107, 2, nullptr, &B::Escalera, nullptr},
    {u"txtPiso", u"Label13", 106, 2, nullptr, &B::Piso, nullptr},
    {u"txtMano", u"Label14", 105, 3, nullptr, &B::Mano, nullptr},
    {u"txtCodProvincia", u"Label3", 104, 2, u"00", nullptr, &B::CodigoProvincia, true},
    {u"txtProvincia", nullptr, 104, 20, nullptr, &B::NombreProvincia, nullptr},
    {u"txtCodigoPostal", u"Label5", 102, 5, u"00000", nullptr, &B::CodigoPostal},
    // Municipalities with a longer code come from the list only.
    {u"txtCodMunicipio", u"Label4", 103, 2, u"##", nullptr, &B::CodigoMunicipio},
    {u"txtMunicipio", nullptr, 103, 25, nullptr, &B::NombreMunicipio, nullptr},
    {u"txtTelefono", u"Label6", 101, 9, u"#########", nullptr, &B::Telefono},
}};

inline constexpr std::array<FilaLista, NumCatalogos> Listas = {{
    {u"cmdListaSiglas", u"lstsiglas", 100, true},
    {u"cmdListaProvincias", u"lstprovincias", 99, true},
    {u"cmdListaMunicipios", u"lstmunicipios", 98, true},
}};
inline constexpr int TextoBotonLista = 350;

/// A regime with its two exclusive boxes, one in each column.
struct Regimen {
    Rotulo etiqueta;
    TextoFijo<1> DP::*propiedad;
    struct Casilla {
        const char16_t* nombre;
        const char16_t* valor;
    };
    std::array<Casilla, 2> casillas;
};

/// Regimes of one tax under the heads of their columns.
struct BloqueRegimenes {
    std::array<Rotulo, 2> columnas;
    std::array<Regimen, 2> filas;
};

inline constexpr std::array<BloqueRegimenes, 2> Bloques = {{
    {{{{u"lblApartado6", 19}, {u"lblApartado8", 17}}},
     {{{{u"lblApartado2", 359},
        &DP::EdIRPF,
        {{{u"chkEDSimplificada1", u"O"}, {u"chkEDSimplificada2", u"R"}}}},
       {{u"lblApartado3", 358},
        &DP::EqIRPF,
        {{{u"chkEDModulos1", u"O"}, {u"chkEDModulos2", u"R"}}}}}}},
    {{{{u"Label7", 18}, {u"Label8", 17}}},
     {{{{u"Label9", 354},
        &DP::SimplifIVA,
        {{{u"ChkRegSimplificada1", u"A"}, {u"ChkRegSimplificada2", u"R"}}}},
       {{u"Label10", 353}, &DP::Agric, {{{u"chkRegAgraria1", u"A"}, {u"chkRegAgraria2", u"R"}}}}}}},
}};

inline constexpr std::array<BotonApartado, 4> BotonesAlPie = {{
    {u"cmdAceptar", u"PicOKey", u"accept", 346, 347},
    {u"cmdCancelar", u"PicCan", u"cancel", 14, 15},
    {u"cmdOtroParticipe", u"PicNuevo", u"new", 348, 349},
    {u"cmdVolver", u"PicAnterior", u"back", 351, 409},
}};

}  // namespace padral::participe
