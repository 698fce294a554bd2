// The aggregate in memory: blanking, flags, counters, modes, pending changes.

#include "declaration/declaration_fixture.h"
#include "declaration/full_declaration.h"

namespace padral::pruebas {
namespace {

using Agregado = ConDeclaracion;

TEST_F(Agregado, InicializarVaciaTodosLosRegistrosMarcasYCopias) {
    const cDeclaraciones limpia{estado, pantallas, lista};
    llenarTodo(d);
    for (const auto& c : CasillasApartado()) g.*c.bandera = QStringLiteral("X");
    ponerParticipe(u"12345678Z", u"C", 3);
    d.participantes.ParticipeActual = ponerParticipe(u"X1234567L", u"A");
    d.participantes.ParticipeActual->MODIFPARTICIPES = true;
    d.SumaPorcen = 75.5;
    d.parLista.TIPOORDEN = QStringLiteral("DESC");
    d.parLista.TS_AÑADIR(1, QStringLiteral("1"));
    d.InicializarDeclaracion();
    EXPECT_EQ(g.ObtenerDatos(), limpia.general.ObtenerDatos());
    for (const auto a : SeccionesConRegistro) {
        SCOPED_TRACE(static_cast<int>(a));
        EXPECT_EQ(filaDe(d, a), filaDe(limpia, a));
        EXPECT_FALSE(lleno(d, a) || modificado(d, a));
        recuperarCopia(d, a);
        EXPECT_EQ(filaDe(d, a), filaDe(limpia, a));
        EXPECT_FALSE(lleno(d, a) || modificado(d, a));
    }
    EXPECT_EQ(d.anexoII.CodigoProvincia + d.anexoII.CodigoMunicipio + d.anexoII.PORCENTAJE, 0);
    EXPECT_EQ(d.NumParti + g.NumParti + d.parLista.NUMPARTLIST, 0);
    EXPECT_EQ(d.SumaPorcen, 0.0);
    EXPECT_TRUE(d.participantes.colParticipes.empty());
    ASSERT_TRUE(d.participantes.ParticipeActual);
    EXPECT_TRUE(d.participantes.ParticipeActual->DNI.vacio());
    EXPECT_FALSE(d.participantes.ParticipeActual->MODIFPARTICIPES);
    EXPECT_EQ(d.parLista.TIPOORDEN, QStringLiteral("ASC"));
    EXPECT_EQ(d.parLista.TS_COUNT(), 0);
    EXPECT_FALSE(d.HayModificaciones());
}

TEST_F(Agregado, InicializarNoTocaClaveNiModo) {
    d.csde = 5;
    d.Modo = QStringLiteral("A");
    g.FECHAVIGOR = 20150607;
    d.InicializarDeclaracion();
    EXPECT_EQ(d.csde, 5);
    EXPECT_EQ(d.Modo, QStringLiteral("A"));
    EXPECT_EQ(g.FECHAVIGOR, 20150607);
}

class UnaMarca : public ConDeclaracion, public ::testing::WithParamInterface<int> {};

TEST_P(UnaMarca, SigueALoQueHayEnSuRegistro) {
    const int n = GetParam();
    const Apartado apartado = static_cast<Apartado>(n);
    // The opposite of what the records say.
    for (const auto& c : CasillasApartado()) g.*c.bandera = QStringLiteral("X");
    g.*CasillasApartado()[static_cast<std::size_t>(n)].bandera = QString();
    if (apartado == Apartado::AnexoI)
        d.NumParti = 1;
    else
        llenar(d, apartado);
    d.MarcarApartados();
    QString esperadas(8, u' ');
    esperadas[n] = u'X';
    EXPECT_EQ(g.ObtenerDatos()[12].toString(), esperadas);
    for (const auto& c : CasillasApartado()) EXPECT_EQ((g.*c.bandera).size(), 1) << "never empty";
}
INSTANTIATE_TEST_SUITE_P(Banderas, UnaMarca, ::testing::Range(0, 8));

TEST_F(Agregado, ElAnexoISeMarcaPorElNumeroDeLaDeclaracion) {
    g.NumParti = 3;
    d.MarcarApartados();
    EXPECT_EQ(g.AnexoI, QStringLiteral(" "));
}

TEST_F(Agregado, LosContadoresVanJuntos) {
    g.NumParti = 9;
    d.NumParti = 2;
    d.IncrementarNumParti();
    EXPECT_EQ(d.NumParti, 3);
    EXPECT_EQ(g.NumParti, 3);
    EXPECT_EQ(d.parLista.NUMPARTLIST, 3);
    d.DecrementarNumParti();
    EXPECT_EQ(d.NumParti, 2);
    EXPECT_EQ(g.NumParti, 2);
    EXPECT_EQ(d.parLista.NUMPARTLIST, 2);
}

TEST_F(Agregado, LimpiarModosVaciaLosTres) {
    d.Modo = QStringLiteral("A");
    lista.Modo = QStringLiteral("C");
    d.participantes.ParticipeActual = nuevoParticipe(u"12345678Z", u"A", 0);
    d.LimpiarModos();
    EXPECT_EQ(d.Modo, QString());
    EXPECT_TRUE(lista.Modo.vacio());
    EXPECT_TRUE(d.participantes.ParticipeActual->Modo.vacio());
}

TEST_F(Agregado, HayModificacionesEsEsaLista) {
    d.participantes.ParticipeActual = nuevoParticipe(u"12345678Z", u"A", 0);
    bool* marcas[] = {
        &estado.ModificacionesPendientes, &d.apartado2.Modificaciones,
        &d.apartado3.Modificaciones,      &d.apartado4.MODIFAPARTADO4,
        &d.apartado5.MODIFAPARTADO5,      &d.apartado6.MODIFAPARTADO6,
        &d.apartado7.Modificaciones,      &d.participantes.ParticipeActual->MODIFPARTICIPES};
    EXPECT_FALSE(d.HayModificaciones());
    for (std::size_t i = 0; i < std::size(marcas); ++i) {
        *marcas[i] = true;
        EXPECT_TRUE(d.HayModificaciones()) << i;
        *marcas[i] = false;
    }
    d.anexoII.Modificaciones = true;
    d.parLista.MODIFLISTAPART = true;
    EXPECT_FALSE(d.HayModificaciones()) << "Annex II and the list do not count";
    // One that was deleted in the list is seldom the current one.
    d.participantes.colParticipes.push_back(nuevoParticipe(u"X1234567L", u"E", 7));
    EXPECT_FALSE(d.HayModificaciones());
    d.participantes.colParticipes.front()->MODIFPARTICIPES = true;
    EXPECT_TRUE(d.HayModificaciones());
    d.participantes.colParticipes.clear();
    d.participantes.ParticipeActual.reset();
    EXPECT_FALSE(d.HayModificaciones());
}

}  // namespace
}  // namespace padral::pruebas
