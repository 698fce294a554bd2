// The boxes of the general data screen: type, request, sections, signature.

#include <QTabBar>

#include "declaration/screen/frm_dat_gen.h"

namespace padral {

namespace {

constexpr int TituloError = 449;

}  // namespace

void FrmDatGen::conectarCasillas() {
    const auto casilla = [this](QCheckBox* caja, auto pulsar) {
        guardia_.Orden(
            caja, [caja, pulsar] { pulsar(caja->isChecked()); }, [this] { presentarCasillas(); });
    };
    for (std::size_t i = 0; i < tipos_.size(); ++i)
        casilla(tipos_[i], [this, i](bool marcada) { pulsarTipo(CasillasTipo()[i], marcada); });
    for (std::size_t i = 0; i < solicitudes_.size(); ++i)
        casilla(solicitudes_[i],
                [this, i](bool marcada) { pulsarSolicitud(CasillasSolicitud()[i], marcada); });
    for (std::size_t i = 0; i < apartados_.size(); ++i)
        casilla(apartados_[i],
                [this, i](bool marcada) { pulsarApartado(static_cast<Apartado>(i), marcada); });
    guardia_.Orden(
        chkElMismo_, [this] { pulsarElMismo(chkElMismo_->isChecked()); },
        [this] { presentarFirma(); });
    connect(pestana_, &QTabBar::currentChanged, this, [this](int pestana) {
        presentarPestana(pestana);
        enfocar(pestana == 0 ? QStringLiteral("chkPorComienzo") : QStringLiteral("txtDNIAnterior"));
    });
}

void FrmDatGen::presentarCasillas() {
    for (std::size_t i = 0; i < tipos_.size(); ++i)
        tipos_[i]->setChecked(general_.Causa1 == CasillasTipo()[i].letra);
    for (std::size_t i = 0; i < solicitudes_.size(); ++i)
        solicitudes_[i]->setChecked(general_.Causa2 == CasillasSolicitud()[i].letra);
    for (std::size_t i = 0; i < apartados_.size(); ++i) {
        const auto& fila = CasillasApartado()[i];
        apartados_[i]->setChecked(Marcado(general_.*fila.bandera));
        apartados_[i]->setEnabled(fila.habilitada(declaracion_, general_.Causa1));
    }
}

void FrmDatGen::pulsarTipo(const CasillaTipo& tipo, bool marcada) {
    const auto pregunta =
        marcada ? PreguntaMarcarTipo(declaracion_, tipo.letra) : PreguntaQuitarTipo(declaracion_);
    if (pregunta && !estado_.Preguntar(pregunta->texto, pregunta->titulo)) {
        presentarCasillas();
        return;
    }
    if (marcada)
        MarcarTipo(declaracion_, tipo.letra);
    else
        QuitarTipo(declaracion_);
    cambiado();
}

void FrmDatGen::pulsarSolicitud(const CasillaSolicitud& solicitud, bool marcada) {
    const QString prohibidas = QString::fromUtf16(solicitud.prohibidas);
    const QString& tipo = general_.Causa1;
    if (marcada && !tipo.isEmpty() && prohibidas.contains(tipo)) {
        estado_.Avisar(solicitud.mensaje, TituloError);
        presentarCasillas();
        return;
    }
    general_.Causa2 = marcada ? QString(solicitud.letra) : QString();
    cambiado();
}

void FrmDatGen::pulsarApartado(Apartado apartado, bool marcada) {
    const auto& fila = CasillaDe(apartado);
    if (marcada) {
        general_.*fila.bandera = QStringLiteral("X");
        cambiado();
        return;
    }
    if (!fila.lleno(declaracion_)) {
        (general_.*fila.bandera).clear();
        cambiado();
        return;
    }
    if (estado_.Preguntar(fila.pregunta, fila.tituloPregunta)) {
        BorrarApartado(declaracion_, apartado);
        cambiado();
    } else {
        presentarCasillas();
    }
}

void FrmDatGen::pulsarElMismo(bool marcada) {
    general_.DNIRepresentante.clear();
    general_.NombreRepresentante.clear();
    general_.FirmaEnCalidadDe = marcada ? FirmaElMismo : QString();
    general_.ElMismo = marcada ? QStringLiteral("X") : QString();
    cambiado();
}

}  // namespace padral
