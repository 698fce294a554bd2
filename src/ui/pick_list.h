#pragma once

#include <QListWidget>
#include <QPointer>

#include "store/row.h"

namespace padral {

/// A catalogue list (key and text) that lies over its screen, its parent, while the user picks a
/// row. It hides when the focus goes elsewhere in the window. Picking and Esc give the focus back
/// to the widget that had it, before their signal. Its owner names it for accessibility tools.
class ListaEleccion : public QListWidget {
    Q_OBJECT
public:
    explicit ListaEleccion(const QString& nombre, QWidget* padre = nullptr);
    ~ListaEleccion() override;

    /// Takes the rows of a table of key and text, in their order.
    void Cargar(const Tabla& filas);
    /// Text of the row of that key; "" when there is none. Case is ignored; digits alone mean the
    /// key of that number.
    QString Buscar(const QString& clave) const;
    /// Shows it below `ancla`, or above where there is more room, selects the row with that text,
    /// or the first one, scrolls to it and takes the focus.
    void Abrir(const QString& texto, const QWidget* ancla);

Q_SIGNALS:
    /// A row was picked, by a double click or by Enter; the list is hidden already.
    void elegida(const QString& clave, const QString& texto, bool conIntro);
    /// Esc hid the list.
    void abandonada();

protected:
    void keyPressEvent(QKeyEvent* evento) override;

private:
    void elegir(bool conIntro);
    void cerrar();
    void recordarFoco();
    void alCambiarFoco(const QWidget* ahora);
    int altoFila() const;
    QSize tamanoPedido();
    void colocar(const QWidget* ancla);

    Tabla filas_;
    QPointer<QWidget> volver_;  ///< had the focus when the list opened
};

}  // namespace padral
