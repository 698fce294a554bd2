#include "ui/fields.h"

#include <QAbstractButton>
#include <QMouseEvent>
#include <QPalette>
#include <algorithm>

#include "core/field_rules.h"
#include "ui/art.h"

namespace padral {

namespace {

constexpr int LadoImagen = 22;
constexpr QRgb GrisBloqueado = 0xFFE0E0E0;

// The filter knows whole letters: a letter and its mark that come apart are put together first.
template <class Filtro>
QString filtrar(const QString& texto, Filtro filtro) {
    QString limpio;
    for (const QChar c : texto.normalized(QString::NormalizationForm_C))
        if (const int codigo = filtro(c.unicode()); codigo > TeclaRetroceso)
            limpio += QChar(static_cast<char16_t>(codigo));
    return limpio;
}

}  // namespace

CampoTexto::CampoTexto(const QString& nombre, int ancho, int (*filtro)(int), QWidget* padre)
    : CampoEntrada(nombre, padre), filtro_(filtro), ancho_(ancho) {
    setMaxLength(ancho);
    connect(this, &QLineEdit::textEdited, this,
            [this](const QString& texto) { ponerTope(texto.size()); });
}

CampoTexto::CampoTexto(const QString& nombre, int ancho, QWidget* padre)
    : CampoTexto(nombre, ancho, &FiltrarTecla, padre) {}

void CampoTexto::Presentar(const QString& texto) {
    ponerTope(texto.size());
    if (text() != texto) setText(texto);
    setCursorPosition(0);
}

// The width limits what is typed; a longer stored value shows and stays whole until it is cut.
void CampoTexto::ponerTope(qsizetype longitud) {
    const int tope = std::max(ancho_, static_cast<int>(longitud));
    if (tope == maxLength()) return;
    const int cursor = cursorPosition();
    setMaxLength(tope);
    setCursorPosition(cursor);
}

QString CampoTexto::admitido(const QString& texto) const { return filtrar(texto, filtro_); }

CampoFecha::CampoFecha(const QString& nombre, QWidget* padre) : CampoEntrada(nombre, padre) {}

void CampoFecha::PonerMascara(const QString& mascara, const QString& formato) {
    QString qt = mascara;
    qt.replace(u'#', u'0');
    setInputMask(qt + QStringLiteral(";_"));
    setAccessibleDescription(formato);
}

void CampoFecha::Presentar(const QString& texto) {
    if (Texto() == texto) return;
    setText(texto);
    setCursorPosition(0);
}

// The mask holds its slashes already: a typed one changes nothing.
QString CampoFecha::admitido(const QString& texto) const {
    return filtrar(texto, [](int tecla) { return tecla == u'/' ? 0 : FiltrarTeclaFecha(tecla); });
}

void BloquearCampo(QLineEdit* campo) {
    campo->setReadOnly(true);
    campo->setFocusPolicy(Qt::ClickFocus);
    QPalette paleta = campo->palette();
    paleta.setColor(QPalette::Base, QColor::fromRgb(GrisBloqueado));
    paleta.setColor(QPalette::Text, Qt::black);
    campo->setPalette(paleta);
}

void DesbloquearCampo(QLineEdit* campo) {
    campo->setReadOnly(false);
    campo->setFocusPolicy(Qt::StrongFocus);
    campo->setPalette(QPalette());
}

bool EstaBloqueado(const QLineEdit* campo) { return campo->isReadOnly(); }

int AnchoDe(const QWidget* campo, int caracteres, QChar muestra) {
    constexpr int Marco = 16;  // frame and margins, in pixels
    return campo->fontMetrics().horizontalAdvance(QString(caracteres, muestra)) + Marco;
}

void SeleccionarTexto(QLineEdit* campo) { campo->selectAll(); }

void MostrarEtiqueta(QLabel* etiqueta, const QString& texto) {
    if (!texto.isEmpty()) etiqueta->setText(texto);
    etiqueta->setVisible(!texto.isEmpty());
}

ImagenPulsable::ImagenPulsable(const QString& nombre, const QString& dibujo, QWidget* padre)
    : QLabel(padre) {
    setObjectName(nombre);
    // A click leaves the field in focus like a click on the button does.
    setFocusPolicy(Qt::ClickFocus);
    setPixmap(Dibujo(dibujo).pixmap(QSize(LadoImagen, LadoImagen), devicePixelRatioF()));
    setCursor(Qt::PointingHandCursor);
}

void ImagenPulsable::mousePressEvent(QMouseEvent* evento) {
    pulsando_ = evento->button() == Qt::LeftButton;
}

void ImagenPulsable::mouseReleaseEvent(QMouseEvent* evento) {
    const bool dentro = rect().contains(evento->position().toPoint());
    if (pulsando_ && dentro) Q_EMIT pulsada();
    pulsando_ = false;
}

EtiquetaCasilla::EtiquetaCasilla(const QString& nombre, QAbstractButton* casilla, QWidget* padre)
    : QLabel(padre), casilla_(casilla) {
    setObjectName(nombre);
    setTextFormat(Qt::PlainText);
    setBuddy(casilla);
}

void EtiquetaCasilla::mousePressEvent(QMouseEvent* evento) {
    if (evento->button() == Qt::LeftButton) casilla_->click();
}

QLabel* Etiqueta(const QString& nombre, QWidget* padre) {
    auto* etiqueta = new QLabel(padre);
    etiqueta->setObjectName(nombre);
    etiqueta->setTextFormat(Qt::PlainText);
    etiqueta->setWordWrap(false);
    return etiqueta;
}

QLabel* Encabezado(const QString& nombre, QWidget* padre) {
    auto* etiqueta = Etiqueta(nombre, padre);
    QFont fuente = etiqueta->font();
    fuente.setBold(true);
    etiqueta->setFont(fuente);
    return etiqueta;
}

QFrame* Panel(QWidget* padre) {
    auto* marco = new QFrame(padre);
    marco->setFrameShape(QFrame::StyledPanel);
    return marco;
}

}  // namespace padral
