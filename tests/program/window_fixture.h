#pragma once
// The program in this process: its real windows, recorded message boxes, a clock that stands still.

#include <QAction>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QTemporaryDir>

#include "app/program.h"
#include "app/tour/guide.h"
#include "support/recorders.h"

namespace padral::pruebas {

/// Prints nowhere.
class SinImpresora : public DestinoImpresion {
public:
    std::unique_ptr<Impresora> Abrir(const QString&) override {
        ADD_FAILURE() << "something is printed";
        return nullptr;
    }
    void Elegir(QWidget*) override {}
    QStringList TomarFicheros() override { return {}; }
};

class ConPrograma : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(QDir(carpeta_.path()).mkpath(QStringLiteral("Tablas")));
        for (const QString& nombre :
             {QStringLiteral("DPadralLec.mdb"), QStringLiteral("DPadralMod.mdb")})
            ASSERT_TRUE(QFile::copy(QStringLiteral(PADRAL_BINARY_DIR "/data/") + nombre,
                                    carpeta_.filePath(QStringLiteral("Tablas/") + nombre)));
        ASSERT_TRUE(QFile::link(QStringLiteral(PADRAL_BINARY_DIR "/bin/Ayuda"), rutaAyuda()));
        arrancar(QStringLiteral("C"));
    }

    QString rutaAyuda() const { return carpeta_.filePath(QStringLiteral("Ayuda")); }

    /// Starts a program that has been started before, in that language.
    void arrancar(const QString& idioma) {
        guia_.reset();
        programa_.reset();
        const QString binarios = QStringLiteral(PADRAL_BINARY_DIR "/bin");
        programa_ = std::make_unique<Programa>(
            Puertos{avisos, reloj_, impresora_, visor_, utilidades_}, binarios, carpeta_.path());
        ASSERT_TRUE(programa_->Iniciar());
        estado().mdi.IDI(idioma);
        estado().act.ActOnline = 1;
        estado().act.GuardarActOnline(estado().RutaBDModificacion);
        ventana().Anadir_captions();
        programa_->MostrarVentana();
        ventana().showNormal();
        ventana().resize(1280, 720);
        guia_ = std::make_unique<Guia>(&ventana());
        guia_->TomarVentana();
    }

    EstadoCompartido& estado() { return programa_->estado(); }
    MDIPadral& ventana() { return programa_->ventana(); }
    Guia& guia() { return *guia_; }
    QAction* accion(const char* nombre) {
        auto* a = ventana().findChild<QAction*>(QString::fromUtf8(nombre));
        EXPECT_NE(a, nullptr) << nombre;
        return a;
    }
    QMenu* menu(const char* nombre) {
        auto* m = ventana().findChild<QMenu*>(QString::fromUtf8(nombre));
        EXPECT_NE(m, nullptr) << nombre;
        return m;
    }
    QWidget* pantalla(const char* nombre) {
        return ventana().findChild<QWidget*>(QString::fromUtf8(nombre));
    }
    /// Stores a declaration that breaks no rule: a change of name, which needs no section.
    void guardarUna(const QString& nif = QStringLiteral("12345678Z")) {
        const bool euskera = estado().DesplazamientoIdioma != 0;
        const auto fecha = [euskera](const char* castellana, const char* vasca) {
            return QString::fromLatin1(euskera ? vasca : castellana);
        };
        guia().Ordenar(QStringLiteral("Nueva"));
        guia().Escribir(QStringLiteral("txtDNI"), nif);
        guia().Escribir(QStringLiteral("txtNombre"), QStringLiteral("Lasa Etxe, Jon"));
        guia().Escribir(QStringLiteral("mskFechaDeclaracion"), fecha("31012026", "20260131"));
        guia().Pulsar(QStringLiteral("chkDeclaracionModificacion"));
        guia().Escribir(QStringLiteral("mskFechaModificacion"), fecha("15012026", "20260115"));
        guia().ElegirPestana(QStringLiteral("Pestaña"), 1);
        guia().ElegirEnCombo(QStringLiteral("cmbMotivoCambio"), QStringLiteral("20"));
        guia().Escribir(QStringLiteral("txtNombreAnterior"), QStringLiteral("Lasa Etxe, Ion"));
        guia().Pulsar(QStringLiteral("chkElMismo"));
        guia().Pulsar(QStringLiteral("cmdAceptar"));
    }
    /// Notes whether changes were pending at the moment the list is made.
    void pendientesAlMostrar(bool* pendientes) {
        ventana().Registrar(QStringLiteral("FrmDecLista"), [this, pendientes]() -> QWidget* {
            *pendientes = estado().ModificacionesPendientes;
            return programa_->CrearLista();
        });
    }
    const QString& texto(int id) { return estado().Texto(id); }

    GrabadorAvisos avisos;
    RelojFijo reloj_;
    SinImpresora impresora_;
    /// Set before a start: shows the help instead of the program's own window.
    VisorAyuda* visor_ = nullptr;
    /// Set before a start: without them the commands of the menu of utilities are off.
    PuertosUtilidades utilidades_;
    QTemporaryDir carpeta_;
    std::unique_ptr<Programa> programa_;
    std::unique_ptr<Guia> guia_;
};

}  // namespace padral::pruebas
