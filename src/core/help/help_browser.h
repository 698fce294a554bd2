#pragma once
// The window of the help: a page with links, and the ways back, on and to the index.

#include <QDialog>
#include <QTextBrowser>

#include "core/shared_state.h"

class QToolButton;

namespace padral {

/// Shows pages from files. For one that cannot be read it shows a sentence with its name.
class NavegadorAyuda : public QTextBrowser {
public:
    using QTextBrowser::QTextBrowser;

    /// The sentence, with %1 for the name of the page.
    QString SinPagina;

protected:
    QVariant loadResource(int tipo, const QUrl& nombre) override;
};

class VentanaAyuda : public QDialog {
    Q_OBJECT
public:
    explicit VentanaAyuda(QWidget* dueño);

    /// Takes title and captions in the language of the run.
    void Poner(const EstadoCompartido& estado);
    /// Shows the page in the file `pagina`; the index button leads to `indice`.
    void Abrir(const QString& pagina, const QString& indice);

private:
    QToolButton* boton(const QString& nombre, int icono);

    NavegadorAyuda* navegador_;
    QToolButton* atras_;
    QToolButton* adelante_;
    QToolButton* indice_;
    QString paginaIndice_;
};

}  // namespace padral
