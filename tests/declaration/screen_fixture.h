#pragma once
// The general data screen in a window of its own, over one open declaration.

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QTabBar>
#include <QTest>
#include <QWindow>

#include "declaration/declaration_fixture.h"
#include "declaration/full_declaration.h"
#include "declaration/screen/frm_dat_gen.h"

namespace padral::pruebas {

class PantallaGeneral : public ConAlmacen {
protected:
    void TearDown() override { cerrar(); }

    void cerrar() {
        if (pantalla) guardia.Olvidar(pantalla.get());
        pantalla.reset();
    }
    /// Loads and shows the screen as the main window does.
    void abrir() {
        cerrar();
        pantalla = std::make_unique<FrmDatGen>(Contexto{estado, pantallas, guardia}, d, lista);
        pantalla->Cargar();
        pantalla->resize(1240, 640);
        pantalla->show();
        pantalla->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(pantalla.get()));
        pantalla->FocoInicial()->setFocus(Qt::OtherFocusReason);
    }
    /// A blank declaration.
    void abrirNueva() {
        d.Modo = QStringLiteral("A");
        d.csde = 0;
        estado.FormularioOrigen = QStringLiteral("MDIPadral");
        abrir();
    }
    /// The records as they are, as when coming back from a section.
    void abrirRegistro() {
        d.Modo = QStringLiteral("A");
        estado.FormularioOrigen = QStringLiteral("FrmApartado2");
        abrir();
    }
    /// A declaration that breaks no rule, not yet stored, without pending changes.
    void abrirValida() {
        generalesValidos(g);
        abrirRegistro();
    }

    /// Answers that break no rule in a section 5 that was not accepted: it holds nothing yet.
    void responderApartado5() {
        for (const auto& c : TablaApartado5()) c.escribir(d.apartado5, QStringLiteral("N"));
        d.apartado5.IVA = d.apartado5.GENERAL = QStringLiteral("S");
    }

    template <class T = QWidget>
    T* c(const QString& nombre) {
        auto* control = pantalla->findChild<T*>(nombre);
        EXPECT_TRUE(control) << nombre.toStdString();
        return control;
    }
    template <class T = QWidget>
    T* c(const char16_t* nombre) {
        return c<T>(q(nombre));
    }
    QString texto(const char16_t* nombre) { return c<QLineEdit>(nombre)->text(); }
    QString fecha(const char16_t* nombre) { return c<QLineEdit>(nombre)->displayText(); }
    bool marcada(const char16_t* nombre) { return c<QCheckBox>(nombre)->isChecked(); }
    bool habilitado(const char16_t* nombre) { return c(nombre)->isEnabled(); }
    bool bloqueado(const char16_t* nombre) { return EstaBloqueado(c<QLineEdit>(nombre)); }
    bool visible(const char16_t* nombre) { return c(nombre)->isVisible(); }
    QString foco() {
        const auto* w = QApplication::focusWidget();
        return w ? w->objectName() : QString();
    }

    /// Gives a field the focus, and with it the whole tab that holds it.
    void enfocar(const char16_t* nombre) {
        auto* campo = c(nombre);
        if (!campo->isVisible()) {
            auto* pestanas = c<QTabBar>(u"Pestaña");
            pestanas->setCurrentIndex(1 - pestanas->currentIndex());
        }
        campo->setFocus(Qt::TabFocusReason);
        ASSERT_EQ(foco(), q(nombre));
    }
    /// Types over what a field holds; dates without their slashes.
    void escribir(const char16_t* nombre, const QString& valor) {
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
    void tab() { tecla(Qt::Key_Tab); }
    /// Types and leaves with Tab.
    void rellenarCampo(const char16_t* nombre, const QString& valor) {
        escribir(nombre, valor);
        tab();
    }
    /// A click where the user would click, with the focus rules of the toolkit.
    void pulsar(QWidget* w, QPoint en) {
        QTest::mouseClick(pantalla->windowHandle(), Qt::LeftButton, {},
                          w->mapTo(pantalla.get(), en));
        QCoreApplication::processEvents();
    }
    void pulsar(const char16_t* nombre) {
        auto* w = c(nombre);
        const bool casilla = qobject_cast<QCheckBox*>(w) != nullptr;
        pulsar(w, casilla ? QPoint(8, w->height() / 2) : w->rect().center());
    }
    /// Nothing of the record changes by what `hacer` does.
    void sinCambios(const std::function<void()>& hacer) {
        const Fila antes = g.ObtenerDatos();
        const bool pendientes = estado.ModificacionesPendientes;
        hacer();
        EXPECT_EQ(g.ObtenerDatos(), antes);
        EXPECT_EQ(estado.ModificacionesPendientes, pendientes);
    }
    static QStringList mostrar(const char16_t* nombre) {
        return {QStringLiteral("Mostrar ") + q(nombre), QStringLiteral("Descargar FrmDatGen")};
    }
    static QStringList cierre() {
        return {QStringLiteral("HabilitarMenus"), QStringLiteral("Mostrar MDIPadral"),
                QStringLiteral("Descargar FrmDatGen")};
    }
    /// Everything is as when no declaration is open.
    void esperaCerrada() {
        EXPECT_EQ(pantallas.Tomar(), cierre());
        EXPECT_EQ(d.csde, 0);
        EXPECT_EQ(d.Modo, QString());
        EXPECT_TRUE(lista.Modo.vacio());
        EXPECT_FALSE(d.HayModificaciones());
        EXPECT_EQ(g.NOMBRE + g.DNI, QString());
        for (const auto a : SeccionesConRegistro) EXPECT_FALSE(lleno(d, a));
    }

    GuardiaCampos guardia;
    std::unique_ptr<FrmDatGen> pantalla;
};

}  // namespace padral::pruebas
