// The participants of the list to the store and back, and how a table of rows becomes their
// collection.

#include "participants/participants_list_fixture.h"

namespace padral::pruebas {
namespace {

class GuardadosDeLaLista : public ListaParticipes {
protected:
    /// Stores the declaration and its participants, and opens it again.
    void guardarYReabrir() {
        const qint32 clave = d.GuardarDeclaracion();
        d.GuardarParticipes(clave);
        d.InicializarDeclaracion();
        d.Modo = q(u"C");
        d.csde = clave;
        d.CargarDeclaracion();
        abrir();
    }
    static Fila fila(int cspa, const char16_t* dni, int postal, int municipio) {
        return {cspa,          12,      q(dni),  q(u"NOMBRE"), q(u"CL"),  q(u"MAYOR"), 7,
                q(u"B"),       q(u"1"), q(u"2"), q(u"IZ"),     943000000, postal,      municipio,
                q(u"POBLADO"), 33.25F,  q(u"O"), q(u"R"),      q(u"A"),   q(u" ")};
    }
};

TEST_F(GuardadosDeLaLista, LosCienVuelvenEnSuOrden) {
    d.Modo = q(u"A");
    poner(100);
    QStringList esperados;
    for (int i = 0; i < 100; ++i) esperados << QStringLiteral("%1T").arg(i, 8, 10, QChar(u'0'));
    guardarYReabrir();
    EXPECT_EQ(columna(1), esperados);
    EXPECT_EQ(coleccion(), esperados);
    EXPECT_EQ(d.NumParti, 100);
    EXPECT_EQ(g.NumParti, 100);
    EXPECT_EQ(l.NUMPARTLIST, 100);
    EXPECT_EQ(rotulo(u"lblResultado"), q(u"100 partícipe(s) en la lista. "));
    EXPECT_FALSE(habilitado(u"CmdNuevo"));
    EXPECT_FALSE(habilitado(u"PicNuevo"));
    // One less, and there is room again after the next save too.
    eliminar(1);
    EXPECT_TRUE(habilitado(u"CmdNuevo"));
    guardarYReabrir();
    EXPECT_EQ(columna(1), esperados.mid(1));
    EXPECT_TRUE(habilitado(u"CmdNuevo"));
}

TEST_F(GuardadosDeLaLista, ElQueVuelveAEntrarQuedaElUltimo) {
    d.Modo = q(u"A");
    tres();
    guardarYReabrir();
    EXPECT_EQ(columna(1), (QStringList{q(u"X1234567L"), q(u"12345678Z"), q(u"A12345674")}));
    eliminar(2);
    poner({u"12345678Z", u"LUIS BERRI"});
    EXPECT_EQ(coleccion(),
              (QStringList{q(u"X1234567L"), q(u"A12345674"), q(u"12345678Z E"), q(u"12345678Z")}));
    guardarYReabrir();
    EXPECT_EQ(columna(1), (QStringList{q(u"X1234567L"), q(u"A12345674"), q(u"12345678Z")}));
    EXPECT_EQ(columna(2), (QStringList{q(u"EVA LASA"), q(u"ANA ZUBI"), q(u"LUIS BERRI")}));
}

// One that was only changed keeps its place.
TEST_F(GuardadosDeLaLista, ElCambiadoNoSeMueve) {
    d.Modo = q(u"A");
    tres();
    guardarYReabrir();
    d.participantes.colParticipes[0]->NOMBRE = q(u"ZOE LASA");
    guardarYReabrir();
    EXPECT_EQ(columna(2), (QStringList{q(u"ZOE LASA"), q(u"LUIS ABAD"), q(u"ANA ZUBI")}));
}

TEST_F(GuardadosDeLaLista, SeCarganLosQueCuentanLosGenerales) {
    Tabla filas;
    for (const auto* dni : {u"12345678Z", u"X1234567L", u"A12345674"})
        filas.Anadir(fila(filas.Filas() + 5, dni, 20001, 1));
    const std::pair<qint16, QStringList> casos[] = {
        {qint16{2}, {q(u"12345678Z"), q(u"X1234567L")}},
        {qint16{0}, {}},
        {qint16{1}, {q(u"12345678Z")}},
        {qint16{3}, {q(u"12345678Z"), q(u"X1234567L"), q(u"A12345674")}}};
    for (const auto& [cuenta, esperados] : casos) {
        g.NumParti = cuenta;
        l.CargarDatos(filas);
        EXPECT_EQ(coleccion(), esperados);
        EXPECT_EQ(d.NumParti, cuenta);
    }
}

struct CasoPostal {
    int postal;
    qint16 provincia;
    const char16_t *nombre, *municipio;
};

TEST_F(GuardadosDeLaLista, LaProvinciaSaleDelPostal) {
    const CasoPostal casos[] = {{1005, 1, u"Álava", u"POBLADO"},
                                {20001, 20, u"Kelmaria", u"Aldabarri"},
                                {28999, 28, u"Madrid", u"POBLADO"},
                                {0, 0, u"", u"POBLADO"}};
    for (const auto& caso : casos) {
        Tabla filas;
        filas.Anadir(fila(5, u"12345678Z", caso.postal, 1));
        g.NumParti = 1;
        l.CargarDatos(filas);
        ASSERT_EQ(d.participantes.colParticipes.size(), 1U);
        const auto& p = *d.participantes.colParticipes[0];
        EXPECT_EQ(p.CodigoProvincia(), caso.provincia) << caso.postal;
        EXPECT_EQ(p.NombreProvincia, q(caso.nombre)) << caso.postal;
        EXPECT_EQ(p.NombMun, q(caso.municipio)) << caso.postal;
        EXPECT_EQ(p.CodPostal, caso.postal);
    }
}

}  // namespace
}  // namespace padral::pruebas
