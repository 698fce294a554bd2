#pragma once
// Leaving a field runs its check at once, whatever leaves it: mouse, Tab, access key, Enter, menu.

#include <QHash>
#include <QObject>
#include <QPointer>
#include <functional>

class QAbstractButton;
class QFocusEvent;
class QWidget;

namespace padral {

/// One per application. Fields register the check that runs when they lose the focus; a check
/// that returns false has shown its message, and the guard brings the focus back and swallows the
/// command that left the field. Losing the focus to another window or to a menu is no leaving.
class GuardiaCampos : public QObject {
    Q_OBJECT
public:
    using Comprobacion = std::function<bool()>;

    explicit GuardiaCampos(QObject* padre = nullptr);

    /// `alSalir` stores the value of the field or refuses it. It must do nothing for a value that
    /// is stored already.
    void Registrar(QWidget* campo, const Comprobacion& alSalir);
    /// Forgets all fields of a screen that is unloaded; no check of theirs runs any more.
    void Olvidar(QWidget* pantalla);
    /// Runs the check of the field in focus, if it has one. False: it was refused. `ventana` tells
    /// whose field is meant while no window is active.
    bool ConfirmarCampoEnFoco(const QWidget* ventana = nullptr);
    /// What a button does on a click: the button takes the focus first, and the command runs
    /// unless the field left was refused. `alRechazar` then puts the button back as it was.
    void Orden(QAbstractButton* boton, std::function<void()> orden,
               std::function<void()> alRechazar = {});
    /// While true, keys and mouse are dropped.
    void SoltarEntradas(bool activo) { soltar_ = activo; }

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    bool comprobar(QWidget* campo);
    bool dejaElCampo(QObject* objeto, QFocusEvent* evento);
    bool rechazaSoltado(QObject* objeto);

    QHash<QObject*, Comprobacion> campos_;
    QPointer<QWidget> enCurso_;
    bool rechazado_ = false;
    bool soltar_ = false;
};

}  // namespace padral
