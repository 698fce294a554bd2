#pragma once
// The tables of section 2's screen: its four domiciles, the fields of one, the buttons.

#include <array>

#include "sections/location/screen/address_block_widget.h"
#include "sections/location/section2.h"
#include "ui/section_buttons.h"

namespace padral::apartado2 {

using B = BloqueDireccion;
using D2 = DatosApartado2;

/// A domicile as the screen names it. The fiscal one has no same-as-fiscal mark.
struct Domicilio {
    const char16_t* sufijo;
    const char16_t* etiqueta;
    int titulo;
    B D2::*bloque;
    const char16_t* casilla;
    QString D2::*elMismo;
};

/// In the order of the screen and of its rules; that of the record is another one.
inline constexpr std::array<Domicilio, 4> Domicilios = {{
    {u"Fis", u"lblDomicilioFiscal", 795, &D2::Fis, nullptr, nullptr},
    {u"Soc", u"lblDomSocial", 144, &D2::Soc, u"chkDSocElMismo", &D2::ElMismoSoc},
    {u"Act", u"lblDomActividad", 145, &D2::Act, u"chkDActElMismo", &D2::ElMismoAct},
    {u"Not", u"lblDomNotificaciones", 794, &D2::Not, u"chkDNotElMismo", &D2::ElMismoNot},
}};

/// Names without the suffix of the domicile.
inline constexpr std::array<FilaDireccion, NumDatos> Campos = {{
    {u"txtSigDom", u"lblVia", 111, 2, nullptr, &B::SiglasDomicilio, nullptr},
    {u"txtVia", nullptr, 111, 15, nullptr, &B::DescripcionSiglas, nullptr},
    {u"txtDom", u"lblDom", 110, 30, nullptr, &B::NombreDomicilio, nullptr},
    {u"numNum", u"lblNum", 109, 5, u"#####", nullptr, &B::Numero},
    {u"txtLet", u"lblLet", 108, 2, nullptr, &B::Letra, nullptr},
    {u"txtEsc", u"lblEsc", 107, 2, nullptr, &B::Escalera, nullptr},
    {u"txtPis", u"lblPis", 106, 2, nullptr, &B::Piso, nullptr},
    {u"txtMan", u"lblMan", 105, 3, nullptr, &B::Mano, nullptr},
    {u"numCodProv", u"lblProv", 104, 2, u"00", nullptr, &B::CodigoProvincia},
    {u"txtProv", nullptr, 104, 20, nullptr, &B::NombreProvincia, nullptr},
    {u"numCod", u"lblCod", 102, 5, u"00000", nullptr, &B::CodigoPostal},
    {u"numCodMun", u"lblMun", 103, 3, u"###", nullptr, &B::CodigoMunicipio},
    {u"txtMun", nullptr, 103, 25, nullptr, &B::NombreMunicipio, nullptr},
    {u"numTel", u"lblTel", 101, 9, u"#########", nullptr, &B::Telefono},
}};

inline constexpr std::array<FilaLista, NumCatalogos> Listas = {{
    {u"cmdLstVia", u"lstVia", 100, true},
    {u"cmdLstProv", u"lstProv", 99, true},
    {u"cmdLstMun", u"lstMun", 98, true},
}};

/// Names that are not just the field's with the suffix behind it.
inline constexpr struct {
    const char16_t *regular, *nombre;
} NombresPropios[] = {{u"numCodAct", u"numCodact"}, {u"lblViaFis", u"lblVia"}};

inline constexpr std::array<BotonApartado, 4> BotonesAlPie = {{
    {u"cmdInicio", u"PicInicio", u"home", 670, 671},
    {u"cmdCancelar", u"PicCan", u"cancel", 14, 96},
    {u"cmdApartadoAnterior", u"PicAnterior", u"back", 95, 11},
    {u"cmdApartadoSiguiente", u"PicSiguiente", u"next", 94, 13},
}};

}  // namespace padral::apartado2
