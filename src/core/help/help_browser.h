#pragma once
// The page of the help that is being read.

#include <QTextBrowser>

namespace padral {

/// Shows pages from files. For one that cannot be read it shows a sentence with its name.
class NavegadorAyuda : public QTextBrowser {
    Q_OBJECT
public:
    explicit NavegadorAyuda(QWidget* padre);

    /// The sentence, with %1 for the name of the page.
    QString SinPagina;

    /// Shows the page in a file; the page shown already is read again.
    void Abrir(const QString& fichero);
    /// Marks the words (as `PalabrasBuscadas` gives them) in the page shown, until another one is
    /// shown, and brings the first into view.
    void Resaltar(const QStringList& palabras);

protected:
    QVariant loadResource(int tipo, const QUrl& nombre) override;
};

}  // namespace padral
