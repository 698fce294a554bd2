// The 25 rules of section 5: each broken alone, beside its nearest valid neighbour.

#include "sections/section5_cases.h"

namespace padral::pruebas {
namespace {

enum Cuando { Siempre, Antes2015 };

struct Caso {
    int numero;                ///< the rule, which is the first broken one
    const char16_t* romper;    ///< on the yes branch with the general regime
    const char16_t* arreglar;  ///< after romper: valid
    Cuando cuando = Siempre;
};

constexpr const char16_t* RamaNo = u"IVA=N GENERAL=N";

const Caso Casos[] = {
    {1, u"GENERAL=", u"GENERAL=S"},
    {1, u"RECARGO=", u"RECARGO=N"},
    {1, u"AGENCIASOPERACION=", u"AGENCIASOPERACION=N"},
    {1, u"BIENESUSADOS=", u"BIENESUSADOS=N"},
    {1, u"BIENESMARGEN=", u"BIENESMARGEN=N"},
    {1, u"Agric=", u"Agric=N"},
    {1, u"IVACAJA=", u"IVACAJA=S"},
    {1, u"SIMPLIF=", u"SIMPLIF=N OPEXSINDCHO="},
    {1, u"AGENCIASGLOBAL=", u"AGENCIASGLOBAL=N", Antes2015},
    {1, u"GENERAL=", u"IVA=N"},
    {1, u"GENERAL=", u"IVA=s"},
    {2, u"IVA=N NORECARGO=", u"NORECARGO=N"},
    {2, u"IVA=N NOAGRIC=", u"NOAGRIC=S"},
    {2, u"IVA=N NOEXENTAS=", u"NOEXENTAS=S"},
    {2, u"IVA=N NOCONCIERTO=", u"NOCONCIERTO=S"},
    {2, u"IVA=N NOCONCIERTO=", u"IVA=S"},
    {2, u"IVA=N NORECARGO=", u"IVA=n"},
    {3, u"GENERAL=N", u"GENERAL=S"},
    {3, u"GENERAL=N", u"GENERAL=n"},
    {3, u"GENERAL=N", u"IVA=s"},
    {3, u"GENERAL=N", u"AGENCIASOPERACION=S"},
    {3, u"GENERAL=N", u"BIENESUSADOS=S"},
    {3, u"GENERAL=N", u"BIENESMARGEN=S"},
    {3, u"GENERAL=N", u"SIMPLIF=S"},
    {3, u"GENERAL=N", u"AGENCIASGLOBAL=S", Antes2015},
    {3, u"GENERAL=N RECARGO=S", u"GENERAL=S"},
    {3, u"GENERAL=N Agric=S OPEXSINDCHO=S", u"IVA=N"},
    {4, u"EXENTASOCI=S SOCIEDADES=S", u"EXENTASOCI=N"},
    {4, u"EXENTASOCI=S SOCIEDADES=S", u"SOCIEDADES=N"},
    {4, u"EXENTASOCI=S SOCIEDADES=S", u"SOCIEDADES=s"},
    {5, u"ART117=S", u"SOCIEDADES=S"},
    {5, u"ART117=S SOCIEDADES=s", u"SOCIEDADES=S"},
    {5, u"ART117=S SOCIEDADES=", u"ART117=N"},
    {6, u"COOPERATIVA=S", u"SOCIEDADES=S"},
    {6, u"COOPERATIVA=S SOCIEDADES=s", u"COOPERATIVA=N"},
    {7, u"CONSOLIDACION=S", u"SOCIEDADES=S"},
    {7, u"CONSOLIDACION=S SOCIEDADES=s", u"CONSOLIDACION=N"},
    {8, u"DOMINANTE=S", u"SOCIEDADES=S CONSOLIDACION=S"},
    {8, u"DOMINANTE=S SOCIEDADES=s", u"DOMINANTE=N"},
    {9, u"SOCIEDADES=S IRPFDIRECTA=S", u"IRPFDIRECTA=N"},
    {9, u"SOCIEDADES=S IRPFOBJETIVA=S", u"IRPFOBJETIVA="},
    {9, u"SOCIEDADES=S IRPFDIRECTSIMPLIF=S", u"SOCIEDADES=N"},
    {9, u"SOCIEDADES=S RECARGO=S", u"RECARGO=N"},
    {9, u"SOCIEDADES=S SIMPLIF=S", u"SIMPLIF=N"},
    {9, u"SOCIEDADES=S IVA=N NORECARGO=S", u"NORECARGO=N"},
    {9, u"SOCIEDADES=S IRPFDIRECTA=s", u"SOCIEDADES=s"},
    {9, u"SOCIEDADES=S SIMPLIF=s", u"SIMPLIF=n"},
    {10, u"ADMINISTRACIONES=S IRPFDIRECTA=S", u"IRPFDIRECTA=N"},
    {10, u"ADMINISTRACIONES=S IRPFOBJETIVA=S", u"IRPFOBJETIVA="},
    {10, u"ADMINISTRACIONES=S IRPFDIRECTSIMPLIF=S", u"ADMINISTRACIONES=N"},
    {10, u"ADMINISTRACIONES=S RECARGO=S", u"RECARGO=N"},
    {10, u"ADMINISTRACIONES=S SIMPLIF=S", u"SIMPLIF=N"},
    {10, u"ADMINISTRACIONES=S IVA=N NORECARGO=S", u"NORECARGO=N"},
    {10, u"ADMINISTRACIONES=S RECARGO=s", u"ADMINISTRACIONES=s"},
    {11, u"EXENTASOCI=S IRPFDIRECTA=S", u"IRPFDIRECTA=N"},
    {11, u"EXENTASOCI=S IRPFOBJETIVA=S", u"IRPFOBJETIVA="},
    {11, u"EXENTASOCI=S IRPFDIRECTSIMPLIF=S", u"EXENTASOCI=N"},
    {11, u"EXENTASOCI=S RECARGO=S", u"RECARGO=N"},
    {11, u"EXENTASOCI=S SIMPLIF=S", u"SIMPLIF=N"},
    {11, u"EXENTASOCI=S IVA=N NORECARGO=S", u"NORECARGO=N"},
    {11, u"EXENTASOCI=S IRPFDIRECTSIMPLIF=s", u"EXENTASOCI=s"},
    // With a capital in the other answer rows 9 and 11 speak before rows 12 to 14.
    {12, u"IRPFDIRECTA=S SOCIEDADES=s", u"SOCIEDADES=N"},
    {12, u"IRPFDIRECTA=S EXENTASOCI=s", u"IRPFDIRECTA=s"},
    {13, u"IRPFOBJETIVA=S SOCIEDADES=s", u"SOCIEDADES=N"},
    {13, u"IRPFOBJETIVA=S EXENTASOCI=s", u"IRPFOBJETIVA=s"},
    {14, u"IRPFDIRECTSIMPLIF=S SOCIEDADES=s", u"SOCIEDADES=N"},
    {14, u"IRPFDIRECTSIMPLIF=S EXENTASOCI=s", u"IRPFDIRECTSIMPLIF=s"},
    {15, u"SOCIEDADES=S ART117=S COOPERATIVA=S", u"COOPERATIVA=N"},
    {15, u"SOCIEDADES=S ART117=S COOPERATIVA=S", u"ART117=s"},
    {16, u"SOCIEDADES=S DOMINANTE=S", u"CONSOLIDACION=S"},
    {16, u"SOCIEDADES=S DOMINANTE=S", u"CONSOLIDACION="},
    {16, u"SOCIEDADES=S DOMINANTE=S", u"CONSOLIDACION=n"},
    {16, u"SOCIEDADES=S DOMINANTE=S", u"DOMINANTE=N"},
    {17, u"IVA=N RECARGO=S", u"IVA=S"},
    {17, u"IVA=N RECARGO=S", u"IVA=s"},
    {17, u"IVA= RECARGO=S", u"RECARGO=s"},
    {17, u"RECARGO=S EXENTASOCI=s", u"EXENTASOCI=N"},
    {17, u"RECARGO=S SOCIEDADES=s", u"SOCIEDADES=N"},
    {18, u"AGENCIASOPERACION=S AGENCIASGLOBAL=S", u"AGENCIASGLOBAL=N", Antes2015},
    {18, u"AGENCIASOPERACION=S AGENCIASGLOBAL=s", u"AGENCIASOPERACION=N", Antes2015},
    {18, u"IVA=N AGENCIASOPERACION=S", u"IVA=s", Antes2015},
    {19, u"AGENCIASGLOBAL=S AGENCIASOPERACION=s", u"AGENCIASOPERACION=N", Antes2015},
    {19, u"IVA=N AGENCIASGLOBAL=S", u"IVA=s", Antes2015},
    {20, u"BIENESUSADOS=S BIENESMARGEN=S", u"BIENESMARGEN=N"},
    {20, u"BIENESUSADOS=S BIENESMARGEN=s", u"BIENESUSADOS=s"},
    {20, u"IVA=N BIENESUSADOS=S", u"IVA=s"},
    {21, u"BIENESMARGEN=S BIENESUSADOS=s", u"BIENESUSADOS=N"},
    {21, u"IVA=N BIENESMARGEN=S", u"IVA=s"},
    {22, u"IVA=N SIMPLIF=S", u"IVA=S"},
    {22, u"SIMPLIF=S SOCIEDADES=s", u"SOCIEDADES=N"},
    {22, u"SIMPLIF=S EXENTASOCI=s", u"SIMPLIF=s"},
    {23, u"NORECARGO=S", RamaNo},
    {23, u"NORECARGO=S", u"IVA=n"},
    {23, u"IVA= NORECARGO=S", u"NORECARGO=s"},
    {23, u"IVA=N NORECARGO=S SOCIEDADES=s", u"SOCIEDADES=N"},
    {23, u"IVA=N NORECARGO=S EXENTASOCI=s", u"EXENTASOCI=N"},
    {23, u"IVA=N NORECARGO=S NOCONCIERTO=S", u"NOCONCIERTO=N"},
    {24, u"NOAGRIC=S", RamaNo},
    {24, u"IVA=N NOAGRIC=S NOCONCIERTO=S", u"NOCONCIERTO=N"},
    {24, u"IVA=N NOAGRIC=S NOCONCIERTO=s", u"NOAGRIC=s"},
    {25, u"NOEXENTAS=S", RamaNo},
    {25, u"IVA=N NOEXENTAS=S NOCONCIERTO=S", u"NOCONCIERTO=N"},
    {25, u"IVA=N NOEXENTAS=S NOCONCIERTO=s", u"NOEXENTAS=s"},
};

constexpr int Textos[] = {82,  82,  674, 692, 782, 783, 784, 785, 678, 788, 679, 680, 681,
                          682, 762, 763, 683, 684, 685, 686, 687, 688, 689, 690, 691};
bool conExclamacion(int texto) { return texto == 762 || texto == 763; }

TEST(Filas5, OrdenTextosEIcono) {
    const auto reglas = ReglasApartado5();
    ASSERT_EQ(reglas.size(), std::size(Textos));
    for (std::size_t i = 0; i < reglas.size(); ++i) {
        EXPECT_EQ(reglas[i].numero, static_cast<int>(i) + 1);
        EXPECT_EQ(reglas[i].texto, Textos[i]);
        EXPECT_EQ(reglas[i].exclamacion, conExclamacion(Textos[i])) << i + 1;
    }
}

TEST(Filas5, RotaSolaYSuVecinaVale) {
    for (const Caso& caso : Casos) {
        SCOPED_TRACE(std::to_string(caso.numero) + ": " + s(caso.romper) + " / " +
                     s(caso.arreglar));
        RespuestasApartado5 rota = ramaSi();
        poner(rota, caso.romper);
        RespuestasApartado5 vecina = rota;
        poner(vecina, caso.arreglar);
        const int texto = Textos[caso.numero - 1];
        for (const qint32 fecha : {Fin2013, Inicio2014, Fin2014, Inicio2015}) {
            SCOPED_TRACE(fecha);
            if (caso.cuando == Antes2015 && fecha >= Inicio2015) continue;
            const ReglaApartado5* primera = PrimeraReglaRota(rota, fecha);
            ASSERT_NE(primera, nullptr);
            EXPECT_EQ(primera->numero, caso.numero);
            comprobarAvisos(DatosValidos(rota, fecha),
                            {{texto, 83, u"", u"", conExclamacion(texto)}});
            comprobarAvisos(DatosValidos(vecina, fecha), {});
        }
    }
}

TEST(Filas5, CadaFilaTieneSusCasos) {
    for (int numero = 1; numero <= 25; ++numero)
        EXPECT_TRUE(std::ranges::any_of(Casos, [&](const Caso& c) { return c.numero == numero; }))
            << numero;
}

}  // namespace
}  // namespace padral::pruebas
