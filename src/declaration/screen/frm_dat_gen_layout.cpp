// How the general data screen is laid out, and its captions.

#include <QBoxLayout>
#include <QFrame>
#include <QGridLayout>
#include <QStackedWidget>

#include "declaration/screen/frm_dat_gen.h"

namespace padral {

namespace {

constexpr int AnchoNif = 9;
constexpr int AnchoNombre = 40;
constexpr int AnchoReferencia = 10;

/// Text ids of captions that are no rows of a table.
enum : int {
    TituloPantalla = 392,
    TextoFirma = 430,
    TextoApartados = 439,
    TextoNumero = 401,
    TextoTarjeta = 400,
};

/// A caption above its field.
QBoxLayout* columna(QLabel* etiqueta, QWidget* campo) {
    auto* caja = new QVBoxLayout;
    caja->setSpacing(2);
    caja->addWidget(etiqueta);
    caja->addWidget(campo);
    return caja;
}

}  // namespace

CampoTexto* FrmDatGen::texto(const QString& nombre, int ancho) {
    return new CampoTexto(nombre, ancho, this);
}

CampoFecha* FrmDatGen::fecha(const QString& nombre) {
    auto* campo = new CampoFecha(nombre, this);
    campo->setMinimumWidth(AnchoDe(campo, 11));
    return campo;
}

QLabel* FrmDatGen::etiquetaDe(const QString& nombre, QWidget* campo) {
    auto* etiqueta = Etiqueta(nombre, this);
    etiqueta->setBuddy(campo);
    return etiqueta;
}

FrmDatGen::FrmDatGen(const Contexto& contexto, cDeclaraciones& declaracion, cDecLista& lista)
    : Pantalla(QStringLiteral("FrmDatGen"), contexto),
      declaracion_(declaracion),
      general_(declaracion.general),
      lista_(lista) {
    auto* todo = new QVBoxLayout(this);
    titulo_ = Encabezado(QStringLiteral("lblTituloPantalla"), this);
    etiquetas_.emplace_back(titulo_, TituloPantalla);
    todo->addWidget(titulo_);
    todo->addWidget(crearIdentificacion());
    auto* medio = new QHBoxLayout;
    medio->addWidget(crearTipos());
    medio->addWidget(crearPestana(), 1);
    medio->addWidget(crearApartados());
    todo->addLayout(medio);
    todo->addWidget(crearFirma());
    todo->addStretch(1);
    todo->addWidget(crearBotones());
    conectarCampos();
    conectarCasillas();
    conectarBotones();
}

QWidget* FrmDatGen::crearIdentificacion() {
    auto* marco = Panel(this);
    auto* fila = new QHBoxLayout(marco);
    txtDNI_ = texto(QStringLiteral("txtDNI"), AnchoNif);
    txtDNI_->setMinimumWidth(AnchoDe(txtDNI_, AnchoNif + 2));
    txtNombre_ = texto(QStringLiteral("txtNombre"), AnchoNombre);
    txtNumeroArchivo_ = texto(QStringLiteral("txtNumeroArchivo"), AnchoReferencia);
    txtNumeroArchivo_->setMinimumWidth(AnchoDe(txtNumeroArchivo_, AnchoReferencia + 4));
    mskFechaDeclaracion_ = fecha(QStringLiteral("mskFechaDeclaracion"));
    const auto anadir = [&](const char16_t* nombre, QWidget* campo, int id, int estira) {
        auto* etiqueta = etiquetaDe(QString::fromUtf16(nombre), campo);
        etiquetas_.emplace_back(etiqueta, id);
        fila->addLayout(columna(etiqueta, campo), estira);
    };
    anadir(u"lblDNI", txtDNI_, 355, 1);
    anadir(u"lblNombre", txtNombre_, 428, 6);
    anadir(u"lblNumeroArchivo", txtNumeroArchivo_, 447, 1);
    anadir(u"lblFechaDeclaracion", mskFechaDeclaracion_, 446, 1);
    return marco;
}

QWidget* FrmDatGen::crearTipos() {
    auto* marco = Panel(this);
    auto* caja = new QVBoxLayout(marco);
    auto* grupo = Encabezado(QStringLiteral("lblTexto1"), marco);
    auto* cabeza = Etiqueta(QStringLiteral("lblTexto2"), marco);
    etiquetas_.emplace_back(grupo, 445);
    etiquetas_.emplace_back(cabeza, 444);
    caja->addWidget(grupo);
    caja->addWidget(cabeza);
    for (std::size_t i = 0; i < tipos_.size(); ++i) {
        tipos_[i] = new QCheckBox(marco);
        tipos_[i]->setObjectName(QString::fromUtf16(CasillasTipo()[i].casilla));
        caja->addWidget(tipos_[i]);
    }
    mskFechaModificacion_ = fecha(QStringLiteral("mskFechaModificacion"));
    auto* etiqueta = etiquetaDe(QStringLiteral("lblFechaModificacion"), mskFechaModificacion_);
    etiquetas_.emplace_back(etiqueta, 431);
    caja->addSpacing(6);
    auto* filaFecha = new QHBoxLayout;
    filaFecha->addLayout(columna(etiqueta, mskFechaModificacion_));
    filaFecha->addStretch(1);
    caja->addLayout(filaFecha);
    caja->addStretch(1);
    return marco;
}

QWidget* FrmDatGen::crearSolicitudes() {
    fraSolicitud_ = new QFrame(this);
    fraSolicitud_->setObjectName(QStringLiteral("FraSolicitud"));
    auto* rejilla = new QGridLayout(fraSolicitud_);
    auto* numero = Encabezado(QStringLiteral("lblTexto3"), fraSolicitud_);
    auto* tarjeta = Encabezado(QStringLiteral("lblTexto4"), fraSolicitud_);
    etiquetas_.emplace_back(numero, TextoNumero);
    etiquetas_.emplace_back(tarjeta, TextoTarjeta);
    const auto casilla = [&](std::size_t i) {
        solicitudes_[i] = new QCheckBox(fraSolicitud_);
        solicitudes_[i]->setObjectName(QString::fromUtf16(CasillasSolicitud()[i].casilla));
        return solicitudes_[i];
    };
    const auto filaFecha = [&](const char16_t* nombre, CampoFecha* campo, int id) {
        auto* etiqueta = etiquetaDe(QString::fromUtf16(nombre), campo);
        etiquetas_.emplace_back(etiqueta, id);
        auto* fila = new QHBoxLayout;
        fila->setContentsMargins(22, 0, 0, 0);
        fila->addWidget(etiqueta);
        fila->addWidget(campo);
        fila->addStretch(1);
        return fila;
    };
    // Identifier first, then card; each date under the request that asks for it. Made in that
    // order, so that Tab visits them like that.
    auto* uno = new QVBoxLayout;
    uno->addWidget(numero);
    uno->addWidget(casilla(0));
    mskFechaConst_ = fecha(QStringLiteral("mskFechaConst"));
    uno->addLayout(filaFecha(u"lblFechaConstitucion", mskFechaConst_, 768));
    uno->addWidget(casilla(1));
    uno->addWidget(casilla(2));
    uno->addSpacing(8);
    uno->addWidget(tarjeta);
    uno->addWidget(casilla(3));
    uno->addWidget(casilla(4));
    mskFechaInscrip_ = fecha(QStringLiteral("mskFechaInscrip"));
    uno->addLayout(filaFecha(u"lblFechaInscripcion", mskFechaInscrip_, 769));
    uno->addWidget(casilla(5));
    uno->addStretch(1);
    rejilla->addLayout(uno, 0, 0);
    return fraSolicitud_;
}

QWidget* FrmDatGen::crearModificacion() {
    fraModificacion_ = new QFrame(this);
    fraModificacion_->setObjectName(QStringLiteral("FraModificacion"));
    auto* caja = new QVBoxLayout(fraModificacion_);
    auto* cabeza = Encabezado(QStringLiteral("lblFraModificacion"), fraModificacion_);
    etiquetas_.emplace_back(cabeza, 393);
    txtDNIAnterior_ = texto(QStringLiteral("txtDNIAnterior"), AnchoNif);
    txtNombreAnterior_ = texto(QStringLiteral("txtNombreAnterior"), AnchoNombre);
    cmbMotivoCambio_ = new CajaCombo(QStringLiteral("cmbMotivoCambio"), 30, fraModificacion_);
    txtDNIAnterior_->setMinimumWidth(AnchoDe(txtDNIAnterior_, AnchoNif + 2));
    txtDNIAnterior_->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    const auto anadir = [&](const char16_t* nombre, QWidget* campo, int id) {
        auto* etiqueta = etiquetaDe(QString::fromUtf16(nombre), campo);
        etiquetas_.emplace_back(etiqueta, id);
        caja->addLayout(columna(etiqueta, campo));
    };
    caja->addWidget(cabeza);
    anadir(u"lblDNIAnterior", txtDNIAnterior_, 394);
    anadir(u"lblNombreAnterior", txtNombreAnterior_, 356);
    anadir(u"lblMotivoCambio", cmbMotivoCambio_, 395);
    caja->addStretch(1);
    return fraModificacion_;
}

QWidget* FrmDatGen::crearPestana() {
    auto* marco = Panel(this);
    auto* caja = new QVBoxLayout(marco);
    pestana_ = new QTabBar(marco);
    pestana_->setObjectName(QStringLiteral("Pestaña"));
    // A click on a tab leaves the field in focus like a click on a button.
    pestana_->setFocusPolicy(Qt::StrongFocus);
    pestana_->setExpanding(false);
    pestana_->setDrawBase(true);
    pestana_->addTab(QString());
    pestana_->addTab(QString());
    caja->addWidget(pestana_);
    // One place for both frames, as high as the higher one.
    paginas_ = new QStackedWidget(marco);
    paginas_->addWidget(crearSolicitudes());
    paginas_->addWidget(crearModificacion());
    caja->addWidget(paginas_, 1);
    return marco;
}

QWidget* FrmDatGen::crearApartados() {
    auto* marco = Panel(this);
    auto* rejilla = new QGridLayout(marco);
    auto* cabeza = Encabezado(QStringLiteral("lblApartados"), marco);
    etiquetas_.emplace_back(cabeza, TextoApartados);
    rejilla->addWidget(cabeza, 0, 0, 1, 2);
    rejilla->setVerticalSpacing(4);
    int fila = 1;
    for (std::size_t i = 0; i < apartados_.size(); ++i, ++fila) {
        apartados_[i] = new QCheckBox(marco);
        apartados_[i]->setObjectName(QString::fromUtf16(CasillasApartado()[i].casilla));
        botonesApartado_[i] = new QPushButton(marco);
        botonesApartado_[i]->setObjectName(QString::fromUtf16(CasillasApartado()[i].boton));
        botonesApartado_[i]->setStyleSheet(
            QStringLiteral("QPushButton { text-align: left; padding: 3px 8px; }"));
        rejilla->addWidget(apartados_[i], fila, 0);
        rejilla->addWidget(botonesApartado_[i], fila, 1);
    }
    rejilla->setRowStretch(fila, 1);
    return marco;
}

QWidget* FrmDatGen::crearFirma() {
    auto* marco = Panel(this);
    auto* rejilla = new QGridLayout(marco);
    auto* cabeza = Encabezado(QStringLiteral("lblFirma"), marco);
    etiquetas_.emplace_back(cabeza, TextoFirma);
    chkElMismo_ = new QCheckBox(marco);
    chkElMismo_->setObjectName(QStringLiteral("chkElMismo"));
    auto* elMismo = new EtiquetaCasilla(QStringLiteral("lblElMismo"), chkElMismo_, marco);
    etiquetas_.emplace_back(elMismo, 429);
    txtDNIRepresentante_ = texto(QStringLiteral("txtDNIRepresentante"), AnchoNif);
    txtDNIRepresentante_->setMinimumWidth(AnchoDe(txtDNIRepresentante_, AnchoNif + 2));
    txtNombreRepresentante_ = texto(QStringLiteral("txtNombreRepresentante"), AnchoNombre);
    txtFirmaEnCalidadDe_ = texto(QStringLiteral("txtFirmaEnCalidadDe"), AnchoNombre);
    auto* marca = new QHBoxLayout;
    marca->addWidget(chkElMismo_);
    marca->addWidget(elMismo);
    marca->addStretch(1);
    rejilla->addWidget(cabeza, 0, 0);
    rejilla->addLayout(marca, 0, 1);
    const auto anadir = [&](int c, const char16_t* nombre, QWidget* campo, int id) {
        auto* etiqueta = etiquetaDe(QString::fromUtf16(nombre), campo);
        etiquetas_.emplace_back(etiqueta, id);
        rejilla->addLayout(columna(etiqueta, campo), 1, c);
    };
    anadir(0, u"lblDNIRepresentante", txtDNIRepresentante_, 355);
    anadir(1, u"lblNombreRepresentante", txtNombreRepresentante_, 428);
    anadir(2, u"lblFirmaEnCalidadDe", txtFirmaEnCalidadDe_, 427);
    rejilla->setColumnStretch(1, 3);
    rejilla->setColumnStretch(2, 3);
    return marco;
}

QWidget* FrmDatGen::crearBotones() {
    auto* barra = new QWidget(this);
    auto* fila = new QHBoxLayout(barra);
    fila->setContentsMargins(0, 0, 0, 0);
    const auto boton = [&](const char16_t* nombre, const char16_t* imagen, const char16_t* dibujo,
                           QPushButton*& cmd, ImagenPulsable*& pic) {
        cmd = new QPushButton(barra);
        cmd->setObjectName(QString::fromUtf16(nombre));
        pic = new ImagenPulsable(QString::fromUtf16(imagen), QString::fromUtf16(dibujo), barra);
        fila->addWidget(pic);
        fila->addWidget(cmd);
    };
    boton(u"cmdAnterior", u"PicAnterior", u"back", cmdAnterior_, PicAnterior_);
    fila->addStretch(1);
    boton(u"cmdImprimir", u"PicImprimir", u"print", cmdImprimir_, PicImprimir_);
    fila->addSpacing(16);
    boton(u"cmdAceptar", u"PicOKey", u"accept", cmdAceptar_, PicOKey_);
    boton(u"cmdCancelar", u"PicCan", u"cancel", cmdCancelar_, PicCan_);
    return barra;
}

void FrmDatGen::Anadir_captions() {
    setWindowTitle(Texto(TituloPantalla));
    for (const auto& [etiqueta, id] : etiquetas_) etiqueta->setText(Texto(id));
    for (std::size_t i = 0; i < tipos_.size(); ++i)
        tipos_[i]->setText(Texto(CasillasTipo()[i].caption));
    for (std::size_t i = 0; i < solicitudes_.size(); ++i)
        solicitudes_[i]->setText(Texto(CasillasSolicitud()[i].caption));
    for (std::size_t i = 0; i < apartados_.size(); ++i) {
        const auto& fila = CasillasApartado()[i];
        QString sinTecla = Texto(fila.caption);
        botonesApartado_[i]->setText(sinTecla);
        botonesApartado_[i]->setToolTip(Texto(fila.ayuda));
        apartados_[i]->setAccessibleName(sinTecla.remove(u'&'));
    }
    const auto pestana = [this](int i, int caption, int ayuda) {
        pestana_->setTabText(i, Texto(caption));
        pestana_->setTabToolTip(i, Texto(ayuda));
    };
    pestana(0, 404, 405);
    pestana(1, 406, 407);
    const auto boton = [this](QPushButton* cmd, QLabel* pic, int caption, int ayuda) {
        QString sinTecla = Texto(caption);
        cmd->setText(sinTecla);
        cmd->setToolTip(Texto(ayuda));
        pic->setToolTip(Texto(ayuda));
        pic->setAccessibleName(sinTecla.remove(u'&').trimmed());
    };
    boton(cmdAceptar_, PicOKey_, 346, 426);
    boton(cmdCancelar_, PicCan_, 14, 96);
    boton(cmdImprimir_, PicImprimir_, 424, 425);
    boton(cmdAnterior_, PicAnterior_, 408, 409);
    for (auto* campo :
         {mskFechaDeclaracion_, mskFechaModificacion_, mskFechaConst_, mskFechaInscrip_})
        campo->PonerMascara(Texto(650), Texto(651));
}

}  // namespace padral
