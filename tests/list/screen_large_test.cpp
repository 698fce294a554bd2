// More declarations than a number of 16 bits counts.

#include "screen_fixture.h"
#include "store/database.h"

namespace padral::pruebas {
namespace {

constexpr int Filas = 40000;

class ListaGrande : public PantallaLista {
protected:
    void SetUp() override {
        SQLite::Database(estado.RutaBDModificacion.toStdString(), SQLite::OPEN_READWRITE)
            .exec(
                "INSERT INTO TDeclaraciones (csde, DNI, NOMBRE, DniMayusculas, NombreMayusculas,"
                " ReferenciaMayusculas, NombreClave, ReferenciaClave)"
                " WITH RECURSIVE n (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 40000)"
                " SELECT i, printf('%08dZ', i), 'N' || i, printf('%08dZ', i), 'N' || i, '',"
                " CAST(printf('%05d', i) AS BLOB), x'' FROM n");
        lista.ORDEN = QStringLiteral("2");
        lista.TIPOORDEN = QStringLiteral("ASC");
        estado.mdi.NUMDECLA = Filas;
    }
};

TEST_F(ListaGrande, CuentaEligeYMarcaLaUltimaFila) {
    lista.csde = Filas;
    abrir(QStringLiteral("P"));
    EXPECT_EQ(lista.NUMDECLASEL, QStringLiteral("40000"));
    EXPECT_EQ(rotulo(u"lblResultado"), QStringLiteral("40000 declaración(es) en la lista. "));
    EXPECT_EQ(BuscarFilaPorValor(*rejilla()->model(), 0, Filas), Filas);
    EXPECT_EQ(lista.csde, Filas);
    EXPECT_EQ(filaMarcada(), Filas);
    EXPECT_EQ(celda(Filas, 2), QStringLiteral("N40000"));
    EXPECT_TRUE(control(u"cmdVerDeclaracion")->isEnabled());
    tecla(Qt::Key_Up);
    EXPECT_EQ(filaMarcada(), Filas - 1);
    EXPECT_EQ(lista.csde, Filas - 1);
}

}  // namespace
}  // namespace padral::pruebas
