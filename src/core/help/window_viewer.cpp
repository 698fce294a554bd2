#include "core/help/window_viewer.h"

#include <QApplication>
#include <QFileInfo>

#include "core/help/help_topics.h"
#include "core/help/help_window.h"
#include "core/help/show_help.h"

namespace padral {

namespace {

VentanaAyuda* ventanaDe(QWidget* formulario) {
    const QString nombre = QStringLiteral("frmAyuda");
    QWidget* modal = QApplication::activeModalWidget();
    QWidget* dueño = modal ? modal : formulario->window();
    auto* ventana = dueño->findChild<VentanaAyuda*>(nombre, Qt::FindDirectChildrenOnly);
    if (ventana) return ventana;
    ventana = new VentanaAyuda(dueño);
    ventana->setObjectName(nombre);
    return ventana;
}

}  // namespace

void VisorVentana::Abrir(const QString& direccion, QWidget* formulario) {
    const QFileInfo fichero(FicheroAyuda(direccion));
    const QString carpeta = fichero.path() + u'/' + fichero.completeBaseName();
    if (!QFileInfo(carpeta).isDir()) {
        AvisarAyudaAusente(estado_, carpeta, textos_ayuda::CarpetaAusente);
        return;
    }
    auto* ventana = ventanaDe(formulario);
    ventana->Poner(estado_);
    ventana->Abrir(carpeta, TemaAyuda(direccion), TemaInicial(estado_));
    ventana->show();
    ventana->raise();
    ventana->activateWindow();
}

}  // namespace padral
