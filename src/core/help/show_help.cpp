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
        AvisarAyudaAusente(estado, fichero,
                           QStringLiteral("No se encuentra el fichero de ayuda «%1»."),
                           QStringLiteral("Ez da «%1» laguntza-fitxategia aurkitu."));
}

void AvisarAyudaAusente(const EstadoCompartido& estado, const QString& ruta,
                        const QString& castellano, const QString& euskera) {
    estado.Avisar(estado.SegunIdioma(castellano, euskera).arg(QDir::toNativeSeparators(ruta)),
                  estado.Texto(TituloAyuda));
}

}  // namespace padral
