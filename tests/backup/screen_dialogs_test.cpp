// The real choosers and the real progress, offscreen.

#include "online/backup/screen_dialogs.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <QTimer>

#include "backup_fixture.h"
#include "ui/qt_language.h"

namespace padral::pruebas {
namespace {

class EnPantalla : public ConCopiaHecha {
protected:
    // The chooser remembers its looks among the settings of the user.
    EnPantalla() { QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, carpeta); }
    ~EnPantalla() override { InstalarTraduccionQt(QStringLiteral("C")); }

    /// Runs when the next chooser has come up, which must close it.
    static void alAbrir(const std::function<void(QFileDialog&)>& hacer) {
        QTimer::singleShot(0, qApp, [hacer] {
            auto* dialogo = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialogo, nullptr);
            hacer(*dialogo);
        });
    }
    static void aceptar(const QFileDialog& dialogo) {
        auto* botones = dialogo.findChild<QDialogButtonBox*>();
        QTest::mouseClick(botones->button(QDialogButtonBox::Open), Qt::LeftButton);
    }
    Eleccion eleccion() const {
        return {QStringLiteral("Título"), copias, QStringLiteral("archivos mdb (*.mdb)"),
                QStringLiteral("DPadralMod_bak.mdb"), 0};
    }

    DialogosPantalla pantalla;
};

TEST_F(EnPantalla, FolderChooserStartsInItsFolder) {
    alAbrir([this](QFileDialog& dialogo) {
        EXPECT_EQ(dialogo.windowTitle(), QStringLiteral("Título"));
        EXPECT_EQ(dialogo.directory().absolutePath(), copias);
        EXPECT_EQ(dialogo.fileMode(), QFileDialog::Directory);
        EXPECT_EQ(dialogo.acceptMode(), QFileDialog::AcceptOpen);
        aceptar(dialogo);
    });
    EXPECT_EQ(pantalla.ElegirCarpeta(eleccion()), copias);
}

TEST_F(EnPantalla, FileChooserHasFilterAndFile) {
    alAbrir([this](QFileDialog& dialogo) {
        EXPECT_EQ(dialogo.directory().absolutePath(), copias);
        EXPECT_EQ(dialogo.nameFilters(), QStringList{QStringLiteral("archivos mdb (*.mdb)")});
        EXPECT_EQ(dialogo.selectedFiles(), QStringList{bak});
        EXPECT_EQ(dialogo.fileMode(), QFileDialog::ExistingFile);
        aceptar(dialogo);
    });
    EXPECT_EQ(pantalla.ElegirArchivo(eleccion()), bak);
}

TEST_F(EnPantalla, TypedFileIsTaken) {
    const QString otra = copias + QStringLiteral("/otra.mdb");
    ASSERT_TRUE(QFile::copy(bak, otra));
    alAbrir([](QFileDialog& dialogo) {
        auto* nombre = dialogo.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        ASSERT_NE(nombre, nullptr);
        nombre->selectAll();
        QTest::keyClicks(nombre, QStringLiteral("otra.mdb"));
        aceptar(dialogo);
    });
    Eleccion sinPropuesta = eleccion();
    sinPropuesta.archivo.clear();
    EXPECT_EQ(pantalla.ElegirArchivo(sinPropuesta), otra);
}

TEST_F(EnPantalla, EscapeChoosesNothing) {
    const auto escapar = [](QFileDialog& dialogo) { QTest::keyClick(&dialogo, Qt::Key_Escape); };
    alAbrir(escapar);
    EXPECT_EQ(pantalla.ElegirCarpeta(eleccion()), QString());
    alAbrir(escapar);
    EXPECT_EQ(pantalla.ElegirArchivo(eleccion()), QString());
}

TEST_F(EnPantalla, WaitCursorEndsBeforeAChooser) {
    int finales = 0;
    pantalla.finEspera = [&] { ++finales; };
    alAbrir([&](QFileDialog& dialogo) {
        EXPECT_EQ(finales, 1);
        dialogo.reject();
    });
    pantalla.ElegirCarpeta(eleccion());
    alAbrir([&](QFileDialog& dialogo) {
        EXPECT_EQ(finales, 2);
        dialogo.reject();
    });
    pantalla.ElegirArchivo(eleccion());
}

TEST_F(EnPantalla, WordsOfTheChooserAreInTheLanguage) {
    const struct {
        const char* idioma;
        const char* abrir;
        const char* cancelar;
    } casos[] = {{"C", "&Abrir", "Cancelar"}, {"E", "&Ireki", "Utzi"}};
    for (const auto& caso : casos) {
        InstalarTraduccionQt(QString::fromUtf8(caso.idioma));
        alAbrir([&](QFileDialog& dialogo) {
            auto* botones = dialogo.findChild<QDialogButtonBox*>();
            ASSERT_NE(botones, nullptr);
            EXPECT_EQ(botones->button(QDialogButtonBox::Open)->text(),
                      QString::fromUtf8(caso.abrir));
            EXPECT_EQ(botones->button(QDialogButtonBox::Cancel)->text(),
                      QString::fromUtf8(caso.cancelar));
            dialogo.reject();
        });
        pantalla.ElegirArchivo(eleccion());
    }
}

QProgressDialog* progresoALaVista() {
    for (QWidget* ventana : QApplication::topLevelWidgets())
        if (auto* dialogo = qobject_cast<QProgressDialog*>(ventana);
            dialogo && dialogo->isVisible())
            return dialogo;
    return nullptr;
}

const RotulosProgreso Rotulos{QStringLiteral("Crear copia de seguridad"),
                              QStringLiteral("&Cancelar"), 0};

TEST(ProgresoEnPantalla, ShortWorkShowsNone) {
    DialogosPantalla pantalla(3'600'000);
    const auto progreso = pantalla.Empezar(Rotulos);
    for (int milesimas = 0; milesimas <= 1000; milesimas += 100)
        EXPECT_TRUE(progreso->Avanzar(QStringLiteral("Copiando"), milesimas));
    EXPECT_TRUE(progreso->Avanzar(QStringLiteral("Comprobando"), Progreso::Desconocido));
    EXPECT_EQ(progresoALaVista(), nullptr);
}

TEST(ProgresoEnPantalla, LongWorkShowsHowFarItIs) {
    DialogosPantalla pantalla(0);
    auto progreso = pantalla.Empezar(Rotulos);
    EXPECT_TRUE(progreso->Avanzar(QStringLiteral("Copiando"), 250));
    const QProgressDialog* dialogo = progresoALaVista();
    ASSERT_NE(dialogo, nullptr);
    EXPECT_EQ(dialogo->windowTitle(), QStringLiteral("Crear copia de seguridad"));
    EXPECT_EQ(dialogo->labelText(), QStringLiteral("Copiando"));
    EXPECT_EQ(dialogo->maximum(), 1000);
    EXPECT_EQ(dialogo->value(), 250);
    EXPECT_TRUE(dialogo->isModal());
    progreso.reset();
    EXPECT_EQ(progresoALaVista(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(ProgresoEnPantalla, CheckingHasNoEndInSight) {
    DialogosPantalla pantalla(0);
    const auto progreso = pantalla.Empezar(Rotulos);
    EXPECT_TRUE(progreso->Avanzar(QStringLiteral("Comprobando"), Progreso::Desconocido));
    const QProgressDialog* dialogo = progresoALaVista();
    ASSERT_NE(dialogo, nullptr);
    EXPECT_EQ(dialogo->labelText(), QStringLiteral("Comprobando"));
    EXPECT_EQ(dialogo->maximum(), 0);
}

TEST(ProgresoEnPantalla, ButtonGivesTheWorkUp) {
    DialogosPantalla pantalla(0);
    const auto progreso = pantalla.Empezar(Rotulos);
    EXPECT_TRUE(progreso->Avanzar(QStringLiteral("Copiando"), 250));
    ASSERT_NE(progresoALaVista(), nullptr);
    auto* boton = progresoALaVista()->findChild<QPushButton*>();
    ASSERT_NE(boton, nullptr);
    EXPECT_EQ(boton->text(), QStringLiteral("&Cancelar"));
    QTest::mouseClick(boton, Qt::LeftButton);
    EXPECT_FALSE(progreso->Avanzar(QStringLiteral("Comprobando"), 300));
}

}  // namespace
}  // namespace padral::pruebas
