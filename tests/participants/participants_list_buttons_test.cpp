// The buttons of the participants list: when they are on, their words, their keys.

#include <QAccessible>

#include "participants/participants_list_fixture.h"

namespace padral::pruebas {
namespace {

/// What the list is doing.
enum Momento {
    Llena,       // three participants
    Vacia,       // none
    Buscando,    // criteria are entered
    Encontrado,  // a search with a result
    Nada,        // a search without a result
    Noventa,     // 99 participants
    Cien,        // 100 participants
    CienFiltro,  // 100 participants, a search that finds some of them
    SinNif,      // the current row has no identifier
};

struct CasoBotones {
    Momento momento;
    bool ver, nuevo, todos;
};
void PrintTo(const CasoBotones& caso, std::ostream* salida) { *salida << caso.momento; }

class Botones : public ListaParticipes, public ::testing::WithParamInterface<CasoBotones> {
protected:
    void llegarA(Momento momento) {
        if (momento == SinNif) poner({u"", u"SIN NIF"});
        if (momento == Noventa) poner(99);
        if (momento == Cien || momento == CienFiltro) poner(100);
        if (d.NumParti == 0 && momento != Vacia) tres();
        abrir();
        if (momento == Buscando) pulsar(u"cmdBuscar");
        if (momento == Encontrado) buscar(2, u"eva");
        if (momento == Nada) buscar(2, u"zz");
        if (momento == CienFiltro) buscar(2, u"socio 9");
    }
};

TEST_P(Botones, EncendidosSegunLoQueHay) {
    const auto& caso = GetParam();
    llegarA(caso.momento);
    EXPECT_EQ(habilitado(u"CmdVerParticipe"), caso.ver);
    EXPECT_EQ(habilitado(u"CmdEliminar"), caso.ver);
    EXPECT_EQ(habilitado(u"CmdNuevo"), caso.nuevo);
    EXPECT_EQ(habilitado(u"cmdTodos"), caso.todos);
    for (const auto* siempre : {u"cmdBuscar", u"cmdAnterior", u"cmdInicio"})
        EXPECT_TRUE(habilitado(siempre)) << s(siempre);
    EXPECT_EQ(boton(u"cmdBuscar"), caso.momento == Buscando ? q(u"Resultado") : q(u"Búsqueda"));
    const std::pair<const char16_t*, const char16_t*> imagenes[] = {
        {u"PicNuevo", u"CmdNuevo"},         {u"PicVer", u"CmdVerParticipe"},
        {u"PicBorrar", u"CmdEliminar"},     {u"PicAnterior", u"cmdAnterior"},
        {u"PicSiguiente", u"cmdSiguiente"}, {u"PicInicio", u"cmdInicio"}};
    for (const auto& [imagen, nombre] : imagenes)
        EXPECT_EQ(habilitado(imagen), habilitado(nombre)) << s(imagen);
}
INSTANTIATE_TEST_SUITE_P(Momentos, Botones,
                         ::testing::Values(CasoBotones{Llena, true, true, false},
                                           CasoBotones{Vacia, false, true, false},
                                           CasoBotones{Buscando, false, false, true},
                                           CasoBotones{Encontrado, true, true, true},
                                           CasoBotones{Nada, false, true, true},
                                           CasoBotones{Noventa, true, true, false},
                                           CasoBotones{Cien, true, false, false},
                                           CasoBotones{CienFiltro, true, false, true},
                                           CasoBotones{SinNif, false, true, false}));

using BotonesLista = ListaParticipes;

struct CasoMarca {
    const char16_t* anexo;
    bool activo;
};

TEST_F(BotonesLista, SiguientePideElAnexoII) {
    tres();
    for (const auto& [anexo, activo] : {CasoMarca{u"X", true}, {u" ", false}, {u"", false}}) {
        g.AnexoII = q(anexo);
        abrir();
        EXPECT_EQ(habilitado(u"cmdSiguiente"), activo);
        EXPECT_EQ(habilitado(u"PicSiguiente"), activo);
    }
}

TEST_F(BotonesLista, ResultadoPideUnCriterioOUnaColumna) {
    tres();
    abrir();
    l.BUSQUEDA = q(u"B");
    l.SELECCIONACTUAL = 0;
    abrir();
    EXPECT_FALSE(habilitado(u"cmdBuscar"));
    EXPECT_FALSE(visible(u"txtBusqueda"));
    EXPECT_EQ(foco(), q(u"flxParticipes"));
    tecla(Qt::Key_Right);
    EXPECT_EQ(l.SELECCIONACTUAL, 1);
    EXPECT_TRUE(habilitado(u"cmdBuscar"));
    l.SELECCIONACTUAL = 0;
    l.TS_AÑADIR(2, q(u"E"));
    abrir();
    EXPECT_TRUE(habilitado(u"cmdBuscar"));
}

TEST_F(BotonesLista, RotulosYAyudasEnLosDosIdiomas) {
    struct Caso {
        const char16_t* nombre;
        int texto, ayuda;
    };
    const Caso casos[] = {{u"cmdBuscar", 621, 609},   {u"cmdTodos", 558, 610},
                          {u"CmdNuevo", 563, 611},    {u"CmdVerParticipe", 612, 613},
                          {u"CmdEliminar", 565, 614}, {u"cmdAnterior", 10, 615},
                          {u"cmdSiguiente", 12, 13},  {u"cmdInicio", 670, 671}};
    tres();
    for (const bool vasco : {false, true}) {
        if (vasco) enEuskera();
        abrir();
        for (const auto& caso : casos) {
            EXPECT_EQ(boton(caso.nombre), estado.Texto(caso.texto)) << s(caso.nombre);
            EXPECT_EQ(c(caso.nombre)->toolTip(), estado.Texto(caso.ayuda)) << s(caso.nombre);
        }
        EXPECT_EQ(c(u"picasc")->toolTip(), vasco ? q(u"Goranzko ordena") : q(u"Orden ascendente"));
        pulsar(u"cmdBuscar");
        EXPECT_EQ(boton(u"cmdBuscar"), vasco ? q(u"Emaitza") : q(u"Resultado"));
        pulsar(u"cmdBuscar");
        EXPECT_EQ(boton(u"cmdBuscar"), vasco ? q(u"Bilaketa") : q(u"Búsqueda"));
        pulsar(u"cmdTodos");
        d.InicializarDeclaracion();
        tres();
    }
}

TEST_F(BotonesLista, LasFlechasLosRecorren) {
    tres();
    g.AnexoII = q(u"X");
    abrir();
    buscar(2, u"e");
    enfocar(u"cmdInicio");
    for (const auto* siguiente :
         {u"cmdAnterior", u"cmdSiguiente", u"cmdBuscar", u"cmdTodos", u"CmdNuevo",
          u"CmdVerParticipe", u"CmdEliminar", u"CmdEliminar"}) {
        tecla(foco() == q(u"CmdVerParticipe") ? Qt::Key_Down : Qt::Key_Right);
        EXPECT_EQ(foco(), q(siguiente));
    }
    tecla(Qt::Key_Left);
    tecla(Qt::Key_Up);
    EXPECT_EQ(foco(), q(u"CmdNuevo"));
    tecla(Qt::Key_Left);
    EXPECT_EQ(foco(), q(u"cmdTodos"));
}

TEST_F(BotonesLista, LasFlechasSaltanLosApagados) {
    poner(100);
    abrir();
    enfocar(u"cmdAnterior");
    for (const auto* siguiente : {u"cmdBuscar", u"CmdVerParticipe", u"CmdEliminar"}) {
        tecla(Qt::Key_Right);
        EXPECT_EQ(foco(), q(siguiente)) << "Siguiente, Todos and Nuevo are off";
    }
    c(u"CmdEliminar")->setEnabled(false);
    enfocar(u"CmdVerParticipe");
    tecla(Qt::Key_Right);
    EXPECT_EQ(foco(), q(u"CmdVerParticipe")) << "none follows";
}

TEST_F(BotonesLista, IntroPulsaUnaVez) {
    tres();
    abrir();
    enfocar(u"cmdBuscar");
    QKeyEvent repetida(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"),
                       true);
    QApplication::sendEvent(c(u"cmdBuscar"), &repetida);
    EXPECT_EQ(l.BUSQUEDA.texto(), q(u"N")) << "a key held down does nothing";
    tecla(Qt::Key_Return);
    EXPECT_EQ(l.BUSQUEDA.texto(), q(u"B"));
    enfocar(u"cmdTodos");
    tecla(Qt::Key_Enter);
    EXPECT_EQ(l.BUSQUEDA.texto(), q(u"N"));
}

TEST_F(BotonesLista, TodoControlTieneNombreAccesible) {
    tres();
    abrir();
    pulsar(u"cmdBuscar");
    for (const auto* nombre :
         {u"flxParticipes", u"txtBusqueda", u"picasc", u"picdesc", u"lblayuda", u"cmdBuscar",
          u"cmdTodos", u"CmdNuevo", u"CmdVerParticipe", u"CmdEliminar", u"cmdAnterior",
          u"cmdSiguiente", u"cmdInicio", u"PicNuevo", u"PicVer", u"PicBorrar", u"PicAnterior",
          u"PicSiguiente", u"PicInicio"}) {
        auto* accesible = QAccessible::queryAccessibleInterface(c(nombre));
        ASSERT_NE(accesible, nullptr);
        EXPECT_FALSE(accesible->text(QAccessible::Name).trimmed().isEmpty()) << s(nombre);
    }
}

TEST_F(BotonesLista, ElTabuladorSigueElOrdenDeLectura) {
    tres();
    g.AnexoII = q(u"X");
    abrir();
    buscar(2, u"e");
    for (const auto* siguiente :
         {u"cmdInicio", u"cmdAnterior", u"cmdSiguiente", u"cmdBuscar", u"cmdTodos", u"CmdNuevo",
          u"CmdVerParticipe", u"CmdEliminar", u"flxParticipes"}) {
        tecla(Qt::Key_Tab);
        EXPECT_EQ(foco(), q(siguiente));
    }
}

}  // namespace
}  // namespace padral::pruebas
