// The commands of the participants list: show, new, delete, leave.

#include <algorithm>

#include "participants/screen/frm_lista_participes.h"
#include "ui/section_buttons.h"

namespace padral {

namespace {

enum : int {
    TituloPregunta = 592,
    PreguntaEliminar = 694,
};

/// Numbers in the chain of screens.
constexpr int NumeroLista = 8, NumeroGenerales = 2;

const QString Existente = QStringLiteral("C");
const QString Eliminado = QStringLiteral("E");

}  // namespace

void frmListaParticipes::conectarBotones() {
    Orden(salidas_->Boton(Inicio), [this] { salirAtras(NumeroGenerales); });
    Orden(salidas_->Boton(Anterior), [this] { salirAtras(NumeroLista); });
    Orden(salidas_->Boton(Siguiente), [this] { siguiente(); });
    Orden(acciones_->Boton(Nuevo), [this] { nuevo(); });
    Orden(acciones_->Boton(Ver), [this] { ver(); });
    Orden(acciones_->Boton(Eliminar), [this] { eliminar(); });
    Orden(cmdBuscar_, [this] { pulsarBuscar(); });
    Orden(cmdTodos_, [this] { verTodos(); });
}

std::shared_ptr<cParticipes> frmListaParticipes::elegido() const {
    const auto& todos = declaracion_.participantes.colParticipes;
    const QString dni = lista_.DNI.recortado();
    const auto este = std::find_if(todos.begin(), todos.end(), [&dni](const auto& participe) {
        return participe->Modo != Eliminado && participe->DNI.recortado().toUpper() == dni;
    });
    return este == todos.end() ? nullptr : *este;
}

void frmListaParticipes::accionDeFila() {
    if (!hayEleccion()) return;
    const Espera espera(pantallas_);
    ver();
}

void frmListaParticipes::nuevo() {
    // The current object may be in the collection: a new participant has its own.
    declaracion_.EmpezarParticipe().MODIFPARTICIPES = true;
    estado_.FormularioOrigen = objectName();
    mostrarParticipe();
}

void frmListaParticipes::ver() {
    const auto participe = elegido();
    if (!participe) return;
    participe->Modo = Existente;
    participe->MODIFPARTICIPES = false;
    declaracion_.participantes.ParticipeActual = participe;
    mostrarParticipe();
}

void frmListaParticipes::mostrarParticipe() {
    pantallas_.Mostrar(QStringLiteral("frmDatosParticipe"));
    descargar();
}

void frmListaParticipes::eliminar() {
    const auto participe = elegido();
    if (!participe) return;
    const Mensaje pregunta{Texto(PreguntaEliminar), Texto(TituloPregunta), Icono::Exclamacion,
                           Botones::SiNo};
    if (estado_.avisador.Mostrar(pregunta) != Respuesta::Si) return;
    quitar(participe);
    if (declaracion_.NumParti < 1) {
        dejarSinParticipes();
        return;
    }
    PresentaDatos();
    Presentabotones();
}

// It stays in the collection, behind the others, so that the save can tell the store.
void frmListaParticipes::quitar(const std::shared_ptr<cParticipes>& participe) {
    participe->Modo = Eliminado;
    participe->MODIFPARTICIPES = true;
    lista_.MODIFLISTAPART = true;
    auto& todos = declaracion_.participantes.colParticipes;
    const auto este = std::find(todos.begin(), todos.end(), participe);
    std::rotate(este, este + 1, todos.end());
    declaracion_.DecrementarNumParti();
}

void frmListaParticipes::dejarSinParticipes() {
    declaracion_.general.AnexoI.clear();
    declaracion_.EmpezarParticipe().InicializarDatos();
    salirAtras(NumeroLista);
}

void frmListaParticipes::siguiente() {
    anotarCambios();
    if (declaracion_.IrApartadoSiguiente(NumeroLista)) descargar();
}

void frmListaParticipes::salirAtras(int numero) {
    anotarCambios();
    declaracion_.IrApartadoAnterior(numero, objectName());
    descargar();
}

void frmListaParticipes::anotarCambios() {
    if (lista_.MODIFLISTAPART) estado_.ModificacionesPendientes = true;
}

void frmListaParticipes::descargar() { pantallas_.Descargar(objectName()); }

}  // namespace padral
