#pragma once
// Recording implementations of the ports: message boxes, screens, clock.

#include <gtest/gtest.h>

#include <QStringList>
#include <deque>
#include <functional>
#include <vector>

#include "core/message_port.h"
#include "core/screens_port.h"
#include "platform/clock.h"
#include "support/print_text.h"

namespace padral {

/// How a message looks in the report of a failed test.
inline void PrintTo(const Mensaje& m, std::ostream* salida) {
    *salida << '"' << m.texto.toStdString() << "\" title \"" << m.titulo.toStdString() << "\" icon "
            << static_cast<int>(m.icono) << " buttons " << static_cast<int>(m.botones);
}

}  // namespace padral

namespace padral::pruebas {

/// Answers message boxes from a queue. A message that nobody expected fails the test, and so does
/// an expected one that did not come by `Verificar` or the end of the recorder.
class GrabadorAvisos : public Avisador {
public:
    ~GrabadorAvisos() override { Verificar(); }

    /// The next message, in order, and the answer to it.
    void Espera(const Mensaje& mensaje, Respuesta respuesta = Respuesta::Aceptar) {
        esperados_.push_back({mensaje, respuesta});
    }
    /// A message with the information icon and one button.
    void Espera(const QString& texto, const QString& titulo) {
        Espera(Mensaje{texto, titulo, Icono::Informacion, Botones::Aceptar});
    }

    /// The same where the text goes on with what the test cannot know, such as the date of a file.
    void EsperaComienzo(const Mensaje& mensaje, Respuesta respuesta = Respuesta::Aceptar) {
        esperados_.push_back({mensaje, respuesta, true});
    }

    Respuesta Mostrar(const Mensaje& mensaje) override {
        Mostrados.push_back(mensaje);
        if (alMostrar) alMostrar(mensaje);
        if (esperados_.empty()) {
            ADD_FAILURE() << "unexpected message " << ::testing::PrintToString(mensaje);
            return negativa(mensaje.botones);
        }
        const auto esperado = esperados_.front();
        esperados_.pop_front();
        Mensaje comparable = mensaje;
        if (esperado.soloComienzo) comparable.texto.truncate(esperado.mensaje.texto.size());
        EXPECT_EQ(comparable, esperado.mensaje);
        return esperado.respuesta;
    }

    /// Fails the test for each message still expected, and forgets it.
    void Verificar() {
        for (const auto& e : esperados_)
            ADD_FAILURE() << "message did not come: " << ::testing::PrintToString(e.mensaje);
        esperados_.clear();
    }

    std::vector<Mensaje> Mostrados;
    /// Runs while a message shows, e.g. to look at the state of that moment.
    std::function<void(const Mensaje&)> alMostrar;

private:
    static Respuesta negativa(Botones botones) {
        if (botones == Botones::SiNo) return Respuesta::No;
        return botones == Botones::AceptarCancelar ? Respuesta::Cancelar : Respuesta::Aceptar;
    }

    struct Esperado {
        Mensaje mensaje;
        Respuesta respuesta;
        bool soloComienzo = false;
    };
    std::deque<Esperado> esperados_;
};

/// Records what a screen asks of the main window, in order: "Mostrar FrmDatGen",
/// "Descargar FrmDecLista", "HabilitarMenus", "DeshabilitarMenus". The wait cursor is counted
/// apart; a wait that never ends fails the test.
class GrabadorPantallas : public Pantallas {
public:
    ~GrabadorPantallas() override { EXPECT_EQ(esperas_, 0) << "a wait has not ended"; }

    void Mostrar(const QString& nombre) override { anotar(QStringLiteral("Mostrar ") + nombre); }
    void Descargar(const QString& nombre) override {
        anotar(QStringLiteral("Descargar ") + nombre);
    }
    void HabilitarMenus() override { anotar(QStringLiteral("HabilitarMenus")); }
    void DeshabilitarMenus() override { anotar(QStringLiteral("DeshabilitarMenus")); }
    void CursorEspera(bool activo) override {
        esperas_ += activo ? 1 : -1;
        if (activo) ++EsperasTotales;
    }

    /// The calls since the last time they were taken.
    QStringList Tomar() { return std::exchange(Llamadas, {}); }
    bool EnEspera() const { return esperas_ > 0; }

    QStringList Llamadas;
    int EsperasTotales = 0;
    /// Runs after each call is recorded, with its text.
    std::function<void(const QString&)> alLlamar;

private:
    void anotar(const QString& llamada) {
        Llamadas << llamada;
        if (alLlamar) alLlamar(llamada);
    }
    int esperas_ = 0;
};

/// A clock that stands still; waits end at once and move it on.
class RelojFijo : public Reloj {
public:
    QDateTime Hora{QDate(2015, 6, 15), QTime(10, 30)};

    QDateTime Ahora() const override { return Hora; }
    void Esperar(int milisegundos) override { Hora = Hora.addMSecs(milisegundos); }
};

}  // namespace padral::pruebas
