// How an address is laid out, and its captions.

#include "sections/location/screen/address_block_widget.h"

#include <QGridLayout>

#include "ui/fields.h"
#include "ui/list_button.h"

namespace padral {

namespace {

constexpr int EntreFilas = 6;
constexpr int EntreGrupos = 10;
constexpr int DentroDelGrupo = 4;
/// Up to here an entry is a code. Codes of capital letters are the widest, and all are alike.
constexpr int AnchoDeCodigo = 3;
constexpr QRgb GrisApagado = 0xFFE0E0E0;

}  // namespace

void PonerFondo(QLineEdit* campo, bool gris) {
    QPalette paleta;
    if (gris) {
        paleta.setColor(QPalette::Base, QColor::fromRgb(GrisApagado));
        paleta.setColor(QPalette::Text, Qt::black);
    }
    campo->setPalette(paleta);
}

PanelDireccion::PanelDireccion(const Contexto& contexto, const TablaDireccion& tabla,
                               BloqueDireccion& bloque, QWidget* pantalla, QWidget* padre)
    : QWidget(padre),
      estado_(contexto.estado),
      pantallas_(contexto.pantallas),
      guardia_(contexto.guardia),
      tabla_(tabla),
      bloque_(bloque) {
    crearCampos();
    for (std::size_t i = 0; i < NumCatalogos; ++i)
        if (tabla_.listas[i].boton) crearLista(i, pantalla);
    componer();
    conectar();
}

// Fields and buttons are made in the order in which Tab visits them.
void PanelDireccion::crearCampos() {
    for (std::size_t i = 0; i < NumDatos; ++i) {
        if (tabla_.campos[i].control) crearCampo(i);
        for (std::size_t l = 0; l < NumCatalogos; ++l) {
            if (n(DatosDeCatalogo[l].codigo) != i || !tabla_.listas[l].boton) continue;
            botones_[l] = new BotonLista(tabla_.nombrar(tabla_.listas[l].boton), this);
        }
    }
    for (const Dato derivado : {Dato::Via, Dato::Provincia})
        if (auto* campo = Campo(derivado)) BloquearCampo(campo);
}

void PanelDireccion::crearCampo(std::size_t i) {
    const FilaDireccion& fila = tabla_.campos[i];
    Entrada& entrada = entradas_[i];
    const QString nombre = tabla_.nombrar(fila.control);
    if (fila.formato)
        entrada.numero = new CajaNum(nombre, fila.ancho, QString::fromUtf16(fila.formato), this);
    else
        entrada.texto = new CampoTexto(nombre, fila.ancho, this);
    QLineEdit* campo = Campo(static_cast<Dato>(i));
    const int ancho = AnchoDe(campo, fila.ancho, fila.ancho <= AnchoDeCodigo ? u'M' : u'0');
    campo->setMinimumWidth(ancho);
    // Codes and numbers keep their width; names share what the window leaves.
    if (fila.formato || fila.ancho <= AnchoDeCodigo) campo->setMaximumWidth(ancho);
    if (!fila.etiqueta) return;
    entrada.etiqueta = Etiqueta(tabla_.nombrar(fila.etiqueta), this);
    entrada.etiqueta->setBuddy(campo);
}

void PanelDireccion::crearLista(std::size_t i, QWidget* pantalla) {
    listas_[i] = new ListaEleccion(tabla_.nombrar(tabla_.listas[i].lista), pantalla);
}

QLineEdit* PanelDireccion::Campo(Dato dato) const {
    const Entrada& entrada = entradas_[n(dato)];
    if (entrada.numero) return entrada.numero;
    return entrada.texto;
}

// A caption above its field; a code with its button and its name is one group.
QVBoxLayout* PanelDireccion::columna(Dato dato) const {
    auto* fila = new QHBoxLayout;
    fila->setSpacing(DentroDelGrupo);
    fila->addWidget(Campo(dato));
    for (std::size_t l = 0; l < NumCatalogos; ++l)
        if (DatosDeCatalogo[l].codigo == dato) {
            if (botones_[l]) fila->addWidget(botones_[l]);
            if (auto* nombre = Campo(DatosDeCatalogo[l].nombre)) fila->addWidget(nombre, 1);
        }
    // A field narrower than its caption stays at the left.
    if (Campo(dato)->maximumWidth() < QWIDGETSIZE_MAX) fila->addStretch(0);
    auto* caja = new QVBoxLayout;
    caja->setSpacing(1);
    if (entradas_[n(dato)].etiqueta) caja->addWidget(entradas_[n(dato)].etiqueta);
    caja->addLayout(fila);
    return caja;
}

void PanelDireccion::anadir(QHBoxLayout* fila, std::initializer_list<Dato> datos) const {
    for (const Dato dato : datos) {
        if (!Campo(dato)) continue;
        const bool deCodigo = Campo(dato)->maximumWidth() < QWIDGETSIZE_MAX;
        fila->addLayout(columna(dato), deCodigo && dato != Dato::CodMunicipio ? 0 : 1);
    }
}

void PanelDireccion::componer() {
    auto* rejilla = new QGridLayout(this);
    rejilla->setContentsMargins(0, 0, 0, 0);
    rejilla->setVerticalSpacing(EntreFilas);
    rejilla->setHorizontalSpacing(EntreGrupos);
    const auto poner = [&](int f, int c, std::initializer_list<Dato> datos) {
        auto* fila = new QHBoxLayout;
        fila->setSpacing(EntreGrupos);
        anadir(fila, datos);
        rejilla->addLayout(fila, f, c, c == 2 ? Qt::AlignLeft : Qt::Alignment());
    };
    poner(0, 0, {Dato::Siglas});
    poner(0, 1, {Dato::Calle});
    poner(0, 2, {Dato::Numero, Dato::LetraPortal, Dato::Escalera, Dato::Piso, Dato::Mano});
    poner(1, 0, {Dato::CodProvincia});
    poner(1, 1, {Dato::Postal, Dato::CodMunicipio});
    poner(1, 2, {Dato::Telefono});
    rejilla->setColumnStretch(0, 2);
    rejilla->setColumnStretch(1, 3);
}

void PanelDireccion::Anadir_captions(const QString& titulo) {
    const QString delante = titulo.isEmpty() ? QString() : titulo.trimmed() + QStringLiteral(": ");
    for (std::size_t i = 0; i < NumDatos; ++i) {
        const QString& caption = estado_.Texto(tabla_.campos[i].caption);
        if (entradas_[i].etiqueta) entradas_[i].etiqueta->setText(caption);
        if (auto* campo = Campo(static_cast<Dato>(i))) campo->setAccessibleName(delante + caption);
    }
    for (std::size_t l = 0; l < NumCatalogos; ++l) {
        if (!botones_[l]) continue;
        const QString& ayuda = estado_.Texto(tabla_.listas[l].ayuda);
        botones_[l]->setText(estado_.Texto(tabla_.textoBoton));
        botones_[l]->setToolTip(ayuda);
        botones_[l]->setAccessibleName(delante + ayuda);
        listas_[l]->setAccessibleName(
            delante + estado_.Texto(tabla_.campos[n(DatosDeCatalogo[l].codigo)].caption));
    }
}

void PanelDireccion::CargarListas(const TablasCatalogo& tablas) {
    for (std::size_t l = 0; l < NumCatalogos; ++l)
        if (listas_[l]) listas_[l]->Cargar(tablas[l]);
}

}  // namespace padral
