#include "online/frm_version_check.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <algorithm>
#include <iterator>

#include "online/dialog_parts.h"
#include "online/link_field.h"
#include "ui/fields.h"

namespace padral {

namespace {

constexpr int AnchoVersion = 84;  // letters
constexpr int LineasInformacion = 7;
constexpr int LineasDibujo = 4;
constexpr int MargenVersion = 18, SeparacionVersion = 6;
constexpr double LetraVersion = 1.3;

struct RotuloVersion {
    const char16_t* nombre;
    const char16_t* texto;
};
constexpr RotuloVersion RotulosVersion[] = {
    {u"FraVersion", u"Bertsioa / Versión"},
    {u"LblDisp", u"Erabilgarria / Disponible"},
    {u"LblAct", u"Oraingoa / Actual"},
    {u"LblUrl", u"Deskarga helbidea / Dirección de descarga"},
    {u"LblInfo", u"Argibideak / Información"},
    {u"LblArchivo", u"Fitxategia / Fichero"},
    {u"CmdActualizar", u"Deskargatu Descargar"},
    {u"CmdContinuar", u"Aurrera jarraitu... Continuar..."},
};

QString rotuloVersion(QStringView nombre) {
    const auto* fila = std::find_if(std::begin(RotulosVersion), std::end(RotulosVersion),
                                    [&](const auto& r) { return nombre == r.nombre; });
    return QString::fromUtf16(fila->texto);
}

QString conPuntos(const QString& uno, const QString& dos, const QString& tres) {
    return QStringList{uno, dos, tres}.join(u'.');
}

}  // namespace

FrmVersionCheck::FrmVersionCheck(const Contexto& contexto, OrdenesVersion ordenes, QWidget* padre)
    : QDialog(padre), estado_(contexto.estado), ordenes_(std::move(ordenes)) {
    contexto.pantallas.CursorEspera(false);
    setObjectName(QStringLiteral("FrmVersionCheck"));
    setWindowTitle(QStringLiteral("Actualizar versión"));
    // At start the splash stays in front of all windows, and would cover the dialog.
    if (!padre || padre->windowFlags().testFlag(Qt::WindowStaysOnTopHint))
        setWindowFlag(Qt::WindowStaysOnTopHint);
    auto* cabecera = new QHBoxLayout;
    cabecera->setSpacing(MargenVersion);
    cabecera->addWidget(DibujoPrograma(LineasDibujo, this));
    cabecera->addWidget(crearVersiones(), 1);
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(MargenVersion, MargenVersion, MargenVersion, MargenVersion);
    todo->setSpacing(MargenVersion);
    todo->addLayout(cabecera);
    todo->addWidget(crearDatos(), 1);
    todo->addWidget(crearBotones());
    // Higher only where the user wants to see more of the information at once.
    const QSize justo = todo->totalMinimumSize();
    resize(std::max(AnchoVersion * fontMetrics().averageCharWidth(), justo.width()),
           justo.height());
}

QLabel* FrmVersionCheck::rotulo(const char16_t* nombre, QWidget* padre) {
    auto* etiqueta = Etiqueta(QString::fromUtf16(nombre), padre);
    etiqueta->setText(rotuloVersion(nombre));
    return etiqueta;
}

QWidget* FrmVersionCheck::crearVersiones() {
    auto* marco = new QGroupBox(rotuloVersion(u"FraVersion"), this);
    marco->setObjectName(QStringLiteral("FraVersion"));
    const auto& act = estado_.act;
    const struct {
        const char16_t* rotulo;
        const char16_t* nombre;
        QString version;
    } filas[] = {{u"LblDisp", u"LblDisponible", conPuntos(act.ActVer1, act.ActVer2, act.ActVer3)},
                 {u"LblAct", u"LblActual", conPuntos(act.ProgVer1, act.ProgVer2, act.ProgVer3)}};
    auto* fila = new QHBoxLayout(marco);
    fila->setContentsMargins(MargenVersion, SeparacionVersion, MargenVersion, SeparacionVersion);
    fila->setSpacing(MargenVersion);
    for (const auto& f : filas) {
        auto* version = Encabezado(QString::fromUtf16(f.nombre), marco);
        Agrandar(version, LetraVersion);
        version->setText(f.version);
        version->setTextInteractionFlags(Qt::TextSelectableByMouse);
        auto* columna = new QVBoxLayout;
        columna->setSpacing(SeparacionVersion / 2);
        columna->addWidget(rotulo(f.rotulo, marco));
        columna->addWidget(version);
        fila->addLayout(columna, 1);
    }
    return marco;
}

QWidget* FrmVersionCheck::crearDatos() {
    auto* datos = new QWidget(this);
    auto* txtUrl = new CampoEnlace(QStringLiteral("TxtUrl"), datos);
    txtUrl->setText(estado_.act.ActDownloadURL);
    connect(txtUrl, &CampoEnlace::pulsado, this, &FrmVersionCheck::irYTerminar);
    auto* txtInfo = new QPlainTextEdit(estado_.act.ActDescripcion, datos);
    txtInfo->setObjectName(QStringLiteral("TxtInfo"));
    txtInfo->setReadOnly(true);
    txtInfo->setTabChangesFocus(true);
    txtInfo->setMinimumHeight(LineasInformacion * fontMetrics().lineSpacing());
    auto* txtPath = new QLineEdit(estado_.act.ActFile, datos);
    txtPath->setObjectName(QStringLiteral("TxtPath"));
    txtPath->setReadOnly(true);
    for (QWidget* campo : {static_cast<QWidget*>(txtInfo), static_cast<QWidget*>(txtPath)})
        SoloLectura(campo);
    for (auto* campo : {static_cast<QLineEdit*>(txtUrl), txtPath}) campo->setCursorPosition(0);
    auto* columna = new QVBoxLayout(datos);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->setSpacing(SeparacionVersion / 2);
    const std::pair<const char16_t*, QWidget*> campos[] = {
        {u"LblUrl", txtUrl}, {u"LblInfo", txtInfo}, {u"LblArchivo", txtPath}};
    for (const auto& [nombre, campo] : campos) {
        auto* etiqueta = rotulo(nombre, datos);
        etiqueta->setBuddy(campo);
        columna->addWidget(etiqueta);
        columna->addWidget(campo);
        if (campo != txtPath) columna->addSpacing(SeparacionVersion);
    }
    return datos;
}

QWidget* FrmVersionCheck::crearBotones() {
    auto* botones = new QWidget(this);
    const auto boton = [&](const QString& nombre) {
        return BotonRotulado(nombre, rotuloVersion(nombre), botones);
    };
    auto* cmdActualizar = boton(QStringLiteral("CmdActualizar"));
    cmdActualizar->setEnabled(estado_.act.ComVer != 0);
    connect(cmdActualizar, &QPushButton::clicked, this, &FrmVersionCheck::actualizar);
    auto* cmdContinuar = boton(QStringLiteral("CmdContinuar"));
    connect(cmdContinuar, &QPushButton::clicked, this, &QDialog::reject);
    // A key that the user is still typing must not leave the program.
    cmdContinuar->setDefault(true);
    cmdContinuar->setFocus();
    auto* fila = new QHBoxLayout(botones);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->addStretch(1);
    fila->addWidget(cmdActualizar);
    fila->addWidget(cmdContinuar);
    return botones;
}

void FrmVersionCheck::actualizar() {
    ordenes_.abrirPagina(estado_.act.ActDownloadURL);
    accept();
}

// The address itself ends the program; the button beside it does not.
void FrmVersionCheck::irYTerminar() {
    ordenes_.abrirPagina(estado_.act.ActDownloadURL);
    ordenes_.terminarPrograma();
    reject();
}

}  // namespace padral
