// The declarations list over a data file.

#include <gtest/gtest.h>

#include "store/list/dec_lista.h"
#include "support/recorders.h"
#include "support/store_fixture.h"

namespace padral {
namespace {

class ConsultaLista : public ::testing::Test {
protected:
    ConsultaLista() {
        a = almacen.Guardar({QStringLiteral("12345678Z"), QStringLiteral("NÚÑEZ ANA"),
                             QStringLiteral("R2"), 20020101, QStringLiteral("I")});
        b = almacen.Guardar({QStringLiteral("A12345674"), QStringLiteral("nuevo sol"),
                             QStringLiteral("R1"), 20030101, QStringLiteral("M")});
        c = almacen.Guardar({QStringLiteral("X1234567L"), QStringLiteral("GARCIA LUIS"),
                             QStringLiteral("S1"), 20040101, QStringLiteral("C")});
    }
    /// The keys that the list shows now.
    std::vector<qint32> claves() {
        SvrDPadral::ListaDeclaraciones filas;
        lista.Consultar(filas);
        std::vector<qint32> resultado;
        for (int i = 0; i < filas.Filas(); ++i) resultado.push_back(filas.csde(i));
        EXPECT_EQ(lista.NUMDECLASEL, QString::number(filas.Filas()));
        return resultado;
    }
    using Claves = std::vector<qint32>;

    pruebas::GrabadorAvisos avisos;
    pruebas::RelojFijo reloj;
    EstadoCompartido estado{avisos, reloj};
    pruebas::AlmacenPrueba almacen{estado};
    cDecLista lista{estado};
    qint32 a = 0, b = 0, c = 0;
};

TEST_F(ConsultaLista, OrdenDeCadaColumna) {
    lista.OrdenarPor(1);
    EXPECT_EQ(claves(), (Claves{a, b, c}));
    lista.OrdenarPor(2);
    EXPECT_EQ(claves(), (Claves{c, b, a}));  // Ñ after N, case ignored
    lista.OrdenarPor(3);
    EXPECT_EQ(claves(), (Claves{b, a, c}));
    lista.OrdenarPor(4);
    EXPECT_EQ(claves(), (Claves{c, b, a}));
    lista.InvertirOrden();
    EXPECT_EQ(claves(), (Claves{a, b, c}));
}

TEST_F(ConsultaLista, CadaCriterio) {
    lista.OrdenarPor(1);
    lista.GuardarCriterio(1, QStringLiteral("A"));
    EXPECT_EQ(claves(), (Claves{b, c}));
    lista.GuardarCriterio(2, QStringLiteral("NUE"));
    EXPECT_EQ(claves(), (Claves{b}));
    lista.TS_CLEAR();
    lista.GuardarCriterio(3, QStringLiteral("R"));
    EXPECT_EQ(claves(), (Claves{a, b}));
    lista.TS_CLEAR();
    lista.GuardarCriterio(4, QStringLiteral("01/01/2003"));
    EXPECT_EQ(claves(), (Claves{b, c}));
    lista.GuardarCriterio(2, QStringLiteral("ZZ"));
    EXPECT_EQ(claves(), Claves{});
}

TEST_F(ConsultaLista, EliminarQuitaDeclaracionYParticipes) {
    Fila participe(20);
    participe[1] = b;
    Tabla tabla(20);
    tabla.Anadir(participe);
    almacen.Servidor().AñadirParticipe(tabla);
    SvrDPadral::FilasDeclaracion filas;
    almacen.Servidor().CargarDeclaracion(b, filas);
    EXPECT_EQ(filas.numParti, 1);
    lista.EliminarParticipes(b);
    almacen.Servidor().CargarDeclaracion(b, filas);
    EXPECT_EQ(filas.numParti, 0);
    lista.EliminarDeclaracion(b);
    lista.OrdenarPor(1);
    EXPECT_EQ(claves(), (Claves{a, c}));
}

}  // namespace
}  // namespace padral
