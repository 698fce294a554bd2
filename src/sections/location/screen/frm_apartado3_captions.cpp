// The words of section 3 in the language of the run.

#include <QFrame>
#include <QRadioButton>

#include "sections/location/screen/frm_apartado3.h"
#include "sections/location/screen/frm_apartado3_tables.h"

namespace padral {

using namespace apartado3;

namespace {

constexpr int FechaInicio = 148, Formato = 651;

}  // namespace

void FrmApartado3::Anadir_captions() {
    setWindowTitle(Texto(136));
    for (const auto& [marco, id] : marcos_) marco->setAccessibleName(Texto(id));
    for (const auto& [etiqueta, id] : etiquetas_) {
        // The blanks of some texts only made room in a row.
        etiqueta->setText(Texto(id).trimmed());
        if (id == FechaInicio) etiqueta->setText(etiqueta->text() + u' ' + Texto(Formato));
        if (etiqueta->buddy()) etiqueta->buddy()->setAccessibleName(etiqueta->text());
    }
    mskFechaInicio_->PonerMascara(Texto(650), Texto(Formato));
    mskFechaCierre_->PonerMascara(QStringLiteral("##/##"), QStringLiteral("dd/mm"));
    nombrarCasillas();
    botones_->Anadir_captions(estado_);
}

// A box says what it answers: "Alta" stands there four times.
void FrmApartado3::nombrarCasillas() {
    for (std::size_t i = 0; i < parejas_.size(); ++i) {
        const auto& fila = Parejas[i];
        if (fila.grupo == 0) continue;
        const auto nombrar = [&](QCheckBox* caja, int id) {
            caja->setText(Texto(id));
            caja->setAccessibleName(Texto(fila.grupo) + QStringLiteral(": ") + Texto(id));
        };
        nombrar(parejas_[i]->Si(), fila.textoSi);
        nombrar(parejas_[i]->No(), fila.textoNo);
    }
    for (std::size_t i = 0; i < optResidente_.size(); ++i)
        optResidente_[i]->setAccessibleName(Texto(139) + u' ' + lblOpcion_[i]->text());
    txtOtros_->setAccessibleName(Texto(142));
}

}  // namespace padral
