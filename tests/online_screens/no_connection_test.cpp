// The dialog that tells that the version check failed.

#include <QScreen>

#include "online/frm_sin_conexion.h"
#include "online_screens/dialogs_fixture.h"

namespace padral::pruebas {
namespace {

class SinConexion : public ConDialogo {
protected:
    void abrir() { mostrar<FrmSinConexion>(contexto()); }
};

TEST_F(SinConexion, TellsInBothLanguagesWhatFailed) {
    const char16_t* const conexion =
        u"No dispone de conexión a Internet en estos momentos o el servidor se encuentra inactivo";
    const char16_t* const conexionEu =
        u"Une honetan ez duzu Interneteko konexiorik edo zerbitzaria ez dabil";
    const char16_t* const datos =
        u"Error en la recuperación o lectura de los datos de actualización.";
    const char16_t* const datosEu = u"Akatsa eguneratzearen datuak eskuratzean edo irakurtzean.";
    const char16_t* const falloConexion = u"Fallo en la conexión / Konexioak huts egin du";
    const char16_t* const erroneos = u"Datos erroneos / Datuak okerrak dira";
    const struct {
        qint16 sitAct;
        const char16_t* titulo;
        const char16_t* castellano;
        const char16_t* euskera;
    } filas[] = {{1, falloConexion, conexion, conexionEu},
                 {4, erroneos, datos, datosEu},
                 {0, erroneos, datos, datosEu},
                 {3, erroneos, datos, datosEu}};
    for (const char* idioma : {"C", "E"})
        for (const auto& f : filas) {
            estado.mdi.IDI(QString::fromLatin1(idioma));
            estado.act.SitAct = f.sitAct;
            abrir();
            EXPECT_EQ(dialogo->windowTitle(), QString::fromUtf16(f.titulo)) << f.sitAct << idioma;
            EXPECT_EQ(rotulo("lblTituloC"), QString::fromUtf16(f.castellano)) << f.sitAct << idioma;
            EXPECT_EQ(rotulo("lblTituloE"), QString::fromUtf16(f.euskera)) << f.sitAct << idioma;
            EXPECT_EQ(rotulo("CmdContinuar"), QStringLiteral("Aurrera jarraitu... Continuar..."));
            EXPECT_EQ(rotulo("ChkNoPreg"),
                      QStringLiteral("Berriro kontsulta ez egin / No volver a consultar"));
        }
}

TEST_F(SinConexion, TheMarkShowsWhetherTheCheckIsOff) {
    const struct {
        qint16 aviso;
        bool marcada;
    } filas[] = {{0, true}, {1, false}, {-1, false}};
    for (const auto& f : filas) {
        ponerAviso(f.aviso);
        abrir();
        EXPECT_EQ(de<QCheckBox>("ChkNoPreg")->isChecked(), f.marcada) << f.aviso;
        EXPECT_EQ(estado.act.ActOnline, f.aviso);
        EXPECT_EQ(avisoGuardado(), f.aviso);
    }
}

TEST_F(SinConexion, TheMarkIsStoredAtOnce) {
    ponerAviso(1);
    abrir();
    for (const int esperado : {0, 1, 0}) {
        pulsar("ChkNoPreg");
        EXPECT_EQ(estado.act.ActOnline, esperado);
        EXPECT_EQ(avisoGuardado(), esperado);
    }
    EXPECT_FALSE(cerrado());
}

TEST_F(SinConexion, ContinuarAndEscOnlyClose) {
    ponerAviso(1);
    abrir();
    pulsar("CmdContinuar");
    EXPECT_TRUE(cerrado());
    for (const Qt::Key k : {Qt::Key_Escape, Qt::Key_Return}) {
        abrir();
        EXPECT_EQ(enFoco(), QStringLiteral("CmdContinuar"));
        tecla(k);
        EXPECT_TRUE(cerrado()) << k;
    }
    EXPECT_EQ(tomar(), QStringList());
    EXPECT_EQ(avisoGuardado(), 1);
}

TEST_F(SinConexion, StaysInFrontInTheMiddleOfTheScreen) {
    abrir();
    EXPECT_TRUE(dialogo->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    const QPoint lejos =
        dialogo->frameGeometry().center() - dialogo->screen()->availableGeometry().center();
    EXPECT_LE(lejos.manhattanLength(), 2);
}

TEST_F(SinConexion, IsInTheMiddleOfTheScreenWhereverItsWindowIs) {
    QWidget ventana;
    ventana.setGeometry(0, 0, 200, 100);
    ventana.show();
    FrmSinConexion sobre(contexto(), &ventana);
    sobre.show();
    const QPoint lejos =
        sobre.frameGeometry().center() - sobre.screen()->availableGeometry().center();
    EXPECT_LE(lejos.manhattanLength(), 2);
}

TEST_F(SinConexion, ItsLoadEndsTheHourglass) {
    const FrmSinConexion otro(contexto());
    EXPECT_EQ(tomar(), Pasos({"normal pointer"}));
}

}  // namespace
}  // namespace padral::pruebas
