// Leaving the identifier, the name and the percentage of a participant.

#include "participants/screen/frm_datos_participe.h"

namespace padral {

namespace {

constexpr int NifNoValido = 388, TituloNif = 389;
constexpr int PorcentajeCero = 386, PorcentajeExcesivo = 695, TituloPorcentaje = 387;
constexpr float PorcentajeMaximo = 100;

/// A percentage as its field shows it.
float porcentajeDe(QString texto) { return texto.replace(u',', u'.').toFloat(); }

}  // namespace

void frmDatosParticipe::conectarCampos() {
    guardia_.Registrar(txtDNI_, [this] { return dejarDNI(); });
    guardia_.Registrar(txtNombre_, [this] { return dejarNombre(); });
    guardia_.Registrar(txtPorcentaje_, [this] { return dejarPorcentaje(); });
}

bool frmDatosParticipe::dejarDNI() {
    const QString dni = txtDNI_->text().trimmed().toUpper();
    if (cancelando_ || dni == actual().DNI.recortado().toUpper()) return true;
    const bool vale = ponerDNI(dni);
    refrescar();
    return vale;
}

bool frmDatosParticipe::ponerDNI(const QString& dni) {
    // It has to outlive the search, which may put another one in its place.
    const auto mostrado = declaracion_.participantes.ParticipeActual;
    bool existe = false;
    mostrado->ExisteDNI(dni, existe);
    if (!existe && (dni.isEmpty() || !estado_.ValidaNifCif(dni))) {
        estado_.Avisar(NifNoValido, TituloNif);
        return false;
    }
    // What nobody accepted of the one that is left would reach the store unchecked.
    descartar(*mostrado);
    // A fresh one: the one that was shown may be in the collection.
    if (!existe) declaracion_.EmpezarParticipe().DNI = dni;
    actual().MODIFPARTICIPES = !existe;
    return true;
}

bool frmDatosParticipe::dejarNombre() {
    const QString nombre = txtNombre_->text().toUpper();
    if (nombre.trimmed() == actual().NOMBRE.recortado().toUpper()) return true;
    actual().NOMBRE = nombre;
    cambiado();
    return true;
}

bool frmDatosParticipe::dejarPorcentaje() {
    const QString escrito = txtPorcentaje_->text();
    float& porcentaje = actual().PorcenPart;
    // Passing by a field that was never filled is no answer.
    if (escrito.isEmpty() && porcentaje == 0) return true;
    txtPorcentaje_->AsignarValorFormateado(escrito);
    const float valor = porcentajeDe(txtPorcentaje_->text());
    if (valor == 0) {
        estado_.Avisar(PorcentajeCero, TituloPorcentaje);
        return false;
    }
    if (valor == porcentaje) return true;
    if (valor > PorcentajeMaximo) {
        estado_.Avisar(PorcentajeExcesivo, TituloPorcentaje);
        return false;
    }
    porcentaje = valor;
    cambiado();
    return true;
}

}  // namespace padral
