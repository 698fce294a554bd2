// The 28 pairs of boxes of section 5: what a click puts into the record and what it shows.

#include "tax/section5_fixture.h"

namespace padral::pruebas {
namespace {

struct Fila5 {
    Pregunta5 pregunta;
    Edicion edicion;
};
void PrintTo(const Fila5& f, std::ostream* salida) {
    *salida << s(f.pregunta.etiqueta) << (f.edicion == Nueva5 ? " 2015" : "");
}

std::vector<Fila5> filas() {
    std::vector<Fila5> todas;
    for (const auto& p : Preguntas5) {
        todas.push_back({p, Antigua5});
        if (!p.soloAntigua) todas.push_back({p, Nueva5});
    }
    return todas;
}

class Parejas5 : public PantallaApartado5, public ::testing::WithParamInterface<Fila5> {
protected:
    const Pregunta5& p() const { return GetParam().pregunta; }
    /// Both boxes and the record, which the click before has changed.
    void espera(const char16_t* respuesta) {
        EXPECT_EQ((r.*p().respuesta).texto(), q(respuesta));
        EXPECT_EQ(marcada(p().si), q(respuesta) == u"S");
        EXPECT_EQ(marcada(p().no), q(respuesta) == u"N");
        EXPECT_TRUE(std::exchange(r.MODIFAPARTADO5, false));
    }
};

TEST_P(Parejas5, SiNoYLaSegundaVezNinguna) {
    abrirPanelDe(p());
    abrir(GetParam().edicion);
    const R5 antes = r;
    const std::pair<const char16_t*, const char16_t*> pasos[] = {{p().si, u"S"}, {p().no, u"N"},
                                                                 {p().si, u"S"}, {p().si, u" "},
                                                                 {p().no, u"N"}, {p().no, u" "}};
    for (const auto& [casilla, queda] : pasos) {
        pulsar(casilla);
        espera(queda);
        if (p().respuesta == &R5::IVA) continue;  // that pair has a table of its own
        R5 esperado = antes;
        esperado.*p().respuesta = q(queda);
        EXPECT_TRUE(respuestas() == esperado) << "another answer has changed";
    }
    EXPECT_FALSE(r.APARTADO5LLENO);
    EXPECT_FALSE(estado.ModificacionesPendientes);
}

TEST_P(Parejas5, ConElTeclado) {
    abrirPanelDe(p());
    r.*p().respuesta = Letra();
    const bool esIva = p().respuesta == &R5::IVA;
    abrir(GetParam().edicion);
    enfocar(p().si);
    tecla(Qt::Key_Space);
    espera(u"S");
    EXPECT_EQ(foco(), q(p().no)) << "the focus moves on after an answer";
    tecla(Qt::Key_Space);
    espera(u"N");
    EXPECT_NE(foco(), q(p().no));
    if (esIva) {
        EXPECT_EQ(foco(), q(u"chk47")) << "into the panel that has just opened";
    }
}

TEST_P(Parejas5, SeMuestraLoGuardado) {
    for (const auto* valor : {u"S", u"N", u" ", u"s", u"X"}) {
        abrirPanelDe(p());
        r.*p().respuesta = q(valor);
        abrir(GetParam().edicion);
        EXPECT_EQ(marcada(p().si), q(valor) == u"S") << s(valor);
        EXPECT_EQ(marcada(p().no), q(valor) == u"N") << s(valor);
        EXPECT_EQ((r.*p().respuesta).texto(), q(valor));
        for (const auto& otra : Preguntas5) {
            if (otra.respuesta == p().respuesta || otra.respuesta == &R5::IVA || !sePregunta(otra))
                continue;
            EXPECT_FALSE(marcada(otra.si) || marcada(otra.no)) << s(otra.etiqueta);
        }
    }
}
INSTANTIATE_TEST_SUITE_P(Filas, Parejas5, ::testing::ValuesIn(filas()));

TEST_F(PantallaApartado5, UnaRespuestaQueNoEsNiSiNiNoSeCambiaPorLaPulsada) {
    r.GRANEMPRESA = q(u"s");
    r.SOCIEDADES = q(u"X");
    abrir();
    pulsar(u"chk1");
    EXPECT_EQ(r.GRANEMPRESA.texto(), q(u"S"));
    pulsar(u"chk4");
    EXPECT_EQ(r.SOCIEDADES.texto(), q(u"N"));
}

TEST_F(PantallaApartado5, UnaPulsacionDuranteElRefrescoNoCambiaNada) {
    abrir();
    r.GRANEMPRESA = q(u"S");  // the next refresh ticks its box
    int durante = 0;
    QObject::connect(c<QCheckBox>(u"chk1"), &QCheckBox::toggled, pantalla.get(), [&] {
        ++durante;
        c<QCheckBox>(u"chk3")->click();
        c<QCheckBox>(u"chk28")->click();
    });
    pulsar(u"chk8");
    EXPECT_EQ(durante, 1);
    R5 esperado;
    esperado.GRANEMPRESA = q(u"S");
    esperado.EXENTASOCI = q(u"N");
    EXPECT_TRUE(respuestas() == esperado);
    EXPECT_FALSE(marcada(u"chk3"));
    EXPECT_FALSE(marcada(u"chk28"));
    EXPECT_FALSE(visible(EnNegativo));
}

// The row of the box clicked has been refreshed already: nothing else would set it right.
TEST_F(PantallaApartado5, UnaPulsacionEnUnaFilaYaRefrescadaNoCambiaNada) {
    for (const auto* guardado : {u" ", u"S", u"N"}) {
        poner(u" ");
        r.GRANEMPRESA = q(guardado);
        abrir();
        r.SOCIEDADES = q(u"S");  // the next refresh ticks its box
        int durante = 0;
        QObject::connect(c<QCheckBox>(u"chk3"), &QCheckBox::toggled, pantalla.get(), [&] {
            ++durante;
            c<QCheckBox>(u"chk1")->click();
            c<QCheckBox>(u"chk2")->click();
        });
        pulsar(u"chk8");
        EXPECT_EQ(durante, 1);
        EXPECT_EQ(r.GRANEMPRESA.texto(), q(guardado));
        EXPECT_EQ(marcada(u"chk1"), q(guardado) == u"S") << s(guardado);
        EXPECT_EQ(marcada(u"chk2"), q(guardado) == u"N") << s(guardado);
    }
}

TEST_F(PantallaApartado5, AbrirNoEsCambiar) {
    r.MODIFAPARTADO5 = true;
    r.APARTADO5LLENO = true;
    abrir();
    EXPECT_FALSE(r.MODIFAPARTADO5);
    EXPECT_TRUE(r.APARTADO5LLENO);
    EXPECT_TRUE(respuestas() == R5());
}

// ------------------------------------------------------------------------------------- modules

TEST_F(PantallaApartado5, Desde2014NoSePreguntaPorModulos) {
    for (const qint32 fecha : {20140101, 20141231}) {
        r.IRPFOBJETIVA = q(u"S");
        abrir(Antigua5, fecha);
        EXPECT_EQ(r.IRPFOBJETIVA.texto(), q(u"N"));
        EXPECT_FALSE(r.MODIFAPARTADO5);
        for (const auto* nombre : {u"chk23", u"chk24", u"lbl13"})
            EXPECT_FALSE(visible(nombre)) << s(nombre);
        for (const auto* nombre : {u"lbl11", u"chk21", u"chk25"})
            EXPECT_TRUE(visible(nombre)) << s(nombre);
        enfocar(u"chk22");
        tecla(Qt::Key_Tab);
        EXPECT_EQ(foco(), q(u"chk25"));
        for (const auto* valor : {u"S", u" "}) {
            r.IRPFOBJETIVA = q(valor);
            pulsar(u"chk1");
            EXPECT_EQ(r.IRPFOBJETIVA.texto(), q(u"N")) << "each click says so again";
        }
    }
}

TEST_F(PantallaApartado5, Antes2014SePreguntaPorModulos) {
    r.IRPFOBJETIVA = q(u"S");
    abrir(Antigua5, 20131231);
    for (const auto* nombre : {u"chk23", u"chk24", u"lbl13"})
        EXPECT_TRUE(visible(nombre)) << s(nombre);
    pulsar(u"chk1");
    EXPECT_EQ(r.IRPFOBJETIVA.texto(), q(u"S"));
}

TEST_F(PantallaApartado5, LaEdicionDe2015DejaLosModulosComoEstaban) {
    for (const auto* valor : {u"S", u" "}) {
        r.IRPFOBJETIVA = q(valor);
        abrir(Nueva5, 20150101);
        pulsar(u"chk1");
        pulsar(u"chk27");
        EXPECT_EQ(r.IRPFOBJETIVA.texto(), q(valor));
    }
}

// ----------------------------------------------------------------------------------- next one

TEST_F(PantallaApartado5, SiguienteSoloConAlgunApartadoDetras) {
    QString DatosGeneralesStore::*const marcas[] = {
        &DatosGeneralesStore::Apartado6, &DatosGeneralesStore::Apartado7,
        &DatosGeneralesStore::AnexoI, &DatosGeneralesStore::AnexoII};
    for (const auto edicion : {Antigua5, Nueva5}) {
        g.Apartado2 = g.Apartado3 = g.Apartado4 = g.Apartado5 = q(u"X");
        abrir(edicion);
        EXPECT_FALSE(habilitado(u"cmdSiguiente"));
        EXPECT_FALSE(habilitado(u"PicSiguiente"));
        EXPECT_TRUE(visible(u"cmdSiguiente"));
        for (const auto* otro : {u"cmdAnterior", u"cmdInicio", u"cmdCancelar"})
            EXPECT_TRUE(habilitado(otro));
        for (const auto marca : marcas) {
            g.*marca = q(u"X");
            abrir(edicion);
            EXPECT_TRUE(habilitado(u"cmdSiguiente"));
            EXPECT_TRUE(habilitado(u"PicSiguiente"));
            g.*marca = q(u" ");
            pulsar(u"chk1");
            EXPECT_FALSE(habilitado(u"cmdSiguiente")) << "each click looks again";
            EXPECT_FALSE(habilitado(u"PicSiguiente"));
        }
    }
}

}  // namespace
}  // namespace padral::pruebas
