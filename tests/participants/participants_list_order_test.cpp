// Sorting the participants.

#include "participants/participants_list_fixture.h"

namespace padral::pruebas {
namespace {

class OrdenParticipes : public ListaParticipes {
protected:
    QStringList nombres() { return columna(2); }
    const QString e = q(u"EVA LASA"), lu = q(u"LUIS ABAD"), a = q(u"ANA ZUBI");
};

struct CasoOrden {
    int columna;
    const char16_t *tipo, *flecha, *oculta;
    QStringList nombres;
};

TEST_F(OrdenParticipes, CabeceraYFlechaOrdenan) {
    const CasoOrden casos[] = {{1, u"ASC", u"picasc", u"picdesc", {lu, a, e}},
                               {2, u"ASC", u"picasc", u"picdesc", {a, e, lu}}};
    tres();
    abrir();
    EXPECT_FALSE(visible(u"picasc") || visible(u"picdesc")) << "order of insertion";
    pulsarCelda(3, 1);
    for (const auto& caso : casos) {
        pulsarCabecera(caso.columna);
        EXPECT_EQ(nombres(), caso.nombres) << caso.columna;
        EXPECT_EQ(l.ORDEN, caso.columna);
        EXPECT_EQ(l.TIPOORDEN, q(caso.tipo));
        EXPECT_TRUE(visible(caso.flecha));
        EXPECT_FALSE(visible(caso.oculta));
        const int mitad = c(caso.flecha)->geometry().center().x();
        EXPECT_EQ(rejilla()->horizontalHeader()->logicalIndexAt(mitad), caso.columna);
        EXPECT_EQ(filaMarcada(), nombres().indexOf(a) + 1) << "the row moves with its mark";
        QTest::mouseClick(c(u"picasc"), Qt::LeftButton);
        EXPECT_EQ(l.TIPOORDEN, q(u"DESC"));
        EXPECT_EQ(nombres(), QStringList(caso.nombres.rbegin(), caso.nombres.rend()));
        EXPECT_TRUE(visible(u"picdesc"));
        EXPECT_FALSE(visible(u"picasc"));
        QTest::mouseClick(c(u"picdesc"), Qt::LeftButton);
        EXPECT_EQ(l.TIPOORDEN, q(u"ASC"));
        EXPECT_EQ(nombres(), caso.nombres);
    }
    for (const int c : {3, 4, 5}) {
        pulsarCabecera(c);
        EXPECT_EQ(l.ORDEN, 2) << c;
        EXPECT_EQ(nombres(), casos[1].nombres) << c;
    }
}

TEST_F(OrdenParticipes, ConCtrlYUnNumeroSeOrdenaComoConLaCabecera) {
    tres();
    abrir();
    tecla(Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(nombres(), (QStringList{a, e, lu}));
    tecla(Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(nombres(), (QStringList{lu, a, e}));
    for (const auto codigo : {Qt::Key_0, Qt::Key_3, Qt::Key_4, Qt::Key_5}) {
        tecla(codigo, Qt::ControlModifier);
        EXPECT_EQ(l.ORDEN, 1);
    }
}

TEST_F(OrdenParticipes, ElOrdenEsElDelCastellano) {
    const char16_t* mezclados[] = {u"OÑA", u"nuñez", u"ZALDUA", u"ÁLVAREZ", u"NUNEZ",
                                   u"ÑU",  u"ALVA",  u"alvaro", u"NZA"};
    for (const auto* nombre : mezclados) poner({u"12345678Z", nombre});
    abrir();
    pulsarCabecera(2);
    EXPECT_EQ(nombres(), (QStringList{q(u"ALVA"), q(u"ÁLVAREZ"), q(u"ALVARO"), q(u"NUNEZ"),
                                      q(u"NUÑEZ"), q(u"NZA"), q(u"ÑU"), q(u"OÑA"), q(u"ZALDUA")}));
}

}  // namespace
}  // namespace padral::pruebas
