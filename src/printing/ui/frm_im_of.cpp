#include "printing/ui/frm_im_of.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QDir>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>

#include "ui/fields.h"

namespace padral {
namespace {

struct TextoControl {
    const char16_t* nombre;
    int texto;
    int ayuda;  ///< tool tip, 0 none
};
constexpr TextoControl textosBotones[] = {
    {u"optTipoImpreso(0)", 603, 0},      {u"optTipoImpreso(1)", 602, 0},
    {u"chkCopiaAdministracion", 598, 0}, {u"chkCopiaInteresado", 599, 0},
    {u"btnOpcionesImpresora", 604, 605}, {u"btnCancelar", 14, 606},
    {u"btnAceptar", 346, 607},
};
constexpr TextoControl textosMarcos[] = {
    {u"fraopciones", 595, 0},
    {u"frameTipoImpreso", 601, 0},
    {u"fracopias", 596, 0},
};
constexpr int TituloFormulario = 594;

template <class Boton>
Boton* conNombre(Boton* boton, const QString& nombre) {
    boton->setObjectName(nombre);
    return boton;
}

/// The name as it shows: no line ends at its hyphens.
QString EnUnaLinea(QString nombre) {
    const QString unido = QStringLiteral("-\u2060");  // word joiner
    return nombre.replace(QStringLiteral("-"), unido);
}

}  // namespace

FrmImOf::FrmImOf(const Contexto& contexto, cDeclaraciones& declaracion, DestinoImpresion& destino)
    : estado_(contexto.estado),
      pantallas_(contexto.pantallas),
      guardia_(contexto.guardia),
      declaracion_(declaracion),
      destino_(destino) {
    setObjectName(QStringLiteral("FrmImOf"));
    fraopciones_ = marco(QStringLiteral("fraopciones"));
    auto* dentro = new QVBoxLayout(fraopciones_);
    auto* marcos = new QHBoxLayout;
    marcos->addWidget(crearTipo());
    marcos->addWidget(crearCopias());
    dentro->addLayout(marcos);
    btnOpcionesImpresora_ =
        boton(QStringLiteral("btnOpcionesImpresora"), [this] { destino_.Elegir(this); });
    dentro->addWidget(btnOpcionesImpresora_, 0, Qt::AlignLeft);
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(fraopciones_);
    todo->addWidget(crearBotones());
    todo->setSizeConstraint(QLayout::SetFixedSize);
    btnAceptar_->setDefault(true);
    optOficial_->setFocus();
    Anadir_captions();
}

QGroupBox* FrmImOf::marco(const QString& nombre) { return conNombre(new QGroupBox(this), nombre); }

QWidget* FrmImOf::crearTipo() {
    frameTipoImpreso_ = marco(QStringLiteral("frameTipoImpreso"));
    optOficial_ = conNombre(new QRadioButton, QStringLiteral("optTipoImpreso(0)"));
    optBorrador_ = conNombre(new QRadioButton, QStringLiteral("optTipoImpreso(1)"));
    optOficial_->setChecked(true);
    auto* columna = new QVBoxLayout(frameTipoImpreso_);
    columna->addWidget(optOficial_);
    columna->addWidget(optBorrador_);
    return frameTipoImpreso_;
}

QWidget* FrmImOf::crearCopias() {
    fracopias_ = marco(QStringLiteral("fracopias"));
    chkCopiaAdministracion_ = conNombre(new QCheckBox, QStringLiteral("chkCopiaAdministracion"));
    chkCopiaInteresado_ = conNombre(new QCheckBox, QStringLiteral("chkCopiaInteresado"));
    auto* columna = new QVBoxLayout(fracopias_);
    for (QCheckBox* casilla : {chkCopiaAdministracion_, chkCopiaInteresado_}) {
        casilla->setChecked(true);
        columna->addWidget(casilla);
    }
    return fracopias_;
}

QPushButton* FrmImOf::boton(const QString& nombre, std::function<void()> orden) {
    auto* nuevo = conNombre(new QPushButton(this), nombre);
    guardia_.Orden(nuevo, std::move(orden));
    return nuevo;
}

QWidget* FrmImOf::conImagen(const QString& nombre, const QString& dibujo, QPushButton* suBoton) {
    auto* imagen = new ImagenPulsable(nombre, dibujo, this);
    connect(imagen, &ImagenPulsable::pulsada, suBoton, &QAbstractButton::click);
    return imagen;
}

QWidget* FrmImOf::crearBotones() {
    btnAceptar_ = boton(QStringLiteral("btnAceptar"), [this] { Aceptar(); });
    btnCancelar_ = boton(QStringLiteral("btnCancelar"), [this] { reject(); });
    auto* fila = new QWidget(this);
    auto* caja = new QHBoxLayout(fila);
    caja->setContentsMargins(0, 0, 0, 0);
    caja->addStretch();
    caja->addWidget(conImagen(QStringLiteral("PicOKey"), QStringLiteral("accept"), btnAceptar_));
    caja->addWidget(btnAceptar_);
    caja->addWidget(conImagen(QStringLiteral("PicCan"), QStringLiteral("cancel"), btnCancelar_));
    caja->addWidget(btnCancelar_);
    return fila;
}

void FrmImOf::Anadir_captions() {
    setWindowTitle(estado_.Texto(TituloFormulario));
    for (const auto& t : textosMarcos)
        findChild<QGroupBox*>(QString::fromUtf16(t.nombre))->setTitle(estado_.Texto(t.texto));
    for (const auto& t : textosBotones) {
        auto* control = findChild<QAbstractButton*>(QString::fromUtf16(t.nombre));
        control->setText(estado_.Texto(t.texto));
        if (t.ayuda != 0) control->setToolTip(estado_.Texto(t.ayuda));
    }
}

OpcionesImpresion FrmImOf::opciones() const {
    return {optBorrador_->isChecked(), chkCopiaAdministracion_->isChecked(),
            chkCopiaInteresado_->isChecked()};
}

void FrmImOf::Aceptar() {
    const Espera espera(pantallas_);
    if (!ValidarCopias(opciones())) {
        estado_.Avisar(702, 703);
        return;
    }
    Imprimir modulo(estado_,
                    {declaracion_.general, declaracion_.apartado2, declaracion_.apartado3,
                     declaracion_.apartado4, declaracion_.apartado5, declaracion_.apartado6,
                     declaracion_.apartado7, declaracion_.participantes, declaracion_.anexoII},
                    destino_);
    for (const QString& copia : CopiasPedidas(opciones())) modulo.ImprimirDeclaracion(copia);
    avisarFicheros();
    accept();
}

// The documents that became files, all in one folder; nothing for those that went to a printer.
void FrmImOf::avisarFicheros() {
    const QStringList ficheros = destino_.TomarFicheros();
    if (ficheros.isEmpty()) return;
    const bool varios = ficheros.size() > 1;
    const QString aviso = estado_.SegunIdioma(
        varios ? QStringLiteral("La declaración se ha guardado en la carpeta\n%1\n"
                                "en estos ficheros PDF:")
               : QStringLiteral("La declaración se ha guardado en la carpeta\n%1\n"
                                "en este fichero PDF:"),
        varios ? QStringLiteral("Aitorpena karpeta honetan gorde da:\n%1\n"
                                "PDF fitxategi hauetan:")
               : QStringLiteral("Aitorpena karpeta honetan gorde da:\n%1\n"
                                "PDF fitxategi honetan:"));
    const QString carpeta = QDir::toNativeSeparators(QFileInfo(ficheros.first()).path());
    QStringList lineas{aviso.arg(carpeta)};
    for (const QString& fichero : ficheros) lineas << EnUnaLinea(QFileInfo(fichero).fileName());
    estado_.Avisar(lineas.join(u'\n'), estado_.Texto(TituloFormulario));
}

// Both buttons, Esc and the window's X end here.
void FrmImOf::done(int resultado) {
    if (cerrado_) return;
    cerrado_ = true;
    QDialog::done(resultado);
    destino_.OlvidarNombre();
    declaracion_.InicializarDeclaracion();
    declaracion_.LimpiarModos();
    declaracion_.Modo = QStringLiteral("C");
    estado_.FormularioOrigen = QStringLiteral("MDIPadral");
    pantallas_.Mostrar(QStringLiteral("FrmDatGen"));
}

}  // namespace padral
