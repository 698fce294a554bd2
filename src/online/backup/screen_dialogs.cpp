#include "online/backup/screen_dialogs.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QHeaderView>
#include <QPointer>
#include <QProgressDialog>
#include <QSplitter>
#include <QTreeView>

namespace padral {

namespace {

/// Milliseconds between two looks at what the user does.
constexpr int Pausa = 40;
constexpr int Todo = 1000;

QWidget* ventanaDe(quintptr padre) { return QWidget::find(static_cast<WId>(padre)); }

// Qt's own dialog, whose words are in the language of the run; that of the desktop has its own.
void preparar(QFileDialog& dialogo, const Eleccion& eleccion) {
    dialogo.setOption(QFileDialog::DontUseNativeDialog);
    dialogo.setWindowTitle(eleccion.titulo);
    dialogo.setAcceptMode(QFileDialog::AcceptOpen);
    dialogo.setDirectory(eleccion.carpeta);
}

// Wide enough for the date of a file, in letters of any size.
void ensanchar(QFileDialog& dialogo) {
    const int letra = dialogo.fontMetrics().averageCharWidth();
    dialogo.resize(115 * letra, 28 * dialogo.fontMetrics().lineSpacing());
    if (auto* partes = dialogo.findChild<QSplitter*>(QStringLiteral("splitter")))
        partes->setSizes({20 * letra, 95 * letra});
    auto* lista = dialogo.findChild<QTreeView*>(QStringLiteral("treeView"));
    if (!lista) return;
    lista->header()->resizeSection(0, 36 * letra);
    lista->header()->resizeSection(1, 12 * letra);
    lista->header()->resizeSection(2, 14 * letra);
    lista->header()->setStretchLastSection(true);
}

// A folder has no type to choose.
void ocultarTipos(const QFileDialog& dialogo) {
    for (const QString& nombre : {QStringLiteral("fileTypeLabel"), QStringLiteral("fileTypeCombo")})
        if (auto* control = dialogo.findChild<QWidget*>(nombre)) control->hide();
}

QString ejecutar(QFileDialog& dialogo) {
    ensanchar(dialogo);
    const QPointer<QWidget> ventana = QApplication::activeWindow();
    const bool elegido = dialogo.exec() == QDialog::Accepted;
    if (ventana) ventana->activateWindow();
    return elegido ? dialogo.selectedFiles().value(0) : QString();
}

/// Shows itself when the work has taken a while; before that, only the wait cursor tells of it.
class ProgresoPantalla : public Progreso {
public:
    ProgresoPantalla(const RotulosProgreso& rotulos, int muestraTras)
        : dialogo_(QString(), rotulos.cancelar, 0, Todo, ventanaDe(rotulos.padre)),
          muestraTras_(muestraTras) {
        dialogo_.setObjectName(QStringLiteral("ProgresoCopia"));
        dialogo_.setWindowTitle(rotulos.titulo);
        dialogo_.setWindowModality(Qt::ApplicationModal);
        dialogo_.setMinimumDuration(muestraTras);
        dialogo_.setAutoClose(false);
        dialogo_.setAutoReset(false);
        desdeInicio_.start();
        QApplication::setOverrideCursor(Qt::WaitCursor);
    }
    ~ProgresoPantalla() override { QApplication::restoreOverrideCursor(); }
    ProgresoPantalla(const ProgresoPantalla&) = delete;
    ProgresoPantalla& operator=(const ProgresoPantalla&) = delete;

    bool Avanzar(const QString& texto, int milesimas) override {
        const bool mostrarYa = !dialogo_.isVisible() && desdeInicio_.elapsed() >= muestraTras_;
        if (!mostrarYa && desdeVista_.isValid() && desdeVista_.elapsed() < Pausa) return true;
        desdeVista_.start();
        if (dialogo_.labelText() != texto) dialogo_.setLabelText(texto);
        // Without an end the bar moves to and fro.
        dialogo_.setMaximum(milesimas == Desconocido ? 0 : Todo);
        dialogo_.setValue(qMax(0, milesimas));
        if (mostrarYa) dialogo_.show();
        QApplication::processEvents(dialogo_.isVisible() ? QEventLoop::AllEvents
                                                         : QEventLoop::ExcludeUserInputEvents);
        return !dialogo_.wasCanceled();
    }

private:
    QProgressDialog dialogo_;
    QElapsedTimer desdeInicio_, desdeVista_;
    int muestraTras_;
};

}  // namespace

QString DialogosPantalla::ElegirCarpeta(const Eleccion& eleccion) {
    if (finEspera) finEspera();
    QFileDialog dialogo(ventanaDe(eleccion.padre));
    dialogo.setObjectName(QStringLiteral("ElegirCarpeta"));
    preparar(dialogo, eleccion);
    dialogo.setFileMode(QFileDialog::Directory);
    dialogo.setOption(QFileDialog::ShowDirsOnly);
    ocultarTipos(dialogo);
    return ejecutar(dialogo);
}

QString DialogosPantalla::ElegirArchivo(const Eleccion& eleccion) {
    if (finEspera) finEspera();
    QFileDialog dialogo(ventanaDe(eleccion.padre));
    dialogo.setObjectName(QStringLiteral("ElegirArchivo"));
    preparar(dialogo, eleccion);
    dialogo.setFileMode(QFileDialog::ExistingFile);
    dialogo.setNameFilter(eleccion.filtro);
    dialogo.selectFile(eleccion.archivo);
    return ejecutar(dialogo);
}

std::unique_ptr<Progreso> DialogosPantalla::Empezar(const RotulosProgreso& rotulos) {
    return std::make_unique<ProgresoPantalla>(rotulos, muestraTras_);
}

}  // namespace padral
