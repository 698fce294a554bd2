#include "core/help/help_window.h"

#include <QDir>
#include <QFileInfo>

#include "core/help/help_browser.h"
#include "platform/program_folder.h"

namespace padral {

namespace {

const QLatin1String Union("::/");

// Where the data lie in the user's own folder, the help has stayed beside the program.
QString carpetaDeAyuda(const EstadoCompartido& estado) {
    const QDir propia(estado.CarpetaPrograma);
    return propia.exists(QStringLiteral("Ayuda")) ? estado.CarpetaPrograma : CarpetaEjecutable();
}

}  // namespace

QString DireccionAyuda(const EstadoCompartido& estado, const QString& carpeta,
                       const QString& tema) {
    const QString fichero =
        estado.SegunIdioma(QStringLiteral("Ayuda.chm"), QStringLiteral("Laguntza.chm"));
    const QChar separador = QDir::separator();
    return carpeta + separador + QStringLiteral("Ayuda") + separador + fichero + Union + tema;
}

QString PaginaAyuda(const QString& direccion) {
    const auto corte = direccion.lastIndexOf(Union);
    const QFileInfo fichero(direccion.left(corte));
    const QString tema = direccion.mid(corte + Union.size());
    return QDir(fichero.path()).filePath(fichero.completeBaseName() + u'/' + tema);
}

void MostrarAyuda(const EstadoCompartido& estado, const QString& tema, QWidget* formulario) {
    const QString nombre = QStringLiteral("frmAyuda");
    QWidget* dueño = formulario->window();
    auto* ventana = dueño->findChild<VentanaAyuda*>(nombre, Qt::FindDirectChildrenOnly);
    if (!ventana) {
        ventana = new VentanaAyuda(dueño);
        ventana->setObjectName(nombre);
    }
    const QString carpeta = carpetaDeAyuda(estado);
    const auto pagina = [&](const QString& de) {
        return PaginaAyuda(DireccionAyuda(estado, carpeta, de));
    };
    ventana->Poner(estado);
    ventana->Abrir(pagina(tema), pagina(estado.SegunIdioma(QStringLiteral("indice.htm"),
                                                           QStringLiteral("aurkibidea.htm"))));
    ventana->show();
    ventana->raise();
    ventana->activateWindow();
}

}  // namespace padral
