// Backup and restore that are killed, or that the disk refuses, at any of their steps: each file
// is the old one or the new one, whole, and nothing that was saved is gone.

#include <sys/wait.h>
#include <unistd.h>

#include "backup_fixture.h"
#include "failing_calls.h"

namespace padral::pruebas {
namespace {

using test::DiskFault;
using test::FailingCalls;
using test::FaultyDisk;

// More than the work has; keeps a test that goes wrong from running on.
constexpr int PasosMaximos = 500;

struct Averia {
    bool motor;  ///< in the writes of the database engine, otherwise in the steps on whole files
    DiskFault fallo;
};

void PrintTo(const Averia& averia, std::ostream* salida) {
    *salida << (averia.motor ? "engine" : "files") << ' ' << static_cast<int>(averia.fallo);
}

/// Says yes to everything.
struct Conforme : Avisador {
    std::vector<Mensaje> Mostrados;
    Respuesta Mostrar(const Mensaje& mensaje) override {
        Mostrados.push_back(mensaje);
        return mensaje.botones == Botones::SiNo ? Respuesta::Si : Respuesta::Aceptar;
    }
};

class Disco : public ConCopiaHecha, public ::testing::WithParamInterface<Averia> {
protected:
    const QByteArray modAntes = test::Bytes(mod), bakAntes = test::Bytes(bak);
    const QString conservado = tablas + QStringLiteral("/DPadralMod_20260131_101530.mdb");

    bool mata() const { return GetParam().fallo == DiskFault::Kill; }

    void reponer() const {
        for (const QString& carpetaUna : {tablas, copias})
            for (const QString& nombre : otros(carpetaUna))
                QFile::remove(carpetaUna + u'/' + nombre);
        test::Overwrite(mod, modAntes);
        test::Overwrite(bak, bakAntes);
    }
    /// Runs the work with the fault at a step; false when it came to its end before.
    bool averiar(int paso, const std::function<void()>& trabajo) const {
        if (!mata()) return hacer(paso, trabajo);
        const pid_t hijo = fork();
        if (hijo == 0) {
            hacer(paso, trabajo);
            _exit(0);
        }
        int estado = 0;
        waitpid(hijo, &estado, 0);
        return WIFSIGNALED(estado) && WTERMSIG(estado) == SIGKILL;
    }
    /// Runs the work with the fault at each step in turn and looks after each; the last time it
    /// meets none. Returns how many times it met one.
    int recorrer(const std::function<void()>& trabajo, const std::function<void()>& mirar) {
        for (int paso = 1; paso < PasosMaximos; ++paso) {
            SCOPED_TRACE(paso);
            reponer();
            conforme.Mostrados.clear();
            const bool averiado = averiar(paso, trabajo);
            mirar();
            if (!averiado) return paso - 1;
        }
        ADD_FAILURE() << "no end";
        return 0;
    }

    Conforme conforme;

private:
    template <class Medio>
    static bool hacer(Medio&& medio, int paso, const std::function<void()>& trabajo) {
        trabajo();
        return medio.Steps() >= paso;
    }
    static bool hacer(int paso, const std::function<void()>& trabajo) {
        const auto [motor, fallo] = GetParam();
        if (motor) return hacer(FaultyDisk(fallo, paso), paso, trabajo);
        return hacer(FailingCalls(fallo, paso), paso, trabajo);
    }
};

constexpr auto FueBien = u"Se ha";

TEST_P(Disco, RestoreLeavesTheOldFileOrTheNewOne) {
    bool restaurado = false;
    const int averias = recorrer(
        [&] { restaurado = restauracion(conforme).CrearRestore(); },
        [&] {
            const int ahora = declaraciones(mod);
            EXPECT_TRUE(ahora == 2 || ahora == 3) << ahora;
            if (ahora == 2) {
                EXPECT_EQ(declaraciones(conservado), 3);
            }
            EXPECT_EQ(test::Bytes(bak), bakAntes);
            if (mata()) return;
            EXPECT_EQ(ahora, restaurado ? 2 : 3);
            EXPECT_EQ(otros(tablas).size(), restaurado ? 1 : 0);
            EXPECT_EQ(conforme.Mostrados.back().texto.startsWith(QStringView(FueBien)), restaurado);
        });
    EXPECT_GT(averias, GetParam().motor ? 10 : 4);
    EXPECT_EQ(declaraciones(mod), 2);
}

TEST_P(Disco, BackupLeavesTheOldCopyOrTheNewOne) {
    dialogos.Elegido = copias;
    // The note in the other file of the program is not looked at here.
    const int averias = recorrer(
        [&] { copia(conforme).CrearBackup(); },
        [&] {
            const int ahora = declaraciones(bak);
            EXPECT_TRUE(ahora == 2 || ahora == 3) << ahora;
            EXPECT_EQ(test::Bytes(mod), modAntes);
            if (mata()) return;
            EXPECT_EQ(otros(copias).size(), 1);
            EXPECT_EQ(conforme.Mostrados.back().texto.startsWith(QStringView(FueBien)), ahora == 3);
        });
    EXPECT_GT(averias, GetParam().motor ? 10 : 2);
    EXPECT_EQ(declaraciones(bak), 3);
}

// Where no file can have two names, as on a memory stick.
TEST_P(Disco, RestoreWithoutLinksLeavesTheOldFileOrTheNewOne) {
    const test::WithoutLinks lapiz;
    recorrer([&] { restauracion(conforme).CrearRestore(); },
             [&] {
                 const int ahora = declaraciones(mod);
                 EXPECT_TRUE(ahora == 2 || ahora == 3) << ahora;
                 if (ahora == 2) {
                     EXPECT_EQ(declaraciones(conservado), 3);
                 }
                 if (!mata()) {
                     EXPECT_EQ(otros(tablas).size(), ahora == 2 ? 1 : 0);
                 }
             });
    EXPECT_EQ(declaraciones(mod), 2);
}

// A damaged file with its journal: what can be saved of it goes aside as it is.
TEST_P(Disco, DamagedFileIsNeverGone) {
    const QByteArray roto = QByteArray("damaged"), diario = QByteArray("its journal");
    const QString diarioDe = QStringLiteral("-journal");
    recorrer(
        [&] {
            test::Overwrite(mod, roto);
            test::Overwrite(mod + diarioDe, diario);
            restauracion(conforme).CrearRestore();
        },
        [&] {
            if (test::Bytes(mod) == roto) {
                EXPECT_EQ(
                    test::Bytes((QFileInfo::exists(mod + diarioDe) ? mod : conservado) + diarioDe),
                    diario);
                return;
            }
            EXPECT_EQ(declaraciones(mod), 2);
            EXPECT_FALSE(QFileInfo::exists(mod + diarioDe));
            EXPECT_EQ(test::Bytes(conservado), roto);
            EXPECT_EQ(test::Bytes(conservado + diarioDe), diario);
        });
    EXPECT_EQ(declaraciones(mod), 2);
}

TEST_P(Disco, TheReasonIsInPlainWords) {
    const auto [motor, fallo] = GetParam();
    if (mata()) return;
    const auto mensaje = [&] {
        if (motor) {
            const FaultyDisk disco(fallo, 1);
            restauracion(conforme).CrearRestore();
        } else {
            const FailingCalls disco(fallo, 1);
            restauracion(conforme).CrearRestore();
        }
        return conforme.Mostrados.back();
    }();
    const QString motivo =
        fallo == DiskFault::Full
            ? QStringLiteral("No queda sitio en el disco para el archivo «%1».")
            : QStringLiteral("El disco falla al leer o escribir el archivo «%1».");
    EXPECT_EQ(mensaje, (Mensaje{QStringLiteral("No se ha podido restaurar la copia.\n\n") +
                                    motivo.arg(mod) + QStringLiteral("\n\nNo se ha cambiado nada."),
                                QStringLiteral("Restaurar copia de seguridad"), Icono::Exclamacion,
                                Botones::Aceptar}));
}

INSTANTIATE_TEST_SUITE_P(
    Averias, Disco,
    ::testing::Values(Averia{true, DiskFault::Kill}, Averia{true, DiskFault::Full},
                      Averia{true, DiskFault::Error}, Averia{false, DiskFault::Kill},
                      Averia{false, DiskFault::Full}, Averia{false, DiskFault::Error}));

}  // namespace
}  // namespace padral::pruebas
