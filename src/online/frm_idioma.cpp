#include "online/frm_idioma.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>

#include "online/dialog_parts.h"
#include "ui/fields.h"

namespace padral {

namespace {

constexpr int AnchoIdioma = 72;     // letters
constexpr int PausaResultado = 50;  // milliseconds
constexpr int MargenIdioma = 18, SeparacionIdioma = 14, AltoBotonIdioma = 40;

}  // namespace

FrmIdioma::FrmIdioma(EstadoCompartido& estado, std::function<void()> alCambiarIdioma,
                     QWidget* padre, OrdenesVersion ordenes)
    : QDialog(padre),
      estado_(estado),
      alCambiarIdioma_(std::move(alCambiarIdioma)),
      ordenes_(std::move(ordenes)) {
    setObjectName(QStringLiteral("FrmIdioma"));
    setWindowTitle(QStringLiteral("Hautatu Hizkuntza/Selección de idioma"));
    crearMarco();
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(MargenIdioma, MargenIdioma, MargenIdioma, MargenIdioma);
    todo->setSpacing(SeparacionIdioma);
    todo->addWidget(frame1_);
    todo->addWidget(crearPregunta());
    for (QWidget* control :
         std::initializer_list<QWidget*>{cmdcastellano_, cmdeuskera_, chkActOnline_})
        control->installEventFilter(this);
    connect(cmdcastellano_, &QPushButton::clicked, this,
            [this] { elegir(QStringLiteral("C"), true); });
    connect(cmdeuskera_, &QPushButton::clicked, this,
            [this] { elegir(QStringLiteral("E"), false); });
    // Ticking the box in code counts as its click: a fresh store goes from -1 to 1 here.
    connect(chkActOnline_, &QCheckBox::toggled, this, &FrmIdioma::guardarAviso);
    chkActOnline_->setChecked(estado_.act.ActOnline > 0 || estado_.act.ActOnline == -1);
    FijarTamano(this, AnchoIdioma);
}

void FrmIdioma::crearMarco() {
    frame1_ = new QGroupBox(QStringLiteral("Hizkuntza/Idioma"), this);
    frame1_->setObjectName(QStringLiteral("frame1"));
    cmdeuskera_ = BotonRotulado(QStringLiteral("cmdeuskera"), QStringLiteral("Euskera"), frame1_);
    cmdcastellano_ =
        BotonRotulado(QStringLiteral("cmdcastellano"), QStringLiteral("Castellano"), frame1_);
    auto* botones = new QHBoxLayout(frame1_);
    botones->setContentsMargins(MargenIdioma, SeparacionIdioma, MargenIdioma, SeparacionIdioma);
    botones->setSpacing(SeparacionIdioma);
    for (auto* boton : {cmdeuskera_, cmdcastellano_}) {
        boton->setMinimumHeight(AltoBotonIdioma);
        boton->setAutoDefault(false);
        botones->addWidget(boton);
    }
}

QWidget* FrmIdioma::crearPregunta() {
    auto* bloque = new QWidget(this);
    chkActOnline_ = new QCheckBox(bloque);
    chkActOnline_->setObjectName(QStringLiteral("chkActOnline"));
    // A check box wraps no words: its caption stands beside it.
    lblActOnline_ = new EtiquetaCasilla(QStringLiteral("lblActOnline"), chkActOnline_, bloque);
    lblActOnline_->setText(QStringLiteral(
        "programa abiatzen den bakoitzean eguneratzerik dagoen jakinaraztea nahi duzu?\n"
        "¿desea que se le informe sobre la existencia de actualizaciones cada vez que se inicie el "
        "programa?"));
    lblActOnline_->setWordWrap(true);
    // It takes the place of the question.
    lblAct_ = Etiqueta(QStringLiteral("lblAct"), bloque);
    lblAct_->setText(QStringLiteral("Buscando actualización ..."));
    lblAct_->setVisible(false);
    auto* fila = new QHBoxLayout;
    fila->addWidget(chkActOnline_, 0, Qt::AlignTop);
    fila->addWidget(lblActOnline_, 1);
    auto* rejilla = new QGridLayout(bloque);
    rejilla->setContentsMargins(0, 0, 0, 0);
    rejilla->addLayout(fila, 0, 0);
    rejilla->addWidget(lblAct_, 0, 0, Qt::AlignTop);
    return bloque;
}

void FrmIdioma::guardarAviso(bool marcado) {
    estado_.act.ActOnline = marcado ? 1 : 0;
    estado_.act.GuardarActOnline(estado_.RutaBDModificacion);
}

void FrmIdioma::elegir(const QString& letra, bool esperarResultado) {
    estado_.mdi.IDI(letra);
    alCambiarIdioma_();
    // The load has decided already, so that the first check comes with the next start.
    if (estado_.act.ActOnline == -1) comprobar(esperarResultado);
    accept();
}

void FrmIdioma::comprobar(bool esperarResultado) {
    const QScopedValueRollback<bool> ocupado(comprobando_, true);
    for (QWidget* w : std::initializer_list<QWidget*>{chkActOnline_, lblActOnline_})
        w->setVisible(false);
    lblAct_->setVisible(true);
    // One choice at a time: the check yields.
    frame1_->setEnabled(false);
    ordenes_.comprobarVersion();
    // A check that failed before it began leaves 0, and then this never ends.
    while (esperarResultado && estado_.act.SitAct == 0) estado_.reloj.Esperar(PausaResultado);
}

void FrmIdioma::showEvent(QShowEvent* evento) {
    QDialog::showEvent(evento);
    const bool castellano = estado_.mdi.IDI() == QStringLiteral("C");
    (castellano ? cmdcastellano_ : cmdeuskera_)->setFocus();
}

bool FrmIdioma::eventFilter(QObject*, QEvent* evento) {
    if (evento->type() != QEvent::KeyPress) return false;
    const int tecla = static_cast<QKeyEvent*>(evento)->key();
    if (tecla != Qt::Key_Return && tecla != Qt::Key_Enter) return false;
    // Before the control sees it: on some desktops Enter presses buttons and ticks boxes.
    focusNextChild();
    return true;
}

void FrmIdioma::keyPressEvent(QKeyEvent* evento) {
    // There is nothing to cancel here: a language has to be chosen.
    if (evento->key() != Qt::Key_Escape) QDialog::keyPressEvent(evento);
}

void FrmIdioma::reject() {
    // The check comes back to this window.
    if (!comprobando_) QDialog::reject();
}

}  // namespace padral
