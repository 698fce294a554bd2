#pragma once
// The choice of language of the first start. Its captions show both languages.

#include <QCheckBox>
#include <QDialog>
#include <QPushButton>
#include <functional>

#include "core/shared_state.h"

namespace padral {

class FrmIdioma : public QDialog {
    Q_OBJECT
public:
    /// `alElegir` runs once the language is stored: captions are taken again.
    FrmIdioma(EstadoCompartido& estado, std::function<void()> alElegir, QWidget* padre = nullptr);

protected:
    void showEvent(QShowEvent* evento) override;
    bool eventFilter(QObject* control, QEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    void elegir(const QString& letra);
    void guardarAviso(bool marcado);

    EstadoCompartido& estado_;
    std::function<void()> alElegir_;
    QCheckBox* chkActOnline_;
    QPushButton *cmdcastellano_, *cmdeuskera_;
};

}  // namespace padral
