#include "platform/program_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include "platform/failure.h"

namespace padral {

namespace {

QString sinSeparadorFinal(QString ruta) {
    ruta = QDir::toNativeSeparators(QDir::cleanPath(ruta));
    while (ruta.endsWith(QDir::separator())) ruta.chop(1);
    return ruta;
}

[[noreturn]] void fallar(const QString& ruta) {
    const QString nombre = QDir::toNativeSeparators(ruta);
    throw Fallo(QStringLiteral("No se puede escribir en «%1».").arg(nombre),
                QStringLiteral("Ezin da «%1» helbidean idatzi.").arg(nombre));
}

// The original may be read-only; the copy is the user's own.
void copiarFichero(const QString& origen, const QString& destino) {
    if (!QFile::copy(origen, destino)) fallar(destino);
    QFile copia(destino);
    if (!copia.setPermissions(copia.permissions() | QFile::ReadOwner | QFile::WriteOwner))
        fallar(destino);
}

void copiarCarpeta(const QString& origen, const QString& destino) {
    if (!QDir().mkpath(destino)) fallar(destino);
    QDirIterator entradas(origen, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden);
    while (entradas.hasNext()) {
        const QFileInfo entrada(entradas.next());
        const QString copia = QDir(destino).filePath(entrada.fileName());
        if (entrada.isDir())
            copiarCarpeta(entrada.filePath(), copia);
        else
            copiarFichero(entrada.filePath(), copia);
    }
}

// Copied under another name first, so that a copy that broke off is not taken for a whole one.
void llenarUnaVez(const QString& origen, const QString& destino) {
    if (QFileInfo::exists(destino) || !QFileInfo(origen).isDir()) return;
    const QString parcial = destino + QStringLiteral(".nuevo");
    QDir(parcial).removeRecursively();
    copiarCarpeta(origen, parcial);
    if (!QDir().rename(parcial, destino)) fallar(destino);
}

// Whether a folder, or one that can be made there, takes files.
bool seEscribe(const QString& carpeta) {
    const QFileInfo info(carpeta);
    return info.exists() ? info.isDir() && info.isWritable() : QFileInfo(info.path()).isWritable();
}

}  // namespace

QString BaseTablas(const QString& programa) {
    const auto posicion = programa.indexOf(QStringLiteral("cliente"), 0, Qt::CaseInsensitive);
    // The folder name goes together with the separator before it.
    return posicion < 0 ? programa : programa.left(posicion > 0 ? posicion - 1 : 0);
}

QString CarpetaEjecutable() { return sinSeparadorFinal(QCoreApplication::applicationDirPath()); }

QString CarpetaPrograma(const QString& ejecutable, const QString& usuario) {
    const QString programa = sinSeparadorFinal(ejecutable);
    const auto tablasDe = [](const QString& carpeta) {
        return QDir(carpeta).filePath(QStringLiteral("Tablas"));
    };
    const QString propias = tablasDe(programa), deUsuario = tablasDe(usuario);
    if (seEscribe(propias) || seEscribe(tablasDe(BaseTablas(programa)))) return programa;
    if (!QFileInfo(propias).isDir() && !QFileInfo(deUsuario).isDir()) return programa;
    if (!QDir().mkpath(usuario)) fallar(usuario);
    llenarUnaVez(propias, deUsuario);
    return sinSeparadorFinal(usuario);
}

QString CarpetaPrograma() {
    const QString datos = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return CarpetaPrograma(CarpetaEjecutable(), QDir(datos).filePath(QStringLiteral("padral")));
}

}  // namespace padral
