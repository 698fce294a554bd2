#include "online/backup/save_as_restore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <filesystem>

#include "platform/failure.h"
#include "store/file_copy.h"

namespace padral::SvrBaseComunLib {

using enum TextoCopia;
using store::CheckedCopy;

namespace {

QString nativo(const QString& ruta) { return QDir::toNativeSeparators(ruta); }

// The nearest folder above that exists and can be written, otherwise the user's own.
QString carpetaCercana(const QString& ruta) {
    QString carpeta = QDir::cleanPath(QFileInfo(ruta).absoluteFilePath());
    while (!QFileInfo(carpeta).isDir() || !QFileInfo(carpeta).isWritable()) {
        const QString encima = QFileInfo(carpeta).absolutePath();
        if (encima == carpeta) return QDir::homePath();
        carpeta = encima;
    }
    return QDir(carpeta).isRoot() ? QDir::homePath() : carpeta;
}

QString carpetaExistente(const QString& ruta) {
    return QFileInfo(ruta).isDir() ? QDir::cleanPath(ruta) : carpetaCercana(ruta);
}

QString carpetaCreada(const QString& ruta) {
    return QDir().mkpath(ruta) ? QDir::cleanPath(ruta) : carpetaCercana(ruta);
}

// Where the file itself lies, when its name is a link to another place.
QString rutaVerdadera(const QString& ruta) {
    const QString verdadera = QFileInfo(ruta).canonicalFilePath();
    return verdadera.isEmpty() ? QFileInfo(ruta).absoluteFilePath() : verdadera;
}

}  // namespace

QString cSaveAsRestore::fechaEscrita(const QDateTime& fecha) const {
    return fecha.toString(texto(Fecha));
}

QString cSaveAsRestore::cuantas(std::optional<int> declaraciones) const {
    if (!declaraciones) return texto(Ilegible);
    return *declaraciones == 1 ? texto(Una) : texto(Varias).arg(*declaraciones);
}

QString cSaveAsRestore::descripcion(const QString& ruta, std::optional<int> declaraciones) const {
    return fechaEscrita(QFileInfo(ruta).lastModified()) + QStringLiteral(", ") +
           cuantas(declaraciones);
}

bool cSaveAsRestore::preguntar(TextoCopia titulo, const QString& pregunta) {
    return avisador_.Mostrar({pregunta, texto(titulo), Icono::Exclamacion, Botones::SiNo}) ==
           Respuesta::Si;
}

void cSaveAsRestore::avisar(TextoCopia titulo, const QString& mensaje, Icono icono) {
    avisador_.Mostrar({mensaje, texto(titulo), icono, Botones::Aceptar});
}

bool cSaveAsRestore::intentar(TextoCopia titulo, TextoCopia fallida,
                              const std::function<bool()>& paso) {
    try {
        return paso();
    } catch (const Fallo& fallo) {
        const QString motivo = Idioma == 0 ? fallo.Castellano() : fallo.Euskera();
        avisar(titulo, texto(fallida).arg(motivo), Icono::Exclamacion);
    } catch (const store::GivenUp&) {
        // The user knows.
    }
    return false;
}

store::GoOn cSaveAsRestore::seguimiento(Progreso& progreso) const {
    return [this, &progreso](store::LongStep paso, int parte) {
        if (paso == store::LongStep::Copying) return progreso.Avanzar(texto(Copiando), parte);
        return progreso.Avanzar(texto(Comprobando), Progreso::Desconocido);
    };
}

void cSaveAsRestore::comprobarDistintos(const QString& uno, const QString& otro) const {
    std::error_code ninguno;
    const bool mismo = std::filesystem::equivalent(QFile::encodeName(uno).toStdString(),
                                                   QFile::encodeName(otro).toStdString(), ninguno);
    if (!mismo) return;
    const QString nombre = nativo(uno);
    throw Fallo(TextoDeCopia(MismoArchivo, 0).arg(nombre),
                TextoDeCopia(MismoArchivo, 1).arg(nombre));
}

void cSaveAsRestore::CrearBackup() {
    const QString carpeta = dialogos_.ElegirCarpeta(
        {texto(ElegirCarpeta), carpetaCreada(RutaDestino), QString(), QString(), Parent});
    if (carpeta.isEmpty()) return;
    const QString destino = QDir(carpeta).absoluteFilePath(ArchivoDestino);
    intentar(TituloCopia, CopiaFallida, [&] {
        return copiar(rutaVerdadera(QDir(RutaOrigen).absoluteFilePath(ArchivoOrigen)), destino);
    });
}

bool cSaveAsRestore::confirmarReemplazo(const QString& destino) {
    if (!QFileInfo::exists(destino)) return true;
    return preguntar(TituloCopia,
                     texto(PreguntaReemplazar)
                         .arg(nativo(QFileInfo(destino).absolutePath()),
                              descripcion(destino, store::CountDeclarations(destino))));
}

bool cSaveAsRestore::copiar(const QString& origen, const QString& destino) {
    comprobarDistintos(destino, origen);
    if (!confirmarReemplazo(destino)) return false;
    const QDateTime ahora = reloj_.Ahora();
    auto progreso = dialogos_.Empezar({texto(TituloCopia), texto(Cancelar), Parent});
    CheckedCopy copia({.source = origen,
                       .place = destino,
                       .sourceInUse = true,
                       .now = ahora,
                       .goOn = seguimiento(*progreso)});
    copia.Install();
    progreso.reset();
    anotar(destino, ahora);
    avisar(TituloCopia,
           texto(CopiaHecha)
               .arg(nativo(destino), fechaEscrita(ahora),
                    QString::number(copia.Summary().declarations)),
           Icono::Informacion);
    return true;
}

void cSaveAsRestore::anotar(const QString& destino, const QDateTime& fecha) const {
    try {
        store::WriteCatalogueNote(
            BDLectura, BDTabla, BDCampo,
            fecha.toString(Qt::ISODate) + u' ' + nativo(QFileInfo(destino).absolutePath()));
    } catch (const Fallo&) {
        // Where the program is installed for reading only, nobody can keep the note.
    }
}

bool cSaveAsRestore::CrearRestore() {
    const QString copia =
        dialogos_.ElegirArchivo({texto(ElegirArchivo), carpetaExistente(RutaOrigen),
                                 FiltroQt(Filtro, Idioma), ArchivoOrigen, Parent});
    if (copia.isEmpty()) return false;
    return intentar(TituloRestauracion, RestauracionFallida, [&] {
        return restaurar(copia, rutaVerdadera(QDir(RutaDestino).absoluteFilePath(ArchivoDestino)));
    });
}

bool cSaveAsRestore::confirmarRestauracion(const QString& copia, int declaraciones,
                                           const QString& actual) {
    const bool hay = QFileInfo::exists(actual);
    const QString ahora =
        hay ? descripcion(actual, store::CountDeclarations(actual)) : texto(SinArchivo);
    return preguntar(TituloRestauracion, texto(PreguntaRestaurar)
                                             .arg(ahora, descripcion(copia, declaraciones),
                                                  hay ? texto(SeConservara) : QString()));
}

// The copy lies beside its place, whole and checked, before the question: what is offered is
// what replaces, whatever happens to the chosen file meanwhile.
bool cSaveAsRestore::restaurar(const QString& copia, const QString& actual) {
    comprobarDistintos(copia, actual);
    auto progreso = dialogos_.Empezar({texto(TituloRestauracion), texto(Cancelar), Parent});
    const QDateTime ahora = reloj_.Ahora();
    CheckedCopy nueva(
        {.source = copia, .place = actual, .now = ahora, .goOn = seguimiento(*progreso)});
    progreso.reset();
    const int declaraciones = nueva.Summary().declarations;
    if (!confirmarRestauracion(copia, declaraciones, actual)) return false;
    const QString conservado = nueva.InstallKeepingOld();
    QString mensaje =
        texto(RestauracionHecha).arg(fechaEscrita(ahora), QString::number(declaraciones));
    if (!conservado.isEmpty()) mensaje += texto(SeConserva).arg(nativo(conservado));
    avisar(TituloRestauracion, mensaje, Icono::Informacion);
    return true;
}

}  // namespace padral::SvrBaseComunLib
