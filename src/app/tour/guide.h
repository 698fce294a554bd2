#pragma once
// A hand that drives the real widgets: it types, clicks, answers boxes and takes pictures.

#include <QMap>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <stdexcept>

#include "core/message_port.h"

namespace padral {

/// A control that is not there, or a box that nobody announced: the script and the program differ.
class GuiaPerdida : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class Guia : public QObject {
    Q_OBJECT
public:
    /// `ventana` is the main window; pictures go to `carpeta`, none are taken when it is empty.
    explicit Guia(QWidget* ventana, QString carpeta = {});

    /// A control by its name, in the main window or a dialog of it. Throws GuiaPerdida.
    QWidget* Control(const QString& nombre) const;
    template <class T>
    T* Busca(const QString& nombre) const {
        if (auto* control = qobject_cast<T*>(Control(nombre))) return control;
        throw GuiaPerdida("control of another kind: " + nombre.toStdString());
    }

    /// Clicks the field, types over what is there, and leaves it with Tab.
    void Escribir(const QString& nombre, const QString& texto);
    void Pulsar(const QString& nombre);
    /// Clicks a cell of a table; rows and columns count from 0.
    void PulsarCelda(const QString& nombre, int fila, int columna);
    /// Types into whatever has the focus.
    void Teclear(const QString& texto);
    /// Clicks a tool bar button or triggers a menu entry.
    void Ordenar(const QString& accion);
    void ElegirEnCombo(const QString& nombre, const QString& comienzo);
    void ElegirPestana(const QString& nombre, int indice);
    void Tecla(int tecla);

    /// Answers the next message box with that button (first: 0) and takes a picture of it.
    void ResponderSiguiente(int boton, const QString& foto = {});
    /// Runs once when the dialog of that name shows modally.
    void AlDialogo(const QString& nombre, std::function<void(QWidget*)> hacer);
    /// Texts of the message boxes that came, in order.
    const QStringList& Mensajes() const { return mensajes_; }

    /// Makes the main window the active one, as a person's first click would.
    void TomarVentana();
    /// Lets the program come to rest.
    void Respirar() const;
    /// A picture of the window with what lies over it.
    void Foto(const QString& nombre);
    const QStringList& Fotos() const { return fotos_; }

private:
    QWidget* encima() const;
    void vigilar();
    void atenderMensaje(QWidget* caja);
    void guardar(const QPixmap& imagen, const QString& nombre);

    struct RespuestaPreparada {
        int boton;
        QString foto;
    };
    QPointer<QWidget> ventana_;
    QString carpeta_;
    QTimer vigia_;
    QPointer<QWidget> atendido_;
    QList<RespuestaPreparada> respuestas_;
    QMap<QString, std::function<void(QWidget*)>> dialogos_;
    QStringList mensajes_, fotos_;
};

}  // namespace padral
