#pragma once

#include <QLabel>

namespace padral {

/// A caption that ends in a row of points: it shows as many of them as there is room for.
class EtiquetaPuntos : public QLabel {
public:
    using QLabel::QLabel;

    void PonerTexto(const QString& texto) {
        completo_ = texto;
        ajustar();
    }
    /// The caption without its points.
    QString SinPuntos() const {
        qsizetype fin = completo_.size();
        while (fin > 0 && completo_.at(fin - 1) == u'.') --fin;
        return completo_.left(fin);
    }

    QSize sizeHint() const override {
        const QMargins m = contentsMargins();
        return fontMetrics().size(0, SinPuntos()).grownBy(m);
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void resizeEvent(QResizeEvent* evento) override {
        QLabel::resizeEvent(evento);
        ajustar();
    }

private:
    void ajustar() {
        QString texto = completo_;
        const qsizetype minimo = SinPuntos().size();
        const int sitio = contentsRect().width();
        const QFontMetrics letra = fontMetrics();
        while (texto.size() > minimo && letra.size(0, texto).width() > sitio) texto.chop(1);
        setText(texto);
    }

    QString completo_;
};

}  // namespace padral
