// Text fields: whatever enters passes one filter.

#include <QMenu>

#include "core/field_rules.h"
#include "ui/window_fixture.h"

namespace padral::pruebas {
namespace {

class CampoDeTexto : public VentanaConCampos {
protected:
    void pegar(const QString& texto) {
        QApplication::clipboard()->setText(texto);
        QTest::keyClick(campo, Qt::Key_V, Qt::ControlModifier);
    }
    void componer(const QString& texto) {
        QInputMethodEvent evento;
        evento.setCommitString(texto);
        QApplication::sendEvent(campo, &evento);
    }
    void pegarPorElMenu(const QString& texto) {
        QApplication::clipboard()->setText(texto);
        QContextMenuEvent evento(QContextMenuEvent::Mouse, QPoint(2, 2),
                                 campo->mapToGlobal(QPoint(2, 2)));
        QApplication::sendEvent(campo, &evento);
        auto* menuCampo = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menuCampo, nullptr);
        for (QAction* accion : menuCampo->actions())
            if (accion->text().contains(
                    QKeySequence(QKeySequence::Paste).toString(QKeySequence::NativeText))) {
                menuCampo->setActiveAction(accion);
                QTest::keyClick(menuCampo, Qt::Key_Return);
            }
        QCoreApplication::processEvents();
    }
    void entrar(int camino, const QString& texto) {
        if (camino == 0) Escribir(campo, texto);
        if (camino == 1) pegar(texto);
        if (camino == 2) Soltar(campo, texto, QPoint(campo->width() - 2, 5));
        if (camino == 3) componer(texto);
        if (camino == 4) pegarPorElMenu(texto);
    }
    static constexpr int NumeroDeCaminos = 5;
};

TEST_F(CampoDeTexto, CualquierEntradaPasaElFiltro) {
    for (int camino = 0; camino < NumeroDeCaminos; ++camino) {
        campo->Presentar(QString());
        entrar(camino, QStringLiteral("a\"ñ#ç'[]º"));
        EXPECT_EQ(campo->text(), QStringLiteral("AÑÇº")) << camino;
    }
}

// The characters dropped by the filter take no place.
TEST_F(CampoDeTexto, ElAnchoCuentaLoQueQueda) {
    for (int camino = 0; camino < NumeroDeCaminos; ++camino) {
        campo->Presentar(QString());
        entrar(camino, QStringLiteral("\"12345678z\"xyz"));
        EXPECT_EQ(campo->text(), QStringLiteral("12345678Z")) << camino;
    }
}

TEST_F(CampoDeTexto, DiezMilCaracteresSeCortanEnElAncho) {
    for (int camino = 1; camino < NumeroDeCaminos; ++camino) {
        campo->Presentar(QString());
        entrar(camino, QString(10000, u'x'));
        EXPECT_EQ(campo->text(), QString(9, u'X')) << camino;
    }
}

TEST_F(CampoDeTexto, LoQueNoSeAdmiteDesapareceSinBorrarLoSeleccionado) {
    for (const int camino : {0, 1, 3, 4}) {
        campo->Presentar(QStringLiteral("ABC"));
        campo->selectAll();
        entrar(camino, QStringLiteral("\"#'"));
        EXPECT_EQ(campo->text(), QStringLiteral("ABC")) << camino;
    }
    EXPECT_EQ(campo->selectedText(), QStringLiteral("ABC"));
}

TEST_F(CampoDeTexto, LoQueSeAdmiteSustituyeLoSeleccionado) {
    for (const int camino : {0, 1, 3, 4}) {
        campo->Presentar(QStringLiteral("ABCDEFGHI"));
        campo->setSelection(3, 3);
        entrar(camino, QStringLiteral("xy"));
        EXPECT_EQ(campo->text(), QStringLiteral("ABCXYGHI")) << camino;
    }
}

TEST_F(CampoDeTexto, PegarEnMedioNoEchaFueraLoQueSigue) {
    campo->Presentar(QStringLiteral("ABCD"));
    campo->setCursorPosition(2);
    pegar(QStringLiteral("1234567"));
    EXPECT_EQ(campo->text(), QStringLiteral("AB12345CD"));
    EXPECT_EQ(campo->cursorPosition(), 7);
    pegar(QStringLiteral("9"));
    EXPECT_EQ(campo->text(), QStringLiteral("AB12345CD"));
}

TEST_F(CampoDeTexto, CadaEntradaAvisaUnaVezConElTextoLimpio) {
    QStringList avisos;
    QObject::connect(campo, &QLineEdit::textEdited,
                     [&avisos](const QString& texto) { avisos << texto; });
    entrar(0, QStringLiteral("a"));
    entrar(1, QStringLiteral("b'c"));
    entrar(0, QStringLiteral("#"));
    EXPECT_EQ(avisos, QStringList({QStringLiteral("A"), QStringLiteral("ABC")}));
}

TEST_F(CampoDeTexto, DeshacerVuelveALoQueHabia) {
    campo->Presentar(QStringLiteral("año 'x'"));
    campo->selectAll();
    Escribir(campo, QStringLiteral("b#c"));
    EXPECT_EQ(campo->text(), QStringLiteral("BC"));
    for (int veces = 0; veces < 5; ++veces) QTest::keyClick(campo, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(campo->text(), QStringLiteral("año 'x'"));
    for (int veces = 0; veces < 5; ++veces)
        QTest::keyClick(campo, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(campo->text(), QStringLiteral("BC"));
}

TEST_F(CampoDeTexto, LoGuardadoSePresentaTalCual) {
    const QString guardadoAntes = QStringLiteral("l'Hospitalet \"áé\"");
    campo->Presentar(guardadoAntes);
    EXPECT_EQ(campo->text(), guardadoAntes);
    EXPECT_GT(guardadoAntes.size(), 9);
    Pulsar(otro);
    EXPECT_EQ(campo->text(), guardadoAntes);
}

TEST_F(CampoDeTexto, LoQueNoSeTocaQuedaComoEstaba) {
    campo->Presentar(QStringLiteral("l'á\"b"));
    QTest::keyClick(campo, Qt::Key_End);
    Escribir(campo, QStringLiteral("z"));
    EXPECT_EQ(campo->text(), QStringLiteral("l'á\"bZ"));
    campo->setCursorPosition(2);
    Escribir(campo, QStringLiteral("k"));
    EXPECT_EQ(campo->text(), QStringLiteral("l'Ká\"bZ"));
    EXPECT_EQ(campo->cursorPosition(), 3);
}

TEST_F(CampoDeTexto, UnTextoMasAnchoQueElCampoPuedeMenguarPeroNoCrecer) {
    campo->Presentar(QStringLiteral("ABCDEFGHIJKL"));
    QTest::keyClick(campo, Qt::Key_End);
    Escribir(campo, QStringLiteral("z"));
    EXPECT_EQ(campo->text(), QStringLiteral("ABCDEFGHIJKL"));
    campo->setCursorPosition(4);
    QTest::keyClick(campo, Qt::Key_Backspace);
    EXPECT_EQ(campo->text(), QStringLiteral("ABCEFGHIJKL"));
    EXPECT_EQ(campo->cursorPosition(), 3);
    Escribir(campo, QStringLiteral("z"));
    EXPECT_EQ(campo->text(), QStringLiteral("ABCEFGHIJKL"));
    campo->selectAll();
    Escribir(campo, QString(20, u'z'));
    EXPECT_EQ(campo->text(), QString(9, u'Z'));
}

TEST_F(CampoDeTexto, OtroFiltroYOtroAncho) {
    campo->PonerFiltro(4, &FiltrarTeclaFecha);
    campo->Presentar(QString());
    Escribir(campo, QStringLiteral("a1/2b345"));
    EXPECT_EQ(campo->text(), QStringLiteral("1/23"));
    campo->PonerFiltro(6, &FiltrarTecla);
    campo->Presentar(QStringLiteral("X"));
    pegar(QStringLiteral("abcdefgh"));
    EXPECT_EQ(campo->text(), QStringLiteral("ABCDEX"));
}

TEST_F(CampoDeTexto, LoDescompuestoEntraCompuesto) {
    for (const int camino : {1, 2, 3, 4}) {
        campo->Presentar(QString());
        entrar(camino, QStringLiteral("mun\u0303oz c\u0327o\u0301"));
        EXPECT_EQ(campo->text(), QStringLiteral("MUÑOZ Ç")) << camino;
    }
}

TEST_F(CampoDeTexto, UnCampoBloqueadoNoAdmiteNadaPeroIntroSigue) {
    campo->Presentar(QStringLiteral("ABC"));
    BloquearCampo(campo);
    for (const int camino : {0, 1, 2, 3}) entrar(camino, QStringLiteral("x"));
    EXPECT_EQ(campo->text(), QStringLiteral("ABC"));
    QTest::keyClick(campo, Qt::Key_Return);
    EXPECT_TRUE(otro->hasFocus());
}

TEST_F(CampoDeTexto, SeSeleccionaTodoAlEntrar) {
    for (CampoTexto* c : {otroAntes, campo, otro}) c->Presentar(QStringLiteral("TEXTO"));
    otro->setFocus();
    EXPECT_EQ(otro->selectedText(), QStringLiteral("TEXTO"));
    Teclear(otro, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(campo->selectedText(), QStringLiteral("TEXTO"));
    Pulsar(otro);
    EXPECT_EQ(otro->selectedText(), QStringLiteral("TEXTO"));
    Pulsar(otro);
    EXPECT_EQ(otro->selectedText(), QString());
    Pulsar(otroAntes);
    Teclear(otroAntes, Qt::Key_Return);
    EXPECT_EQ(campo->selectedText(), QStringLiteral("TEXTO"));
}

TEST_F(CampoDeTexto, AlVolverDeUnMenuODeOtraVentanaLaSeleccionSigue) {
    campo->Presentar(QStringLiteral("ABCDEF"));
    campo->setSelection(1, 2);
    QWidget otraVentana;
    otraVentana.show();
    otraVentana.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&otraVentana));
    otraVentana.close();
    ventana.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
    EXPECT_EQ(campo->selectedText(), QStringLiteral("BC"));
    pegarPorElMenu(QStringLiteral("x"));
    EXPECT_EQ(campo->text(), QStringLiteral("AXDEF"));
}

TEST_F(CampoDeTexto, LasOrdenesDelTecladoSiguenValiendo) {
    campo->Presentar(QStringLiteral("ABC"));
    QTest::keyClick(campo, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(campo->selectedText(), QStringLiteral("ABC"));
    QTest::keyClick(campo, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("ABC"));
    QTest::keyClick(campo, Qt::Key_Delete);
    EXPECT_EQ(campo->text(), QString());
}

}  // namespace
}  // namespace padral::pruebas
