// The state of the declarations list: criteria, order, entries.

#include "dec_lista_fixture.h"

namespace padral::pruebas {
namespace {

TEST_F(DecLista, TextosDeAnchoFijoSeRellenanAlAsignar) {
    lista.DNI = QStringLiteral("1");
    lista.NOMBRE = QStringLiteral("A");
    lista.NUMARCHIVO = QStringLiteral("R");
    lista.TIPODECLARACION = QStringLiteral("T");
    lista.APARTADOS = QStringLiteral("2");
    EXPECT_EQ(lista.DNI.texto(), QStringLiteral("1        "));
    EXPECT_EQ(lista.NOMBRE.texto().size(), 40);
    EXPECT_EQ(lista.NUMARCHIVO.texto().size(), 10);
    EXPECT_EQ(lista.TIPODECLARACION.texto().size(), 40);
    EXPECT_EQ(lista.APARTADOS.texto(), QStringLiteral("2      "));
    EXPECT_EQ(lista.ENTRADA.texto().size(), 1);
}

TEST_F(DecLista, OperacionesDeLosCriterios) {
    lista.TS_AÑADIR(1, QStringLiteral("a"));
    lista.TS_AÑADIR(3, QStringLiteral("c"));
    lista.TS_INSERTAR(2, 2, QStringLiteral("b"));
    EXPECT_EQ(lista.TS_COUNT(), 3);
    EXPECT_EQ(lista.TS_PERTENECE(3), 3);
    EXPECT_EQ(lista.TS_PERTENECE(4), 0);
    lista.TS_MODIFICAR(2, 4, QStringLiteral("d"));
    lista.TS_BORRAR(1);
    qint16 columna = 0;
    QString valor;
    lista.TS_ELEMENTO(1, columna, valor);
    EXPECT_EQ(columna, 4);
    EXPECT_EQ(valor, QStringLiteral("d"));
    lista.TS_CLEAR();
    EXPECT_EQ(lista.TS_COUNT(), 0);
}

TEST_F(DecLista, GuardarCriterioAnadeCambiaYBorra) {
    lista.GuardarCriterio(2, QString());
    EXPECT_EQ(lista.TS_COUNT(), 0);
    lista.GuardarCriterio(2, QStringLiteral("GA"));
    lista.GuardarCriterio(1, QStringLiteral("1"));
    lista.GuardarCriterio(2, QStringLiteral("LO"));
    EXPECT_EQ(lista.TS_COUNT(), 2);
    EXPECT_EQ(lista.Criterio(2), QStringLiteral("LO"));
    lista.GuardarCriterio(2, QStringLiteral("  "));
    EXPECT_EQ(lista.TS_COUNT(), 1);
    EXPECT_EQ(lista.Criterio(2), QString());
    EXPECT_EQ(lista.Criterio(1), QStringLiteral("1"));
}

TEST_F(DecLista, SoloLaColumnaDeFechaPideUnaFecha) {
    EXPECT_TRUE(lista.CriterioValido(1, QStringLiteral("31/02/2002")));
    EXPECT_FALSE(lista.CriterioValido(4, QStringLiteral("31/02/2002")));
    EXPECT_FALSE(lista.CriterioValido(4, QStringLiteral("2002")));
    EXPECT_FALSE(lista.CriterioValido(4, QStringLiteral("2002/12/31")));
    EXPECT_TRUE(lista.CriterioValido(4, QStringLiteral("31/12/2002")));
    EXPECT_TRUE(lista.CriterioValido(4, QString()));
    enEuskera();
    EXPECT_TRUE(lista.CriterioValido(4, QStringLiteral("2002/12/31")));
}

TEST_F(DecLista, LaFechaViajaComoNumero) {
    lista.GuardarCriterio(4, QStringLiteral("31/12/2002"));
    lista.GuardarCriterio(2, QStringLiteral("GA"));
    const SvrDPadral::CriteriosLista esperados{QString(), QString(), QStringLiteral("GA"),
                                               QString(), QStringLiteral("20021231")};
    EXPECT_EQ(lista.CriteriosServidor(), esperados);
}

struct CasoOrden {
    int columna;
    bool ordena;
    const char16_t* sentido;
};

TEST_F(DecLista, OrdenPorColumna) {
    const CasoOrden casos[] = {{1, true, u"ASC"},  {2, true, u"ASC"}, {3, true, u"ASC"},
                               {4, true, u"DESC"}, {5, false, u"-"},  {6, false, u"-"},
                               {0, false, u"-"}};
    for (const auto& caso : casos) {
        lista.ORDEN = QStringLiteral("9");
        lista.TIPOORDEN = QStringLiteral("-");
        lista.ENTRADA = QStringLiteral("A");
        lista.csde = 4;
        EXPECT_EQ(lista.OrdenarPor(caso.columna), caso.ordena) << caso.columna;
        EXPECT_EQ(lista.TIPOORDEN, QString::fromUtf16(caso.sentido));
        EXPECT_EQ(lista.ORDEN, caso.ordena ? QString::number(caso.columna) : QStringLiteral("9"));
        EXPECT_EQ(lista.ENTRADA.vacio(), caso.ordena);
        EXPECT_EQ(lista.csde, 4);
    }
    lista.BUSQUEDA = QStringLiteral("B");
    EXPECT_FALSE(lista.OrdenarPor(1));
}

TEST_F(DecLista, InvertirOrden) {
    lista.TIPOORDEN = QStringLiteral("ASC");
    lista.InvertirOrden();
    EXPECT_EQ(lista.TIPOORDEN, QStringLiteral("DESC"));
    lista.InvertirOrden();
    EXPECT_EQ(lista.TIPOORDEN, QStringLiteral("ASC"));
}

/// State of a list in use, before it is entered again.
void usar(cDecLista& lista) {
    lista.csde = 3;
    lista.DNI = QStringLiteral("1");
    lista.ORDEN = QStringLiteral("3");
    lista.TIPOORDEN = QStringLiteral("ASC");
    lista.Modo = QStringLiteral("E");
    lista.BUSQUEDA = QStringLiteral("B");
    lista.SELECCIONACTUAL = QStringLiteral("2");
    lista.TS_AÑADIR(2, QStringLiteral("GA"));
}

TEST_F(DecLista, EntradaParaAbrirYParaEliminarEmpiezaDeNuevo) {
    const std::pair<const char16_t*, const char16_t*> casos[] = {{u"A", u"C"}, {u"E", u"E"}};
    for (const auto& [entrada, modo] : casos) {
        usar(lista);
        lista.ENTRADA = QString::fromUtf16(entrada);
        lista.PrepararEntrada();
        EXPECT_EQ(lista.csde, 0);
        EXPECT_TRUE(lista.DNI.vacio());
        EXPECT_EQ(lista.ORDEN, QStringLiteral("1"));
        EXPECT_EQ(lista.TIPOORDEN, QStringLiteral("DESC"));
        EXPECT_EQ(lista.Modo.texto(), QString::fromUtf16(modo));
        EXPECT_EQ(lista.BUSQUEDA.texto(), QStringLiteral("N"));
        EXPECT_EQ(lista.SELECCIONACTUAL, QStringLiteral("0"));
        EXPECT_EQ(lista.TS_COUNT(), 0);
    }
}

TEST_F(DecLista, EntradaDeVueltaConservaCriteriosYOrden) {
    usar(lista);
    lista.ENTRADA = QStringLiteral("P");
    lista.PrepararEntrada();
    EXPECT_EQ(lista.Modo.texto(), QStringLiteral("C"));
    EXPECT_EQ(lista.BUSQUEDA.texto(), QStringLiteral("N"));
    EXPECT_EQ(lista.csde, 3);
    EXPECT_EQ(lista.ORDEN, QStringLiteral("3"));
    EXPECT_EQ(lista.TIPOORDEN, QStringLiteral("ASC"));
    EXPECT_EQ(lista.Criterio(2), QStringLiteral("GA"));
}

TEST_F(DecLista, IniciarBusquedaYVerTodos) {
    usar(lista);
    lista.BUSQUEDA = QStringLiteral("N");
    lista.ENTRADA = QStringLiteral("A");
    lista.NUMDECLASEL = QStringLiteral("8");
    lista.IniciarBusqueda();
    EXPECT_TRUE(lista.EnBusqueda());
    EXPECT_EQ(lista.csde, 0);
    EXPECT_EQ(lista.NUMDECLASEL, QStringLiteral("0"));
    EXPECT_EQ(lista.SELECCIONACTUAL, QStringLiteral("0"));
    EXPECT_TRUE(lista.ENTRADA.vacio());
    EXPECT_EQ(lista.TS_COUNT(), 0);
    EXPECT_EQ(lista.ORDEN, QStringLiteral("3"));

    usar(lista);
    lista.VerTodos();
    EXPECT_FALSE(lista.EnBusqueda());
    EXPECT_EQ(lista.csde, 0);
    EXPECT_EQ(lista.ORDEN, QStringLiteral("1"));
    EXPECT_EQ(lista.TIPOORDEN, QStringLiteral("DESC"));
    EXPECT_EQ(lista.SELECCIONACTUAL, QStringLiteral("0"));
    EXPECT_TRUE(lista.ENTRADA.vacio());
    EXPECT_EQ(lista.TS_COUNT(), 0);
}

TEST_F(DecLista, TerminarBusquedaOrdenaPorLaColumnaEditada) {
    lista.IniciarBusqueda();
    lista.SELECCIONACTUAL = QStringLiteral("4");
    lista.TIPOORDEN = QStringLiteral("DESC");
    lista.TerminarBusqueda();
    EXPECT_EQ(lista.ORDEN, QStringLiteral("4"));
    EXPECT_EQ(lista.TIPOORDEN, QStringLiteral("ASC"));
    EXPECT_FALSE(lista.EnBusqueda());
}

}  // namespace
}  // namespace padral::pruebas
