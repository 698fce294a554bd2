#include "declaration/screen/section_screen.h"

namespace padral {

namespace {

/// Those that leave the chain of sections stand at the left edge.
constexpr std::size_t BotonesAlPrincipio = 2;
constexpr int PrimerApartado = 2;

/// Marks in the order of the chain, from section 2; the annexes come after section 7.
constexpr QString cDatosGenerales::*Marcas[] = {
    &cDatosGenerales::Apartado2, &cDatosGenerales::Apartado3, &cDatosGenerales::Apartado4,
    &cDatosGenerales::Apartado5, &cDatosGenerales::Apartado6, &cDatosGenerales::Apartado7,
    &cDatosGenerales::AnexoI,    &cDatosGenerales::AnexoII};

}  // namespace

BotonesApartado* PantallaApartado::crearBotones(std::span<const BotonApartado> tabla) {
    botones_ = new BotonesApartado(tabla, BotonesAlPrincipio, this);
    Orden(botones_->Boton(Inicio), [this] {
        if (aceptado()) irAGenerales();
    });
    Orden(botones_->Boton(Cancelar), [this] {
        descartar();
        trasCancelar();
    });
    Orden(botones_->Boton(Anterior), [this] {
        if (aceptado()) volver();
    });
    if (tabla.size() > Siguiente)
        Orden(botones_->Boton(Siguiente), [this] {
            if (!aceptado()) return trasRechazarSiguiente();
            if (declaracion_.IrApartadoSiguiente(numero_)) descargar();
        });
    return botones_;
}

void PantallaApartado::IrAInicio() { botones_->Boton(Inicio)->click(); }

void PantallaApartado::actualizarSiguiente() {
    bool sigue = false;
    for (std::size_t i = std::size_t(numero_ - PrimerApartado) + 1; i < std::size(Marcas); ++i)
        sigue = sigue || Marcado(declaracion_.general.*Marcas[i]);
    // The picture beside the button follows it.
    botones_->Habilitar(Siguiente, sigue);
}

void PantallaApartado::volver() {
    declaracion_.IrApartadoAnterior(numero_, objectName());
    descargar();
}

void PantallaApartado::irAGenerales() {
    // By this name the general data know that there is nothing to load.
    estado_.FormularioOrigen = objectName();
    pantallas_.Mostrar(QStringLiteral("FrmDatGen"));
    descargar();
}

void PantallaApartado::descargar() { pantallas_.Descargar(objectName()); }

}  // namespace padral
