#pragma once
// The help window over its form.

#include <QApplication>
#include <QTest>
#include <QTextBrowser>
#include <QTreeWidget>

#include "help_fixture.h"

namespace padral::pruebas {

class ConVentana : public ConAyuda {
protected:
    void mostrar(const char16_t* tema) {
        MostrarAyuda(estado, visor, QString::fromUtf16(tema), &formulario);
        QCoreApplication::processEvents();
    }
    QWidget* ventana() const {
        return formulario.findChild<QWidget*>(QStringLiteral("frmAyuda"),
                                              Qt::FindDirectChildrenOnly);
    }
    template <class T>
    T* hijo(const char16_t* nombre) const {
        auto* encontrado = ventana()->findChild<T*>(QString::fromUtf16(nombre));
        EXPECT_NE(encontrado, nullptr) << QString::fromUtf16(nombre).toStdString();
        return encontrado;
    }
    QTextBrowser* navegador() const { return ventana()->findChild<QTextBrowser*>(); }
    QTreeWidget* arbol() const { return hijo<QTreeWidget>(u"treContenido"); }
    QString texto() const { return navegador()->toPlainText(); }
    /// Title of the current entry of the contents.
    QString enMano() const {
        const auto* entrada = arbol()->currentItem();
        return entrada && entrada->isSelected() ? entrada->text(0) : QString();
    }
    /// A click on the link that shows `rotulo`.
    void seguir(const QString& rotulo) {
        QTextCursor sitio = navegador()->document()->find(rotulo);
        ASSERT_FALSE(sitio.isNull());
        sitio.setPosition(sitio.selectionStart() + 1);
        QTest::mouseClick(navegador()->viewport(), Qt::LeftButton, Qt::NoModifier,
                          navegador()->cursorRect(sitio).center());
    }
    /// A key for whatever has the focus in the window.
    void tecla(Qt::Key cual, Qt::KeyboardModifiers con = Qt::NoModifier) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(ventana()));
        QWidget* foco = QApplication::focusWidget();
        QTest::keyClick(foco ? foco : ventana(), cual, con);
        QCoreApplication::processEvents();
    }

    VisorVentana visor{estado};
};

}  // namespace padral::pruebas
