// Bringing a backup back.

#include "backup_fixture.h"

namespace padral::pruebas {
namespace {

constexpr auto TituloRestaurar = "Restaurar copia de seguridad";

class Restaurar : public ConCopiaHecha {
protected:
    const QString conservado = tablas + QStringLiteral("/DPadralMod_20260131_101530.mdb");

    void esperaPreguntaEntre(const char* ahora, const char* copiada, Respuesta respuesta) {
        const QByteArray pregunta =
            QByteArray(
                "Las declaraciones de la copia sustituirán a todas las que hay ahora en el "
                "programa.\n\nAhora: ") +
            ahora + "\nCopia: " + copiada +
            "\n\nEl archivo actual se conservará en su carpeta con la fecha de hoy en el nombre."
            "\n\n¿Quiere restaurar la copia?";
        esperaPregunta(pregunta.constData(), TituloRestaurar, respuesta);
    }
    void esperaPreguntaCorriente(Respuesta respuesta) {
        esperaPreguntaEntre("20/12/2025 09:05, 3 declaraciones",
                            "01/01/2026 18:30, 2 declaraciones", respuesta);
    }
    void esperaHecha(const char* nombre = "DPadralMod_20260131_101530.mdb") {
        const QByteArray mensaje =
            QByteArray(
                "Se han restaurado las declaraciones de la copia.\n\n"
                "Fecha: 31/01/2026 10:15\nDeclaraciones: 2\n\n"
                "El archivo anterior se conserva con este nombre:\n{}/Tablas/") +
            nombre;
        esperaAviso(mensaje.constData(), TituloRestaurar);
    }
    void esperaFallida(const char* motivo) {
        const QByteArray mensaje = QByteArray("No se ha podido restaurar la copia.\n\n") + motivo +
                                   "\n\nNo se ha cambiado nada.";
        esperaAviso(mensaje.constData(), TituloRestaurar, Icono::Exclamacion);
    }
    void noRestaura() {
        const QByteArray antes = test::Bytes(mod);
        EXPECT_FALSE(restauracion().CrearRestore());
        EXPECT_EQ(test::Bytes(mod), antes);
        EXPECT_EQ(otros(tablas), QStringList());
    }
};

TEST_F(Restaurar, ChooserStartsAtTheBackup) {
    dialogos.Elegido.clear();
    noRestaura();
    ASSERT_EQ(dialogos.Elecciones.size(), 1U);
    const Eleccion& eleccion = dialogos.Elecciones[0];
    EXPECT_EQ(eleccion.titulo, QStringLiteral("Elija la copia de seguridad que quiere restaurar"));
    EXPECT_EQ(eleccion.carpeta, copias);
    EXPECT_EQ(eleccion.filtro, QStringLiteral("archivos mdb (*.mdb)"));
    EXPECT_EQ(eleccion.archivo, QStringLiteral("DPadralMod_bak.mdb"));
}

TEST_F(Restaurar, ChooserStartsInTheNearestFolderWithoutBackups) {
    ASSERT_TRUE(QDir(copias).removeRecursively());
    dialogos.Elegido.clear();
    noRestaura();
    EXPECT_EQ(dialogos.Elecciones.at(0).carpeta, carpeta);
    EXPECT_FALSE(QFileInfo::exists(copias));
}

TEST_F(Restaurar, ReplacesTheFileAndKeepsTheOldOne) {
    const QByteArray antes = test::Bytes(mod), copiaAntes = test::Bytes(bak);
    esperaPreguntaCorriente(Respuesta::Si);
    esperaHecha();
    EXPECT_TRUE(restauracion().CrearRestore());
    EXPECT_EQ(declaraciones(mod), 2);
    EXPECT_EQ(test::Bytes(conservado), antes);
    EXPECT_EQ(test::Bytes(bak), copiaAntes);
    EXPECT_EQ(otros(tablas), QStringList{QStringLiteral("DPadralMod_20260131_101530.mdb")});
}

TEST_F(Restaurar, OldFilesAreNeverWrittenOver) {
    test::Overwrite(conservado, "an earlier one");
    esperaPreguntaCorriente(Respuesta::Si);
    esperaHecha("DPadralMod_20260131_101530_2.mdb");
    EXPECT_TRUE(restauracion().CrearRestore());
    EXPECT_EQ(test::Bytes(conservado), "an earlier one");
    EXPECT_EQ(declaraciones(tablas + QStringLiteral("/DPadralMod_20260131_101530_2.mdb")), 3);
}

TEST_F(Restaurar, NoChangesNothing) {
    esperaPreguntaCorriente(Respuesta::No);
    noRestaura();
}

TEST_F(Restaurar, MissingFileIsMadeAnew) {
    ASSERT_TRUE(QFile::remove(mod));
    esperaPregunta(
        "Las declaraciones de la copia sustituirán a todas las que hay ahora en el "
        "programa.\n\nAhora: no hay archivo de declaraciones\n"
        "Copia: 01/01/2026 18:30, 2 declaraciones\n\n¿Quiere restaurar la copia?",
        TituloRestaurar, Respuesta::Si);
    esperaAviso(
        "Se han restaurado las declaraciones de la copia.\n\n"
        "Fecha: 31/01/2026 10:15\nDeclaraciones: 2",
        TituloRestaurar);
    EXPECT_TRUE(restauracion().CrearRestore());
    EXPECT_EQ(declaraciones(mod), 2);
    EXPECT_EQ(otros(tablas), QStringList());
}

TEST_F(Restaurar, DamagedFileIsKeptToo) {
    test::Overwrite(mod, test::Bytes(mod).left(5000));
    fechar(mod, QDateTime(QDate(2026, 1, 30), QTime(23, 59)));
    const QByteArray antes = test::Bytes(mod);
    esperaPreguntaEntre("30/01/2026 23:59, no se puede leer", "01/01/2026 18:30, 2 declaraciones",
                        Respuesta::Si);
    esperaHecha();
    EXPECT_TRUE(restauracion().CrearRestore());
    EXPECT_EQ(declaraciones(mod), 2);
    EXPECT_EQ(test::Bytes(conservado), antes);
}

TEST_F(Restaurar, OlderLayoutIsAccepted) {
    test::Execute(bak, "PRAGMA user_version = 1");
    fechar(bak, QDateTime(QDate(2026, 1, 1), QTime(18, 30)));
    esperaPreguntaCorriente(Respuesta::Si);
    esperaHecha();
    EXPECT_TRUE(restauracion().CrearRestore());
    EXPECT_EQ(test::Value(mod, "PRAGMA user_version"), QStringLiteral("1"));
}

TEST_F(Restaurar, NewerForeignOrDamagedIsRefusedBeforeItIsOffered) {
    const QByteArray sana = test::Bytes(bak);
    test::Execute(bak, "PRAGMA user_version = 1000");
    esperaFallida(
        "El archivo «{}/backups/DPadralMod_bak.mdb» es de una versión más nueva del "
        "programa.");
    noRestaura();
    test::Overwrite(bak, "Una carta.");
    esperaFallida(
        "El archivo «{}/backups/DPadralMod_bak.mdb» no es un archivo de datos de este "
        "programa.");
    noRestaura();
    test::Overwrite(bak, QByteArray(sana).replace(8192, 4096, QByteArray(4096, 'x')));
    esperaFallida("El archivo «{}/backups/DPadralMod_bak.mdb» está dañado.");
    noRestaura();
    dialogos.Elegido = lec;
    esperaFallida(
        "El archivo «{}/Tablas/DPadralLec.mdb» no es un archivo de datos de este "
        "programa.");
    noRestaura();
    dialogos.Elegido = copias + QStringLiteral("/gone.mdb");
    esperaFallida("No se encuentra el archivo «{}/backups/gone.mdb».");
    noRestaura();
}

TEST_F(Restaurar, TheFileInUseIsNoBackup) {
    const QString enlace = carpeta + QStringLiteral("/enlace.mdb");
    ASSERT_TRUE(QFile::link(mod, enlace));
    esperaFallida(
        "El archivo «{}/Tablas/DPadralMod.mdb» es el mismo con el que trabaja el "
        "programa, no una copia de él.");
    dialogos.Elegido = mod;
    noRestaura();
    esperaFallida(
        "El archivo «{}/enlace.mdb» es el mismo con el que trabaja el programa, no una "
        "copia de él.");
    dialogos.Elegido = enlace;
    noRestaura();
}

TEST_F(Restaurar, FileInAnotherPlaceIsReplacedThere) {
    const QString lejos = carpeta + QStringLiteral("/lejos");
    ASSERT_TRUE(QDir().mkpath(lejos));
    ASSERT_TRUE(QFile::rename(mod, lejos + QStringLiteral("/DPadralMod.mdb")));
    ASSERT_TRUE(QFile::link(lejos + QStringLiteral("/DPadralMod.mdb"), mod));
    esperaPreguntaCorriente(Respuesta::Si);
    esperaAviso(
        "Se han restaurado las declaraciones de la copia.\n\n"
        "Fecha: 31/01/2026 10:15\nDeclaraciones: 2\n\n"
        "El archivo anterior se conserva con este nombre:\n"
        "{}/lejos/DPadralMod_20260131_101530.mdb",
        TituloRestaurar);
    EXPECT_TRUE(restauracion().CrearRestore());
    EXPECT_TRUE(QFileInfo(mod).isSymLink());
    EXPECT_EQ(declaraciones(mod), 2);
}

TEST_F(Restaurar, BackupForReadingOnlyIsFine) {
    ASSERT_TRUE(QFile::setPermissions(bak, QFile::ReadOwner));
    ASSERT_TRUE(QFile::setPermissions(copias, QFile::ReadOwner | QFile::ExeOwner));
    esperaPreguntaCorriente(Respuesta::Si);
    esperaHecha();
    EXPECT_TRUE(restauracion().CrearRestore());
    ASSERT_TRUE(
        QFile::setPermissions(copias, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    EXPECT_EQ(declaraciones(mod), 2);
    EXPECT_TRUE(QFile::permissions(mod).testFlag(QFile::WriteOwner));
}

// What was checked is what replaces, whatever happens to the backup while the question shows.
TEST_F(Restaurar, TheBackupMayGoWhileTheQuestionShows) {
    avisos.alMostrar = [this](const Mensaje&) { QFile::remove(bak); };
    esperaPreguntaCorriente(Respuesta::Si);
    esperaHecha();
    EXPECT_TRUE(restauracion().CrearRestore());
    EXPECT_EQ(declaraciones(mod), 2);
}

TEST_F(Restaurar, DataFolderThatIsGoneIsTold) {
    auto objeto = restauracion();
    objeto.RutaDestino = carpeta + QStringLiteral("/none/");
    esperaFallida("No se encuentra la carpeta «{}/none».");
    EXPECT_FALSE(objeto.CrearRestore());
    EXPECT_FALSE(QFileInfo::exists(carpeta + QStringLiteral("/none")));
}

TEST_F(Restaurar, CancelledChangesNothing) {
    dialogos.alAvanzar = [](const QString&, int) { return false; };
    noRestaura();
    EXPECT_EQ(dialogos.Rotulos.titulo, QStringLiteral("Restaurar copia de seguridad"));
}

TEST_F(Restaurar, ProgressIsGoneWhenTheQuestionShows) {
    avisos.alMostrar = [this](const Mensaje&) { EXPECT_FALSE(dialogos.EnMarcha); };
    esperaPreguntaCorriente(Respuesta::Si);
    esperaHecha();
    EXPECT_TRUE(restauracion().CrearRestore());
}

}  // namespace
}  // namespace padral::pruebas
