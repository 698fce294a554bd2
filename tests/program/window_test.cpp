// The main window: menus, tool bar, commands, the ways out.

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QTabBar>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <QWindow>

#include "window_fixture.h"

namespace padral::pruebas {

namespace {

using Ventana = ConPrograma;

struct TextoDe {
    const char* nombre;
    int texto;
};

constexpr TextoDe Menus[] = {{"mnudeclaraciones", 627},
                             {"mnuutilidades", 631},
                             {"mnuAsistenciaOnline", 830},
                             {"mnuayuda", 648}};
constexpr TextoDe Entradas[] = {{"mnuabrir", 646},      {"mnueliminar", 647},
                                {"mnunueva", 630},      {"mnuBackup", 828},
                                {"mnuRestore", 829},    {"mnuPreferencias", 814},
                                {"mnuAsisOnline", 830}, {"mnuDescripAsisOnline", 831},
                                {"mnucontenido", 700},  {"mnuabout", 701}};
constexpr TextoDe Botones[] = {
    {"Nueva", 642}, {"Abrir", 643}, {"Borrar", 644}, {"Salir", 645}, {"Ayuda", 633}};

TEST_F(Ventana, TextsOfBothLanguages) {
    for (const QString& idioma : {QStringLiteral("C"), QStringLiteral("E")}) {
        arrancar(idioma);
        EXPECT_EQ(ventana().windowTitle(), texto(641));
        for (const auto& m : Menus) EXPECT_EQ(menu(m.nombre)->title(), texto(m.texto)) << m.nombre;
        for (const auto& e : Entradas)
            EXPECT_EQ(accion(e.nombre)->text(), texto(e.texto)) << e.nombre;
        for (const auto& b : Botones)
            EXPECT_EQ(accion(b.nombre)->toolTip(), texto(b.texto)) << b.nombre;
    }
}

TEST_F(Ventana, ToolBarPositions) {
    const auto* barra = ventana().findChild<QToolBar*>(QStringLiteral("tbrbarrabotones"));
    ASSERT_NE(barra, nullptr);
    const char* const claves[] = {"", "Nueva", "Abrir", "Borrar", "Salir", "", "Ayuda"};
    const auto acciones = barra->actions();
    ASSERT_EQ(acciones.size(), 7);
    for (int i = 0; i < 7; ++i) {
        EXPECT_EQ(acciones[i]->isSeparator(), i == 0 || i == 5) << i + 1;
        EXPECT_EQ(acciones[i]->objectName(), QString::fromLatin1(claves[i])) << i + 1;
    }
}

TEST_F(Ventana, AnEmptyStoreOffersOnlyANewDeclaration) {
    EXPECT_TRUE(menu("mnudeclaraciones")->isEnabled());
    EXPECT_TRUE(menu("mnuutilidades")->isEnabled());
    for (const char* nombre : {"Nueva", "mnunueva", "Salir", "Ayuda", "mnucontenido", "mnuabout"})
        EXPECT_TRUE(accion(nombre)->isEnabled()) << nombre;
    for (const char* nombre : {"Abrir", "Borrar", "mnuabrir", "mnueliminar"})
        EXPECT_FALSE(accion(nombre)->isEnabled()) << nombre;
}

TEST_F(Ventana, ADeclarationInTheStoreTurnsTheListsOn) {
    guardarUna();
    EXPECT_EQ(estado().mdi.NUMDECLA, 1);
    for (const char* nombre : {"Nueva", "Abrir", "Borrar", "mnuabrir", "mnueliminar"})
        EXPECT_TRUE(accion(nombre)->isEnabled()) << nombre;
}

TEST_F(Ventana, CommandsAreOffWhileAScreenIsOpen) {
    guardarUna();
    for (const char* orden : {"Nueva", "Abrir"}) {
        guia().Ordenar(QString::fromLatin1(orden));
        EXPECT_FALSE(menu("mnudeclaraciones")->isEnabled()) << orden;
        EXPECT_FALSE(menu("mnuutilidades")->isEnabled()) << orden;
        for (const char* nombre : {"Nueva", "Abrir", "Borrar"})
            EXPECT_FALSE(accion(nombre)->isEnabled()) << orden << ' ' << nombre;
        for (const char* nombre : {"Salir", "Ayuda"})
            EXPECT_TRUE(accion(nombre)->isEnabled()) << orden << ' ' << nombre;
        guia().Pulsar(pantalla("FrmDatGen") ? QStringLiteral("cmdCancelar")
                                            : QStringLiteral("cmdAnterior"));
        EXPECT_TRUE(accion("Nueva")->isEnabled());
    }
}

TEST_F(Ventana, NewStartsBlankWithNothingPending) {
    estado().ModificacionesPendientes = true;
    programa_->declaracion().csde = 7;
    guia().Ordenar(QStringLiteral("mnunueva"));
    ASSERT_NE(pantalla("FrmDatGen"), nullptr);
    EXPECT_EQ(programa_->declaracion().Modo, QStringLiteral("A"));
    EXPECT_EQ(programa_->declaracion().csde, 0);
    EXPECT_EQ(estado().FormularioOrigen, QStringLiteral("MDIPadral"));
    EXPECT_FALSE(estado().ModificacionesPendientes);
    EXPECT_EQ(QApplication::focusWidget(), guia().Control(QStringLiteral("txtDNI")));
}

TEST_F(Ventana, MenusStandInTheirOrder) {
    const auto nombres = [](const QList<QAction*>& acciones) {
        QStringList lista;
        for (const auto* a : acciones)
            lista << (a->menu() ? a->menu()->objectName() : a->objectName());
        return lista.join(u' ');
    };
    EXPECT_EQ(nombres(ventana().menuBar()->actions()),
              QStringLiteral("mnudeclaraciones mnuutilidades mnuayuda"));
    EXPECT_EQ(nombres(menu("mnudeclaraciones")->actions()),
              QStringLiteral("mnuabrir mnueliminar mnunueva"));
    EXPECT_EQ(nombres(menu("mnuutilidades")->actions()),
              QStringLiteral("mnuBackup mnuRestore Separador mnuPreferencias mnuAsistenciaOnline"));
    EXPECT_EQ(nombres(menu("mnuAsistenciaOnline")->actions()),
              QStringLiteral("mnuDescripAsisOnline mnuAsisOnline"));
    EXPECT_EQ(nombres(menu("mnuayuda")->actions()), QStringLiteral("mnucontenido mnuabout"));
    EXPECT_TRUE(accion("Separador")->isSeparator());
}

TEST_F(Ventana, OpenAndDeleteEnterTheListInTheirMode) {
    guardarUna();
    const struct {
        const char* orden;
        const char* modo;
        int titulo;
        bool olvidaPendientes;  ///< the menu only
    } filas[] = {{"Abrir", "C", 556, false},
                 {"mnuabrir", "C", 556, true},
                 {"Borrar", "E", 593, false},
                 {"mnueliminar", "E", 593, true}};
    for (const auto& f : filas) {
        estado().ModificacionesPendientes = true;
        bool pendientes = false;
        // The list itself clears the flag when it loads: what the command left is seen before.
        pendientesAlMostrar(&pendientes);
        guia().Ordenar(QString::fromLatin1(f.orden));
        EXPECT_EQ(pendientes, !f.olvidaPendientes) << f.orden;
        ASSERT_NE(pantalla("FrmDecLista"), nullptr) << f.orden;
        EXPECT_EQ(programa_->declaracion().Modo, QString::fromLatin1(f.modo)) << f.orden;
        EXPECT_EQ(pantalla("FrmDecLista")->windowTitle(), texto(f.titulo)) << f.orden;
        EXPECT_EQ(estado().FormularioOrigen, QStringLiteral("MDIPadral")) << f.orden;
        EXPECT_EQ(QApplication::focusWidget(), guia().Control(QStringLiteral("flxDeclaraciones")));
        guia().Pulsar(QStringLiteral("cmdAnterior"));
    }
}

TEST_F(Ventana, LeaveWithoutChangesEnds) {
    guia().Ordenar(QStringLiteral("Salir"));
    EXPECT_FALSE(ventana().isVisible());
}

TEST_F(Ventana, LeaveWithChangesWarnsAndStays) {
    guia().Ordenar(QStringLiteral("Nueva"));
    guia().Pulsar(QStringLiteral("chkDeclaracionInicio"));
    avisos.Espera({texto(665), texto(666), Icono::Exclamacion, Botones::Aceptar});
    guia().Ordenar(QStringLiteral("Salir"));
    EXPECT_TRUE(ventana().isVisible());
    EXPECT_NE(pantalla("FrmDatGen"), nullptr);
}

TEST_F(Ventana, ATypedValueCountsAsAChangeOnTheWayOut) {
    guia().Ordenar(QStringLiteral("Nueva"));
    guia().Control(QStringLiteral("txtNombre"))->setFocus();
    guia().Teclear(QStringLiteral("ANE"));
    ASSERT_FALSE(estado().ModificacionesPendientes);
    avisos.Espera({texto(665), texto(666), Icono::Exclamacion, Botones::Aceptar});
    guia().Ordenar(QStringLiteral("Salir"));
    EXPECT_EQ(programa_->declaracion().general.NOMBRE, QStringLiteral("ANE"));
}

TEST_F(Ventana, ARefusedFieldSwallowsTheWayOut) {
    guia().Ordenar(QStringLiteral("Nueva"));
    guia().Control(QStringLiteral("txtDNI"))->setFocus();
    guia().Teclear(QStringLiteral("12345678A"));
    avisos.Espera(texto(545), texto(158));
    guia().Ordenar(QStringLiteral("Salir"));
    EXPECT_TRUE(ventana().isVisible());
    EXPECT_EQ(QApplication::focusWidget(), guia().Control(QStringLiteral("txtDNI")));
}

TEST_F(Ventana, ClosingWithChangesWarnsAndEndsAllTheSame) {
    guia().Ordenar(QStringLiteral("Nueva"));
    guia().Pulsar(QStringLiteral("chkDeclaracionInicio"));
    avisos.Espera({texto(665), texto(666), Icono::Exclamacion, Botones::Aceptar});
    ventana().close();
    guia().Respirar();
    EXPECT_FALSE(ventana().isVisible());
    EXPECT_EQ(pantalla("FrmDatGen"), nullptr);
}

TEST_F(Ventana, UnloadsEveryScreenButTheOneNamed) {
    guia().Ordenar(QStringLiteral("Nueva"));
    ventana().DescargarTodosLosFormularios(QStringLiteral("FrmDatGen"));
    guia().Respirar();
    EXPECT_NE(pantalla("FrmDatGen"), nullptr);
    ventana().DescargarTodosLosFormularios(QStringLiteral("MDIPadral"));
    guia().Respirar();
    EXPECT_EQ(pantalla("FrmDatGen"), nullptr);
}

TEST_F(Ventana, EscNeverClosesAScreen) {
    guia().Ordenar(QStringLiteral("Nueva"));
    guia().Tecla(Qt::Key_Escape);
    EXPECT_NE(pantalla("FrmDatGen"), nullptr);
}

TEST_F(Ventana, TheWaitDropsKeysAndClicks) {
    guia().Ordenar(QStringLiteral("Nueva"));
    auto* nombre = guia().Busca<QLineEdit>(QStringLiteral("txtNombre"));
    nombre->setFocus();
    ventana().CursorEspera(true);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    EXPECT_TRUE(ventana().isEnabled());
    QTest::keyClick(nombre, Qt::Key_A);
    auto* cancelar = guia().Control(QStringLiteral("cmdCancelar"));
    QTest::mouseClick(ventana().windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      cancelar->mapTo(&ventana(), cancelar->rect().center()));
    ventana().CursorEspera(false);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(nombre->text(), QString());
    EXPECT_NE(pantalla("FrmDatGen"), nullptr);
    EXPECT_EQ(QApplication::focusWidget(), nombre);
}

TEST_F(Ventana, AChangeOfLanguageShowsInTheWindowAtOnce) {
    estado().mdi.IDI(QStringLiteral("E"));
    ventana().Anadir_captions();
    EXPECT_EQ(ventana().windowTitle(), estado().textos.Texto(10641));
    EXPECT_EQ(menu("mnuayuda")->title(), estado().textos.Texto(10648));
}

/// Access keys of what can be used on the screen that is open.
QStringList teclas(const QWidget& ventana) {
    QStringList todas;
    const auto tomar = [&](const QString& t) {
        const auto i = QString(t).replace(QStringLiteral("&&"), QStringLiteral("  ")).indexOf(u'&');
        if (i >= 0) todas << QString(t[i + 1]).toUpper();
    };
    for (const auto* boton : ventana.findChildren<QAbstractButton*>())
        if (boton->isVisibleTo(&ventana) && !qobject_cast<const QToolButton*>(boton))
            tomar(boton->text());
    for (const auto* barra : ventana.findChildren<QTabBar*>())
        for (int i = 0; i < barra->count(); ++i) tomar(barra->tabText(i));
    for (const auto* menuBarra : ventana.findChildren<QMenuBar*>())
        for (const auto* entrada : menuBarra->actions())
            if (entrada->isEnabled()) tomar(entrada->text());
    return todas;
}

TEST_F(Ventana, NoAccessKeyTwiceOnAScreen) {
    for (const QString& idioma : {QStringLiteral("C"), QStringLiteral("E")}) {
        arrancar(idioma);
        if (idioma == QStringLiteral("C")) guardarUna();
        for (const char* orden : {"Nueva", "Abrir", "Borrar"}) {
            guia().Ordenar(QString::fromLatin1(orden));
            auto lista = teclas(ventana());
            EXPECT_FALSE(lista.isEmpty());
            EXPECT_EQ(lista.removeDuplicates(), 0)
                << orden << ' ' << idioma.toStdString() << ' ' << lista.join(u' ').toStdString();
            guia().Pulsar(pantalla("FrmDatGen") ? QStringLiteral("cmdCancelar")
                                                : QStringLiteral("cmdAnterior"));
        }
    }
}

TEST_F(Ventana, TheWholeRoadOfADeclaration) {
    guardarUna();
    guardarUna(QStringLiteral("X1234567L"));
    guia().Ordenar(QStringLiteral("Abrir"));
    // A copy of the first row, saved unchanged.
    guia().Pulsar(QStringLiteral("CmdCopiarDeclaracion"));
    EXPECT_EQ(guia().Busca<QLineEdit>(QStringLiteral("txtDNI"))->text(),
              QStringLiteral("X1234567L"));
    guia().Pulsar(QStringLiteral("cmdAceptar"));
    EXPECT_EQ(estado().mdi.NUMDECLA, 3);
    guia().Ordenar(QStringLiteral("Borrar"));
    for (int quedan = 2; quedan >= 0; --quedan) {
        avisos.Espera({texto(591), texto(592), Icono::Exclamacion, Botones::SiNo}, Respuesta::Si);
        guia().Pulsar(QStringLiteral("CmdEliminar"));
        EXPECT_EQ(estado().mdi.NUMDECLA, quedan);
    }
    // The last one gone, the list is left too.
    EXPECT_EQ(pantalla("FrmDecLista"), nullptr);
    EXPECT_FALSE(accion("Abrir")->isEnabled());
    EXPECT_TRUE(accion("Nueva")->isEnabled());
}

TEST_F(Ventana, LanguageDialogStoresTheAnswersAtOnce) {
    estado().act.ActOnline = -1;
    ASSERT_TRUE(ventana().primerArranque);
    guia().AlDialogo(QStringLiteral("FrmIdioma"), [this](QWidget* dialogo) {
        EXPECT_EQ(dialogo->windowTitle(), QStringLiteral("Hautatu Hizkuntza/Selección de idioma"));
        // The load itself turned "never decided" into 1.
        EXPECT_EQ(estado().act.ActOnline, 1);
        EXPECT_EQ(QApplication::focusWidget(), guia().Control(QStringLiteral("cmdcastellano")));
        guia().Pulsar(QStringLiteral("chkActOnline"));
        EXPECT_EQ(estado().act.ActOnline, 0);
        guia().Pulsar(QStringLiteral("cmdeuskera"));
    });
    ventana().primerArranque();
    EXPECT_EQ(estado().mdi.IDI(), QStringLiteral("E"));
    EXPECT_EQ(menu("mnuayuda")->title(), estado().textos.Texto(10648));
    cActOnline guardado;
    guardado.LeerActOnline(estado().RutaBDModificacion);
    EXPECT_EQ(guardado.ActOnline, 0);
    cMDIPadral leido(estado());
    leido.LeerIdioma();
    EXPECT_EQ(leido.IDI(), QStringLiteral("E"));
}

TEST_F(Ventana, AboutBoxTellsTheVersion) {
    const struct {
        const char* idioma;
        const char* version;
        const char* titulo;
    } filas[] = {{"C", "Versión 1.30.1", "Declaración Padral."},
                 {"E", "1.30.1 bertsioa", "Padral Aitorpena."}};
    for (const auto& f : filas) {
        arrancar(QString::fromLatin1(f.idioma));
        guia().AlDialogo(QStringLiteral("frmAbout"), [&](QWidget* dialogo) {
            EXPECT_EQ(dialogo->windowTitle(), texto(701));
            const auto leer = [&](const char* n) {
                return dialogo->findChild<QLabel*>(QString::fromLatin1(n))->text();
            };
            EXPECT_EQ(leer("lblVersion"), QString::fromUtf8(f.version));
            EXPECT_EQ(leer("lblTitle"), QString::fromUtf8(f.titulo));
            guia().Pulsar(QStringLiteral("cmdOK"));
        });
        guia().Ordenar(QStringLiteral("mnuabout"));
    }
}

}  // namespace

}  // namespace padral::pruebas
