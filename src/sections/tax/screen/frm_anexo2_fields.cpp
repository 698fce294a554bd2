// Leaving the fields of Annex II, and the lists of its representative's address.

#include <QToolButton>

#include "core/field_rules.h"
#include "sections/tax/screen/frm_anexo2.h"
#include "sections/tax/screen/frm_anexo2_tables.h"
#include "ui/fields.h"
#include "ui/number_field.h"
#include "ui/pick_list.h"

namespace padral {

using namespace anexo2;

namespace {

constexpr int PorcentajeMaximo = 100;
constexpr int PorcentajeExcesivo = 155, TituloPorcentaje = 156;

/// The code in the key of a row, which stands behind one letter.
qint32 codigoDe(const QString& clave) { return ValorNumerico(QStringView(clave).sliced(1)); }

}  // namespace

void frmAnexoII::conectarCampos() {
    for (const auto& [campo, propiedad] : textos_)
        if (campo != txtNIF_)
            guardia_.Registrar(campo, [this, campo = campo, propiedad = propiedad] {
                return dejarTexto(campo, propiedad);
            });
    guardia_.Registrar(txtNIF_, [this] { return dejarNif(); });
    guardia_.Registrar(numPorcentaje_, [this] { return dejarPorcentaje(); });
    guardia_.Registrar(codigos_[n(ListaAnexoII::Provincias)], [this] { return dejarProvincia(); });
    guardia_.Registrar(codigos_[n(ListaAnexoII::Municipios)], [this] { return dejarMunicipio(); });
}

void frmAnexoII::conectarListas() {
    constexpr void (frmAnexoII::*Elegir[])(const QString&, const QString&) = {
        &frmAnexoII::elegirProvincia, &frmAnexoII::elegirMunicipio};
    for (std::size_t i = 0; i < NumCodigos; ++i) {
        Orden(botonesLista_[i], [this, i] { abrir(static_cast<ListaAnexoII>(i)); });
        connect(listas_[i], &ListaEleccion::elegida, this, Elegir[i]);
        connect(listas_[i], &ListaEleccion::abandonada, this,
                [this, i] { codigos_[i]->setFocus(Qt::OtherFocusReason); });
    }
}

bool frmAnexoII::dejarTexto(const CampoTexto* campo, QString DatosAnexoII::*propiedad) {
    if (campo->text() == anexo_.*propiedad) return true;
    anexo_.*propiedad = campo->text();
    cambiado();
    return true;
}

// Only what was typed is checked: a wrong one that was stored holds nobody in the field.
bool frmAnexoII::dejarNif() {
    const QString nif = txtNIF_->text();
    const bool cambia = nif != anexo_.NIFRepresentante;
    if (cambia && !nif.trimmed().isEmpty() && !estado_.ValidaNifCif(nif)) {
        estado_.AvisarNifNoValido();
        txtNIF_->Presentar(anexo_.NIFRepresentante);
        return false;
    }
    return dejarTexto(txtNIF_, &DatosAnexoII::NIFRepresentante);
}

bool frmAnexoII::dejarPorcentaje() {
    const qint32 porcentaje = numPorcentaje_->Valor();
    if (porcentaje == anexo_.PORCENTAJE) {
        presentarPorcentaje();
        return true;
    }
    if (porcentaje > PorcentajeMaximo) {
        estado_.Avisar(PorcentajeExcesivo, TituloPorcentaje);
        return false;
    }
    anexo_.PORCENTAJE = static_cast<qint16>(porcentaje);
    cambiado();
    return true;
}

// Whatever was typed empties the municipality, the same code again, too; passing by does not.
bool frmAnexoII::dejarProvincia() {
    CajaNum* campo = codigos_[n(ListaAnexoII::Provincias)];
    if (!campo->isModified()) return true;
    campo->setModified(false);
    const qint32 codigo = campo->Valor();
    if (codigo == 0 && anexo_.CodigoProvincia == 0) {
        presentarCodigos();
        return true;
    }
    anexo_.NombreProvincia = codigo == 0 ? QString() : buscar(ListaAnexoII::Provincias, codigo);
    const bool conocida = !anexo_.NombreProvincia.isEmpty();
    anexo_.CodigoProvincia = conocida ? codigo : 0;
    anexo_.CodigoMunicipio = 0;
    anexo_.NombreMunicipio.clear();
    cambiado();
    return conocida || codigo == 0 || abrirAlSalir(ListaAnexoII::Provincias);
}

bool frmAnexoII::dejarMunicipio() {
    const CajaNum* campo = codigos_[n(ListaAnexoII::Municipios)];
    const qint32 codigo = campo->Valor();
    const bool quedaNombre = codigo == 0 && !anexo_.NombreMunicipio.isEmpty();
    if (EstaBloqueado(campo) || (codigo == anexo_.CodigoMunicipio && !quedaNombre)) {
        presentarCodigos();
        return true;
    }
    anexo_.NombreMunicipio = codigo == 0 ? QString() : buscar(ListaAnexoII::Municipios, codigo);
    const bool conocido = !anexo_.NombreMunicipio.isEmpty();
    anexo_.CodigoMunicipio = conocido ? codigo : 0;
    cambiado();
    return conocido || codigo == 0 || abrirAlSalir(ListaAnexoII::Municipios);
}

QString frmAnexoII::buscar(ListaAnexoII lista, qint32 codigo) const {
    return listas_[n(lista)]->Buscar(u'C' + QString::number(codigo));
}

void frmAnexoII::abrir(ListaAnexoII lista) {
    listas_[n(lista)]->Abrir(nombres_[n(lista)]->text(), codigos_[n(lista)]);
}

// The field is being left. It keeps the focus, which drops the command that left it; then the list
// takes it.
bool frmAnexoII::abrirAlSalir(ListaAnexoII lista) {
    QMetaObject::invokeMethod(
        this, [this, lista] { abrir(lista); }, Qt::QueuedConnection);
    return false;
}

// Another province has other municipalities.
void frmAnexoII::elegirProvincia(const QString& clave, const QString& texto) {
    const qint32 codigo = codigoDe(clave);
    if (codigo != anexo_.CodigoProvincia) {
        anexo_.CodigoMunicipio = 0;
        anexo_.NombreMunicipio.clear();
    }
    anexo_.CodigoProvincia = codigo;
    anexo_.NombreProvincia = texto;
    cambiado();
}

void frmAnexoII::elegirMunicipio(const QString& clave, const QString& texto) {
    anexo_.CodigoMunicipio = codigoDe(clave);
    anexo_.NombreMunicipio = texto;
    cambiado();
}

}  // namespace padral
