// Leaving section 3.

#include "declaration/section_boxes.h"
#include "sections/location/screen/frm_apartado3.h"

namespace padral {

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

void FrmApartado3::descartar() {
    if (!apartado_.Modificaciones) return;
    const qint32 escrita = apartado_.FechaInicio();
    apartado_.Modificaciones = false;
    apartado_.ObtenerDatosTablaAuxiliar();
    // The date that is given up has set the effective date, which decides the next edition.
    if (apartado_.FechaInicio() != escrita)
        declaracion_.general.FECHAVIGOR = CalcularFechaVigor(declaracion_);
}

}  // namespace padral
