// The commands of the menu: the members of the job, and what follows a restore.

#include "online/backup/maintenance.h"

#include "backup_fixture.h"
#include "core/shared_state.h"
#include "core/startup.h"

namespace padral::pruebas {
namespace {

class Mantenimiento : public ConCopiaHecha {
protected:
    Mantenimiento() {
        estado.CarpetaPrograma = carpeta;
        ObtenerRutas(estado);
        InicializarSesion(estado);
    }

    PasosTrasRestaurar pasosAnotados() {
        return {[this] {
                    pasos << QStringLiteral("traspasar");
                    return terminar;
                },
                [this] { pasos << QStringLiteral("sesion"); },
                [this] { pasos << QStringLiteral("rotulos"); },
                [this] { pasos << QStringLiteral("menus"); }};
    }
    /// Answers question and result of a restore without looking at them.
    bool restaurar(Respuesta respuesta, const PasosTrasRestaurar& seguidos) {
        struct Contesta : Avisador {
            Respuesta respuesta = Respuesta::Si;
            Respuesta Mostrar(const Mensaje&) override { return respuesta; }
        } contesta;
        contesta.respuesta = respuesta;
        EstadoCompartido otro(contesta, reloj);
        otro.CarpetaPrograma = carpeta;
        ObtenerRutas(otro);
        return RestaurarCopia(otro, dialogos, nullptr, seguidos);
    }

    EstadoCompartido estado{avisos, reloj};
    QStringList pasos;
    bool terminar = false;
};

TEST_F(Mantenimiento, BackupOfTheDeclarationsFile) {
    dialogos.Elegido = carpeta;
    esperaAviso(
        "Se ha creado la copia de seguridad.\n\nArchivo: {}/DPadralMod_bak.mdb\n"
        "Fecha: 31/01/2026 10:15\nDeclaraciones: 3",
        "Crear copia de seguridad");
    HacerCopia(estado, dialogos, nullptr);
    EXPECT_EQ(dialogos.Elecciones.at(0).carpeta, copias);
    EXPECT_EQ(declaraciones(carpeta + QStringLiteral("/DPadralMod_bak.mdb")), 3);
    EXPECT_EQ(test::Value(lec, "SELECT BACKUP_TVC FROM TGENERAL"),
              conRutas("2026-01-31T10:15:30 {}"));
}

// The declaration open in the run is neither saved nor touched.
TEST_F(Mantenimiento, BackupLeavesTheRunAlone) {
    estado.ModificacionesPendientes = true;
    estado.mdi.IDI(QStringLiteral("E"));
    dialogos.Elegido.clear();
    HacerCopia(estado, dialogos, nullptr);
    EXPECT_TRUE(estado.ModificacionesPendientes);
    EXPECT_EQ(dialogos.Elecciones.at(0).titulo,
              QStringLiteral("Aukeratu segurtasun kopiarako karpeta"));
}

TEST_F(Mantenimiento, RestoreChoosesAmongTheBackups) {
    dialogos.Elegido.clear();
    EXPECT_FALSE(RestaurarCopia(estado, dialogos, nullptr, pasosAnotados()));
    EXPECT_EQ(dialogos.Elecciones.at(0).carpeta, copias);
    EXPECT_EQ(dialogos.Elecciones.at(0).archivo, QStringLiteral("DPadralMod_bak.mdb"));
    EXPECT_EQ(dialogos.Elecciones.at(0).filtro, QStringLiteral("archivos mdb (*.mdb)"));
    EXPECT_EQ(pasos, QStringList());
}

TEST_F(Mantenimiento, StateIsRebuiltInOrder) {
    EXPECT_FALSE(restaurar(Respuesta::Si, pasosAnotados()));
    EXPECT_EQ(pasos, (QStringList{QStringLiteral("traspasar"), QStringLiteral("sesion"),
                                  QStringLiteral("rotulos"), QStringLiteral("menus")}));
}

TEST_F(Mantenimiento, NothingFollowsARefusedRestore) {
    EXPECT_FALSE(restaurar(Respuesta::No, pasosAnotados()));
    EXPECT_EQ(pasos, QStringList());
    EXPECT_EQ(declaraciones(mod), 3);
}

TEST_F(Mantenimiento, MigrationMayEndTheProcess) {
    terminar = true;
    EXPECT_TRUE(restaurar(Respuesta::Si, pasosAnotados()));
    EXPECT_EQ(pasos, QStringList{QStringLiteral("traspasar")});
}

TEST_F(Mantenimiento, RunKnowsTheRestoredFile) {
    test::Execute(bak, "UPDATE TGENERAL SET IDI = 'E', ActOnline = 1");
    ASSERT_EQ(estado.mdi.NUMDECLA, 3);
    ASSERT_EQ(estado.DesplazamientoIdioma, 0);
    PasosTrasRestaurar verdaderos = pasosAnotados();
    verdaderos.traspasar = [this] { return TraspasarDatos(estado); };
    verdaderos.iniciarSesion = [this] { InicializarSesion(estado); };
    EXPECT_FALSE(restaurar(Respuesta::Si, verdaderos));
    EXPECT_EQ(estado.mdi.NUMDECLA, 2);
    EXPECT_EQ(estado.mdi.IDI(), QStringLiteral("E"));
    EXPECT_EQ(estado.DesplazamientoIdioma, 10000);
    EXPECT_EQ(estado.act.ActOnline, 1);
}

}  // namespace
}  // namespace padral::pruebas
