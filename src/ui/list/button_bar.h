#pragma once
// The buttons below a list.

#include <QWidget>
#include <vector>

class QBoxLayout;
class QHBoxLayout;
class QPushButton;

namespace padral {

/// Two groups of buttons: in one line where they fit, otherwise one below the other. It is as
/// narrow as the wider group may be.
class BarraBotones : public QWidget {
public:
    explicit BarraBotones(QWidget* padre);

    /// Leaving and searching, to be filled from left to right.
    QHBoxLayout* Primero() { return primero_; }
    /// What is done with a row.
    QHBoxLayout* Segundo() { return segundo_; }
    /// From then on the keys of a row of buttons go through both groups; see `ui/button_keys.h`.
    void RecorrerConTeclas();

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void repartir();

    QBoxLayout* todo_;
    QHBoxLayout *primero_, *segundo_;
    std::vector<QPushButton*> recorrido_;
};

}  // namespace padral
