#include "ui/screen.h"

#include "ui/fields.h"

namespace padral {

void Pantalla::Orden(QAbstractButton* boton, std::function<void()> orden) {
    guardia_.Orden(boton, [this, orden = std::move(orden)] {
        const Espera espera(pantallas_);
        orden();
    });
}

void Pantalla::Orden(ImagenPulsable* imagen, QAbstractButton* boton) {
    connect(imagen, &ImagenPulsable::pulsada, boton, [boton] { boton->click(); });
}

}  // namespace padral
