#pragma once
// F1 in the windows that the main window's menu does not reach: dialogs and boxes.

#include <QObject>
#include <functional>

namespace padral {

/// Hands the form name of the window in hand to `ayuda`. A box without a page of its own stands
/// for the form it lies over. One per application.
class TeclaAyuda : public QObject {
public:
    explicit TeclaAyuda(std::function<void(const QString& formulario)> ayuda);

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    std::function<void(const QString&)> ayuda_;
};

}  // namespace padral
