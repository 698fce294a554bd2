#pragma once
// The open declaration as a whole: which one it is, in which mode, and its records as one unit.

#include "core/screens_port.h"
#include "core/shared_state.h"
#include "declaration/general_data.h"
#include "declaration/section6.h"
#include "participants/participant.h"
#include "participants/participants_list.h"
#include "sections/location/section2.h"
#include "sections/location/section3.h"
#include "sections/tax/annex2.h"
#include "sections/tax/section4.h"
#include "sections/tax/section5.h"
#include "sections/tax/section7.h"
#include "store/list/dec_lista.h"

namespace padral {

/// The aggregate. One per run; opening a declaration overwrites its records.
class cDeclaraciones : public EstadoDeclaracion {
public:
    cDeclaraciones(EstadoCompartido& estado, Pantallas& pantallas, cDecLista& lista);

    /// Blanks every record, flags and working copies included.
    void InicializarDeclaracion();
    /// Reads the declaration `csde` from the store into all records.
    void CargarDeclaracion();
    /// Stores everything but the participants and returns the key; `csde` stays as it is.
    qint32 GuardarDeclaracion();
    /// Brings the section flags in line with what the records hold: "X" or a blank.
    void MarcarApartados();
    /// Stores the participants one by one under the key of the declaration, by `Modo`.
    void GuardarParticipes(qint32 clave);

    /// Shows the screen before section `numero` (2 to 7 the sections, 8 the participants list,
    /// 9 a participant, 10 Annex II), skipping sections that are not marked. `FormularioOrigen`
    /// becomes `nombreFormulario`.
    void IrApartadoAnterior(int numero, const QString& nombreFormulario);
    /// Shows the screen after section `numero` (2 to 8). False: none follows, and the caller stays.
    bool IrApartadoSiguiente(int numero);
    /// Name of the screen of section 2 to 7, by the effective date.
    QString PantallaApartado(int numero) const;
    /// The participants list, or the screen of one participant when there is none.
    QString PantallaAnexoI() const;
    /// The same, with a new participant made ready for that screen.
    QString PrepararAnexoI();

    /// A blank new participant, mode "A", becomes the current one. The one before is left as it is:
    /// it may be in the collection.
    cParticipes& EmpezarParticipe();

    void IncrementarNumParti() { cambiarNumParti(1); }
    void DecrementarNumParti() { cambiarNumParti(-1); }
    /// Empties the `Modo` of the declaration, of the list and of the participant record.
    void LimpiarModos();

    /// Whether identifier and type, or the cause of cessation, ask for Annex I.
    bool AnexoIForzado() const;
    /// Marks Annex I when AnexoIForzado; gives that answer.
    bool MarcarAnexoPorCese();
    /// Whether any record was changed since it was last accepted.
    bool HayModificaciones() const;

    EstadoCompartido& estado;
    cDatosGenerales general;
    cApartado2 apartado2;
    cApartado3 apartado3;
    cApartado4 apartado4;
    cApartado5 apartado5;
    cApartado6 apartado6;
    cApartado7 apartado7;
    cAnexoII anexoII;
    Participantes participantes;
    cParLista parLista;

private:
    void blanquearApartados();
    void cambiarNumParti(int cambio);
    bool mostrar(const QString& pantalla);
    QString prepararParticipe();
    void guardarParticipe(cParticipes& participe, qint32 clave);
    std::shared_ptr<cParticipes> nuevoParticipe();

    Pantallas& pantallas_;
    cDecLista& lista_;
};

}  // namespace padral
