// The arrow that stands at the answer in hand, and how the focus goes on from box to box.

#include "tax/section5_fixture.h"

namespace padral::pruebas {
namespace {

const QString Flecha = QStringLiteral(" ==>");

struct Vista {
    Edicion edicion;
    const char16_t* iva;
};
void PrintTo(const Vista& v, std::ostream* salida) {
    *salida << (v.edicion == Nueva5 ? "2015 " : "") << s(v.iva);
}

class Foco5 : public PantallaApartado5, public ::testing::WithParamInterface<Vista> {
protected:
    /// Opens with one panel and gives the questions that show.
    std::vector<Pregunta5> abrirVista() {
        r.IVA = q(GetParam().iva);
        abrir(GetParam().edicion);
        std::vector<Pregunta5> vistas;
        for (const auto& p : Preguntas5)
            if (sePregunta(p) && (*p.panel == u'\0' || visible(p.panel))) vistas.push_back(p);
        return vistas;
    }
};

TEST_P(Foco5, AlAbrirCadaSiLlevaSuNumeroYCadaNoNada) {
    for (const auto& p : abrirVista()) {
        const QString numero = q(u"(%1)").arg(p.casilla);
        EXPECT_EQ(rotulo(p.si), foco() == q(p.si) ? Flecha : numero) << s(p.si);
        EXPECT_EQ(rotulo(p.no), QString()) << s(p.no);
    }
    EXPECT_EQ(foco(), q(u"chk1"));
}

TEST_P(Foco5, LaFlechaEstaDondeElFocoYLuegoVuelveElNumero) {
    for (const auto& p : abrirVista()) {
        // The cash criterion changes its number.
        const QString numero = q(p.si) == u"chk55" ? q(u"(111)") : q(u"(%1)").arg(p.casilla);
        enfocar(p.si);
        EXPECT_EQ(rotulo(p.si), Flecha);
        enfocar(p.no);
        EXPECT_EQ(rotulo(p.no), Flecha);
        EXPECT_EQ(rotulo(p.si), numero) << s(p.si);
        c(u"cmdInicio")->setFocus(Qt::TabFocusReason);
        EXPECT_EQ(rotulo(p.no), QString()) << s(p.no);
    }
}

TEST_P(Foco5, ElTabuladorYElIntroSiguenElOrdenDeLectura) {
    for (const auto codigo : {Qt::Key_Tab, Qt::Key_Return, Qt::Key_Enter}) {
        const auto vistas = abrirVista();
        const R5 antes = r;
        for (const auto& p : vistas) {
            EXPECT_EQ(foco(), q(p.si));
            tecla(codigo);
            EXPECT_EQ(foco(), q(p.no));
            tecla(codigo);
        }
        EXPECT_EQ(foco(), q(u"cmdInicio"));
        EXPECT_TRUE(respuestas() == antes) << "moving on is no answer";
        EXPECT_FALSE(r.MODIFAPARTADO5);
    }
}

TEST_P(Foco5, TrasCadaRespuestaElFocoSigue) {
    const auto vistas = abrirVista();
    for (std::size_t i = 0; i < vistas.size(); ++i) {
        const auto& p = vistas[i];
        if (p.respuesta == &R5::IVA) continue;  // its answer shows other boxes
        pulsar(p.si);
        EXPECT_EQ(foco(), q(p.no));
        EXPECT_EQ(rotulo(p.no), Flecha);
        pulsar(p.no);
        EXPECT_EQ(foco(), i + 1 < vistas.size() ? q(vistas[i + 1].si) : q(u"cmdInicio"));
    }
}
INSTANTIATE_TEST_SUITE_P(Vistas, Foco5,
                         ::testing::Values(Vista{Antigua5, u"S"}, Vista{Antigua5, u"N"},
                                           Vista{Antigua5, u" "}, Vista{Nueva5, u"S"},
                                           Vista{Nueva5, u"N"}, Vista{Nueva5, u" "}));

TEST_F(PantallaApartado5, TrasElIvaElFocoEntraEnElPanelAbierto) {
    abrir();
    pulsar(u"chk27");
    EXPECT_EQ(foco(), q(u"chk28"));
    tecla(Qt::Key_Tab);
    EXPECT_EQ(foco(), q(u"chk29"));
    pulsar(u"chk28");
    EXPECT_EQ(foco(), q(u"chk47"));
    pulsar(u"chk28");
    EXPECT_EQ(foco(), q(u"cmdInicio")) << "no panel";
}

}  // namespace
}  // namespace padral::pruebas
