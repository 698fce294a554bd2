#include "core/help/help_window.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QToolButton>

#include "support/recorders.h"

using namespace padral;
using namespace padral::pruebas;

namespace {

class Ayuda : public ::testing::Test {
protected:
    Ayuda() {
        estado.CarpetaPrograma = carpeta.path();
        escribir(QStringLiteral("Ayuda/indice.htm"),
                 "<h1>Índice</h1><p><a href='lista.htm'>lista</a> "
                 "<a href='nada.htm'>nada</a></p>");
        escribir(QStringLiteral("Ayuda/lista.htm"), "<h1>La lista</h1>");
        escribir(QStringLiteral("Laguntza/aurkibidea.htm"), "<h1>Aurkibidea</h1>");
    }

    void escribir(const QString& nombre, const char* html) {
        const QString ruta = carpeta.path() + QStringLiteral("/Ayuda/") + nombre;
        QDir().mkpath(QFileInfo(ruta).path());
        QFile fichero(ruta);
        ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
        fichero.write(html);
    }
    void mostrar(const QString& tema) { MostrarAyuda(estado, tema, &formulario); }
    QWidget* ventana() const { return formulario.findChild<QWidget*>(QStringLiteral("frmAyuda")); }
    QTextBrowser* navegador() const { return ventana()->findChild<QTextBrowser*>(); }
    QString texto() const { return navegador()->toPlainText(); }
    QToolButton* boton(const char16_t* nombre) const {
        return ventana()->findChild<QToolButton*>(QString::fromUtf16(nombre));
    }
    // A click on the link that shows `rotulo`.
    void seguir(const QString& rotulo) {
        QTextCursor sitio = navegador()->document()->find(rotulo);
        ASSERT_FALSE(sitio.isNull());
        sitio.setPosition(sitio.selectionStart() + 1);
        QTest::mouseClick(navegador()->viewport(), Qt::LeftButton, Qt::NoModifier,
                          navegador()->cursorRect(sitio).center());
    }

    GrabadorAvisos avisos;
    RelojFijo reloj;
    EstadoCompartido estado{avisos, reloj};
    QTemporaryDir carpeta;
    QWidget formulario;
};

TEST_F(Ayuda, LaDireccionSigueElIdioma) {
    const QChar s = QDir::separator();
    const QString carpetaAyuda = QStringLiteral("C") + s + QStringLiteral("Ayuda") + s;
    EXPECT_EQ(DireccionAyuda(estado, QStringLiteral("C"), QStringLiteral("indice.htm")),
              carpetaAyuda + QStringLiteral("Ayuda.chm::/indice.htm"));
    estado.DesplazamientoIdioma = CatalogoTextos::DesplazamientoEuskera;
    EXPECT_EQ(DireccionAyuda(estado, QStringLiteral("C"), QStringLiteral("aurkibidea.htm")),
              carpetaAyuda + QStringLiteral("Laguntza.chm::/aurkibidea.htm"));
}

TEST_F(Ayuda, LaPaginaEstaJuntoAlFichero) {
    EXPECT_EQ(PaginaAyuda(QStringLiteral("/p/Ayuda/Laguntza.chm::/zerrenda.htm")),
              QStringLiteral("/p/Ayuda/Laguntza/zerrenda.htm"));
}

TEST_F(Ayuda, MuestraElTemaEnSuVentana) {
    mostrar(QStringLiteral("indice.htm"));
    ASSERT_NE(ventana(), nullptr);
    EXPECT_TRUE(ventana()->isVisible());
    EXPECT_FALSE(ventana()->isModal());
    EXPECT_EQ(ventana()->windowTitle(), QStringLiteral("Ayuda"));
    EXPECT_TRUE(texto().startsWith(QStringLiteral("Índice"))) << texto().toStdString();
    EXPECT_EQ(boton(u"cmdAtras")->text(), QStringLiteral("Atrás"));
    EXPECT_FALSE(boton(u"cmdAtras")->isEnabled());
    EXPECT_FALSE(boton(u"cmdAdelante")->isEnabled());
}

TEST_F(Ayuda, HablaEuskera) {
    estado.DesplazamientoIdioma = CatalogoTextos::DesplazamientoEuskera;
    mostrar(QStringLiteral("aurkibidea.htm"));
    EXPECT_EQ(ventana()->windowTitle(), QStringLiteral("Laguntza"));
    EXPECT_EQ(texto(), QStringLiteral("Aurkibidea"));
    EXPECT_EQ(boton(u"cmdIndice")->text(), QStringLiteral("Aurkibidea"));
}

TEST_F(Ayuda, SeVaYSeVuelvePorLosEnlaces) {
    mostrar(QStringLiteral("indice.htm"));
    seguir(QStringLiteral("lista"));
    EXPECT_EQ(texto(), QStringLiteral("La lista"));
    QTest::mouseClick(boton(u"cmdAtras"), Qt::LeftButton);
    EXPECT_TRUE(texto().startsWith(QStringLiteral("Índice")));
    QTest::mouseClick(boton(u"cmdAdelante"), Qt::LeftButton);
    EXPECT_EQ(texto(), QStringLiteral("La lista"));
    QTest::mouseClick(boton(u"cmdIndice"), Qt::LeftButton);
    EXPECT_TRUE(texto().startsWith(QStringLiteral("Índice")));
}

TEST_F(Ayuda, UnaPaginaQueFaltaSeDice) {
    mostrar(QStringLiteral("impresion<1>.htm"));
    EXPECT_EQ(texto(), QStringLiteral("No se encuentra la página de ayuda «impresion<1>.htm»."));
    estado.DesplazamientoIdioma = CatalogoTextos::DesplazamientoEuskera;
    mostrar(QStringLiteral("inprimatzea.htm"));
    EXPECT_EQ(texto(), QStringLiteral("Ez da «inprimatzea.htm» laguntza-orria aurkitu."));
}

TEST_F(Ayuda, UnEnlaceRotoSeDiceYSeVuelve) {
    mostrar(QStringLiteral("indice.htm"));
    seguir(QStringLiteral("nada"));
    EXPECT_EQ(texto(), QStringLiteral("No se encuentra la página de ayuda «nada.htm»."));
    QTest::mouseClick(boton(u"cmdAtras"), Qt::LeftButton);
    EXPECT_TRUE(texto().startsWith(QStringLiteral("Índice")));
}

TEST_F(Ayuda, LaVentanaAbiertaSirveOtraVez) {
    mostrar(QStringLiteral("indice.htm"));
    QWidget* primera = ventana();
    mostrar(QStringLiteral("lista.htm"));
    EXPECT_EQ(ventana(), primera);
    EXPECT_EQ(texto(), QStringLiteral("La lista"));
    EXPECT_EQ(formulario.findChildren<QWidget*>(QStringLiteral("frmAyuda")).size(), 1);
}

TEST_F(Ayuda, UnaPaginaCambiadaSeLeeOtraVez) {
    mostrar(QStringLiteral("lista.htm"));
    escribir(QStringLiteral("Ayuda/lista.htm"), "<h1>Otra</h1>");
    mostrar(QStringLiteral("lista.htm"));
    EXPECT_EQ(texto(), QStringLiteral("Otra"));
}

TEST_F(Ayuda, CerradaSeVaYNoAlargaElPrograma) {
    mostrar(QStringLiteral("indice.htm"));
    QPointer<QWidget> abierta = ventana();
    EXPECT_FALSE(abierta->testAttribute(Qt::WA_QuitOnClose));
    abierta->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(abierta.isNull());
    mostrar(QStringLiteral("lista.htm"));
    EXPECT_EQ(texto(), QStringLiteral("La lista"));
}

// The folder of an installed program cannot be written; its data, not its help, lie elsewhere.
TEST_F(Ayuda, SinCarpetaPropiaSeBuscaJuntoAlPrograma) {
    QTemporaryDir otra;
    estado.CarpetaPrograma = otra.path();
    mostrar(QStringLiteral("indice.htm"));
    const QString esperada =
        QCoreApplication::applicationDirPath() + QStringLiteral("/Ayuda/Ayuda/indice.htm");
    EXPECT_EQ(navegador()->source().toLocalFile(), esperada);
}

}  // namespace
