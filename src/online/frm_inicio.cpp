#include "online/frm_inicio.h"

#include <QBoxLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <algorithm>

#include "online/about_texts.h"
#include "online/dialog_parts.h"
#include "ui/art.h"
#include "ui/fields.h"

namespace padral {

namespace {

constexpr int PausaInicio = 3000, PausaConComprobacion = 4000;  // milliseconds
constexpr int TextoPrograma = 641;
constexpr int AnchoInicio = 104;  // letters
constexpr int MargenInicio = 24;
constexpr int LineasImagen = 9;
constexpr QRgb FondoImagen = 0xFF1F4E5F;
constexpr double LetraModelo = 1.2, LetraPrograma = 1.5;

}  // namespace

frmInicio::frmInicio(EstadoCompartido& estado, OrdenesVersion ordenes)
    : QFrame(nullptr, Qt::SplashScreen | Qt::WindowStaysOnTopHint),
      estado_(estado),
      ordenes_(std::move(ordenes)) {
    setObjectName(QStringLiteral("frmInicio"));
    setFrameStyle(QFrame::StyledPanel);
    auto* fila = new QHBoxLayout(this);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->setSpacing(0);
    fila->addWidget(crearImagen());
    fila->addWidget(crearTextos(), 1);
    FijarTamano(this, AnchoInicio);
}

QWidget* frmInicio::crearImagen() {
    auto* imagen = new QLabel(this);
    imagen->setObjectName(QStringLiteral("Image1"));
    const int lado = LineasImagen * fontMetrics().lineSpacing();
    imagen->setPixmap(
        Dibujo(QStringLiteral("splash")).pixmap(QSize(lado, lado), devicePixelRatioF()));
    imagen->setAlignment(Qt::AlignCenter);
    imagen->setMargin(MargenInicio);
    // The band behind the drawing is the same in every theme.
    QPalette paleta = imagen->palette();
    paleta.setColor(QPalette::Window, QColor::fromRgb(FondoImagen));
    imagen->setPalette(paleta);
    imagen->setAutoFillBackground(true);
    return imagen;
}

void frmInicio::linea(QVBoxLayout* columna, const char16_t* nombre, const QString& texto,
                      double veces) {
    auto* etiqueta = EtiquetaLarga(QString::fromUtf16(nombre), texto, columna->parentWidget());
    QFont fuente = etiqueta->font();
    fuente.setBold(veces > 1);
    etiqueta->setFont(fuente);
    Agrandar(etiqueta, veces);
    columna->addWidget(etiqueta);
}

QWidget* frmInicio::crearTextos() {
    auto* textos = new QWidget(this);
    auto* columna = new QVBoxLayout(textos);
    columna->setContentsMargins(MargenInicio, MargenInicio, MargenInicio, MargenInicio);
    const auto& catalogo = estado_.textos;
    linea(columna, u"lblTitulo", QStringLiteral("MODELO 417 / 417 EREDUA"), LetraModelo);
    linea(columna, u"lblTitulo1",
          catalogo.Texto(CatalogoTextos::DesplazamientoEuskera + TextoPrograma) +
              QStringLiteral(" / ") + catalogo.Texto(TextoPrograma),
          LetraPrograma);
    linea(columna, u"lblVersion", QStringLiteral("Bertsioa/Versión") + estado_.VersionPrograma, 1);
    columna->addSpacing(MargenInicio / 2);
    linea(columna, u"Label1", DescripcionEuskera(), 1);
    linea(columna, u"lblDescripcion", DescripcionCastellano(), 1);
    columna->addSpacing(MargenInicio / 2);
    columna->addStretch(1);
    linea(columna, u"lblcopy", LineaCopyright(), 1);
    lblAct_ = Encabezado(QStringLiteral("lblAct"), textos);
    lblAct_->setText(QStringLiteral("Eguneratzen / Buscando actualización ..."));
    // Its place stays, so that nothing moves when it comes.
    QSizePolicy politica = lblAct_->sizePolicy();
    politica.setRetainSizeWhenHidden(true);
    lblAct_->setSizePolicy(politica);
    lblAct_->setVisible(false);
    columna->addWidget(lblAct_);
    return textos;
}

void frmInicio::Cargar() {
    if (const QScreen* pantalla = QGuiApplication::primaryScreen())
        move(pantalla->availableGeometry().center() - rect().center());
    show();
    const bool comprobar = estado_.act.ActOnline == 1;
    const int pausa = comprobar ? PausaConComprobacion : PausaInicio;
    const QDateTime fin = estado_.reloj.Ahora().addMSecs(pausa);
    if (comprobar) {
        lblAct_->setVisible(true);
        ordenes_.comprobarVersion();
        lblAct_->setVisible(false);
    }
    // No longer than the pause, should the clock be set back meanwhile.
    const qint64 queda = std::min<qint64>(estado_.reloj.Ahora().msecsTo(fin), pausa);
    if (queda > 0) estado_.reloj.Esperar(static_cast<int>(queda));
}

}  // namespace padral
