// Each rule across sections broken alone, and the valid declarations that all cases start from.

#include <set>

#include "declaration/cross_rules_cases.h"

namespace padral::pruebas {
namespace {

class ReglaCruzadaRota : public ConCruces, public ::testing::WithParamInterface<CasoCruce> {};

TEST_P(ReglaCruzadaRota, SeDiceEllaSola) {
    const auto& [regla, base, cambio] = GetParam();
    preparar(base);
    comprobarRegla(validar(), 0);
    preparar(base, cambio);
    comprobarRegla(validar(), regla);
}
INSTANTIATE_TEST_SUITE_P(Filas, ReglaCruzadaRota, ::testing::ValuesIn(Rotas), [](const auto& fila) {
    return nombreDeCaso<CasoCruce>(Rotas, fila.index);
});

/// Each kind of declarant with each type of declaration.
const CasoCruce Validas[] = {
    {0, Base::Persona, u""},
    {0, Base::Previa, u""},
    {0, Base::Modificacion, u""},
    {0, Base::Cese, u""},
    {0, Base::Persona, u"g.Causa1="},
    {0, Base::Sociedad, u""},
    {0, Base::Sociedad, u"g.Causa1=P"},
    {0, Base::Sociedad, u"g.Causa1=M g.FechaModificacion=20150401"},
    {0, Base::CeseSociedad, u""},
    {0, Base::Comunidad, u""},
    {0, Base::Comunidad, u"g.Causa1=P"},
    {0, Base::Comunidad, u"g.Causa1=M g.FechaModificacion=20150401"},
    {0, Base::CeseComunidad, u""},
    {0, Base::SinNif, u""},
    {0, Base::SinNif, u"g.Causa1=P"},
    {0, Base::Vacia, u""},
    // A declaration that holds nothing but who declares.
    {0, Base::Vacia, u"g.Causa1=I g.MotivoCambio=0"},
    // An unmarked section 4 that holds nothing is not the pattern of the member of an entity.
    {0, Base::Persona, u"g.Apartado4= 4.Lleno=0 4.IVAEXPORT= g.Apartado5= 5.Lleno=0"},
    // Sections as they are before 2014.
    {0, Base::Persona, u"g.FECHAVIGOR=20131231 3.FechaInicio=20131231"},
};

class DeclaracionValida : public ConCruces, public ::testing::WithParamInterface<CasoCruce> {};

TEST_P(DeclaracionValida, PasaSinMensaje) {
    preparar(GetParam().base, GetParam().cambio);
    comprobarRegla(validar(), 0);
}
INSTANTIATE_TEST_SUITE_P(Filas, DeclaracionValida, ::testing::ValuesIn(Validas));

std::vector<ReglaCruzada> todas() {
    std::vector<ReglaCruzada> reglas;
    for (const auto grupo :
         {ReglasPrimeras(), ReglasGenerales(), ReglasSolicitudes(), ReglasFinales()})
        reglas.insert(reglas.end(), grupo.begin(), grupo.end());
    return reglas;
}

TEST(TablaDeCruces, EnSuOrdenConTextoTituloYFoco) {
    const auto reglas = todas();
    ASSERT_EQ(reglas.size(), std::size(Esperadas));
    for (std::size_t i = 0; i < reglas.size(); ++i) {
        SCOPED_TRACE(Esperadas[i].regla);
        EXPECT_EQ(reglas[i].numero, Esperadas[i].regla);
        EXPECT_EQ(reglas[i].texto, Esperadas[i].texto);
        EXPECT_EQ(reglas[i].titulo, Esperadas[i].titulo);
        EXPECT_EQ(q(reglas[i].foco), q(Esperadas[i].foco));
    }
    EXPECT_EQ(ReglasPrimeras().size(), 6U);
    EXPECT_EQ(ReglasGenerales().size(), 14U);
    EXPECT_EQ(ReglasSolicitudes().size(), 18U);
}

TEST(TablaDeCruces, TodasTienenCasoSalvoLaQueOtraTapaSiempre) {
    std::set<int> conCaso, sinCaso;
    for (const auto& caso : Rotas) conCaso.insert(caso.regla);
    for (const auto& esperada : Esperadas)
        if (!conCaso.contains(esperada.regla)) sinCaso.insert(esperada.regla);
    EXPECT_EQ(sinCaso, std::set<int>{44});
}

TEST_F(ConCruces, LosMensajesEstanEnLosDosIdiomas) {
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        for (const auto& esperada : Esperadas) {
            EXPECT_FALSE(estado.Texto(esperada.texto).isEmpty()) << esperada.texto;
            EXPECT_FALSE(estado.Texto(esperada.titulo).isEmpty()) << esperada.titulo;
        }
    }
}

}  // namespace
}  // namespace padral::pruebas
