#pragma once
// A screen in a window of its own, driven by the keys and clicks of a user.

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QTest>
#include <QWindow>

#include "declaration/declaration_fixture.h"
#include "ui/fields.h"
#include "ui/screen.h"

namespace padral::pruebas {

class ConPantalla : public ConAlmacen {
protected:
    void TearDown() override { cerrar(); }

    void cerrar() {
        if (pantalla) guardia.Olvidar(pantalla.get());
        pantalla.reset();
    }
    /// Loads and shows a screen as the main window does.
    void abrir(std::unique_ptr<Pantalla> nueva) {
        cerrar();
        pantalla = std::move(nueva);
        pantalla->Cargar();
        pantalla->resize(1240, 600);
        pantalla->show();
        pantalla->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(pantalla.get()));
        pantalla->FocoInicial()->setFocus(Qt::OtherFocusReason);
        pantallas.Tomar();
    }
    Contexto contexto() { return {estado, pantallas, guardia}; }

    template <class T = QWidget>
    T* c(const QString& nombre) {
        auto* control = pantalla->findChild<T*>(nombre);
        EXPECT_TRUE(control) << nombre.toStdString();
        return control;
    }
    QString texto(const QString& nombre) { return c<QLineEdit>(nombre)->text(); }
    bool habilitado(const QString& nombre) { return c(nombre)->isEnabled(); }
    bool bloqueado(const QString& nombre) { return EstaBloqueado(c<QLineEdit>(nombre)); }
    bool marcada(const QString& nombre) { return c<QCheckBox>(nombre)->isChecked(); }
    bool visible(const QString& nombre) { return c(nombre)->isVisible(); }
    QRgb fondo(const QString& nombre) {
        return c(nombre)->palette().color(QPalette::Active, QPalette::Base).rgb();
    }
    QString foco() {
        const auto* w = QApplication::focusWidget();
        return w ? w->objectName() : QString();
    }

    void enfocar(const QString& nombre) {
        c(nombre)->setFocus(Qt::TabFocusReason);
        ASSERT_EQ(foco(), nombre);
    }
    /// Types over what a field holds.
    void escribir(const QString& nombre, const QString& valor) {
        enfocar(nombre);
        auto* campo = c<QLineEdit>(nombre);
        campo->selectAll();
        if (valor.isEmpty())
            QTest::keyClick(campo, Qt::Key_Delete);
        else
            QTest::keyClicks(campo, valor);
    }
    void tecla(Qt::Key codigo, Qt::KeyboardModifiers con = {}) {
        QTest::keyClick(pantalla->windowHandle(), codigo, con);
        QCoreApplication::processEvents();
    }
    /// Types and leaves with Tab.
    void rellenar(const QString& nombre, const QString& valor) {
        escribir(nombre, valor);
        tecla(Qt::Key_Tab);
    }
    /// A click where the user would click, with the focus rules of the toolkit.
    void pulsar(const QString& nombre) {
        auto* w = c(nombre);
        const bool casilla = qobject_cast<QCheckBox*>(w) != nullptr;
        const QPoint en = casilla ? QPoint(8, w->height() / 2) : w->rect().center();
        QTest::mouseClick(pantalla->windowHandle(), Qt::LeftButton, {},
                          w->mapTo(pantalla.get(), en));
        QCoreApplication::processEvents();
    }

    GuardiaCampos guardia;
    std::unique_ptr<Pantalla> pantalla;
};

}  // namespace padral::pruebas
