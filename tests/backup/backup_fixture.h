#pragma once
// A program folder with a data folder, and the jobs of backup and restore as the program sets
// them.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "online/backup/save_as_restore.h"
#include "store/new_files.h"
#include "store/store_files.h"
#include "support/recorders.h"
#include "support/recording_chooser.h"

namespace padral::pruebas {

using SvrBaseComunLib::cSaveAsRestore;

class ConCopia : public ::testing::Test {
private:
    QTemporaryDir temporal_;

protected:
    ConCopia() {
        QDir().mkpath(carpeta + QStringLiteral("/Tablas"));
        store::CreateCatalogueFile(lec, [](SQLite::Database&) {});
        ponerDeclaraciones(mod, 3);
        reloj.Hora = QDateTime(QDate(2026, 1, 31), QTime(10, 15, 30));
    }

    /// A declarations file with that many declarations, last written on 20/12/2025 at 09:05.
    static void ponerDeclaraciones(const QString& ruta, int cuantas) {
        QFile::remove(ruta);
        store::CreateDeclarationsFile(ruta);
        SvrDPadral::cDeclaracionesSvr svr;
        svr.mdbname = ruta;
        for (int i = 0; i < cuantas; ++i) svr.GuardarDeclaracion(test::DistinctDeclaration(0, i));
        fechar(ruta, QDateTime(QDate(2025, 12, 20), QTime(9, 5)));
    }
    static void fechar(const QString& ruta, const QDateTime& fecha) {
        QFile fichero(ruta);
        ASSERT_TRUE(fichero.open(QIODevice::ReadWrite));
        ASSERT_TRUE(fichero.setFileTime(fecha, QFileDevice::FileModificationTime));
    }
    /// Declarations in a whole file; -1 when it is none.
    static int declaraciones(const QString& ruta) {
        if (!QFileInfo::exists(ruta)) return -1;
        if (test::Value(ruta, "PRAGMA integrity_check") != QStringLiteral("ok")) return -1;
        return test::Value(ruta, "SELECT count(*) FROM TDeclaraciones").toInt();
    }
    /// Names in a folder, the two files of the program left out.
    static QStringList otros(const QString& ruta) {
        QStringList nombres = QDir(ruta).entryList(QDir::Files | QDir::Hidden, QDir::Name);
        nombres.removeAll(QStringLiteral("DPadralLec.mdb"));
        nombres.removeAll(QStringLiteral("DPadralMod.mdb"));
        return nombres;
    }

    cSaveAsRestore copia(int idioma = 0) { return copia(avisos, idioma); }
    cSaveAsRestore copia(Avisador& avisador, int idioma = 0) {
        cSaveAsRestore objeto(avisador, reloj, dialogos);
        objeto.ArchivoOrigen = QStringLiteral("DPadralMod.mdb");
        objeto.ArchivoDestino = QStringLiteral("DPadralMod_bak.mdb");
        objeto.RutaOrigen = tablas + u'/';
        objeto.RutaDestino = copias + u'/';
        ponerComunes(objeto, idioma);
        return objeto;
    }
    cSaveAsRestore restauracion(int idioma = 0) { return restauracion(avisos, idioma); }
    cSaveAsRestore restauracion(Avisador& avisador, int idioma = 0) {
        cSaveAsRestore objeto(avisador, reloj, dialogos);
        objeto.ArchivoOrigen = QStringLiteral("DPadralMod_bak.mdb");
        objeto.ArchivoDestino = QStringLiteral("DPadralMod.mdb");
        objeto.RutaOrigen = copias + u'/';
        objeto.RutaDestino = tablas + u'/';
        ponerComunes(objeto, idioma);
        return objeto;
    }

    /// Expects a question with yes and no.
    void esperaPregunta(const char* texto, const char* titulo, Respuesta respuesta) {
        avisos.Espera(
            {conRutas(texto), QString::fromUtf8(titulo), Icono::Exclamacion, Botones::SiNo},
            respuesta);
    }
    void esperaAviso(const char* texto, const char* titulo, Icono icono = Icono::Informacion) {
        avisos.Espera({conRutas(texto), QString::fromUtf8(titulo), icono, Botones::Aceptar});
    }
    /// "{}" stands for the program folder.
    QString conRutas(const char* texto) const {
        return QString::fromUtf8(texto).replace(QStringLiteral("{}"), carpeta);
    }

    const QString carpeta = temporal_.path();
    const QString tablas = carpeta + QStringLiteral("/Tablas");
    const QString copias = carpeta + QStringLiteral("/backups");
    const QString mod = tablas + QStringLiteral("/DPadralMod.mdb");
    const QString lec = tablas + QStringLiteral("/DPadralLec.mdb");
    /// Where a backup lies when the folder proposed is taken.
    const QString bak = copias + QStringLiteral("/DPadralMod_bak.mdb");
    GrabadorAvisos avisos;
    RelojFijo reloj;
    GrabadorDialogos dialogos;

private:
    void ponerComunes(cSaveAsRestore& objeto, int idioma) const {
        objeto.Filtro = QStringLiteral("archivos mdb (*.mdb;*.mdb)|*.mdb;mdb");
        objeto.Idioma = idioma;
        objeto.BDLectura = lec;
        objeto.BDTabla = QStringLiteral("TGENERAL");
        objeto.BDCampo = QStringLiteral("BACKUP_TVC");
    }
};

/// With a backup of 2 declarations of 01/01/2026 at 18:30 in its place.
class ConCopiaHecha : public ConCopia {
protected:
    ConCopiaHecha() {
        QDir().mkpath(copias);
        ponerDeclaraciones(bak, 2);
        fechar(bak, QDateTime(QDate(2026, 1, 1), QTime(18, 30)));
        dialogos.Elegido = bak;
    }
};

}  // namespace padral::pruebas
