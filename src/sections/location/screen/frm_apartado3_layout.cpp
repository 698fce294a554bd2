// How section 3 is laid out: the taxpayer on the left, the ways to reach him on the right. Controls
// are made in reading order, which Tab follows.

#include <QBoxLayout>
#include <QButtonGroup>
#include <QFrame>
#include <QGridLayout>
#include <QRadioButton>

#include "sections/location/screen/frm_apartado3.h"
#include "sections/location/screen/frm_apartado3_tables.h"

namespace padral {

namespace {

constexpr int NumeroApartado = 3;

constexpr int TituloApartado3 = 136;
constexpr int AnchoCodigo = 7;
constexpr int AnchoSinEpigrafe = 30;
constexpr int AnchoForma = 20;
constexpr int AnchoAnagrama = 20;

bool deAnchoFijo(const QWidget* campo) { return campo->maximumWidth() < QWIDGETSIZE_MAX; }

}  // namespace

FrmApartado3::FrmApartado3(const Contexto& contexto, cDeclaraciones& declaracion, Edicion edicion)
    : PantallaApartado(edicion == Edicion::Hasta2014 ? QStringLiteral("FrmApartado3")
                                                     : QStringLiteral("FrmApartado3_2015"),
                       contexto, declaracion, NumeroApartado),
      apartado_(declaracion.apartado3),
      edicion_(edicion),
      grupoResidente_(new QButtonGroup(this)) {
    auto* todo = new QVBoxLayout(this);
    auto* titulo = Encabezado(QStringLiteral("lblTituloPantalla"), this);
    etiquetas_.emplace_back(titulo, TituloApartado3);
    todo->addWidget(titulo);
    auto* columnas = new QHBoxLayout;
    auto* izquierda = new QVBoxLayout;
    izquierda->addWidget(crearResidencia());
    izquierda->addWidget(crearActividad());
    izquierda->addWidget(crearForma());
    izquierda->addStretch(1);
    columnas->addLayout(izquierda, 1);
    columnas->addWidget(crearAdicionales(), 1);
    todo->addLayout(columnas);
    todo->addStretch(1);
    todo->addWidget(crearBotones(apartado3::BotonesAlPie));
    conectarCampos();
    conectarActividad();
    conectarCasillas();
}

QLabel* FrmApartado3::etiquetaDe(const char16_t* nombre, int texto, QWidget* campo) {
    auto* etiqueta = Etiqueta(QString::fromUtf16(nombre), campo->parentWidget());
    etiqueta->setBuddy(campo);
    // Those of narrow fields are short and stand in one line.
    etiqueta->setWordWrap(!deAnchoFijo(campo));
    etiquetas_.emplace_back(etiqueta, texto);
    return etiqueta;
}

/// The next column of a row: a caption above its field. Narrow fields keep their width.
void FrmApartado3::rotular(QGridLayout* fila, const char16_t* nombre, int texto, QWidget* campo) {
    const int columna = fila->count() / 2;
    fila->setVerticalSpacing(2);
    fila->addWidget(etiquetaDe(nombre, texto, campo), 0, columna, Qt::AlignBottom);
    fila->addWidget(campo, 1, columna, deAnchoFijo(campo) ? Qt::AlignLeft : Qt::Alignment());
    fila->setColumnStretch(columna, deAnchoFijo(campo) ? 0 : 1);
}

QCheckBox* FrmApartado3::casilla(const char16_t* nombre, QWidget* padre) {
    auto* caja = new QCheckBox(padre);
    caja->setObjectName(QString::fromUtf16(nombre));
    return caja;
}

/// A box with a caption that may take several lines.
QBoxLayout* FrmApartado3::casillaRotulada(QCheckBox* caja, const char16_t* nombre, int texto) {
    auto* etiqueta = new EtiquetaCasilla(QString::fromUtf16(nombre), caja, caja->parentWidget());
    etiqueta->setWordWrap(true);
    etiquetas_.emplace_back(etiqueta, texto);
    auto* fila = new QHBoxLayout;
    caja->setMinimumHeight(etiqueta->fontMetrics().lineSpacing());
    fila->addWidget(caja, 0, Qt::AlignTop);
    fila->addWidget(etiqueta, 1);
    return fila;
}

QBoxLayout* FrmApartado3::filaOpciones() {
    static constexpr struct {
        const char16_t *opcion, *etiqueta;
        int texto;
    } Opciones[] = {{u"optResidente(0)", u"lblSi", 137}, {u"optResidente(1)", u"lblNo", 138}};
    auto* fila = new QHBoxLayout;
    for (std::size_t i = 0; i < optResidente_.size(); ++i) {
        optResidente_[i] = new QRadioButton(this);
        optResidente_[i]->setObjectName(QString::fromUtf16(Opciones[i].opcion));
        grupoResidente_->addButton(optResidente_[i]);
        lblOpcion_[i] =
            new EtiquetaCasilla(QString::fromUtf16(Opciones[i].etiqueta), optResidente_[i], this);
        // Room for the colour that shows where the focus is.
        lblOpcion_[i]->setMargin(3);
        etiquetas_.emplace_back(lblOpcion_[i], Opciones[i].texto);
        fila->addWidget(optResidente_[i]);
        fila->addWidget(lblOpcion_[i]);
        fila->addSpacing(10);
    }
    return fila;
}

QWidget* FrmApartado3::crearResidencia() {
    auto* marco = Panel(this);
    auto* rejilla = new QGridLayout(marco);
    auto* opciones = filaOpciones();
    rejilla->addWidget(etiquetaDe(u"lblResidente", 139, optResidente_[0]), 0, 0);
    rejilla->addLayout(opciones, 0, 1, Qt::AlignLeft);
    numPorcenIVA_ = new CajaNum(QStringLiteral("numPorcenIVA"), 3, QStringLiteral("###"), marco);
    rejilla->addWidget(etiquetaDe(u"lblPorcenIVA", 149, numPorcenIVA_), 1, 0);
    numPorcenIVA_->setFixedWidth(AnchoDe(numPorcenIVA_, 5));
    rejilla->addWidget(numPorcenIVA_, 1, 1, Qt::AlignLeft);
    rejilla->setColumnStretch(0, 1);
    return marco;
}

QWidget* FrmApartado3::crearActividad() {
    auto* marco = Panel(this);
    auto* caja = new QVBoxLayout(marco);
    mskFechaInicio_ = new CampoFecha(QStringLiteral("mskFechaInicio"), marco);
    txtDescripcionActividad_ =
        new CampoTexto(QStringLiteral("txtDescripcionActividad"), AnchoCodigo, marco);
    cmbEpigrafe_ = new CajaCombo(QStringLiteral("cmbEpigrafe"), 12, marco);
    txtSinEpigrafe_ = new CampoTexto(QStringLiteral("txtSinEpigrafe"), AnchoSinEpigrafe, marco);
    mskFechaInicio_->setFixedWidth(AnchoDe(mskFechaInicio_, 11));
    txtDescripcionActividad_->setFixedWidth(AnchoDe(txtDescripcionActividad_, AnchoCodigo + 2));
    auto* arriba = new QGridLayout;
    rotular(arriba, u"lblFechaInicio", 148, mskFechaInicio_);
    rotular(arriba, u"lblEpigrafe", 146, txtDescripcionActividad_);
    rotular(arriba, u"lblDescripcionActividad", 147, cmbEpigrafe_);
    caja->addLayout(arriba);
    auto* libre = new QGridLayout;
    rotular(libre, u"lblactivecon", 697, txtSinEpigrafe_);
    caja->addLayout(libre);
    if (edicion_ == Edicion::Desde2015) {
        chkActVenMov_ = casilla(u"chkActVenMov", marco);
        caja->addLayout(casillaRotulada(chkActVenMov_, u"lblActRevMov", 880));
    }
    return marco;
}

QWidget* FrmApartado3::crearForma() {
    auto* marco = Panel(this);
    auto* caja = new QVBoxLayout(marco);
    numFormaJuridica_ =
        new CajaNum(QStringLiteral("numFormaJuridica"), 2, QStringLiteral("##"), marco);
    BloquearCampo(numFormaJuridica_);
    numFormaJuridica_->setFixedWidth(AnchoDe(numFormaJuridica_, 4));
    cmbDescFormaJuridica_ = new CajaCombo(QStringLiteral("cmbDescFormaJuridica"), 12, marco);
    txtOtros_ = new CampoTexto(QStringLiteral("txtOtros"), AnchoForma, marco);
    auto* forma = new QGridLayout;
    rotular(forma, u"lblFormaJuridica", 143, numFormaJuridica_);
    rotular(forma, u"lblDescFormaJuridica", 142, cmbDescFormaJuridica_);
    // Only one of both is there.
    forma->addWidget(txtOtros_, 1, 1);
    txtAnagrama_ = new CampoTexto(QStringLiteral("txtAnagrama"), AnchoAnagrama, marco);
    mskFechaCierre_ = new CampoFecha(QStringLiteral("mskFechaCierre"), marco);
    mskFechaCierre_->setFixedWidth(AnchoDe(mskFechaCierre_, 7));
    chkSocPat_ = casilla(u"chkSocPat", marco);
    auto* resto = new QGridLayout;
    rotular(resto, u"lblAnagrama", 141, txtAnagrama_);
    rotular(resto, u"lblFechaCierre", 140, mskFechaCierre_);
    caja->addLayout(forma);
    caja->addLayout(resto);
    caja->addLayout(casillaRotulada(chkSocPat_, u"lblSocPat", 841));
    return marco;
}

}  // namespace padral
