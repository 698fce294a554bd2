// How section 6 is laid out: a form of two columns, captions and fields. Controls are made in
// reading order, which Tab follows.

#include <QBoxLayout>
#include <QGridLayout>

#include "declaration/screen/frm_apartado6.h"

namespace padral {

namespace {

constexpr int NumeroApartado = 6;

constexpr int TituloPantalla = 55, TextoOtrasCausas = 66;
constexpr int AnchoFecha = 11, AnchoCodigo = 4, AnchoDescripcion = 20;
constexpr int TrasElTitulo = 12, EntreFilas = 10, EntreColumnas = 18;

constexpr auto BotonesAlPie = BotonesHabituales(15);

}  // namespace

frmApartado6::frmApartado6(const Contexto& contexto, cDeclaraciones& declaracion)
    : PantallaApartado(QStringLiteral("frmApartado6"), contexto, declaracion, NumeroApartado),
      apartado_(declaracion.apartado6),
      txtFecha_(new CampoFecha(QStringLiteral("txtFecha"), this)),
      txtCausa_(new CampoTexto(QStringLiteral("txtCausa"), AnchoCodigo, this)),
      cmbDescripcion_(new CajaCombo(QStringLiteral("cmbDescripcion"), AnchoDescripcion + 8, this)),
      txtSinEpigrafe_(new CampoTexto(QStringLiteral("txtSinEpigrafe"), AnchoDescripcion, this)),
      txtInscripcion_(new CampoFecha(QStringLiteral("txtInscripcion"), this)) {
    BloquearCampo(txtCausa_);
    txtFecha_->setFixedWidth(AnchoDe(txtFecha_, AnchoFecha));
    txtCausa_->setFixedWidth(AnchoDe(txtCausa_, AnchoCodigo));
    txtInscripcion_->setFixedWidth(AnchoDe(txtInscripcion_, AnchoFecha));
    auto* todo = new QVBoxLayout(this);
    auto* titulo = Encabezado(QStringLiteral("lblTituloPantalla"), this);
    etiquetas_.emplace_back(titulo, TituloPantalla);
    todo->addWidget(titulo);
    todo->addSpacing(TrasElTitulo);
    auto* rejilla = new QGridLayout;
    rejilla->setVerticalSpacing(EntreFilas);
    rejilla->setHorizontalSpacing(EntreColumnas);
    rejilla->setColumnStretch(2, 1);
    rotular(rejilla, u"Label3", 56, txtFecha_);
    rotular(rejilla, u"Label2", 57, txtCausa_);
    rotular(rejilla, u"Label1", 58, cmbDescripcion_);
    rejilla->addWidget(txtSinEpigrafe_, rejilla->rowCount(), 1);
    rotular(rejilla, u"lbl4", 764, txtInscripcion_);
    todo->addLayout(rejilla);
    todo->addStretch(1);
    todo->addWidget(crearBotones(BotonesAlPie));
    conectarCampos();
}

/// The next row of the form.
void frmApartado6::rotular(QGridLayout* rejilla, const char16_t* nombre, int texto,
                           QWidget* campo) {
    const int fila = rejilla->rowCount();
    auto* etiqueta = Etiqueta(QString::fromUtf16(nombre), this);
    etiqueta->setBuddy(campo);
    etiquetas_.emplace_back(etiqueta, texto);
    rejilla->addWidget(etiqueta, fila, 0);
    // Those of a fixed width stand at the left.
    const bool fijo = campo->maximumWidth() < QWIDGETSIZE_MAX;
    rejilla->addWidget(campo, fila, 1, fijo ? Qt::AlignLeft : Qt::Alignment());
}

void frmApartado6::Anadir_captions() {
    setWindowTitle(Texto(TituloPantalla));
    for (const auto& [etiqueta, id] : etiquetas_) {
        etiqueta->setText(Texto(id));
        if (etiqueta->buddy()) etiqueta->buddy()->setAccessibleName(Texto(id));
    }
    txtSinEpigrafe_->setAccessibleName(Texto(TextoOtrasCausas));
    for (auto* campo : {txtFecha_, txtInscripcion_}) campo->PonerMascara(Texto(650), Texto(651));
    botones_->Anadir_captions(estado_);
}

}  // namespace padral
