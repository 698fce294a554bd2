#pragma once
// A dialog around the program over a store of its own, clicked and typed at; what it asks of the
// version check, of the program and of the main window is written down in its order.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QTest>
#include <memory>

#include "online/online_commands.h"
#include "support/recorders.h"
#include "support/store_fixture.h"
#include "ui/screen.h"

namespace padral::pruebas {

/// The clock of the tests; writes its waits down and lets something happen in each.
class RelojConEsperas : public RelojFijo {
public:
    std::vector<int> Esperas;
    std::function<void()> alEsperar;

    void Esperar(int milisegundos) override {
        Esperas.push_back(milisegundos);
        RelojFijo::Esperar(milisegundos);
        if (alEsperar) alEsperar();
        ASSERT_LT(Esperas.size(), 1000U) << "waits for ever";
    }
};

/// The main window as the dialogs see it: the wait cursor, which may be ended more than once.
class VentanaDeEsperas : public Pantallas {
public:
    std::function<void(bool)> alEsperar;

    void Mostrar(const QString&) override { ADD_FAILURE() << "a screen is shown"; }
    void Descargar(const QString&) override { ADD_FAILURE() << "a screen is unloaded"; }
    void HabilitarMenus() override { ADD_FAILURE() << "the menus are turned on"; }
    void DeshabilitarMenus() override { ADD_FAILURE() << "the menus are turned off"; }
    void CursorEspera(bool activo) override { alEsperar(activo); }
};

class ConDialogo : public ::testing::Test {
protected:
    ConDialogo() {
        pantallas.alEsperar = [this](bool activo) {
            hechos << (activo ? QStringLiteral("hourglass") : QStringLiteral("normal pointer"));
        };
        ordenes.comprobarVersion = [this] {
            hechos << QStringLiteral("check");
            if (alComprobar) alComprobar();
        };
        ordenes.abrirPagina = [this](const QString& url) {
            hechos << QStringLiteral("open ") + url;
        };
        ordenes.terminarPrograma = [this] { hechos << QStringLiteral("end"); };
        estado.mdi.IDI(QStringLiteral("C"));
    }

    /// Shows a dialog made here and forgets what its load did.
    template <class Formulario, class... Argumentos>
    Formulario* mostrar(Argumentos&&... argumentos) {
        auto nuevo = std::make_unique<Formulario>(std::forward<Argumentos>(argumentos)...);
        Formulario* formulario = nuevo.get();
        dialogo = std::move(nuevo);
        dialogo->show();
        dialogo->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialogo.get()));
        hechos.clear();
        return formulario;
    }
    Contexto contexto() { return {estado, pantallas, guardia}; }
    std::function<void()> alCambiarIdioma() {
        return [this] { hechos << QStringLiteral("captions ") + estado.mdi.IDI(); };
    }

    template <class Control = QWidget>
    Control* de(const char* nombre) const {
        auto* control = dialogo->findChild<Control*>(QString::fromLatin1(nombre));
        if (!control) throw std::runtime_error(std::string("no control ") + nombre);
        return control;
    }
    QString rotulo(const char* nombre) const {
        if (const auto* etiqueta = dialogo->findChild<QLabel*>(QString::fromLatin1(nombre)))
            return etiqueta->text();
        return de<QAbstractButton>(nombre)->text();
    }
    /// A click on the mark of a box, or on the middle of anything else.
    void pulsar(const char* nombre) const {
        auto* control = de(nombre);
        const bool casilla = control->inherits("QCheckBox") || control->inherits("QRadioButton");
        const QPoint punto = casilla ? QPoint(8, control->height() / 2) : control->rect().center();
        QTest::mouseClick(control, Qt::LeftButton, {}, punto);
    }
    static void tecla(Qt::Key tecla) { QTest::keyClick(QApplication::focusWidget(), tecla); }
    static QString enFoco() {
        const QWidget* foco = QApplication::focusWidget();
        return foco ? foco->objectName() : QString();
    }
    bool cerrado() const { return !dialogo->isVisible(); }

    /// What the store holds.
    int avisoGuardado() const {
        cActOnline guardado;
        guardado.LeerActOnline(estado.RutaBDModificacion);
        return guardado.ActOnline;
    }
    QString idiomaGuardado() {
        cMDIPadral guardado(estado);
        guardado.LeerIdioma();
        return guardado.IDI();
    }
    /// The user's setting, in the run and in the store.
    void ponerAviso(qint16 valor) {
        estado.act.ActOnline = valor;
        estado.act.GuardarActOnline(estado.RutaBDModificacion);
    }
    QStringList tomar() { return std::exchange(hechos, {}); }

    GrabadorAvisos avisos;
    RelojConEsperas reloj;
    EstadoCompartido estado{avisos, reloj};
    AlmacenPrueba almacen{estado};
    VentanaDeEsperas pantallas;
    GuardiaCampos guardia;
    OrdenesVersion ordenes;
    /// What was asked, in its order.
    QStringList hechos;
    /// What happens during the check.
    std::function<void()> alComprobar;
    std::unique_ptr<QWidget> dialogo;
};

inline QStringList Pasos(std::initializer_list<const char*> pasos) {
    QStringList lista;
    for (const char* paso : pasos) lista << QString::fromUtf8(paso);
    return lista;
}

}  // namespace padral::pruebas
