// Clicks on the boxes of Annex II.

#include "tax/annex2_fixture.h"

namespace padral::pruebas {
namespace {

class Casillas : public PantallaAnexoII, public ::testing::WithParamInterface<Casilla2> {
protected:
    /// Opens with every question asked and no answer but those that open the others.
    void abrirPreguntas() {
        static_cast<A2&>(r) = {};
        r.TerritorioHistorico = r.Obligado = q(u"S");
        propiedad().clear();
        abrir();
    }
    QString& propiedad() { return r.*GetParam().propiedad; }
    const char16_t* nombre() const { return GetParam().nombre; }
    QString valor() const { return q(GetParam().valor); }
};

TEST_P(Casillas, MarcarEscribeSuValorYDesmarcarLoVacia) {
    for (const bool conTeclado : {false, true}) {
        abrirPreguntas();
        const auto hacer = [&] {
            if (!conTeclado) return pulsar(nombre());
            enfocar(nombre());
            tecla(Qt::Key_Space);
        };
        hacer();
        EXPECT_EQ(propiedad(), valor());
        EXPECT_TRUE(marcada(nombre()));
        EXPECT_TRUE(cambiado());
        hacer();
        EXPECT_EQ(propiedad(), QString());
        EXPECT_FALSE(marcada(nombre()));
        EXPECT_TRUE(cambiado());
    }
}

TEST_P(Casillas, MarcarApagaLasOtrasDelGrupo) {
    for (const auto* otra : GetParam().otras) {
        abrirPreguntas();
        if (!marcada(otra)) pulsar(otra);
        ASSERT_TRUE(marcada(otra));
        pulsar(nombre());
        EXPECT_TRUE(marcada(nombre()));
        EXPECT_FALSE(marcada(otra));
        EXPECT_EQ(propiedad(), valor());
    }
}

TEST_P(Casillas, NoTocaLoDemas) {
    completo();
    abrir();
    A2 antes = r;
    pulsar(nombre());
    const bool quita = antes.*GetParam().propiedad == valor();
    antes.*GetParam().propiedad = quita ? QString() : valor();
    antes.Modificaciones = true;
    if (antes.TerritorioHistorico != q(u"S")) antes.ModalidadEstablecimiento.clear();
    if (antes.Obligado != q(u"S")) antes.Establecimientos.clear();
    EXPECT_TRUE(datos() == antes);
    EXPECT_FALSE(estado.ModificacionesPendientes);
}
INSTANTIATE_TEST_SUITE_P(Todas, Casillas, ::testing::ValuesIn(Casillas2));

// These two go by the record, not by what the box shows.
TEST_F(PantallaAnexoII, LosDosSiQueMiranElRegistro) {
    const std::pair<const char16_t*, QString A2::*> casos[] = {
        {u"chklbl1Si", &A2::TerritorioHistorico}, {u"chklbl5Si", &A2::Obligado}};
    for (const auto& [nombre, propiedad] : casos) {
        abrir();
        r.*propiedad = q(u"S");
        ASSERT_FALSE(marcada(nombre));
        pulsar(nombre);
        EXPECT_EQ(r.*propiedad, QString()) << "it was S already";
        EXPECT_FALSE(marcada(nombre));
        abrir();
        pulsar(nombre);
        r.*propiedad = q(u"N");
        ASSERT_TRUE(marcada(nombre));
        pulsar(nombre);
        EXPECT_EQ(r.*propiedad, q(u"S")) << "it was not S";
        EXPECT_TRUE(marcada(nombre));
        (r.*propiedad).clear();
    }
}

// All others go by what the box shows.
TEST_F(PantallaAnexoII, LosDemasMiranLaCasilla) {
    for (const auto& una : Casillas2) {
        if (q(una.nombre) == q(u"chklbl1Si") || q(una.nombre) == q(u"chklbl5Si")) continue;
        SCOPED_TRACE(s(una.nombre));
        static_cast<A2&>(r) = {};
        r.TerritorioHistorico = r.Obligado = q(u"S");
        (r.*una.propiedad).clear();
        abrir();
        r.*una.propiedad = q(una.valor);
        pulsar(una.nombre);
        EXPECT_EQ(r.*una.propiedad, q(una.valor)) << "the box became ticked";
    }
}

TEST_F(PantallaAnexoII, DecirQueNoBorraLaModalidad) {
    for (const auto* casilla : {u"chklbl1No", u"chklbl1Si"}) {
        completo();
        abrir();
        pulsar(casilla);
        EXPECT_EQ(r.ModalidadEstablecimiento, QString());
        for (const auto* otra : {u"chkCierra", u"chkOcasional", u"chkNoCierra"}) {
            EXPECT_FALSE(habilitado(otra));
            EXPECT_FALSE(marcada(otra));
        }
        pulsar(u"chklbl1Si");
        EXPECT_TRUE(habilitado(u"chkOcasional"));
        EXPECT_FALSE(marcada(u"chkOcasional")) << "for good";
    }
}

TEST_F(PantallaAnexoII, DecirQueNoBorraLaOpcionDeEstablecimientos) {
    for (const auto* casilla : {u"chklbl5No", u"chklbl5Si"}) {
        completo();
        abrir();
        pulsar(casilla);
        EXPECT_EQ(r.Establecimientos, QString());
        for (const auto* control : {u"chklbl6Si", u"chklbl6No", u"lbl6"})
            EXPECT_FALSE(habilitado(control));
        EXPECT_FALSE(marcada(u"chklbl6No"));
        pulsar(u"chklbl5Si");
        for (const auto* control : {u"chklbl6Si", u"chklbl6No", u"lbl6"})
            EXPECT_TRUE(habilitado(control));
        EXPECT_FALSE(marcada(u"chklbl6No")) << "for good";
    }
}

TEST_F(PantallaAnexoII, LaOpcionEscondeElPorcentajeYLaRevocacionLoDevuelve) {
    r.PORCENTAJE = 35;
    abrir();
    pulsar(u"chkOpcion");
    EXPECT_EQ(texto(u"numPorcentaje"), q(u"0"));
    EXPECT_FALSE(habilitado(u"numPorcentaje"));
    EXPECT_EQ(r.PORCENTAJE, 35);
    pulsar(u"chkRevocacion");
    EXPECT_EQ(texto(u"numPorcentaje"), q(u"35"));
    EXPECT_TRUE(habilitado(u"numPorcentaje"));
    EXPECT_EQ(foco(), q(u"numPorcentaje"));
    pulsar(u"chkOpcion");
    pulsar(u"chkOpcion");
    EXPECT_EQ(texto(u"numPorcentaje"), q(u"35"));
    EXPECT_TRUE(habilitado(u"numPorcentaje"));
}

// A click sends a TAB, which the answer may have opened or closed the way for.
TEST_F(PantallaAnexoII, CadaClicPasaAlSiguiente) {
    const struct {
        const char16_t *casilla, *foco;
    } casos[] = {{u"chklbl1Si", u"chklbl1No"},        {u"chklbl1No", u"chklbl2Si"},
                 {u"chklbl1Si", u"chklbl1No"},        {u"chkCierra", u"chkOcasional"},
                 {u"chkOcasional", u"chkNoCierra"},   {u"chkNoCierra", u"chklbl2Si"},
                 {u"chklbl2Si", u"chklbl5Si"},        {u"chklbl5Si", u"chklbl5No"},
                 {u"chklbl5No", u"chklbl4Si"},        {u"chklbl5Si", u"chklbl5No"},
                 {u"chklbl6Si", u"chklbl6No"},        {u"chklbl6No", u"chklbl4Si"},
                 {u"chklbl4Si", u"chkOpcion"},        {u"chkOpcion", u"chkRevocacion"},
                 {u"chkRevocacion", u"numPorcentaje"}};
    abrir();
    for (const auto& caso : casos) {
        pulsar(caso.casilla);
        EXPECT_EQ(foco(), q(caso.foco)) << s(caso.casilla);
    }
    abrir(20140101);
    pulsar(u"chklbl4Si");
    EXPECT_EQ(foco(), q(u"numPorcentaje"));
}

TEST_F(PantallaAnexoII, IntroEnUnaCasillaPasaALaSiguienteSinMarcar) {
    abrir();
    for (const auto codigo : {Qt::Key_Return, Qt::Key_Enter}) {
        enfocar(u"chklbl1Si");
        sinCambios([&] { tecla(codigo); });
        EXPECT_EQ(foco(), q(u"chklbl1No"));
        EXPECT_FALSE(marcada(u"chklbl1Si"));
    }
}

// What leaves a field that is refused is lost.
TEST_F(PantallaAnexoII, ElClicQueDejaUnCampoMaloNoMarca) {
    for (const auto& una : {u"chklbl1No", u"chklbl2Si", u"chkOpcion"}) {
        abrir();
        escribir(u"numPorcentaje", u"101");
        esperaAviso(155, 156);
        sinCambios([&] { pulsar(una); });
        EXPECT_FALSE(marcada(una));
        EXPECT_EQ(foco(), q(u"numPorcentaje"));
    }
}

TEST_F(PantallaAnexoII, ElClicGuardaAntesElCampoQueDeja) {
    abrir();
    escribir(u"txtDomicilio", u"rue");
    pulsar(u"chklbl2Si");
    EXPECT_EQ(r.DireccionDom, q(u"RUE"));
    EXPECT_EQ(r.OtrosEstablecimientos, q(u"S"));
}

}  // namespace
}  // namespace padral::pruebas
