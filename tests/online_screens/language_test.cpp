// The choice of language of the first start.

#include <QGroupBox>
#include <QPushButton>
#include <QTimer>

#include "online/frm_idioma.h"
#include "online_screens/dialogs_fixture.h"

namespace padral::pruebas {
namespace {

constexpr qint16 NuncaDecidido = -1;

class EleccionDeIdioma : public ConDialogo {
protected:
    FrmIdioma* abrir() { return mostrar<FrmIdioma>(estado, alCambiarIdioma(), nullptr, ordenes); }
    /// As if the load could not store its answer.
    void abrirSinDecidir() {
        abrir();
        estado.act.ActOnline = NuncaDecidido;
    }
};

TEST_F(EleccionDeIdioma, ItsCaptionsAreTheSameInBothLanguages) {
    for (const char* idioma : {"C", "E"}) {
        estado.mdi.IDI(QString::fromLatin1(idioma));
        abrir();
        EXPECT_EQ(dialogo->windowTitle(), QStringLiteral("Hautatu Hizkuntza/Selección de idioma"));
        EXPECT_EQ(de<QGroupBox>("frame1")->title(), QStringLiteral("Hizkuntza/Idioma"));
        EXPECT_EQ(rotulo("cmdcastellano"), QStringLiteral("Castellano"));
        EXPECT_EQ(rotulo("cmdeuskera"), QStringLiteral("Euskera"));
        EXPECT_EQ(rotulo("lblAct"), QStringLiteral("Buscando actualización ..."));
        EXPECT_FALSE(de("lblAct")->isVisible());
        EXPECT_TRUE(rotulo("lblActOnline")
                        .contains(QStringLiteral("¿desea que se le informe sobre la existencia de "
                                                 "actualizaciones cada vez que se inicie el "
                                                 "programa?")));
    }
}

TEST_F(EleccionDeIdioma, TheLoadTurnsNeverDecidedIntoYesAndStoresIt) {
    const struct {
        qint16 antes;
        bool marcada;
        int despues;
    } filas[] = {{-1, true, 1}, {1, true, 1}, {0, false, 0}, {-2, false, -2}};
    for (const auto& f : filas) {
        ponerAviso(f.antes);
        abrir();
        EXPECT_EQ(de<QCheckBox>("chkActOnline")->isChecked(), f.marcada) << f.antes;
        EXPECT_EQ(estado.act.ActOnline, f.despues) << f.antes;
        EXPECT_EQ(avisoGuardado(), f.despues) << f.antes;
    }
}

TEST_F(EleccionDeIdioma, ANewStoreHasNeverDecided) {
    estado.act.LeerActOnline(estado.RutaBDModificacion);
    EXPECT_EQ(estado.act.ActOnline, NuncaDecidido);
    abrir();
    EXPECT_EQ(avisoGuardado(), 1);
}

TEST_F(EleccionDeIdioma, TheFocusStartsOnTheLanguageOfTheRun) {
    const struct {
        const char* idioma;
        const char* foco;
    } filas[] = {{"C", "cmdcastellano"}, {"E", "cmdeuskera"}, {"X", "cmdeuskera"}};
    for (const auto& f : filas) {
        estado.mdi.IDI(QString::fromLatin1(f.idioma));
        abrir();
        EXPECT_EQ(enFoco(), QString::fromLatin1(f.foco)) << f.idioma;
    }
}

TEST_F(EleccionDeIdioma, EnterMovesOnAndChoosesNothing) {
    ponerAviso(1);
    abrir();
    QStringList visitados;
    for (const Qt::Key k : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Return}) {
        tecla(k);
        visitados << enFoco();
    }
    EXPECT_EQ(visitados, Pasos({"chkActOnline", "cmdeuskera", "cmdcastellano"}));
    EXPECT_EQ(tomar(), QStringList());
    EXPECT_TRUE(de<QCheckBox>("chkActOnline")->isChecked());
    EXPECT_FALSE(cerrado());
}

TEST_F(EleccionDeIdioma, EscDoesNothing) {
    abrir();
    tecla(Qt::Key_Escape);
    EXPECT_FALSE(cerrado());
    EXPECT_EQ(tomar(), QStringList());
}

TEST_F(EleccionDeIdioma, TheAnswerIsStoredAtOnce) {
    ponerAviso(NuncaDecidido);
    abrir();
    for (const int esperado : {0, 1}) {
        pulsar("chkActOnline");
        EXPECT_EQ(estado.act.ActOnline, esperado);
        EXPECT_EQ(avisoGuardado(), esperado);
    }
    // Its caption stands beside it.
    pulsar("lblActOnline");
    EXPECT_EQ(avisoGuardado(), 0);
}

TEST_F(EleccionDeIdioma, AButtonStoresItsLanguageAndCloses) {
    const struct {
        const char* boton;
        const char* antes;
        const char* letra;
        qint16 desplazamiento;
    } filas[] = {{"cmdeuskera", "C", "E", 10000}, {"cmdcastellano", "E", "C", 0}};
    for (const auto& f : filas) {
        estado.mdi.IDI(QString::fromLatin1(f.antes));
        ponerAviso(NuncaDecidido);
        abrir();
        pulsar(f.boton);
        // The load has decided: no check before the next start.
        EXPECT_EQ(tomar(), QStringList(QStringLiteral("captions ") + QString::fromLatin1(f.letra)));
        EXPECT_TRUE(cerrado());
        EXPECT_EQ(estado.DesplazamientoIdioma, f.desplazamiento);
        EXPECT_EQ(idiomaGuardado(), QString::fromLatin1(f.letra));
        EXPECT_TRUE(reloj.Esperas.empty());
    }
}

TEST_F(EleccionDeIdioma, NoAnswerIsNotAskedAgain) {
    ponerAviso(NuncaDecidido);
    abrir();
    pulsar("chkActOnline");
    pulsar("cmdeuskera");
    EXPECT_EQ(tomar(), Pasos({"captions E"}));
    EXPECT_EQ(avisoGuardado(), 0);
}

TEST_F(EleccionDeIdioma, StillUndecidedBothButtonsCheckTheVersion) {
    for (const char* boton : {"cmdeuskera", "cmdcastellano"}) {
        estado.act.SitAct = 0;
        abrirSinDecidir();
        alComprobar = [this] {
            EXPECT_FALSE(de("chkActOnline")->isVisible());
            EXPECT_FALSE(de("lblActOnline")->isVisible());
            EXPECT_TRUE(de("lblAct")->isVisible());
            EXPECT_FALSE(cerrado());
            // A second choice, and the window's X, wait for the end.
            pulsar("cmdeuskera");
            EXPECT_FALSE(dialogo->close());
            estado.act.SitAct = 3;
        };
        pulsar(boton);
        const QString letra =
            boton == std::string("cmdeuskera") ? QStringLiteral("E") : QStringLiteral("C");
        EXPECT_EQ(tomar(),
                  QStringList({QStringLiteral("captions ") + letra, QStringLiteral("check")}));
        EXPECT_TRUE(cerrado()) << boton;
    }
}

TEST_F(EleccionDeIdioma, OnlyTheSpanishButtonWaitsForTheOutcome) {
    for (const qint16 resultado : {qint16{1}, qint16{3}, qint16{4}}) {
        estado.act.SitAct = 0;
        reloj.Esperas.clear();
        reloj.alEsperar = [this, resultado] {
            EXPECT_FALSE(cerrado());
            if (reloj.Esperas.size() == 5) estado.act.SitAct = resultado;
        };
        abrirSinDecidir();
        pulsar("cmdcastellano");
        EXPECT_EQ(reloj.Esperas.size(), 5U) << resultado;
        EXPECT_TRUE(cerrado());
    }
}

TEST_F(EleccionDeIdioma, TheSpanishButtonDoesNotWaitForAnOutcomeThatIsThere) {
    alComprobar = [this] { estado.act.SitAct = 4; };
    abrirSinDecidir();
    pulsar("cmdcastellano");
    EXPECT_TRUE(reloj.Esperas.empty());
    EXPECT_TRUE(cerrado());
}

TEST_F(EleccionDeIdioma, TheBasqueButtonDoesNotWait) {
    abrirSinDecidir();
    pulsar("cmdeuskera");
    EXPECT_EQ(estado.act.SitAct, 0);
    EXPECT_EQ(tomar(), Pasos({"captions E", "check"}));
    EXPECT_TRUE(reloj.Esperas.empty());
    EXPECT_TRUE(cerrado());
}

TEST(EsperaDeIdioma, TheWaitYieldsToTheEventLoop) {
    GrabadorAvisos avisos;
    RelojSistema reloj;
    EstadoCompartido estado(avisos, reloj);
    const AlmacenPrueba almacen(estado);
    int vueltas = 0;
    QTimer otro;
    QObject::connect(&otro, &QTimer::timeout, &otro, [&] {
        if (++vueltas == 3) estado.act.SitAct = 1;
    });
    FrmIdioma dialogo(estado, [] {});
    estado.act.ActOnline = NuncaDecidido;
    dialogo.show();
    otro.start(0);
    dialogo.findChild<QPushButton*>(QStringLiteral("cmdcastellano"))->click();
    EXPECT_GE(vueltas, 3);
    EXPECT_FALSE(dialogo.isVisible());
}

}  // namespace
}  // namespace padral::pruebas
