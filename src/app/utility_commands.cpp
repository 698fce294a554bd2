#include "app/utility_commands.h"

#include <QApplication>

#include "core/startup.h"
#include "online/backup/maintenance.h"
#include "online/frm_sin_conexion.h"
#include "online/frm_version_check.h"

namespace padral {

namespace {

constexpr int TextoSinNavegador = 825, TituloSinNavegador = 826, TituloServicio = 831;

}  // namespace

ComandosUtilidades::ComandosUtilidades(PuertosUtilidades puertos, const Contexto& contexto,
                                       MDIPadral& ventana, std::function<void()> ponerIdioma)
    : traspasar(TraspasarDatos),
      puertos_(std::move(puertos)),
      contexto_(contexto),
      ventana_(ventana),
      ponerIdioma_(std::move(ponerIdioma)) {
    if (!puertos_.descarga || !puertos_.navegador) return;
    // Over the dialog that asked; alone while the splash shows: the window is not there yet.
    const auto padre = [this]() -> QWidget* {
        if (QWidget* dialogo = QApplication::activeModalWidget()) return dialogo;
        return ventana_.isVisible() ? &ventana_ : nullptr;
    };
    actualizacion_ = std::make_unique<ActualizacionOnline>(
        contexto_.estado, *puertos_.descarga, *puertos_.navegador,
        DialogosActualizacion{
            [this, padre] { FrmVersionCheck(contexto_, OrdenesDeVersion(), padre()).exec(); },
            [this, padre] { FrmSinConexion(contexto_, padre()).exec(); },
            [this] { return preferencias_ && preferencias_->isVisible(); }});
}

OrdenesVersion ComandosUtilidades::OrdenesDeVersion() {
    if (!actualizacion_) return {};
    return {[this] { actualizacion_->ComprobarVersion(); },
            [this](const QString& url) { actualizacion_->AbrirPaginaDescarga(url); },
            puertos_.terminar};
}

void ComandosUtilidades::Conectar() {
    ventana_.PonerComando(QStringLiteral("mnuPreferencias"), [this] { mostrarPreferencias(); });
    if (puertos_.dialogosCopia) conectarCopias();
    if (puertos_.navegador) conectarAyudaOnline();
}

void ComandosUtilidades::mostrarPreferencias() {
    frmPreferencias dialogo(contexto_, ponerIdioma_, OrdenesDeVersion(), &ventana_);
    preferencias_ = &dialogo;
    dialogo.exec();
}

void ComandosUtilidades::conectarCopias() {
    ventana_.PonerComando(QStringLiteral("mnuBackup"), [this] {
        HacerCopia(contexto_.estado, *puertos_.dialogosCopia, &ventana_);
    });
    ventana_.PonerComando(QStringLiteral("mnuRestore"), [this] { restaurar(); });
}

void ComandosUtilidades::restaurar() {
    const PasosTrasRestaurar pasos{[this] {
                                       const Espera espera(ventana_);
                                       return traspasar(contexto_.estado);
                                   },
                                   [this] { InicializarSesion(contexto_.estado); }, ponerIdioma_,
                                   [this] { ventana_.HabilitarMenus(); }};
    if (RestaurarCopia(contexto_.estado, *puertos_.dialogosCopia, &ventana_, pasos))
        puertos_.terminar();
}

void ComandosUtilidades::conectarAyudaOnline() {
    const auto pedir = [this](void (SvrBaseComunLib::cMiscelaneos::*que)() const, bool conVentana) {
        const auto comun =
            std::make_shared<SvrBaseComunLib::cMiscelaneos>(SvrBaseComunLib::ServicioOnline{
                [this](const QString& direccion) { abrirDireccion(direccion); },
                [this](const QString& texto, quintptr) { describirServicio(texto); }});
        contexto_.estado.ObjComun = comun;
        comun->Idioma = contexto_.estado.DesplazamientoIdioma;
        if (conVentana) comun->Parent = ventana_.winId();
        (comun.get()->*que)();
        contexto_.estado.ObjComun.reset();
    };
    using SvrBaseComunLib::cMiscelaneos;
    ventana_.PonerComando(QStringLiteral("mnuDescripAsisOnline"),
                          [pedir] { pedir(&cMiscelaneos::MostrarOnlineInfo, true); });
    ventana_.PonerComando(QStringLiteral("mnuAsisOnline"),
                          [pedir] { pedir(&cMiscelaneos::AccesoAyuOnline, false); });
}

void ComandosUtilidades::abrirDireccion(const QString& direccion) {
    const QString programa = puertos_.navegador->Buscar(direccion);
    if (programa.isEmpty() || !puertos_.navegador->Abrir(programa, direccion))
        contexto_.estado.Avisar(TextoSinNavegador, TituloSinNavegador);
}

void ComandosUtilidades::describirServicio(const QString& texto) {
    contexto_.estado.Avisar(texto, contexto_.estado.Texto(TituloServicio));
}

}  // namespace padral
