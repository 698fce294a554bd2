// The participants of a copied declaration on their roads; those of its source stay as they are.

#include "participants/participant_roads_fixture.h"

namespace padral::pruebas {

namespace {

class CaminosDeUnaCopia : public ConCaminos {
protected:
    void SetUp() override {
        ConCaminos::SetUp();
        original = unica();
        antes = filas(original);
        copiar();
    }
    /// Stores the copy from the list of its participants; its rows, and those of its source.
    void esperaTrasGuardar(const QStringList& esperados) {
        guardar();
        esperaGuardado(esperados);
    }
    void esperaGuardado(const QStringList& esperados) {
        const auto claves = declaraciones();
        ASSERT_EQ(claves.size(), 2);
        ASSERT_EQ(claves[0], original);
        copia = claves[1];
        EXPECT_EQ(guardados(copia), esperados);
        EXPECT_EQ(filas(original), antes) << "the source, key by key";
        EXPECT_EQ(cuantasFilas(), 2 + esperados.size());
    }
    qint32 original = 0, copia = 0;
    Filas antes;
};

TEST_F(CaminosDeUnaCopia, SinTocarlosVanTodos) {
    pulsar({u"cmdInicio"});
    escribir({{u"txtNombre", u"Aldabe berriak"}});
    pulsar({u"cmdAceptar"});
    esperaGuardado({ane, jon});
}

TEST_F(CaminosDeUnaCopia, UnoCambiado) {
    cambiar(Jon, u"txtNombre", u"Jon Kopia");
    esperaTrasGuardar({ane, q(u"X1234567L JON KOPIA 40")});
}

TEST_F(CaminosDeUnaCopia, UnoBorrado) {
    eliminar(Jon);
    cambiar(Ane, u"txtPorcentaje", u"100");
    guardarUno();
    esperaGuardado({q(u"12345678Z ANE 100")});
}

TEST_F(CaminosDeUnaCopia, UnoNuevo) {
    cambiar(Jon, u"txtPorcentaje", u"15,5");
    anadir({u"E12345674", u"LASA", u"24,5"});
    esperaTrasGuardar({ane, q(u"E12345674 LASA 24.5"), q(u"X1234567L JON 15.5")});
}

TEST_F(CaminosDeUnaCopia, UnoBorradoYOtraVezDentro) {
    eliminar(Jon);
    anadir({Jon.dni, u"JON BERRI", u"40"});
    esperaTrasGuardar({ane, q(u"X1234567L JON BERRI 40")});
}

TEST_F(CaminosDeUnaCopia, ElUltimoBorrado) {
    eliminar(Ane);
    eliminar(Jon);
    pulsar({u"cmdAceptar"});
    esperaGuardado({});
}

TEST_F(CaminosDeUnaCopia, UnoNuevoYBorradoSinGuardar) {
    anadir({u"E12345674", u"LASA", u"10"});
    eliminar({u"E12345674", u"LASA", u"10"});
    esperaTrasGuardar({ane, jon});
}

// Once stored, a copy is a declaration like others: its participants keep the keys they got.
TEST_F(CaminosDeUnaCopia, YaGuardadaConservaSusClaves) {
    cambiar(Jon, u"txtNombre", u"Jon Kopia");
    esperaTrasGuardar({ane, q(u"X1234567L JON KOPIA 40")});
    const QList<qint32> claves = filas(copia).keys();
    guia().Ordenar(QStringLiteral("Abrir"));
    const auto* tabla = guia().Busca<QAbstractItemView>(QStringLiteral("flxDeclaraciones"));
    const int fila = tabla->model()->index(0, 0).data().toInt() == copia ? 0 : 1;
    guia().PulsarCelda(QStringLiteral("flxDeclaraciones"), fila, 2);
    pulsar({u"cmdVerDeclaracion", u"cmdAnexo"});
    ASSERT_EQ(programa_->declaracion().csde, copia);
    cambiar(Ane, u"txtNombre", u"Ane Kopia");
    esperaTrasGuardar({q(u"12345678Z ANE KOPIA 60"), q(u"X1234567L JON KOPIA 40")});
    EXPECT_EQ(filas(copia).keys(), claves);
}

}  // namespace

}  // namespace padral::pruebas
