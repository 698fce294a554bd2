// What section 7 says, in the language of the run.

#include <QLabel>
#include <QStyle>
#include <algorithm>

#include "sections/tax/screen/frm_apartado7.h"
#include "sections/tax/screen/frm_apartado7_tables.h"
#include "sections/tax/screen/frm_apartado7_word_box.h"

namespace padral {

using namespace apartado7;

namespace {

constexpr int TituloPantalla = 255;
constexpr int HolguraFila = 2;

}  // namespace

void FrmApartado7::Anadir_captions() {
    setWindowTitle(Texto(TituloPantalla));
    for (const auto& [etiqueta, id] : etiquetas_) etiqueta->setText(Texto(id));
    rotularEstados();
    rotularSujetos();
    botones_->Anadir_captions(estado_);
}

void FrmApartado7::rotularEstados() {
    // 27 rows on a small screen: little higher than a line of text.
    const int alto =
        HolguraFila + std::max(fontMetrics().height(),
                               style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, this));
    auto casilla = casillas_.begin();
    for (std::size_t i = 0; i < FilasEstados.size(); ++i) {
        const auto& fila = FilasEstados.at(i);
        estados_[i]->setText(fila.texto == 0 ? QString::fromUtf16(fila.literal)
                                             : Texto(fila.texto));
        for (const auto& columna : Columnas) {
            // What a box says to who does not see where it stands.
            QStringList nombre{estados_[i]->text().trimmed()};
            for (const int id : columna.cabeceras)
                if (id != 0) nombre << Texto(id).simplified();
            auto* caja = (casilla++)->caja;
            caja->setAccessibleName(nombre.join(QStringLiteral(", ")));
            rotularConFlecha(caja);
            caja->setFixedHeight(alto);
        }
    }
}

void FrmApartado7::rotularSujetos() {
    auto casilla = casillas_.begin() + FilasEstados.size() * Columnas.size();
    for (const auto& fila : FilasSujetos) {
        QString pregunta = Texto(fila.etiqueta.texto).simplified();
        if (pregunta.startsWith(u"- ")) pregunta.remove(0, 2);
        for (const auto& de : fila.casillas) {
            if (de.nombre == nullptr) continue;
            auto* caja = (casilla++)->caja;
            if (de.palabra == 0) {
                caja->setAccessibleName(pregunta);
                rotularConFlecha(caja);
                continue;
            }
            caja->setAccessibleName(pregunta + u' ' + Texto(de.palabra).simplified());
            // In line with the labels that stand beside a box.
            static_cast<CasillaConPalabra*>(caja)->PonerPalabra(
                Texto(de.palabra), Texto(de.conFlecha), anchoConFlecha());
        }
    }
}

/// A box without a word has the arrow only.
void FrmApartado7::rotularConFlecha(CasillaRespuesta* caja) {
    caja->PonerRotulos(QString(), Texto(Flecha));
}

int FrmApartado7::anchoConFlecha() {
    const QCheckBox muestra(Texto(Flecha), this);
    return muestra.sizeHint().width();
}

}  // namespace padral
