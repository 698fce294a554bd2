// A participant from the record to the controls, and its address and boxes back.

#include <type_traits>

#include "participants/participant_rules.h"
#include "participants/screen/frm_datos_participe.h"
#include "participants/screen/frm_datos_participe_tables.h"

namespace padral {

using namespace participe;

namespace {

constexpr int AyudaVolverAlAnterior = 409, AyudaVolverALaLista = 352;

/// Gives each field of the participant's address to `copiar`, with its place in the block.
template <class Participe, class Bloque, class Copia>
void emparejar(Participe& p, Bloque& b, Copia copiar) {
    copiar(p.SiglasDom, b.SiglasDomicilio);
    copiar(p.DESCRIPCIONVIA, b.DescripcionSiglas);
    copiar(p.NombreVia, b.NombreDomicilio);
    copiar(p.Numero, b.Numero);
    copiar(p.Letra, b.Letra);
    copiar(p.Escalera, b.Escalera);
    copiar(p.Piso, b.Piso);
    copiar(p.Mano, b.Mano);
    copiar(p.CodigoProvincia, b.CodigoProvincia);
    copiar(p.NombreProvincia, b.NombreProvincia);
    copiar(p.CodPostal, b.CodigoPostal);
    copiar(p.CodMun, b.CodigoMunicipio);
    copiar(p.NombMun, b.NombreMunicipio);
    copiar(p.Telefono, b.Telefono);
}

BloqueDireccion direccionDe(const DP& participe) {
    BloqueDireccion bloque;
    emparejar(participe, bloque, [](const auto& de, auto& a) {
        if constexpr (std::is_arithmetic_v<std::remove_reference_t<decltype(de)>>)
            a = de;
        else
            a = SinRelleno(de);
    });
    return bloque;
}

void ponerDireccion(DP& participe, const BloqueDireccion& bloque) {
    emparejar(participe, bloque, [](auto& a, const auto& de) {
        using Tipo = std::remove_reference_t<decltype(a)>;
        if constexpr (std::is_arithmetic_v<Tipo>)
            a = static_cast<Tipo>(de);
        else
            a = de;
    });
}

}  // namespace

void frmDatosParticipe::PresentarDatos() {
    const DP& p = actual();
    txtDNI_->Presentar(SinRelleno(p.DNI));
    txtNombre_->Presentar(SinRelleno(p.NOMBRE));
    bloque_ = direccionDe(p);
    direccion_->PresentarDatos();
    if (p.PorcenPart == 0)
        txtPorcentaje_->PresentarSinCero(0);
    else
        txtPorcentaje_->AsignarValorFormateado(QString::number(static_cast<double>(p.PorcenPart)));
    for (const auto& fila : filas_)
        for (std::size_t i = 0; i < fila.casillas.size(); ++i)
            fila.casillas[i]->setChecked(p.*fila.regimen->propiedad ==
                                         QString::fromUtf16(fila.regimen->casillas[i].valor));
}

void frmDatosParticipe::ActualizarEstadoControles() {
    const bool pendiente = actual().MODIFPARTICIPES;
    direccion_->ActualizarBotones();
    botones_->Habilitar(Volver, !pendiente);
    botones_->Habilitar(OtroParticipe, !pendiente && declaracion_.NumParti < MaximoParticipes);
}

void frmDatosParticipe::refrescar() {
    PresentarDatos();
    ActualizarEstadoControles();
}

void frmDatosParticipe::cambiado() {
    actual().MODIFPARTICIPES = true;
    refrescar();
}

// The address may show on as it is, but the ways out follow at once.
void frmDatosParticipe::anotarDireccion() {
    ponerDireccion(actual(), bloque_);
    actual().MODIFPARTICIPES = true;
    ActualizarEstadoControles();
}

void frmDatosParticipe::ponerAyudaVolver() {
    const QString& ayuda =
        Texto(declaracion_.NumParti > 0 ? AyudaVolverALaLista : AyudaVolverAlAnterior);
    botones_->Boton(Volver)->setToolTip(ayuda);
    botones_->Imagen(Volver)->setToolTip(ayuda);
}

void frmDatosParticipe::conectarCasillas() {
    for (const auto& fila : filas_)
        for (std::size_t i = 0; i < fila.casillas.size(); ++i)
            guardia_.Orden(
                fila.casillas[i], [this, fila, i] { pulsar(fila, i); },
                [casilla = fila.casillas[i]] { casilla->toggle(); });
}

// A click on the box that is ticked leaves the pair without an answer.
void frmDatosParticipe::pulsar(const Fila& fila, std::size_t i) {
    const Letra valor = QString::fromUtf16(fila.regimen->casillas[i].valor);
    Letra& propiedad = actual().*fila.regimen->propiedad;
    propiedad = propiedad == valor ? Letra() : valor;
    cambiado();
}

}  // namespace padral
