// The list that lies over a screen while a row is picked.

#include "ui/pick_list.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>

#include "ui/window_fixture.h"

namespace padral::pruebas {
namespace {

Tabla tablaDe(int filas, const QString& texto = QStringLiteral("Fila %1")) {
    Tabla tabla(2);
    for (int i = 1; i <= filas; ++i)
        tabla.Anadir({QStringLiteral("C%1").arg(i), texto.arg(i, 3, 10, QChar(u'0'))});
    return tabla;
}

/// A screen higher and wider than the scroll area that shows it.
class ListaSobrePantalla : public ::testing::Test {
protected:
    void SetUp() override {
        pantalla->setFixedSize(1200, 1500);
        area->setWidget(pantalla);
        vecino->setGeometry(0, 0, 1200, 1500);
        campo->setGeometry(40, 60, 80, 26);
        boton->setGeometry(130, 60, 40, 26);
        siguiente->setGeometry(180, 60, 80, 26);
        lejos->setGeometry(500, 60, 80, 26);
        ventana.setCentralWidget(area);
        menu = ventana.menuBar()->addMenu(QStringLiteral("&Ayuda"));
        menu->addAction(QStringLiteral("algo"));
        ventana.resize(700, 500);
        ventana.show();
        ventana.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
        campo->setFocus();
        QObject::connect(
            lista, &ListaEleccion::elegida,
            [this](const QString& clave, const QString& texto, bool conIntro) {
                EXPECT_TRUE(lista->isHidden());
                hechos << QStringList{clave, texto,
                                      conIntro ? QStringLiteral("intro") : QStringLiteral("doble")}
                              .join(u'|');
            });
        QObject::connect(lista, &ListaEleccion::abandonada, [this] {
            EXPECT_TRUE(lista->isHidden());
            hechos << QStringLiteral("abandonada");
        });
    }
    void abrir(int filas, const QString& texto = {}) {
        lista->Cargar(tablaDe(filas));
        lista->Abrir(texto, campo);
        QCoreApplication::processEvents();
    }
    /// What the scroll area lets through, in the screen's coordinates.
    QRect aLaVista() {
        return {pantalla->mapFrom(area->viewport(), QPoint()), area->viewport()->size()};
    }
    QString actual() const {
        return lista->currentItem() ? lista->currentItem()->text() : QString();
    }
    bool seVeElActual() const {
        return lista->viewport()->rect().contains(lista->visualItemRect(lista->currentItem()));
    }

    QStringList hechos;
    QMainWindow ventana;
    QScrollArea* area = new QScrollArea;
    QWidget* pantalla = new QWidget;
    CampoTexto* campo = new CampoTexto(QStringLiteral("campo"), 20, pantalla);
    QPushButton* boton = new QPushButton(pantalla);
    CampoTexto* siguiente = new CampoTexto(QStringLiteral("siguiente"), 9, pantalla);
    CampoTexto* lejos = new CampoTexto(QStringLiteral("lejos"), 9, pantalla);
    ListaEleccion* lista = new ListaEleccion(QStringLiteral("lstProvFis"), pantalla);
    QLabel* vecino = new QLabel(pantalla);
    QMenu* menu = nullptr;
};

TEST_F(ListaSobrePantalla, EmpiezaEscondidaConSuNombre) {
    EXPECT_TRUE(lista->isHidden());
    EXPECT_EQ(lista->objectName(), QStringLiteral("lstProvFis"));
    EXPECT_FALSE(lista->isWindow());
}

TEST_F(ListaSobrePantalla, CargarTomaLasFilasEnSuOrden) {
    Tabla tabla(2);
    tabla.Anadir({QStringLiteral("C20"), QStringLiteral("Kelmaria")});
    tabla.Anadir({QStringLiteral("C1"), QStringLiteral("<b>Araba</b>")});
    for (int veces = 0; veces < 2; ++veces) lista->Cargar(tabla);
    ASSERT_EQ(lista->count(), 2);
    EXPECT_EQ(lista->item(0)->text(), QStringLiteral("Kelmaria"));
    EXPECT_EQ(lista->item(1)->text(), QStringLiteral("<b>Araba</b>"));
    lista->Cargar(Tabla());
    EXPECT_EQ(lista->count(), 0);
}

TEST_F(ListaSobrePantalla, Buscar) {
    Tabla tabla(2);
    tabla.Anadir({QStringLiteral("C20"), QStringLiteral("Kelmaria")});
    tabla.Anadir({QStringLiteral("CL"), QStringLiteral("Calle")});
    lista->Cargar(tabla);
    const std::pair<const char16_t*, const char16_t*> casos[] = {
        {u"C20", u"Kelmaria"}, {u"c20", u"Kelmaria"}, {u"20", u"Kelmaria"}, {u"020", u"Kelmaria"},
        {u"cl", u"Calle"},     {u"C2", u""},          {u"", u""},           {u"Calle", u""}};
    for (const auto& [clave, texto] : casos)
        EXPECT_EQ(lista->Buscar(QString::fromUtf16(clave)), QString::fromUtf16(texto))
            << QString::fromUtf16(clave).toStdString();
}

TEST_F(ListaSobrePantalla, AlAbrirSeleccionaYTomaElFoco) {
    const std::pair<const char16_t*, const char16_t*> casos[] = {
        {u"", u"Fila 001"},         {u"Fila 040", u"Fila 040"}, {u"Fila 100", u"Fila 100"},
        {u"Fila 001", u"Fila 001"}, {u"Fila", u"Fila 001"},     {u"otra", u"Fila 001"}};
    for (const auto& [texto, seleccion] : casos) {
        abrir(100, QString::fromUtf16(texto));
        EXPECT_TRUE(lista->isVisible());
        EXPECT_TRUE(lista->hasFocus());
        EXPECT_EQ(actual(), QString::fromUtf16(seleccion));
        EXPECT_TRUE(lista->currentItem()->isSelected());
        EXPECT_TRUE(seVeElActual()) << QString::fromUtf16(texto).toStdString();
    }
}

TEST_F(ListaSobrePantalla, AlReabrirVuelveALaFilaQueSeHabiaPerdidoDeVista) {
    abrir(100, QStringLiteral("Fila 050"));
    lista->verticalScrollBar()->setValue(0);
    ASSERT_FALSE(seVeElActual());
    lista->Abrir(QStringLiteral("Fila 050"), campo);
    EXPECT_TRUE(seVeElActual());
}

TEST_F(ListaSobrePantalla, EsTanAltaComoSusFilasHastaDiez) {
    for (const auto& [filas, seVen] : {std::pair{1, 1}, {3, 3}, {10, 10}, {11, 10}, {500, 10}}) {
        abrir(filas);
        EXPECT_EQ(lista->viewport()->height(), seVen * lista->sizeHintForRow(0)) << filas;
        EXPECT_EQ(lista->verticalScrollBar()->isVisible(), filas > seVen) << filas;
    }
}

TEST_F(ListaSobrePantalla, EsTanAnchaComoSuFilaMasAncha) {
    for (const int puntos : {9, 18}) {
        QFont fuente = lista->font();
        fuente.setPointSize(puntos);
        lista->setFont(fuente);
        lista->Cargar(tablaDe(50, QStringLiteral("Una fila bastante larga %1")));
        lista->Abrir({}, campo);
        QCoreApplication::processEvents();
        EXPECT_GE(lista->viewport()->width(), lista->sizeHintForColumn(0));
        EXPECT_GE(lista->sizeHintForColumn(0),
                  lista->fontMetrics().horizontalAdvance(lista->item(49)->text()));
        EXPECT_FALSE(lista->horizontalScrollBar()->isVisible());
    }
}

struct CasoSitio {
    const char* nombre;
    QPoint desplazada;  ///< how far the screen is scrolled
    QPoint campo;       ///< in the visible part
    bool debajo;
};

const CasoSitio CasosSitio[] = {
    {"arriba", {0, 0}, {40, 20}, true},         {"abajo", {0, 0}, {40, 420}, false},
    {"derecha", {0, 0}, {640, 20}, true},       {"abajo derecha", {0, 0}, {640, 420}, false},
    {"desplazada", {300, 700}, {40, 20}, true}, {"desplazada abajo", {300, 700}, {640, 420}, false},
};

TEST_F(ListaSobrePantalla, QuedaJuntoAlCampoEnLaParteQueSeVe) {
    for (const auto& caso : CasosSitio) {
        area->horizontalScrollBar()->setValue(caso.desplazada.x());
        area->verticalScrollBar()->setValue(caso.desplazada.y());
        campo->move(caso.campo + caso.desplazada);
        abrir(100);
        EXPECT_TRUE(aLaVista().contains(lista->geometry())) << caso.nombre;
        EXPECT_EQ(lista->viewport()->height(), 10 * lista->sizeHintForRow(0)) << caso.nombre;
        EXPECT_FALSE(lista->geometry().intersects(campo->geometry())) << caso.nombre;
        EXPECT_EQ(lista->y() > campo->y(), caso.debajo) << caso.nombre;
    }
}

// In a low window it takes the room there is, and with next to none it covers its field.
TEST_F(ListaSobrePantalla, CabeEnVentanasBajas) {
    for (const auto& [alto, y, cubre] :
         {std::tuple{260, 20, false}, {260, 180, false}, {120, 40, true}, {90, 10, true}}) {
        ventana.resize(300, alto);
        QCoreApplication::processEvents();
        campo->move(40, y);
        abrir(100, QStringLiteral("Fila 050"));
        EXPECT_TRUE(aLaVista().contains(lista->geometry())) << alto << ' ' << y;
        EXPECT_EQ(lista->geometry().intersects(campo->geometry()), cubre) << alto << ' ' << y;
        EXPECT_TRUE(seVeElActual());
    }
}

TEST_F(ListaSobrePantalla, EstaPorEncimaDeSusVecinos) {
    vecino->raise();
    abrir(20);
    auto* encima = pantalla->childAt(lista->geometry().center());
    EXPECT_TRUE(encima == lista || lista->isAncestorOf(encima));
}

TEST_F(ListaSobrePantalla, IntroElige) {
    for (const auto tecla : {Qt::Key_Return, Qt::Key_Enter}) {
        abrir(20, QStringLiteral("Fila 004"));
        Teclear(lista, Qt::Key_Down);
        Teclear(lista, tecla);
    }
    EXPECT_EQ(hechos, QStringList(2, QStringLiteral("C5|Fila 005|intro")));
}

TEST_F(ListaSobrePantalla, UnIntroMantenidoNoEligeNiUnEscapeAbandona) {
    abrir(20);
    Repetir(lista, Qt::Key_Return);
    Repetir(lista, Qt::Key_Enter);
    Repetir(lista, Qt::Key_Escape);
    EXPECT_TRUE(lista->isVisible());
    EXPECT_EQ(hechos, QStringList());
}

TEST_F(ListaSobrePantalla, LaDoblePulsacionElige) {
    abrir(20);
    const QPoint tercera = lista->visualItemRect(lista->item(2)).center();
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, tercera);
    EXPECT_TRUE(lista->isVisible());
    EXPECT_EQ(hechos, QStringList()) << "one click only selects";
    QTest::mouseDClick(lista->viewport(), Qt::LeftButton, {}, tercera);
    EXPECT_EQ(hechos, QStringList{QStringLiteral("C3|Fila 003|doble")});
}

TEST_F(ListaSobrePantalla, EscapeLaEscondeSinElegir) {
    abrir(20);
    Teclear(lista, Qt::Key_Down);
    Teclear(lista, Qt::Key_Escape);
    EXPECT_EQ(hechos, QStringList{QStringLiteral("abandonada")});
    EXPECT_TRUE(campo->hasFocus()) << "where it was before";
}

TEST_F(ListaSobrePantalla, ElFocoVuelveAntesDeLaSenal) {
    boton->setFocus();
    QWidget* foco = nullptr;
    QObject::connect(lista, &ListaEleccion::elegida, [&] {
        foco = QApplication::focusWidget();
        lejos->setFocus();
    });
    abrir(20);
    Teclear(lista, Qt::Key_Return);
    EXPECT_EQ(foco, boton);
    EXPECT_TRUE(lejos->hasFocus());
}

TEST_F(ListaSobrePantalla, SinFilasIntroNoHaceNadaYEscapeSale) {
    abrir(0);
    EXPECT_TRUE(lista->hasFocus());
    Teclear(lista, Qt::Key_Return);
    EXPECT_TRUE(lista->isVisible());
    Teclear(lista, Qt::Key_Escape);
    EXPECT_EQ(hechos, QStringList{QStringLiteral("abandonada")});
}

TEST_F(ListaSobrePantalla, LasLetrasBuscanPorElPrincipio) {
    Tabla tabla(2);
    for (const auto* nombre : {u"Albacete", u"Burgos", u"Cuenca", u"Cádiz"})
        tabla.Anadir({QStringLiteral("C1"), QString::fromUtf16(nombre)});
    lista->Cargar(tabla);
    lista->Abrir({}, campo);
    Teclear(lista, Qt::Key_C);
    EXPECT_EQ(actual(), QStringLiteral("Cuenca"));
    EXPECT_EQ(hechos, QStringList());
}

TEST_F(ListaSobrePantalla, SeEscondeCuandoElFocoVaAOtroSitio) {
    const std::pair<const char*, std::function<void()>> casos[] = {
        {"clic", [this] { Pulsar(lejos); }},
        {"programa", [this] { lejos->setFocus(); }},
        {"tab", [this] { Teclear(lista, Qt::Key_Tab); }},
    };
    for (const auto& [nombre, ir] : casos) {
        campo->setFocus();
        abrir(3);
        ir();
        EXPECT_TRUE(lista->isHidden()) << nombre;
    }
    EXPECT_EQ(hechos, QStringList());
}

TEST_F(ListaSobrePantalla, TabSigueDesdeDondeSeAbrio) {
    for (const bool atras : {false, true}) {
        boton->setFocus();
        abrir(3);
        Teclear(lista, atras ? Qt::Key_Backtab : Qt::Key_Tab,
                atras ? Qt::ShiftModifier : Qt::NoModifier);
        EXPECT_EQ(QApplication::focusWidget(), atras ? static_cast<QWidget*>(boton) : siguiente);
    }
}

TEST_F(ListaSobrePantalla, SigueAbiertaMientrasHayOtraVentanaOUnMenu) {
    abrir(20);
    Teclear(lista, Qt::Key_A, Qt::AltModifier);
    ASSERT_TRUE(menu->isVisible());
    EXPECT_TRUE(lista->isVisible());
    QTest::keyClick(menu, Qt::Key_Escape);
    QTest::keyClick(ventana.menuBar(), Qt::Key_Escape);
    EXPECT_TRUE(lista->hasFocus());
    QLineEdit otraVentana;
    otraVentana.show();
    otraVentana.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&otraVentana));
    otraVentana.setFocus();
    ASSERT_TRUE(otraVentana.hasFocus());
    EXPECT_TRUE(lista->isVisible());
    otraVentana.close();
    ventana.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
    EXPECT_TRUE(lista->hasFocus());
}

// An unknown code opens the list while the focus is on its way to the next field.
TEST_F(ListaSobrePantalla, SeAbreAlDejarUnCampoVigilado) {
    GuardiaCampos guardia;
    guardia.Registrar(campo, [this] {
        if (!campo->text().isEmpty()) abrir(20);
        campo->clear();
        return true;
    });
    const std::pair<const char*, std::function<void()>> casos[] = {
        {"intro", [this] { Teclear(campo, Qt::Key_Return); }},
        {"tab", [this] { Teclear(campo, Qt::Key_Tab); }},
        {"clic", [this] { Pulsar(lejos); }},
    };
    for (const auto& [nombre, salir] : casos) {
        campo->setFocus();
        Escribir(campo, QStringLiteral("99"));
        salir();
        EXPECT_TRUE(lista->isVisible()) << nombre;
        EXPECT_TRUE(lista->hasFocus()) << nombre;
        Teclear(lista, Qt::Key_Return);
        EXPECT_TRUE(lista->isHidden()) << nombre;
    }
    EXPECT_EQ(hechos, QStringList(3, QStringLiteral("C1|Fila 001|intro")));
}

TEST_F(ListaSobrePantalla, OtraListaQueSeAbreEscondeLaPrimera) {
    auto* otra = new ListaEleccion(QStringLiteral("lstViaFis"), pantalla);
    otra->Cargar(tablaDe(5));
    abrir(20);
    otra->Abrir({}, boton);
    EXPECT_TRUE(lista->isHidden());
    EXPECT_TRUE(otra->hasFocus());
}

TEST_F(ListaSobrePantalla, SePuedeDestruirAbierta) {
    abrir(20);
    delete lista;
    EXPECT_EQ(pantalla->findChild<ListaEleccion*>(), nullptr);
}

}  // namespace
}  // namespace padral::pruebas
