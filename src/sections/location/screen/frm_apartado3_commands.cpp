// Leaving section 3.

#include "declaration/section_boxes.h"
#include "sections/location/screen/frm_apartado3.h"
#include "sections/location/screen/frm_apartado3_tables.h"

namespace padral {

namespace {

constexpr int NumeroApartado = 3;

}  // namespace

void FrmApartado3::conectarBotones() {
    Orden(botones_->Boton(apartado3::Inicio), [this] { inicio(); });
    Orden(botones_->Boton(apartado3::Cancelar), [this] { cancelar(); });
    Orden(botones_->Boton(apartado3::Anterior), [this] { anterior(); });
    Orden(botones_->Boton(apartado3::Siguiente), [this] { siguiente(); });
}

// A section that nobody touched is not checked, but for the residence.
bool FrmApartado3::aceptado() {
    if (!ValidarResidente()) return false;
    if (!apartado_.Modificaciones) return true;
    if (!ValidarDatos()) return false;
    apartado_.Lleno = true;
    apartado_.RellenarTablaAuxiliar();
    apartado_.Modificaciones = false;
    estado_.ModificacionesPendientes = true;
    return true;
}

void FrmApartado3::siguiente() {
    if (!aceptado()) return;
    if (declaracion_.IrApartadoSiguiente(NumeroApartado)) pantallas_.Descargar(objectName());
}

void FrmApartado3::anterior() {
    if (aceptado()) volver();
}

void FrmApartado3::inicio() {
    if (!aceptado()) return;
    // The general data tell by this name that there is nothing to load.
    estado_.FormularioOrigen = objectName();
    pantallas_.Mostrar(QStringLiteral("FrmDatGen"));
    pantallas_.Descargar(objectName());
}

void FrmApartado3::cancelar() {
    if (apartado_.Modificaciones) {
        const qint32 escrita = apartado_.FechaInicio();
        apartado_.Modificaciones = false;
        apartado_.ObtenerDatosTablaAuxiliar();
        // The date that is given up has set the effective date, which decides the next edition.
        if (apartado_.FechaInicio() != escrita)
            declaracion_.general.FECHAVIGOR = CalcularFechaVigor(declaracion_);
    }
    volver();
}

void FrmApartado3::volver() {
    const QString nombre = objectName();
    declaracion_.IrApartadoAnterior(NumeroApartado, nombre);
    pantallas_.Descargar(nombre);
}

}  // namespace padral
