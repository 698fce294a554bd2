// How section 5 is laid out: the questions in two columns, below them the panel of the branch that
// the I.V.A. question opens. Controls are made in reading order, which Tab follows.

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <algorithm>

#include "sections/tax/screen/frm_apartado5.h"
#include "sections/tax/screen/frm_apartado5_tables.h"
#include "ui/fields.h"

namespace padral {

using namespace apartado5;

namespace {

constexpr int NumeroApartado = 5;

constexpr int TituloPantalla = 187;
constexpr int EntreFilas = 6;
constexpr int EntreColumnas = 28;
constexpr int EntreZonas = 8;
constexpr int MargenZona = 6;
constexpr int TrasLaPregunta = 8;

/// Two controls side by side, as yes and no stand.
QBoxLayout* ladoALado(QWidget* si, QWidget* no, QWidget* en = nullptr) {
    auto* fila = new QHBoxLayout(en);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->setSpacing(TrasLaPregunta);
    fila->addWidget(si);
    fila->addWidget(no);
    return fila;
}

/// Where each of the two columns of questions begins in the grid of a zone, which has a gap between
/// them. One grid for both: their rows are in line.
constexpr int Izquierda = 0, Hueco = 2, Derecha = 3;

QGridLayout* nuevaRejilla() {
    auto* rejilla = new QGridLayout;
    rejilla->setVerticalSpacing(EntreFilas);
    rejilla->setHorizontalSpacing(TrasLaPregunta);
    rejilla->setColumnMinimumWidth(Hueco, EntreColumnas - 2 * TrasLaPregunta);
    for (const int columna : {Izquierda, Derecha}) rejilla->setColumnStretch(columna, 1);
    return rejilla;
}

QString nombreFormulario(Edicion edicion) {
    return edicion == Edicion::Hasta2014 ? QStringLiteral("frmApartado5")
                                         : QStringLiteral("frmApartado5_2015");
}

}  // namespace

frmApartado5::frmApartado5(const Contexto& contexto, cDeclaraciones& declaracion, Edicion edicion)
    : PantallaApartado(nombreFormulario(edicion), contexto, declaracion, NumeroApartado),
      apartado_(declaracion.apartado5),
      edicion_(edicion) {
    auto* todo = new QVBoxLayout(this);
    todo->setSpacing(EntreZonas);
    auto* titulo = Encabezado(QStringLiteral("lblTituloPantalla"), this);
    etiquetas_.emplace_back(titulo, TituloPantalla);
    todo->addWidget(titulo);
    arriba_ = crearZona(Zona::Arriba, this);
    todo->addLayout(arriba_);
    for (std::size_t i = 0; i < paneles_.size(); ++i) {
        paneles_[i] = crearPanel(i);
        todo->addWidget(paneles_[i]);
    }
    // As far from the edge as what stands in the panels, so that the boxes are in line.
    const QMargins marco = paneles_[0]->contentsMargins();
    arriba_->setContentsMargins(marco.left() + MargenZona, 0, marco.right() + MargenZona, 0);
    todo->addStretch(1);
    todo->addWidget(crearBotones(BotonesAlPie));
    conectarCasillas();
}

QLabel* frmApartado5::crearRotulo(const Rotulo& rotulo, QWidget* padre) {
    auto* etiqueta = Etiqueta(QString::fromUtf16(rotulo.nombre), padre);
    etiqueta->setWordWrap(true);
    etiquetas_.emplace_back(etiqueta, rotulo.texto);
    return etiqueta;
}

bool frmApartado5::sePregunta(const Pregunta& pregunta) const {
    return edicion_ == Edicion::Hasta2014 || !pregunta.soloHasta2014;
}

/// The questions of a zone in two columns.
QGridLayout* frmApartado5::crearZona(Zona zona, QWidget* padre) {
    auto* rejilla = nuevaRejilla();
    std::size_t puestas = 0;
    Sitio sitio{rejilla, Izquierda, 0};
    for (const auto& pregunta : Preguntas) {
        if (pregunta.zona != zona || !sePregunta(pregunta)) continue;
        if (puestas == EnLaIzquierda[static_cast<std::size_t>(zona)]) sitio = {rejilla, Derecha, 0};
        if (sitio.fila == 0 && zona == Zona::Arriba) crearCabecera(sitio, padre);
        crearPregunta(pregunta, sitio, padre);
        ++puestas;
    }
    return rejilla;
}

void frmApartado5::crearCabecera(Sitio& sitio, QWidget* padre) {
    static constexpr Rotulo Si{u"Label26", 2}, No{u"Label27", 3};
    const auto cabecera = [&](const Rotulo& texto, std::vector<QWidget*>& lista) {
        auto* etiqueta = Encabezado(QString::fromUtf16(texto.nombre), padre);
        // The second column repeats them.
        if (!lista.empty()) etiqueta->setObjectName(etiqueta->objectName() + u'b');
        etiquetas_.emplace_back(etiqueta, texto.texto);
        lista.push_back(etiqueta);
        return etiqueta;
    };
    sitio.rejilla->addLayout(ladoALado(cabecera(Si, cabecerasSi_), cabecera(No, cabecerasNo_)),
                             sitio.fila++, sitio.columna + 1);
}

void frmApartado5::crearPregunta(const Pregunta& pregunta, Sitio& sitio, QWidget* padre) {
    if (pregunta.encabezado.texto != 0) {
        auto* encabezado = crearRotulo(pregunta.encabezado, padre);
        sitio.rejilla->addWidget(encabezado, sitio.fila++, sitio.columna);
    }
    auto* marco = new QWidget(padre);
    marco->setObjectName(QString::fromUtf16(pregunta.marco));
    auto* si = new CasillaRespuesta(QString::fromUtf16(pregunta.si), marco);
    auto* no = new CasillaRespuesta(QString::fromUtf16(pregunta.no), marco);
    ladoALado(si, no, marco);
    auto* etiqueta = crearRotulo(pregunta.etiqueta, padre);
    etiqueta->setBuddy(si);
    sitio.rejilla->addWidget(etiqueta, sitio.fila, sitio.columna);
    sitio.rejilla->addWidget(marco, sitio.fila++, sitio.columna + 1);
    filas_.push_back({&pregunta, etiqueta, marco, si, no});
}

void frmApartado5::cerrarHueco(const FilaPregunta& escondida) {
    for (const auto& otra : filas_) {
        if (&otra <= &escondida || otra.pregunta->zona != Zona::Arriba) continue;
        for (QWidget* w : {static_cast<QWidget*>(otra.etiqueta), otra.marco}) {
            int fila = 0, columna = 0, filas = 0, columnas = 0;
            arriba_->getItemPosition(arriba_->indexOf(w), &fila, &columna, &filas, &columnas);
            arriba_->removeWidget(w);
            arriba_->addWidget(w, fila - 1, columna);
        }
    }
}

QGroupBox* frmApartado5::crearPanel(std::size_t i) {
    auto* panel = new QGroupBox(this);
    panel->setObjectName(QString::fromUtf16(Paneles[i].marco.nombre));
    auto* caja = new QVBoxLayout(panel);
    caja->setContentsMargins(MargenZona, MargenZona, MargenZona, MargenZona);
    caja->setSpacing(EntreFilas);
    caja->addWidget(crearRotulo(Paneles[i].etiqueta, panel));
    caja->addLayout(crearZona(Paneles[i].zona, panel));
    return panel;
}

void frmApartado5::Anadir_captions() {
    setWindowTitle(Texto(TituloPantalla));
    // The blanks of some texts only made room in a row.
    for (const auto& [etiqueta, id] : etiquetas_) etiqueta->setText(Texto(id).trimmed());
    for (std::size_t i = 0; i < paneles_.size(); ++i)
        paneles_[i]->setTitle(Texto(Paneles[i].marco.texto));
    const QString& flecha = Texto(213);
    const auto numero = [](int casilla) { return QStringLiteral("(%1)").arg(casilla); };
    for (const auto& fila : filas_) {
        const auto& p = *fila.pregunta;
        const int despues = p.casillaTrasElFoco != 0 ? p.casillaTrasElFoco : p.casilla;
        fila.si->PonerRotulos(numero(p.casilla), numero(despues), flecha);
        fila.no->PonerRotulos(QString(), flecha);
        // What a box says to who does not see where it stands.
        QString pregunta = fila.etiqueta->text();
        if (pregunta.startsWith(u"- ")) pregunta.remove(0, 2);
        fila.si->setAccessibleName(pregunta + u' ' + Texto(137));
        fila.no->setAccessibleName(pregunta + u' ' + Texto(138));
    }
    igualarAnchos();
    botones_->Anadir_captions(estado_);
}

// All yes boxes below one another, and all no boxes, whatever their captions.
void frmApartado5::igualarAnchos() {
    std::vector<QWidget*> si = cabecerasSi_, no = cabecerasNo_;
    for (const auto& fila : filas_) {
        si.push_back(fila.si);
        no.push_back(fila.no);
    }
    for (const auto& columna : {si, no}) {
        int ancho = 0;
        for (const auto* w : columna) ancho = std::max(ancho, w->sizeHint().width());
        for (auto* w : columna) w->setFixedWidth(ancho);
    }
}

}  // namespace padral
