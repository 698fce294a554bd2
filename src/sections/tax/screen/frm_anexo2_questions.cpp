// The questions of Annex II: one below the other, their answers in columns beside them.

#include <QFrame>
#include <QGridLayout>

#include "sections/tax/screen/frm_anexo2.h"
#include "sections/tax/screen/frm_anexo2_tables.h"
#include "ui/fields.h"
#include "ui/number_field.h"

namespace padral {

using namespace anexo2;

namespace {

constexpr Rotulo Cabeceras[] = {{u"lblSi", Si}, {u"lblNo", No}};
constexpr Rotulo RotuloModificacion{u"lbl8", 711};
constexpr int EntrePreguntas = 8, EntreRespuestas = 12, Sangria = 22;
constexpr int CifrasPorcentaje = 3;

}  // namespace

QWidget* frmAnexoII::crearPreguntas() {
    auto* marco = Panel(this);
    auto* rejilla = new QGridLayout(marco);
    rejilla->setVerticalSpacing(EntrePreguntas);
    rejilla->setHorizontalSpacing(EntreRespuestas);
    rejilla->setColumnStretch(0, 1);
    for (int i = 0; i < 2; ++i) {
        auto* cabecera = Encabezado(QString::fromUtf16(Cabeceras[i].nombre), marco);
        etiquetas_.emplace_back(cabecera, Cabeceras[i].texto);
        rejilla->addWidget(cabecera, 0, i + 1);
    }
    for (const auto& pregunta : Preguntas) crearFila(pregunta, rejilla, marco);
    crearPorcentaje(rejilla, marco);
    rejilla->setRowStretch(rejilla->rowCount(), 1);
    return marco;
}

/// The answers below yes and no; without a question on the screen, one below the other.
void frmAnexoII::crearFila(const Pregunta& pregunta, QGridLayout* rejilla, QWidget* padre) {
    const int linea = rejilla->rowCount();
    Fila fila{&pregunta, nullptr, {}};
    if (pregunta.etiqueta.nombre) {
        fila.etiqueta = crearEtiqueta(pregunta.etiqueta, padre);
        fila.etiqueta->setWordWrap(true);
        rejilla->addWidget(fila.etiqueta, linea, 0);
    }
    for (std::size_t i = 0; i < fila.casillas.size(); ++i) {
        const Casilla& respuesta = pregunta.respuestas[i];
        if (!respuesta.nombre) continue;
        auto* casilla = new CasillaRespuesta(QString::fromUtf16(respuesta.nombre), padre);
        fila.casillas[i] = casilla;
        const int columna = static_cast<int>(i);
        if (fila.etiqueta) {
            rejilla->addWidget(casilla, linea, columna + 1);
            continue;
        }
        auto* sangrada = new QHBoxLayout;
        sangrada->addSpacing(Sangria);
        sangrada->addWidget(casilla, 1);
        rejilla->addLayout(sangrada, linea + columna, 0, 1, -1);
    }
    if (fila.etiqueta) fila.etiqueta->setBuddy(fila.casillas[0]);
    if (pregunta.propiedad == &DatosAnexoII::OpcionApl) chkRevocacion_ = fila.casillas[1];
    filas_.push_back(fila);
}

void frmAnexoII::crearPorcentaje(QGridLayout* rejilla, QWidget* padre) {
    const int linea = rejilla->rowCount();
    numPorcentaje_ = new CajaNum(QStringLiteral("numPorcentaje"), CifrasPorcentaje,
                                 QStringLiteral("##0"), padre);
    // As wide as the other number of three digits.
    numPorcentaje_->setFixedWidth(codigos_[n(ListaAnexoII::Municipios)]->minimumWidth());
    auto* etiqueta = crearEtiqueta(RotuloModificacion, padre);
    etiqueta->setWordWrap(true);
    lbl15_ = Etiqueta(QStringLiteral("lbl15"), padre);
    for (auto* de : {etiqueta, lbl15_}) de->setBuddy(numPorcentaje_);
    rejilla->addWidget(etiqueta, linea, 0);
    rejilla->addWidget(numPorcentaje_, linea, 1, Qt::AlignLeft);
    rejilla->addWidget(lbl15_, linea, 2);
    nombrados_.push_back({numPorcentaje_, 0, RotuloModificacion.texto});
}

}  // namespace padral
