#include "online/frm_preferencias.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>

#include "online/dialog_parts.h"
#include "ui/fields.h"

namespace padral {

namespace {

constexpr int TituloPreferencias = 814;
constexpr int AnchoPreferencias = 52;  // letters
constexpr int MargenPreferencias = 18, SangriaPreferencias = 16, SeparacionPreferencias = 8;

/// Lays controls side by side under their heading.
QLayout* bajoTitulo(std::initializer_list<QWidget*> controles) {
    auto* fila = new QHBoxLayout;
    fila->setContentsMargins(SangriaPreferencias, 0, 0, 0);
    fila->setSpacing(2 * MargenPreferencias);
    for (QWidget* control : controles) fila->addWidget(control);
    fila->addStretch(1);
    return fila;
}

template <class Control>
Control* llamado(Control* control, const QString& nombre) {
    control->setObjectName(nombre);
    return control;
}

}  // namespace

frmPreferencias::frmPreferencias(const Contexto& contexto, std::function<void()> alCambiarIdioma,
                                 OrdenesVersion ordenes, QWidget* padre)
    : QDialog(padre),
      estado_(contexto.estado),
      pantallas_(contexto.pantallas),
      alCambiarIdioma_(std::move(alCambiarIdioma)),
      ordenes_(std::move(ordenes)) {
    setObjectName(QStringLiteral("frmPreferencias"));
    crear();
    connect(optEusk_, &QRadioButton::toggled, this, [this](bool puesto) {
        if (puesto) pendiente_ = QStringLiteral("E");
    });
    connect(optCast_, &QRadioButton::toggled, this, [this](bool puesto) {
        if (puesto) pendiente_ = QStringLiteral("C");
    });
    // The access key of the heading leads to the option that is on, as Tab does.
    for (auto* opcion : {optEusk_, optCast_})
        connect(opcion, &QRadioButton::toggled, this, [this, opcion](bool puesto) {
            if (puesto) lblIdioma_->setBuddy(opcion);
        });
    connect(lblActAhora_, &QPushButton::clicked, this, &frmPreferencias::comprobarAhora);
    connect(cmdAceptar_, &QPushButton::clicked, this, &frmPreferencias::aceptar);
    connect(cmdCancelar_, &QPushButton::clicked, this, &frmPreferencias::reject);
    presentar();
}

void frmPreferencias::crear() {
    lblIdioma_ = Encabezado(QStringLiteral("lblIdioma"), this);
    optEusk_ =
        llamado(new QRadioButton(QStringLiteral("Euskera"), this), QStringLiteral("optEusk"));
    optCast_ =
        llamado(new QRadioButton(QStringLiteral("Castellano"), this), QStringLiteral("optCast"));
    lblActualizaciones_ = Encabezado(QStringLiteral("lblActualizaciones"), this);
    chkActOnline_ = llamado(new QCheckBox(this), QStringLiteral("chkActOnline"));
    // A label that acts is a button here: the keyboard has to reach it.
    lblActAhora_ = BotonRotulado(QStringLiteral("lblActAhora"), QString(), this);
    cmdAceptar_ = BotonRotulado(QStringLiteral("cmdAceptar"), QString(), this);
    cmdAceptar_->setDefault(true);
    cmdCancelar_ = BotonRotulado(QStringLiteral("cmdCancelar"), QString(), this);
    auto* botones = new QHBoxLayout;
    botones->addStretch(1);
    botones->addWidget(cmdAceptar_);
    botones->addWidget(cmdCancelar_);
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(MargenPreferencias, MargenPreferencias, MargenPreferencias,
                             MargenPreferencias);
    todo->setSpacing(SeparacionPreferencias);
    todo->addWidget(lblIdioma_);
    todo->addLayout(bajoTitulo({optEusk_, optCast_}));
    todo->addSpacing(MargenPreferencias);
    todo->addWidget(lblActualizaciones_);
    todo->addLayout(bajoTitulo({chkActOnline_}));
    todo->addLayout(bajoTitulo({lblActAhora_}));
    todo->addSpacing(MargenPreferencias);
    todo->addLayout(botones);
}

void frmPreferencias::Anadir_captions() {
    setWindowTitle(estado_.Texto(TituloPreferencias));
    Rotular(lblActAhora_, estado_.Texto(817));
    chkActOnline_->setText(estado_.Texto(818));
    lblActualizaciones_->setText(estado_.Texto(819));
    lblIdioma_->setText(estado_.Texto(632));
    Rotular(cmdAceptar_, estado_.Texto(346));
    Rotular(cmdCancelar_, estado_.Texto(14));
    FijarTamano(this, AnchoPreferencias);
}

// Putting an option counts as its click: the pending letter follows.
void frmPreferencias::presentar() {
    chkActOnline_->setChecked(estado_.act.ActOnline == 1);
    (estado_.mdi.IDI() == QStringLiteral("C") ? optCast_ : optEusk_)->setChecked(true);
}

void frmPreferencias::activar() {
    presentar();
    Anadir_captions();
}

void frmPreferencias::showEvent(QShowEvent* evento) {
    activar();
    QDialog::showEvent(evento);
    (optCast_->isChecked() ? optCast_ : optEusk_)->setFocus();
}

bool frmPreferencias::event(QEvent* evento) {
    const bool hecho = QDialog::event(evento);
    // To come back from a dialog of the version check is an activation: what was stored there
    // shows. To come back from another program is none.
    if (evento->type() == QEvent::WindowUnblocked && isVisible()) activar();
    return hecho;
}

void frmPreferencias::comprobarAhora() {
    const QScopedValueRollback<bool> ocupado(comprobando_, true);
    const Espera espera(pantallas_);
    ordenes_.comprobarVersion();
}

void frmPreferencias::aceptar() {
    estado_.act.ActOnline = chkActOnline_->isChecked() ? 1 : 0;
    estado_.act.GuardarActOnline(estado_.RutaBDModificacion);
    estado_.mdi.IDI(pendiente_);
    alCambiarIdioma_();
    accept();
}

void frmPreferencias::reject() {
    // The check comes back to this window.
    if (!comprobando_) QDialog::reject();
}

}  // namespace padral
