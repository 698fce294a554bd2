// Marked sections that hold nothing, with the entry checks of sections 4 and 5 among them.

#include "declaration/cross_rules_cases.h"

namespace padral::pruebas {
namespace {

/// A step of the check: what breaks it and what it says.
struct Paso {
    const char* nombre;
    Base base;
    const char16_t* cambio;
    AvisoEsperado aviso;
    std::vector<const char16_t*> vecinas;  ///< further changes that put it right, each alone
};

void PrintTo(const Paso& paso, std::ostream* salida) { *salida << s(paso.cambio); }

#define TODO_NO_5 u"5.IVA=N 5.GENERAL=N 5.IRPFDIRECTA=N "

const std::vector<Paso> Pasos = {
    {"Apartado2_549",
     Base::Persona,
     u"2.Lleno=0",
     {549, 483},
     {u"2.Lleno=1", u"g.Apartado2=", u"g.Apartado2=_"}},
    {"Apartado3_550",
     Base::Persona,
     u"3.Lleno=0",
     {550, 483},
     {u"3.Lleno=1", u"g.Apartado3=", u"g.Apartado3=_"}},
    {"Apartado4_551",
     Base::Persona,
     u"4.Lleno=0",
     {551, 483},
     {u"4.Lleno=1", u"g.Apartado4=", u"g.Apartado4=_"}},
    {"Entrada4_76",
     Base::Persona,
     u"4.IVAEXPORT=",
     {76, 75},
     {u"4.IVAEXPORT=B", u"4.IVACUOADU=O", u"g.Apartado4=", u"g.Apartado4=_"}},
    {"Entrada4_871",
     Base::Persona,
     u"g.FECHAVIGOR=20131231 4.IVACAJA=E",
     {871, 75, u"Ap4- "},
     {u"g.FECHAVIGOR=20140101", u"4.IVACAJA=", u"g.Apartado4="}},
    {"Entrada5_82",
     Base::Persona,
     u"5.DOMINANTE=_",
     {82, 83},
     {u"5.DOMINANTE=N", u"g.Apartado5=", u"g.Apartado5=_", SOLO_SOCIO}},
    {"Entrada5_704",
     Base::Persona,
     TODO_NO_5,
     {704, 83},
     {u"5.SATISRENDTRAB=S", u"g.Apartado5=", SOLO_SOCIO}},
    {"Entrada5_872",
     Base::Persona,
     u"5.IVACAJA=S 5.GENERAL=N",
     {872, 83},
     {u"5.GENERAL=S", u"5.IVACAJA=N", u"5.BIENESUSADOS=S", u"g.Apartado5="}},
    {"Entrada5_871",
     Base::Persona,
     u"5.IVACAJA=S g.FECHAVIGOR=20131231",
     {871, 83, u"Ap5- "},
     {u"g.FECHAVIGOR=20140101", u"5.IVACAJA=N", u"g.Apartado5="}},
    {"Apartado6_553",
     Base::Sociedad,
     u"g.Apartado6=X 6.CAUSA=20",
     {553, 483},
     {u"6.Lleno=1", u"g.Apartado6=", u"g.Apartado6=_"}},
    {"Apartado7_554",
     Base::Persona,
     u"7.Lleno=0",
     {554, 483},
     {u"7.Lleno=1", u"g.Apartado7=", u"g.Apartado7=_"}},
    {"AnexoI_555",
     Base::Persona,
     u"g.AnexoI=X",
     {555, 483},
     {u"p.C=12345678Z", u"g.AnexoI=", u"g.AnexoI=_"}},
    {"AnexoISoloBorrados_555",
     Base::Persona,
     u"g.AnexoI=X p.E=12345678Z",
     {555, 483},
     {u"p.A=12345678Z"}},
    {"AnexoII_725",
     Base::Persona,
     u"II.Lleno=0",
     {725, 483},
     {u"II.Lleno=1", u"g.AnexoII=", u"g.AnexoII=_"}},
};

class PasoDeMarcados : public ConCruces, public ::testing::WithParamInterface<Paso> {};

TEST_P(PasoDeMarcados, SeDiceElSoloYFalla) {
    const auto& paso = GetParam();
    preparar(paso.base, paso.cambio);
    comprobarAvisos(ValidarApartadosMarcados(d), {paso.aviso});
    const auto resultado = validar();
    EXPECT_FALSE(resultado.pasa);
    comprobarAvisos(resultado.revision, {paso.aviso});
}

TEST_P(PasoDeMarcados, CadaCondicionCorregidaLoCalla) {
    const auto& paso = GetParam();
    for (const char16_t* vecina : paso.vecinas) {
        SCOPED_TRACE(s(vecina));
        preparar(paso.base, paso.cambio);
        poner(d, vecina);
        comprobarAvisos(ValidarApartadosMarcados(d), {});
        comprobarRegla(validar(), 0);
    }
}
INSTANTIATE_TEST_SUITE_P(Filas, PasoDeMarcados, ::testing::ValuesIn(Pasos),
                         [](const auto& fila) { return std::string(fila.param.nombre); });

/// All steps broken at once, and then one less each time from the first on. The steps of a section
/// are put right by what makes the section whole again.
TEST_F(ConCruces, DeLosApartadosMarcadosSeDiceElPrimero) {
    const struct {
        AvisoEsperado aviso;
        const char16_t* arreglo;
    } pasos[] = {
        {{549, 483}, u"2.Lleno=1"},
        {{550, 483}, u"3.Lleno=1"},
        {{551, 483}, u"4.Lleno=1"},
        {{76, 75}, u"4.IVACAJA=E"},
        {{871, 75, u"Ap4- "}, u"4.IVACAJA= 4.IVAEXPORT=B"},
        {{82, 83}, u"5.DOMINANTE=N"},
        {{872, 83}, u"5.GENERAL=S"},
        {{871, 83, u"Ap5- "}, u"5.IVACAJA=N"},
        {{553, 483}, u"6.Lleno=1 6.CAUSA=10"},
        {{554, 483}, u"7.Lleno=1"},
        {{555, 483}, u"p.C=12345678Z"},
        {{725, 483}, u"II.Lleno=1"},
    };
    preparar(Base::Persona,
             u"2.Lleno=0 3.Lleno=0 4.Lleno=0 4.IVAEXPORT= 5.DOMINANTE=_ 5.IVACAJA=S 5.GENERAL=N "
             u"g.FECHAVIGOR=20131231 g.Apartado6=X 7.Lleno=0 g.AnexoI=X II.Lleno=0");
    for (const auto& [aviso, arreglo] : pasos) {
        SCOPED_TRACE(s(arreglo));
        comprobarAvisos(ValidarApartadosMarcados(d), {aviso});
        poner(d, arreglo);
    }
    comprobarRegla(validar(), 0);
}

/// A marked section 5 that was never accepted has no message of its own here.
TEST_F(ConCruces, ElApartado5MarcadoYVacioNoSeDice) {
    preparar(Base::Persona, u"5.Lleno=0");
    comprobarAvisos(ValidarApartadosMarcados(d), {});
}

TEST_F(ConCruces, LasReglas1A6VienenAntesDeLosMarcadosYLasDemasDespues) {
    for (const auto& [regla, base, cambio] : Rotas) {
        SCOPED_TRACE(s(cambio));
        preparar(base, cambio);
        poner(d, u"g.AnexoII=X II.Lleno=0");
        const auto resultado = validar();
        EXPECT_FALSE(resultado.pasa);
        if (regla < 7)
            comprobarRegla(resultado, regla);
        else
            comprobarAvisos(resultado.revision, {{725, 483}});
    }
}

}  // namespace
}  // namespace padral::pruebas
