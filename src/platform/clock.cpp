#include "platform/clock.h"

#include <QEventLoop>
#include <QTimer>

namespace padral {

QDateTime RelojSistema::Ahora() const { return QDateTime::currentDateTime(); }

void RelojSistema::Esperar(int milisegundos) {
    QEventLoop bucle;
    QTimer::singleShot(milisegundos, &bucle, &QEventLoop::quit);
    bucle.exec();
}

}  // namespace padral
