#include "core/help/show_help.h"

#include <QDir>
#include <QFileInfo>

#include "platform/program_folder.h"

namespace padral {

namespace {

constexpr int TituloAyuda = 633;
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

QString FicheroAyuda(const QString& direccion) {
    return direccion.left(direccion.lastIndexOf(Union));
}

QString TemaAyuda(const QString& direccion) {
    return direccion.mid(direccion.lastIndexOf(Union) + Union.size());
}

void MostrarAyuda(const EstadoCompartido& estado, VisorAyuda& visor, const QString& tema,
                  QWidget* formulario) {
    const QString direccion = DireccionAyuda(estado, carpetaDeAyuda(estado), tema);
    const QString fichero = FicheroAyuda(direccion);
    if (QFileInfo(fichero).isFile())
        visor.Abrir(direccion, formulario);
    else
        AvisarAyudaAusente(estado, fichero, textos_ayuda::FicheroAusente);
}

void AvisarAyudaAusente(const EstadoCompartido& estado, const QString& ruta,
                        const TextoAyuda& texto) {
    estado.Avisar(texto.En(estado).arg(QDir::toNativeSeparators(ruta)), estado.Texto(TituloAyuda));
}

}  // namespace padral
