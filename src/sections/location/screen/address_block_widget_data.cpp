// What typing, picking and leaving do to the address record.

#include <QEvent>
#include <QKeyEvent>

#include "core/field_rules.h"
#include "sections/location/screen/address_block_widget.h"
#include "ui/fields.h"

namespace padral {

namespace {

constexpr int SinNombreProvincia = 135;
constexpr int TituloProvincia = 117;

/// The code in the key of a numeric row, which stands behind one letter.
qint32 codigoDe(const QString& clave) { return ValorNumerico(QStringView(clave).sliced(1)); }

void bloquear(QLineEdit* campo, bool bloqueado) {
    if (!campo) return;
    if (bloqueado)
        BloquearCampo(campo);
    else
        DesbloquearCampo(campo);
    if (!campo->isEnabled()) PonerFondo(campo, true);
}

}  // namespace

void PanelDireccion::conectar() {
    for (std::size_t i = 0; i < NumDatos; ++i)
        if (Campo(static_cast<Dato>(i))) registrar(static_cast<Dato>(i));
    constexpr void (PanelDireccion::*elegir[])(const QString&, const QString&, bool) = {
        &PanelDireccion::elegirVia, &PanelDireccion::elegirProvincia,
        &PanelDireccion::elegirMunicipio};
    for (std::size_t l = 0; l < NumCatalogos; ++l) {
        if (!listas_[l]) continue;
        const auto catalogo = static_cast<Catalogo>(l);
        guardia_.Orden(botones_[l], [this, catalogo] {
            const Espera espera(pantallas_);
            abrir(catalogo);
        });
        connect(listas_[l], &ListaEleccion::elegida, this, elegir[l]);
        connect(listas_[l], &ListaEleccion::abandonada, this,
                [this, catalogo] { abandonar(catalogo); });
    }
    if (auto* vias = listas_[n(Catalogo::Vias)]) vias->installEventFilter(this);
}

void PanelDireccion::registrar(Dato dato) {
    const auto con = [this, dato](bool (PanelDireccion::*dejar)()) {
        guardia_.Registrar(Campo(dato), [this, dejar] { return (this->*dejar)(); });
    };
    switch (dato) {
        case Dato::Siglas:
            return con(&PanelDireccion::dejarVia);
        case Dato::CodProvincia:
            return con(&PanelDireccion::dejarProvincia);
        case Dato::Provincia:
            return con(&PanelDireccion::dejarNombreProvincia);
        case Dato::CodMunicipio:
            return con(&PanelDireccion::dejarMunicipio);
        case Dato::Via:
            return;
        default:
            guardia_.Registrar(Campo(dato), [this, dato] { return dejarPlano(dato); });
    }
}

void PanelDireccion::PresentarDatos() {
    for (std::size_t i = 0; i < NumDatos; ++i) {
        const FilaDireccion& fila = tabla_.campos[i];
        if (entradas_[i].texto) entradas_[i].texto->Presentar(bloque_.*fila.texto);
        if (!entradas_[i].numero) continue;
        const qint32 valor = bloque_.*fila.numero;
        if (fila.conCero)
            entradas_[i].numero->Presentar(valor);
        else
            entradas_[i].numero->PresentarSinCero(valor);
    }
    const bool propia = bloque_.CodigoProvincia == ProvinciaPropia;
    bloquear(Campo(Dato::CodMunicipio), !propia);
    bloquear(Campo(Dato::Municipio), propia);
}

void PanelDireccion::ActualizarBotones() {
    if (auto* boton = botones_[n(Catalogo::Municipios)])
        boton->setEnabled(bloque_.CodigoProvincia == ProvinciaPropia);
}

void PanelDireccion::cambiado() {
    alModificar();
    alRefrescar();
}

bool PanelDireccion::dejarPlano(Dato dato) {
    const FilaDireccion& fila = tabla_.campos[n(dato)];
    const Entrada& entrada = entradas_[n(dato)];
    if (entrada.numero) {
        const qint32 valor = entrada.numero->Valor();
        if (valor == bloque_.*fila.numero) return true;
        bloque_.*fila.numero = valor;
    } else {
        const QString texto = entrada.texto->text();
        if (texto == bloque_.*fila.texto) return true;
        bloque_.*fila.texto = texto;
    }
    cambiado();
    return true;
}

bool PanelDireccion::dejarVia() {
    const QString codigo = Campo(Dato::Siglas)->text();
    if (codigo == bloque_.SiglasDomicilio) return true;
    const QString via = listas_[n(Catalogo::Vias)]->Buscar(codigo);
    entradas_[n(Dato::Via)].texto->Presentar(via);
    if (via.trimmed().isEmpty()) {
        bloque_.SiglasDomicilio.clear();
        bloque_.DescripcionSiglas.clear();
        alModificar();
        return abrirAlSalir(Catalogo::Vias);
    }
    bloque_.SiglasDomicilio = codigo;
    bloque_.DescripcionSiglas = via;
    cambiado();
    return true;
}

QString PanelDireccion::buscar(Catalogo catalogo, qint32 codigo) const {
    return listas_[n(catalogo)]->Buscar(u'C' + QString::number(codigo));
}

bool PanelDireccion::dejarProvincia() {
    const qint32 codigo = entradas_[n(Dato::CodProvincia)].numero->Valor();
    if (codigo == bloque_.CodigoProvincia) return true;
    bloque_.NombreProvincia = buscar(Catalogo::Provincias, codigo);
    bloque_.CodigoMunicipio = 0;
    bloque_.NombreMunicipio.clear();
    const bool conocida = !bloque_.NombreProvincia.isEmpty();
    bloque_.CodigoProvincia = conocida ? codigo : 0;
    if (conocida) {
        cambiado();
        return true;
    }
    entradas_[n(Dato::Provincia)].texto->Presentar(QString());
    const bool vale = abrirAlSalir(Catalogo::Provincias);
    cambiado();
    return vale;
}

// The field is locked, but the mouse gives it the focus.
bool PanelDireccion::dejarNombreProvincia() {
    const QString nombre = Campo(Dato::Provincia)->text();
    if (nombre == bloque_.NombreProvincia) return true;
    if (nombre.isEmpty()) {
        estado_.Avisar(SinNombreProvincia, TituloProvincia);
        return true;
    }
    bloque_.NombreProvincia = nombre;
    cambiado();
    return true;
}

bool PanelDireccion::dejarMunicipio() {
    const qint32 codigo = entradas_[n(Dato::CodMunicipio)].numero->Valor();
    if (codigo == bloque_.CodigoMunicipio) return true;
    // An address that is switched off stays empty: what was typed into the field, which locks only
    // when the record is shown next, is dropped.
    if (!listas_[n(Catalogo::Municipios)]->isEnabled()) {
        alRefrescar();
        return true;
    }
    bloque_.NombreMunicipio = buscar(Catalogo::Municipios, codigo);
    const bool conocido = !bloque_.NombreMunicipio.isEmpty();
    bloque_.CodigoMunicipio = conocido ? codigo : 0;
    const bool vale = conocido || abrirAlSalir(Catalogo::Municipios);
    cambiado();
    return vale;
}

// What stands in the name field is looked for in the list; without it, the code is emptied.
QString PanelDireccion::prepararLista(Catalogo catalogo) {
    const QString texto = Campo(DatosDeCatalogo[n(catalogo)].nombre)->text();
    if (texto.isEmpty() && catalogo == Catalogo::Vias)
        entradas_[n(Dato::Siglas)].texto->Presentar(QString());
    if (texto.isEmpty() && catalogo == Catalogo::Provincias)
        entradas_[n(Dato::CodProvincia)].numero->setText(QStringLiteral("0"));
    return texto;
}

void PanelDireccion::abrir(Catalogo catalogo) { mostrar(catalogo, prepararLista(catalogo)); }

void PanelDireccion::mostrar(Catalogo catalogo, const QString& texto) {
    listas_[n(catalogo)]->Abrir(texto, Campo(DatosDeCatalogo[n(catalogo)].codigo));
}

// The field is being left. It keeps the focus, which drops the command that left it; then the
// list takes it. False, unless the list is off.
bool PanelDireccion::abrirAlSalir(Catalogo catalogo) {
    const QString texto = prepararLista(catalogo);
    if (!listas_[n(catalogo)]->isEnabled()) return true;
    QMetaObject::invokeMethod(
        this, [this, catalogo, texto] { mostrar(catalogo, texto); }, Qt::QueuedConnection);
    return false;
}

// By keyboard the first letter of the code is lost, as with the numeric keys.
void PanelDireccion::elegirVia(const QString& clave, const QString& texto, bool conIntro) {
    bloque_.DescripcionSiglas = texto;
    bloque_.SiglasDomicilio = conIntro ? clave.mid(1) : clave;
    cambiado();
    Campo(Dato::Calle)->setFocus(Qt::OtherFocusReason);
}

void PanelDireccion::elegirProvincia(const QString& clave, const QString& texto, bool conIntro) {
    bloque_.NombreProvincia = texto;
    bloque_.CodigoProvincia = codigoDe(clave);
    if (tabla_.provinciaVaciaMunicipio || bloque_.CodigoProvincia != ProvinciaPropia)
        bloque_.CodigoMunicipio = 0;
    bloque_.NombreMunicipio.clear();
    cambiado();
    auto* postal = Campo(Dato::Postal);
    if (!conIntro && postal) postal->setFocus(Qt::OtherFocusReason);
}

void PanelDireccion::elegirMunicipio(const QString& clave, const QString& texto, bool conIntro) {
    bloque_.NombreMunicipio = texto;
    bloque_.CodigoMunicipio = codigoDe(clave);
    cambiado();
    auto* telefono = Campo(Dato::Telefono);
    if (!conIntro && telefono) telefono->setFocus(Qt::OtherFocusReason);
}

void PanelDireccion::abandonar(Catalogo catalogo) {
    if (tabla_.listas[n(catalogo)].escapeAlCodigo)
        Campo(DatosDeCatalogo[n(catalogo)].codigo)->setFocus(Qt::OtherFocusReason);
}

// The list of street types takes the letters that the text fields take.
bool PanelDireccion::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() != QEvent::KeyPress) return QWidget::eventFilter(objeto, evento);
    const QString texto = static_cast<QKeyEvent*>(evento)->text();
    return !texto.isEmpty() && texto.front().isPrint() &&
           FiltrarTecla(texto.front().unicode()) == 0;
}

}  // namespace padral
