// The marks of section 2's screen, its rules and its ways out.

#include <algorithm>

#include "sections/location/screen/frm_apartado2.h"
#include "sections/location/screen/frm_apartado2_tables.h"
#include "sections/location/section2_rules.h"

namespace padral {

using namespace apartado2;

namespace {

constexpr qsizetype LargoSufijo = 3;

/// The names of controls are compared in capitals.
QString sufijoDe(const Domicilio& domicilio) {
    return QString::fromUtf16(domicilio.sufijo).toUpper();
}

bool esCampo(QStringView nombre) { return nombre.startsWith(u"TXT") || nombre.startsWith(u"NUM"); }

/// What a mark leaves as it is. Unmarking leaves the municipalities' button, too: the province
/// decides about that one.
bool quedaComoEsta(QStringView nombre, bool marcada) {
    const QStringView sinSufijo = nombre.chopped(LargoSufijo);
    return nombre.startsWith(u"LBL") || sinSufijo == u"TXTPROV" || sinSufijo == u"TXTVIA" ||
           sinSufijo == u"NUMCODMUN" || (!marcada && sinSufijo == u"CMDLSTMUN");
}

Dato datoDe(CampoDireccion campo) {
    switch (campo) {
        case CampoDireccion::Calle:
            return Dato::Calle;
        case CampoDireccion::Provincia:
            return Dato::CodProvincia;
        case CampoDireccion::Postal:
            return Dato::Postal;
        case CampoDireccion::CodigoMunicipio:
            return Dato::CodMunicipio;
        case CampoDireccion::Municipio:
            return Dato::Municipio;
        case CampoDireccion::Siglas:
            break;
    }
    return Dato::Siglas;
}

}  // namespace

void FrmApartado2::pulsarElMismo(std::size_t i) {
    const bool marcada = marcas_[i]->isChecked();
    const QString sufijo = sufijoDe(Domicilios[i]);
    registro_.Modificaciones = true;
    AplicarElMismo(sufijo, marcada);
    registro_.InicializarApartado2(sufijo);
    registro_.*Domicilios[i].elMismo = marcada ? QStringLiteral("X") : QStringLiteral("");
}

void FrmApartado2::ponerMarca(std::size_t i, bool marcada) {
    if (marcas_[i]->isChecked() == marcada) return;
    marcas_[i]->setChecked(marcada);
    pulsarElMismo(i);
}

void FrmApartado2::AplicarElMismo(QStringView sufijo, bool valor) {
    const auto controles = findChildren<QWidget*>();
    for (QWidget* control : controles) {
        const QString nombre = control->objectName().toUpper();
        if (!nombre.endsWith(sufijo)) continue;
        auto* campo = qobject_cast<QLineEdit*>(control);
        if (campo && esCampo(nombre)) campo->clear();
        if (quedaComoEsta(nombre, valor)) continue;
        control->setEnabled(!valor);
        if (campo) PonerFondo(campo, valor);
    }
}

// By what the controls show, not by the record.
int FrmApartado2::controlesConDatos(QStringView sufijo) const {
    const auto campos = findChildren<QLineEdit*>();
    return static_cast<int>(std::count_if(campos.begin(), campos.end(), [&](const QLineEdit* c) {
        const QString nombre = c->objectName().toUpper();
        if (!nombre.endsWith(sufijo) || !esCampo(nombre)) return false;
        const auto* numero = qobject_cast<const CajaNum*>(c);
        return numero ? numero->Valor() != 0 : !c->text().isEmpty();
    }));
}

void FrmApartado2::ActualizarEstadoControles() {
    const bool hayFiscal = controlesConDatos(sufijoDe(Domicilios[0])) > 0;
    for (std::size_t i = 0; i < NumDomicilios; ++i) {
        if (marcas_[i]) {
            if (!hayFiscal) ponerMarca(i, false);
            marcas_[i]->setEnabled(hayFiscal);
        }
        direcciones_[i]->ActualizarBotones();
    }
    actualizarSiguiente();
}

bool FrmApartado2::ValidarDatos() {
    for (std::size_t i = 0; i < NumDomicilios; ++i) {
        if (controlesConDatos(sufijoDe(Domicilios[i])) == 0) continue;
        const auto* regla = PrimeraReglaRota(
            {registro_.*Domicilios[i].bloque, direcciones_[i]->Campo(Dato::Postal)->text()});
        if (!regla) continue;
        estado_.Avisar(regla->texto, regla->titulo);
        direcciones_[i]->Campo(datoDe(regla->foco))->setFocus(Qt::OtherFocusReason);
        return false;
    }
    return true;
}

bool FrmApartado2::aceptado() {
    if (!ValidarDatos()) return false;
    if (!registro_.Modificaciones) return true;
    registro_.Lleno = true;
    registro_.RellenarTablaAuxiliar();
    registro_.Modificaciones = false;
    estado_.ModificacionesPendientes = true;
    return true;
}

void FrmApartado2::descartar() {
    if (!registro_.Modificaciones) return;
    registro_.Modificaciones = false;
    registro_.ObtenerDatosTablaAuxiliar();
}

void FrmApartado2::descargar() {
    despedida_ = true;
    PantallaApartado::descargar();
}

}  // namespace padral
