#include "online/frm_about.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "online/about_texts.h"
#include "ui/art.h"
#include "ui/fields.h"

namespace padral {

namespace {

constexpr int TextoAcercaDe = 701;
constexpr int LadoEmblema = 72;

}  // namespace

frmAbout::frmAbout(const EstadoCompartido& estado, QWidget* padre) : QDialog(padre) {
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(estado.Texto(TextoAcercaDe));
    const auto texto = [&](const QString& es, const QString& eu) {
        return estado.SegunIdioma(es, eu);
    };
    auto* dibujo = new QLabel(this);
    dibujo->setPixmap(Dibujo(QStringLiteral("program")).pixmap(LadoEmblema, LadoEmblema));
    auto* titulo = Encabezado(QStringLiteral("lblTitle"), this);
    titulo->setText(
        texto(QStringLiteral("Declaración Padral."), QStringLiteral("Padral Aitorpena.")));
    auto* version = Etiqueta(QStringLiteral("lblVersion"), this);
    version->setText(texto(QStringLiteral("Versión ") + estado.VersionPrograma,
                           estado.VersionPrograma + QStringLiteral(" bertsioa")));
    auto* descripcion = Etiqueta(QStringLiteral("lblDescription"), this);
    descripcion->setText(texto(DescripcionCastellano(), DescripcionEuskera()));
    descripcion->setWordWrap(true);
    descripcion->setMinimumWidth(420);
    auto* copy = Etiqueta(QStringLiteral("lblcopy"), this);
    copy->setText(LineaCopyright());
    auto* cmdOK = new QPushButton(texto(QStringLiteral("&Aceptar"), QStringLiteral("&Ados")), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    auto* columna = new QVBoxLayout;
    for (QWidget* w : {titulo, version, descripcion, copy}) columna->addWidget(w);
    columna->addStretch(1);
    columna->addSpacing(8);
    columna->addWidget(cmdOK, 0, Qt::AlignRight);
    auto* fila = new QHBoxLayout(this);
    fila->setContentsMargins(18, 18, 18, 18);
    fila->setSpacing(18);
    fila->addWidget(dibujo, 0, Qt::AlignTop);
    fila->addLayout(columna);
}

}  // namespace padral
