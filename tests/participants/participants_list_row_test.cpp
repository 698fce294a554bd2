// The current row of the participants list across its commands, the keys held down, the waits.

#include "participants/participants_list_fixture.h"

namespace padral::pruebas {
namespace {

class FilaDeLaLista : public ListaParticipes {
protected:
    /// The row of Luis is the current one, in the grid and in the record.
    void esperaLuisEn(int fila) {
        EXPECT_EQ(filaMarcada(), fila);
        EXPECT_EQ(celda(filaMarcada(), 1), q(u"12345678Z"));
        EXPECT_EQ(l.DNI.texto(), q(u"12345678Z"));
        EXPECT_EQ(l.cspa, 5);
        EXPECT_EQ(l.NOMBRE.recortado(), q(u"LUIS ABAD"));
    }
    void repetida(Qt::Key codigo) {
        QKeyEvent evento(QEvent::KeyPress, codigo, Qt::NoModifier, QStringLiteral("\r"), true);
        QApplication::sendEvent(QApplication::focusWidget(), &evento);
        QCoreApplication::processEvents();
    }
};

TEST_F(FilaDeLaLista, SigueTrasUnaBusquedaYTrasTodos) {
    tres();
    poner({u"00000000T", u"LUCIA ABAD"});
    abrir();
    pulsarCelda(2, 1);
    esperaLuisEn(2);
    buscar(2, u"lu");
    EXPECT_EQ(columna(2), (QStringList{q(u"LUCIA ABAD"), q(u"LUIS ABAD")}));
    esperaLuisEn(2);
    pulsar(u"cmdTodos");
    EXPECT_EQ(columna(2).size(), 4);
    esperaLuisEn(2);
    buscar(2, u"");
    EXPECT_EQ(columna(2),
              (QStringList{q(u"ANA ZUBI"), q(u"EVA LASA"), q(u"LUCIA ABAD"), q(u"LUIS ABAD")}));
    esperaLuisEn(4);
    pulsarCabecera(1);
    esperaLuisEn(2);
    QTest::mouseClick(c(u"picasc"), Qt::LeftButton);
    EXPECT_EQ(columna(1),
              (QStringList{q(u"X1234567L"), q(u"A12345674"), q(u"12345678Z"), q(u"00000000T")}));
    esperaLuisEn(3);
}

TEST_F(FilaDeLaLista, TodosDesdeUnaBusquedaAMediasLaConserva) {
    tres();
    abrir();
    pulsarCelda(2, 1);
    pulsar(u"cmdBuscar");
    teclear(u"x");
    pulsar(u"cmdTodos");
    esperaLuisEn(2);
}

// Where it is not among those found, the first of them is taken.
TEST_F(FilaDeLaLista, SinElEntreLosHalladosEsLaPrimera) {
    tres();
    abrir();
    pulsarCelda(2, 1);
    buscar(1, u"a");
    EXPECT_EQ(filaMarcada(), 1);
    EXPECT_EQ(l.DNI.texto(), q(u"A12345674"));
}

TEST_F(FilaDeLaLista, SoloOrdenadaNoHayNadaQueQuitar) {
    tres();
    abrir();
    pulsarCabecera(2);
    EXPECT_EQ(l.ORDEN, 2);
    EXPECT_EQ(l.TS_COUNT(), 0);
    EXPECT_FALSE(habilitado(u"cmdTodos"));
    buscar(2, u"");
    EXPECT_EQ(l.ORDEN, 2);
    EXPECT_FALSE(habilitado(u"cmdTodos")) << "a result without criteria";
    buscar(2, u"e");
    EXPECT_TRUE(habilitado(u"cmdTodos"));
}

TEST_F(FilaDeLaLista, IntroMantenidoNoAcabaLaBusqueda) {
    tres();
    abrir();
    for (const auto codigo : {Qt::Key_Return, Qt::Key_Enter}) {
        enfocar(u"cmdBuscar");
        tecla(codigo);
        ASSERT_EQ(foco(), q(u"txtBusqueda"));
        const int esperas = pantallas.EsperasTotales;
        repetida(codigo);
        repetida(codigo);
        EXPECT_EQ(l.BUSQUEDA.texto(), q(u"B")) << "the key that opened it is still down";
        EXPECT_EQ(foco(), q(u"txtBusqueda"));
        EXPECT_EQ(pantallas.EsperasTotales, esperas);
        teclear(u"e");
        repetida(codigo);
        EXPECT_EQ(l.TS_COUNT(), 0);
        EXPECT_EQ(caja()->text(), q(u"E"));
        tecla(codigo);
        EXPECT_EQ(l.BUSQUEDA.texto(), q(u"N"));
        EXPECT_EQ(pantallas.EsperasTotales, esperas + 1);
    }
}

struct CasoEspera {
    const char16_t* boton;
    /// What brings the screen to where the button is on.
    std::function<void()> antes;
};

TEST_F(FilaDeLaLista, CadaOrdenConElCursorDeEspera) {
    const auto nada = [] {};
    const auto pregunta = [this] { esperaPreguntaDeEliminar(Respuesta::Si); };
    const CasoEspera casos[] = {{u"CmdNuevo", nada},
                                {u"PicNuevo", nada},
                                {u"CmdVerParticipe", nada},
                                {u"PicVer", nada},
                                {u"CmdEliminar", pregunta},
                                {u"PicBorrar", pregunta},
                                {u"cmdBuscar", nada},
                                {u"cmdBuscar", [this] { pulsar(u"cmdBuscar"); }},
                                {u"cmdTodos", [this] { pulsar(u"cmdBuscar"); }},
                                {u"cmdTodos", [this] { buscar(2, u"e"); }},
                                {u"cmdAnterior", nada},
                                {u"PicAnterior", nada},
                                {u"cmdSiguiente", nada},
                                {u"PicSiguiente", nada},
                                {u"cmdInicio", nada},
                                {u"PicInicio", nada},
                                {u"picasc", [this] { pulsarCabecera(2); }}};
    for (const auto& caso : casos) {
        d.InicializarDeclaracion();
        tres();
        g.AnexoII = q(u"X");
        abrir();
        caso.antes();
        const int esperas = pantallas.EsperasTotales;
        pulsar(caso.boton);
        EXPECT_EQ(pantallas.EsperasTotales, esperas + 1) << s(caso.boton);
        EXPECT_FALSE(pantallas.EnEspera());
    }
}

TEST_F(FilaDeLaLista, OrdenarConElCursorDeEspera) {
    tres();
    abrir();
    for (const auto& [columna, espera] : {std::pair{1, 1}, {2, 1}, {3, 0}, {5, 0}}) {
        const int esperas = pantallas.EsperasTotales;
        pulsarCabecera(columna);
        EXPECT_EQ(pantallas.EsperasTotales, esperas + espera) << columna;
    }
}

}  // namespace
}  // namespace padral::pruebas
