// The tour: the real program, offscreen, driven through its real widgets. It enters declarations,
// saves, finds, opens and prints them, and leaves a picture of every screen and the printed PDF.

#include <QDir>
#include <QFile>
#include <QTextStream>

#include "app/application.h"
#include "app/tour/visit.h"

namespace padral {

namespace {

int recorrer(const QString& salida) {
    QTextStream consola(stdout);
    QDir().mkpath(salida);
    // What an earlier tour left would be taken for the work of this one.
    const QStringList viejos = {QStringLiteral("*.png"), QStringLiteral("*.pdf")};
    for (const QString& viejo : QDir(salida).entryList(viejos, QDir::Files))
        QFile::remove(salida + u'/' + viejo);
    try {
        for (const QString& idioma : {QStringLiteral("es"), QStringLiteral("eu")})
            Visita(salida, idioma).Recorrer();
    } catch (const GuiaPerdida& e) {
        consola << "The tour stopped: " << e.what() << Qt::endl;
        return 1;
    }
    const auto pdf = QDir(salida).entryList({QStringLiteral("*.pdf")}, QDir::Files, QDir::Name);
    const auto fotos = QDir(salida).entryList({QStringLiteral("*.png")}, QDir::Files);
    consola << "The tour is over: " << fotos.size() << " pictures of the screens (*.png) and "
            << pdf.size() << " printed documents (*.pdf) are in" << Qt::endl
            << "  " << QDir(salida).absolutePath() << Qt::endl;
    for (const QString& fichero : pdf) consola << "  " << fichero << Qt::endl;
    return pdf.isEmpty() || fotos.isEmpty() ? 1 : 0;
}

}  // namespace

}  // namespace padral

int main(int argc, char** argv) {
    padral::Aplicacion aplicacion(argc, argv);
    aplicacion.alFallar = [](const QString& castellano, const QString&) {
        QTextStream(stderr) << castellano << Qt::endl;
    };
    const auto argumentos = QCoreApplication::arguments();
    int estado = 1;
    aplicacion.Proteger(
        [&] { estado = padral::recorrer(argumentos.value(1, QStringLiteral("out"))); });
    return estado;
}
