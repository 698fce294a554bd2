// A broken rule across sections on the screen: it is told before the declaration is saved or
// printed, and then nothing is stored and nothing changes.

#include "declaration/screen_cross_fixture.h"

namespace padral::pruebas {
namespace {

/// A broken rule and what it tells.
struct CruceRoto {
    Base base;
    const char16_t* cambio;
    int texto, titulo;
    const char16_t* foco = u"";
    const char16_t* prefijo = u"";  ///< before the title
};
void PrintTo(const CruceRoto& caso, std::ostream* salida) { *salida << s(caso.cambio); }

constexpr CruceRoto Rotos[] = {
    {Base::SinNif, u"g.Apartado2= 2.Lleno=0", 677, 483},
    {Base::Persona, u"2.ElMismoAct=", 780, 483},
    {Base::Previa, u"g.Apartado3= 3.Lleno=0", 482, 483},
    {Base::Persona,
     u"4.IVAEXPORT= 4.IVASOCIO=S 4.NIF=E12345674 4.NOMBRE=ENTIDAD g.Apartado5= 5.Lleno=0", 484,
     483},
    {Base::Cese, u"6.Lleno=0", 485, 483},
    {Base::Persona, u"2.Lleno=0", 549, 483},
    {Base::Persona, u"4.IVAEXPORT=", 76, 75},
    {Base::Persona, u"3.FechaInicio=20131231 4.IVACAJA=E", 871, 75, u"", u"Ap4- "},
    {Base::Persona, u"5.DOMINANTE=_", 82, 83},
    {Base::Persona, u"3.FechaInicio=20131231 5.IVACAJA=S", 871, 83, u"", u"Ap5- "},
    {Base::Persona, u"g.AnexoII=X II.Lleno=0", 725, 483},
    {Base::Sociedad, u"3.DescripcionFormaJuridica=SOCIEDAD_LIMITADA_-_B", 486, 125, u"txtDNI"},
    {Base::Persona, u"3.CodigoFormaJuridica=90", 487, 488, u"txtDNI"},
    {Base::Sociedad, u"3.FechaCierre=0", 755, 125},
    {Base::Persona, u"5.IRPFDIRECTSIMPLIF=S", 881, 125},
    {Base::CeseSociedad, u"6.CAUSA=10", 493, 125, u"txtDNI"},
    {Base::Cese, u"6.CAUSA=20", 495, 125, u"txtDNI"},
    {Base::Persona, u"4.IVAEXPORT=A 5.IVA=N", 792, 483},
    {Base::Persona, u"4.IVABIENES=O", 507, 125},
    {Base::Persona, u"7.TributDestino=O", 786, 510},
    {Base::CeseSociedad, u"g.Apartado5= 5.Lleno=0", 511, 510},
    {Base::Cese, u"6.CAUSA=99", 512, 513},
    {Base::Vacia, u"g.MotivoCambio=0", 514, 468},
    {Base::Persona, u"3.ActivEcon=9999999 3.ListaEpigrafe=", 696, 123},
};

class CruceRotoEnPantalla : public CrucesEnPantalla,
                            public ::testing::WithParamInterface<CruceRoto> {};

TEST_P(CruceRotoEnPantalla, MensajeFocoYNadaCambia) {
    const auto& caso = GetParam();
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        for (const auto* salida : Salidas) {
            preparar(caso.base, caso.cambio);
            anunciar(salida);
            avisos.Espera(estado.Texto(caso.texto), q(caso.prefijo) + estado.Texto(caso.titulo));
            rechaza(salida, caso.foco);
        }
    }
}
INSTANTIATE_TEST_SUITE_P(Filas, CruceRotoEnPantalla, ::testing::ValuesIn(Rotos),
                         [](const auto& fila) {
                             return "Mensaje" + std::to_string(fila.param.texto) + "_" +
                                    std::to_string(fila.param.titulo);
                         });

TEST_F(CrucesEnPantalla, PorcentajesQueNoSuman) {
    const struct {
        std::vector<float> partes;
        int texto;
        double suma;
    } filas[] = {{{99}, 547, 99}, {{50, 25}, 547, 75}, {{50, 25, 20}, 548, 95}};
    for (const auto& fila : filas)
        for (const auto* salida : Salidas) {
            preparar(Base::Persona);
            repartir(fila.partes);
            anunciar(salida);
            esperaAviso(fila.texto, 381);
            rechaza(salida);
            EXPECT_EQ(d.SumaPorcen, fila.suma);
        }
}

/// Everything is broken at first, and then one thing less each time. Annex II is full without its
/// mark, which only a save gives it.
TEST_F(CrucesEnPantalla, EnSuOrden) {
    for (const auto* salida : Salidas) {
        preparar(Base::Persona, u"g.AnexoII= 2.Lleno=0 3.Anagrama=MARCA p.A=87654321X");
        g.ElMismo.clear();
        d.SumaPorcen = 7;
        anunciar(salida);
        esperaAviso(479, 480);
        rechaza(salida, u"txtDNIRepresentante");
        g.ElMismo = QStringLiteral("X");
        anunciar(salida);
        esperaAviso(549, 483);
        rechaza(salida);
        EXPECT_EQ(estado.FechaVigor, OtraFecha) << "not worked out yet";
        poner(d, u"2.Lleno=1");
        anunciar(salida);
        esperaAviso(489, 125);
        rechaza(salida);
        EXPECT_EQ(estado.FechaVigor, 20150401);
        EXPECT_EQ(d.SumaPorcen, 7) << "not added up yet";
        poner(d, u"3.Anagrama=");
        anunciar(salida);
        esperaAviso(547, 381);
        rechaza(salida);
        EXPECT_EQ(d.SumaPorcen, 0);
        d.participantes.colParticipes.front()->PorcenPart = 100;
        anunciar(salida);
        guarda(salida);
    }
}

class CrucesQueNoSeMiran : public CrucesEnPantalla {
protected:
    /// Rules of both checks are broken.
    void preparar() {
        CrucesEnPantalla::preparar(Base::Persona, u"2.Lleno=0 g.Apartado7=X");
        repartir({50});
        d.SumaPorcen = 7;
    }
    void nadaMirado() {
        EXPECT_EQ(estado.FechaVigor, OtraFecha);
        EXPECT_EQ(declaracionesGuardadas(), 0);
    }
};

TEST_F(CrucesQueNoSeMiran, SinCambiosPendientes) {
    for (const auto* salida : Salidas) {
        preparar();
        estado.ModificacionesPendientes = false;
        pulsar(salida);
        sale(salida);
        nadaMirado();
    }
    EXPECT_EQ(d.SumaPorcen, 7);
}

TEST_F(CrucesQueNoSeMiran, SiNoSeQuiereGrabar) {
    preparar();
    anunciar(u"cmdImprimir", Respuesta::Cancelar);
    rechaza(u"cmdImprimir");
    nadaMirado();
    EXPECT_EQ(d.SumaPorcen, 7);
}

TEST_F(CrucesQueNoSeMiran, AlAbrirUnApartado) {
    preparar();
    pulsar(u"cmdApartado7");
    EXPECT_EQ(pantallas.Tomar(), mostrar(u"FrmApartado7"));
    nadaMirado();
    EXPECT_EQ(d.SumaPorcen, 7);
}

}  // namespace
}  // namespace padral::pruebas
