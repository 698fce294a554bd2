#include "app/tour/guide.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QTabBar>
#include <QTableView>
#include <QTest>

namespace padral {

namespace {

constexpr int PeriodoVigia = 5;

}  // namespace

Guia::Guia(QWidget* ventana, QString carpeta) : ventana_(ventana), carpeta_(std::move(carpeta)) {
    if (!carpeta_.isEmpty()) QDir().mkpath(carpeta_);
    // Not from the timer itself: it stands still while its handler has a dialog open, and that
    // dialog may open another.
    connect(&vigia_, &QTimer::timeout, this, [this] {
        QMetaObject::invokeMethod(
            this, [this] { vigilar(); }, Qt::QueuedConnection);
    });
    vigia_.start(PeriodoVigia);
}

QWidget* Guia::Control(const QString& nombre) const {
    if (auto* control = ventana_->findChild<QWidget*>(nombre)) return control;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->isVisible())
            if (auto* control = w->findChild<QWidget*>(nombre)) return control;
    throw GuiaPerdida("no control " + nombre.toStdString());
}

void Guia::Escribir(const QString& nombre, const QString& texto) {
    auto* campo = Busca<QLineEdit>(nombre);
    QTest::mouseClick(campo, Qt::LeftButton);
    campo->selectAll();
    QTest::keyClick(campo, Qt::Key_Delete);
    campo->setCursorPosition(0);
    Teclear(texto);
    QTest::keyClick(campo, Qt::Key_Tab);
    Respirar();
}

void Guia::Pulsar(const QString& nombre) {
    auto* boton = Control(nombre);
    if (!boton->isEnabled()) throw GuiaPerdida("disabled: " + nombre.toStdString());
    // On the mark of a box, on the middle of anything else.
    const bool casilla = boton->inherits("QCheckBox") || boton->inherits("QRadioButton");
    const QPoint punto = casilla ? QPoint(8, boton->height() / 2) : boton->rect().center();
    QTest::mouseClick(boton, Qt::LeftButton, Qt::NoModifier, punto);
    Respirar();
}

void Guia::PulsarCelda(const QString& nombre, int fila, int columna) {
    auto* tabla = Busca<QTableView>(nombre);
    const QRect celda = tabla->visualRect(tabla->model()->index(fila, columna));
    QTest::mouseClick(tabla->viewport(), Qt::LeftButton, Qt::NoModifier, celda.center());
    Respirar();
}

void Guia::Teclear(const QString& texto) {
    for (const QChar c : texto)
        if (QWidget* foco = QApplication::focusWidget())
            QTest::sendKeyEvent(QTest::Click, foco, Qt::Key_unknown, QString(c), Qt::NoModifier);
}

void Guia::Ordenar(const QString& accion) {
    auto* entrada = ventana_->findChild<QAction*>(accion);
    if (!entrada || !entrada->isEnabled()) throw GuiaPerdida("no command " + accion.toStdString());
    entrada->trigger();
    Respirar();
}

void Guia::ElegirEnCombo(const QString& nombre, const QString& comienzo) {
    auto* combo = Busca<QComboBox>(nombre);
    const int indice = combo->findText(comienzo, Qt::MatchStartsWith);
    if (indice < 0) throw GuiaPerdida("no item " + comienzo.toStdString());
    combo->setFocus(Qt::MouseFocusReason);
    // The arrows only open a list without a choice.
    if (combo->currentIndex() < 0) QTest::keyClick(combo, Qt::Key_Home);
    while (combo->currentIndex() < indice) QTest::keyClick(combo, Qt::Key_Down);
    while (combo->currentIndex() > indice) QTest::keyClick(combo, Qt::Key_Up);
    QTest::keyClick(combo, Qt::Key_Return);
    Respirar();
}

void Guia::ElegirPestana(const QString& nombre, int indice) {
    auto* barra = Busca<QTabBar>(nombre);
    QTest::mouseClick(barra, Qt::LeftButton, Qt::NoModifier, barra->tabRect(indice).center());
    Respirar();
}

void Guia::Tecla(int tecla) {
    if (QWidget* foco = QApplication::focusWidget())
        QTest::keyClick(foco, static_cast<Qt::Key>(tecla));
    Respirar();
}

void Guia::ResponderSiguiente(int boton, const QString& foto) { respuestas_.append({boton, foto}); }

void Guia::AlDialogo(const QString& nombre, std::function<void(QWidget*)> hacer) {
    dialogos_[nombre] = std::move(hacer);
}

void Guia::vigilar() {
    QWidget* modal = QApplication::activeModalWidget();
    // One that is not active yet has given the focus to nothing.
    if (!modal || !modal->isActiveWindow() || modal == atendido_) return;
    if (modal->inherits("QMessageBox")) {
        atendido_ = modal;
        atenderMensaje(modal);
    } else if (dialogos_.contains(modal->objectName())) {
        atendido_ = modal;
        dialogos_.take(modal->objectName())(modal);
    }
}

void Guia::atenderMensaje(QWidget* caja) {
    auto* mensaje = static_cast<QMessageBox*>(caja);
    mensajes_ << mensaje->text();
    const auto respuesta =
        respuestas_.isEmpty() ? RespuestaPreparada{0, {}} : respuestas_.takeFirst();
    if (!respuesta.foto.isEmpty()) Foto(respuesta.foto);
    const auto botones = mensaje->buttons();
    QTest::mouseClick(botones.value(respuesta.boton), Qt::LeftButton);
}

void Guia::Respirar() const {
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void Guia::TomarVentana() {
    Respirar();
    ventana_->activateWindow();
    if (!QTest::qWaitForWindowActive(ventana_)) throw GuiaPerdida("the window is not active");
    Respirar();
}

// What lies over the main window: a modal dialog, or a window that stays open beside it.
QWidget* Guia::encima() const {
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    for (QWidget* otra : QApplication::topLevelWidgets())
        if (otra->isVisible() && otra != ventana_ && otra->inherits("QDialog")) return otra;
    return nullptr;
}

void Guia::Foto(const QString& nombre) {
    QPixmap imagen = ventana_->isVisible() ? ventana_->grab() : QPixmap();
    QWidget* modal = encima();
    if (modal && modal != ventana_) {
        const QPixmap tapa = modal->grab();
        if (imagen.isNull()) {
            guardar(tapa, nombre);
            return;
        }
        QPainter pintor(&imagen);
        const QPoint centro = imagen.rect().center() / imagen.devicePixelRatio();
        const QPoint esquina = centro - modal->rect().center();
        pintor.fillRect(QRect(esquina, modal->size()).adjusted(-1, -22, 1, 1), Qt::darkGray);
        pintor.setPen(Qt::white);
        pintor.drawText(esquina + QPoint(8, -6), modal->windowTitle());
        pintor.drawPixmap(esquina, tapa);
    }
    guardar(imagen, nombre);
}

void Guia::guardar(const QPixmap& imagen, const QString& nombre) {
    if (carpeta_.isEmpty()) return;
    const QString fichero = carpeta_ + QDir::separator() + nombre + QStringLiteral(".png");
    if (!imagen.save(fichero)) throw GuiaPerdida("cannot write " + fichero.toStdString());
    fotos_ << fichero;
}

}  // namespace padral
