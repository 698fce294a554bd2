#include "online/frm_sin_conexion.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QStyle>

#include "online/dialog_parts.h"

namespace padral {

namespace {

constexpr int AnchoSinConexion = 74;  // letters
constexpr int MargenSinConexion = 18, SeparacionAvisos = 10;
constexpr qint16 NoHayConexion = 1;

struct AvisoSinConexion {
    int titulo;
    int texto;
};
constexpr AvisoSinConexion FalloConexion{823, 820};
constexpr AvisoSinConexion DatosErroneos{824, 822};

}  // namespace

FrmSinConexion::FrmSinConexion(const Contexto& contexto, QWidget* padre)
    : QDialog(padre, Qt::Dialog | Qt::WindowStaysOnTopHint), estado_(contexto.estado) {
    contexto.pantallas.CursorEspera(false);
    setObjectName(QStringLiteral("FrmSinConexion"));
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(MargenSinConexion, MargenSinConexion, MargenSinConexion,
                             MargenSinConexion);
    todo->setSpacing(MargenSinConexion);
    todo->addWidget(crearAviso());
    todo->addWidget(crearPie());
    FijarTamano(this, AnchoSinConexion);
}

QWidget* FrmSinConexion::crearAviso() {
    const auto& aviso = estado_.act.SitAct == NoHayConexion ? FalloConexion : DatosErroneos;
    const auto castellano = [&](int id) { return estado_.textos.Texto(id); };
    const auto euskera = [&](int id) {
        return estado_.textos.Texto(id + CatalogoTextos::DesplazamientoEuskera);
    };
    setWindowTitle(castellano(aviso.titulo) + QStringLiteral(" / ") + euskera(aviso.titulo));
    auto* bloque = new QWidget(this);
    auto* icono = new QLabel(bloque);
    const int lado = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
    icono->setPixmap(style()
                         ->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this)
                         .pixmap(QSize(lado, lado), devicePixelRatioF()));
    auto* columna = new QVBoxLayout;
    columna->setSpacing(SeparacionAvisos);
    columna->addWidget(
        EtiquetaLarga(QStringLiteral("lblTituloC"), castellano(aviso.texto), bloque));
    columna->addWidget(EtiquetaLarga(QStringLiteral("lblTituloE"), euskera(aviso.texto), bloque));
    columna->addStretch(1);
    auto* fila = new QHBoxLayout(bloque);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->setSpacing(MargenSinConexion);
    fila->addWidget(icono, 0, Qt::AlignTop);
    fila->addLayout(columna, 1);
    return bloque;
}

QWidget* FrmSinConexion::crearPie() {
    auto* pie = new QWidget(this);
    auto* chkNoPreg =
        new QCheckBox(QStringLiteral("Berriro kontsulta ez egin / No volver a consultar"), pie);
    chkNoPreg->setObjectName(QStringLiteral("ChkNoPreg"));
    chkNoPreg->setChecked(estado_.act.ActOnline == 0);
    connect(chkNoPreg, &QCheckBox::toggled, this, &FrmSinConexion::guardarAviso);
    auto* cmdContinuar = BotonRotulado(QStringLiteral("CmdContinuar"),
                                       QStringLiteral("Aurrera jarraitu... Continuar..."), pie);
    cmdContinuar->setDefault(true);
    connect(cmdContinuar, &QPushButton::clicked, this, &QDialog::reject);
    cmdContinuar->setFocus();
    auto* fila = new QHBoxLayout(pie);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->setSpacing(MargenSinConexion);
    fila->addWidget(chkNoPreg);
    fila->addStretch(1);
    fila->addWidget(cmdContinuar);
    return pie;
}

void FrmSinConexion::guardarAviso(bool noPreguntar) {
    estado_.act.ActOnline = noPreguntar ? 0 : 1;
    estado_.act.GuardarActOnline(estado_.RutaBDModificacion);
}

void FrmSinConexion::showEvent(QShowEvent* evento) {
    QDialog::showEvent(evento);
    QRect marco = frameGeometry();
    marco.moveCenter(screen()->availableGeometry().center());
    move(marco.topLeft());
}

}  // namespace padral
