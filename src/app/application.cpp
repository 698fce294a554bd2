#include "app/application.h"

#include <cstdlib>
#include <exception>

#include "core/shared_state.h"
#include "platform/failure.h"

namespace padral {

namespace {

constexpr int TituloPrograma = 641;
constexpr int EstadoDeFallo = 1;

}  // namespace

Aplicacion::Aplicacion(int& argc, char** argv) : QApplication(argc, argv) {
    setApplicationName(QStringLiteral("Padral"));
    // The main window ends the program itself; the splash closing does not.
    setQuitOnLastWindowClosed(false);
}

bool Aplicacion::notify(QObject* receptor, QEvent* evento) {
    try {
        return QApplication::notify(receptor, evento);
    } catch (...) {
        terminarPorExcepcion();
    }
}

void Aplicacion::Proteger(const std::function<void()>& paso) {
    try {
        paso();
    } catch (...) {
        terminarPorExcepcion();
    }
}

void Aplicacion::terminarPorExcepcion() {
    try {
        throw;
    } catch (const Fallo& fallo) {
        terminar(fallo.Castellano(), fallo.Euskera());
    } catch (const std::exception& e) {
        const QString detalle = QString::fromLocal8Bit(e.what());
        terminar(QStringLiteral("Error interno del programa: ") + detalle,
                 QStringLiteral("Programaren barne akatsa: ") + detalle);
    }
}

void Aplicacion::terminar(const QString& castellano, const QString& euskera) {
    // A second failure while the box shows only ends the process.
    if (!terminando_ && alFallar) {
        terminando_ = true;
        try {
            alFallar(castellano, euskera);
        } catch (...) {
            std::_Exit(EstadoDeFallo);
        }
    }
    // At once: no handler that was under way goes on with its work.
    std::_Exit(EstadoDeFallo);
}

void MostrarFallo(const EstadoCompartido& estado, bool idiomaConocido, const QString& castellano,
                  const QString& euskera) {
    const QString texto = idiomaConocido ? estado.SegunIdioma(castellano, euskera)
                                         : castellano + QStringLiteral("\n\n") + euskera;
    estado.avisador.Mostrar({texto, estado.Texto(TituloPrograma), Icono::Error, Botones::Aceptar});
}

}  // namespace padral
