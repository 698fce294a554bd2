// Menus and tool bar of the main window, and their commands.

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <array>

#include "core/help/help_topics.h"
#include "core/window/mdi_padral.h"
#include "ui/art.h"

namespace padral {

namespace {

/// Menus and entries with their texts, in the order in which they stand. `menu` is where an entry
/// lies; "" is the bar. Entries are off until they have a command.
struct EntradaMenu {
    const char16_t* nombre;
    const char16_t* menu;
    int texto;
    bool esMenu;
};
constexpr std::array<EntradaMenu, 15> Entradas = {{
    {u"mnudeclaraciones", u"", 627, true},
    {u"mnuabrir", u"mnudeclaraciones", 646, false},
    {u"mnueliminar", u"mnudeclaraciones", 647, false},
    {u"mnunueva", u"mnudeclaraciones", 630, false},
    {u"mnuutilidades", u"", 631, true},
    {u"mnuBackup", u"mnuutilidades", 828, false},
    {u"mnuRestore", u"mnuutilidades", 829, false},
    {u"Separador", u"mnuutilidades", 0, false},
    {u"mnuPreferencias", u"mnuutilidades", 814, false},
    {u"mnuAsistenciaOnline", u"mnuutilidades", 830, true},
    {u"mnuDescripAsisOnline", u"mnuAsistenciaOnline", 831, false},
    {u"mnuAsisOnline", u"mnuAsistenciaOnline", 830, false},
    {u"mnuayuda", u"", 648, true},
    {u"mnucontenido", u"mnuayuda", 700, false},
    {u"mnuabout", u"mnuayuda", 701, false},
}};

/// Buttons of the tool bar; positions 1 and 6 are separators.
struct BotonBarra {
    const char16_t* clave;
    const char16_t* dibujo;
    int ayuda;
};
constexpr std::array<BotonBarra, 5> BotonesBarra = {{
    {u"Nueva", u"new", 642},
    {u"Abrir", u"open", 643},
    {u"Borrar", u"delete", 644},
    {u"Salir", u"exit", 645},
    {u"Ayuda", u"help", 633},
}};
constexpr std::size_t PosicionAyuda = 4;

}  // namespace

void MDIPadral::crearMenus() {
    for (const auto& e : Entradas) {
        const QString nombre = QString::fromUtf16(e.nombre);
        QMenu* padre = menus_.value(QString::fromUtf16(e.menu));
        if (e.esMenu) {
            auto* menu = padre ? padre->addMenu(QString()) : menuBar()->addMenu(QString());
            menu->setObjectName(nombre);
            menus_[nombre] = menu;
            continue;
        }
        QAction* accion = e.texto == 0 ? padre->addSeparator() : padre->addAction(QString());
        accion->setObjectName(nombre);
        accion->setEnabled(false);
        acciones_[nombre] = accion;
    }
    conectar(QStringLiteral("mnuabrir"),
             [this] { abrirLista(QStringLiteral("C"), QStringLiteral("A"), true); });
    conectar(QStringLiteral("mnueliminar"),
             [this] { abrirLista(QStringLiteral("E"), QStringLiteral("E"), true); });
    conectar(QStringLiteral("mnunueva"), [this] { nueva(); });
    conectar(QStringLiteral("mnucontenido"), [this] { ayuda(formularioEnMano()); });
    acciones_[QStringLiteral("mnucontenido")]->setShortcut(QKeySequence::HelpContents);
}

void MDIPadral::conectar(const QString& entrada, std::function<void()> hacer) {
    QAction* accion = acciones_[entrada];
    accion->setEnabled(true);
    connect(accion, &QAction::triggered, this, [this, hacer = std::move(hacer)] { orden(hacer); });
}

void MDIPadral::PonerComando(const QString& entrada, std::function<void()> comando) {
    conectar(entrada, [this, comando = std::move(comando)] {
        CursorEspera(false);
        comando();
    });
}

void MDIPadral::crearBarra() {
    auto* barra = addToolBar(QString());
    barra->setObjectName(QStringLiteral("tbrbarrabotones"));
    barra->setMovable(false);
    barra->setContextMenuPolicy(Qt::PreventContextMenu);
    barra->setIconSize(QSize(28, 28));
    const std::array<std::function<void()>, BotonesBarra.size()> ordenes = {
        [this] { nueva(); },
        [this] { abrirLista(QStringLiteral("C"), QStringLiteral("A"), false); },
        [this] { abrirLista(QStringLiteral("E"), QStringLiteral("E"), false); },
        [this] { salir(); },
        [this] { ayuda(formularioEnMano()); },
    };
    barra->addSeparator();
    for (std::size_t i = 0; i < BotonesBarra.size(); ++i) {
        if (i == PosicionAyuda) barra->addSeparator();
        auto* boton = barra->addAction(Dibujo(QString::fromUtf16(BotonesBarra[i].dibujo)), {});
        boton->setObjectName(QString::fromUtf16(BotonesBarra[i].clave));
        connect(boton, &QAction::triggered, this, [this, hacer = ordenes[i]] { orden(hacer); });
        botones_[i] = boton;
    }
}

void MDIPadral::Anadir_captions() {
    setWindowTitle(estado_.Texto(641));
    for (const auto& e : Entradas) {
        if (e.texto == 0) continue;
        const QString nombre = QString::fromUtf16(e.nombre);
        if (e.esMenu)
            menus_[nombre]->setTitle(estado_.Texto(e.texto));
        else
            acciones_[nombre]->setText(estado_.Texto(e.texto));
    }
    for (std::size_t i = 0; i < BotonesBarra.size(); ++i) {
        botones_[i]->setText(estado_.Texto(BotonesBarra[i].ayuda));
        botones_[i]->setToolTip(estado_.Texto(BotonesBarra[i].ayuda));
    }
    // The access key of the help menu belongs to the open screen's own buttons while there is one.
    if (hayPantalla_) {
        auto* menu = menus_[QStringLiteral("mnuayuda")];
        menu->setTitle(menu->title().remove(u'&'));
    }
}

void MDIPadral::activarDeclaraciones(bool activo) {
    const bool hay = activo && estado_.mdi.NUMDECLA >= 1;
    menus_[QStringLiteral("mnudeclaraciones")]->setEnabled(activo);
    menus_[QStringLiteral("mnuutilidades")]->setEnabled(activo);
    botones_[0]->setEnabled(activo);
    botones_[1]->setEnabled(hay);
    botones_[2]->setEnabled(hay);
    if (!activo) return;
    acciones_[QStringLiteral("mnuabrir")]->setEnabled(hay);
    acciones_[QStringLiteral("mnueliminar")]->setEnabled(hay);
}

void MDIPadral::HabilitarMenus() {
    estado_.mdi.InicializarContadores();
    hayPantalla_ = false;
    Anadir_captions();
    activarDeclaraciones(true);
}

void MDIPadral::DeshabilitarMenus() {
    hayPantalla_ = true;
    Anadir_captions();
    activarDeclaraciones(false);
}

void MDIPadral::orden(const std::function<void()>& hacer) {
    if (!guardia_.ConfirmarCampoEnFoco(this)) return;
    const Espera espera(*this);
    hacer();
}

void MDIPadral::abrirLista(const QString& modo, const QString& entrada, bool desdeMenu) {
    if (desdeMenu) estado_.ModificacionesPendientes = false;
    ordenes_.empezar(modo, entrada);
    estado_.FormularioOrigen = QStringLiteral("MDIPadral");
    Mostrar(QStringLiteral("FrmDecLista"));
    DeshabilitarMenus();
}

void MDIPadral::nueva() {
    estado_.ModificacionesPendientes = false;
    ordenes_.empezar(QStringLiteral("A"), QString());
    estado_.FormularioOrigen = QStringLiteral("MDIPadral");
    Mostrar(QStringLiteral("FrmDatGen"));
    DeshabilitarMenus();
}

void MDIPadral::ayuda(const QString& formulario) {
    if (mostrarAyuda) mostrarAyuda(TemaDe(estado_, formulario));
}

void MDIPadral::AyudaDe(const QString& formulario) {
    // A command is under way: the key is dropped like any other.
    if (esperando_) return;
    orden([&] { ayuda(formulario == objectName() ? formularioEnMano() : formulario); });
}

void MDIPadral::salir() {
    if (avisarPendientes()) return;
    cierreDesdeCodigo_ = true;
    close();
}

}  // namespace padral
