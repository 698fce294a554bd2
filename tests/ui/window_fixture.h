#pragma once
// A window with guarded fields and commands, driven through its window system events.

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDropEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include "support/print_text.h"
#include "ui/field_guard.h"
#include "ui/fields.h"

namespace padral::pruebas {

/// A click where the user would click: through the window, with the focus rules of the toolkit.
inline void Pulsar(QWidget* w, QPoint en = {}, Qt::MouseButton boton = Qt::LeftButton) {
    if (en.isNull()) en = w->rect().center();
    QTest::mouseClick(w->window()->windowHandle(), boton, {}, w->mapTo(w->window(), en));
}

/// The box of a check box, not the middle of its empty caption.
inline void PulsarCasilla(QCheckBox* casilla) { Pulsar(casilla, {8, casilla->height() / 2}); }

/// Types through the window, so that access keys and the focus work as on a desktop.
inline void Teclear(QWidget* w, Qt::Key tecla, Qt::KeyboardModifiers con = {}) {
    QTest::keyClick(w->window()->windowHandle(), tecla, con);
}

/// Types a text; unlike the toolkit's own function it takes any character.
inline void Escribir(QWidget* w, const QString& texto) {
    for (const QChar c : texto)
        QTest::sendKeyEvent(QTest::Click, w, static_cast<Qt::Key>(c.toUpper().unicode()), c,
                            Qt::NoModifier);
}

/// Drags a text over a point of a field and drops it there.
/// Returns whether it was taken.
inline bool Soltar(QWidget* w, const QString& texto, QPoint en) {
    QMimeData datos;
    datos.setText(texto);
    QDragEnterEvent entrada(en, Qt::CopyAction, &datos, Qt::LeftButton, {});
    QApplication::sendEvent(w, &entrada);
    QDropEvent evento(en, Qt::CopyAction, &datos, Qt::LeftButton, {});
    QApplication::sendEvent(w, &evento);
    return evento.isAccepted();
}

/// The key as it comes again and again while it is held down.
inline void Repetir(QWidget* w, Qt::Key tecla) {
    const QString letra = tecla == Qt::Key_Space ? QStringLiteral(" ") : QStringLiteral("\r");
    QKeyEvent evento(QEvent::KeyPress, tecla, Qt::NoModifier, letra, true);
    QApplication::sendEvent(w, &evento);
}

class VentanaConCampos : public ::testing::Test {
protected:
    VentanaConCampos() {
        ventana.setCentralWidget(fondo);
        auto* caja = new QVBoxLayout(fondo);
        for (QWidget* w : std::initializer_list<QWidget*>{otroAntes, campo, otro, boton, casilla,
                                                          etiqueta, imagen, pestanas})
            caja->addWidget(w);
        boton->setText(QStringLiteral("&Guardar"));
        casilla->setText(QStringLiteral("&Marca"));
        etiqueta->setText(QStringLiteral("la casilla"));
        pestanas->setFocusPolicy(Qt::StrongFocus);
        pestanas->addTab(QStringLiteral("una"));
        pestanas->addTab(QStringLiteral("dos"));
        menu = ventana.menuBar()->addMenu(QStringLiteral("&Ayuda"));
        menu->addAction(QStringLiteral("algo"));
        guardia.Registrar(campo, [this] { return comprobar(); });
        const auto anotar = [this](const QString& orden) {
            return [this, orden] { hechos << orden; };
        };
        guardia.Orden(boton, anotar(QStringLiteral("boton")));
        guardia.Orden(casilla, anotar(QStringLiteral("casilla")),
                      [this] { casilla->setChecked(false); });
        QObject::connect(imagen, &ImagenPulsable::pulsada, boton, [this] { boton->click(); });
        QObject::connect(pestanas, &QTabBar::currentChanged, anotar(QStringLiteral("pestaña")));
    }

    void SetUp() override {
        ventana.resize(500, 600);
        ventana.show();
        ventana.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
        campo->setFocus(Qt::OtherFocusReason);
        ASSERT_TRUE(campo->hasFocus());
    }

    /// Types a value that has to be stored or refused when the field is left.
    void escribir(const QString& texto) {
        campo->selectAll();
        Escribir(campo, texto);
        ASSERT_EQ(campo->text(), texto);
    }

    /// Waits for the end of a button's press by access key.
    void esperar(int cuantos) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return hechos.size() >= cuantos; }, 5000))
            << "only " << hechos.join(u' ').toStdString();
        QCoreApplication::processEvents();
    }

    /// The check: nothing for the value that is stored, otherwise a note and a store or a refusal.
    bool comprobar() {
        ++llamadas;
        if (campo->text() == guardado) return true;
        hechos << QStringLiteral("comprobar");
        if (alComprobar) alComprobar();
        if (rechazar) {
            campo->Presentar(guardado);
            return false;
        }
        guardado = campo->text();
        return true;
    }

    GuardiaCampos guardia;
    QMainWindow ventana;
    QWidget* fondo = new QWidget;
    CampoTexto* otroAntes = new CampoTexto(QStringLiteral("antes"), 9, fondo);
    CampoTexto* campo = new CampoTexto(QStringLiteral("campo"), 9, fondo);
    CampoTexto* otro = new CampoTexto(QStringLiteral("otro"), 9, fondo);
    QPushButton* boton = new QPushButton(fondo);
    QCheckBox* casilla = new QCheckBox(fondo);
    EtiquetaCasilla* etiqueta = new EtiquetaCasilla(QStringLiteral("etiqueta"), casilla, fondo);
    ImagenPulsable* imagen =
        new ImagenPulsable(QStringLiteral("imagen"), QStringLiteral("accept"), fondo);
    QTabBar* pestanas = new QTabBar(fondo);
    QMenu* menu = nullptr;

    /// What happened, in its order.
    QStringList hechos;
    QString guardado;
    bool rechazar = false;
    int llamadas = 0;
    std::function<void()> alComprobar;
};

}  // namespace padral::pruebas
