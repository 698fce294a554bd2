#include "walk/walk_hand.h"

#include <QApplication>
#include <QTest>

namespace padral::pruebas {

namespace {

constexpr int EnLaMarca = 8;  // pixels from the left edge of a box

void teclear(const QString& teclas) {
    for (const QChar c : teclas)
        if (QWidget* foco = QApplication::focusWidget())
            QTest::sendKeyEvent(QTest::Click, foco, Qt::Key_unknown, QString(c), Qt::NoModifier);
}

}  // namespace

bool EscribirEn(QLineEdit* campo, const QString& teclas, Salida salida) {
    QTest::mouseClick(campo, Qt::LeftButton);
    if (QApplication::focusWidget() != campo) return false;
    campo->selectAll();
    QTest::keyClick(campo, Qt::Key_Delete);
    campo->setCursorPosition(0);
    teclear(teclas);
    if (salida == Salida::Tabulador) QTest::keyClick(campo, Qt::Key_Tab);
    if (salida == Salida::Intro) QTest::keyClick(campo, Qt::Key_Return);
    return true;
}

bool PulsarEn(QWidget* control, bool conTeclado) {
    if (conTeclado) {
        control->setFocus(Qt::TabFocusReason);
        if (QApplication::focusWidget() != control) return false;
        QTest::keyClick(control, Qt::Key_Space);
        return true;
    }
    const bool marca = control->inherits("QCheckBox") || control->inherits("QRadioButton");
    const QPoint en = marca ? QPoint(EnLaMarca, control->height() / 2) : control->rect().center();
    QTest::mouseClick(control, Qt::LeftButton, Qt::NoModifier, en);
    return true;
}

void ElegirEn(QComboBox* combo, int pasos) {
    combo->setFocus(Qt::TabFocusReason);
    if (QApplication::focusWidget() != combo) return;
    if (combo->currentIndex() < 0)
        QTest::keyClick(combo, pasos < 0 ? Qt::Key_End : Qt::Key_Home);
    else
        for (int i = 0; i < std::abs(pasos); ++i)
            QTest::keyClick(QApplication::focusWidget(), pasos < 0 ? Qt::Key_Up : Qt::Key_Down);
    if (QApplication::focusWidget() == combo) QTest::keyClick(combo, Qt::Key_Tab);
}

void PulsarFila(QAbstractItemView* tabla, const QModelIndex& celda, bool doble) {
    tabla->scrollTo(celda);
    const QPoint en = tabla->visualRect(celda).center();
    QTest::mouseClick(tabla->viewport(), Qt::LeftButton, Qt::NoModifier, en);
    if (doble) QTest::mouseDClick(tabla->viewport(), Qt::LeftButton, Qt::NoModifier, en);
}

void PulsarPestana(QTabBar* barra, int indice) {
    QTest::mouseClick(barra, Qt::LeftButton, Qt::NoModifier, barra->tabRect(indice).center());
}

}  // namespace padral::pruebas
