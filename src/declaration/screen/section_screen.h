#pragma once
// What the screens of the sections share: the buttons at the foot and the four ways out.

#include <array>

#include "declaration/declaration.h"
#include "ui/screen.h"
#include "ui/section_buttons.h"

namespace padral {

/// The usual row of buttons; `ayudaCancelar` is the text id of the tool tip of Cancel.
constexpr std::array<BotonApartado, 4> BotonesHabituales(int ayudaCancelar) {
    return {{{u"cmdInicio", u"PicInicio", u"home", 670, 671},
             {u"cmdCancelar", u"PicCan", u"cancel", 14, ayudaCancelar},
             {u"cmdAnterior", u"PicAnterior", u"back", 10, 11},
             {u"cmdSiguiente", u"PicSiguiente", u"next", 12, 13}}};
}

/// A screen of sections 2 to 7 or of Annex II, which is 10. The next and the previous screen and
/// the general data are reached only when the section is accepted; Cancel leaves without a check.
class PantallaApartado : public Pantalla {
    Q_OBJECT
public:
    /// The way out to the general data, as its button goes it.
    void IrAInicio();

protected:
    /// Places in the table of buttons.
    enum Boton : std::size_t { Inicio, Cancelar, Anterior, Siguiente };

    PantallaApartado(const QString& nombre, const Contexto& contexto, cDeclaraciones& declaracion,
                     int numero)
        : Pantalla(nombre, contexto), declaracion_(declaracion), numero_(numero) {}

    /// The row of buttons with its commands; made last, so that Tab visits it last. `tabla`
    /// outlives the screen; the last screen of the chain leaves Siguiente out.
    BotonesApartado* crearBotones(std::span<const BotonApartado> tabla);
    /// On while a later section or an annex is marked.
    void actualizarSiguiente();

    /// Checks the section and takes in what was changed. False: the message has been shown.
    virtual bool aceptado() = 0;
    /// Gives up what was changed since the section was last accepted.
    virtual void descartar() = 0;
    /// After a refusal on the way on.
    virtual void trasRechazarSiguiente() {}
    /// Where Cancel leads.
    virtual void trasCancelar() { volver(); }
    virtual void descargar();

    /// To the screen before.
    void volver();
    /// To the general data.
    void irAGenerales();

    cDeclaraciones& declaracion_;
    BotonesApartado* botones_ = nullptr;

private:
    int numero_;
};

}  // namespace padral
