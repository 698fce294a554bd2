// What rules 23 to 40, requests against tax situation, let pass: each condition put right alone.

#include "declaration/cross_rules_cases.h"

namespace padral::pruebas {
namespace {

const VecinaCruce Vecinas[] = {
    {23, Base::Persona, u"5.IVA=N"},
    {23, Base::Persona, u"4.IVAEXPORT=B 5.IVA=N"},
    {23, Base::Persona, u"4.IVAEXPORT=_ 4.IVAEXPORTINTRA=B 5.IVA=N"},
    {23, Base::Persona, u"4.IVAEXPORT=A"},
    {24, Base::Persona, u"4.IVAEXPORTINTRA=B 5.IVA=N"},
    {24, Base::Persona, u"4.IVAEXPORTINTRA=A"},
    {24, Base::Persona, u"4.IVAEXPORTINTRA=A 5.IVA=N 5.NORECARGO=S"},
    {24, Base::Persona, u"4.IVAEXPORTINTRA=A 5.IVA=N 5.NOAGRIC=S"},
    {24, Base::Persona, u"4.IVAEXPORTINTRA=A 5.IVA=N 5.NOEXENTAS=S"},
    {25, Base::Persona, u"4.IRPFOBJET=O 5.IRPFOBJETIVA=S"},
    {25, Base::Persona, u"5.IRPFOBJETIVA=N"},
    {25, Base::Persona, u"4.IRPFOBJET=E"},
    {26, Base::Persona, u"4.IRPFOBJET=R"},
    {26, Base::Persona, u"5.IRPFOBJETIVA=S"},
    {26, Base::Persona, u"5.IRPFOBJETIVA=_"},
    {26, Base::Persona, u"5.IRPFDIRECTA=N"},
    {26, Base::Persona, u"4.IRPFOBJET=O 5.IRPFOBJETIVA=S 5.IRPFDIRECTA=N"},
    {26, Base::Modificacion, u"4.IRPFOBJET=E 5.IRPFDIRECTA=N 5.IRPFDIRECTSIMPLIF=S"},
    {26, Base::Modificacion, u"4.IRPFOBJET=R 5.IRPFDIRECTA=N 5.IRPFDIRECTSIMPLIF=S"},
    {27, Base::Persona, u"4.IRPFDIRECT=O 5.IRPFDIRECTSIMPLIF=S"},
    {27, Base::Previa, u"4.IRPFDIRECT=O 5.IRPFDIRECTSIMPLIF=S"},
    {27, Base::Persona, u"4.IRPFDIRECT=E", 28},
    {27, Base::Persona, u"4.IRPFDIRECT=_"},
    {28, Base::Modificacion, u"4.IRPFDIRECT=E 5.IRPFDIRECTSIMPLIF=S"},
    {28, Base::Modificacion, u"4.IRPFDIRECT=R 5.IRPFDIRECTSIMPLIF=S"},
    {28, Base::Persona, u"4.IRPFDIRECT=O", 27},
    {29, Base::Persona, u"4.IVAAGRIC=E"},
    {29, Base::Persona, u"4.IVAAGRIC=A"},
    {29, Base::Persona, u"4.IVAAGRIC=R 5.Agric=S"},
    {29, Base::Persona, u"4.IVAAGRIC=R 5.NOAGRIC=S"},
    {29, Base::Persona, u"5.Agric=S 5.NOAGRIC=S"},
    {29, Base::Persona, u"5.Agric=_"},
    {30, Base::Persona, u"4.IVAAGRIC=R 5.Agric=S 5.NOAGRIC=S"},
    {30, Base::Persona, u"4.IVAAGRIC=R 5.Agric=_ 5.NOAGRIC=S"},
    {30, Base::Persona, u"5.Agric=N 5.NOAGRIC=N"},
    {31, Base::Persona, u"4.IVASIMPLIF=A"},
    {31, Base::Persona, u"5.SIMPLIF=S"},
    {31, Base::Persona, u"5.SIMPLIF=_"},
    {31, Base::Persona, u"4.IVASIMPLIF=R 5.SIMPLIF=S"},
    {31, Base::Persona, u"4.IVASIMPLIF=R 5.SIMPLIF=S 5.IVA=N"},
    {31, Base::Persona, u"4.IVASIMPLIF=E 5.SIMPLIF=S", 34},
    {31, Base::Persona, u"4.IVASIMPLIF=E 5.IVA=N"},
    {32, Base::Persona, u"5.SIMPLIF=N"},
    {32, Base::Persona, u"4.IVASIMPLIF=R 5.SIMPLIF=S 5.GENERAL=N"},
    {33, Base::Persona, u"5.Agric=S"},
    {33, Base::Persona, u"4.IVASIMPLIF=R 5.SIMPLIF=S 5.Agric=S"},
    {33, Base::Persona, u"4.IVASIMPLIF=E 5.Agric=S"},
    {33, Base::Persona, u"4.IVASIMPLIF=A 5.Agric=_"},
    {33, Base::Persona, u"4.IVASIMPLIF=A 5.NOAGRIC=S"},
    {33, Base::Persona, u"4.IVASIMPLIF=A 5.Agric=S 3.FechaInicio=19991231"},
    {33, Base::Persona, u"4.IVASIMPLIF=A 5.Agric=S 3.FechaInicio=0"},
    {34, Base::Persona, u"4.IVASIMPLIF=E"},
    {35, Base::Persona, u"4.IVAAGENCIAS=O 5.AGENCIASGLOBAL=S"},
    {35, Base::Persona, u"4.IVAAGENCIAS=R 5.AGENCIASOPERACION=S"},
    {35, Base::Persona, u"4.IVAAGENCIAS=R"},
    {35, Base::Persona, u"5.AGENCIASOPERACION=S"},
    {35, Base::Persona, u"5.AGENCIASGLOBAL=_ 5.AGENCIASOPERACION=_"},
    {36, Base::Persona, u"g.FECHAVIGOR=20150101 4.IVAAGENCIAS=R"},
    {36, Base::Persona, u"g.FECHAVIGOR=20141231 4.IVAAGENCIAS=R 5.AGENCIASOPERACION=S"},
    {36, Base::Persona, u"g.FECHAVIGOR=20141231"},
    {36, Base::Persona, u"g.FECHAVIGOR=20141231 5.AGENCIASGLOBAL=S"},
    {36, Base::Persona, u"g.FECHAVIGOR=20141231 4.IVAAGENCIAS=O 5.AGENCIASGLOBAL=S"},
    {37, Base::Persona, u"4.IVABIENES=O 5.BIENESMARGEN=S"},
    {37, Base::Persona, u"5.BIENESUSADOS=S"},
    {37, Base::Persona, u"4.IVABIENES=R 5.BIENESUSADOS=S"},
    {38, Base::Persona, u"5.BIENESMARGEN=S"},
    {38, Base::Persona, u"5.BIENESMARGEN=_ 5.BIENESUSADOS=_"},
    {39, Base::Persona, u"4.IVACAJA=O 5.IVACAJA=S"},
    {39, Base::Persona, u"4.IVACAJA=O 5.IVACAJA=_"},
    {39, Base::Persona, u"4.IVACAJA=E"},
    {39, Base::Persona, u"5.IVACAJA=N"},
    {40, Base::Persona, u"4.IVACAJA=R"},
    {40, Base::Persona, u"4.IVACAJA=E 5.IVACAJA=_"},
    {40, Base::Persona, u"5.IVACAJA=S"},
};

class VecinaSolicitudes : public ConCruces, public ::testing::WithParamInterface<VecinaCruce> {};

TEST_P(VecinaSolicitudes, NoRompeLaRegla) {
    preparar(GetParam().base, GetParam().cambio);
    comprobarRegla(validar(), GetParam().en);
}
INSTANTIATE_TEST_SUITE_P(Filas, VecinaSolicitudes, ::testing::ValuesIn(Vecinas),
                         [](const auto& fila) {
                             return nombreDeCaso<VecinaCruce>(Vecinas, fila.index);
                         });

/// Rules 23 to 40 speak only with both sections marked, whatever the sections hold.
class SinUnaDeLasMarcas : public ConCruces, public ::testing::WithParamInterface<CasoCruce> {};

TEST_P(SinUnaDeLasMarcas, NoSeDiceNada) {
    const auto& [regla, base, cambio] = GetParam();
    for (const char16_t* quita : {u"g.Apartado4=", u"g.Apartado4=_", u"g.Apartado5=",
                                  u"g.Apartado5=_", u"g.Apartado4= g.Apartado5="}) {
        SCOPED_TRACE(s(quita));
        preparar(base, cambio);
        poner(d, quita);
        comprobarRegla(validar(), 0);
    }
}

std::vector<CasoCruce> deSolicitudes() {
    std::vector<CasoCruce> casos;
    for (const auto& caso : Rotas)
        if (caso.regla >= 23 && caso.regla <= 40) casos.push_back(caso);
    return casos;
}
const std::vector<CasoCruce> DeSolicitudes = deSolicitudes();

INSTANTIATE_TEST_SUITE_P(Filas, SinUnaDeLasMarcas, ::testing::ValuesIn(DeSolicitudes),
                         [](const auto& fila) {
                             return nombreDeCaso<CasoCruce>(DeSolicitudes, fila.index);
                         });

}  // namespace
}  // namespace padral::pruebas
