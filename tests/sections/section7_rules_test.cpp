// The two rules of section 7, which are looked at one after the other, whatever the first says.

#include "sections/tax/section7_rules.h"

#include "core/text_catalogue.h"
#include "sections/tax_changes.h"

namespace padral::pruebas {
namespace {

using D7 = DatosApartado7;

constexpr AvisoEsperado SinDatos{281, 125}, Revoca{790, 75};

D7 conRespuestas(const char16_t* texto) {
    D7 r;
    poner(r, TablaApartado7(), texto);
    return r;
}

TEST(Reglas7, UnaSolaRespuestaBasta) {
    comprobarAvisos(ValidarApartado7({}), {SinDatos});
    ASSERT_EQ(TablaApartado7().size(), 59U);
    for (const auto& respuesta : TablaApartado7()) {
        SCOPED_TRACE(s(respuesta.nombre));
        for (const auto* valor : {u"S", u"N", u"D", u"R", u"O", u"x", u" "}) {
            D7 r;
            respuesta.escribir(r, q(valor));
            comprobarAvisos(ValidarApartado7(r), {});
            respuesta.escribir(r, q(u""));
            comprobarAvisos(ValidarApartado7(r), {SinDatos});
        }
    }
}

TEST(Reglas7, LasBanderasNoSonRespuestas) {
    D7 r;
    r.Lleno = r.Modificaciones = true;
    comprobarAvisos(ValidarApartado7(r), {SinDatos});
}

struct Caso {
    const char16_t* respuestas;
    std::vector<AvisoEsperado> avisos;
};

const Caso Casos[] = {
    {u"MasLimEuros=S TributDestino=R", {Revoca}},
    {u"MasLimEuros=S TributDestino=R LimSupPais1=S DestRevocPais27=R Agric=S", {Revoca}},
    {u"MasLimEuros=S TributDestino=O", {}},
    {u"MasLimEuros=S TributDestino=", {}},
    {u"MasLimEuros=N TributDestino=R", {}},
    {u"MasLimEuros=N TributDestino=O", {}},
    {u"MasLimEuros= TributDestino=R", {}},
    {u"MasLimEuros=s TributDestino=R", {}},
    {u"MasLimEuros=S TributDestino=r", {}},
    // The answers of a state are not compared.
    {u"LimSupPais1=S DestRevocPais1=", {}},
    {u"LimSupPais1=N DestRevocPais1=D", {}},
    {u"LimSupPais25=S DestRevocPais25=R", {}},
    {u"DestRevocPais4=D", {}},
};

TEST(Reglas7, Filas) {
    for (const Caso& caso : Casos) {
        SCOPED_TRACE(s(caso.respuestas));
        comprobarAvisos(ValidarApartado7(conRespuestas(caso.respuestas)), caso.avisos);
    }
}

TEST(Reglas7, TextosEnLosDosIdiomas) {
    const CatalogoTextos textos;
    const struct {
        int id;
        const char16_t *castellano, *euskera;
    } casos[] = {
        {281, u"No ha rellenado ningún dato. Hágalo o pulse el botón Cancelar",
         u"Ez duzu daturik bete. Bete ezazu edo sakatu Utzi botoia"},
        {125, u"Datos no válidos", u"Datuak ez dira baliagarriak"},
        {790,
         u"Si el campo MAS DE 10.000 EUROS = 'S' el campo TRIBUTACIÓN EN DESTINO debe ser 'O ' o "
         u"blanco",
         u"10.000 EURO BAINO GEHIAGO eremua = 'S' bada, HELMUGAN ZERGAPETZEA eremuak 'O ' izan edo "
         u"hutsik egon behar du"},
        {75, u"Fallo en la validación", u"Akatsa balioztatzean"},
    };
    for (const auto& caso : casos) {
        EXPECT_EQ(textos.Texto(caso.id), q(caso.castellano));
        EXPECT_EQ(textos.Texto(caso.id + CatalogoTextos::DesplazamientoEuskera), q(caso.euskera));
    }
}

}  // namespace
}  // namespace padral::pruebas
