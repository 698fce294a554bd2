#pragma once

#include <QComboBox>
#include <functional>

namespace padral {

/// A list to choose from. Its drop-down is as wide as its widest row; Enter moves on as Tab does;
/// the arrows change the choice, and open the list while there is none; Tab in the open list takes
/// its row and moves on; the wheel scrolls the screen and leaves the choice alone. A choice that is
/// wider than the field ends in "…", and the tool tip tells it whole.
class CajaCombo : public QComboBox {
    Q_OBJECT
public:
    /// `caracteres` is the width that it asks for, whatever its rows.
    CajaCombo(const QString& nombre, int caracteres, QWidget* padre = nullptr);

    /// The choice as it stands in the field.
    QString TextoVisible() const;

    /// Runs on Enter, before the focus moves on.
    std::function<void()> alPulsarIntro;

protected:
    bool event(QEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void wheelEvent(QWheelEvent* evento) override;
    void changeEvent(QEvent* evento) override;

private:
    void ensancharLista(int desde, int hasta);
};

}  // namespace padral
