#include "online/frm_idioma.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>

#include "ui/fields.h"

namespace padral {

FrmIdioma::FrmIdioma(EstadoCompartido& estado, std::function<void()> alElegir, QWidget* padre)
    : QDialog(padre), estado_(estado), alElegir_(std::move(alElegir)) {
    setObjectName(QStringLiteral("FrmIdioma"));
    setWindowTitle(QStringLiteral("Hautatu Hizkuntza/Selección de idioma"));
    auto* marco = new QGroupBox(QStringLiteral("Hizkuntza/Idioma"), this);
    marco->setObjectName(QStringLiteral("frame1"));
    cmdcastellano_ = new QPushButton(QStringLiteral("Castellano"), marco);
    cmdcastellano_->setObjectName(QStringLiteral("cmdcastellano"));
    cmdeuskera_ = new QPushButton(QStringLiteral("Euskera"), marco);
    cmdeuskera_->setObjectName(QStringLiteral("cmdeuskera"));
    auto* botones = new QHBoxLayout(marco);
    botones->setContentsMargins(18, 14, 18, 14);
    for (auto* boton : {cmdeuskera_, cmdcastellano_}) {
        boton->setMinimumSize(150, 40);
        boton->setAutoDefault(false);
        botones->addWidget(boton);
    }
    chkActOnline_ = new QCheckBox(this);
    chkActOnline_->setObjectName(QStringLiteral("chkActOnline"));
    auto* pregunta = new EtiquetaCasilla(QStringLiteral("lblActOnline"), chkActOnline_, this);
    pregunta->setText(QStringLiteral(
        "programa abiatzen den bakoitzean eguneratzerik dagoen jakinaraztea nahi duzu?\n"
        "¿desea que se le informe sobre la existencia de actualizaciones cada vez que se inicie el "
        "programa?"));
    pregunta->setWordWrap(true);
    auto* fila = new QHBoxLayout;
    fila->addWidget(chkActOnline_, 0, Qt::AlignTop);
    fila->addWidget(pregunta, 1);
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(18, 18, 18, 18);
    todo->setSpacing(14);
    todo->addWidget(marco);
    todo->addLayout(fila);
    for (QWidget* control :
         std::initializer_list<QWidget*>{cmdcastellano_, cmdeuskera_, chkActOnline_})
        control->installEventFilter(this);
    connect(cmdcastellano_, &QPushButton::clicked, this, [this] { elegir(QStringLiteral("C")); });
    connect(cmdeuskera_, &QPushButton::clicked, this, [this] { elegir(QStringLiteral("E")); });
    // Ticking the box in code counts as its click: a fresh store goes from -1 to 1 here.
    connect(chkActOnline_, &QCheckBox::toggled, this, &FrmIdioma::guardarAviso);
    chkActOnline_->setChecked(estado_.act.ActOnline > 0 || estado_.act.ActOnline == -1);
}

void FrmIdioma::guardarAviso(bool marcado) {
    estado_.act.ActOnline = marcado ? 1 : 0;
    estado_.act.GuardarActOnline(estado_.RutaBDModificacion);
}

void FrmIdioma::elegir(const QString& letra) {
    estado_.mdi.IDI(letra);
    alElegir_();
    accept();
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

}  // namespace padral
