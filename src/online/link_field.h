#pragma once

#include <QLineEdit>

namespace padral {

/// A text to read that acts when it is clicked; Enter and the space bar do the same. Dragging over
/// it selects, so that it can be copied without acting.
class CampoEnlace : public QLineEdit {
    Q_OBJECT
public:
    explicit CampoEnlace(const QString& nombre, QWidget* padre = nullptr);

Q_SIGNALS:
    void pulsado();

protected:
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    bool pulsando_ = false;
    QPoint apretadoEn_;
};

/// A field to read and to copy from: the colours of the window around it. The keyboard reaches it.
void SoloLectura(QWidget* campo);

}  // namespace padral
