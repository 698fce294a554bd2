// What rules 41 to 49 across sections let pass: each of their conditions put right alone.

#include "declaration/cross_rules_cases.h"

namespace padral::pruebas {
namespace {

const VecinaCruce Vecinas[] = {
    {41, Base::Persona, u"7.TributDestino=O g.Apartado4="},
    {41, Base::Persona, u"7.MasLimEuros=S g.Apartado4=_"},
    {41, Base::Persona, u"7.TributDestino=O 7.MasLimEuros=S 4.IVAEXPORTINTRA=A"},
    {41, Base::Persona, u"7.TributDestino= 7.MasLimEuros="},
    {41, Base::Persona, u"7.MasLimEuros=N"},
    {41, Base::Persona, u"7.TributDestino=R", 42},
    {42, Base::Persona, u"7.TributDestino=R g.Apartado4="},
    {42, Base::Persona, u"7.TributDestino=R 4.IVAEXPORTINTRA=B"},
    {42, Base::Persona, u"7.TributDestino=O 4.IVAEXPORTINTRA=A"},
    {43, Base::Persona, SIN_5 u"4.IRPFOBJET=O 4.IRPFDIRECT=O 4.IVAAGRIC=A g.Apartado4="},
    {43, Base::Persona, SIN_5 u"4.IVASIMPLIF=A 4.IVACAJA=O 4.IVACUOADU=O g.Apartado4="},
    {43, Base::Persona, SIN_5 u"4.IVAAGENCIAS=O 4.IVABIENES=O g.Apartado4="},
    {43, Base::Persona, u"g.Apartado5= 4.IVACUOADU=O"},
    {43, Base::Persona, u"g.Apartado5= 4.IVACAJA=O"},
    {43, Base::Persona, u"4.IVACUOADU=O"},
    {43, Base::Persona, SIN_5},
    {43, Base::Persona, SIN_5 u"4.IVAEXPORT=_ 4.IVAEXPORTINTRA=A"},
    {43, Base::Sociedad, SIN_5 u"4.SONF=O"},
    {43, Base::Modificacion, SIN_5 SOLO_SOCIO},
    {45, Base::CeseSociedad, u"g.Apartado5="},
    {45, Base::CeseSociedad, SIN_5 u"6.CAUSA=22"},
    {45, Base::CeseSociedad, SIN_5 u"6.CAUSA=30"},
    {45, Base::CeseSociedad, SIN_5 u"6.CAUSA=0"},
    {45, Base::CeseComunidad, SIN_5},
    {45, Base::Cese, SIN_5},
    {46, Base::Cese, u"5.IVA=S g.Apartado5="},
    {46, Base::Cese, u"5.IVA=S g.Apartado5=_"},
    {46, Base::Cese, u"5.IVA=S g.Apartado6="},
    {46, Base::Cese, u"5.IVA=S g.Apartado6=_"},
    {46, Base::Cese, u"5.IVA=S g.Causa1=I"},
    {46, Base::Cese, u"5.IVA=S g.Causa1=M"},
    {46, Base::Cese, u"5.IVA=S 6.CAUSA=99", 47},
    {46, Base::Cese, u"5.IVA=S 6.CAUSA=99 5.Lleno=0"},
    {46, Base::CeseSociedad, u"5.IVA=S 6.CAUSA=22 5.Lleno=0"},
    {46, Base::CeseSociedad, u"5.IVA=S 6.CAUSA=22 5.Lleno=0 g.DNI="},
    {46, Base::CeseSociedad, u"5.IVA=S 6.CAUSA=33 5.Lleno=0"},
    {46, Base::Cese, u"6.CAUSA=22"},
    {46, Base::CeseSociedad, u"6.CAUSA=21"},
    {46, Base::Cese, u"5.SATISRENDARREN=S 5.IRPFDIRECTSIMPLIF=S 5.RECARGO=S"},
    {47, Base::Cese, u"6.CAUSA=99 g.Apartado5="},
    {47, Base::Cese, u"6.CAUSA=99 g.Apartado6="},
    {47, Base::Cese, u"6.CAUSA=99 5.Lleno=0"},
    {47, Base::Persona, CON_6 u"6.CAUSA=10"},
    {47, Base::CeseComunidad, u"6.CAUSA=20"},
    {47, Base::CeseComunidad, u"6.CAUSA=22"},
    {47, Base::CeseSociedad, u"6.CAUSA=22 5.Lleno=0"},
    {48, Base::Vacia, u"g.MotivoCambio=30"},
    {48, Base::Vacia, u"g.MotivoCambio=0 g.Causa1=I"},
    {48, Base::Vacia, u"g.MotivoCambio=0 g.Causa1="},
    {48, Base::Vacia, u"g.MotivoCambio=0 2.Lleno=1"},
    {48, Base::Vacia, u"g.MotivoCambio=0 3.Lleno=1"},
    {48, Base::Vacia, u"g.MotivoCambio=0 4.Lleno=1"},
    {48, Base::Vacia, u"g.MotivoCambio=0 5.Lleno=1"},
    {48, Base::Vacia, u"g.MotivoCambio=0 6.Lleno=1"},
    {48, Base::Vacia, u"g.MotivoCambio=0 7.Lleno=1"},
    {48, Base::Vacia, u"g.MotivoCambio=0 p.C=12345678Z"},
    {48, Base::Vacia, u"g.MotivoCambio=0 p.A=12345678Z p.E=87654321X"},
    {48, Base::Vacia, u"g.MotivoCambio=0 II.Lleno=1"},
    {49, Base::Previa, u"3.ActivEcon=9999999 3.ListaEpigrafe="},
    {49, Base::Persona, u"3.ListaEpigrafe="},
    {49, Base::Persona, u"3.ActivEcon= 3.ListaEpigrafe="},
    {49, Base::Persona, u"3.ActivEcon=9999999"},
};

class VecinaFinal : public ConCruces, public ::testing::WithParamInterface<VecinaCruce> {};

TEST_P(VecinaFinal, NoRompeLaRegla) {
    preparar(GetParam().base, GetParam().cambio);
    comprobarRegla(validar(), GetParam().en);
}
INSTANTIATE_TEST_SUITE_P(Filas, VecinaFinal, ::testing::ValuesIn(Vecinas), [](const auto& fila) {
    return nombreDeCaso<VecinaCruce>(Vecinas, fila.index);
});

}  // namespace
}  // namespace padral::pruebas
