// Saving the participants one by one, by the modes of declaration and participant.

#include "declaration/declaration_fixture.h"
#include "declaration/full_declaration.h"

namespace padral::pruebas {
namespace {

class GuardarParticipes : public ConAlmacen {
protected:
    void SetUp() override {
        ConAlmacen::SetUp();
        generalesValidos(g);
        d.csde = clave = d.GuardarDeclaracion();
    }
    /// "identifier:name" of the stored participants of a declaration, in the order of their keys.
    QStringList guardados(qint32 declaracion) {
        SvrDPadral::FilasDeclaracion filas;
        almacen.Servidor().CargarDeclaracion(declaracion, filas);
        QStringList textos;
        for (int i = 0; i < filas.numParti; ++i)
            textos << filas.participes(2, i).toString().trimmed() + u':' +
                          filas.participes(3, i).toString().trimmed();
        textos.sort();
        return textos;
    }
    /// A participant that the store has already.
    std::shared_ptr<cParticipes> guardado(const char16_t* dni) {
        auto p = ponerParticipe(dni, u"C");
        p->csde = clave;
        p->NOMBRE = QStringLiteral("VIEJO");
        p->AñadirParticipe();
        p->NOMBRE = QStringLiteral("NUEVO");
        return p;
    }
    qint32 clave = 0;
};

struct FilaModo {
    const char16_t *declaracion, *participe;
    bool enAlmacen;  ///< the participant has a key
    const char16_t* resultado;
};
class ModoParticipe : public GuardarParticipes, public ::testing::WithParamInterface<FilaModo> {};

TEST_P(ModoParticipe, DecideLaOperacion) {
    const auto& [modo, modoParticipe, enAlmacen, resultado] = GetParam();
    const auto p = enAlmacen ? guardado(u"12345678Z") : ponerParticipe(u"12345678Z", u"C");
    p->NOMBRE = QStringLiteral("NUEVO");
    p->csde = clave;
    p->Modo = q(modoParticipe);
    d.Modo = q(modo);
    d.GuardarParticipes(clave);
    EXPECT_EQ(guardados(clave).join(u' '), q(resultado));
}

constexpr const char16_t *Nada = u"", *Viejo = u"12345678Z:VIEJO", *Nuevo = u"12345678Z:NUEVO",
                         *Dos = u"12345678Z:NUEVO 12345678Z:VIEJO";
INSTANTIATE_TEST_SUITE_P(
    Filas, ModoParticipe,
    ::testing::Values(FilaModo{u"A", u"A", false, Nuevo}, FilaModo{u"A", u"C", false, Nuevo},
                      FilaModo{u"A", u"E", false, Nada}, FilaModo{u"A", u"A", true, Dos},
                      FilaModo{u"A", u"C", true, Dos}, FilaModo{u"A", u"E", true, Viejo},
                      FilaModo{u"A", u"", false, Nada}, FilaModo{u"C", u"A", false, Nuevo},
                      FilaModo{u"C", u"C", true, Nuevo}, FilaModo{u"C", u"C", false, Nuevo},
                      FilaModo{u"C", u"E", true, Nada}, FilaModo{u"C", u"E", false, Nada},
                      FilaModo{u"C", u"", true, Viejo}, FilaModo{u"C", u"", false, Nada}));

TEST_F(GuardarParticipes, CadaUnoEsElActualPorTurno) {
    ponerParticipe(u"12345678Z", u"A");
    const auto ultimo = ponerParticipe(u"X1234567L", u"A");
    d.Modo = QStringLiteral("A");
    d.GuardarParticipes(clave);
    EXPECT_EQ(d.participantes.ParticipeActual, ultimo);
    EXPECT_EQ(ultimo->csde, clave);
    EXPECT_GT(ultimo->cspa, 0);
    EXPECT_EQ(guardados(clave).size(), 2);
}

TEST_F(GuardarParticipes, LaCopiaTieneLosSuyosYElOrigenGuardaLosSuyos) {
    const auto primero = guardado(u"12345678Z");
    guardado(u"X1234567L");
    d.Modo = QStringLiteral("A");
    d.CargarDeclaracion();
    d.csde = 0;
    ASSERT_EQ(d.NumParti, 2);
    g.NOMBRE = QStringLiteral("COPIA");
    for (const auto& p : d.participantes.colParticipes) {
        EXPECT_EQ(p->Modo.texto(), QStringLiteral("A"));
        p->NOMBRE = QStringLiteral("COPIADO");
    }
    const qint32 copia = d.GuardarDeclaracion();
    d.GuardarParticipes(copia);
    EXPECT_NE(copia, clave);
    EXPECT_EQ(declaracionesGuardadas(), 2);
    EXPECT_EQ(guardados(clave),
              (QStringList{QStringLiteral("12345678Z:VIEJO"), QStringLiteral("X1234567L:VIEJO")}));
    EXPECT_EQ(guardados(copia), (QStringList{QStringLiteral("12345678Z:COPIADO"),
                                             QStringLiteral("X1234567L:COPIADO")}));
}

TEST_F(GuardarParticipes, QuitarElAnexoDeUnaCopiaNoTocaElOrigen) {
    guardado(u"12345678Z");
    d.Modo = QStringLiteral("A");
    d.CargarDeclaracion();
    d.csde = 0;
    BorrarApartado(d, Apartado::AnexoI);
    const qint32 copia = d.GuardarDeclaracion();
    d.GuardarParticipes(copia);
    EXPECT_EQ(guardados(clave).size(), 1);
    EXPECT_EQ(guardados(copia).size(), 0);
}

TEST_F(GuardarParticipes, QuitarElAnexoDeUnaGuardadaLosBorra) {
    guardado(u"12345678Z");
    d.Modo = QStringLiteral("C");
    d.CargarDeclaracion();
    BorrarApartado(d, Apartado::AnexoI);
    d.GuardarParticipes(d.GuardarDeclaracion());
    EXPECT_EQ(guardados(clave).size(), 0);
}

}  // namespace
}  // namespace padral::pruebas
