#pragma once

#include <QCheckBox>

namespace padral {

/// A box in a row of answers. While it has the focus an arrow stands in place of its caption, so
/// that the answer in hand shows; Enter moves on as Tab does.
class CasillaRespuesta : public QCheckBox {
    Q_OBJECT
public:
    explicit CasillaRespuesta(const QString& nombre, QWidget* padre = nullptr);

    /// Caption at opening, caption after the focus has been here once, and the arrow. The box is
    /// as wide as the widest of the three.
    void PonerRotulos(const QString& alAbrir, const QString& trasElFoco, const QString& flecha);
    void PonerRotulos(const QString& rotulo, const QString& flecha) {
        PonerRotulos(rotulo, rotulo, flecha);
    }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    /// The whole place of the box answers: the press that brings the focus changes the caption, and
    /// with it the place that the text takes.
    bool hitButton(const QPoint& punto) const override { return rect().contains(punto); }
    void focusInEvent(QFocusEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    QString alAbrir_, trasElFoco_, flecha_;
};

}  // namespace padral
