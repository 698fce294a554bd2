#include "ui/option_pair.h"

#include "ui/field_guard.h"

namespace padral {

ParejaCasillas::ParejaCasillas(const QString& nombreSi, const QString& nombreNo, QWidget* padre)
    : QObject(padre), si_(new QCheckBox(padre)), no_(new QCheckBox(padre)) {
    si_->setObjectName(nombreSi);
    no_->setObjectName(nombreNo);
}

MarcaPareja ParejaCasillas::Marca() const {
    if (si_->isChecked()) return MarcaPareja::Si;
    return no_->isChecked() ? MarcaPareja::No : MarcaPareja::Ninguna;
}

void ParejaCasillas::Presentar(MarcaPareja marca) {
    si_->setChecked(marca == MarcaPareja::Si);
    no_->setChecked(marca == MarcaPareja::No);
}

void ParejaCasillas::AlPulsar(GuardiaCampos& guardia,
                              const std::function<void(MarcaPareja)>& alPulsar) {
    for (auto* pulsada : {si_, no_}) {
        auto* otra = pulsada == si_ ? no_ : si_;
        guardia.Orden(
            pulsada,
            [this, pulsada, otra, alPulsar] {
                if (pulsada->isChecked()) otra->setChecked(false);
                alPulsar(Marca());
            },
            [pulsada] { pulsada->toggle(); });
    }
}

}  // namespace padral
