#include "ui/combo.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QLineEdit>
#include <QTest>
#include <QToolTip>
#include <QVBoxLayout>
#include <QWheelEvent>

using padral::CajaCombo;

namespace {

struct Combo : ::testing::Test {
    Combo() {
        auto* columna = new QVBoxLayout(&ventana);
        combo = new CajaCombo(QStringLiteral("cmb"), 5, &ventana);
        siguiente = new QLineEdit(&ventana);
        columna->addWidget(combo);
        columna->addWidget(siguiente);
        combo->addItems({QStringLiteral("UNO"), QStringLiteral("DOS")});
        ventana.show();
        ventana.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&ventana));
        combo->setFocus();
    }

    QWidget ventana;
    CajaCombo* combo;
    QLineEdit* siguiente;
};

TEST_F(Combo, TheListIsAsWideAsItsWidestRow) {
    const QString larga(60, u'W');
    combo->addItem(larga);
    combo->addItem(QStringLiteral("I"));
    EXPECT_GT(combo->view()->minimumWidth(), combo->fontMetrics().horizontalAdvance(larga));
    EXPECT_LT(combo->width(), combo->view()->minimumWidth());
}

TEST_F(Combo, TheListGrowsWithTheLetters) {
    const int antes = combo->view()->minimumWidth();
    QFont grande = combo->font();
    grande.setPointSizeF(grande.pointSizeF() * 3);
    combo->setFont(grande);
    EXPECT_GT(combo->view()->minimumWidth(), antes);
}

TEST_F(Combo, AChoiceThatDoesNotFitEndsInDotsAndTheToolTipTellsItWhole) {
    const QString larga = QStringLiteral("REPARACION DE AUTOMOVILES Y OTROS VEHICULOS");
    combo->addItem(larga);
    combo->setFixedWidth(150);
    QCoreApplication::processEvents();
    const auto avisar = [this] {
        QToolTip::hideText();
        QHelpEvent ayuda(QEvent::ToolTip, QPoint(5, 5), combo->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(combo, &ayuda);
        return QToolTip::text();
    };
    combo->setCurrentIndex(0);
    EXPECT_EQ(combo->TextoVisible(), QStringLiteral("UNO"));
    EXPECT_EQ(avisar(), QString());
    const QImage corta = combo->grab().toImage();
    combo->setCurrentIndex(2);
    EXPECT_TRUE(combo->TextoVisible().endsWith(u'…'));
    EXPECT_TRUE(larga.startsWith(combo->TextoVisible().chopped(1)));
    EXPECT_EQ(avisar(), larga);
    // What it draws is that and no more: the same picture as of a row that reads so.
    const QImage dibujada = combo->grab().toImage();
    EXPECT_NE(dibujada, corta);
    combo->setItemText(2, combo->TextoVisible());
    EXPECT_EQ(combo->grab().toImage(), dibujada);
    QToolTip::hideText();
}

TEST_F(Combo, EnterActsAndMovesOn) {
    for (const auto tecla : {Qt::Key_Return, Qt::Key_Enter}) {
        combo->setFocus();
        int veces = 0;
        combo->alPulsarIntro = [&veces] { ++veces; };
        QTest::keyClick(combo, tecla);
        EXPECT_EQ(veces, 1);
        EXPECT_TRUE(siguiente->hasFocus());
    }
}

TEST_F(Combo, ArrowsWithoutAChoiceOpenTheList) {
    for (const auto tecla : {Qt::Key_Down, Qt::Key_Up}) {
        combo->setCurrentIndex(-1);
        int elegidas = 0;
        const auto cuenta =
            QObject::connect(combo, &QComboBox::activated, combo, [&elegidas] { ++elegidas; });
        QTest::keyClick(combo, tecla);
        EXPECT_TRUE(combo->view()->isVisible());
        EXPECT_EQ(combo->currentIndex(), -1);
        EXPECT_EQ(elegidas, 0);
        combo->view()->setCurrentIndex(combo->model()->index(1, 0));
        QTest::keyClick(combo->view(), Qt::Key_Return);
        EXPECT_EQ(combo->currentIndex(), 1);
        EXPECT_EQ(elegidas, 1);
        EXPECT_FALSE(combo->view()->isVisible());
        QObject::disconnect(cuenta);
    }
}

TEST_F(Combo, TabTakesTheRowOfTheOpenListAndMovesOn) {
    for (const auto tecla : {Qt::Key_Tab, Qt::Key_Backtab}) {
        combo->setFocus();
        combo->setCurrentIndex(0);
        int elegidas = 0;
        const auto cuenta =
            QObject::connect(combo, &QComboBox::activated, combo, [&elegidas] { ++elegidas; });
        combo->showPopup();
        combo->view()->setCurrentIndex(combo->model()->index(1, 0));
        QTest::keyClick(combo->view(), tecla);
        EXPECT_FALSE(combo->view()->isVisible());
        EXPECT_EQ(combo->currentIndex(), 1);
        EXPECT_EQ(elegidas, 1);
        EXPECT_TRUE(siguiente->hasFocus());
        QObject::disconnect(cuenta);
    }
}

TEST_F(Combo, TabStaysWhereTheChoiceLed) {
    auto* lejos = new QLineEdit(&ventana);
    lejos->show();
    QObject::connect(combo, &QComboBox::activated, lejos, [lejos] { lejos->setFocus(); });
    combo->showPopup();
    combo->view()->setCurrentIndex(combo->model()->index(1, 0));
    QTest::keyClick(combo->view(), Qt::Key_Tab);
    EXPECT_TRUE(lejos->hasFocus());
}

TEST_F(Combo, EscapeClosesTheListWithoutAChoice) {
    combo->setCurrentIndex(-1);
    combo->showPopup();
    combo->view()->setCurrentIndex(combo->model()->index(1, 0));
    QTest::keyClick(combo->view(), Qt::Key_Escape);
    EXPECT_FALSE(combo->view()->isVisible());
    EXPECT_EQ(combo->currentIndex(), -1);
}

TEST_F(Combo, ArrowsChooseFromAChoiceAndTheWheelDoesNot) {
    QTest::keyClick(combo, Qt::Key_Down);
    EXPECT_EQ(combo->currentIndex(), 1);
    QTest::keyClick(combo, Qt::Key_Up);
    EXPECT_EQ(combo->currentIndex(), 0);
    QTest::keyClick(combo, Qt::Key_Down);
    EXPECT_EQ(combo->currentIndex(), 1);
    EXPECT_FALSE(combo->view()->isVisible());
    QWheelEvent rueda(QPointF(5, 5), combo->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, 120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(combo, &rueda);
    EXPECT_EQ(combo->currentIndex(), 1);
    EXPECT_FALSE(rueda.isAccepted());
}

}  // namespace
