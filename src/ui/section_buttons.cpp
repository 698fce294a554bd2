#include "ui/section_buttons.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QStyleOptionButton>
#include <algorithm>

#include "ui/button_keys.h"
#include "ui/fields.h"

namespace padral {

namespace {

constexpr int EntreBotones = 12;
constexpr int JuntoAlBoton = 4;

/// The captions of the catalogue begin with blanks, which would push them out of the middle.
class BotonCentrado : public QPushButton {
public:
    using QPushButton::QPushButton;

protected:
    void initStyleOption(QStyleOptionButton* opcion) const override {
        QPushButton::initStyleOption(opcion);
        opcion->text = opcion->text.trimmed();
    }
};

}  // namespace

BotonesApartado::BotonesApartado(std::span<const BotonApartado> botones, std::size_t alPrincipio,
                                 QWidget* padre)
    : QWidget(padre), tabla_(botones) {
    auto* fila = new QHBoxLayout(this);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->setSpacing(EntreBotones);
    for (std::size_t i = 0; i < tabla_.size(); ++i) {
        if (i == alPrincipio) fila->addStretch(1);
        crear(tabla_[i]);
    }
    if (alPrincipio >= tabla_.size()) fila->addStretch(1);
}

void BotonesApartado::crear(const BotonApartado& fila) {
    auto* imagen =
        new ImagenPulsable(QString::fromUtf16(fila.imagen), QString::fromUtf16(fila.dibujo), this);
    auto* boton = new BotonCentrado(this);
    boton->setObjectName(QString::fromUtf16(fila.boton));
    boton->installEventFilter(this);
    connect(imagen, &ImagenPulsable::pulsada, boton, &QPushButton::click);
    auto* pareja = new QHBoxLayout;
    pareja->setSpacing(JuntoAlBoton);
    pareja->addWidget(imagen);
    pareja->addWidget(boton);
    static_cast<QHBoxLayout*>(layout())->addLayout(pareja);
    imagenes_.push_back(imagen);
    botones_.push_back(boton);
}

void BotonesApartado::Anadir_captions(const EstadoCompartido& estado) {
    for (std::size_t i = 0; i < tabla_.size(); ++i) {
        botones_[i]->setText(estado.Texto(tabla_[i].texto));
        QString nombre = botones_[i]->text().trimmed();
        nombre.remove(u'&');
        for (QWidget* w :
             {static_cast<QWidget*>(botones_[i]), static_cast<QWidget*>(imagenes_[i])}) {
            w->setToolTip(estado.Texto(tabla_[i].ayuda));
            w->setAccessibleName(nombre);
        }
    }
}

void BotonesApartado::Habilitar(std::size_t i, bool activo) { botones_[i]->setEnabled(activo); }

bool BotonesApartado::eventFilter(QObject* objeto, QEvent* evento) {
    const auto este = std::find(botones_.begin(), botones_.end(), objeto);
    if (este == botones_.end()) return QWidget::eventFilter(objeto, evento);
    if (evento->type() == QEvent::EnabledChange)
        Imagen(static_cast<std::size_t>(este - botones_.begin()))
            ->setEnabled((*este)->isEnabledTo(this));
    return evento->type() == QEvent::KeyPress &&
           TeclaEntreBotones(botones_, *este, *static_cast<QKeyEvent*>(evento));
}

}  // namespace padral
