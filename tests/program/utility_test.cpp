// The menu of utilities in the running program: preferences, version check, backup, online help.

#include <QCheckBox>
#include <QDialog>
#include <QRadioButton>

#include "platform/download.h"
#include "program/window_fixture.h"
#include "store/authority.h"
#include "support/recording_chooser.h"
#include "support/recording_online.h"

namespace padral::pruebas {
namespace {

class Utilidades : public ConPrograma {
protected:
    void SetUp() override {
        utilidades_ = {&descarga_, &navegador_, &dialogos_, [this] { ++terminado_; }};
        descarga_.Contenido = version("1.30.1");
        ConPrograma::SetUp();
    }
    static QByteArray version(const char* cual) {
        return GrabadorDescarga::FicheroVersion(cual, "https://www.kelmaria.example/descarga",
                                                "Una versión nueva");
    }
    /// The identifiers of the stored declarations, as the list shows them.
    QStringList guardadas() {
        guia().Ordenar(QStringLiteral("Abrir"));
        QStringList nifs;
        auto* lista = guia().Busca<QAbstractItemView>(QStringLiteral("flxDeclaraciones"));
        for (int fila = 0; fila < lista->model()->rowCount(); ++fila) {
            const QString nif = lista->model()->index(fila, 1).data().toString().trimmed();
            if (!nif.isEmpty()) nifs << nif;
        }
        guia().Pulsar(QStringLiteral("cmdAnterior"));
        return nifs;
    }
    QString ficheroDatos() const {
        return carpeta_.filePath(QStringLiteral("Tablas/DPadralMod.mdb"));
    }
    static QByteArray bytes(const QString& ruta) {
        QFile fichero(ruta);
        EXPECT_TRUE(fichero.open(QIODevice::ReadOnly)) << ruta.toStdString();
        return fichero.readAll();
    }

    GrabadorDescarga descarga_;
    GrabadorNavegador navegador_;
    GrabadorDialogos dialogos_;
    int terminado_ = 0;
};

TEST_F(Utilidades, EveryEntryHasItsCommand) {
    for (const char* entrada :
         {"mnuBackup", "mnuRestore", "mnuPreferencias", "mnuDescripAsisOnline", "mnuAsisOnline",
          "mnuabout", "mnucontenido"})
        EXPECT_TRUE(accion(entrada)->isEnabled()) << entrada;
    EXPECT_TRUE(menu("mnuAsistenciaOnline")->isEnabled());
}

TEST_F(Utilidades, AtStartTheVersionIsCheckedWhenTheUserWantsIt) {
    // The fixture starts with the setting at 1: one check, and who is up to date sees nothing.
    EXPECT_EQ(descarga_.Direcciones,
              QStringList{estado().act.URLAct + QStringLiteral("?Programa=PADRAL&idioma=c")});
    EXPECT_EQ(estado().act.SitAct, 3);
    EXPECT_EQ(estado().act.ComVer, 0);
}

TEST_F(Utilidades, AtStartAnotherVersionIsOffered) {
    descarga_.Contenido = version("1.31.0");
    // The dialog stands before the main window: no guide drives it yet.
    bool salio = false;
    QTimer vigia;
    QObject::connect(&vigia, &QTimer::timeout, [&] {
        auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialogo || dialogo->objectName() != QStringLiteral("FrmVersionCheck")) return;
        salio = true;
        dialogo->findChild<QAbstractButton*>(QStringLiteral("CmdContinuar"))->click();
    });
    vigia.start(10);
    arrancar(QStringLiteral("E"));
    EXPECT_TRUE(salio);
    EXPECT_EQ(estado().act.ComVer, 1);
    EXPECT_TRUE(ventana().isVisible());
    EXPECT_EQ(terminado_, 0);
}

TEST_F(Utilidades, UpdateNowAlwaysAnswers) {
    bool visto = false;
    guia().AlDialogo(QStringLiteral("FrmVersionCheck"), [&](QWidget* d) {
        visto = true;
        EXPECT_FALSE(d->findChild<QAbstractButton*>(QStringLiteral("CmdActualizar"))->isEnabled());
        guia().Pulsar(QStringLiteral("CmdContinuar"));
    });
    guia().AlDialogo(QStringLiteral("frmPreferencias"), [&](QWidget*) {
        guia().Pulsar(QStringLiteral("lblActAhora"));
        guia().Pulsar(QStringLiteral("cmdCancelar"));
    });
    guia().Ordenar(QStringLiteral("mnuPreferencias"));
    EXPECT_TRUE(visto);
    EXPECT_EQ(terminado_, 0);
}

TEST_F(Utilidades, TheAddressEndsTheProgramAndTheButtonDoesNot) {
    descarga_.Contenido = version("1.29.9");
    const auto consultar = [&](const QString& control) {
        guia().AlDialogo(QStringLiteral("FrmVersionCheck"),
                         [this, control](QWidget*) { guia().Pulsar(control); });
        guia().AlDialogo(QStringLiteral("frmPreferencias"), [&](QWidget*) {
            guia().Pulsar(QStringLiteral("lblActAhora"));
            guia().Pulsar(QStringLiteral("cmdCancelar"));
        });
        guia().Ordenar(QStringLiteral("mnuPreferencias"));
    };
    consultar(QStringLiteral("CmdActualizar"));
    EXPECT_EQ(navegador_.Abiertos.size(), 1u);
    EXPECT_EQ(terminado_, 0);
    consultar(QStringLiteral("TxtUrl"));
    EXPECT_EQ(navegador_.Abiertos.size(), 2u);
    EXPECT_EQ(terminado_, 1);
}

TEST_F(Utilidades, PreferencesChangeTheMainWindowAtOnce) {
    guia().AlDialogo(QStringLiteral("frmPreferencias"), [&](QWidget* d) {
        EXPECT_TRUE(d->findChild<QRadioButton*>(QStringLiteral("optCast"))->isChecked());
        guia().Pulsar(QStringLiteral("optEusk"));
        guia().Pulsar(QStringLiteral("chkActOnline"));
        guia().Pulsar(QStringLiteral("cmdAceptar"));
    });
    guia().Ordenar(QStringLiteral("mnuPreferencias"));
    EXPECT_EQ(estado().mdi.IDI(), QStringLiteral("E"));
    EXPECT_EQ(menu("mnudeclaraciones")->title(), estado().textos.Texto(10627));
    cActOnline guardado;
    guardado.LeerActOnline(estado().RutaBDModificacion);
    EXPECT_EQ(guardado.ActOnline, 0);
}

TEST_F(Utilidades, OnlineHelpOpensItsPageAndItsDescription) {
    guia().Ordenar(QStringLiteral("mnuAsisOnline"));
    ASSERT_EQ(navegador_.Abiertos.size(), 1u);
    EXPECT_EQ(navegador_.Abiertos[0].fichero,
              QStringLiteral("https://www.kelmaria.example/padral/ayuda"));
    EXPECT_EQ(estado().ObjComun, nullptr);
    avisos.Espera(store::authority::HelpServiceSpanish.toString(), texto(831));
    guia().Ordenar(QStringLiteral("mnuDescripAsisOnline"));
    EXPECT_EQ(estado().ObjComun, nullptr);
    navegador_.Programa.clear();
    avisos.Espera({texto(825), texto(826), Icono::Informacion, Botones::Aceptar});
    guia().Ordenar(QStringLiteral("mnuAsisOnline"));
    EXPECT_EQ(navegador_.Abiertos.size(), 1u);
}

// Backup, deletion, restore: the list shows the restored content without a new start, and language
// and menus are those of the restored file.
TEST_F(Utilidades, ARestoreBringsBackWhatWasThere) {
    guardarUna(QStringLiteral("12345678Z"));
    guardarUna(QStringLiteral("87654321X"));
    const QStringList antesEnLista = guardadas();
    ASSERT_EQ(antesEnLista.size(), 2);
    const QByteArray antes = bytes(ficheroDatos());
    const QString copias = carpeta_.filePath(QStringLiteral("backups"));
    dialogos_.Elegido = copias;
    const QString copia = copias + QStringLiteral("/DPadralMod_bak.mdb");
    avisos.EsperaComienzo(
        {QStringLiteral("Se ha creado la copia de seguridad.\n\nArchivo: ") + copia, texto(828),
         Icono::Informacion, Botones::Aceptar});
    guia().Ordenar(QStringLiteral("mnuBackup"));
    EXPECT_EQ(dialogos_.Elecciones.back().carpeta, copias);
    EXPECT_EQ(bytes(ficheroDatos()), antes);

    // All gone, and another language.
    for (int quedan = 2; quedan > 0; --quedan) {
        avisos.Espera({texto(591), texto(592), Icono::Exclamacion, Botones::SiNo}, Respuesta::Si);
        guia().Ordenar(QStringLiteral("Borrar"));
        guia().PulsarCelda(QStringLiteral("flxDeclaraciones"), 0, 1);
        guia().Pulsar(QStringLiteral("CmdEliminar"));
        if (quedan > 1) guia().Pulsar(QStringLiteral("cmdAnterior"));
    }
    EXPECT_FALSE(accion("Abrir")->isEnabled());
    estado().mdi.IDI(QStringLiteral("E"));
    ventana().Anadir_captions();

    dialogos_.Elegido = copia;
    avisos.EsperaComienzo({QStringLiteral("Kopiako aitorpenek programan orain dauden guztiak"),
                           texto(829), Icono::Exclamacion, Botones::SiNo},
                          Respuesta::Si);
    avisos.EsperaComienzo({QStringLiteral("Kopiako aitorpenak leheneratu dira."), texto(829),
                           Icono::Informacion, Botones::Aceptar});
    guia().Ordenar(QStringLiteral("mnuRestore"));
    EXPECT_EQ(estado().mdi.IDI(), QStringLiteral("C"));
    EXPECT_EQ(menu("mnudeclaraciones")->title(), estado().textos.Texto(627));
    EXPECT_TRUE(accion("Abrir")->isEnabled());
    EXPECT_EQ(estado().mdi.NUMDECLA, 2);
    EXPECT_EQ(guardadas(), antesEnLista);
    EXPECT_EQ(terminado_, 0);
}

TEST_F(Utilidades, ARestoreThatIsRefusedChangesNothing) {
    guardarUna();
    const QByteArray antes = bytes(ficheroDatos());
    const QString ajeno = carpeta_.filePath(QStringLiteral("ajeno.mdb"));
    QFile fichero(ajeno);
    ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
    fichero.write("nada");
    fichero.close();
    dialogos_.Elegido = ajeno;
    avisos.EsperaComienzo({QStringLiteral("No se ha podido restaurar la copia."), texto(829),
                           Icono::Exclamacion, Botones::Aceptar});
    guia().Ordenar(QStringLiteral("mnuRestore"));
    EXPECT_EQ(bytes(ficheroDatos()), antes);
    dialogos_.Elegido.clear();
    guia().Ordenar(QStringLiteral("mnuRestore"));
    EXPECT_EQ(bytes(ficheroDatos()), antes);
    EXPECT_TRUE(accion("Abrir")->isEnabled());
}

}  // namespace
}  // namespace padral::pruebas
