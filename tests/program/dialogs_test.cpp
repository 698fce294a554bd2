// Splash, choice of language, about box, and the road back from printing.

#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTest>

#include "online/frm_inicio.h"
#include "platform/instance_mark.h"
#include "window_fixture.h"

namespace padral::pruebas {

namespace {

using Dialogos = ConPrograma;

const QString DescripcionEs = QStringLiteral(
    "La aplicación Declaración Padral permite confeccionar, desde un ordenador personal, "
    "declaraciones padrales, Modelo 417, que han de presentar a efectos fiscales los empresarios, "
    "los profesionales y otros obligados tributarios, en la Diputación Foral de Kelmaria.");
const QString DescripcionEu = QStringLiteral(
    "Padral Aitorpenaren Laguntza Programari esker, ordenadore pertsonal bat erabiliz 417 ereduko "
    "padral aitorpenak egin daitezke, hain zuzen enpresariek, profesionalek eta aitorpena "
    "aurkeztera behartutako beste batzuek zerga ondorioetarako Kelmariako Foru Aldundiari "
    "aurkeztu behar dizkiotenak.");

QString rotulo(const QWidget* padre, const char* nombre) {
    const auto* etiqueta = padre->findChild<QLabel*>(QString::fromLatin1(nombre));
    EXPECT_NE(etiqueta, nullptr) << nombre;
    return etiqueta ? etiqueta->text() : QString();
}

TEST_F(Dialogos, SplashShowsBothLanguagesWhateverTheRun) {
    for (const QString& idioma : {QStringLiteral("C"), QStringLiteral("E")}) {
        arrancar(idioma);
        frmInicio inicio(estado());
        EXPECT_TRUE(inicio.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        EXPECT_EQ(rotulo(&inicio, "lblVersion"), QStringLiteral("Bertsioa/Versión1.30.1"));
        EXPECT_EQ(rotulo(&inicio, "lblTitulo"), QStringLiteral("MODELO 417 / 417 EREDUA"));
        EXPECT_EQ(rotulo(&inicio, "lblTitulo1"),
                  QStringLiteral("Padral Aitorpena / Declaración Padral"));
        const QStringList descripciones = {rotulo(&inicio, "Label1"),
                                           rotulo(&inicio, "lblDescripcion")};
        EXPECT_TRUE(descripciones.contains(DescripcionEs));
        EXPECT_TRUE(descripciones.contains(DescripcionEu));
        EXPECT_FALSE(rotulo(&inicio, "lblcopy").isEmpty());
    }
}

TEST_F(Dialogos, SplashHoldsTheStartForThreeSeconds) {
    estado().act.ActOnline = 0;
    frmInicio inicio(estado());
    const auto antes = reloj_.Ahora();
    inicio.Cargar();
    EXPECT_EQ(antes.msecsTo(reloj_.Ahora()), 3000);
    EXPECT_TRUE(inicio.isVisible());
}

TEST_F(Dialogos, SplashIsGoneWhenTheWindowShows) {
    for (const auto* w : QApplication::topLevelWidgets())
        EXPECT_NE(w->objectName(), QStringLiteral("frmInicio"));
    EXPECT_TRUE(ventana().isVisible());
}

TEST_F(Dialogos, TheRunIsMarkedForOutsideTools) {
    EXPECT_TRUE(
        QFile::exists(QStringLiteral("/dev/shm") + QString::fromLatin1(NombreMarcaInstancia())));
}

TEST_F(Dialogos, LanguageDialogTextsAndFocus) {
    const struct {
        const char* idioma;
        qint16 aviso;
        bool marcado;
        const char* foco;
    } filas[] = {{"C", 1, true, "cmdcastellano"},
                 {"C", 0, false, "cmdcastellano"},
                 {"E", -1, true, "cmdeuskera"}};
    for (const auto& f : filas) {
        arrancar(QString::fromLatin1(f.idioma));
        estado().act.ActOnline = f.aviso;
        guia().AlDialogo(QStringLiteral("FrmIdioma"), [&](QWidget* d) {
            EXPECT_EQ(d->findChild<QGroupBox*>(QStringLiteral("frame1"))->title(),
                      QStringLiteral("Hizkuntza/Idioma"));
            EXPECT_EQ(d->findChild<QPushButton*>(QStringLiteral("cmdcastellano"))->text(),
                      QStringLiteral("Castellano"));
            EXPECT_EQ(d->findChild<QPushButton*>(QStringLiteral("cmdeuskera"))->text(),
                      QStringLiteral("Euskera"));
            EXPECT_TRUE(rotulo(d, "lblActOnline")
                            .contains(QStringLiteral(
                                "¿desea que se le informe sobre la existencia de actualizaciones "
                                "cada vez que se inicie el programa?")));
            auto* casilla = d->findChild<QCheckBox*>(QStringLiteral("chkActOnline"));
            EXPECT_EQ(casilla->isChecked(), f.marcado) << f.aviso;
            EXPECT_EQ(QApplication::focusWidget()->objectName(), QString::fromLatin1(f.foco));
            guia().Pulsar(QString::fromLatin1(f.foco));
        });
        ventana().primerArranque();
        EXPECT_EQ(estado().mdi.IDI(), QString::fromLatin1(f.idioma));
    }
}

TEST_F(Dialogos, EnterMovesOnInTheLanguageDialog) {
    guia().AlDialogo(QStringLiteral("FrmIdioma"), [&](QWidget* d) {
        auto* casilla = d->findChild<QCheckBox*>(QStringLiteral("chkActOnline"));
        const bool antes = casilla->isChecked();
        QSet<QString> visitados;
        for (int i = 0; i < 3; ++i) {
            visitados << QApplication::focusWidget()->objectName();
            guia().Tecla(i % 2 == 0 ? Qt::Key_Return : Qt::Key_Enter);
        }
        EXPECT_EQ(visitados.size(), 3);
        EXPECT_EQ(casilla->isChecked(), antes);
        guia().Tecla(Qt::Key_Escape);
        EXPECT_TRUE(d->isVisible());
        guia().Pulsar(QStringLiteral("cmdcastellano"));
    });
    ventana().primerArranque();
    EXPECT_EQ(estado().mdi.IDI(), QStringLiteral("C"));
}

TEST_F(Dialogos, AboutBoxDescribesTheProgram) {
    const struct {
        const char* idioma;
        const QString& descripcion;
        const char* boton;
    } filas[] = {{"C", DescripcionEs, "&Aceptar"}, {"E", DescripcionEu, "&Ados"}};
    for (const auto& f : filas) {
        arrancar(QString::fromLatin1(f.idioma));
        bool salio = false;
        guia().AlDialogo(QStringLiteral("frmAbout"), [&](QWidget* d) {
            salio = true;
            EXPECT_EQ(rotulo(d, "lblDescription"), f.descripcion);
            EXPECT_EQ(d->findChild<QPushButton*>(QStringLiteral("cmdOK"))->text(),
                      QString::fromLatin1(f.boton));
            guia().Pulsar(QStringLiteral("cmdOK"));
            EXPECT_FALSE(d->isVisible());
        });
        guia().Ordenar(QStringLiteral("mnuabout"));
        EXPECT_TRUE(salio);
    }
}

TEST_F(Dialogos, CommandsRunUnderTheHourglass) {
    Qt::CursorShape forma = Qt::ArrowCursor;
    ventana().mostrarAyuda = [&](const QString&) {
        if (QApplication::overrideCursor()) forma = QApplication::overrideCursor()->shape();
    };
    guia().Ordenar(QStringLiteral("Ayuda"));
    EXPECT_EQ(forma, Qt::WaitCursor);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Dialogos, TheWindowDoesNotCloseDuringACommand) {
    ventana().mostrarAyuda = [&](const QString&) { ventana().close(); };
    guia().Ordenar(QStringLiteral("Ayuda"));
    EXPECT_TRUE(ventana().isVisible());
}

TEST_F(Dialogos, TheWindowFitsItsScreen) {
    const QSize hueco = ventana().screen()->availableGeometry().size();
    ventana().hide();
    ventana().MostrarEnPantalla();
    const QSize querido = ventana().sizeHint().boundedTo(hueco);
    EXPECT_GE(ventana().width(), querido.width());
    EXPECT_GE(ventana().height(), querido.height());
}

TEST_F(Dialogos, TheFieldInFocusIsInView) {
    ventana().resize(640, 360);
    guia().Ordenar(QStringLiteral("Nueva"));
    for (const char* nombre : {"txtFirmaEnCalidadDe", "txtDNI", "cmdApartado7", "cmdCancelar"}) {
        auto* control = guia().Control(QString::fromLatin1(nombre));
        if (!control->isEnabled()) continue;
        control->setFocus();
        guia().Respirar();
        EXPECT_FALSE(control->visibleRegion().isEmpty()) << nombre;
    }
}

TEST_F(Dialogos, AfterPrintingTheDeclarationIsOpenAgain) {
    for (const char* salida : {"btnCancelar", "btnAceptar"}) {
        guardarUna();
        guia().Ordenar(QStringLiteral("Abrir"));
        guia().Pulsar(QStringLiteral("cmdVerDeclaracion"));
        const qint32 clave = programa_->declaracion().csde;
        ASSERT_NE(clave, 0);
        guia().Pulsar(QStringLiteral("cmdImprimir"));
        ASSERT_EQ(pantalla("FrmDatGen"), nullptr);
        if (QString::fromLatin1(salida) == QStringLiteral("btnAceptar")) {
            guia().Pulsar(QStringLiteral("chkCopiaAdministracion"));
            guia().Pulsar(QStringLiteral("chkCopiaInteresado"));
            avisos.Espera(texto(702), texto(703));
            guia().Pulsar(QString::fromLatin1(salida));
            guia().Pulsar(QStringLiteral("btnCancelar"));
        } else {
            guia().Pulsar(QString::fromLatin1(salida));
        }
        ASSERT_NE(pantalla("FrmDatGen"), nullptr) << salida;
        EXPECT_EQ(programa_->declaracion().csde, clave);
        EXPECT_EQ(programa_->declaracion().Modo, QStringLiteral("C"));
        EXPECT_EQ(estado().FormularioOrigen, QStringLiteral("MDIPadral"));
        EXPECT_EQ(guia().Busca<QLineEdit>(QStringLiteral("txtNombre"))->text(),
                  QStringLiteral("LASA ETXE, JON"));
        guia().Pulsar(QStringLiteral("cmdCancelar"));
    }
}

}  // namespace

}  // namespace padral::pruebas
