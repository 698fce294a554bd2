// How section 4 is laid out: questions on the left, one column for each answer on the right.
// Controls are made in reading order, which Tab follows.

#include <QBoxLayout>
#include <QFrame>
#include <QGridLayout>

#include "sections/tax/screen/frm_apartado4.h"
#include "sections/tax/screen/frm_apartado4_dots.h"
#include "sections/tax/screen/frm_apartado4_tables.h"

namespace padral {

using namespace apartado4;

namespace {

constexpr int NumeroApartado = 4;

constexpr int TituloPantalla = 1;
constexpr Rotulo RotuloNif{u"Label11", 21}, RotuloNombre{u"Label12", 20};
constexpr int AnchoNif = 9, AnchoNombre = 40;
constexpr int Columnas = 4;
constexpr int EntreFilas = 6, EntreColumnas = 18, JuntoAlCampo = 6, TrasElTitulo = 6;
/// Shares of the width: the answers stay near the question.
constexpr int Ancho[Columnas] = {4, 1, 1, 1};

QFrame* raya(QWidget* padre) {
    auto* linea = new QFrame(padre);
    linea->setFrameShape(QFrame::HLine);
    linea->setFrameShadow(QFrame::Sunken);
    return linea;
}

}  // namespace

frmApartado4::frmApartado4(const Contexto& contexto, cDeclaraciones& declaracion, Edicion edicion)
    : PantallaApartado(edicion == Edicion::Hasta2014 ? QStringLiteral("frmApartado4")
                                                     : QStringLiteral("frmApartado4_2015"),
                       contexto, declaracion, NumeroApartado),
      apartado_(declaracion.apartado4),
      edicion_(edicion) {
    auto* todo = new QVBoxLayout(this);
    auto* titulo = Encabezado(QStringLiteral("lblTituloPantalla"), this);
    etiquetas_.emplace_back(titulo, TituloPantalla);
    todo->addWidget(titulo);
    todo->addSpacing(TrasElTitulo);
    auto* rejilla = new QGridLayout;
    rejilla->setVerticalSpacing(EntreFilas);
    rejilla->setHorizontalSpacing(EntreColumnas);
    for (int i = 0; i < Columnas; ++i) rejilla->setColumnStretch(i, Ancho[i]);
    for (const auto& bloque : Bloques) crearBloque(bloque, rejilla);
    todo->addLayout(rejilla);
    todo->addStretch(1);
    todo->addWidget(crearBotones(BotonesAlPie));
    conectarCasillas();
    conectarCampos();
}

bool frmApartado4::existe(const Solicitud& solicitud) const {
    if (!solicitud.propiedad) return false;
    if (solicitud.ediciones == En::Ambas) return true;
    return (solicitud.ediciones == En::SoloHasta2014) == (edicion_ == Edicion::Hasta2014);
}

void frmApartado4::crearBloque(const Bloque& bloque, QGridLayout* rejilla) {
    crearCabecera(bloque.cabecera, rejilla);
    for (const auto& solicitud : bloque.filas) {
        if (!existe(solicitud)) continue;
        crearFila(solicitud, bloque.cabecera, rejilla);
        if (solicitud.propiedad == &DatosApartado4::IVASOCIO) crearEntidad(rejilla);
    }
}

void frmApartado4::crearCabecera(const Cabecera& cabecera, QGridLayout* rejilla) {
    if (cabecera.raya) rejilla->addWidget(raya(this), rejilla->rowCount(), 0, 1, Columnas);
    const int linea = rejilla->rowCount();
    if (cabecera.titulo.nombre) {
        auto* titulo = Encabezado(QString::fromUtf16(cabecera.titulo.nombre), this);
        etiquetas_.emplace_back(titulo, cabecera.titulo.texto);
        rejilla->addWidget(titulo, linea, 0);
    }
    for (std::size_t i = 0; i < cabecera.columnas.size(); ++i) {
        const auto& columna = cabecera.columnas[i];
        if (!columna.nombre) continue;
        auto* etiqueta = Etiqueta(QString::fromUtf16(columna.nombre), this);
        etiquetas_.emplace_back(etiqueta, columna.texto);
        rejilla->addWidget(etiqueta, linea, static_cast<int>(i) + 1);
    }
}

QLabel* frmApartado4::etiquetaDe(const Rotulo& rotulo) {
    auto* etiqueta = Etiqueta(QString::fromUtf16(rotulo.nombre), this);
    etiqueta->setWordWrap(true);
    return etiqueta;
}

void frmApartado4::crearFila(const Solicitud& solicitud, const Cabecera& cabecera,
                             QGridLayout* rejilla) {
    const int linea = rejilla->rowCount();
    Fila fila{&solicitud, &cabecera, nullptr, {}};
    if (solicitud.propiedad == &DatosApartado4::SONF) {
        fila.etiqueta = lblSONF_ = new EtiquetaPuntos(this);
        lblSONF_->setObjectName(QString::fromUtf16(solicitud.etiqueta.nombre));
        lblSONF_->setTextFormat(Qt::PlainText);
    } else {
        fila.etiqueta = etiquetaDe(solicitud.etiqueta);
    }
    rejilla->addWidget(fila.etiqueta, linea, 0);
    for (std::size_t i = 0; i < fila.casillas.size(); ++i) {
        const auto& respuesta = solicitud.respuestas[i];
        if (!respuesta.casilla) continue;
        fila.casillas[i] = new CasillaRespuesta(QString::fromUtf16(respuesta.casilla), this);
        rejilla->addWidget(fila.casillas[i], linea, static_cast<int>(i) + 1);
    }
    fila.etiqueta->setBuddy(fila.casillas[0]);
    filas_.push_back(fila);
}

/// The entity, below the question for it.
void frmApartado4::crearEntidad(QGridLayout* rejilla) {
    txtNIF_ = new CampoTexto(QStringLiteral("txtNIF"), AnchoNif, this);
    txtNombre_ = new CampoTexto(QStringLiteral("txtNombre"), AnchoNombre, this);
    txtNIF_->setFixedWidth(AnchoDe(txtNIF_, AnchoNif + 2));
    txtNombre_->setMaximumWidth(AnchoDe(txtNombre_, AnchoNombre + 8));
    auto* linea = new QHBoxLayout;
    linea->addSpacing(EntreColumnas);
    for (const auto& [rotulo, campo] :
         {std::pair{RotuloNif, txtNIF_}, {RotuloNombre, txtNombre_}}) {
        auto* etiqueta = Etiqueta(QString::fromUtf16(rotulo.nombre), this);
        etiqueta->setBuddy(campo);
        etiquetas_.emplace_back(etiqueta, rotulo.texto);
        linea->addWidget(etiqueta);
        linea->addSpacing(JuntoAlCampo);
        linea->addWidget(campo, campo == txtNombre_ ? 20 : 0);
        linea->addSpacing(EntreColumnas);
    }
    linea->addStretch(1);
    rejilla->addLayout(linea, rejilla->rowCount(), 0, 1, Columnas);
}

}  // namespace padral
