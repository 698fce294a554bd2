// The looking glass itself: each fault that it is there to find, and its harmless neighbour.

#include "screens/screen_audit.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>

namespace padral::pruebas {
namespace {

struct Ventana : ::testing::Test {
    Ventana() { ventana.resize(600, 400); }

    template <class T>
    T* poner(const char16_t* nombre, const QString& texto, int x = 0, int y = 0) {
        auto* control = new T(texto, &ventana);
        control->setObjectName(QString::fromUtf16(nombre));
        control->move(x, y);
        control->resize(control->sizeHint().expandedTo(control->minimumSizeHint()));
        return control;
    }
    QStringList cortados() {
        ventana.show();
        const auto hijos = ventana.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        for (QWidget* w : hijos) w->show();
        return RotulosCortados(ventana);
    }

    QWidget ventana;
};

const QString Frase = QStringLiteral("Fecha de la declaración");

TEST_F(Ventana, AnythingAsLargeAsItAsksIsWhole) {
    poner<QLabel>(u"a", Frase);
    poner<QPushButton>(u"b", Frase, 0, 50);
    poner<QCheckBox>(u"c", Frase, 0, 100);
    poner<QGroupBox>(u"d", Frase, 0, 150);
    EXPECT_EQ(cortados().join(u'/').toStdString(), "");
}

TEST_F(Ventana, ASmallerControlCutsItsCaption) {
    for (QWidget* w : {static_cast<QWidget*>(poner<QLabel>(u"a", Frase)),
                       static_cast<QWidget*>(poner<QPushButton>(u"b", Frase, 0, 50)),
                       static_cast<QWidget*>(poner<QCheckBox>(u"c", Frase, 0, 100)),
                       static_cast<QWidget*>(poner<QGroupBox>(u"d", Frase, 0, 150))})
        w->resize(w->fontMetrics().horizontalAdvance(Frase) - 2, w->height());
    EXPECT_EQ(cortados().size(), 4);
}

TEST_F(Ventana, AWrappedLabelNeedsItsHeight) {
    auto* etiqueta = poner<QLabel>(u"a", Frase);
    etiqueta->setWordWrap(true);
    etiqueta->resize(60, etiqueta->heightForWidth(60));
    EXPECT_EQ(cortados().join(u'/').toStdString(), "");
    etiqueta->resize(60, etiqueta->height() - 3);
    EXPECT_EQ(cortados().size(), 1);
}

TEST_F(Ventana, ControlsOverOneAnotherAndOverTheEdge) {
    poner<QPushButton>(u"a", Frase);
    poner<QPushButton>(u"b", Frase, 20, 5);
    EXPECT_EQ(cortados(), QStringList(QStringLiteral("a and b lie over one another")));
    poner<QLabel>(u"c", Frase, 590, 300);
    EXPECT_TRUE(cortados().contains(QStringLiteral("c leaves its parent")));
}

TEST_F(Ventana, RowsOfAComboHaveRoom) {
    QComboBox combo(&ventana);
    combo.setObjectName(QStringLiteral("cmb"));
    combo.addItem(Frase);
    combo.resize(combo.sizeHint());
    EXPECT_EQ(cortados().join(u'/').toStdString(), "");
    combo.addItem(Frase + Frase);
    EXPECT_EQ(cortados().size(), 1);
}

TEST_F(Ventana, TabsHaveRoom) {
    QTabBar barra(&ventana);
    barra.addTab(Frase);
    barra.addTab(Frase);
    barra.resize(barra.sizeHint());
    EXPECT_EQ(cortados().join(u'/').toStdString(), "");
    barra.resize(barra.width() / 2, barra.height());
    EXPECT_FALSE(cortados().isEmpty());
}

TEST_F(Ventana, AnAccessKeyServesOneControlVisibleOrNot) {
    poner<QPushButton>(u"cmdA", QStringLiteral("&Aceptar"));
    poner<QCheckBox>(u"chkB", QStringLiteral("&Borrador"), 0, 50);
    EXPECT_EQ(TeclasRepetidas(ventana), QStringList());
    poner<QCheckBox>(u"chkC", QStringLiteral("&Anexo"), 0, 100)->hide();
    ASSERT_EQ(TeclasRepetidas(ventana).size(), 1);
    EXPECT_TRUE(TeclasRepetidas(ventana).first().startsWith(QStringLiteral("Alt+A: ")));
}

TEST_F(Ventana, AnAmpersandNeedsABuddyToBeAKey) {
    auto* etiqueta = poner<QLabel>(u"lbl", QStringLiteral("&Nombre"));
    EXPECT_EQ(TeclasRepetidas(ventana).size(), 1);
    QLineEdit campo(&ventana);
    etiqueta->setBuddy(&campo);
    EXPECT_EQ(TeclasRepetidas(ventana), QStringList());
}

TEST_F(Ventana, TextsOfTheOtherLanguageAreFoundWhereverTheyShow) {
    auto* boton = poner<QPushButton>(u"cmd", QStringLiteral("&Ados"));
    EXPECT_EQ(TextosEnOtroIdioma(ventana, true, {}), QStringList());
    EXPECT_EQ(TextosEnOtroIdioma(ventana, false, {}), QStringList(QStringLiteral("cmd: Ados")));
    boton->setToolTip(QStringLiteral("Datos no válidos"));
    EXPECT_EQ(TextosEnOtroIdioma(ventana, true, {}),
              QStringList(QStringLiteral("cmd: Datos no válidos")));
    EXPECT_EQ(TextosEnOtroIdioma(ventana, true, {QStringLiteral("cmd")}), QStringList());
    boton->setToolTip(QString());
    ventana.setWindowTitle(QStringLiteral("Una frase de fuera del catálogo"));
    EXPECT_EQ(TextosEnOtroIdioma(ventana, true, {}).size(), 1);
}

TEST_F(Ventana, WhatUsersTypedIsNoCaption) {
    auto* campo = new QLineEdit(QStringLiteral("Panadería de la Plaza"), &ventana);
    campo->setObjectName(QStringLiteral("txt"));
    EXPECT_EQ(TextosEnOtroIdioma(ventana, true, {}), QStringList());
    campo->setPlaceholderText(QStringLiteral("Nombre de la calle"));
    EXPECT_EQ(TextosEnOtroIdioma(ventana, true, {}).size(), 1);
}

}  // namespace
}  // namespace padral::pruebas
