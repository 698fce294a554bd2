// A declaration on its way to the store and back, through real files.

#include "declaration/declaration_fixture.h"
#include "declaration/full_declaration.h"

namespace padral::pruebas {
namespace {

class IdaYVuelta : public ConAlmacen {
protected:
    qint32 guardarTodo() {
        d.Modo = QStringLiteral("A");
        llenarTodo(d);
        d.MarcarApartados();
        return d.GuardarDeclaracion();
    }
    /// Every section of one aggregate is that of the other, filled flags included.
    static void mismasSecciones(const cDeclaraciones& una, const cDeclaraciones& otra) {
        for (const auto a : SeccionesConRegistro) {
            EXPECT_EQ(filaDe(una, a), filaDe(otra, a)) << static_cast<int>(a);
            EXPECT_EQ(lleno(una, a), lleno(otra, a)) << static_cast<int>(a);
        }
    }
};

TEST_F(IdaYVuelta, TodosLosApartadosValorPorValor) {
    const qint32 clave = guardarTodo();
    EXPECT_GT(clave, 0);
    EXPECT_EQ(d.csde, 0) << "saving does not change the key of the open declaration";
    OtraRun otra(estado);
    otra.d.csde = clave;
    otra.d.Modo = QStringLiteral("C");
    otra.d.CargarDeclaracion();
    mismasSecciones(d, otra.d);
    Fila general = g.ObtenerDatos();
    general[0] = clave;
    general[17] = QStringLiteral("X");
    EXPECT_EQ(otra.d.general.ObtenerDatos(), general);
    EXPECT_EQ(otra.d.general.ObtenerDatos()[12].toString(), QStringLiteral("XXXXXX X"));
    EXPECT_FALSE(otra.d.HayModificaciones());
}

TEST_F(IdaYVuelta, AlAbrirOtraNadaQuedaDeLaAnterior) {
    generalesValidos(g);
    const qint32 vacia = d.GuardarDeclaracion();
    OtraRun otra(estado);
    otra.d.csde = guardarTodo();
    otra.d.CargarDeclaracion();
    otra.d.anexoII.CodigoProvincia = 28;
    for (auto* bloque : {&otra.d.apartado2.Fis, &otra.d.apartado2.Not, &otra.d.apartado3.Act})
        bloque->CodigoProvincia = 28;
    otra.d.parLista.BUSQUEDA = QStringLiteral("B");
    otra.d.parLista.MODIFLISTAPART = true;
    otra.d.csde = vacia;
    otra.d.CargarDeclaracion();
    EXPECT_EQ(otra.d.anexoII.CodigoProvincia, 0);
    EXPECT_EQ(otra.d.anexoII.NombreProvincia, QString());
    for (const auto* bloque : {&otra.d.apartado2.Fis, &otra.d.apartado2.Not, &otra.d.apartado3.Act})
        EXPECT_EQ(bloque->CodigoProvincia, 0);
    EXPECT_EQ(otra.d.parLista.BUSQUEDA, QStringLiteral("N"));
    EXPECT_FALSE(otra.d.parLista.MODIFLISTAPART);
}

TEST_F(IdaYVuelta, VacioYBlancoSonDistintos) {
    generalesValidos(g);
    g.NumeroArchivo = QString();
    g.NombreAnterior = QStringLiteral(" ");
    d.apartado3.ActVenMov = QStringLiteral(" ");
    d.apartado3.SocPat = QString();
    const qint32 clave = d.GuardarDeclaracion();
    OtraRun otra(estado);
    otra.d.csde = clave;
    otra.d.CargarDeclaracion();
    EXPECT_EQ(otra.d.general.NumeroArchivo, QString());
    EXPECT_EQ(otra.d.general.NombreAnterior, QStringLiteral(" "));
    EXPECT_EQ(otra.d.apartado3.ActVenMov, QStringLiteral(" "));
    EXPECT_EQ(otra.d.apartado3.SocPat, QString());
}

TEST_F(IdaYVuelta, GuardarLaMismaClaveReemplaza) {
    d.csde = guardarTodo();
    g.NOMBRE = QStringLiteral("OTRO");
    EXPECT_EQ(d.GuardarDeclaracion(), d.csde);
    EXPECT_EQ(declaracionesGuardadas(), 1);
    OtraRun otra(estado);
    otra.d.csde = d.csde;
    otra.d.CargarDeclaracion();
    EXPECT_EQ(otra.d.general.NOMBRE, QStringLiteral("OTRO"));
    mismasSecciones(d, otra.d);
}

TEST_F(IdaYVuelta, UnaDeclaracionVaciaNoTraeLaDeAntes) {
    const qint32 llena = guardarTodo();
    d.InicializarDeclaracion();
    d.MarcarApartados();
    const qint32 vacia = d.GuardarDeclaracion();
    EXPECT_NE(vacia, llena);
    OtraRun otra(estado);
    otra.d.csde = vacia;
    otra.d.CargarDeclaracion();
    EXPECT_EQ(otra.d.general.ObtenerDatos()[12].toString(), QString(8, u' '));
    for (const auto a : SeccionesConRegistro) EXPECT_FALSE(lleno(otra.d, a));
    mismasSecciones(d, otra.d);
}

TEST_F(IdaYVuelta, CargarRenuevaElParticipeActual) {
    const qint32 clave = guardarTodo();
    d.participantes.ParticipeActual = nuevoParticipe(u"12345678Z", u"A", 0);
    d.csde = clave;
    d.CargarDeclaracion();
    ASSERT_TRUE(d.participantes.ParticipeActual);
    EXPECT_TRUE(d.participantes.ParticipeActual->DNI.vacio());
    EXPECT_TRUE(d.participantes.ParticipeActual->Modo.vacio());
    EXPECT_FALSE(d.participantes.ParticipeActual->MODIFPARTICIPES);
}

TEST_F(IdaYVuelta, SinParticipesElAnexoIQuedaEnBlanco) {
    generalesValidos(g);
    ponerParticipe(u"12345678Z", u"A");
    d.Modo = QStringLiteral("A");
    d.MarcarApartados();
    EXPECT_EQ(g.AnexoI, QStringLiteral("X"));
    BorrarApartado(d, Apartado::AnexoI);
    d.MarcarApartados();
    const qint32 clave = d.GuardarDeclaracion();
    d.GuardarParticipes(clave);
    OtraRun otra(estado);
    otra.d.csde = clave;
    otra.d.CargarDeclaracion();
    EXPECT_EQ(otra.d.general.AnexoI, QStringLiteral(" "));
    EXPECT_EQ(otra.d.NumParti, 0);
}

}  // namespace
}  // namespace padral::pruebas
