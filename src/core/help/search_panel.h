#pragma once
// The search in the help: a field, and the pages that contain its words.

#include <QWidget>

#include "core/help/help_contents.h"
#include "core/shared_state.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace padral {

class PanelBusqueda : public QWidget {
    Q_OBJECT
public:
    explicit PanelBusqueda(QWidget* padre);

    /// Takes its captions in the language of the run.
    void Poner(const EstadoCompartido& estado);
    /// The pages that are searched; the results so far are forgotten.
    void PonerPaginas(const QString& carpeta, const QList<PaginaContenido>& contenido);
    /// Puts the cursor in the field, over what is there.
    void Enfocar();

Q_SIGNALS:
    /// The user chose a page of the list; `palabras` are the words it was found by.
    void Elegida(const QString& pagina, const QStringList& palabras);

private:
    void buscar();
    void decir(const QString& frase);

    QLabel* rotulo_;
    QLineEdit* campo_;
    QPushButton* boton_;
    QLabel* resultado_;
    QListWidget* lista_;
    QString nada_, una_, varias_, carpeta_;
    QList<PaginaContenido> contenido_;
    QStringList palabras_;
};

}  // namespace padral
