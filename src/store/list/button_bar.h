#pragma once
// The buttons below the declarations list.

#include <QWidget>

class QBoxLayout;
class QHBoxLayout;

namespace padral {

/// Two groups of buttons: in one line where they fit, otherwise one below the other. It is as
/// narrow as the wider group may be.
class BarraBotones : public QWidget {
public:
    explicit BarraBotones(QWidget* padre);

    /// Leaving and searching, to be filled from left to right.
    QHBoxLayout* Primero() { return primero_; }
    /// What is done with a declaration.
    QHBoxLayout* Segundo() { return segundo_; }

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* evento) override;

private:
    void repartir();

    QBoxLayout* todo_;
    QHBoxLayout *primero_, *segundo_;
};

}  // namespace padral
