#pragma once
// The rules across sections: what each says, and declarations that break it.

#include "declaration/cross_rules_fixture.h"

namespace padral::pruebas {

/// What a broken rule says. 7 and 50 are checks of their own with several messages, and 8 works out
/// a date.
struct Esperada {
    int regla, texto, titulo;
    const char16_t* foco = u"";
};
inline constexpr Esperada Esperadas[] = {
    {1, 677, 483},
    {2, 780, 483},
    {3, 835, 483},
    {4, 482, 483},
    {5, 484, 483},
    {6, 485, 483},
    {9, 486, 125, u"txtDNI"},
    {10, 487, 488, u"txtDNI"},
    {11, 755, 125},
    {12, 842, 125},
    {13, 489, 125},
    {14, 838, 125},
    {15, 490, 125},
    {16, 491, 125},
    {17, 492, 125},
    {18, 881, 125},
    {19, 493, 125, u"txtDNI"},
    {20, 494, 125, u"txtDNI"},
    {21, 495, 125, u"txtDNI"},
    {22, 766, 125, u"txtDNI"},
    {23, 792, 483},
    {24, 793, 483},
    {25, 496, 125},
    {26, 497, 125},
    {27, 498, 125},
    {28, 499, 125},
    {29, 500, 125},
    {30, 501, 125},
    {31, 502, 125},
    {32, 503, 125},
    {33, 698, 125},
    {34, 504, 125},
    {35, 505, 125},
    {36, 506, 125},
    {37, 507, 125},
    {38, 508, 125},
    {39, 873, 125},
    {40, 874, 125},
    {41, 786, 510},
    {42, 787, 510},
    {43, 509, 510},
    {44, 767, 510},
    {45, 511, 510},
    {46, 839, 510},
    {47, 512, 513},
    {48, 514, 468},
    {49, 696, 123},
};

inline const Esperada& EsperadaDe(int regla) {
    for (const auto& esperada : Esperadas)
        if (esperada.regla == regla) return esperada;
    throw std::invalid_argument(std::to_string(regla));
}

/// The whole check tells exactly this rule and fails, or with 0 passes without a word.
inline void comprobarRegla(const ResultadoCruce& resultado, int regla) {
    EXPECT_EQ(resultado.pasa, regla == 0);
    EXPECT_EQ(resultado.revision.compuesto, QString());
    if (regla == 0) return comprobarAvisos(resultado.revision, {});
    const auto& esperada = EsperadaDe(regla);
    comprobarAvisos(resultado.revision, {{esperada.texto, esperada.titulo, u"", esperada.foco}});
}

/// A valid declaration, a change to it, and the rule that is then told, 0 none.
struct CasoCruce {
    int regla;
    Base base;
    const char16_t* cambio;
};

inline void PrintTo(const CasoCruce& caso, std::ostream* salida) {
    *salida << "base " << static_cast<int>(caso.base) << ": " << s(caso.cambio);
}

/// A section 4 that only tells of which entity one is a member: section 5 may stay unanswered.
#define SOLO_SOCIO u"4.IVAEXPORT= 4.IVASOCIO=S 4.NIF=E12345674 4.NOMBRE=ENTIDAD "
#define SIN_5 u"g.Apartado5= 5.Lleno=0 "
#define CON_6 u"g.Apartado6=X 6.Lleno=1 "

inline constexpr CasoCruce Rotas[] = {
    {1, Base::SinNif, u"g.Apartado2= 2.Lleno=0"},
    {1, Base::SinNif, u"g.Apartado2= 2.Lleno=0 g.DNI=_"},
    {1, Base::SinNif, u"2.Lleno=0"},
    {2, Base::Persona, u"2.ElMismoAct="},
    {2, Base::Modificacion, u"2.ElMismoAct="},
    {2, Base::Cese, u"2.ElMismoAct="},
    {2, Base::Sociedad, u"2.ElMismoAct= g.Causa1="},
    {3, Base::Persona, u"2.ElMismoSoc=X"},
    {3, Base::Persona, u"2.NombreDomicilioSoc=MAYOR"},
    {3, Base::Persona, u"2.CodigoProvinciaSoc=20"},
    {3, Base::Previa, u"2.ElMismoSoc=X"},
    {4, Base::Persona, u"g.Causa1=P 3.Lleno=0"},
    {4, Base::Previa, u"g.Apartado3= 3.Lleno=0"},
    {5, Base::Persona, SOLO_SOCIO SIN_5},
    {5, Base::Persona, SOLO_SOCIO SIN_5 u"g.Apartado4= 4.Lleno=0"},
    {5, Base::Persona, SOLO_SOCIO SIN_5 u"4.IVASOCIO=N"},
    {5, Base::Persona, SOLO_SOCIO SIN_5 u"4.IVACAJA=O"},
    {5, Base::Persona, SOLO_SOCIO SIN_5 u"4.IVACUOADU=O"},
    {5, Base::Persona, SOLO_SOCIO u"5.Lleno=0"},
    {5, Base::Sociedad, SOLO_SOCIO SIN_5},
    {5, Base::Comunidad, SOLO_SOCIO SIN_5},
    {6, Base::CeseSociedad, u"g.Causa1=C 6.Lleno=0"},
    {6, Base::Cese, u"g.Apartado6= 6.Lleno=0"},
    {9, Base::Sociedad, u"3.DescripcionFormaJuridica=SOCIEDAD_LIMITADA_-_B"},
    {9, Base::Sociedad, u"3.DescripcionFormaJuridica=A_B_"},
    {9, Base::Sociedad, u"3.DescripcionFormaJuridica="},
    {9, Base::Sociedad, u"g.DNI=B12345674"},
    {9, Base::Sociedad, u"3.CodigoFormaJuridica=91 3.DescripcionFormaJuridica=B"},
    {9, Base::Comunidad, u"3.CodigoFormaJuridica=5 3.DescripcionFormaJuridica=A"},
    {9, Base::Persona, u"3.CodigoFormaJuridica=5 3.DescripcionFormaJuridica=A"},
    {10, Base::Persona, u"3.CodigoFormaJuridica=90"},
    {10, Base::Persona, u"g.DNI=X1234567L 3.CodigoFormaJuridica=5 3.DescripcionFormaJuridica=X"},
    {11, Base::Sociedad, u"3.FechaCierre=0"},
    {11, Base::Sociedad, u"3.CodigoFormaJuridica=0"},
    {11, Base::Sociedad, u"3.FechaCierre=0 3.CodigoFormaJuridica=0"},
    {12, Base::Persona, u"3.SocPat=S"},
    {12, Base::Persona, u"3.SocPat=_S_"},
    {13, Base::Persona, u"3.FechaCierre=1231"},
    {13, Base::Persona, u"3.DescripcionFormaJuridica=OTRA"},
    {13, Base::Persona, u"3.Anagrama=MARCA"},
    {13, Base::Persona, u"3.CodigoFormaJuridica=1 g.Apartado3="},
    {13, Base::Persona, u"3.Anagrama=MARCA g.Apartado3= 3.Lleno=0"},
    {14, Base::Persona, u"4.SONF=O"},
    {14, Base::Persona, u"4.SONF=R"},
    {15, Base::Sociedad, u"4.IRPFOBJET=O g.Apartado5="},
    {15, Base::Sociedad, u"4.IRPFDIRECT=O g.Apartado5="},
    {15, Base::Sociedad, u"4.IVASIMPLIF=E"},
    {15, Base::SinNif, u"4.IVASIMPLIF=E"},
    {16, Base::Persona, u"5.SOCIEDADES=S"},
    {16, Base::Persona, u"5.EXENTASOCI=S"},
    {16, Base::Persona, u"5.ADMINISTRACIONES=S"},
    {16, Base::Cese, u"5.SOCIEDADES=X"},
    {17, Base::Sociedad, u"5.IRPFDIRECTA=S"},
    {17, Base::Sociedad, u"5.IRPFOBJETIVA=S"},
    {17, Base::Sociedad, u"5.IRPFDIRECTSIMPLIF=S g.Causa1=P"},
    {17, Base::Sociedad, u"5.RECARGO=S"},
    {17, Base::Sociedad, u"5.SIMPLIF=S"},
    {17, Base::Sociedad, u"5.NORECARGO=S"},
    {17, Base::SinNif, u"5.RECARGO=S"},
    {17, Base::Sociedad, u"5.RECARGO=X"},
    {18, Base::Persona, u"5.IRPFDIRECTSIMPLIF=S"},
    {18, Base::Persona, u"5.IRPFDIRECTSIMPLIF=S 4.IRPFDIRECT=E"},
    {18, Base::Persona, u"5.IRPFDIRECTSIMPLIF=S 4.IRPFDIRECT=R"},
    {18, Base::Comunidad, u"5.IRPFDIRECTSIMPLIF=S g.Apartado4= 4.Lleno=0"},
    {19, Base::CeseSociedad, u"6.CAUSA=10"},
    {19, Base::CeseSociedad, u"6.CAUSA=10 g.DNI="},
    {19, Base::Sociedad, CON_6 u"6.CAUSA=10"},
    {20, Base::Sociedad, CON_6 u"6.CAUSA=11 5.Lleno=0"},
    {20, Base::SinNif, CON_6 u"6.CAUSA=11 5.Lleno=0"},
    {20, Base::Comunidad, CON_6 u"6.CAUSA=11 5.Lleno=0"},
    {20, Base::CeseComunidad, u"6.CAUSA=11 g.Apartado5="},
    {21, Base::Persona, CON_6 u"6.CAUSA=20"},
    {21, Base::Cese, u"6.CAUSA=20"},
    {21, Base::Cese, u"6.CAUSA=21"},
    {21, Base::Persona, CON_6 u"6.CAUSA=30 5.Lleno=0"},
    {21, Base::Persona, CON_6 u"6.CAUSA=31 5.Lleno=0"},
    {21, Base::Persona, CON_6 u"6.CAUSA=32 5.Lleno=0"},
    {21, Base::Persona, CON_6 u"6.CAUSA=33 5.Lleno=0"},
    {22, Base::Cese, u"6.FechaInscripcion=20150402"},
    {22, Base::Persona, CON_6 u"6.FechaInscripcion=20150402 6.CAUSA=10"},
    {23, Base::Persona, u"4.IVAEXPORT=A 5.IVA=N"},
    {23, Base::Sociedad, u"4.IVAEXPORT=A 5.IVA=N"},
    {23, Base::Previa, u"4.IVAEXPORT=A 5.IVA=X"},
    {24, Base::Previa, u"4.IVAEXPORTINTRA=A 5.IVA=N"},
    {24, Base::Previa, u"4.IVAEXPORTINTRA=A 5.IVA=N 5.NOCONCIERTO=S"},
    {24, Base::Persona, u"4.IVAEXPORTINTRA=A 5.IVA=N"},
    {25, Base::Persona, u"4.IRPFOBJET=O"},
    {25, Base::Persona, u"4.IRPFOBJET=O 5.IRPFOBJETIVA=_"},
    {26, Base::Persona, u"4.IRPFOBJET=E 5.IRPFOBJETIVA=S"},
    {26, Base::Persona, u"4.IRPFOBJET=E 5.IRPFOBJETIVA=_"},
    {26, Base::Persona, u"4.IRPFOBJET=E 5.IRPFDIRECTA=N"},
    {26, Base::Persona, u"4.IRPFOBJET=R 5.IRPFOBJETIVA=S"},
    {26, Base::Persona, u"4.IRPFOBJET=R 5.IRPFDIRECTA=N"},
    {27, Base::Persona, u"4.IRPFDIRECT=O"},
    {28, Base::Persona, u"4.IRPFDIRECT=E"},
    {28, Base::Modificacion, u"4.IRPFDIRECT=R"},
    {29, Base::Persona, u"4.IVAAGRIC=E 5.Agric=S"},
    {29, Base::Persona, u"4.IVAAGRIC=E 5.Agric=_"},
    {29, Base::Persona, u"4.IVAAGRIC=E 5.NOAGRIC=S"},
    {29, Base::Persona, u"4.IVAAGRIC=A 5.Agric=S"},
    {29, Base::Sociedad, u"4.IVAAGRIC=A 5.NOAGRIC=S"},
    {30, Base::Persona, u"4.IVAAGRIC=R"},
    {30, Base::Persona, u"4.IVAAGRIC=R 5.Agric=_"},
    {31, Base::Persona, u"4.IVASIMPLIF=A 5.SIMPLIF=S"},
    {31, Base::Persona, u"4.IVASIMPLIF=A 5.SIMPLIF=_"},
    {31, Base::Persona, u"4.IVASIMPLIF=A 5.IVA=N"},
    {32, Base::Persona, u"4.IVASIMPLIF=R"},
    {32, Base::Persona, u"4.IVASIMPLIF=R 5.SIMPLIF=_"},
    {33, Base::Persona, u"4.IVASIMPLIF=A 5.Agric=S"},
    {33, Base::Persona, u"4.IVASIMPLIF=A 5.Agric=S 3.FechaInicio=20000101"},
    {34, Base::Persona, u"4.IVASIMPLIF=E 5.SIMPLIF=S"},
    {34, Base::Persona, u"4.IVASIMPLIF=E 5.SIMPLIF=_"},
    {35, Base::Persona, u"4.IVAAGENCIAS=O"},
    {35, Base::Persona, u"4.IVAAGENCIAS=O 5.AGENCIASGLOBAL=_"},
    {35, Base::Persona, u"4.IVAAGENCIAS=O 5.AGENCIASGLOBAL=S 5.AGENCIASOPERACION=S"},
    {35, Base::Persona, u"4.IVAAGENCIAS=O 5.AGENCIASGLOBAL=S 5.AGENCIASOPERACION=_"},
    {35, Base::Persona, u"4.IVAAGENCIAS=O g.FECHAVIGOR=20141231"},
    {36, Base::Persona, u"g.FECHAVIGOR=20141231 4.IVAAGENCIAS=R"},
    {36, Base::Persona, u"g.FECHAVIGOR=0 4.IVAAGENCIAS=R"},
    {36, Base::Persona, u"g.FECHAVIGOR=20141231 4.IVAAGENCIAS=R 5.AGENCIASOPERACION=_"},
    {36, Base::Persona,
     u"g.FECHAVIGOR=20141231 4.IVAAGENCIAS=R 5.AGENCIASOPERACION=S 5.AGENCIASGLOBAL=S"},
    {36, Base::Persona,
     u"g.FECHAVIGOR=20141231 4.IVAAGENCIAS=R 5.AGENCIASOPERACION=S 5.AGENCIASGLOBAL=_"},
    {37, Base::Persona, u"4.IVABIENES=O"},
    {37, Base::Persona, u"4.IVABIENES=O 5.BIENESMARGEN=_"},
    {37, Base::Persona, u"4.IVABIENES=O 5.BIENESMARGEN=S 5.BIENESUSADOS=S"},
    {37, Base::Persona, u"4.IVABIENES=O 5.BIENESMARGEN=S 5.BIENESUSADOS=_"},
    {38, Base::Persona, u"4.IVABIENES=R"},
    {38, Base::Persona, u"4.IVABIENES=R 5.BIENESUSADOS=_"},
    {38, Base::Persona, u"4.IVABIENES=R 5.BIENESUSADOS=S 5.BIENESMARGEN=S"},
    {38, Base::Persona, u"4.IVABIENES=R 5.BIENESUSADOS=S 5.BIENESMARGEN=_"},
    {39, Base::Persona, u"4.IVACAJA=O"},
    {40, Base::Persona, u"4.IVACAJA=E 5.IVACAJA=S"},
    {40, Base::Persona, u"4.IVACAJA=R 5.IVACAJA=S"},
    {41, Base::Persona, u"7.TributDestino=O"},
    {41, Base::Persona, u"7.MasLimEuros=S"},
    {41, Base::Persona, u"7.TributDestino=O 4.IVAEXPORTINTRA=B"},
    {41, Base::Persona, u"7.MasLimEuros=S g.Apartado7= 7.Lleno=0"},
    {41, Base::Persona, u"7.MasLimEuros=S " SIN_5},
    {42, Base::Persona, u"7.TributDestino=R"},
    {42, Base::Persona, u"7.TributDestino=R 4.IVAEXPORTINTRA=A"},
    {42, Base::Persona, u"7.TributDestino=R " SIN_5},
    {43, Base::Persona, SIN_5 u"4.IRPFOBJET=O"},
    {43, Base::Persona, SIN_5 u"4.IRPFDIRECT=O"},
    {43, Base::Persona, SIN_5 u"4.IVAAGRIC=A"},
    {43, Base::Persona, SIN_5 u"4.IVASIMPLIF=A"},
    {43, Base::Persona, SIN_5 u"4.IVACAJA=O"},
    {43, Base::Persona, SIN_5 u"4.IVACUOADU=O"},
    {43, Base::Persona, SIN_5 u"4.IVAAGENCIAS=O"},
    {43, Base::Persona, SIN_5 u"4.IVABIENES=O"},
    {43, Base::Persona, u"5.Lleno=0 4.IVACUOADU=R"},
    {45, Base::CeseSociedad, SIN_5},
    {45, Base::CeseSociedad, SIN_5 u"6.CAUSA=21"},
    {45, Base::CeseSociedad, u"5.Lleno=0"},
    {45, Base::Persona, u"5.Lleno=0 6.CAUSA=20"},
    {45, Base::CeseComunidad, SIN_5 u"6.CAUSA=20"},
    {45, Base::Persona, SIN_5 u"6.CAUSA=20"},
    {46, Base::Cese, u"5.GRANEMPRESA=S"},
    {46, Base::Cese, u"5.IVA=S"},
    {46, Base::Cese, u"5.NORECARGO=S"},
    {46, Base::Cese, u"5.NOAGRIC=S"},
    {46, Base::Cese, u"5.NOEXENTAS=S"},
    {46, Base::Cese, u"5.NOCONCIERTO=S"},
    {46, Base::Cese, SOLO_SOCIO u"5.GRANEMPRESA=_"},
    {46, Base::Cese, u"6.CAUSA=22 5.IVA=S"},
    {46, Base::Cese, u"5.IVA=S 5.Lleno=0"},
    {46, Base::CeseSociedad, u"5.IVA=S"},
    {46, Base::CeseSociedad, u"5.NOCONCIERTO=S 6.CAUSA=21"},
    {46, Base::CeseComunidad, u"5.GRANEMPRESA=S"},
    {46, Base::CeseComunidad, u"5.GRANEMPRESA=S 6.CAUSA=10"},
    {47, Base::Cese, u"6.CAUSA=11"},
    {47, Base::Cese, u"6.CAUSA=99"},
    {47, Base::Cese, u"6.CAUSA=0"},
    {47, Base::CeseSociedad, u"6.CAUSA=22"},
    {47, Base::CeseSociedad, u"6.CAUSA=22 g.DNI="},
    {47, Base::CeseSociedad, u"6.CAUSA=30"},
    {47, Base::CeseComunidad, u"6.CAUSA=33 5.IVA=S"},
    // Unlike the rule before it, this one does not ask for the type.
    {47, Base::Persona, CON_6 u"6.CAUSA=99"},
    {47, Base::Modificacion, CON_6 u"6.CAUSA=11"},
    {47, Base::Previa, CON_6},
    {48, Base::Vacia, u"g.MotivoCambio=0"},
    {48, Base::Vacia, u"g.MotivoCambio=0 g.AnexoI=_ p.E=12345678Z"},
    {49, Base::Persona, u"3.ActivEcon=9999999 3.ListaEpigrafe="},
    {49, Base::Modificacion, u"3.ActivEcon=9999999 3.ListaEpigrafe=_"},
    {49, Base::Cese, u"3.ActivEcon=9999999 3.ListaEpigrafe= g.Apartado3= 3.Lleno=0"},
};

/// A declaration next to one that breaks a rule, one condition of it put right: now `en` is told.
struct VecinaCruce {
    int regla;
    Base base;
    const char16_t* cambio;
    int en = 0;
};

inline void PrintTo(const VecinaCruce& caso, std::ostream* salida) {
    PrintTo(CasoCruce{caso.regla, caso.base, caso.cambio}, salida);
}

/// "Regla23_792_1": the rule, its message and which of its cases.
template <class Caso>
std::string nombreDeCaso(std::span<const Caso> casos, std::size_t i) {
    int orden = 1;
    for (std::size_t j = 0; j < i; ++j) orden += casos[j].regla == casos[i].regla ? 1 : 0;
    const auto& esperada = EsperadaDe(casos[i].regla);
    return "Regla" + std::to_string(esperada.regla) + "_" + std::to_string(esperada.texto) + "_" +
           std::to_string(orden);
}

}  // namespace padral::pruebas
