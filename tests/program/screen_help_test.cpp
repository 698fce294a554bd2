// "Ayuda" and F1: the page of the screen in hand, in dialogs and boxes too.

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QTest>
#include <QTextBrowser>

#include "help/recording_viewer.h"
#include "window_fixture.h"

namespace padral::pruebas {

namespace {

/// The viewer is recorded.
class AyudaDePantalla : public ConPrograma, public ::testing::WithParamInterface<const char*> {
protected:
    void SetUp() override {
        visor_ = &visor;
        ConPrograma::SetUp();
        arrancar(QString::fromLatin1(GetParam()));
    }

    /// The address of the page in the language of the run.
    QStringList direccion(const char* castellano, const char* euskera) {
        const QString raiz = rutaAyuda() + QDir::separator();
        return {estado().SegunIdioma(
            raiz + QStringLiteral("Ayuda.chm::/") + QString::fromLatin1(castellano),
            raiz + QStringLiteral("Laguntza.chm::/") + QString::fromLatin1(euskera))};
    }
    /// What each way to the help opens: key, menu, tool bar.
    void esperarDeTodasLasFormas(const char* castellano, const char* euskera) {
        const QStringList esperada = direccion(castellano, euskera);
        guia().Tecla(Qt::Key_F1);
        EXPECT_EQ(visor.Tomar(), esperada) << "F1";
        for (const char* orden : {"mnucontenido", "Ayuda"}) {
            guia().Ordenar(QString::fromLatin1(orden));
            EXPECT_EQ(visor.Tomar(), esperada) << orden;
        }
        EXPECT_EQ(visor.Formulario, &ventana());
    }

    GrabadorVisor visor;
};

TEST_P(AyudaDePantalla, WithNothingOpenItIsTheStartPage) {
    QTest::keyClick(&ventana(), Qt::Key_F1);
    EXPECT_EQ(visor.Tomar(), direccion("indice.htm", "aurkibidea.htm"));
    for (const char* orden : {"mnucontenido", "Ayuda"}) {
        guia().Ordenar(QString::fromLatin1(orden));
        EXPECT_EQ(visor.Tomar(), direccion("indice.htm", "aurkibidea.htm")) << orden;
    }
}

TEST_P(AyudaDePantalla, OnAScreenItIsItsPage) {
    guardarUna();
    guia().Ordenar(QStringLiteral("Nueva"));
    esperarDeTodasLasFormas("datos_generales.htm", "datu_orokorrak.htm");
    guia().Pulsar(QStringLiteral("cmdCancelar"));
    for (const char* orden : {"Abrir", "Borrar"}) {
        guia().Ordenar(QString::fromLatin1(orden));
        esperarDeTodasLasFormas("lista.htm", "zerrenda.htm");
        guia().Pulsar(QStringLiteral("cmdAnterior"));
    }
    guia().Ordenar(QStringLiteral("Ayuda"));
    EXPECT_EQ(visor.Tomar(), direccion("indice.htm", "aurkibidea.htm"));
}

TEST_P(AyudaDePantalla, InThePrintDialogItIsItsPage) {
    guardarUna();
    guia().Ordenar(QStringLiteral("Abrir"));
    guia().Pulsar(QStringLiteral("cmdVerDeclaracion"));
    guia().Pulsar(QStringLiteral("cmdImprimir"));
    ASSERT_NE(pantalla("FrmImOf"), nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(pantalla("FrmImOf")));
    guia().Tecla(Qt::Key_F1);
    EXPECT_EQ(visor.Tomar(), direccion("impresion.htm", "inprimatzea.htm"));
    guia().Pulsar(QStringLiteral("btnCancelar"));
}

TEST_P(AyudaDePantalla, InTheOtherDialogsItIsTheirs) {
    guia().AlDialogo(QStringLiteral("frmAbout"), [&](QWidget*) {
        guia().Tecla(Qt::Key_F1);
        guia().Pulsar(QStringLiteral("cmdOK"));
    });
    guia().Ordenar(QStringLiteral("mnuabout"));
    EXPECT_EQ(visor.Tomar(), direccion("acerca.htm", "honi_buruz.htm"));
    const QStringList idioma = direccion("idioma.htm", "hizkuntza.htm");
    guia().AlDialogo(QStringLiteral("FrmIdioma"), [&](QWidget*) {
        guia().Tecla(Qt::Key_F1);
        EXPECT_EQ(visor.Tomar(), idioma);
        guia().Pulsar(QStringLiteral("cmdcastellano"));
    });
    ventana().primerArranque();
}

TEST_P(AyudaDePantalla, ABoxStandsForTheScreenItLiesOver) {
    guia().Ordenar(QStringLiteral("Nueva"));
    QMessageBox caja(&ventana());
    caja.setText(QStringLiteral("aviso"));
    caja.open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&caja));
    guia().Tecla(Qt::Key_F1);
    EXPECT_EQ(visor.Tomar(), direccion("datos_generales.htm", "datu_orokorrak.htm"));
}

TEST_P(AyudaDePantalla, AWindowOfNoFormHasNone) {
    QDialog ajeno;
    ajeno.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&ajeno));
    QTest::keyClick(&ajeno, Qt::Key_F1);
    EXPECT_TRUE(visor.Direcciones.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Idiomas, AyudaDePantalla, ::testing::Values("C", "E"));

/// The program's own window shows the help.
class AyudaEnSuVentana : public ConPrograma {
protected:
    QWidget* ventanaDe(QWidget* formulario) {
        return formulario->findChild<QWidget*>(QStringLiteral("frmAyuda"),
                                               Qt::FindDirectChildrenOnly);
    }
    QString pagina(QWidget* formulario) {
        return ventanaDe(formulario)->findChild<QTextBrowser*>()->source().fileName();
    }
};

TEST_F(AyudaEnSuVentana, ShowsThePageOfTheScreenAndChangesWithIt) {
    guia().Ordenar(QStringLiteral("Nueva"));
    guia().Tecla(Qt::Key_F1);
    ASSERT_NE(ventanaDe(&ventana()), nullptr);
    EXPECT_TRUE(ventanaDe(&ventana())->isVisible());
    EXPECT_EQ(pagina(&ventana()), QStringLiteral("datos_generales.htm"));
    guia().Pulsar(QStringLiteral("cmdCancelar"));
    guia().Ordenar(QStringLiteral("Ayuda"));
    EXPECT_EQ(pagina(&ventana()), QStringLiteral("indice.htm"));
}

TEST_F(AyudaEnSuVentana, ItsOwnF1ChangesNothing) {
    guia().Ordenar(QStringLiteral("Nueva"));
    guia().Tecla(Qt::Key_F1);
    guia().Pulsar(QStringLiteral("cmdIndice"));
    ASSERT_EQ(pagina(&ventana()), QStringLiteral("indice.htm"));
    ASSERT_EQ(QApplication::activeWindow(), ventanaDe(&ventana()));
    guia().Tecla(Qt::Key_F1);
    EXPECT_EQ(pagina(&ventana()), QStringLiteral("indice.htm"));
    EXPECT_EQ(ventana().findChildren<QWidget*>(QStringLiteral("frmAyuda")).size(), 1);
}

TEST_F(AyudaEnSuVentana, IsUsedAndClosedAboveAModalDialog) {
    bool salio = false;
    guia().AlDialogo(QStringLiteral("frmAbout"), [&](QWidget* dialogo) {
        guia().Tecla(Qt::Key_F1);
        auto* ayuda = ventanaDe(dialogo);
        ASSERT_NE(ayuda, nullptr);
        ASSERT_TRUE(QTest::qWaitForWindowActive(ayuda));
        EXPECT_EQ(pagina(dialogo), QStringLiteral("acerca.htm"));
        guia().Pulsar(QStringLiteral("cmdIndice"));
        EXPECT_EQ(pagina(dialogo), QStringLiteral("indice.htm"));
        guia().Tecla(Qt::Key_Escape);
        EXPECT_EQ(ventanaDe(dialogo), nullptr);
        EXPECT_TRUE(dialogo->isVisible());
        guia().Pulsar(QStringLiteral("cmdOK"));
        salio = true;
    });
    guia().Ordenar(QStringLiteral("mnuabout"));
    EXPECT_TRUE(salio);
}

TEST_F(AyudaEnSuVentana, ItGoesWithItsDialog) {
    guia().AlDialogo(QStringLiteral("frmAbout"), [&](QWidget* dialogo) {
        guia().Tecla(Qt::Key_F1);
        EXPECT_NE(ventanaDe(dialogo), nullptr);
        dialogo->close();
    });
    guia().Ordenar(QStringLiteral("mnuabout"));
    for (const auto* w : QApplication::topLevelWidgets())
        EXPECT_NE(w->objectName(), QStringLiteral("frmAyuda"));
}

TEST_F(AyudaEnSuVentana, F1DuringACommandIsDropped) {
    int veces = 0;
    ventana().mostrarAyuda = [&](const QString&) {
        if (++veces == 1) ventana().AyudaDe(QStringLiteral("MDIPadral"));
    };
    guia().Ordenar(QStringLiteral("Ayuda"));
    EXPECT_EQ(veces, 1);
}

TEST_F(AyudaEnSuVentana, WithoutTheHelpFileTheProgramSaysSoAndGoesOn) {
    const struct {
        const char* idioma;
        const char* fichero;
        const char* frase;
        const char* titulo;
    } filas[] = {{"C", "Ayuda.chm", "No se encuentra el fichero de ayuda «%1».", "Ayuda"},
                 {"E", "Laguntza.chm", "Ez da «%1» laguntza-fitxategia aurkitu.", "Laguntza"}};
    ASSERT_TRUE(QFile::remove(rutaAyuda()));
    ASSERT_TRUE(QDir().mkdir(rutaAyuda()));
    for (const auto& f : filas) {
        arrancar(QString::fromLatin1(f.idioma));
        avisos.Espera(QString::fromUtf8(f.frase).arg(rutaAyuda() + QDir::separator() +
                                                     QString::fromLatin1(f.fichero)),
                      QString::fromLatin1(f.titulo));
        guia().Ordenar(QStringLiteral("Ayuda"));
        avisos.Verificar();
        EXPECT_EQ(ventanaDe(&ventana()), nullptr);
        guia().Ordenar(QStringLiteral("Nueva"));
        EXPECT_NE(pantalla("FrmDatGen"), nullptr);
    }
}

}  // namespace

}  // namespace padral::pruebas
