#include "ui/message_box.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

namespace padral {

namespace {

QMessageBox::Icon icono(Icono valor) {
    switch (valor) {
        case Icono::Informacion:
            return QMessageBox::Information;
        case Icono::Exclamacion:
            return QMessageBox::Warning;
        case Icono::Error:
            return QMessageBox::Critical;
        case Icono::Ninguno:
            break;
    }
    return QMessageBox::NoIcon;
}

struct BotonCaja {
    Respuesta respuesta;
    QMessageBox::ButtonRole papel;
    const char16_t* castellano;
    const char16_t* euskera;
};
constexpr BotonCaja Aceptar{Respuesta::Aceptar, QMessageBox::AcceptRole, u"&Aceptar", u"&Ados"};
constexpr BotonCaja Cancelar{Respuesta::Cancelar, QMessageBox::RejectRole, u"&Cancelar", u"&Utzi"};
constexpr BotonCaja Si{Respuesta::Si, QMessageBox::YesRole, u"&Sí", u"&Bai"};
constexpr BotonCaja No{Respuesta::No, QMessageBox::NoRole, u"&No", u"&Ez"};

std::vector<BotonCaja> botones(Botones valor) {
    switch (valor) {
        case Botones::AceptarCancelar:
            return {Aceptar, Cancelar};
        case Botones::SiNo:
            return {Si, No};
        case Botones::Aceptar:
            break;
    }
    return {Aceptar};
}

/// Drops the repeated presses of a key that is still held down from the command before: a box is
/// answered by a key pressed for it.
class SinRepeticion : public QObject {
protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override {
        if (evento->type() != QEvent::KeyPress) return QObject::eventFilter(objeto, evento);
        const auto* tecla = static_cast<QKeyEvent*>(evento);
        const bool responde = tecla->key() == Qt::Key_Return || tecla->key() == Qt::Key_Enter ||
                              tecla->key() == Qt::Key_Space;
        return responde && tecla->isAutoRepeat();
    }
};

}  // namespace

Respuesta AvisadorPantalla::Mostrar(const Mensaje& mensaje) {
    if (finEspera) finEspera();
    const QPointer<QWidget> ventana = QApplication::activeWindow();
    SinRepeticion filtro;
    QMessageBox caja(ventana);
    caja.installEventFilter(&filtro);
    caja.setObjectName(QStringLiteral("MsgBox"));
    caja.setWindowTitle(mensaje.titulo);
    caja.setTextFormat(Qt::PlainText);
    caja.setText(mensaje.texto);
    caja.setIcon(icono(mensaje.icono));
    const auto lista = botones(mensaje.botones);
    const bool euskera = esEuskera && esEuskera();
    std::vector<QAbstractButton*> puestos;
    puestos.reserve(lista.size());
    for (const auto& b : lista)
        puestos.push_back(
            caja.addButton(QString::fromUtf16(euskera ? b.euskera : b.castellano), b.papel));
    for (auto* boton : puestos) boton->installEventFilter(&filtro);
    caja.setDefaultButton(static_cast<QPushButton*>(puestos.front()));
    caja.setEscapeButton(puestos.back());
    caja.exec();
    // Not every window system gives the activation back by itself.
    if (ventana) ventana->activateWindow();
    for (std::size_t i = 0; i < puestos.size(); ++i)
        if (caja.clickedButton() == puestos[i]) return lista[i].respuesta;
    return lista.back().respuesta;
}

}  // namespace padral
