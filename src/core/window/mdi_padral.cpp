#include "core/window/mdi_padral.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QMenu>
#include <QScreen>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTimer>

#include "ui/art.h"
#include "ui/screen.h"

namespace padral {

namespace {

const QString NombreVentana = QStringLiteral("MDIPadral");

bool tomaFoco(const QWidget* w) {
    return w->isEnabled() && w->isVisibleTo(w->window()) && (w->focusPolicy() & Qt::TabFocus) != 0;
}

}  // namespace

MDIPadral::MDIPadral(EstadoCompartido& estado, GuardiaCampos& guardia, OrdenesDeclaraciones ordenes)
    : estado_(estado), guardia_(guardia), ordenes_(std::move(ordenes)) {
    setObjectName(NombreVentana);
    setWindowIcon(Dibujo(QStringLiteral("program")));
    paginas_ = new QStackedWidget(this);
    fondo_ = new QWidget(paginas_);
    paginas_->addWidget(fondo_);
    setCentralWidget(paginas_);
    crearMenus();
    crearBarra();
    Anadir_captions();
    // Until the first activation has counted the declarations.
    activarDeclaraciones(false);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* ahora) { tenerALaVista(ahora); });
}

MDIPadral::~MDIPadral() {
    // The focus moves while the screens go: that is no leaving, and nobody looks any more.
    guardia_.Olvidar(this);
    disconnect(qApp, nullptr, this, nullptr);
}

void MDIPadral::MostrarEnPantalla() {
    const QSize hueco = screen()->availableGeometry().size();
    const bool cabe = hueco.width() >= sizeHint().width() && hueco.height() >= sizeHint().height();
    resize(sizeHint().boundedTo(hueco));
    if (cabe)
        show();
    else
        showMaximized();
    activateWindow();
}

void MDIPadral::tenerALaVista(QWidget* control) {
    auto* pagina = qobject_cast<QScrollArea*>(paginas_->currentWidget());
    if (pagina && control && pagina->isAncestorOf(control)) pagina->ensureWidgetVisible(control);
}

void MDIPadral::Registrar(const QString& nombre, std::function<QWidget*()> fabrica) {
    fabricas_[nombre] = std::move(fabrica);
}

void MDIPadral::Mostrar(const QString& nombre) {
    if (nombre == NombreVentana) return;
    QWidget* widget = abiertas_.value(nombre);
    const bool cargada = widget != nullptr;
    if (!cargada) {
        widget = fabricas_.value(nombre)();
        abiertas_[nombre] = widget;
    }
    if (auto* dialogo = qobject_cast<QDialog*>(widget)) {
        dialogo->setParent(this, dialogo->windowFlags() | Qt::Dialog);
        dialogo->setAttribute(Qt::WA_DeleteOnClose);
        dialogo->open();
        return;
    }
    auto* pantalla = static_cast<Pantalla*>(widget);
    if (!cargada) {
        pantalla->Cargar();
        auto* hueco = new QScrollArea(paginas_);
        hueco->setFrameShape(QFrame::NoFrame);
        hueco->setWidgetResizable(true);
        hueco->setFocusPolicy(Qt::NoFocus);
        hueco->setWidget(pantalla);
        paginas_->addWidget(hueco);
    }
    for (QWidget* padre = pantalla->parentWidget(); padre; padre = padre->parentWidget())
        if (paginas_->indexOf(padre) >= 0) paginas_->setCurrentWidget(padre);
    DeshabilitarMenus();
    // After a dialog not every window system gives the activation back by itself.
    activateWindow();
    enfocar(pantalla);
}

QString MDIPadral::formularioEnMano() const {
    const auto* pagina = qobject_cast<QScrollArea*>(paginas_->currentWidget());
    return pagina ? pagina->widget()->objectName() : objectName();
}

void MDIPadral::enfocar(Pantalla* pantalla) {
    QWidget* foco = pantalla->FocoInicial();
    if (!foco) {
        foco = pantalla->nextInFocusChain();
        while (foco != pantalla && (!pantalla->isAncestorOf(foco) || !tomaFoco(foco)))
            foco = foco->nextInFocusChain();
    }
    foco->setFocus(Qt::OtherFocusReason);
}

void MDIPadral::Descargar(const QString& nombre) {
    const QPointer<QWidget> widget = abiertas_.take(nombre);
    if (!widget) return;
    guardia_.Olvidar(widget);
    if (auto* dialogo = qobject_cast<QDialog*>(widget)) {
        dialogo->close();
        return;
    }
    for (QWidget* padre = widget->parentWidget(); padre; padre = padre->parentWidget())
        if (paginas_->indexOf(padre) >= 0) {
            paginas_->removeWidget(padre);
            padre->hide();
            padre->deleteLater();
            break;
        }
}

void MDIPadral::DescargarTodosLosFormularios(const QString& nombre) {
    const auto nombres = abiertas_.keys();
    for (const auto& abierta : nombres)
        if (abierta != nombre) Descargar(abierta);
}

void MDIPadral::CursorEspera(bool activo) {
    if (activo == esperando_) return;
    if (activo) {
        esperando_ = true;
        QApplication::setOverrideCursor(Qt::WaitCursor);
        guardia_.SoltarEntradas(true);
        return;
    }
    // What was typed or clicked during the wait is read now, and dropped.
    QApplication::processEvents();
    esperando_ = false;
    guardia_.SoltarEntradas(false);
    QApplication::restoreOverrideCursor();
}

bool MDIPadral::avisarPendientes() {
    if (!HayModificaciones()) return false;
    estado_.avisador.Mostrar(
        {estado_.Texto(665), estado_.Texto(666), Icono::Exclamacion, Botones::Aceptar});
    return true;
}

void MDIPadral::closeEvent(QCloseEvent* evento) {
    if (!cierreDesdeCodigo_) {
        // A command is under way: the click is dropped like any other.
        if (esperando_) {
            evento->ignore();
            return;
        }
        if (!guardia_.ConfirmarCampoEnFoco(this)) {
            evento->ignore();
            return;
        }
        // The warning does not hold the program back: the changes are lost at this way out.
        avisarPendientes();
    }
    DescargarTodosLosFormularios(objectName());
    evento->accept();
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
}

void MDIPadral::changeEvent(QEvent* evento) {
    QMainWindow::changeEvent(evento);
    if (evento->type() == QEvent::ActivationChange && isActiveWindow() && primera_) {
        primera_ = false;
        QTimer::singleShot(0, this, [this] { primeraActivacion(); });
    }
}

void MDIPadral::primeraActivacion() {
    setWindowTitle(estado_.Texto(641));
    if (estado_.act.ActOnline < 0 && primerArranque) {
        primerArranque();
        activateWindow();
    }
    HabilitarMenus();
}

}  // namespace padral
