#pragma once
// The application object: the one handler around the event loop.

#include <QApplication>
#include <functional>

namespace padral {

struct EstadoCompartido;
class Avisador;

/// Everything that fails and is no broken rule ends up here: the error box shows the cause and the
/// process ends with status 1. Files stay as the last finished operation left them.
class Aplicacion : public QApplication {
    Q_OBJECT
public:
    Aplicacion(int& argc, char** argv);

    bool notify(QObject* receptor, QEvent* evento) override;

    /// Runs a step outside the event loop with the same handling.
    void Proteger(const std::function<void()>& paso);
    /// How the cause is shown; set once the run has its message boxes.
    std::function<void(const QString& castellano, const QString& euskera)> alFallar;

private:
    [[noreturn]] void terminar(const QString& castellano, const QString& euskera);
    [[noreturn]] void terminarPorExcepcion();
    bool terminando_ = false;
};

/// Shows a cause in the system's error box, title text 641: in the language of the run, or in both
/// while it is not known.
void MostrarFallo(const EstadoCompartido& estado, bool idiomaConocido, const QString& castellano,
                  const QString& euskera);

}  // namespace padral
