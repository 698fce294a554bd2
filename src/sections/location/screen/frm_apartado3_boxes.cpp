// Boxes and options of section 3.

#include <QRadioButton>

#include "sections/location/screen/frm_apartado3.h"
#include "sections/location/screen/frm_apartado3_tables.h"

namespace padral {

void FrmApartado3::conectarCasillas() {
    for (std::size_t i = 0; i < parejas_.size(); ++i)
        parejas_[i]->AlPulsar(guardia_, [this, i](MarcaPareja marca) { pulsarPareja(i, marca); });
    for (auto* caja : findChildren<QCheckBox*>()) caja->installEventFilter(this);
    const auto marca = [this](QCheckBox* caja, QString DatosApartado3::*miembro) {
        guardia_.Orden(
            caja, [this, caja, miembro] { pulsarMarca(caja, miembro); },
            [caja] { caja->toggle(); });
    };
    marca(chkSocPat_, &DatosApartado3::SocPat);
    if (chkActVenMov_) marca(chkActVenMov_, &DatosApartado3::ActVenMov);
    for (std::size_t i = 0; i < optResidente_.size(); ++i) {
        optResidente_[i]->installEventFilter(this);
        guardia_.Orden(
            optResidente_[i], [this, i] { elegirResidente(i); }, [this] { presentarResidente(); });
    }
}

void FrmApartado3::pulsarPareja(std::size_t i, MarcaPareja marca) {
    const auto& fila = apartado3::Parejas[i];
    apartado_.*fila.miembroSi = Letra();
    apartado_.*fila.miembroNo = Letra();
    if (marca == MarcaPareja::Si) apartado_.*fila.miembroSi = QString::fromUtf16(fila.valorSi);
    if (marca == MarcaPareja::No) apartado_.*fila.miembroNo = QString::fromUtf16(fila.valorNo);
    apartado_.Modificaciones = true;
    if (fila.refresca) PresentarDatos();
}

void FrmApartado3::pulsarMarca(QCheckBox* caja, QString DatosApartado3::*miembro) {
    apartado_.*miembro = caja->isChecked() ? QStringLiteral("X") : QString();
    apartado_.Modificaciones = true;
}

void FrmApartado3::elegirResidente(std::size_t i) {
    if (!activo_) return;
    apartado_.ResidenteKelmaria = i == 0 ? QStringLiteral("S") : QStringLiteral("N");
    cambiado();
}

// Coming to an option by the keyboard is an answer. A focus given back is none.
void FrmApartado3::enfocarResidente(std::size_t i, Qt::FocusReason motivo) {
    resaltar(i, true);
    const bool porTeclado = motivo == Qt::TabFocusReason || motivo == Qt::BacktabFocusReason ||
                            motivo == Qt::ShortcutFocusReason;
    if (!porTeclado || optResidente_[i]->isChecked()) return;
    optResidente_[i]->setChecked(true);
    elegirResidente(i);
}

void FrmApartado3::resaltar(std::size_t i, bool resaltada) {
    auto* etiqueta = lblOpcion_[i];
    QPalette paleta;
    if (resaltada) {
        paleta.setColor(QPalette::Window, Qt::white);
        // Legible on white in dark themes, too.
        paleta.setColor(QPalette::WindowText, Qt::black);
    }
    etiqueta->setPalette(paleta);
    etiqueta->setAutoFillBackground(resaltada);
}

}  // namespace padral
