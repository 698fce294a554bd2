#include "online/frm_inicio.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>

#include "online/about_texts.h"
#include "ui/art.h"
#include "ui/fields.h"

namespace padral {

namespace {

constexpr int Pausa = 3000;
constexpr int TituloPrograma = 641;
constexpr int LadoDibujo = 96;
constexpr int Ancho = 680;

}  // namespace

frmInicio::frmInicio(EstadoCompartido& estado)
    : QWidget(nullptr, Qt::SplashScreen | Qt::WindowStaysOnTopHint), estado_(estado) {
    setObjectName(QStringLiteral("frmInicio"));
    auto* imagen = new QLabel(this);
    imagen->setObjectName(QStringLiteral("Image1"));
    imagen->setPixmap(Dibujo(QStringLiteral("program")).pixmap(LadoDibujo, LadoDibujo));
    const auto linea = [this](const char16_t* nombre, const QString& texto, int puntos) {
        auto* etiqueta = Etiqueta(QString::fromUtf16(nombre), this);
        QFont fuente = etiqueta->font();
        fuente.setPointSize(puntos);
        fuente.setBold(puntos > 10);
        etiqueta->setFont(fuente);
        etiqueta->setText(texto);
        etiqueta->setWordWrap(true);
        return etiqueta;
    };
    const auto& textos = estado.textos;
    auto* columna = new QVBoxLayout;
    columna->addWidget(linea(u"lblTitulo", QStringLiteral("MODELO 417 / 417 EREDUA"), 13));
    columna->addWidget(linea(u"lblTitulo1",
                             textos.Texto(CatalogoTextos::DesplazamientoEuskera + TituloPrograma) +
                                 QStringLiteral(" / ") + textos.Texto(TituloPrograma),
                             16));
    columna->addWidget(
        linea(u"lblVersion", QStringLiteral("Bertsioa/Versión") + estado.VersionPrograma, 10));
    columna->addSpacing(8);
    columna->addWidget(linea(u"Label1", DescripcionEuskera(), 9));
    columna->addWidget(linea(u"lblDescripcion", DescripcionCastellano(), 9));
    columna->addWidget(linea(u"lblcopy", LineaCopyright(), 9));
    columna->addStretch(1);
    auto* fila = new QHBoxLayout(this);
    fila->setContentsMargins(28, 28, 28, 28);
    fila->setSpacing(28);
    fila->addWidget(imagen, 0, Qt::AlignTop);
    fila->addLayout(columna);
    setFixedSize(Ancho, fila->totalHeightForWidth(Ancho));
}

void frmInicio::Cargar() {
    if (const QScreen* pantalla = QGuiApplication::primaryScreen())
        move(pantalla->availableGeometry().center() - rect().center());
    show();
    estado_.reloj.Esperar(Pausa);
}

}  // namespace padral
