// How section 7 is laid out: the member states in one table, beside them the subjects in special
// position. Controls are made in reading order, which Tab follows.

#include <QBoxLayout>
#include <QFrame>
#include <QGridLayout>
#include <QPainter>

#include "sections/tax/screen/frm_apartado7.h"
#include "sections/tax/screen/frm_apartado7_tables.h"
#include "sections/tax/screen/frm_apartado7_word_box.h"
#include "ui/fields.h"

namespace padral {

using namespace apartado7;

namespace {

constexpr int NumeroApartado = 7;

constexpr Rotulo Titulo{u"lblTituloPantalla", 255}, TituloVentas{u"Label2", 280};
constexpr Rotulo Gravamen{u"Label3", 279}, OtrosEstados{u"Label4", 278};
constexpr Rotulo TituloSujetos{u"Label24", 672};

constexpr int EntrePartes = 16;
constexpr int EntreFilas = 2;
constexpr int MargenTabla = 6, SobreCabecera = 3, BajoCabecera = 3;
constexpr int EntreSujetos = 8, BajoLaPregunta = 4;
constexpr int MargenSujetos = 10;
constexpr int EntreColumnas = 24;
/// Shares of the width beyond what each part needs.
constexpr int ParteVentas = 3, ParteSujetos = 2;

/// Every other row stands on a band, so that the eye keeps to it: a touch of the colour of the
/// letters, in light and dark themes.
class Banda : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent*) override {
        QColor tono = palette().color(QPalette::WindowText);
        tono.setAlphaF(0.05F);
        QPainter(this).fillRect(rect(), tono);
    }
};

}  // namespace

FrmApartado7::FrmApartado7(const Contexto& contexto, cDeclaraciones& declaracion)
    : PantallaApartado(QStringLiteral("FrmApartado7"), contexto, declaracion, NumeroApartado),
      apartado_(declaracion.apartado7) {
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(crearRotulo(Titulo, this, true));
    auto* partes = new QHBoxLayout;
    partes->setSpacing(EntrePartes);
    partes->addLayout(crearVentas(), ParteVentas);
    partes->addWidget(crearSujetos(), ParteSujetos);
    todo->addLayout(partes);
    todo->addStretch(1);
    todo->addWidget(crearBotones(BotonesAlPie));
    conectarCasillas();
}

QLabel* FrmApartado7::crearRotulo(const Rotulo& rotulo, QWidget* padre, bool destacado) {
    const QString nombre = QString::fromUtf16(rotulo.nombre);
    return rotular(destacado ? Encabezado(nombre, padre) : Etiqueta(nombre, padre), rotulo.texto);
}

QLabel* FrmApartado7::rotular(QLabel* etiqueta, int texto) {
    etiqueta->setWordWrap(true);
    etiquetas_.emplace_back(etiqueta, texto);
    return etiqueta;
}

QLayout* FrmApartado7::crearVentas() {
    auto* caja = new QVBoxLayout;
    caja->setSpacing(EntreFilas);
    caja->addWidget(crearRotulo(TituloVentas, this, true));
    caja->addWidget(crearRotulo(Gravamen, this));
    caja->addWidget(crearRotulo(OtrosEstados, this));
    caja->addWidget(crearTabla());
    caja->addStretch(1);
    return caja;
}

QWidget* FrmApartado7::crearTabla() {
    auto* tabla = new QFrame(this);
    tabla->setFrameShape(QFrame::StyledPanel);
    auto* rejilla = new QGridLayout(tabla);
    rejilla->setContentsMargins(0, SobreCabecera, 0, 0);
    rejilla->setSpacing(0);
    rejilla->setRowMinimumHeight(FilasCabecera, BajoCabecera);
    for (std::size_t i = 0; i <= Columnas.size(); ++i)
        rejilla->setColumnStretch(static_cast<int>(i), 1);
    // A head of more lines grows away from the boxes.
    rejilla->setRowStretch(0, 1);
    for (const auto& cabecera : Cabeceras)
        rejilla->addWidget(crearRotulo(cabecera.rotulo, tabla), cabecera.fila, cabecera.columna,
                           cabecera.filas, cabecera.columnas, Qt::AlignBottom);
    int fila = FilasCabecera + 1;
    for (const auto& estado : FilasEstados) crearEstado(estado, rejilla, fila++, tabla);
    return tabla;
}

void FrmApartado7::crearEstado(const FilaEstado& estado, QGridLayout* rejilla, int fila,
                               QWidget* tabla) {
    if ((fila - FilasCabecera) % 2 == 1) rejilla->addWidget(new Banda(tabla), fila, 0, 1, -1);
    auto* etiqueta = Etiqueta(QString::fromUtf16(estado.etiqueta), tabla);
    etiqueta->setContentsMargins(MargenTabla, 0, MargenTabla, 0);
    rejilla->addWidget(etiqueta, fila, 0);
    estados_.push_back(etiqueta);
    int columna = 0;
    for (const auto& de : Columnas) {
        const QString nombre = QString::fromUtf16(de.prefijo) + QString::number(estado.sufijo);
        auto* caja = new CasillaRespuesta(nombre, tabla);
        caja->installEventFilter(this);
        rejilla->addWidget(caja, fila, ++columna, Qt::AlignLeft);
        if (columna == 1) etiqueta->setBuddy(caja);
        casillas_.push_back(
            {caja, &(apartado_.*de.respuestas).at(estado.indice()), QString::fromUtf16(de.valor)});
    }
}

QWidget* FrmApartado7::crearSujetos() {
    auto* panel = Panel(this);
    auto* rejilla = new QGridLayout(panel);
    rejilla->setContentsMargins(MargenSujetos, MargenSujetos, MargenSujetos, MargenSujetos);
    rejilla->setHorizontalSpacing(EntreColumnas);
    rejilla->setVerticalSpacing(BajoLaPregunta);
    rejilla->addWidget(crearRotulo(TituloSujetos, panel, true), 0, 0, 1, -1);
    for (const auto& fila : FilasSujetos) crearSujeto(fila, rejilla, panel);
    rejilla->setColumnStretch(rejilla->columnCount(), 1);
    rejilla->setRowStretch(rejilla->rowCount(), 1);
    return panel;
}

/// One box stands before its label, two of them below it.
void FrmApartado7::crearSujeto(const FilaSujeto& fila, QGridLayout* rejilla, QWidget* panel) {
    const bool pareja = fila.casillas.back().nombre != nullptr;
    const int hueco = rejilla->rowCount(), renglon = hueco + 1;
    rejilla->setRowMinimumHeight(hueco, EntreSujetos);
    if (!pareja) {
        auto* caja = crearCasilla(fila.casillas.front(), panel);
        auto* linea = new QHBoxLayout;
        linea->setSpacing(0);
        linea->addWidget(caja);
        auto* etiqueta = new EtiquetaCasilla(QString::fromUtf16(fila.etiqueta.nombre), caja, panel);
        linea->addWidget(rotular(etiqueta, fila.etiqueta.texto), 1);
        rejilla->addLayout(linea, renglon, 0, 1, -1);
        return;
    }
    auto* etiqueta = crearRotulo(fila.etiqueta, panel);
    rejilla->addWidget(etiqueta, renglon, 0, 1, -1);
    int columna = 0;
    for (const auto& casilla : fila.casillas) {
        auto* caja = crearCasilla(casilla, panel);
        if (columna == 0) etiqueta->setBuddy(caja);
        rejilla->addWidget(caja, renglon + 1, columna++);
    }
}

CasillaRespuesta* FrmApartado7::crearCasilla(const CasillaSujeto& casilla, QWidget* panel) {
    const QString nombre = QString::fromUtf16(casilla.nombre);
    auto* caja = casilla.palabra == 0 ? new CasillaRespuesta(nombre, panel)
                                      : new CasillaConPalabra(nombre, panel);
    casillas_.push_back({caja, &(apartado_.*casilla.respuesta), QString::fromUtf16(casilla.valor)});
    return caja;
}

}  // namespace padral
