#include "online/frm_about.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "online/about_texts.h"
#include "online/dialog_parts.h"
#include "ui/fields.h"

namespace padral {

namespace {

constexpr int TextoAcercaDe = 701;
constexpr int AnchoAcercaDe = 96;  // letters
constexpr int MargenAcercaDe = 18;
constexpr int LineasEmblema = 5;
constexpr double LetraTitulo = 1.3;

}  // namespace

frmAbout::frmAbout(const EstadoCompartido& estado, QWidget* padre) : QDialog(padre) {
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(estado.Texto(TextoAcercaDe));
    const auto texto = [&](const QString& es, const QString& eu) {
        return estado.SegunIdioma(es, eu);
    };
    auto* titulo = Encabezado(QStringLiteral("lblTitle"), this);
    Agrandar(titulo, LetraTitulo);
    titulo->setText(
        texto(QStringLiteral("Declaración Padral."), QStringLiteral("Padral Aitorpena.")));
    const QString version = texto(QStringLiteral("Versión ") + estado.VersionPrograma,
                                  estado.VersionPrograma + QStringLiteral(" bertsioa"));
    auto* cmdOK = BotonRotulado(QStringLiteral("cmdOK"),
                                texto(QStringLiteral("&Aceptar"), QStringLiteral("&Ados")), this);
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    auto* columna = new QVBoxLayout;
    columna->addWidget(titulo);
    columna->addWidget(EtiquetaLarga(QStringLiteral("lblVersion"), version, this));
    columna->addSpacing(MargenAcercaDe / 2);
    columna->addWidget(EtiquetaLarga(QStringLiteral("lblDescription"),
                                     texto(DescripcionCastellano(), DescripcionEuskera()), this));
    columna->addSpacing(MargenAcercaDe / 2);
    columna->addWidget(EtiquetaLarga(QStringLiteral("lblcopy"), LineaCopyright(), this));
    columna->addStretch(1);
    columna->addSpacing(MargenAcercaDe / 2);
    columna->addWidget(cmdOK, 0, Qt::AlignRight);
    auto* fila = new QHBoxLayout(this);
    fila->setContentsMargins(MargenAcercaDe, MargenAcercaDe, MargenAcercaDe, MargenAcercaDe);
    fila->setSpacing(MargenAcercaDe);
    fila->addWidget(DibujoPrograma(LineasEmblema, this), 0, Qt::AlignTop);
    fila->addLayout(columna, 1);
    FijarTamano(this, AnchoAcercaDe);
}

}  // namespace padral
