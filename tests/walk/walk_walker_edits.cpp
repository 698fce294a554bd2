// Editing the screen in hand: which control, and what with it.

#include <QCheckBox>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTableView>
#include <QToolButton>

#include "ui/fields.h"
#include "walk/walk_controls.h"
#include "walk/walk_hand.h"
#include "walk/walk_walker.h"

namespace padral::pruebas {

namespace {

/// Controls that a careful user may change in a declaration that can be saved.
const QRegularExpression& inocuos() {
    static const QRegularExpression patron(QRegularExpression::anchoredPattern(QStringLiteral(
        "txtNumeroArchivo|numNum.*|txtDom.*|numTel.*|txtAnagrama|num(Fax|Movil|Fijo)|txtNombre|"
        "txtRepDomicilio|txtNacionalidad.*|txtSinEpigrafe|txtTelefono|txtNumero|txtDomicilio|"
        "numPorcenIVA|chkLim.*|chkDest.*|chkRevPais.*|chkCastellano|chkEuskera|chkPostal|"
        "chkElectronico|chk1[789]?|chk20?|Pestaña|chkEDModulos.|flx.*|CmdVerParticipe|"
        "cmdAceptar")));
    return patron;
}

/// Boxes that clear sections, and those that few users touch twice.
const QRegularExpression& raros() {
    static const QRegularExpression patron(QRegularExpression::anchoredPattern(
        QStringLiteral("chkDeclaracion.*|chkApartado.|chkAnexoII|cmdTodos|CmdEliminar|cmdBuscar")));
    return patron;
}

/// Buttons that edit nothing: the ways out are chosen apart.
const QRegularExpression& salidas() {
    static const QRegularExpression patron(QRegularExpression::anchoredPattern(QStringLiteral(
        "cmd(Inicio|Cancelar|Anterior|Siguiente|Apartado.*|Anexo.*|Imprimir|Volver)")));
    return patron;
}

bool esMando(const QWidget* w) {
    if (const auto* campo = qobject_cast<const QLineEdit*>(w))
        return !qobject_cast<const QComboBox*>(campo->parentWidget());
    return qobject_cast<const QComboBox*>(w) || qobject_cast<const QAbstractButton*>(w) ||
           qobject_cast<const QTabBar*>(w) || qobject_cast<const QTableView*>(w);
}

}  // namespace

QList<QWidget*> Paseante::editables(const QWidget* pantalla) const {
    QList<QWidget*> lista;
    const bool generales = pantalla->objectName() == QStringLiteral("FrmDatGen");
    for (QWidget* w : pantalla->findChildren<QWidget*>()) {
        const QString nombre = w->objectName();
        if (nombre.isEmpty() || nombre.startsWith(QStringLiteral("qt_")) || !w->isVisible())
            continue;
        if (!w->isEnabled() || !esMando(w) || salidas().match(nombre).hasMatch()) continue;
        if (generales && nombre == QStringLiteral("cmdAceptar")) continue;
        lista << w;
    }
    return lista;
}

bool Paseante::inocuo(const QWidget* control) const {
    if (!inocuos().match(control->objectName()).hasMatch()) return false;
    if (const auto* campo = qobject_cast<const QLineEdit*>(control))
        return !campo->isReadOnly() && (!campo->text().isEmpty() ||
                                        campo->objectName() == QStringLiteral("txtNumeroArchivo"));
    const auto* boton = qobject_cast<const QAbstractButton*>(control);
    return !boton || !boton->isChecked();
}

Paseante::Hecho Paseante::elegirEdicion(QWidget* pantalla) {
    auto controles = editables(pantalla);
    if (prudente_) controles.removeIf([this](const QWidget* w) { return !inocuo(w); });
    // Those that clear much come up now and then only.
    if (!azar_.PorCiento(10))
        controles.removeIf(
            [](const QWidget* w) { return raros().match(w->objectName()).hasMatch(); });
    if (controles.isEmpty()) return elegirSalida(pantalla);
    return editar(azar_.Uno(controles));
}

Paseante::Hecho Paseante::editar(QWidget* control) {
    if (auto* campo = qobject_cast<QLineEdit*>(control)) return escribir(campo, prudente_);
    if (auto* combo = qobject_cast<QComboBox*>(control)) return elegir(combo, azar_.Hasta(7) - 3);
    if (auto* barra = qobject_cast<QTabBar*>(control))
        return [=, indice = azar_.Hasta(barra->count())] {
            PulsarPestana(barra, indice);
            return Accion{barra->objectName(), QStringLiteral("tab %1").arg(indice), {}};
        };
    if (auto* tabla = qobject_cast<QTableView*>(control)) {
        const int filas = tabla->model()->rowCount();
        const int fila = filas > 0 ? azar_.Hasta(std::min(filas, 8)) : 0;
        return [=, doble = azar_.PorCiento(15)] {
            PulsarFila(tabla, tabla->model()->index(fila, 1), doble);
            return Accion{tabla->objectName(), QStringLiteral("row %1").arg(fila), {}};
        };
    }
    if (qobject_cast<QCheckBox*>(control) || qobject_cast<QRadioButton*>(control))
        return marcar(control);
    return pulsar(control->objectName());
}

Paseante::Hecho Paseante::hacerTarea(QWidget* pantalla) {
    const Tarea tarea = tareas_.takeFirst();
    auto* control = pantalla->findChild<QWidget*>(tarea.control);
    const bool puede = control && control->isVisible() && control->isEnabled();
    if (!puede) return elegirPaso();
    if (auto* campo = qobject_cast<QLineEdit*>(control))
        return escribir(campo, {tarea.texto, std::nullopt}, true);
    if (auto* combo = qobject_cast<QComboBox*>(control)) return elegir(combo, tarea.texto.toInt());
    const auto* casilla = qobject_cast<QAbstractButton*>(control);
    if (casilla && casilla->isChecked()) return elegirPaso();
    if (tarea.control.startsWith(QStringLiteral("cmd"))) return pulsar(tarea.control);
    return marcar(control);
}

Paseante::Hecho Paseante::escribir(QLineEdit* campo, bool soloValidos) {
    const bool euskera = programa_.estado().DesplazamientoIdioma != 0;
    const auto escrito = ElegirEscrito(formulario_, *campo, euskera, soloValidos, azar_);
    return escribir(campo, escrito, soloValidos || azar_.PorCiento(90));
}

Paseante::Hecho Paseante::escribir(QLineEdit* campo, const Escrito& escrito, bool saliendo) {
    const auto salida = !saliendo             ? Salida::Ninguna
                        : azar_.PorCiento(20) ? Salida::Intro
                                              : Salida::Tabulador;
    return [=, this] {
        const QString nombre = campo->objectName();
        const bool bloqueado = campo->isReadOnly();
        const bool escribio = EscribirEn(campo, escrito.teclas, salida);
        Accion accion{nombre, QStringLiteral("type \"%1\" in %2").arg(escrito.teclas, nombre), {}};
        accion.enEspera = escribio && salida == Salida::Ninguna;
        if (accion.enEspera) accion.descripcion += QStringLiteral(" and stay");
        if (escribio && !bloqueado) accion.queda = escrito.queda;
        return accion;
    };
}

Paseante::Hecho Paseante::marcar(QWidget* casilla) {
    const bool tecla = azar_.PorCiento(25);
    return [=, this] {
        const QString nombre = casilla->objectName();
        Accion accion{
            nombre, (tecla ? QStringLiteral("space on ") : QStringLiteral("click ")) + nombre, {}};
        if (const auto* mando = MandoDe(formulario_, nombre)) {
            const bool estaba = valor_(mando->propiedad) == mando->valor;
            const bool opcion = qobject_cast<QRadioButton*>(casilla) != nullptr;
            accion.queda = estaba && !opcion ? QString() : mando->valor;
        }
        if (!PulsarEn(casilla, tecla)) accion.queda.reset();
        return accion;
    };
}

Paseante::Hecho Paseante::elegir(QComboBox* combo, int pasos) {
    return [=] {
        const QString nombre = combo->objectName();
        ElegirEn(combo, pasos == 0 ? 1 : pasos);
        return Accion{nombre, QStringLiteral("choose %1 in %2").arg(pasos).arg(nombre), {}};
    };
}

Paseante::Hecho Paseante::pulsar(const QString& control) {
    return [=, this] {
        auto* pantalla = PantallaAbierta(programa_.ventana());
        PulsarEn(pantalla->findChild<QWidget*>(control));
        return Accion{control, QStringLiteral("click ") + control, {}};
    };
}

}  // namespace padral::pruebas
