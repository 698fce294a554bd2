// The menu of utilities: preferences, version check, backup, restore, online help.

#include <QDir>

#include "app/tour/visit.h"

namespace padral {

namespace {

const QString Preferencias = QStringLiteral("frmPreferencias");

}  // namespace

void Visita::consultarVersion(const QString& dialogo, const QString& nombre) {
    guia_->AlDialogo(dialogo, [this, nombre](QWidget*) {
        foto(nombre);
        guia_->Pulsar(QStringLiteral("CmdContinuar"));
    });
    guia_->AlDialogo(Preferencias, [this](QWidget*) { pulsar({"lblActAhora", "cmdCancelar"}); });
    guia_->Ordenar(QStringLiteral("mnuPreferencias"));
}

void Visita::mirarVersiones() {
    guia_->AlDialogo(Preferencias, [this](QWidget*) {
        foto(QStringLiteral("40-preferences"));
        pulsar({"cmdCancelar"});
    });
    guia_->Ordenar(QStringLiteral("mnuPreferencias"));
    consultarVersion(QStringLiteral("FrmSinConexion"), QStringLiteral("41-no-connection"));
    descarga_.contenido =
        "[informacion]\r\ncurrentversion=1.31.0\r\n"
        "downloadurl=https://www.kelmaria.example/padral\r\n"
        "descripcion=Nuevas preguntas del apartado 5 / 5. ataleko galdera berriak\r\n";
    consultarVersion(QStringLiteral("FrmVersionCheck"), QStringLiteral("42-version-check"));
    guia_->AlDialogo(QStringLiteral("frmAbout"), [this](QWidget*) {
        foto(QStringLiteral("43-about"));
        pulsar({"cmdOK"});
    });
    guia_->Ordenar(QStringLiteral("mnuabout"));
}

void Visita::copiarYRestaurar() {
    const QString carpeta = programa_->estado().CarpetaPrograma + QStringLiteral("/backups");
    elecciones_.elegido = carpeta;
    guia_->ResponderSiguiente(0, idioma_ + QStringLiteral("-44-backup"));
    guia_->Ordenar(QStringLiteral("mnuBackup"));
    elecciones_.elegido = carpeta + QStringLiteral("/DPadralMod_bak.mdb");
    guia_->ResponderSiguiente(0, idioma_ + QStringLiteral("-45-restore-question"));
    guia_->ResponderSiguiente(0, idioma_ + QStringLiteral("-46-restored"));
    guia_->Ordenar(QStringLiteral("mnuRestore"));
    guia_->ResponderSiguiente(0, idioma_ + QStringLiteral("-47-online-help"));
    guia_->Ordenar(QStringLiteral("mnuDescripAsisOnline"));
}

}  // namespace padral
