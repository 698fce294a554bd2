// The collection of search criteria.

#include "core/criteria_table.h"

#include "sections/record_checks.h"

namespace padral::pruebas {
namespace {

/// "1:a 2:b" for the pairs in their order.
QString contenido(const TablaCriterios& tabla) {
    QStringList partes;
    for (qint16 pos = 1; pos <= tabla.TS_COUNT(); ++pos) {
        qint16 clave = 0;
        QString texto;
        tabla.TS_ELEMENTO(pos, clave, texto);
        partes << QStringLiteral("%1:%2").arg(clave).arg(texto);
    }
    return partes.join(u' ');
}

TablaCriterios tres() {
    TablaCriterios tabla;
    tabla.TS_AÑADIR(4, q(u"a"));
    tabla.TS_AÑADIR(2, q(u"b"));
    tabla.TS_AÑADIR(1, q(u"c"));
    return tabla;
}

TEST(TablaCriterios, VaciaCuentaCero) {
    TablaCriterios tabla;
    EXPECT_EQ(tabla.TS_COUNT(), 0);
    EXPECT_EQ(tabla.TS_PERTENECE(0), 0);
    EXPECT_EQ(tabla.TS_PERTENECE(1), 0);
}

TEST(TablaCriterios, AnadeAlFinal) { EXPECT_EQ(contenido(tres()), q(u"4:a 2:b 1:c")); }

TEST(TablaCriterios, InsertaYSubeLosDemas) {
    const struct {
        qint16 pos;
        const char16_t* esperado;
    } casos[] = {{1, u"9:n 4:a 2:b 1:c"}, {2, u"4:a 9:n 2:b 1:c"}, {4, u"4:a 2:b 1:c 9:n"}};
    for (const auto& caso : casos) {
        auto tabla = tres();
        tabla.TS_INSERTAR(caso.pos, 9, q(u"n"));
        EXPECT_EQ(contenido(tabla), q(caso.esperado));
    }
}

TEST(TablaCriterios, Modifica) {
    auto tabla = tres();
    tabla.TS_MODIFICAR(2, 3, q(u"z"));
    EXPECT_EQ(contenido(tabla), q(u"4:a 3:z 1:c"));
}

TEST(TablaCriterios, BorraYBajaLosDemas) {
    const struct {
        qint16 pos;
        const char16_t* esperado;
    } casos[] = {{1, u"2:b 1:c"}, {2, u"4:a 1:c"}, {3, u"4:a 2:b"}};
    for (const auto& caso : casos) {
        auto tabla = tres();
        tabla.TS_BORRAR(caso.pos);
        EXPECT_EQ(tabla.TS_COUNT(), 2);
        EXPECT_EQ(contenido(tabla), q(caso.esperado));
    }
}

TEST(TablaCriterios, PerteneceDaLaPrimeraPosicion) {
    auto tabla = tres();
    tabla.TS_AÑADIR(2, q(u"d"));
    EXPECT_EQ(tabla.TS_PERTENECE(2), 2);
    EXPECT_EQ(tabla.TS_PERTENECE(1), 3);
    EXPECT_EQ(tabla.TS_PERTENECE(7), 0);
}

TEST(TablaCriterios, ClearVacia) {
    auto tabla = tres();
    tabla.TS_CLEAR();
    EXPECT_EQ(tabla.TS_COUNT(), 0);
    EXPECT_EQ(tabla.TS_PERTENECE(4), 0);
}

TEST(TablaCriterios, PosicionDeFueraNoCambiaNada) {
    for (const qint16 pos : {qint16{0}, qint16{4}, qint16{-1}}) {
        auto tabla = tres();
        tabla.TS_MODIFICAR(pos, 9, q(u"n"));
        tabla.TS_BORRAR(pos);
        qint16 clave = 77;
        QString texto = q(u"igual");
        tabla.TS_ELEMENTO(pos, clave, texto);
        EXPECT_EQ(contenido(tabla), q(u"4:a 2:b 1:c"));
        EXPECT_EQ(clave, 77);
        EXPECT_EQ(texto, q(u"igual"));
    }
}

}  // namespace
}  // namespace padral::pruebas
