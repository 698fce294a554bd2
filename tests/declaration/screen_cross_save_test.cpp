// A declaration that the rules across sections let pass: what they only tell, what they leave, and
// that it is saved after them.

#include "declaration/screen_cross_fixture.h"

namespace padral::pruebas {
namespace {

TEST_F(CrucesEnPantalla, AlGuardarSeMarcaLoQueEstaLleno) {
    preparar(Base::Persona, u"g.AnexoII= g.Apartado7=");
    anunciar(u"cmdImprimir");
    guarda(u"cmdImprimir");
    EXPECT_EQ(g.ObtenerDatos()[12].toString(), QStringLiteral("XXXX X X"));
}

class BaseEnPantalla : public CrucesEnPantalla, public ::testing::WithParamInterface<Base> {};

TEST_P(BaseEnPantalla, UnaValidaSeGuardaSinDecirNada) {
    for (const auto* salida : Salidas) {
        preparar(GetParam());
        const bool conParticipes = d.NumParti > 0;
        anunciar(salida);
        guarda(salida);
        if (q(salida) != QStringLiteral("cmdImprimir")) continue;
        EXPECT_EQ(d.SumaPorcen, conParticipes ? 100 : 0) << "it stays open";
    }
}
INSTANTIATE_TEST_SUITE_P(Filas, BaseEnPantalla,
                         ::testing::Values(Base::Persona, Base::Sociedad, Base::Comunidad,
                                           Base::SinNif, Base::Previa, Base::Modificacion,
                                           Base::Vacia, Base::Cese, Base::CeseSociedad,
                                           Base::CeseComunidad));

TEST_F(CrucesEnPantalla, LaFechaDeVigorQuedaPuesta) {
    const struct {
        Base base;
        const char16_t* cambio;
        qint32 fecha;
    } filas[] = {
        {Base::Persona, u"3.FechaInicio=20150302", 20150302},
        {Base::Persona, u"3.FechaInicio=0", 0},
        {Base::Persona, u"g.Apartado3= 3.Lleno=0", 0},
        {Base::Modificacion, u"g.FechaModificacion=20150303", 20150303},
        {Base::Cese, u"6.FECHACESE=20150304", 20150304},
    };
    for (const auto& fila : filas)
        for (const auto* salida : Salidas) {
            preparar(fila.base, fila.cambio);
            anunciar(salida);
            guarda(salida);
            EXPECT_EQ(estado.FechaVigor, fila.fecha) << s(fila.cambio);
        }
}

TEST_F(CrucesEnPantalla, UnNifMaloDeParticipeSeDiceYSeGuarda) {
    const char16_t* const textos[] = {u"El/los participes 12345678A tiene/n un NIF erróneo",
                                      u"12345678APartaideak/ek IFZ zenbaki okerra du/te"};
    for (const auto* texto : textos) {
        if (texto == textos[1]) enEuskera();
        for (const auto* salida : Salidas) {
            preparar(Base::Comunidad, u"g.AnexoII=");
            d.participantes.colParticipes.back()->DNI = QStringLiteral("12345678A");
            anunciar(salida);
            avisos.Espera({q(texto), estado.Texto(753), Icono::Exclamacion, Botones::Aceptar});
            avisos.alMostrar = [this](const Mensaje&) {
                EXPECT_EQ(declaracionesGuardadas(), guardadas_) << "the save comes after it";
                EXPECT_EQ(g.AnexoII, QString());
            };
            guarda(salida);
        }
    }
}

TEST_F(CrucesEnPantalla, UnSoloParticipeSeDiceYSeGuarda) {
    for (const auto* salida : Salidas) {
        preparar(Base::Comunidad);
        repartir({100});
        anunciar(salida);
        avisos.Espera(estado.Texto(754), QString());
        guarda(salida);
    }
}

TEST_F(CrucesEnPantalla, LoQueSoloInformaNoCallaLosPorcentajes) {
    for (const auto* salida : Salidas) {
        preparar(Base::Comunidad);
        repartir({60});
        anunciar(salida);
        avisos.Espera(estado.Texto(754), QString());
        esperaAviso(547, 381);
        rechaza(salida);
    }
}

}  // namespace
}  // namespace padral::pruebas
