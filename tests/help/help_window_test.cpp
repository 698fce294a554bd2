// The help window: pages, ways back and on, contents, keys.

#include "core/help/help_window.h"

#include <QDialog>
#include <QPointer>
#include <QSplitter>
#include <QTest>
#include <QToolButton>

#include "window_fixture.h"

namespace padral::pruebas {
namespace {

using Ventana = ConVentana;

TEST_F(Ventana, ShowsTheTopicAndIsNotModal) {
    mostrar(u"indice.htm");
    ASSERT_NE(ventana(), nullptr);
    EXPECT_TRUE(ventana()->isVisible());
    EXPECT_FALSE(ventana()->isModal());
    EXPECT_EQ(ventana()->windowTitle(), QStringLiteral("Ayuda"));
    EXPECT_TRUE(texto().startsWith(QStringLiteral("Índice"))) << texto().toStdString();
    EXPECT_EQ(hijo<QToolButton>(u"cmdAtras")->text(), QStringLiteral("Atrás"));
    EXPECT_FALSE(hijo<QToolButton>(u"cmdAtras")->isEnabled());
    EXPECT_FALSE(hijo<QToolButton>(u"cmdAdelante")->isEnabled());
}

TEST_F(Ventana, SpeaksBasque) {
    enEuskera();
    mostrar(u"aurkibidea.htm");
    EXPECT_EQ(ventana()->windowTitle(), QStringLiteral("Laguntza"));
    EXPECT_EQ(texto(), QStringLiteral("Aurkibidea"));
    EXPECT_EQ(hijo<QToolButton>(u"cmdIndice")->text(), QStringLiteral("Aurkibidea"));
    EXPECT_EQ(arbol()->topLevelItem(1)->text(0), QStringLiteral("Zerrenda"));
}

TEST_F(Ventana, LinksLeadOnAndTheButtonsBack) {
    mostrar(u"indice.htm");
    seguir(QStringLiteral("lista"));
    EXPECT_TRUE(texto().startsWith(QStringLiteral("La lista")));
    QTest::mouseClick(hijo<QToolButton>(u"cmdAtras"), Qt::LeftButton);
    EXPECT_TRUE(texto().startsWith(QStringLiteral("Índice")));
    QTest::mouseClick(hijo<QToolButton>(u"cmdAdelante"), Qt::LeftButton);
    EXPECT_TRUE(texto().startsWith(QStringLiteral("La lista")));
    QTest::mouseClick(hijo<QToolButton>(u"cmdIndice"), Qt::LeftButton);
    EXPECT_TRUE(texto().startsWith(QStringLiteral("Índice")));
}

TEST_F(Ventana, KeysLeadBackOnAndToTheStart) {
    mostrar(u"indice.htm");
    seguir(QStringLiteral("lista"));
    tecla(Qt::Key_Left, Qt::AltModifier);
    EXPECT_TRUE(texto().startsWith(QStringLiteral("Índice")));
    tecla(Qt::Key_Right, Qt::AltModifier);
    EXPECT_TRUE(texto().startsWith(QStringLiteral("La lista")));
    tecla(Qt::Key_Home, Qt::AltModifier);
    EXPECT_TRUE(texto().startsWith(QStringLiteral("Índice")));
}

TEST_F(Ventana, TheContentsShowTheLevelsAndThePageInHand) {
    mostrar(u"lista.htm");
    ASSERT_EQ(arbol()->topLevelItemCount(), 2);
    EXPECT_EQ(arbol()->topLevelItem(0)->text(0), QStringLiteral("Índice"));
    ASSERT_EQ(arbol()->topLevelItem(1)->childCount(), 1);
    EXPECT_EQ(arbol()->topLevelItem(1)->child(0)->text(0), QStringLiteral("El NIF"));
    EXPECT_TRUE(arbol()->topLevelItem(1)->isExpanded());
    EXPECT_EQ(enMano(), QStringLiteral("La lista"));
    mostrar(u"nif.htm");
    EXPECT_EQ(enMano(), QStringLiteral("El NIF"));
    tecla(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(enMano(), QStringLiteral("La lista"));
    mostrar(u"nada.htm");
    EXPECT_EQ(enMano(), QString());
}

TEST_F(Ventana, TheContentsOpenAPageByClickAndByEnter) {
    mostrar(u"indice.htm");
    auto* lista = arbol()->topLevelItem(1);
    QTest::mouseClick(arbol()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      arbol()->visualItemRect(lista).center());
    EXPECT_TRUE(texto().startsWith(QStringLiteral("La lista")));
    QTest::keyClick(arbol(), Qt::Key_Down);
    EXPECT_TRUE(texto().startsWith(QStringLiteral("La lista")));
    QTest::keyClick(arbol(), Qt::Key_Return);
    EXPECT_TRUE(texto().startsWith(QStringLiteral("El NIF")));
    // One page further each time, however it was chosen.
    tecla(Qt::Key_Left, Qt::AltModifier);
    tecla(Qt::Key_Left, Qt::AltModifier);
    EXPECT_TRUE(texto().startsWith(QStringLiteral("Índice")));
    EXPECT_FALSE(hijo<QToolButton>(u"cmdAtras")->isEnabled());
}

TEST_F(Ventana, AMissingPageIsSaid) {
    mostrar(u"impresion<1>.htm");
    EXPECT_EQ(texto(), QStringLiteral("No se encuentra la página de ayuda «impresion<1>.htm»."));
    enEuskera();
    mostrar(u"inprimatzea.htm");
    EXPECT_EQ(texto(), QStringLiteral("Ez da «inprimatzea.htm» laguntza-orria aurkitu."));
}

TEST_F(Ventana, ABrokenLinkIsSaidAndLeadsBack) {
    mostrar(u"indice.htm");
    seguir(QStringLiteral("nada"));
    EXPECT_EQ(texto(), QStringLiteral("No se encuentra la página de ayuda «nada.htm»."));
    QTest::mouseClick(hijo<QToolButton>(u"cmdAtras"), Qt::LeftButton);
    EXPECT_TRUE(texto().startsWith(QStringLiteral("Índice")));
}

TEST_F(Ventana, TheOpenWindowServesAgain) {
    mostrar(u"indice.htm");
    QWidget* primera = ventana();
    mostrar(u"lista.htm");
    EXPECT_EQ(ventana(), primera);
    EXPECT_TRUE(texto().startsWith(QStringLiteral("La lista")));
    EXPECT_EQ(formulario.findChildren<QWidget*>(QStringLiteral("frmAyuda")).size(), 1);
}

TEST_F(Ventana, AnotherLanguageBringsItsContentsAndNoWayBack) {
    mostrar(u"indice.htm");
    mostrar(u"lista.htm");
    enEuskera();
    mostrar(u"zerrenda.htm");
    EXPECT_EQ(texto(), QStringLiteral("Zerrenda"));
    EXPECT_EQ(enMano(), QStringLiteral("Zerrenda"));
    EXPECT_FALSE(hijo<QToolButton>(u"cmdAtras")->isEnabled());
    QTest::mouseClick(hijo<QToolButton>(u"cmdIndice"), Qt::LeftButton);
    EXPECT_EQ(texto(), QStringLiteral("Aurkibidea"));
}

TEST_F(Ventana, AChangedPageIsReadAgain) {
    mostrar(u"lista.htm");
    escribir(QStringLiteral("Ayuda/lista.htm"), "<h1>Otra</h1>");
    mostrar(u"lista.htm");
    EXPECT_EQ(texto(), QStringLiteral("Otra"));
}

TEST_F(Ventana, EscClosesItAndItDoesNotKeepTheProgram) {
    mostrar(u"indice.htm");
    const QPointer<QWidget> abierta = ventana();
    EXPECT_FALSE(abierta->testAttribute(Qt::WA_QuitOnClose));
    tecla(Qt::Key_Escape);
    EXPECT_TRUE(!abierta || !abierta->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(abierta.isNull());
    mostrar(u"lista.htm");
    EXPECT_TRUE(texto().startsWith(QStringLiteral("La lista")));
}

TEST_F(Ventana, BelongsToAModalDialogSoThatItCanBeUsedOverIt) {
    mostrar(u"indice.htm");
    QDialog dialogo(&formulario);
    dialogo.open();
    mostrar(u"lista.htm");
    auto* encima = dialogo.findChild<VentanaAyuda*>();
    ASSERT_NE(encima, nullptr);
    EXPECT_TRUE(encima->isVisible());
    EXPECT_TRUE(QTest::qWaitForWindowActive(encima));
    EXPECT_EQ(QApplication::activeModalWidget(), &dialogo);
    auto* navegador = encima->findChild<QTextBrowser*>();
    EXPECT_TRUE(navegador->toPlainText().startsWith(QStringLiteral("La lista")));
    // A click from the window system reaches it, though the dialog is modal.
    auto* inicio = encima->findChild<QToolButton*>(QStringLiteral("cmdIndice"));
    QTest::mouseClick(encima->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      inicio->mapTo(encima, inicio->rect().center()));
    EXPECT_TRUE(navegador->toPlainText().startsWith(QStringLiteral("Índice")));
}

// Half of the smallest desktop: what is left at twice the size.
TEST_F(Ventana, FitsASmallDesktop) {
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        mostrar(euskera ? u"aurkibidea.htm" : u"indice.htm");
        ventana()->resize(500, 325);
        QCoreApplication::processEvents();
        EXPECT_EQ(ventana()->size(), QSize(500, 325));
        for (const char16_t* nombre : {u"cmdAtras", u"cmdAdelante", u"cmdIndice"}) {
            auto* boton = hijo<QToolButton>(nombre);
            EXPECT_GE(boton->width(), boton->sizeHint().width());
            EXPECT_TRUE(ventana()->rect().contains(boton->geometry()));
        }
        EXPECT_GE(navegador()->width(), 200);
        EXPECT_GE(arbol()->width(), 100);
    }
    EXPECT_NE(ventana()->findChild<QSplitter*>(), nullptr);
}

}  // namespace
}  // namespace padral::pruebas
