#pragma once
// What all fields that take typed text share.

#include <QLineEdit>

namespace padral {

/// Everything is selected when the focus comes in, Enter moves on, and all that enters passes one
/// filter: keys, composed text, paste and drop. What the filter drops just disappears, and with it
/// the reason to replace the selected text.
class CampoEntrada : public QLineEdit {
    Q_OBJECT
public:
    explicit CampoEntrada(const QString& nombre, QWidget* padre = nullptr);

protected:
    /// The characters of `texto` that the field takes, each in the form in which it takes it.
    virtual QString admitido(const QString& texto) const = 0;

    void keyPressEvent(QKeyEvent* evento) override;
    void inputMethodEvent(QInputMethodEvent* evento) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;
    void dropEvent(QDropEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;

private:
    void insertar(const QString& texto);
    bool tomarFoco();

    bool recienEnfocado_ = false;
    bool volvera_ = false;
};

}  // namespace padral
