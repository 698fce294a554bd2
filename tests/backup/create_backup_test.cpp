// Creating a backup.

#include <SQLiteCpp/Database.h>

#include "backup_fixture.h"

namespace padral::pruebas {
namespace {

constexpr auto TituloCrear = "Crear copia de seguridad";

class CrearCopia : public ConCopia {
protected:
    CrearCopia() { dialogos.Elegido = copias; }
    void esperaHecha(const char* fichero = "{}/backups/DPadralMod_bak.mdb") {
        const QByteArray mensaje = QByteArray("Se ha creado la copia de seguridad.\n\nArchivo: ") +
                                   fichero + "\nFecha: 31/01/2026 10:15\nDeclaraciones: 3";
        esperaAviso(mensaje.constData(), TituloCrear);
    }
    void esperaFallida(const char* motivo) {
        const QByteArray mensaje = QByteArray("No se ha podido crear la copia de seguridad.\n\n") +
                                   motivo + "\n\nNo se ha cambiado nada.";
        esperaAviso(mensaje.constData(), TituloCrear, Icono::Exclamacion);
    }
    QString nota() const { return test::Value(lec, "SELECT BACKUP_TVC FROM TGENERAL"); }
};

TEST_F(CrearCopia, StartsInItsFolderAndMakesIt) {
    ASSERT_FALSE(QFileInfo::exists(copias));
    dialogos.Elegido.clear();
    dialogos.alElegir = [this] { EXPECT_TRUE(QFileInfo(copias).isDir()); };
    copia().CrearBackup();
    ASSERT_EQ(dialogos.Elecciones.size(), 1U);
    EXPECT_EQ(dialogos.Elecciones[0].titulo,
              QStringLiteral("Elija la carpeta para la copia de seguridad"));
    EXPECT_EQ(dialogos.Elecciones[0].carpeta, copias);
}

TEST_F(CrearCopia, StartsInTheNearestFolderWhenItsOwnCannotBeMade) {
    test::Overwrite(copias, "a file of that name");
    dialogos.Elegido.clear();
    copia().CrearBackup();
    ASSERT_EQ(dialogos.Elecciones.size(), 1U);
    EXPECT_EQ(dialogos.Elecciones[0].carpeta, carpeta);
}

TEST_F(CrearCopia, StartsAtHomeWhenNoFolderIsNear) {
    auto objeto = copia();
    objeto.RutaDestino = QStringLiteral("/proc/none/backups/");
    dialogos.Elegido.clear();
    objeto.CrearBackup();
    ASSERT_EQ(dialogos.Elecciones.size(), 1U);
    const QString inicio = dialogos.Elecciones[0].carpeta;
    EXPECT_TRUE(inicio == QDir::homePath() || inicio == QStringLiteral("/proc"))
        << inicio.toStdString();
}

TEST_F(CrearCopia, WritesTheCopyAndSaysSo) {
    esperaHecha();
    const QByteArray antes = test::Bytes(mod);
    copia().CrearBackup();
    EXPECT_EQ(declaraciones(bak), 3);
    EXPECT_EQ(otros(copias), QStringList{QStringLiteral("DPadralMod_bak.mdb")});
    EXPECT_EQ(test::Bytes(mod), antes);
    EXPECT_EQ(otros(tablas), QStringList());
}

TEST_F(CrearCopia, NothingChosenDoesNothing) {
    dialogos.Elegido.clear();
    copia().CrearBackup();
    EXPECT_EQ(otros(copias), QStringList());
    EXPECT_EQ(nota(), QString());
}

TEST_F(CrearCopia, AnotherFolderMayBeChosen) {
    dialogos.Elegido = carpeta + QStringLiteral("/usb ñ");
    ASSERT_TRUE(QDir().mkpath(dialogos.Elegido));
    esperaHecha("{}/usb ñ/DPadralMod_bak.mdb");
    copia().CrearBackup();
    EXPECT_EQ(declaraciones(dialogos.Elegido + QStringLiteral("/DPadralMod_bak.mdb")), 3);
    EXPECT_EQ(nota(), conRutas("2026-01-31T10:15:30 {}/usb ñ"));
    // The next one starts where every one does.
    dialogos.Elegido.clear();
    copia().CrearBackup();
    EXPECT_EQ(dialogos.Elecciones.back().carpeta, copias);
}

TEST_F(CrearCopia, NotesDateAndFolder) {
    esperaHecha();
    copia().CrearBackup();
    EXPECT_EQ(nota(), conRutas("2026-01-31T10:15:30 {}/backups"));
}

TEST_F(CrearCopia, NamesOfTheNoteAreItsMembers) {
    test::Execute(lec, "CREATE TABLE Otra (Campo TEXT); INSERT INTO Otra VALUES ('')");
    auto objeto = copia();
    objeto.BDTabla = QStringLiteral("Otra");
    objeto.BDCampo = QStringLiteral("Campo");
    esperaHecha();
    objeto.CrearBackup();
    EXPECT_EQ(test::Value(lec, "SELECT Campo FROM Otra"),
              conRutas("2026-01-31T10:15:30 {}/backups"));
    EXPECT_EQ(nota(), QString());
}

// A folder in the place of its journal keeps the file from being written, whoever tries.
TEST_F(CrearCopia, IsDoneAlsoWhenTheNoteCannotBeWritten) {
    ASSERT_TRUE(QDir().mkpath(lec + QStringLiteral("-journal")));
    esperaHecha();
    copia().CrearBackup();
    EXPECT_EQ(declaraciones(bak), 3);
    ASSERT_TRUE(QDir().rmdir(lec + QStringLiteral("-journal")));
    EXPECT_EQ(nota(), QString());
    ASSERT_TRUE(QFile::remove(lec));
    ASSERT_TRUE(QFile::remove(bak));
    esperaHecha();
    copia().CrearBackup();
    EXPECT_EQ(declaraciones(bak), 3);
}

class ReemplazarCopia : public ConCopiaHecha {
protected:
    ReemplazarCopia() { dialogos.Elegido = copias; }
    void esperaReemplazo(Respuesta respuesta, const char* numero = "2 declaraciones") {
        const QByteArray pregunta =
            QByteArray(
                "En la carpeta «{}/backups» ya hay una copia de seguridad:\n"
                "01/01/2026 18:30, ") +
            numero + ".\n\n¿Quiere reemplazarla?";
        esperaPregunta(pregunta.constData(), TituloCrear, respuesta);
    }
};

TEST_F(ReemplazarCopia, NoLeavesTheOldOne) {
    esperaReemplazo(Respuesta::No);
    const QByteArray antes = test::Bytes(bak);
    copia().CrearBackup();
    EXPECT_EQ(test::Bytes(bak), antes);
    EXPECT_TRUE(dialogos.Textos.isEmpty());
    EXPECT_EQ(otros(copias), QStringList{QStringLiteral("DPadralMod_bak.mdb")});
}

TEST_F(ReemplazarCopia, YesReplacesIt) {
    esperaReemplazo(Respuesta::Si);
    esperaAviso(
        "Se ha creado la copia de seguridad.\n\n"
        "Archivo: {}/backups/DPadralMod_bak.mdb\n"
        "Fecha: 31/01/2026 10:15\nDeclaraciones: 3",
        TituloCrear);
    copia().CrearBackup();
    EXPECT_EQ(declaraciones(bak), 3);
    EXPECT_EQ(otros(copias), QStringList{QStringLiteral("DPadralMod_bak.mdb")});
}

TEST_F(ReemplazarCopia, OneDeclarationAndNone) {
    ponerDeclaraciones(bak, 1);
    fechar(bak, QDateTime(QDate(2026, 1, 1), QTime(18, 30)));
    esperaReemplazo(Respuesta::No, "1 declaración");
    copia().CrearBackup();
    test::Overwrite(bak, "no database");
    fechar(bak, QDateTime(QDate(2026, 1, 1), QTime(18, 30)));
    esperaReemplazo(Respuesta::No, "no se puede leer");
    copia().CrearBackup();
}

TEST_F(CrearCopia, MissingOrDamagedFileIsTold) {
    const QByteArray sano = test::Bytes(mod);
    ASSERT_TRUE(QFile::remove(mod));
    esperaFallida("No se encuentra el archivo «{}/Tablas/DPadralMod.mdb».");
    copia().CrearBackup();
    test::Overwrite(mod, sano.left(8192));
    esperaFallida("El archivo «{}/Tablas/DPadralMod.mdb» está dañado.");
    copia().CrearBackup();
    EXPECT_EQ(otros(copias), QStringList());
    EXPECT_EQ(nota(), QString());
}

TEST_F(CrearCopia, FolderThatIsGoneIsTold) {
    dialogos.Elegido = carpeta + QStringLiteral("/usb");
    esperaFallida("No se encuentra la carpeta «{}/usb».");
    copia().CrearBackup();
    EXPECT_FALSE(QFileInfo::exists(dialogos.Elegido));
}

// Nobody can make files there, not even the system's administrator.
TEST_F(CrearCopia, FolderThatCannotBeWrittenIsTold) {
    dialogos.Elegido = QStringLiteral("/proc");
    esperaFallida("No se puede escribir en la carpeta «/proc».");
    copia().CrearBackup();
}

TEST_F(CrearCopia, TheFileInUseIsNoPlaceForItsCopy) {
    dialogos.Elegido = tablas;
    auto objeto = copia();
    objeto.ArchivoDestino = QStringLiteral("DPadralMod.mdb");
    esperaFallida(
        "El archivo «{}/Tablas/DPadralMod.mdb» es el mismo con el que trabaja el "
        "programa, no una copia de él.");
    const QByteArray antes = test::Bytes(mod);
    objeto.CrearBackup();
    EXPECT_EQ(test::Bytes(mod), antes);
}

TEST_F(CrearCopia, ShowsHowFarItIs) {
    esperaHecha();
    avisos.alMostrar = [this](const Mensaje&) { EXPECT_FALSE(dialogos.EnMarcha); };
    copia().CrearBackup();
    EXPECT_EQ(dialogos.Textos.value(0), QStringLiteral("Copiando las declaraciones..."));
    EXPECT_EQ(dialogos.Rotulos.titulo, QStringLiteral("Crear copia de seguridad"));
    EXPECT_EQ(dialogos.Rotulos.cancelar, QStringLiteral("&Cancelar"));
    ASSERT_FALSE(dialogos.Milesimas.empty());
    EXPECT_EQ(dialogos.Milesimas.back(), 1000);
}

TEST_F(ReemplazarCopia, CancelledChangesNothing) {
    // Enough for the check to ask, too.
    test::Execute(
        mod,
        "WITH RECURSIVE n(i) AS (SELECT 100 UNION ALL SELECT i + 1 FROM n WHERE i < 20000)"
        " INSERT INTO TAnexoII (csde) SELECT i FROM n");
    const QByteArray antes = test::Bytes(bak);
    for (const char* paso : {"Copiando las declaraciones...", "Comprobando la copia..."}) {
        dialogos.Textos.clear();
        dialogos.alAvanzar = [paso](const QString& texto, int) {
            return texto != QString::fromUtf8(paso);
        };
        esperaReemplazo(Respuesta::Si);
        copia().CrearBackup();
        EXPECT_EQ(dialogos.Textos.back(), QString::fromUtf8(paso));
        EXPECT_EQ(test::Bytes(bak), antes);
        EXPECT_EQ(otros(copias), QStringList{QStringLiteral("DPadralMod_bak.mdb")});
        EXPECT_EQ(test::Value(lec, "SELECT BACKUP_TVC FROM TGENERAL"), QString());
    }
}

}  // namespace
}  // namespace padral::pruebas
