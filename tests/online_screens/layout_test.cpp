// Words that fit, access keys, names and colours of every dialog around the program.

#include <QAccessible>
#include <QFont>
#include <QLineEdit>
#include <QPalette>
#include <cstdlib>

#include "online/frm_about.h"
#include "online/frm_idioma.h"
#include "online/frm_inicio.h"
#include "online/frm_preferencias.h"
#include "online/frm_sin_conexion.h"
#include "online/frm_version_check.h"
#include "online_screens/dialogs_fixture.h"
#include "screens/screen_audit.h"

namespace padral::pruebas {
namespace {

struct AspectoDialogo {
    const char* idioma;
    double letra;
    bool oscuro;
};
void PrintTo(const AspectoDialogo& a, std::ostream* salida) {
    *salida << a.idioma << " x " << a.letra << (a.oscuro ? " dark" : "");
}

QPalette paletaOscura() {
    QPalette paleta;
    for (const auto papel : {QPalette::Window, QPalette::Base, QPalette::Button})
        paleta.setColor(papel, QColor(0x2b, 0x2b, 0x2b));
    for (const auto papel : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        paleta.setColor(papel, QColor(0xe8, 0xe8, 0xe8));
    return paleta;
}

class AspectoDeDialogos : public ConDialogo, public ::testing::WithParamInterface<AspectoDialogo> {
protected:
    void SetUp() override {
        QFont otra = fuente_;
        otra.setPointSizeF(fuente_.pointSizeF() * GetParam().letra);
        QApplication::setFont(otra);
        if (GetParam().oscuro) QApplication::setPalette(paletaOscura());
        estado.mdi.IDI(QString::fromLatin1(GetParam().idioma));
        estado.VersionPrograma = QStringLiteral("1.30.1");
        auto& act = estado.act;
        act.ActOnline = 1;
        act.ProgVer1 = act.ActVer1 = QStringLiteral("1");
        act.ProgVer2 = act.ActVer2 = QStringLiteral("30");
        act.ProgVer3 = act.ActVer3 = QStringLiteral("1");
        act.ActDownloadURL = QStringLiteral("https://padral.kelmaria.example/programa/descarga");
        act.ActFile = QStringLiteral("/opt/kelmaria/padral/bin/DPadral.exe");
        act.ActDescripcion = QStringLiteral(
            "Bertsio honek akats batzuk zuzentzen ditu.\nEsta versión corrige algunos errores.");
    }
    void TearDown() override {
        dialogo.reset();
        QApplication::setFont(fuente_);
        QApplication::setPalette(paleta_);
    }

    /// `bilingues`: the controls that may show both languages.
    void mirar(const QStringList& bilingues = {}) {
        QCoreApplication::processEvents();
        EXPECT_LE(dialogo->width(), 1280);
        EXPECT_LE(dialogo->height(), 690);
        const bool euskera = estado.DesplazamientoIdioma != 0;
        for (const auto& faltas : {RotulosCortados(*dialogo), TeclasRepetidas(*dialogo),
                                   TextosEnOtroIdioma(*dialogo, euskera, bilingues)})
            EXPECT_TRUE(faltas.isEmpty()) << faltas.join(u'\n').toStdString();
        tienenNombre();
    }
    /// What the keyboard reaches has a name for those who do not see it.
    void tienenNombre() const {
        for (QWidget* w : dialogo->findChildren<QWidget*>()) {
            if (!w->isVisible() || !(w->focusPolicy() & Qt::TabFocus)) continue;
            auto* accesible = QAccessible::queryAccessibleInterface(w);
            ASSERT_NE(accesible, nullptr) << w->objectName().toStdString();
            EXPECT_FALSE(accesible->text(QAccessible::Name).isEmpty())
                << w->objectName().toStdString();
        }
    }
    QStringList todos() const {
        QStringList nombres{dialogo->objectName()};
        for (const auto* w : dialogo->findChildren<QWidget*>()) nombres << w->objectName();
        return nombres;
    }

private:
    const QFont fuente_ = QApplication::font();
    const QPalette paleta_ = QApplication::palette();
};

TEST_P(AspectoDeDialogos, VersionCheck) {
    for (const qint16 distinta : {qint16{0}, qint16{1}}) {
        estado.act.ComVer = distinta;
        mostrar<FrmVersionCheck>(contexto(), ordenes);
        mirar(todos());
        const QPalette colores = de<QLineEdit>("TxtUrl")->palette();
        const int contraste =
            qGray(colores.color(QPalette::Text).rgb()) - qGray(colores.color(QPalette::Base).rgb());
        EXPECT_GE(std::abs(contraste), 100);
    }
}

TEST_P(AspectoDeDialogos, NoConnection) {
    for (const qint16 situacion : {qint16{1}, qint16{4}}) {
        estado.act.SitAct = situacion;
        mostrar<FrmSinConexion>(contexto());
        mirar(todos());
    }
}

TEST_P(AspectoDeDialogos, Language) {
    mostrar<FrmIdioma>(estado, alCambiarIdioma(), nullptr, ordenes);
    mirar(todos());
    estado.act.ActOnline = -1;
    alComprobar = [this] { mirar(todos()); };
    pulsar("cmdeuskera");
    EXPECT_EQ(hechos.count(QStringLiteral("check")), 1);
}

TEST_P(AspectoDeDialogos, Preferences) {
    mostrar<frmPreferencias>(contexto(), alCambiarIdioma(), ordenes);
    mirar({QStringLiteral("optEusk"), QStringLiteral("optCast")});
}

TEST_P(AspectoDeDialogos, About) {
    mostrar<frmAbout>(estado);
    mirar({QStringLiteral("lblcopy")});
}

TEST_P(AspectoDeDialogos, Splash) {
    auto inicio = std::make_unique<frmInicio>(estado, ordenes);
    auto* aqui = inicio.get();
    dialogo = std::move(inicio);
    alComprobar = [this] { mirar(todos()); };
    aqui->Cargar();
    mirar(todos());
    EXPECT_EQ(hechos.count(QStringLiteral("check")), 1);
}

INSTANTIATE_TEST_SUITE_P(Tamanos, AspectoDeDialogos,
                         ::testing::Values(AspectoDialogo{"C", 1, false},
                                           AspectoDialogo{"E", 1, false},
                                           AspectoDialogo{"C", 1.5, false},
                                           AspectoDialogo{"E", 1.5, false},
                                           AspectoDialogo{"C", 1, true}));

/// The order in which Tab goes through a dialog, from the control in focus.
TEST_F(ConDialogo, TabGoesInReadingOrder) {
    const auto vuelta = [](int pasos) {
        QStringList visitados;
        for (int i = 0; i < pasos; ++i) {
            visitados << enFoco();
            tecla(Qt::Key_Tab);
        }
        return visitados;
    };
    estado.act.ComVer = 1;
    mostrar<FrmVersionCheck>(contexto(), ordenes);
    de("TxtUrl")->setFocus();
    EXPECT_EQ(vuelta(6),
              Pasos({"TxtUrl", "TxtInfo", "TxtPath", "CmdActualizar", "CmdContinuar", "TxtUrl"}));
    mostrar<FrmSinConexion>(contexto());
    EXPECT_EQ(vuelta(3), Pasos({"CmdContinuar", "ChkNoPreg", "CmdContinuar"}));
    mostrar<frmPreferencias>(contexto(), alCambiarIdioma(), ordenes);
    EXPECT_EQ(vuelta(6), Pasos({"optCast", "chkActOnline", "lblActAhora", "cmdAceptar",
                                "cmdCancelar", "optCast"}));
}

}  // namespace
}  // namespace padral::pruebas
