#include "ui/answer_box.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

using padral::CasillaRespuesta;

namespace {

struct Casilla : ::testing::Test {
    Casilla() {
        auto* columna = new QVBoxLayout(&ventana);
        otra = new QLineEdit(&ventana);
        casilla = new CasillaRespuesta(QStringLiteral("chk55"), &ventana);
        columna->addWidget(otra);
        columna->addWidget(casilla);
        columna->addWidget(new QLineEdit(&ventana));
        casilla->PonerRotulos(QStringLiteral("(172)"), QStringLiteral("(111)"),
                              QStringLiteral(" ==>"));
        ventana.show();
        ventana.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&ventana));
        otra->setFocus();
    }

    QWidget ventana;
    CasillaRespuesta* casilla;
    QLineEdit* otra;
};

TEST_F(Casilla, TheArrowStandsInPlaceOfTheCaptionWhileItHasTheFocus) {
    EXPECT_EQ(casilla->text(), QStringLiteral("(172)"));
    casilla->setFocus();
    EXPECT_EQ(casilla->text(), QStringLiteral(" ==>"));
    otra->setFocus();
    EXPECT_EQ(casilla->text(), QStringLiteral("(111)"));
}

TEST_F(Casilla, EnterMovesOnWithoutAnAnswer) {
    for (const auto tecla : {Qt::Key_Return, Qt::Key_Enter}) {
        casilla->setFocus();
        QTest::keyClick(casilla, tecla);
        EXPECT_FALSE(casilla->hasFocus());
        EXPECT_FALSE(casilla->isChecked());
    }
}

TEST_F(Casilla, SpaceAndMouseAnswer) {
    casilla->setFocus();
    QTest::keyClick(casilla, Qt::Key_Space);
    EXPECT_TRUE(casilla->isChecked());
    QTest::mouseClick(casilla, Qt::LeftButton, {}, QPoint(8, casilla->height() / 2));
    EXPECT_FALSE(casilla->isChecked());
}

TEST_F(Casilla, AClickOnTheEndOfTheCaptionAnswersThoughTheArrowIsShorter) {
    casilla->PonerRotulos(QStringLiteral("(111111)"), QStringLiteral(">"));
    casilla->resize(casilla->sizeHint());
    QTest::mouseClick(casilla, Qt::LeftButton, {},
                      QPoint(casilla->width() - 2, casilla->height() / 2));
    EXPECT_TRUE(casilla->isChecked());
}

TEST_F(Casilla, IsAsWideAsTheWidestOfItsCaptions) {
    const int antes = casilla->sizeHint().width();
    casilla->setFocus();
    EXPECT_EQ(casilla->sizeHint().width(), antes);
    casilla->PonerRotulos(QStringLiteral("()"), QStringLiteral(" ============>"));
    EXPECT_GT(casilla->sizeHint().width(), antes);
    EXPECT_EQ(casilla->minimumSizeHint(), casilla->sizeHint());
}

}  // namespace
