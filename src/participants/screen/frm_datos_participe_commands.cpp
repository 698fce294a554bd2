// Accepting a participant, starting another one, and the ways out.

#include <QKeyEvent>

#include "participants/participant_rules.h"
#include "participants/screen/frm_datos_participe.h"
#include "ui/review_messages.h"

namespace padral {

namespace {

constexpr int NumeroPantalla = 9;
constexpr int SinSitio = 378, TituloSinSitio = 379;

bool esIntro(const QKeyEvent& evento) {
    const bool intro = evento.key() == Qt::Key_Return || evento.key() == Qt::Key_Enter;
    return intro && !evento.isAutoRepeat() && (evento.modifiers() & ~Qt::KeypadModifier) == 0;
}

}  // namespace

void frmDatosParticipe::conectarBotones() {
    Orden(botones_->Boton(Aceptar), [this] { aceptar(); });
    Orden(botones_->Boton(OtroParticipe), [this] { empezarOtro(); });
    Orden(botones_->Boton(Volver), [this] { volver(); });
    Orden(botones_->Boton(Cancelar), [this] { cancelar(); });
    // The filter that comes last looks first: before the key clicks the button.
    botones_->Boton(Cancelar)->installEventFilter(this);
}

bool frmDatosParticipe::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto == botones_->Boton(Cancelar) && evento->type() == QEvent::KeyPress &&
        esIntro(*static_cast<QKeyEvent*>(evento)))
        cancelando_ = true;
    return Pantalla::eventFilter(objeto, evento);
}

bool frmDatosParticipe::ValidarDatos() {
    const auto valida = [this](const QString& nif) { return estado_.ValidaNifCif(nif); };
    return Avisar(estado_, *this, RevisarParticipe(actual(), valida));
}

void frmDatosParticipe::aceptar() {
    cParticipes& participe = actual();
    if (!participe.MODIFPARTICIPES || !ValidarDatos()) return;
    declaracion_.parLista.MODIFLISTAPART = true;
    participe.csde = declaracion_.csde;
    if (participe.Modo == QStringLiteral("A")) {
        if (!anadir(participe)) return;
    } else {
        participe.RellenarTablaAuxiliar();
    }
    participe.MODIFPARTICIPES = false;
    estado_.ModificacionesPendientes = true;
    refrescar();
}

bool frmDatosParticipe::anadir(cParticipes& nuevo) {
    if (declaracion_.NumParti >= MaximoParticipes) {
        estado_.Avisar(SinSitio, TituloSinSitio);
        return false;
    }
    nuevo.RellenarTablaAuxiliar();
    auto& participantes = declaracion_.participantes;
    participantes.colParticipes.push_back(participantes.ParticipeActual);
    declaracion_.IncrementarNumParti();
    nuevo.Modo = QStringLiteral("C");
    ponerAyudaVolver();
    return true;
}

void frmDatosParticipe::empezarOtro() {
    declaracion_.EmpezarParticipe();
    refrescar();
}

// The button is off while changes are pending; a field that it leaves may bring some.
void frmDatosParticipe::volver() {
    cParticipes& participe = actual();
    if (participe.MODIFPARTICIPES) {
        if (!ValidarDatos()) return;
        participe.RellenarTablaAuxiliar();
        participe.Lleno = QStringLiteral("True");
        participe.MODIFPARTICIPES = false;
        estado_.ModificacionesPendientes = true;
    }
    salir();
}

void frmDatosParticipe::descartar(cParticipes& participe) {
    if (!participe.MODIFPARTICIPES) return;
    participe.MODIFPARTICIPES = false;
    participe.ObtenerDatosTablaAuxiliar();
}

void frmDatosParticipe::cancelar() {
    descartar(actual());
    salir();
}

void frmDatosParticipe::salir() {
    declaracion_.IrApartadoAnterior(NumeroPantalla, objectName());
    pantallas_.Descargar(objectName());
}

}  // namespace padral
