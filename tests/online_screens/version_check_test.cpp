// The dialog that tells of another version.

#include <QGroupBox>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>

#include "online/frm_version_check.h"
#include "online_screens/dialogs_fixture.h"

namespace padral::pruebas {
namespace {

const QString Pagina = QStringLiteral("http://kelmaria.example/descarga?x=1&y=2");
const QString AbrirPagina = QStringLiteral("open ") + Pagina;

class VersionDistinta : public ConDialogo {
protected:
    void SetUp() override {
        auto& act = estado.act;
        act.ProgVer1 = QStringLiteral("1");
        act.ProgVer2 = QStringLiteral("30");
        act.ProgVer3 = QStringLiteral("1");
        act.ActVer1 = QStringLiteral("1");
        act.ActVer2 = QStringLiteral("29");
        act.ActVer3 = QStringLiteral("9");
        act.ComVer = 1;
        act.ActDownloadURL = Pagina;
        act.ActFile = QStringLiteral("/opt/padral/DPadral");
        act.ActDescripcion = QStringLiteral("Novedades: <b>&varias</b>");
    }
    FrmVersionCheck* abrir(QWidget* padre = nullptr) {
        return mostrar<FrmVersionCheck>(contexto(), ordenes, padre);
    }
};

TEST_F(VersionDistinta, ItsCaptionsShowBothLanguagesWhateverTheRun) {
    const struct {
        const char* nombre;
        const char16_t* texto;
    } filas[] = {{"LblDisp", u"Erabilgarria / Disponible"},
                 {"LblAct", u"Oraingoa / Actual"},
                 {"CmdContinuar", u"Aurrera jarraitu... Continuar..."},
                 {"CmdActualizar", u"Deskargatu Descargar"},
                 {"LblUrl", u"Deskarga helbidea / Dirección de descarga"},
                 {"LblInfo", u"Argibideak / Información"},
                 {"LblArchivo", u"Fitxategia / Fichero"}};
    for (const char* idioma : {"C", "E"}) {
        estado.mdi.IDI(QString::fromLatin1(idioma));
        abrir();
        EXPECT_EQ(dialogo->windowTitle(), QStringLiteral("Actualizar versión"));
        EXPECT_EQ(de<QGroupBox>("FraVersion")->title(), QStringLiteral("Bertsioa / Versión"));
        for (const auto& f : filas)
            EXPECT_EQ(rotulo(f.nombre), QString::fromUtf16(f.texto)) << f.nombre << ' ' << idioma;
    }
}

TEST_F(VersionDistinta, ShowsWhatTheCheckFound) {
    abrir();
    EXPECT_EQ(rotulo("LblActual"), QStringLiteral("1.30.1"));
    EXPECT_EQ(rotulo("LblDisponible"), QStringLiteral("1.29.9"));
    EXPECT_EQ(de<QLineEdit>("TxtUrl")->text(), Pagina);
    EXPECT_EQ(de<QLineEdit>("TxtPath")->text(), QStringLiteral("/opt/padral/DPadral"));
    // The text comes from outside: no markup of it is read.
    EXPECT_EQ(de<QPlainTextEdit>("TxtInfo")->toPlainText(),
              QStringLiteral("Novedades: <b>&varias</b>"));
}

TEST_F(VersionDistinta, OnlyADifferentVersionCanBeDownloaded) {
    const struct {
        qint16 comVer;
        bool activo;
    } filas[] = {{0, false}, {1, true}};
    for (const auto& f : filas) {
        estado.act.ComVer = f.comVer;
        abrir();
        EXPECT_EQ(de("CmdActualizar")->isEnabled(), f.activo) << f.comVer;
        EXPECT_TRUE(de("CmdContinuar")->isEnabled());
    }
    EXPECT_EQ(estado.act.ComVer, 1);
}

TEST_F(VersionDistinta, ItsLoadEndsTheHourglass) {
    const FrmVersionCheck otro(contexto(), ordenes);
    EXPECT_EQ(tomar(), Pasos({"normal pointer"}));
}

TEST_F(VersionDistinta, ContinuarOnlyCloses) {
    abrir();
    pulsar("CmdContinuar");
    EXPECT_EQ(tomar(), QStringList());
    EXPECT_TRUE(cerrado());
}

TEST_F(VersionDistinta, ActualizarOpensThePageAndTheProgramGoesOn) {
    abrir();
    pulsar("CmdActualizar");
    EXPECT_EQ(tomar(), QStringList(AbrirPagina));
    EXPECT_TRUE(cerrado());
}

TEST_F(VersionDistinta, AClickOnTheAddressOpensThePageAndEndsTheProgram) {
    abrir();
    pulsar("TxtUrl");
    EXPECT_EQ(tomar(), QStringList({AbrirPagina, QStringLiteral("end")}));
    EXPECT_TRUE(cerrado());
}

TEST_F(VersionDistinta, TheAddressWorksInTheSameVersionToo) {
    estado.act.ComVer = 0;
    abrir();
    pulsar("TxtUrl");
    EXPECT_EQ(tomar(), QStringList({AbrirPagina, QStringLiteral("end")}));
}

TEST_F(VersionDistinta, TheKeyboardReachesTheAddressAndPressesIt) {
    for (const Qt::Key k : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        abrir();
        for (int i = 0; i < 8 && enFoco() != QStringLiteral("TxtUrl"); ++i) tecla(Qt::Key_Tab);
        ASSERT_EQ(enFoco(), QStringLiteral("TxtUrl"));
        tecla(k);
        EXPECT_EQ(tomar(), QStringList({AbrirPagina, QStringLiteral("end")})) << k;
        EXPECT_TRUE(cerrado());
    }
}

TEST_F(VersionDistinta, WhatIsNoClickOnTheAddressDoesNothing) {
    abrir();
    auto* url = de<QLineEdit>("TxtUrl");
    const QPoint aqui(10, url->height() / 2);
    QTest::mouseClick(url, Qt::MiddleButton, {}, aqui);
    EXPECT_EQ(tomar(), QStringList());
    // Dragged over: the address is selected to be copied.
    QTest::mousePress(url, Qt::LeftButton, {}, aqui);
    QTest::mouseRelease(url, Qt::LeftButton, {}, aqui + QPoint(80, 0));
    EXPECT_EQ(tomar(), QStringList());
    // A key held down since before.
    QKeyEvent repetida(QEvent::KeyPress, Qt::Key_Return, {}, QStringLiteral("\r"), true);
    QApplication::sendEvent(url, &repetida);
    EXPECT_EQ(tomar(), QStringList());
    url->setFocus();
    QTest::keyClick(url, Qt::Key_X);
    EXPECT_EQ(tomar(), QStringList());
    EXPECT_FALSE(cerrado());
}

TEST_F(VersionDistinta, NothingInItCanBeChanged) {
    abrir();
    EXPECT_TRUE(de<QLineEdit>("TxtUrl")->isReadOnly());
    EXPECT_TRUE(de<QLineEdit>("TxtPath")->isReadOnly());
    EXPECT_TRUE(de<QPlainTextEdit>("TxtInfo")->isReadOnly());
}

TEST_F(VersionDistinta, EscAndEnterContinue) {
    for (const Qt::Key k : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space}) {
        abrir();
        EXPECT_EQ(enFoco(), QStringLiteral("CmdContinuar"));
        tecla(k);
        EXPECT_TRUE(cerrado()) << k;
        EXPECT_EQ(tomar(), QStringList()) << k;
    }
}

TEST_F(VersionDistinta, AtStartItStaysInFrontAsTheSplashDoes) {
    QWidget comun;
    QWidget delante(nullptr, Qt::SplashScreen | Qt::WindowStaysOnTopHint);
    const struct {
        QWidget* padre;
        bool enFrente;
    } filas[] = {{&comun, false}, {&delante, true}, {nullptr, true}};
    for (const auto& f : filas) {
        const FrmVersionCheck sobre(contexto(), ordenes, f.padre);
        EXPECT_EQ(sobre.windowFlags().testFlag(Qt::WindowStaysOnTopHint), f.enFrente);
        EXPECT_EQ(sobre.windowType(), Qt::Dialog);
    }
}

}  // namespace
}  // namespace padral::pruebas
