// Every control of section 5 by its name, in both editions and languages.

#include <QLabel>

#include "tax/section5_fixture.h"

namespace padral::pruebas {
namespace {

struct Control {
    const char16_t* nombre;
    int caption;
    int ayuda = 0;  ///< 0: no tool tip
};
constexpr Control Controles[] = {
    {u"lbl11", 206},          {u"lbl16", 195},          {u"lbl26", 189},
    {u"Label26", 2},          {u"Label27", 3},          {u"cmdInicio", 670, 671},
    {u"cmdCancelar", 14, 15}, {u"cmdAnterior", 10, 11}, {u"cmdSiguiente", 12, 13},
};

class Controles5 : public PantallaApartado5, public ::testing::WithParamInterface<bool> {
protected:
    void SetUp() override {
        PantallaApartado5::SetUp();
        if (GetParam()) enEuskera();
    }
};

TEST_P(Controles5, ConSuTextoYSuAyuda) {
    for (const auto edicion : {Antigua5, Nueva5}) {
        abrir(edicion);
        for (const auto& control : Controles) {
            SCOPED_TRACE(s(control.nombre));
            auto* w = c(control.nombre);
            ASSERT_TRUE(w);
            // Blanks around a text only made room in a row.
            EXPECT_EQ(w->property("text").toString().trimmed(),
                      estado.Texto(control.caption).trimmed());
            EXPECT_EQ(w->toolTip(), control.ayuda ? estado.Texto(control.ayuda) : QString());
        }
        for (const auto& p : Preguntas5) {
            if (!sePregunta(p)) continue;
            EXPECT_EQ(c<QLabel>(p.etiqueta)->text(), estado.Texto(p.texto).trimmed());
        }
        EXPECT_EQ(c<QGroupBox>(EnAfirmativo)->title(), estado.Texto(194));
        EXPECT_EQ(c<QGroupBox>(EnNegativo)->title(), estado.Texto(188));
        EXPECT_EQ(pantalla->windowTitle(), estado.Texto(187));
    }
}

TEST_P(Controles5, CadaCasillaDiceQueRespuestaEsDeQuePregunta) {
    for (const auto edicion : {Antigua5, Nueva5}) {
        abrir(edicion);
        for (const auto& p : Preguntas5) {
            if (!sePregunta(p)) continue;
            QString pregunta = estado.Texto(p.texto).trimmed();
            if (pregunta.startsWith(u"- ")) pregunta.remove(0, 2);
            EXPECT_EQ(c(p.si)->accessibleName(), pregunta + (GetParam() ? q(u" Bai") : q(u" Sí")));
            EXPECT_EQ(c(p.no)->accessibleName(), pregunta + (GetParam() ? q(u" Ez") : q(u" No")));
        }
        for (auto* w : pantalla->findChildren<QWidget*>()) {
            if ((w->focusPolicy() & Qt::TabFocus) == 0) continue;
            EXPECT_FALSE(w->accessibleName().isEmpty()) << w->objectName().toStdString();
        }
    }
}
INSTANTIATE_TEST_SUITE_P(Idiomas, Controles5, ::testing::Bool(),
                         [](const auto& i) { return i.param ? "Euskera" : "Castellano"; });

TEST_F(PantallaApartado5, TextosDelImpreso) {
    r.IVA = q(u"S");
    abrir();
    EXPECT_EQ(pantalla->windowTitle(),
              q(u"APARTADO 5.SITUACIÓN TRIBUTARIA Y DECLARACIONES LIQUIDACIONES"));
    EXPECT_EQ(c<QLabel>(u"Label26")->text(), q(u"SI"));
    EXPECT_EQ(c<QLabel>(u"Label27")->text(), q(u"NO"));
    EXPECT_EQ(c<QLabel>(u"lbl1")->text(), q(u"¿Tiene la condición de Gran Empresa?"));
    EXPECT_EQ(c<QLabel>(u"lbl22")->text(),
              q(u"- ¿Está incluido en el Régimen Especial de Bienes Usados, Arte, etc. "
                u"deteminación Global del Margen de Beneficio?"));
    EXPECT_EQ(c<QLabel>(u"lbl30")->text(),
              q(u"- ¿Le es aplicable la Ley 12/81 del concierto Económico?"));
}

TEST_F(PantallaApartado5, LasEdicionesSeDistinguenEnDosPreguntas) {
    const auto soloAntigua = {u"Frame9",  u"chk23", u"chk24", u"lbl13",
                              u"Frame16", u"chk35", u"chk36", u"lbl20"};
    abrir(Antigua5);
    EXPECT_EQ(pantalla->objectName(), q(u"frmApartado5"));
    EXPECT_EQ(pantalla->findChildren<QCheckBox*>().size(), 56);
    for (const auto* nombre : soloAntigua) EXPECT_TRUE(hay(nombre)) << s(nombre);
    EXPECT_TRUE(c(u"Frame9")->isAncestorOf(c(u"chk24")));
    EXPECT_TRUE(c(u"Frame16")->isAncestorOf(c(u"chk35")));
    g.FECHAVIGOR = 0;
    abrir(Nueva5);
    EXPECT_EQ(pantalla->objectName(), q(u"frmApartado5_2015"));
    EXPECT_EQ(pantalla->findChildren<QCheckBox*>().size(), 52);
    for (const auto* nombre : soloAntigua) EXPECT_FALSE(hay(nombre)) << s(nombre);
    for (const auto* etiqueta : pantalla->findChildren<QLabel*>())
        for (const int id : {204, 198})
            EXPECT_NE(etiqueta->text(), estado.Texto(id)) << etiqueta->objectName().toStdString();
}

TEST_F(PantallaApartado5, CadaPreguntaEstaEnSuPanelJuntoASusCasillas) {
    for (const auto* iva : {u"S", u"N"}) {
        r.IVA = q(iva);
        abrir();
        for (const auto& p : Preguntas5) {
            SCOPED_TRACE(s(p.etiqueta));
            for (const auto* nombre : {p.etiqueta, p.si, p.no})
                for (const auto* panel : {EnAfirmativo, EnNegativo})
                    EXPECT_EQ(c(panel)->isAncestorOf(c(nombre)), q(panel) == q(p.panel));
            EXPECT_EQ(c<QLabel>(p.etiqueta)->buddy(), c(p.si));
            if (!visible(p.etiqueta)) continue;
            const auto lugar = [&](const char16_t* nombre) {
                return QRect(c(nombre)->mapTo(pantalla.get(), QPoint()), c(nombre)->size());
            };
            EXPECT_LT(lugar(p.etiqueta).right(), lugar(p.si).left());
            EXPECT_LT(lugar(p.si).right(), lugar(p.no).left());
            EXPECT_LE(lugar(p.etiqueta).top(), lugar(p.si).center().y());
            EXPECT_GE(lugar(p.etiqueta).bottom(), lugar(p.si).center().y());
        }
    }
}

TEST_F(PantallaApartado5, LasCasillasEstanBajoSuCabecera) {
    for (const auto* iva : {u"S", u"N"}) {
        r.IVA = q(iva);
        abrir();
        const auto izquierda = [&](const char16_t* nombre) {
            return c(nombre)->mapTo(pantalla.get(), QPoint()).x();
        };
        std::set<int> si, no;
        for (const auto& p : Preguntas5)
            if (visible(p.si)) {
                si.insert(izquierda(p.si));
                no.insert(izquierda(p.no));
            }
        // Two columns of questions, the panels' in line with those above.
        EXPECT_EQ(si, (std::set<int>{izquierda(u"Label26"), izquierda(u"Label26b")}));
        EXPECT_EQ(no, (std::set<int>{izquierda(u"Label27"), izquierda(u"Label27b")}));
    }
}

}  // namespace
}  // namespace padral::pruebas
