#include "sections/tax/section4.h"

namespace padral {

namespace {

using D4 = DatosApartado4;

constexpr Columna<D4> ColumnasApartado4[] = {
    columna<D4, &D4::IRPFOBJET>(u"IRPFOBJET"),
    columna<D4, &D4::IRPFDIRECT>(u"IRPFDIRECT"),
    columna<D4, &D4::IVAAGRIC>(u"IVAAGRIC"),
    columna<D4, &D4::IVASIMPLIF>(u"IVASIMPLIF"),
    columna<D4, &D4::IVAEXPORT>(u"IVAEXPORT"),
    columna<D4, &D4::IVAEXPORTINTRA>(u"IVAEXPORTINTRA"),
    columna<D4, &D4::IVAAGENCIAS>(u"IVAAGENCIAS"),
    columna<D4, &D4::IVABIENES>(u"IVABIENES"),
    columna<D4, &D4::IVASOCIO>(u"IVASOCIO"),
    columna<D4, &D4::NIF>(u"NIF"),
    columna<D4, &D4::NOMBRE>(u"NOMBRE"),
    columna<D4, &D4::SONF>(u"SONF"),
    columna<D4, &D4::IVACAJA>(u"IVACAJA"),
    columna<D4, &D4::IVACUOADU>(u"IVACUOADU"),
};

}  // namespace

std::span<const Columna<DatosApartado4>> TablaApartado4() { return ColumnasApartado4; }

void cApartado4::LIMPIARDATOS() {
    static_cast<DatosApartado4&>(*this) = {};
    MODIFAPARTADO4 = false;
    GuardarDatosAuxiliares();
}

void cApartado4::CargarDatos(const Fila& fila) {
    CargarDeFila<DatosApartado4>(*this, TablaApartado4(), fila);
    Lleno = Marcado(generales_.Apartado4);
    GuardarDatosAuxiliares();
}

}  // namespace padral
