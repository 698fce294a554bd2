// Entering the declarations list: rows, selection, order, words.

#include <QAccessible>

#include "screen_fixture.h"

namespace padral::pruebas {
namespace {

TEST_F(PantallaLista, EntradaParaAbrir) {
    estado.ModificacionesPendientes = true;
    abrir(QStringLiteral("A"));
    EXPECT_EQ(pantalla->objectName(), QStringLiteral("FrmDecLista"));
    EXPECT_EQ(pantalla->windowTitle(), QStringLiteral(" ABRIR DECLARACIÓN"));
    EXPECT_EQ(lista.Modo.texto(), QStringLiteral("C"));
    EXPECT_FALSE(estado.ModificacionesPendientes);
    EXPECT_EQ(columna(1), (QStringList{QStringLiteral("X1234567L"), QStringLiteral("A12345674"),
                                       QStringLiteral("12345678Z")}));
    EXPECT_EQ(filaMarcada(), 1);
    EXPECT_EQ(lista.csde, eva);
    EXPECT_EQ(rotulo(u"lblayuda"), texto(573));
    EXPECT_EQ(rotulo(u"lblResultado"), QStringLiteral("3 declaración(es) en la lista. "));
    EXPECT_EQ(QApplication::focusWidget(), rejilla());
}

TEST_F(PantallaLista, EntradaParaEliminar) {
    abrir(QStringLiteral("E"));
    EXPECT_EQ(pantalla->windowTitle(), QStringLiteral(" ELIMINAR DECLARACIÓN"));
    EXPECT_EQ(lista.Modo.texto(), QStringLiteral("E"));
    EXPECT_EQ(rejilla()->model()->rowCount(), 3);
}

TEST_F(PantallaLista, EntradaDeVueltaConservaCriteriosOrdenYFila) {
    lista.GuardarCriterio(3, QStringLiteral("R"));
    lista.ORDEN = QStringLiteral("2");
    lista.TIPOORDEN = QStringLiteral("ASC");
    lista.csde = luis;
    lista.BUSQUEDA = QStringLiteral("B");
    abrir(QStringLiteral("P"));
    EXPECT_EQ(pantalla->windowTitle(), QStringLiteral(" ABRIR DECLARACIÓN"));
    EXPECT_EQ(columna(2),
              (QStringList{QStringLiteral("ANA"), QStringLiteral("EVA"), QStringLiteral("LUIS")}));
    EXPECT_EQ(filaMarcada(), 3);
    EXPECT_EQ(lista.csde, luis);
    EXPECT_EQ(lista.Modo.texto(), QStringLiteral("C"));
    EXPECT_EQ(rotulo(u"lblResultado"),
              QStringLiteral("Referencia empieza por 'R' 3 declaración(es) en la lista. "));
}

TEST_F(PantallaLista, AlMostrarseApagaLosMenus) {
    lista.ENTRADA = QStringLiteral("A");
    pantalla =
        std::make_unique<FrmDecLista>(Contexto{estado, pantallas, guardia}, declaracion, lista);
    pantalla->Cargar();
    pantalla->show();
    EXPECT_EQ(pantallas.Tomar(), QStringList{QStringLiteral("DeshabilitarMenus")});
}

TEST_F(PantallaLista, ColumnasYCabeceras) {
    abrir(QStringLiteral("A"));
    const int titulos[] = {355, 356, 577, 578, 579, 439};
    auto* modelo = rejilla()->model();
    ASSERT_EQ(modelo->columnCount(), 7);
    EXPECT_TRUE(rejilla()->isColumnHidden(0));
    EXPECT_EQ(celda(1, 0), QString::number(eva));
    EXPECT_TRUE(modelo->index(0, 0).data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
    for (int c = 1; c <= 6; ++c)
        EXPECT_EQ(modelo->headerData(c, Qt::Horizontal).toString(), texto(titulos[c - 1]));
    EXPECT_EQ(celda(2, 2), QStringLiteral("ANA"));
    EXPECT_EQ(celda(2, 3), QStringLiteral("R1"));
    EXPECT_EQ(celda(2, 4), QStringLiteral("01/01/2002"));
    EXPECT_EQ(celda(2, 5), QStringLiteral("MODIFICACIÓN"));
    EXPECT_EQ(celda(2, 6), QStringLiteral("2,3,AI"));
    EXPECT_EQ(celda(1, 5), texto(588));
}

TEST_F(PantallaLista, ConCtrlYUnNumeroSeOrdenaComoConLaCabecera) {
    abrir(QStringLiteral("A"));
    pulsarCelda(2, 1);
    for (const int c : {1, 2, 3, 4}) {
        pulsarCabecera(c);
        const QStringList conRaton = columna(2);
        pulsarCabecera(c == 4 ? 1 : 4);
        EXPECT_NE(columna(2), conRaton) << c;
        tecla(static_cast<Qt::Key>(Qt::Key_0 + c), Qt::ControlModifier);
        EXPECT_EQ(lista.ORDEN, QString::number(c));
        EXPECT_EQ(lista.TIPOORDEN, c == 4 ? QStringLiteral("DESC") : QStringLiteral("ASC"));
        EXPECT_EQ(columna(2), conRaton) << c;
        EXPECT_EQ(lista.csde, ana) << "the selection stays";
    }
    for (const auto codigo : {Qt::Key_0, Qt::Key_5, Qt::Key_6}) {
        tecla(codigo, Qt::ControlModifier);
        EXPECT_EQ(lista.ORDEN, QStringLiteral("4"));
    }
    tecla(Qt::Key_2);
    EXPECT_EQ(lista.ORDEN, QStringLiteral("4")) << "only with Ctrl";
    pulsar(u"cmdBuscar");
    tecla(Qt::Key_2, Qt::ControlModifier);
    EXPECT_TRUE(lista.EnBusqueda());
    EXPECT_EQ(lista.ORDEN, QStringLiteral("4"));
}

TEST_F(PantallaLista, SinDeclaraciones) {
    for (const qint32 clave : {luis, ana, eva}) lista.EliminarDeclaracion(clave);
    abrir(QStringLiteral("A"));
    EXPECT_EQ(rejilla()->model()->rowCount(), 1);
    for (int c = 0; c <= 6; ++c) EXPECT_EQ(celda(1, c), QString());
    EXPECT_EQ(rotulo(u"lblResultado"), texto(574));
    EXPECT_EQ(filaMarcada(), 0);
    EXPECT_EQ(lista.csde, 0);
    EXPECT_EQ(lista.NUMDECLASEL, QStringLiteral("0"));
    dobleClic(1, 1);
    tecla(Qt::Key_Return);
    EXPECT_TRUE(pantallas.Tomar().isEmpty());
}

TEST_F(PantallaLista, LaSeleccionSigueAlRatonYAlTeclado) {
    abrir(QStringLiteral("A"));
    pulsarCelda(3, 5);
    EXPECT_EQ(lista.csde, luis);
    EXPECT_EQ(filaMarcada(), 3);
    EXPECT_EQ(lista.NOMBRE.recortado(), QStringLiteral("LUIS"));
    const std::pair<Qt::Key, qint32> teclas[] = {{Qt::Key_Up, ana},
                                                 {Qt::Key_Home, eva},
                                                 {Qt::Key_End, luis},
                                                 {Qt::Key_Down, luis},
                                                 {Qt::Key_PageUp, eva}};
    for (const auto& [codigo, clave] : teclas) {
        tecla(codigo);
        EXPECT_EQ(lista.csde, clave) << codigo;
    }
    escribir(u"l");
    EXPECT_EQ(lista.csde, eva) << "letters search nothing";
}

TEST_F(PantallaLista, LaFilaDeVueltaQuedaALaVista) {
    for (int i = 0; i < 60; ++i)
        almacen.Guardar(
            {QStringLiteral("00%1").arg(i), QStringLiteral("N"), QString(), 0, QString()});
    lista.csde = luis;
    lista.TIPOORDEN = QStringLiteral("ASC");
    abrir(QStringLiteral("P"));
    const QRect fila = rejilla()->visualRect(rejilla()->currentIndex());
    EXPECT_EQ(lista.csde, luis);
    EXPECT_GT(filaMarcada(), 20);
    EXPECT_TRUE(rejilla()->viewport()->rect().contains(fila.center()));
}

struct CasoFlecha {
    int columna;
    const char16_t *visible, *oculta;
    QStringList nombres;
};

TEST_F(PantallaLista, CabeceraYFlechaOrdenan) {
    abrir(QStringLiteral("A"));
    const QString a = QStringLiteral("ANA"), e = QStringLiteral("EVA"), l = QStringLiteral("LUIS");
    const CasoFlecha casos[] = {{1, u"picasc", u"picdesc", {l, a, e}},
                                {2, u"picasc", u"picdesc", {a, e, l}},
                                {3, u"picasc", u"picdesc", {a, e, l}},
                                {4, u"picdesc", u"picasc", {l, e, a}}};
    EXPECT_TRUE(control(u"picdesc")->isVisible());
    pulsarCelda(2, 1);
    for (const auto& caso : casos) {
        pulsarCabecera(caso.columna);
        EXPECT_EQ(columna(2), caso.nombres) << caso.columna;
        EXPECT_EQ(lista.ORDEN, QString::number(caso.columna));
        EXPECT_TRUE(control(caso.visible)->isVisible());
        EXPECT_FALSE(control(caso.oculta)->isVisible());
        auto* flecha = control(caso.visible);
        const int mitad = flecha->geometry().center().x();
        EXPECT_EQ(rejilla()->horizontalHeader()->logicalIndexAt(mitad), caso.columna);
        EXPECT_EQ(lista.csde, ana) << "the selection stays";
        EXPECT_EQ(filaMarcada(), columna(2).indexOf(a) + 1);
    }
    QTest::mouseClick(control(u"picdesc"), Qt::LeftButton);
    EXPECT_EQ(lista.TIPOORDEN, QStringLiteral("ASC"));
    EXPECT_EQ(columna(2), (QStringList{a, e, l}));
    QTest::mouseClick(control(u"picasc"), Qt::LeftButton);
    EXPECT_EQ(columna(2), (QStringList{l, e, a}));
}

TEST_F(PantallaLista, TipoYApartadosNoOrdenan) {
    abrir(QStringLiteral("A"));
    const QStringList antes = columna(2);
    for (const int c : {5, 6}) {
        pulsarCabecera(c);
        EXPECT_EQ(lista.ORDEN, QStringLiteral("1"));
        EXPECT_EQ(lista.TIPOORDEN, QStringLiteral("DESC"));
        EXPECT_EQ(columna(2), antes);
    }
}

TEST_F(PantallaLista, ConUnOrdenDesconocidoNoHayFlecha) {
    lista.ORDEN = QStringLiteral("0");
    abrir(QStringLiteral("P"));
    EXPECT_FALSE(control(u"picasc")->isVisible());
    EXPECT_FALSE(control(u"picdesc")->isVisible());
}

TEST_F(PantallaLista, EnEuskera) {
    enEuskera();
    abrir(QStringLiteral("E"));
    EXPECT_EQ(pantalla->windowTitle(), estado.textos.Texto(10593));
    EXPECT_EQ(celda(2, 4), QStringLiteral("2002/01/01"));
    EXPECT_EQ(celda(2, 5), estado.textos.Texto(10583));
    EXPECT_EQ(rotulo(u"lblResultado"), u'3' + estado.textos.Texto(10575));
}

TEST_F(PantallaLista, ElTabuladorSaleDeLaRejilla) {
    abrir(QStringLiteral("A"));
    tecla(Qt::Key_Tab);
    EXPECT_NE(QApplication::focusWidget(), rejilla());
    tecla(Qt::Key_Backtab);
    EXPECT_EQ(QApplication::focusWidget(), rejilla());
}

}  // namespace
}  // namespace padral::pruebas
