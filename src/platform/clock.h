#pragma once
// Time and waits, so that tests can fix both.

#include <QDateTime>

namespace padral {

class Reloj {
public:
    virtual ~Reloj() = default;
    virtual QDateTime Ahora() const = 0;
    /// Waits that many milliseconds, yielding to the event loop.
    virtual void Esperar(int milisegundos) = 0;
};

/// The system's clock.
class RelojSistema : public Reloj {
public:
    QDateTime Ahora() const override;
    void Esperar(int milisegundos) override;
};

}  // namespace padral
