#pragma once
// The pairs of boxes of section 3 and the channels that they belong to.

#include <array>

#include "declaration/screen/section_screen.h"
#include "sections/location/section3.h"

namespace padral::apartado3 {

using D3 = DatosApartado3;

/// An exclusive pair: what each box puts where. Both boxes of an answer share its member; consent
/// and its revocation have one each.
struct Pareja {
    const char16_t *si, *no;            ///< names of the boxes
    int grupo;                          ///< text of the frame that they stand in; 0 none
    int textoSi, textoNo;               ///< captions of the boxes; 0: a label beside it
    const char16_t *valorSi, *valorNo;  ///< what a ticked box stands for
    Letra D3::*miembroSi;
    Letra D3::*miembroNo;
    bool refresca;  ///< a click shows the whole record again
};

inline constexpr std::size_t Idioma = 0, Medio = 1, PrimerCanal = 2, Cesion = 6;

inline constexpr std::array<Pareja, 7> Parejas = {{
    {u"chkCastellano", u"chkEuskera", 848, 625, 626, u"C", u"E", &D3::IdiomaPref, &D3::IdiomaPref,
     true},
    {u"chkPostal", u"chkElectronico", 849, 850, 851, u"P", u"E", &D3::MedioPref, &D3::MedioPref,
     false},
    {u"chkCorreoAlta", u"chkCorreoBaja", 852, 854, 855, u"A", u"B", &D3::Correo, &D3::Correo, true},
    {u"chkFaxAlta", u"chkFaxBaja", 857, 854, 855, u"A", u"B", &D3::Fax, &D3::Fax, true},
    {u"chkTelMovilAlta", u"chkTelMovilBaja", 860, 854, 855, u"A", u"B", &D3::Movil, &D3::Movil,
     true},
    {u"chkTelFijoAlta", u"chkTelFijoBaja", 863, 854, 855, u"A", u"B", &D3::Fijo, &D3::Fijo, true},
    {u"chkConsentimiento", u"chkRevocacion", 0, 0, 0, u"S", u"S", &D3::Consentimiento,
     &D3::Revocacion, true},
}};

/// A channel: its frame, the question and the number with its label. The pair of channel i is
/// number PrimerCanal + i.
struct Canal {
    const char16_t *marco, *pregunta, *etiqueta, *campo;
    int textoPregunta, textoEtiqueta;
    qint32 D3::*numero;  ///< none for e-mail, which has an address
};

inline constexpr std::array<Canal, 4> Canales = {{
    {u"fraCorreo", u"lblCorreo", u"lblDirCorreo", u"txtDirCorreo", 853, 856, nullptr},
    {u"fraFax", u"lblFax", u"lblNumFax", u"numFax", 858, 859, &D3::numFax},
    {u"fraMovil", u"lblTelMovil", u"lblNumMovil", u"numMovil", 861, 862, &D3::numMovil},
    {u"fraFijo", u"lblTelFijo", u"lblNumFijo", u"numFijo", 864, 865, &D3::numFijo},
}};

inline constexpr auto BotonesAlPie = BotonesHabituales(96);

}  // namespace padral::apartado3
