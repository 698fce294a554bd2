#include "online/backup/maintenance.h"

#include <QDir>
#include <QWidget>

#include "core/shared_state.h"
#include "online/backup/save_as_restore.h"

namespace padral {

using SvrBaseComunLib::cSaveAsRestore;

namespace {

const QString Declaraciones = QStringLiteral("DPadralMod.mdb");
const QString CopiaDeclaraciones = QStringLiteral("DPadralMod_bak.mdb");

QString carpetaCopias(const EstadoCompartido& estado) {
    const QChar separador = QDir::separator();
    return estado.CarpetaPrograma + separador + QStringLiteral("backups") + separador;
}

std::shared_ptr<cSaveAsRestore> crear(EstadoCompartido& estado, DialogosCopia& dialogos) {
    auto objeto = std::make_shared<cSaveAsRestore>(estado.avisador, estado.reloj, dialogos);
    estado.ObjComun = objeto;
    return objeto;
}

void ponerComunes(cSaveAsRestore& objeto, const EstadoCompartido& estado, QWidget* ventana) {
    objeto.Filtro = QStringLiteral("archivos mdb (*.mdb;*.mdb)|*.mdb;mdb");
    objeto.Idioma = estado.DesplazamientoIdioma;
    objeto.Parent = ventana ? ventana->winId() : 0;
    objeto.BDLectura = estado.RutaBDLectura;
    objeto.BDTabla = QStringLiteral("TGENERAL");
    objeto.BDCampo = QStringLiteral("BACKUP_TVC");
}

}  // namespace

void HacerCopia(EstadoCompartido& estado, DialogosCopia& dialogos, QWidget* ventana) {
    const auto objeto = crear(estado, dialogos);
    objeto->ArchivoOrigen = Declaraciones;
    objeto->ArchivoDestino = CopiaDeclaraciones;
    objeto->RutaOrigen = estado.RutaTablas;
    objeto->RutaDestino = carpetaCopias(estado);
    ponerComunes(*objeto, estado, ventana);
    objeto->CrearBackup();
    estado.ObjComun.reset();
}

bool RestaurarCopia(EstadoCompartido& estado, DialogosCopia& dialogos, QWidget* ventana,
                    const PasosTrasRestaurar& pasos) {
    const auto objeto = crear(estado, dialogos);
    objeto->ArchivoOrigen = CopiaDeclaraciones;
    objeto->ArchivoDestino = Declaraciones;
    objeto->RutaOrigen = carpetaCopias(estado);
    objeto->RutaDestino = estado.RutaTablas;
    ponerComunes(*objeto, estado, ventana);
    const bool restaurada = objeto->CrearRestore();
    estado.ObjComun.reset();
    if (!restaurada) return false;
    if (pasos.traspasar()) return true;
    pasos.iniciarSesion();
    pasos.ponerRotulos();
    pasos.habilitarMenus();
    return false;
}

}  // namespace padral
