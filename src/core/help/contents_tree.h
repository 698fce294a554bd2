#pragma once
// The table of contents as a tree of titles.

#include <QTreeWidget>

#include "core/help/help_contents.h"

namespace padral {

class ArbolContenido : public QTreeWidget {
    Q_OBJECT
public:
    explicit ArbolContenido(QWidget* padre);

    void Llenar(const QList<PaginaContenido>& contenido);
    /// Makes the entry of the page the current one; for a page that is not in the contents, none.
    void Señalar(const QString& pagina);

Q_SIGNALS:
    /// The user chose a page by a click or with Enter.
    void Elegida(const QString& pagina);
};

}  // namespace padral
