#include "online/dialog_parts.h"

#include <QFontInfo>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <algorithm>

#include "ui/art.h"
#include "ui/fields.h"

namespace padral {

void Rotular(QPushButton* boton, const QString& rotulo) {
    boton->setText(rotulo);
    boton->setMinimumWidth(boton->sizeHint().width() + 2 * boton->fontMetrics().averageCharWidth());
}

QPushButton* BotonRotulado(const QString& nombre, const QString& rotulo, QWidget* padre) {
    auto* boton = new QPushButton(padre);
    boton->setObjectName(nombre);
    Rotular(boton, rotulo);
    return boton;
}

QLabel* EtiquetaLarga(const QString& nombre, const QString& rotulo, QWidget* padre) {
    auto* etiqueta = Etiqueta(nombre, padre);
    etiqueta->setText(rotulo);
    etiqueta->setWordWrap(true);
    return etiqueta;
}

QLabel* DibujoPrograma(int lineas, QWidget* padre) {
    auto* dibujo = new QLabel(padre);
    const int lado = lineas * dibujo->fontMetrics().lineSpacing();
    dibujo->setPixmap(
        Dibujo(QStringLiteral("program")).pixmap(QSize(lado, lado), dibujo->devicePixelRatioF()));
    return dibujo;
}

void Agrandar(QWidget* control, double veces) {
    QFont fuente = control->font();
    fuente.setPointSizeF(QFontInfo(fuente).pointSizeF() * veces);
    control->setFont(fuente);
}

void FijarTamano(QWidget* ventana, int letras) {
    QLayout* todo = ventana->layout();
    // Captions may have changed in layouts within the layout.
    todo->invalidate();
    todo->activate();
    const int ancho = std::max(letras * ventana->fontMetrics().averageCharWidth(),
                               todo->totalMinimumSize().width());
    const int alto = todo->hasHeightForWidth() ? todo->totalHeightForWidth(ancho)
                                               : todo->totalSizeHint().height();
    ventana->setFixedSize(ancho, alto);
}

}  // namespace padral
