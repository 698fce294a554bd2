// Language and update setting, changed later.

#include <QRadioButton>

#include "online/frm_preferencias.h"
#include "online_screens/dialogs_fixture.h"

namespace padral::pruebas {
namespace {

class Preferencias : public ConDialogo {
protected:
    frmPreferencias* abrir() {
        return mostrar<frmPreferencias>(contexto(), alCambiarIdioma(), ordenes);
    }
    bool puesta(const char* opcion) const { return de<QRadioButton>(opcion)->isChecked(); }
    bool marcada() const { return de<QCheckBox>("chkActOnline")->isChecked(); }
};

TEST_F(Preferencias, CaptionsOfBothLanguages) {
    const struct {
        const char* idioma;
        const char* nombre;
        const char16_t* texto;
    } filas[] = {{"C", "lblActAhora", u"Actualizar ahora."},
                 {"C", "chkActOnline", u"Activar actualizaciones al iniciar programa"},
                 {"C", "lblActualizaciones", u"Actualizaciones"},
                 {"C", "lblIdioma", u"&Selección de idioma"},
                 {"C", "cmdAceptar", u"&Aceptar"},
                 {"C", "cmdCancelar", u"&Cancelar"},
                 {"C", "optEusk", u"Euskera"},
                 {"C", "optCast", u"Castellano"},
                 {"E", "lblActAhora", u"Eguneratu orain."},
                 {"E", "chkActOnline", u"Aktibatu eguneratzeak programa hastean"},
                 {"E", "lblActualizaciones", u"Eguneratzeak"},
                 {"E", "lblIdioma", u"&Hizkuntza aukeratzea"},
                 {"E", "cmdAceptar", u"&Ados"},
                 {"E", "cmdCancelar", u"Ut&zi"},
                 {"E", "optEusk", u"Euskera"},
                 {"E", "optCast", u"Castellano"}};
    for (const auto& f : filas) {
        estado.mdi.IDI(QString::fromLatin1(f.idioma));
        abrir();
        EXPECT_EQ(rotulo(f.nombre), QString::fromUtf16(f.texto)) << f.nombre << ' ' << f.idioma;
        EXPECT_EQ(dialogo->windowTitle(), f.idioma[0] == 'C' ? QStringLiteral("Preferencias")
                                                             : QStringLiteral("Hobespenak"));
    }
}

TEST_F(Preferencias, TheLoadShowsLanguageAndSetting) {
    const struct {
        qint16 aviso;
        bool marcada;
        const char* idioma;
        const char* opcion;
    } filas[] = {{1, true, "C", "optCast"},
                 {0, false, "E", "optEusk"},
                 {-1, false, "C", "optCast"},
                 {1, true, "X", "optEusk"}};
    for (const auto& f : filas) {
        ponerAviso(f.aviso);
        estado.mdi.IDI(QString::fromLatin1(f.idioma));
        abrir();
        EXPECT_EQ(marcada(), f.marcada) << f.aviso;
        EXPECT_TRUE(puesta(f.opcion)) << f.idioma;
        EXPECT_NE(puesta("optCast"), puesta("optEusk"));
        EXPECT_EQ(enFoco(), QString::fromLatin1(f.opcion));
        EXPECT_EQ(avisoGuardado(), f.aviso);
    }
}

TEST_F(Preferencias, NothingIsStoredBeforeAceptar) {
    ponerAviso(1);
    abrir();
    pulsar("optEusk");
    pulsar("chkActOnline");
    EXPECT_EQ(tomar(), QStringList());
    EXPECT_EQ(estado.mdi.IDI(), QStringLiteral("C"));
    EXPECT_EQ(idiomaGuardado(), QStringLiteral("C"));
    EXPECT_EQ(estado.act.ActOnline, 1);
    EXPECT_EQ(avisoGuardado(), 1);
    EXPECT_EQ(dialogo->windowTitle(), QStringLiteral("Preferencias"));
}

TEST_F(Preferencias, AceptarStoresAndTheMainWindowChangesAtOnce) {
    const struct {
        const char* antes;
        const char* opcion;
        const char* letra;
        qint16 desplazamiento;
    } filas[] = {{"C", "optEusk", "E", 10000}, {"E", "optCast", "C", 0}};
    for (const auto& f : filas) {
        ponerAviso(1);
        estado.mdi.IDI(QString::fromLatin1(f.antes));
        abrir();
        pulsar(f.opcion);
        pulsar("chkActOnline");
        pulsar("cmdAceptar");
        EXPECT_EQ(tomar(), QStringList(QStringLiteral("captions ") + QString::fromLatin1(f.letra)));
        EXPECT_TRUE(cerrado());
        EXPECT_EQ(idiomaGuardado(), QString::fromLatin1(f.letra));
        EXPECT_EQ(estado.DesplazamientoIdioma, f.desplazamiento);
        EXPECT_EQ(estado.act.ActOnline, 0);
        EXPECT_EQ(avisoGuardado(), 0);
    }
}

TEST_F(Preferencias, AceptarStoresTheTickedBoxAsOne) {
    ponerAviso(0);
    abrir();
    pulsar("chkActOnline");
    pulsar("cmdAceptar");
    EXPECT_EQ(estado.act.ActOnline, 1);
    EXPECT_EQ(avisoGuardado(), 1);
}

TEST_F(Preferencias, AceptarWithoutAChangeStoresTheSameAgain) {
    for (const char* idioma : {"C", "E"}) {
        ponerAviso(1);
        estado.mdi.IDI(QString::fromLatin1(idioma));
        abrir();
        // What another copy of the program left in the store.
        estado.mdi.ModificarIdioma(QStringLiteral("X"));
        pulsar("cmdAceptar");
        EXPECT_EQ(idiomaGuardado(), QString::fromLatin1(idioma));
        EXPECT_EQ(tomar(), QStringList(QStringLiteral("captions ") + QString::fromLatin1(idioma)));
        EXPECT_EQ(avisoGuardado(), 1);
    }
}

TEST_F(Preferencias, CancelarAndEscStoreNothing) {
    ponerAviso(1);
    for (const bool esc : {false, true}) {
        abrir();
        pulsar("optEusk");
        pulsar("chkActOnline");
        if (esc)
            tecla(Qt::Key_Escape);
        else
            pulsar("cmdCancelar");
        EXPECT_TRUE(cerrado());
        EXPECT_EQ(tomar(), QStringList());
        EXPECT_EQ(estado.mdi.IDI(), QStringLiteral("C"));
        EXPECT_EQ(idiomaGuardado(), QStringLiteral("C"));
        EXPECT_EQ(estado.act.ActOnline, 1);
        EXPECT_EQ(avisoGuardado(), 1);
    }
}

TEST_F(Preferencias, TheCheckRunsUnderTheHourglassWhileTheDialogShows) {
    abrir();
    alComprobar = [this] {
        EXPECT_TRUE(dialogo->isVisible());
        // The window's X waits for the end of the check.
        EXPECT_FALSE(dialogo->close());
    };
    const auto esperado = Pasos({"hourglass", "check", "normal pointer"});
    pulsar("lblActAhora");
    EXPECT_EQ(tomar(), esperado);
    for (const Qt::Key k : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        de("chkActOnline")->setFocus();
        tecla(Qt::Key_Tab);
        ASSERT_EQ(enFoco(), QStringLiteral("lblActAhora"));
        tecla(k);
        EXPECT_EQ(tomar(), esperado) << k;
    }
    EXPECT_FALSE(cerrado());
    EXPECT_TRUE(dialogo->close());
}

TEST_F(Preferencias, ComingBackFromADialogShowsWhatWasStoredThere) {
    ponerAviso(1);
    abrir();
    pulsar("optEusk");
    alComprobar = [this] {
        QDialog otro(dialogo.get());
        otro.setModal(true);
        otro.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&otro));
        ponerAviso(0);
        otro.accept();
    };
    pulsar("lblActAhora");
    QCoreApplication::processEvents();
    EXPECT_FALSE(marcada());
    EXPECT_TRUE(puesta("optCast"));
    pulsar("cmdAceptar");
    EXPECT_EQ(avisoGuardado(), 0);
    EXPECT_EQ(idiomaGuardado(), QStringLiteral("C"));
}

TEST_F(Preferencias, ComingBackFromAnotherProgramKeepsTheChoice) {
    abrir();
    pulsar("optEusk");
    for (const auto tipo : {QEvent::WindowDeactivate, QEvent::WindowActivate}) {
        QEvent evento(tipo);
        QApplication::sendEvent(dialogo.get(), &evento);
    }
    EXPECT_TRUE(puesta("optEusk"));
}

TEST_F(Preferencias, TheAccessKeyOfTheHeadingLeadsToTheOptionThatIsOn) {
    abrir();
    for (const char* opcion : {"optCast", "optEusk", "optCast"}) {
        pulsar(opcion);
        de("cmdAceptar")->setFocus();
        QTest::keyClick(dialogo->windowHandle(), Qt::Key_S, Qt::AltModifier);
        EXPECT_EQ(enFoco(), QString::fromLatin1(opcion));
        EXPECT_TRUE(puesta(opcion));
    }
}

}  // namespace
}  // namespace padral::pruebas
