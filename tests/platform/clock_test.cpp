#include "platform/clock.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>

namespace padral {
namespace {

TEST(Reloj, TellsTheTimeOfTheSystem) {
    const QDateTime before = QDateTime::currentDateTime();
    const QDateTime told = RelojSistema().Ahora();
    EXPECT_LE(before, told);
    EXPECT_LE(told, QDateTime::currentDateTime());
}

TEST(Reloj, WaitsAndLetsEventsThrough) {
    bool event = false;
    QTimer::singleShot(0, qApp, [&event] { event = true; });
    QElapsedTimer timer;
    timer.start();
    RelojSistema().Esperar(20);
    EXPECT_TRUE(event);
    EXPECT_GE(timer.elapsed(), 19);
}

}  // namespace
}  // namespace padral
