// Entering criteria in the grid of the declarations list.

#include "screen_fixture.h"

namespace padral::pruebas {
namespace {

class BusquedaLista : public PantallaLista {
protected:
    void buscar() {
        abrir(QStringLiteral("A"));
        pulsar(u"cmdBuscar");
    }
    Mensaje fechaNoValida() const {
        return {QStringLiteral("Fecha no válida"), texto(580), Icono::Exclamacion,
                Botones::Aceptar};
    }
    bool cajaSobre(int columna) const {
        const QRect celda = rejilla()->visualRect(rejilla()->model()->index(0, columna));
        return caja()->isVisible() &&
               caja()->mapToGlobal(QPoint()) ==
                   rejilla()->viewport()->mapToGlobal(celda.topLeft()) &&
               caja()->size() == celda.size();
    }
};

TEST_F(BusquedaLista, EmpiezaConUnaFilaEnBlanco) {
    buscar();
    EXPECT_TRUE(lista.EnBusqueda());
    EXPECT_EQ(lista.csde, 0);
    EXPECT_EQ(rejilla()->model()->rowCount(), 1);
    for (int c = 0; c <= 6; ++c) EXPECT_EQ(celda(1, c), QString());
    EXPECT_EQ(rotulo(u"lblayuda"), texto(576));
    EXPECT_EQ(rotulo(u"lblResultado"), QString());
    EXPECT_FALSE(control(u"picasc")->isVisible());
    EXPECT_FALSE(control(u"picdesc")->isVisible());
    EXPECT_FALSE(caja()->isVisible());
    EXPECT_EQ(QApplication::focusWidget(), rejilla());
}

TEST_F(BusquedaLista, SeEligenLasColumnasUnoACuatro) {
    buscar();
    for (const int c : {1, 2, 3, 4}) {
        pulsarCelda(1, c);
        EXPECT_TRUE(cajaSobre(c)) << c;
        EXPECT_EQ(lista.SELECCIONACTUAL, QString::number(c));
        EXPECT_EQ(QApplication::focusWidget(), caja());
    }
    for (const int c : {5, 6}) {
        pulsarCelda(1, c);
        EXPECT_EQ(lista.SELECCIONACTUAL, QStringLiteral("4")) << c;
        EXPECT_TRUE(cajaSobre(4));
    }
}

TEST_F(BusquedaLista, ConElTecladoSeRecorrenLasColumnas) {
    buscar();
    tecla(Qt::Key_Left);
    EXPECT_FALSE(caja()->isVisible());
    tecla(Qt::Key_Right);
    EXPECT_TRUE(cajaSobre(1));
    tecla(Qt::Key_Tab);
    EXPECT_TRUE(cajaSobre(2));
    tecla(Qt::Key_Right);
    EXPECT_TRUE(cajaSobre(3));
    tecla(Qt::Key_Left);
    tecla(Qt::Key_Backtab);
    EXPECT_TRUE(cajaSobre(1));
    for (int i = 0; i < 3; ++i) tecla(Qt::Key_Tab);
    EXPECT_TRUE(cajaSobre(4));
    tecla(Qt::Key_Tab);
    EXPECT_NE(QApplication::focusWidget(), caja());
    EXPECT_EQ(lista.SELECCIONACTUAL, QStringLiteral("4"));
}

TEST_F(BusquedaLista, LasFlechasDentroDelTextoNoCambianDeColumna) {
    buscar();
    pulsarCelda(1, 2);
    escribir(u"AB");
    tecla(Qt::Key_Left);
    EXPECT_TRUE(cajaSobre(2));
    tecla(Qt::Key_Right);
    EXPECT_TRUE(cajaSobre(2));
    tecla(Qt::Key_Right);
    EXPECT_TRUE(cajaSobre(3));
}

struct CasoFiltro {
    int columna;
    const char16_t *escrito, *queda;
};

TEST_F(BusquedaLista, FiltroYAnchoDeCadaColumna) {
    const CasoFiltro casos[] = {{1, u"x1234567l99", u"X1234567L"},
                                {2, u"ñu'ñez\"#", u"ÑUÑEZ"},
                                {3, u"abcdefghijk", u"ABCDEFGHIJ"},
                                {4, u"a01/01/2003b", u"01/01/2003"}};
    buscar();
    for (const auto& caso : casos) {
        pulsarCelda(1, caso.columna);
        escribir(caso.escrito);
        EXPECT_EQ(caja()->text(), QString::fromUtf16(caso.queda));
    }
}

TEST_F(BusquedaLista, DejarLaColumnaGuardaElCriterio) {
    buscar();
    pulsarCelda(1, 2);
    escribir(u"e");
    pulsarCelda(1, 3);
    EXPECT_EQ(celda(1, 2), QStringLiteral("E"));
    EXPECT_EQ(lista.Criterio(2), QStringLiteral("E"));
    escribir(u"r2");
    tecla(Qt::Key_Tab);
    EXPECT_EQ(lista.Criterio(3), QStringLiteral("R2"));
    EXPECT_TRUE(lista.EnBusqueda());
    pulsarCelda(1, 2);
    EXPECT_EQ(caja()->text(), QStringLiteral("E"));
    tecla(Qt::Key_Delete);
    pulsarCelda(1, 1);
    EXPECT_EQ(lista.TS_PERTENECE(2), 0);
    EXPECT_EQ(lista.TS_COUNT(), 1);
}

TEST_F(BusquedaLista, UnCriterioSeCambiaEnSuSitio) {
    buscar();
    pulsarCelda(1, 2);
    escribir(u"e");
    pulsarCelda(1, 3);
    escribir(u"r");
    pulsarCelda(1, 2);
    EXPECT_EQ(caja()->selectedText(), QStringLiteral("E"));
    escribir(u"l");
    pulsar(u"cmdBuscar");
    EXPECT_EQ(lista.TS_COUNT(), 2);
    EXPECT_EQ(lista.TS_PERTENECE(2), 1) << "the first criterion is still the first";
    EXPECT_EQ(lista.Criterio(2), QStringLiteral("L"));
    EXPECT_EQ(columna(2), QStringList{QStringLiteral("LUIS")});
    EXPECT_EQ(rotulo(u"lblResultado"),
              QStringLiteral("Nombre empieza por 'L' Referencia empieza por 'R' "
                             "1 declaración(es) en la lista. "));
}

struct CasoIntro {
    int columna;
    const char16_t* escrito;
    const char16_t* queda;
};

TEST_F(BusquedaLista, IntroTerminaEnCadaColumna) {
    const CasoIntro casos[] = {
        {1, u"x", u"EVA"}, {2, u"a", u"ANA"}, {3, u"r3", u"LUIS"}, {4, u"01/06/2003", u"LUIS"}};
    for (const auto& caso : casos) {
        buscar();
        pulsarCelda(1, caso.columna);
        escribir(caso.escrito);
        tecla(Qt::Key_Return);
        EXPECT_FALSE(lista.EnBusqueda()) << caso.columna;
        EXPECT_FALSE(caja()->isVisible());
        EXPECT_EQ(lista.ORDEN, QString::number(caso.columna));
        EXPECT_EQ(lista.TIPOORDEN, QStringLiteral("ASC"));
        EXPECT_EQ(columna(2), QStringList{QString::fromUtf16(caso.queda)}) << caso.columna;
        EXPECT_EQ(QApplication::focusWidget(), rejilla());
    }
}

TEST_F(BusquedaLista, ResultadoPorBotonTeclaDeAccesoEIntro) {
    const std::function<void()> formas[] = {
        [this] { pulsar(u"cmdBuscar"); },
        [this] { teclaDeAcceso(u"cmdBuscar", Qt::Key_R); },
        [this] { tecla(Qt::Key_Return); },
        [this] { tecla(Qt::Key_Enter); },
    };
    for (const auto& terminar : formas) {
        buscar();
        pulsarCelda(1, 2);
        escribir(u"e");
        terminar();
        EXPECT_FALSE(lista.EnBusqueda());
        EXPECT_FALSE(caja()->isVisible());
        EXPECT_EQ(lista.ORDEN, QStringLiteral("2"));
        EXPECT_EQ(lista.TIPOORDEN, QStringLiteral("ASC"));
        EXPECT_EQ(columna(2), QStringList{QStringLiteral("EVA")});
        EXPECT_EQ(lista.csde, eva);
        EXPECT_EQ(rotulo(u"lblResultado"),
                  QStringLiteral("Nombre empieza por 'E' 1 declaración(es) en la lista. "));
        EXPECT_EQ(QApplication::focusWidget(), rejilla());
    }
}

TEST_F(BusquedaLista, VariosCriteriosALaVez) {
    buscar();
    pulsarCelda(1, 1);
    escribir(u"a");
    pulsarCelda(1, 4);
    escribir(u"01/01/2003");
    pulsar(u"cmdBuscar");
    EXPECT_EQ(columna(2), QStringList{QStringLiteral("EVA")});
    EXPECT_EQ(lista.ORDEN, QStringLiteral("4"));
    EXPECT_TRUE(control(u"picasc")->isVisible());
    EXPECT_EQ(rotulo(u"lblResultado"),
              QStringLiteral("DNI >= A Fecha >= '01/01/2003' 1 declaración(es) en la lista. "));
    pulsar(u"cmdTodos");
    EXPECT_EQ(rejilla()->model()->rowCount(), 3);
    EXPECT_EQ(lista.TS_COUNT(), 0);
    EXPECT_EQ(lista.ORDEN, QStringLiteral("1"));
    EXPECT_EQ(lista.TIPOORDEN, QStringLiteral("DESC"));
}

TEST_F(BusquedaLista, UnResultadoVacio) {
    buscar();
    pulsarCelda(1, 2);
    escribir(u"zz");
    tecla(Qt::Key_Return);
    EXPECT_EQ(rotulo(u"lblResultado"), QStringLiteral("Nombre empieza por 'ZZ' ") + texto(574));
    EXPECT_EQ(celda(1, 1), QString());
    EXPECT_EQ(lista.csde, 0);
}

TEST_F(BusquedaLista, UnaNuevaBusquedaEmpiezaSinCriterios) {
    buscar();
    pulsarCelda(1, 2);
    escribir(u"e");
    tecla(Qt::Key_Return);
    pulsar(u"cmdBuscar");
    EXPECT_EQ(lista.TS_COUNT(), 0);
    EXPECT_EQ(celda(1, 2), QString());
    EXPECT_FALSE(caja()->isVisible());
}

TEST_F(BusquedaLista, UnaColumnaSinValorDaTodas) {
    buscar();
    pulsarCelda(1, 4);
    tecla(Qt::Key_Return);
    EXPECT_FALSE(lista.EnBusqueda());
    EXPECT_EQ(lista.ORDEN, QStringLiteral("4"));
    EXPECT_EQ(rejilla()->model()->rowCount(), 3);
}

TEST_F(BusquedaLista, UnaFechaMalaNoDejaElCampo) {
    const std::function<void()> salidas[] = {
        [this] { pulsar(u"cmdBuscar"); },
        [this] { tecla(Qt::Key_R, Qt::AltModifier); },
        [this] { tecla(Qt::Key_Return); },
        [this] { tecla(Qt::Key_Tab); },
        [this] { tecla(Qt::Key_Backtab); },
        [this] { pulsarCelda(1, 2); },
        [this] { pulsarCelda(1, 6); },
        [this] { pulsar(u"cmdAnterior"); },
        [this] { tecla(Qt::Key_N, Qt::AltModifier); },
    };
    for (std::size_t i = 0; i < std::size(salidas); ++i) {
        SCOPED_TRACE(i);
        buscar();
        pulsarCelda(1, 4);
        escribir(u"31/02/2003");
        avisos.Espera(fechaNoValida());
        salidas[i]();
        avisos.Verificar();
        EXPECT_TRUE(lista.EnBusqueda());
        EXPECT_TRUE(cajaSobre(4));
        EXPECT_EQ(QApplication::focusWidget(), caja());
        EXPECT_EQ(caja()->selectedText(), QStringLiteral("31/02/2003"));
        EXPECT_EQ(lista.TS_COUNT(), 0);
        EXPECT_TRUE(pantallas.Tomar().isEmpty());
        QApplication::processEvents();
        escribir(u"01/02/2003");
        tecla(Qt::Key_Return);
        EXPECT_EQ(columna(2), QStringList{QStringLiteral("LUIS")});
    }
}

TEST_F(BusquedaLista, LaFechaSigueElOrdenDelIdioma) {
    enEuskera();
    buscar();
    pulsarCelda(1, 4);
    escribir(u"2003/01/01");
    tecla(Qt::Key_Return);
    EXPECT_EQ(columna(2), (QStringList{QStringLiteral("EVA"), QStringLiteral("LUIS")}));
    EXPECT_TRUE(rotulo(u"lblResultado").startsWith(QStringLiteral("Data >= '2003/01/01' ")));
}

TEST_F(BusquedaLista, DobleClicEIntroEnLaRejillaNoAbrenNada) {
    buscar();
    tecla(Qt::Key_Return);
    dobleClic(1, 5);
    dobleClic(1, 2);
    pulsarCabecera(2);
    EXPECT_TRUE(lista.EnBusqueda());
    EXPECT_TRUE(pantallas.Tomar().isEmpty());
}

TEST_F(BusquedaLista, LaCajaSigueALaRejilla) {
    buscar();
    pulsarCelda(1, 3);
    pantalla->resize(1000, 500);
    QApplication::processEvents();
    EXPECT_TRUE(cajaSobre(3));
}

TEST_F(BusquedaLista, AnteriorSaleDeLaBusqueda) {
    for (const auto& [c, escrito] : {std::pair{2, u"e"}, {4, u"01/02/2003"}, {4, u""}}) {
        buscar();
        pulsarCelda(1, c);
        escribir(escrito);
        pulsar(u"cmdAnterior");
        EXPECT_EQ(pantallas.Tomar(), (QStringList{QStringLiteral("HabilitarMenus"),
                                                  QStringLiteral("Descargar FrmDecLista")}));
        EXPECT_EQ(lista.Criterio(c), QString::fromUtf16(escrito).toUpper());
        EXPECT_TRUE(lista.EnBusqueda());
        abrir(QStringLiteral("A"));
        EXPECT_FALSE(lista.EnBusqueda()) << "the next entry begins anew";
        EXPECT_EQ(lista.TS_COUNT(), 0);
        EXPECT_EQ(rejilla()->model()->rowCount(), 3);
    }
}

}  // namespace
}  // namespace padral::pruebas
