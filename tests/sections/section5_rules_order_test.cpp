// The rules of section 5 in company: faults told by another rule, and what 2015 changes.

#include "sections/section5_cases.h"

namespace padral::pruebas {
namespace {

/// Faults that an earlier rule always tells first: the rule itself sees them too.
TEST(Orden5, RotasTrasOtraAnterior) {
    const struct {
        std::size_t numero;
        const char16_t* romper;
        int primera;
    } casos[] = {{12, u"IRPFDIRECTA=S SOCIEDADES=S", 9},
                 {12, u"IRPFDIRECTA=S EXENTASOCI=S", 11},
                 {13, u"IRPFOBJETIVA=S SOCIEDADES=S", 9},
                 {13, u"IRPFOBJETIVA=S EXENTASOCI=S", 11},
                 {14, u"IRPFDIRECTSIMPLIF=S SOCIEDADES=S", 9},
                 {14, u"IRPFDIRECTSIMPLIF=S EXENTASOCI=S", 11},
                 {15, u"SOCIEDADES=S EXENTASOCI=S ART117=S", 4},
                 {15, u"EXENTASOCI=S ART117=S", 5},
                 {15, u"EXENTASOCI=S COOPERATIVA=S", 6},
                 {15, u"EXENTASOCI=S ART117=S COOPERATIVA=S SOCIEDADES=S", 4},
                 {17, u"RECARGO=S SOCIEDADES=S", 9},
                 {17, u"RECARGO=S EXENTASOCI=S", 11},
                 {19, u"AGENCIASGLOBAL=S AGENCIASOPERACION=S", 18},
                 {21, u"BIENESMARGEN=S BIENESUSADOS=S", 20},
                 {22, u"SIMPLIF=S SOCIEDADES=S", 9},
                 {23, u"IVA=N NORECARGO=S SOCIEDADES=S", 9}};
    for (const auto& caso : casos) {
        SCOPED_TRACE(s(caso.romper));
        RespuestasApartado5 r = ramaSi();
        poner(r, caso.romper);
        EXPECT_TRUE(ReglasApartado5()[caso.numero - 1].rota(r, Fin2014));
        EXPECT_EQ(PrimeraReglaRota(r, Fin2014)->numero, caso.primera);
    }
}

/// From 2015 the global base of travel agencies is not looked at.
TEST(Orden5, Desde2015LaBaseGlobalNoCuenta) {
    for (const auto* texto :
         {u"AGENCIASGLOBAL=", u"AGENCIASOPERACION=S AGENCIASGLOBAL=S", u"IVA=N AGENCIASGLOBAL=S",
          u"IVA=N AGENCIASOPERACION=S", u"AGENCIASGLOBAL=S AGENCIASOPERACION=s"}) {
        SCOPED_TRACE(s(texto));
        RespuestasApartado5 r = ramaSi();
        poner(r, texto);
        EXPECT_NE(PrimeraReglaRota(r, Fin2014), nullptr);
        EXPECT_EQ(PrimeraReglaRota(r, Inicio2015), nullptr);
    }
    RespuestasApartado5 r = respuestas(u"IVA=S AGENCIASGLOBAL=S");
    EXPECT_EQ(PrimeraReglaRota(r, Fin2014), nullptr);
    comprobarAvisos(DatosValidos(r, Inicio2015), {{674, 83}});
    poner(r, u"AGENCIASGLOBAL= IRPFOBJETIVA= GENERAL=S");
    comprobarAvisos(DatosValidos(r, Inicio2015), {});
    comprobarAvisos(ValidarIntroduccionDatos(r, {}, Inicio2015), {});
}

/// Answers that no rule looks at.
TEST(Orden5, SinRegla) {
    RespuestasApartado5 r = ramaSi();
    poner(r,
          u"IRPFDIRECTA=S IRPFOBJETIVA=S IRPFDIRECTSIMPLIF=S GRANEMPRESA= SATISRENDTRAB= "
          u"SATISRENDARREN= OPEXSINDCHO= NORECARGO= NOAGRIC= NOEXENTAS= NOCONCIERTO=");
    comprobarAvisos(DatosValidos(r, Fin2014), {});
    comprobarAvisos(DatosValidos(r, Inicio2015), {});
}

}  // namespace
}  // namespace padral::pruebas
